// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The numeric types and helpers that every rule of the system computes with.
#pragma once

#include <array>
#include <cmath>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace vesk {

// The widths are behaviour: a value said to be "kept as Single" is rounded to
// 32 bits at exactly that point, and everything in between is Double.
using Single = float;
using Double = double;
using Integer = std::int16_t;
using Long = std::int32_t;
using Byte = std::uint8_t;

// The one failure of the platform: an overflow, an index out of range, a text
// that does not convert, a division by zero. It is never a wrapped value and
// never undefined behaviour; it carries the platform's short description.
class RunTimeFailure : public std::runtime_error {
  public:
    explicit RunTimeFailure(const std::string& description) : std::runtime_error(description) {}
};

namespace failure {
inline constexpr const char* overflow = "Overflow";
inline constexpr const char* subscript = "Subscript out of range";
inline constexpr const char* typeMismatch = "Type mismatch";
inline constexpr const char* divisionByZero = "Division by zero";
inline constexpr const char* invalidCall = "Invalid procedure call or argument";
inline constexpr const char* invalidProperty = "Invalid property value";
} // namespace failure

[[noreturn]] void fail(const char* description);

// Stores a Double as a Single. A value beyond the range of a Single is an
// overflow, as is a value that is not a number. A Double a little above the
// largest Single still rounds to it; only a value that would become infinite
// overflows. Inline: the sweep stores a Single some thirty times a step.
inline Single toSingle(Double value) {
    const Single single = static_cast<Single>(value);
    if (!std::isfinite(value) || std::isinf(single)) {
        fail(failure::overflow);
    }
    return single;
}

// Integer conversions round half to even and fail with "Overflow" outside the
// range of the type.
Integer toInteger(Double value);
Long toLong(Double value);
Byte toByte(Double value);

// Rounds to `decimals` decimals, half to even: nearbyint(x * 10^d) / 10^d, all in
// Double. A result beyond the range of a Double is an overflow.
Double roundHalfEven(Double value, int decimals);

// A / B as the platform divides: B = 0 fails with "Division by zero", and 0 / 0
// with "Overflow"; a quotient that is not finite is an overflow.
inline Double divide(Double numerator, Double denominator) {
    if (denominator == 0) {
        fail(numerator == 0 ? failure::overflow : failure::divisionByZero);
    }
    const Double quotient = numerator / denominator;
    if (!std::isfinite(quotient)) {
        fail(failure::overflow);
    }
    return quotient;
}

// Text of a Single: at most 7 significant digits, no trailing zeros and no
// trailing point ("12.3", "0", "46.6", "0.5", "1E+10" for large magnitudes).
std::string singleText(Single value);
// Text of a Double: at most 15 significant digits, otherwise as singleText.
std::string doubleText(Double value);
// Text of a 16-bit integer.
std::string integerText(Long value);

// The ordinary numeric conversion: blanks around the number are allowed, then
// an optional sign, digits with at most one decimal point (at least one digit in
// all), and an optional exponent. Anything else, the empty text included, fails
// with "Type mismatch". Never depends on the C locale.
Double parseNumber(std::string_view text);
// The conversions to Single and to a 16-bit Integer that the rules call
// "converted to Single" and "converted to Integer".
Single parseSingle(std::string_view text);
Integer parseInteger(std::string_view text);

// The lenient conversion: the number at the front of a text, leading blanks
// skipped; where no number stands there, 0. "." gives 0, "007.50" gives 7.5,
// "12abc" gives 12.
Double leadingNumber(std::string_view text);

// The Boolean conversion of the data files: "#TRUE#", "#FALSE#", "True" and
// "False" in any letter case, and numbers (0 is false, anything else true).
// Anything else fails with "Type mismatch".
bool parseBoolean(std::string_view text);

// Element i of a vector, failing with "Subscript out of range" outside it.
template <typename T> T& at(std::vector<T>& values, long index) {
    if (index < 0 || static_cast<unsigned long>(index) >= values.size()) {
        fail(failure::subscript);
    }
    return values[static_cast<std::size_t>(index)];
}
template <typename T> const T& at(const std::vector<T>& values, long index) {
    if (index < 0 || static_cast<unsigned long>(index) >= values.size()) {
        fail(failure::subscript);
    }
    return values[static_cast<std::size_t>(index)];
}

// Element i of a fixed table, failing with "Subscript out of range" outside it.
template <typename T, std::size_t N> T& at(std::array<T, N>& values, long index) {
    if (index < 0 || static_cast<unsigned long>(index) >= N) {
        fail(failure::subscript);
    }
    return values[static_cast<std::size_t>(index)];
}
template <typename T, std::size_t N> const T& at(const std::array<T, N>& values, long index) {
    if (index < 0 || static_cast<unsigned long>(index) >= N) {
        fail(failure::subscript);
    }
    return values[static_cast<std::size_t>(index)];
}

// Resizes to the indices 0 to `upper`, keeping the contents (new elements are
// zero). An array always keeps its element 0: an upper bound below 0 fails with
// "Subscript out of range".
template <typename T> void redimPreserve(std::vector<T>& values, long upper) {
    if (upper < 0) {
        fail(failure::subscript);
    }
    values.resize(static_cast<std::size_t>(upper + 1));
}
// Resizes to the indices 0 to `upper`, clearing every element; as above, the
// upper bound is at least 0.
template <typename T> void redim(std::vector<T>& values, long upper) {
    if (upper < 0) {
        fail(failure::subscript);
    }
    values.assign(static_cast<std::size_t>(upper + 1), T{});
}

} // namespace vesk
