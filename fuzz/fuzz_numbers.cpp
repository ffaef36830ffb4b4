// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// Fuzz target of the conversions between text and number that every reader and
// writer goes through.
#include "fuzz_contract.h"

#include <cerrno>
#include <cfloat>
#include <cmath>
#include <cstdlib>
#include <optional>
#include <string>

namespace {

using namespace vesk;

// The result of a conversion, or the description of its run-time failure.
template <typename T> struct Outcome {
    std::optional<T> value;
    std::string failure;
};

// A conversion may fail only with "Type mismatch" or "Overflow".
template <typename Convert> auto outcomeOf(Convert&& convert) -> Outcome<decltype(convert())> {
    Outcome<decltype(convert())> outcome;
    try {
        outcome.value = convert();
    } catch (const RunTimeFailure& failure) {
        outcome.failure = failure.what();
        if (outcome.failure != failure::typeMismatch && outcome.failure != failure::overflow) {
            fuzz::contractBroken("a conversion failed with " + outcome.failure);
        }
    } catch (const std::exception& other) {
        fuzz::contractBroken(std::string("a conversion threw an exception other than a run-time failure: ") +
                             other.what());
    }
    return outcome;
}

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

// The significant digits of a text that is a number: those of its mantissa
// without the zeros in front of the first and behind the last digit that is
// not zero.
std::size_t significantDigits(std::string_view number) {
    std::string digits;
    for (char c : number) {
        if (c == 'e' || c == 'E') {
            break;
        }
        if (isDigit(c)) {
            digits += c;
        }
    }
    const auto first = digits.find_first_not_of('0');
    if (first == std::string::npos) {
        return 0;
    }
    return digits.find_last_not_of('0') - first + 1;
}

// The text of a number as the writers write it: at most `limit` significant
// digits, no zero at the end of the decimals and no point at the end.
void checkNumberText(const std::string& text, std::size_t limit) {
    const std::string mantissa = text.substr(0, text.find('E'));
    if (significantDigits(mantissa) > limit) {
        fuzz::contractBroken("the text " + text + " has too many significant digits");
    }
    if (!mantissa.empty() && mantissa.back() == '.') {
        fuzz::contractBroken("the text " + text + " ends in a point");
    }
    if (mantissa.find('.') != std::string::npos && mantissa.back() == '0') {
        fuzz::contractBroken("the text " + text + " ends in a zero behind the point");
    }
}

// The strict conversion against the lenient one: a text the strict one takes
// is read the same by the lenient one, which fails only by overflow.
void checkParseNumber(std::string_view text) {
    const Outcome<Double> strict = outcomeOf([&] { return parseNumber(text); });
    const Outcome<Double> lenient = outcomeOf([&] { return leadingNumber(text); });
    if (lenient.failure == failure::typeMismatch) {
        fuzz::contractBroken("the lenient conversion failed with Type mismatch");
    }
    if (strict.value) {
        if (!std::isfinite(*strict.value)) {
            fuzz::contractBroken("a number that is not finite");
        }
        if (!lenient.value || *lenient.value != *strict.value) {
            fuzz::contractBroken("the lenient conversion reads a number differently");
        }
    }
    if (strict.failure == failure::overflow && lenient.failure != failure::overflow) {
        fuzz::contractBroken("the lenient conversion reads a number that overflows");
    }
}

// A text the strict conversion takes, or finds too large, is a decimal number,
// and the C library reads it too (the process keeps the C locale): the two
// must agree on its value, with a number too small to hold read as 0 (or the
// nearest denormal) and one too large to hold an overflow.
void checkAgainstTheCLibrary(const std::string& text) {
    const Outcome<Double> strict = outcomeOf([&] { return parseNumber(text); });
    if (!strict.value && strict.failure != failure::overflow) {
        return;
    }
    errno = 0;
    const Double reference = std::strtod(text.c_str(), nullptr);
    const bool tooLarge = errno == ERANGE && std::isinf(reference);
    if (tooLarge != !strict.value) {
        fuzz::contractBroken(tooLarge ? "a number too large to hold is read as " + doubleText(*strict.value)
                                      : "a number that a Double holds fails with Overflow");
    }
    if (strict.value && *strict.value != reference) {
        fuzz::contractBroken("a number is read as " + doubleText(*strict.value) + ", the C library reads " +
                             doubleText(reference));
    }
}

// A Single that was read is written as a text that reads back. When the text
// read had at most 7 significant digits, it reads back to the same Single: the
// text of a Single keeps 7. The largest Single is the one exception: a text a
// little above it reads as it, and its own text reads as the Single below.
void checkSingle(std::string_view text) {
    const Outcome<Single> single = outcomeOf([&] { return parseSingle(text); });
    if (!single.value) {
        return;
    }
    const std::string written = singleText(*single.value);
    checkNumberText(written, 7);
    const Outcome<Single> back = outcomeOf([&] { return parseSingle(written); });
    if (!back.value) {
        fuzz::contractBroken("the text " + written + " of a Single does not read back");
    }
    const bool exact = significantDigits(text) <= 7 && std::fabs(*single.value) != FLT_MAX;
    if (exact && *back.value != *single.value) {
        fuzz::contractBroken("the text " + written + " reads back to another Single");
    }
}

// The same for a Double and its text of 15 significant digits. The few
// Doubles just below the largest one are written rounded up, above it, and
// that text overflows when it is read, as the platform's own texts of them do.
void checkDouble(std::string_view text) {
    const Outcome<Double> number = outcomeOf([&] { return parseNumber(text); });
    if (!number.value) {
        return;
    }
    const std::string written = doubleText(*number.value);
    checkNumberText(written, 15);
    const Outcome<Double> back = outcomeOf([&] { return parseNumber(written); });
    if (!back.value) {
        errno = 0;
        const bool writtenAboveTheLargest = std::isinf(std::strtod(written.c_str(), nullptr)) && errno == ERANGE;
        if (writtenAboveTheLargest && back.failure == failure::overflow) {
            return;
        }
        fuzz::contractBroken("the text " + written + " of a Double does not read back");
    }
    const bool exact = significantDigits(text) <= 15 && std::fabs(*number.value) != DBL_MAX;
    if (exact && *back.value != *number.value) {
        fuzz::contractBroken("the text " + written + " reads back to another Double");
    }
}

// The conversion to Integer is the number rounded half to even.
void checkInteger(std::string_view text) {
    const Outcome<Integer> integer = outcomeOf([&] { return parseInteger(text); });
    if (!integer.value) {
        return;
    }
    if (static_cast<Double>(*integer.value) != std::nearbyint(parseNumber(text))) {
        fuzz::contractBroken("an Integer that is not the number rounded half to even");
    }
    if (parseInteger(integerText(*integer.value)) != *integer.value) {
        fuzz::contractBroken("the text of an Integer does not read back");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text = fuzz::textOf(data, size);
    checkParseNumber(text);
    checkAgainstTheCLibrary(text);
    checkSingle(text);
    checkDouble(text);
    checkInteger(text);
    outcomeOf([&] { return parseBoolean(text); });
    return 0;
}
