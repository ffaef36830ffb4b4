// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The numeric types and helpers that every rule of the system computes with.
#include "engine/numeric.h"

#include "engine/ascii_case.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

namespace vesk {

void fail(const char* description) {
    throw RunTimeFailure(description);
}

namespace {

template <typename T> T roundToIntegral(Double value) {
    const Double rounded = std::nearbyint(value);
    if (!(rounded >= static_cast<Double>(std::numeric_limits<T>::min()) &&
          rounded <= static_cast<Double>(std::numeric_limits<T>::max()))) {
        fail(failure::overflow);
    }
    return static_cast<T>(rounded);
}

bool isBlank(char c) {
    return c == ' ' || c == '\t';
}

std::string_view trimBlanks(std::string_view text) {
    while (!text.empty() && isBlank(text.front())) {
        text.remove_prefix(1);
    }
    while (!text.empty() && isBlank(text.back())) {
        text.remove_suffix(1);
    }
    return text;
}

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

// Length of the number that stands at the front of `text` (sign, digits, one
// point, exponent), or 0 when no digit stands there.
std::size_t numberPrefixLength(std::string_view text) {
    std::size_t i = 0;
    if (i < text.size() && (text[i] == '+' || text[i] == '-')) {
        ++i;
    }
    std::size_t digits = 0;
    while (i < text.size() && isDigit(text[i])) {
        ++i;
        ++digits;
    }
    if (i < text.size() && text[i] == '.') {
        ++i;
        while (i < text.size() && isDigit(text[i])) {
            ++i;
            ++digits;
        }
    }
    if (digits == 0) {
        return 0;
    }
    if (i < text.size() && (text[i] == 'e' || text[i] == 'E')) {
        std::size_t j = i + 1;
        if (j < text.size() && (text[j] == '+' || text[j] == '-')) {
            ++j;
        }
        std::size_t exponentDigits = 0;
        while (j < text.size() && isDigit(text[j])) {
            ++j;
            ++exponentDigits;
        }
        if (exponentDigits > 0) {
            i = j;
        }
    }
    return i;
}

// The value of the exponent digits of a number text, with its sign. Held at
// a million either way: only its sign and size matter beyond a Double's range.
long exponentValue(std::string_view exponent) {
    bool negative = false;
    if (!exponent.empty() && (exponent.front() == '+' || exponent.front() == '-')) {
        negative = exponent.front() == '-';
        exponent.remove_prefix(1);
    }
    constexpr long limit = 1'000'000;
    long value = 0;
    for (char c : exponent) {
        value = std::min(limit, value * 10 + (c - '0'));
    }
    return negative ? -value : value;
}

// Whether a number that a Double cannot hold is too large rather than too
// small. Its value is 0.d * 10^m with d its first digit that is not zero; m
// comes from where that digit stands against the point, plus the exponent.
// Out of range, m is far from 0, so its sign decides: "1e-400" and
// "0.000...001" are too small, "1e400" and "1000...000e-10" too large.
bool isTooLargeToHold(std::string_view number) {
    const std::size_t exponent = number.find_first_of("eE");
    const std::string_view mantissa = number.substr(0, exponent);
    const std::size_t first = mantissa.find_first_of("123456789");
    if (first == std::string_view::npos) {
        return false; // zero
    }
    const auto point = static_cast<long>(std::min(mantissa.find('.'), mantissa.size()));
    const auto digit = static_cast<long>(first);
    long magnitude = digit < point ? point - digit : point - digit + 1;
    if (exponent != std::string_view::npos) {
        magnitude += exponentValue(number.substr(exponent + 1));
    }
    return magnitude > 0;
}

// Converts a text that is exactly one number of the form above.
Double convertNumber(std::string_view number) {
    if (!number.empty() && number.front() == '+') {
        number.remove_prefix(1);
    }
    Double value = 0;
    const auto [end, error] = std::from_chars(number.data(), number.data() + number.size(), value);
    if (error == std::errc::result_out_of_range) {
        // Too large overflows; too small is 0, as the platform reads it.
        if (isTooLargeToHold(number)) {
            fail(failure::overflow);
        }
        return 0;
    }
    if (error != std::errc{} || end != number.data() + number.size()) {
        fail(failure::typeMismatch);
    }
    return value;
}

// Makes the exponent of a to_chars text look as the platform writes it: "1E+08".
std::string platformExponent(std::string text) {
    const auto e = text.find('e');
    if (e == std::string::npos) {
        return text;
    }
    std::string mantissa = text.substr(0, e);
    std::string exponent = text.substr(e + 1);
    const char sign = exponent.front();
    std::string digits = exponent.substr(1);
    while (digits.size() < 2) {
        digits.insert(digits.begin(), '0');
    }
    return mantissa + "E" + sign + digits;
}

std::string generalText(Double value, int significantDigits) {
    if (value == 0) {
        return "0"; // also for a negative zero
    }
    char buffer[64];
    const auto result =
        std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::general, significantDigits);
    return platformExponent(std::string(buffer, result.ptr));
}

} // namespace

Integer toInteger(Double value) {
    return roundToIntegral<Integer>(value);
}
Long toLong(Double value) {
    return roundToIntegral<Long>(value);
}
Byte toByte(Double value) {
    return roundToIntegral<Byte>(value);
}

Double roundHalfEven(Double value, int decimals) {
    const Double scale = std::pow(10.0, decimals);
    const Double result = std::nearbyint(value * scale) / scale;
    if (!std::isfinite(result)) {
        fail(failure::overflow);
    }
    return result;
}

std::string singleText(Single value) {
    return generalText(value, 7);
}
std::string doubleText(Double value) {
    return generalText(value, 15);
}
std::string integerText(Long value) {
    return std::to_string(value);
}

Double parseNumber(std::string_view text) {
    const std::string_view number = trimBlanks(text);
    if (number.empty() || numberPrefixLength(number) != number.size()) {
        fail(failure::typeMismatch);
    }
    return convertNumber(number);
}

Single parseSingle(std::string_view text) {
    return toSingle(parseNumber(text));
}

Integer parseInteger(std::string_view text) {
    return toInteger(parseNumber(text));
}

Double leadingNumber(std::string_view text) {
    while (!text.empty() && isBlank(text.front())) {
        text.remove_prefix(1);
    }
    const std::size_t length = numberPrefixLength(text);
    if (length == 0) {
        return 0;
    }
    return convertNumber(text.substr(0, length));
}

bool parseBoolean(std::string_view text) {
    const std::string_view word = trimBlanks(text);
    if (EqualIgnoringCase(word, "#TRUE#") || EqualIgnoringCase(word, "True")) {
        return true;
    }
    if (EqualIgnoringCase(word, "#FALSE#") || EqualIgnoringCase(word, "False")) {
        return false;
    }
    return parseNumber(word) != 0;
}

} // namespace vesk
