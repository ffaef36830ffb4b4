// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// What the name, hose size and hose length boxes take, and the tests of a hose size and length.
#include "editors/name_rules.h"

#include <gtest/gtest.h>

namespace vesk {
namespace {

TEST(NameRules, DollarAndHashCannotBeTypedInAName) {
    EXPECT_FALSE(NameKeyPasses('$'));
    EXPECT_FALSE(NameKeyPasses('#'));
    EXPECT_FALSE(NameKeyPasses(0xE9)); // 128 and above
    EXPECT_TRUE(NameKeyPasses(8));
    EXPECT_TRUE(NameKeyPasses(' '));
    EXPECT_TRUE(NameKeyPasses('a'));
    EXPECT_TRUE(NameKeyPasses('/'));
}

TEST(NameRules, HoseSizesThatPassAndFail) {
    for (const char* size : {"3/4", "1 1/2", "12"}) {
        EXPECT_TRUE(IsValidHoseSize(size)) << size;
    }
    for (const char* size : {"/4", "3/", "3/0", "3/ 0", "05", "1 2", "1 /2", "1/ 2"}) {
        EXPECT_FALSE(IsValidHoseSize(size)) << size;
    }
}

TEST(NameRules, ASecondSlashOrASecondBlankCannotBeTyped) {
    EXPECT_TRUE(HoseSizeKeyPasses('/', "1 1"));
    EXPECT_FALSE(HoseSizeKeyPasses('/', "1 1/"));
    EXPECT_TRUE(HoseSizeKeyPasses(' ', "1"));
    EXPECT_FALSE(HoseSizeKeyPasses(' ', "1 1"));
    EXPECT_FALSE(HoseSizeKeyPasses('a', "1"));
    EXPECT_FALSE(HoseSizeKeyPasses('.', "1"));
    EXPECT_TRUE(HoseSizeKeyPasses(8, "1 1/"));
}

TEST(NameRules, HoseLengthTakesDigitsAndOnePoint) {
    EXPECT_TRUE(HoseLengthKeyPasses('.', "30"));
    EXPECT_FALSE(HoseLengthKeyPasses('.', "30.4"));
    EXPECT_FALSE(HoseLengthKeyPasses('-', "30"));
    EXPECT_FALSE(HoseLengthKeyPasses(' ', "30"));
    EXPECT_TRUE(HoseLengthKeyPasses('7', "30"));
}

TEST(NameRules, ACustomHoseOf150FeetFallsBackTo100) {
    const HoseLengthCheck check = CheckHoseLength("150", true);
    EXPECT_EQ(check.text, "100");
    EXPECT_EQ(check.message, std::optional<std::string_view>("Maximum Value can be entered is 100"));
}

TEST(NameRules, HoseLengthCeilingsAndEmptyTexts) {
    EXPECT_EQ(CheckHoseLength("100", true).text, "100");
    EXPECT_FALSE(CheckHoseLength("100", true).message);
    EXPECT_EQ(CheckHoseLength("", true).text, "100");
    EXPECT_FALSE(CheckHoseLength("", true).message);
    EXPECT_EQ(CheckHoseLength("30.49", false).text, "30.48");
    EXPECT_EQ(CheckHoseLength("30.49", false).message,
              std::optional<std::string_view>("Maximum Value can be entered is 30.48"));
    EXPECT_EQ(CheckHoseLength("", false).text, "30.48");
    EXPECT_EQ(CheckHoseLength("15.2", false).text, "15.2");
}

} // namespace
} // namespace vesk
