// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The numeric helpers: rounding, integer conversion, number texts and parsing.
#include "support/failure_of.h"

#include "engine/numeric.h"

#include <gtest/gtest.h>
#include <limits>
#include <string>

namespace vesk {
namespace {

using test::failureOf;

void expectFailure(const char* description, auto&& action) {
    EXPECT_EQ(failureOf(action), description);
}

struct RoundingRow {
    Double value;
    int decimals;
    Double expected;
};

class RoundHalfEven : public ::testing::TestWithParam<RoundingRow> {};

TEST_P(RoundHalfEven, RoundsTiesToEvenInBothDirections) {
    const RoundingRow row = GetParam();
    EXPECT_EQ(roundHalfEven(row.value, row.decimals), row.expected);
}

INSTANTIATE_TEST_SUITE_P(Ties, RoundHalfEven,
                         ::testing::Values(RoundingRow{0.5, 0, 0}, RoundingRow{1.5, 0, 2}, RoundingRow{2.5, 0, 2},
                                           RoundingRow{-0.5, 0, -0.0}, RoundingRow{-1.5, 0, -2},
                                           RoundingRow{-2.5, 0, -2}, RoundingRow{0.25, 1, 0.2},
                                           RoundingRow{0.75, 1, 0.8}, RoundingRow{-0.25, 1, -0.2},
                                           RoundingRow{12.30002, 1, 12.3}, RoundingRow{46.563372, 1, 46.6},
                                           RoundingRow{243.84, 1, 243.8}, RoundingRow{0.9144, 1, 0.9}));

TEST(RoundHalfEven, WorksOnTheDoubleOfASingle) {
    // 12.25 is exact in binary, so the tie goes to the even 12.2.
    EXPECT_EQ(roundHalfEven(static_cast<Single>(12.25F), 1), 12.2);
    // 0.15 as a Single is a little above 0.15, so it rounds up.
    EXPECT_EQ(roundHalfEven(static_cast<Single>(0.15F), 1), 0.2);
}

TEST(IntegerConversion, RoundsHalfToEven) {
    EXPECT_EQ(toInteger(1.5), 2);
    EXPECT_EQ(toInteger(2.5), 2);
    EXPECT_EQ(toInteger(-2.5), -2);
    EXPECT_EQ(toInteger(-3.5), -4);
    EXPECT_EQ(toByte(254.5), 254);
    EXPECT_EQ(toLong(2147483647.0), 2147483647);
}

TEST(IntegerConversion, OutOfRangeIsOverflow) {
    expectFailure(failure::overflow, [] { toInteger(32767.5); });
    expectFailure(failure::overflow, [] { toInteger(-32768.6); });
    expectFailure(failure::overflow, [] { toByte(-1); });
    expectFailure(failure::overflow, [] { toByte(255.5); });
    EXPECT_EQ(toInteger(32767.4), 32767);
    EXPECT_EQ(toByte(255.4), 255);
}

TEST(SingleConversion, BeyondTheRangeOfASingleIsOverflow) {
    expectFailure(failure::overflow, [] { toSingle(1e39); });
    expectFailure(failure::overflow, [] { toSingle(std::numeric_limits<Double>::infinity()); });
    expectFailure(failure::overflow, [] { toSingle(std::numeric_limits<Double>::quiet_NaN()); });
    EXPECT_EQ(toSingle(0.1), 0.1F);
}

TEST(Divide, ByZeroFailsAndZeroByZeroOverflows) {
    expectFailure(failure::divisionByZero, [] { divide(1, 0); });
    expectFailure(failure::overflow, [] { divide(0, 0); });
    EXPECT_EQ(divide(1, 4), 0.25);
}

struct TextRow {
    Single value;
    const char* text;
};

class SingleText : public ::testing::TestWithParam<TextRow> {};

TEST_P(SingleText, HasAtMostSevenSignificantDigitsAndNoTrailingZeros) {
    EXPECT_EQ(singleText(GetParam().value), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(Texts, SingleText,
                         ::testing::Values(TextRow{12.3F, "12.3"}, TextRow{0.0F, "0"}, TextRow{-0.0F, "0"},
                                           TextRow{46.6F, "46.6"}, TextRow{0.5F, "0.5"}, TextRow{100.0F, "100"},
                                           TextRow{1.0F / 3.0F, "0.3333333"}, TextRow{-2.25F, "-2.25"},
                                           TextRow{1234567.0F, "1234567"}, TextRow{12345678.0F, "1.234568E+07"},
                                           TextRow{0.0001F, "0.0001"}, TextRow{0.00001F, "1E-05"},
                                           TextRow{4.9E-06F, "4.9E-06"}));

TEST(DoubleText, HasAtMostFifteenSignificantDigits) {
    EXPECT_EQ(doubleText(243.8), "243.8");
    EXPECT_EQ(doubleText(0.1 + 0.2), "0.3");
    EXPECT_EQ(doubleText(1.0 / 3.0), "0.333333333333333");
    EXPECT_EQ(doubleText(96), "96");
}

TEST(StrictConversion, ReadsNumbersWithBlanksAround) {
    EXPECT_EQ(parseNumber("12.5"), 12.5);
    EXPECT_EQ(parseNumber("  -3 "), -3);
    EXPECT_EQ(parseNumber("+4"), 4);
    EXPECT_EQ(parseNumber(".5"), 0.5);
    EXPECT_EQ(parseNumber("5."), 5);
    EXPECT_EQ(parseNumber("1E3"), 1000);
    EXPECT_EQ(parseNumber("2.5e-1"), 0.25);
}

TEST(StrictConversion, FailsOnTextThatIsNotANumber) {
    for (const char* text : {"", " ", ".", "abc", "12abc", "1,5", "1.2.3", "inf", "nan", "0x10", "1e", "- 1"}) {
        SCOPED_TRACE(text);
        expectFailure(failure::typeMismatch, [text] { parseNumber(text); });
    }
}

TEST(StrictConversion, ANumberTooLargeForTheTypeOverflows) {
    expectFailure(failure::overflow, [] { parseNumber("1e400"); });
    expectFailure(failure::overflow, [] { parseSingle("1e39"); });
    expectFailure(failure::overflow, [] { parseInteger("40000"); });
    EXPECT_EQ(parseInteger("1.5"), 2);
    EXPECT_EQ(parseInteger("2.5"), 2);
}

TEST(StrictConversion, ANumberTooSmallForADoubleIsZeroWithOrWithoutExponent) {
    const std::string tinyWithoutExponent = "0." + std::string(400, '0') + "1";
    EXPECT_EQ(parseNumber(tinyWithoutExponent), 0);
    EXPECT_EQ(parseNumber("-" + tinyWithoutExponent), 0);
    EXPECT_EQ(parseNumber("1e-400"), 0);
    EXPECT_EQ(parseNumber("0.001e-400"), 0);
    EXPECT_EQ(parseSingle(tinyWithoutExponent), 0);
    EXPECT_EQ(leadingNumber(tinyWithoutExponent + "x"), 0);
}

TEST(StrictConversion, ANumberTooLargeForADoubleOverflowsEvenWithANegativeExponent) {
    const std::string hugeDigits = "1" + std::string(400, '0');
    expectFailure(failure::overflow, [&] { parseNumber(hugeDigits + "e-10"); });
    expectFailure(failure::overflow, [&] { parseNumber("-" + hugeDigits + ".5E-60"); });
    expectFailure(failure::overflow, [&] { parseNumber("0.0001e400"); });
    expectFailure(failure::overflow, [&] { leadingNumber(hugeDigits + "e-10abc"); });
    // Digits in front that the exponent brings back into range are a number.
    EXPECT_EQ(parseNumber(hugeDigits + "e-400"), 1);
}

TEST(LenientConversion, ReadsTheNumberAtTheFront) {
    EXPECT_EQ(leadingNumber(""), 0);
    EXPECT_EQ(leadingNumber("."), 0);
    EXPECT_EQ(leadingNumber("007.50"), 7.5);
    EXPECT_EQ(leadingNumber("12abc"), 12);
    EXPECT_EQ(leadingNumber("  8"), 8);
    EXPECT_EQ(leadingNumber("abc"), 0);
    EXPECT_EQ(leadingNumber("-2.5x"), -2.5);
}

TEST(BooleanConversion, ReadsTheFlagLinesOfTheDataFiles) {
    EXPECT_TRUE(parseBoolean("#TRUE#"));
    EXPECT_FALSE(parseBoolean("#FALSE#"));
    EXPECT_TRUE(parseBoolean("True"));
    EXPECT_FALSE(parseBoolean("false"));
    EXPECT_TRUE(parseBoolean("-1"));
    EXPECT_FALSE(parseBoolean("0"));
    expectFailure(failure::typeMismatch, [] { parseBoolean("#YES#"); });
    expectFailure(failure::typeMismatch, [] { parseBoolean(""); });
}

TEST(CheckedIndex, OutsideTheArrayIsSubscriptOutOfRange) {
    std::vector<int> values{1, 2, 3};
    EXPECT_EQ(at(values, 2), 3);
    expectFailure(failure::subscript, [&] { at(values, 3); });
    expectFailure(failure::subscript, [&] { at(values, -1); });
}

TEST(Redim, KeepsOrClearsAndNeverCutsBelowIndexZero) {
    std::vector<Single> values{1, 2};
    redimPreserve(values, 3);
    EXPECT_EQ(values, (std::vector<Single>{1, 2, 0, 0}));
    redimPreserve(values, 0);
    EXPECT_EQ(values, (std::vector<Single>{1}));
    redim(values, 2);
    EXPECT_EQ(values, (std::vector<Single>{0, 0, 0}));
    expectFailure(failure::subscript, [&] { redimPreserve(values, -1); });
    expectFailure(failure::subscript, [&] { redim(values, -1); });
}

TEST(DoubleText, TheLargestDoublesAreWrittenAboveTheRangeAndDoNotReadBack) {
    // Fifteen digits round the largest Double up, past what a Double holds:
    // its text overflows when read, as the platform's own text of it does.
    const Double largest = std::numeric_limits<Double>::max();
    EXPECT_EQ(doubleText(largest), "1.79769313486232E+308");
    EXPECT_EQ(failureOf([&] { parseNumber(doubleText(largest)); }), "Overflow");
    EXPECT_EQ(parseNumber(doubleText(1.7976931348623e308)), 1.7976931348623e308);
}

} // namespace
} // namespace vesk
