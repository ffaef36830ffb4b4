// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The lines of the System Headloss Details dialog.
#include "workbench/details_view.h"

#include "engine/number_format.h"

#include <gtest/gtest.h>

namespace vesk {
namespace {

struct FormatRow {
    Double value;
    int minDecimals;
    int maxDecimals;
    const char* text;
};

class FormatFixedTest : public ::testing::TestWithParam<FormatRow> {};

TEST_P(FormatFixedTest, WritesThePatternsOfTheDialogs) {
    const FormatRow row = GetParam();
    EXPECT_EQ(FormatFixed(row.value, row.minDecimals, row.maxDecimals), row.text);
}

INSTANTIATE_TEST_SUITE_P(
    Patterns, FormatFixedTest,
    ::testing::Values(FormatRow{11, 1, 1, "11.0"}, FormatRow{0.25, 1, 1, "0.3"}, FormatRow{0.35, 1, 1, "0.4"},
                      FormatRow{0.04, 1, 1, "0.0"}, FormatRow{9.96, 1, 1, "10.0"}, FormatRow{123.45, 1, 1, "123.5"},
                      FormatRow{3.3528, 1, 1, "3.4"}, FormatRow{-2.25, 1, 1, "-2.3"}, FormatRow{-0.04, 1, 1, "0.0"},
                      FormatRow{1234.5, 1, 1, "1234.5"}, FormatRow{0.256F, 1, 2, "0.26"}, FormatRow{1.2F, 1, 2, "1.2"},
                      FormatRow{1.0, 1, 2, "1.0"}, FormatRow{0.005, 1, 2, "0.01"}, FormatRow{0, 1, 1, "0.0"}));

HeadLossBreakdown fullBreakdown() {
    HeadLossBreakdown b;
    b.TotalRise = 11;
    b.LeakDetectorLoss = 5.1F;
    b.TrunkLoss = 2.04F;
    b.BranchLoss = 0.36F;
    b.DispenserLoss = 13.7F;
    b.DispOthersLoss = 0.145F;
    b.BreakawayLoss = 1.875F;
    b.HoseLoss = 0.256F;
    b.NozzleLoss = 7.3F;
    b.PumpOthersLoss = 0.0225F;
    b.TotalHead = 41.79F;
    return b;
}

TEST(DetailsLines, ShowEveryTermOfAFullSiteAsANumber) {
    const auto lines = DetailsLines(fullBreakdown(), true);
    EXPECT_EQ(lines[0].captionControl, "Label1");
    EXPECT_EQ(lines[0].caption, "Total Rise (ft)");
    EXPECT_EQ(lines[0].valueControl, "Rise");
    EXPECT_EQ(lines[0].value, "11.0");
    EXPECT_EQ(lines[5].caption, "Dispenser Others Loss(ft)");
    EXPECT_EQ(lines[5].value, "0.1");
    EXPECT_EQ(lines[7].caption, "Hose Loss (ft)");
    EXPECT_EQ(lines[7].value, "0.26");
    EXPECT_EQ(lines[9].value, "0.0") << "a small loss is a number, not O/R";
    EXPECT_EQ(lines[10].caption, "TDH (ft)");
    EXPECT_EQ(lines[10].value, "41.8");
    for (const DetailsLine& line : lines) {
        EXPECT_NE(line.value, "O/R") << line.caption;
    }
}

TEST(DetailsLines, AComponentAtNoneShowsOutOfRangeNotZero) {
    HeadLossBreakdown b = fullBreakdown();
    b.NozzleLoss = 0;
    b.TrunkLoss = 0;
    const auto lines = DetailsLines(b, true);
    EXPECT_EQ(lines[8].valueControl, "Nozzle");
    EXPECT_EQ(lines[8].value, "O/R");
    EXPECT_EQ(lines[2].value, "O/R") << "a pipe loss of 0 looks the same";
}

TEST(DetailsLines, InMetricUnitsARiseOfElevenFeetShowsAs3Point4) {
    const auto lines = DetailsLines(fullBreakdown(), false);
    EXPECT_EQ(lines[0].caption, "Total Rise(m)");
    EXPECT_EQ(lines[0].value, "3.4");
    EXPECT_EQ(lines[5].caption, "Disp Others Loss(m)");
    EXPECT_EQ(lines[10].caption, "TDH(m)");
    EXPECT_EQ(lines[10].value, "12.7"); // 41.79 x 0.3048 = 12.737...
}

TEST(DetailsLines, TheHoseShowsASecondDecimalOnlyWhenNeeded) {
    HeadLossBreakdown b = fullBreakdown();
    b.HoseLoss = 1.2F;
    EXPECT_EQ(DetailsLines(b, true)[7].value, "1.2");
    b.HoseLoss = 0.256F;
    EXPECT_EQ(DetailsLines(b, true)[7].value, "0.26");
}

} // namespace
} // namespace vesk
