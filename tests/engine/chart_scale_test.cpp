// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// Tests of the round axis maximum of a chart.
#include "hydraulic_fixture.h"

#include "engine/chart_scale.h"

#include <gtest/gtest.h>

namespace vesk {
namespace {

using test::failureOf;

struct ScaleCase {
    Single value;
    Integer expected;
};

class ChartScaleTable : public ::testing::TestWithParam<ScaleCase> {};

TEST_P(ChartScaleTable, GivesTheRoundMaximumStrictlyAbove) {
    EXPECT_EQ(ChartScale(GetParam().value), GetParam().expected) << GetParam().value;
}

INSTANTIATE_TEST_SUITE_P(EdgeCases, ChartScaleTable,
                         ::testing::Values(ScaleCase{0, 10}, ScaleCase{9.4F, 10}, ScaleCase{9.6F, 15},
                                           ScaleCase{10, 25}, ScaleCase{20, 50}, ScaleCase{45, 50}, ScaleCase{50, 100},
                                           ScaleCase{100, 250}, ScaleCase{240, 500}, ScaleCase{900, 1000},
                                           ScaleCase{1000, 2500}, ScaleCase{4500, 5000}, ScaleCase{5000, 6000},
                                           ScaleCase{-5, 15}));

INSTANTIATE_TEST_SUITE_P(Ladder, ChartScaleTable,
                         ::testing::Values(ScaleCase{9.5F, 15},    // rounds to 10, half to even
                                           ScaleCase{9.99F, 15},   // M = 10
                                           ScaleCase{8.5F, 10},    // rounds to 8
                                           ScaleCase{14, 25},      // M = 20, not 15
                                           ScaleCase{10.4F, 25},   // M = 20
                                           ScaleCase{19.9F, 25},   // M = 20
                                           ScaleCase{25, 50},      // M = 30
                                           ScaleCase{49.9F, 50},   // M = 50
                                           ScaleCase{99.4F, 100},  // M = 100
                                           ScaleCase{100.4F, 250}, // M = 200
                                           ScaleCase{99.6F, 100},  // rounds to 100, M = 100
                                           ScaleCase{499, 500},    // M = 500
                                           ScaleCase{500, 1000},   // M = 600
                                           ScaleCase{1500, 2500},  // M = 2000
                                           ScaleCase{2400, 5000},  // M = 3000
                                           ScaleCase{5001, 6000},  // M = 6000
                                           ScaleCase{8999, 9000},  // M = 9000
                                           ScaleCase{9000, 10000}, // M = 10000
                                           ScaleCase{29999.4F, 30000}, ScaleCase{-0.4F, 10}, ScaleCase{-0.6F, 15},
                                           ScaleCase{-9.4F, 15}, ScaleCase{-99, 100}));

TEST(ChartScale, ValueOf32767Point5OrMoreFailsWithOverflowWhenRounded) {
    EXPECT_EQ(failureOf([] { ChartScale(32767.5F); }), "Overflow");
    EXPECT_EQ(failureOf([] { ChartScale(1E+06F); }), "Overflow");
}

TEST(ChartScale, ValueFrom30000UpFailsWithOverflowAtTheMultiple) {
    // M would be 40000.
    EXPECT_EQ(failureOf([] { ChartScale(30000); }), "Overflow");
    EXPECT_EQ(failureOf([] { ChartScale(32767.4F); }), "Overflow");
    EXPECT_EQ(ChartScale(29999.4F), 30000);
}

TEST(ChartScale, NegativeValueOfSixCharactersFailsWithOverflowAtTheDecade) {
    // "-10000" has six characters: a decade of 100000.
    EXPECT_EQ(failureOf([] { ChartScale(-10000); }), "Overflow");
    EXPECT_EQ(ChartScale(-9999), 10000);
}

} // namespace
} // namespace vesk
