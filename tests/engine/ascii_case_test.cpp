// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// Tests of letter case as names and words are compared: A to Z only.
#include "engine/ascii_case.h"

#include <gtest/gtest.h>

namespace vesk {
namespace {

TEST(AsciiCase, NamesDifferingOnlyInCaseAreEqual) {
    EXPECT_TRUE(EqualIgnoringCase("Nozzle standard 3/4in", "NOZZLE STANDARD 3/4IN"));
    EXPECT_TRUE(EqualIgnoringCase("none", "None"));
    EXPECT_TRUE(EqualIgnoringCase("", ""));
}

TEST(AsciiCase, ANameThatIsLongerOrShorterIsNotEqual) {
    EXPECT_FALSE(EqualIgnoringCase("None", "None "));
    EXPECT_FALSE(EqualIgnoringCase("None", "Non"));
    EXPECT_FALSE(EqualIgnoringCase("1 1/4", "1 1/2"));
}

TEST(AsciiCase, LettersBeyondAsciiKeepTheirCase) {
    // "é" and "É" in Windows-1252: not the same name.
    EXPECT_FALSE(EqualIgnoringCase("Caf\xE9", "CAF\xC9"));
    EXPECT_EQ(UpperCase("Caf\xE9"), "CAF\xE9");
}

TEST(AsciiCase, UpperCaseChangesOnlyTheLettersAToZ) {
    EXPECT_EQ(UpperCase("\\Nozzle.dat"), "\\NOZZLE.DAT");
    EXPECT_EQ(UpperCase("#TRUE# 1-1/2\""), "#TRUE# 1-1/2\"");
}

} // namespace
} // namespace vesk
