// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// Numbers written with a format pattern of fixed decimals.
#include "engine/number_format.h"

#include <charconv>
#include <cmath>

namespace vesk {

namespace {

// The digits of |value| with 15 significant digits in plain positional form,
// split at the point.
struct DecimalDigits {
    std::string whole;
    std::string fraction;
};

DecimalDigits decimalDigitsOf(Double magnitude) {
    char buffer[400];
    // 15 significant digits in scientific form, then written out positionally.
    const auto result = std::to_chars(buffer, buffer + sizeof buffer, magnitude, std::chars_format::scientific, 14);
    const std::string text(buffer, result.ptr);
    const auto e = text.find('e');
    std::string digits = text.substr(0, 1) + text.substr(2, e - 2); // 15 digits
    const int exponent = std::stoi(text.substr(e + 1));
    const int pointAt = exponent + 1; // digits before the point
    DecimalDigits split;
    if (pointAt <= 0) {
        split.whole = "0";
        split.fraction = std::string(static_cast<std::size_t>(-pointAt), '0') + digits;
    } else if (pointAt >= static_cast<int>(digits.size())) {
        split.whole = digits + std::string(static_cast<std::size_t>(pointAt) - digits.size(), '0');
    } else {
        split.whole = digits.substr(0, static_cast<std::size_t>(pointAt));
        split.fraction = digits.substr(static_cast<std::size_t>(pointAt));
    }
    return split;
}

// Adds one to the last digit of a digit string, carrying; "99" becomes "100".
std::string incremented(std::string digits) {
    for (auto it = digits.rbegin(); it != digits.rend(); ++it) {
        if (*it != '9') {
            ++*it;
            return digits;
        }
        *it = '0';
    }
    return "1" + digits;
}

} // namespace

std::string FormatFixed(Double value, int minDecimals, int maxDecimals) {
    if (value == 0 || !std::isfinite(value)) {
        return "0." + std::string(static_cast<std::size_t>(minDecimals), '0');
    }
    DecimalDigits digits = decimalDigitsOf(std::fabs(value));
    const auto kept = static_cast<std::size_t>(maxDecimals);
    std::string all = digits.whole + digits.fraction.substr(0, std::min(kept, digits.fraction.size()));
    all.append(kept - std::min(kept, digits.fraction.size()), '0');
    if (digits.fraction.size() > kept && digits.fraction[kept] >= '5') {
        all = incremented(all); // half away from zero, on the decimal text
    }
    std::string whole = all.substr(0, all.size() - kept);
    std::string fraction = all.substr(all.size() - kept);
    while (static_cast<int>(fraction.size()) > minDecimals && fraction.back() == '0') {
        fraction.pop_back();
    }
    const bool negative = value < 0 && (whole.find_first_not_of('0') != std::string::npos ||
                                        fraction.find_first_not_of('0') != std::string::npos);
    return (negative ? "-" : "") + whole + (fraction.empty() ? "" : "." + fraction);
}

} // namespace vesk
