// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The rewrites of an editor's head column between head of fuel and pressure, compared exactly.
#include "editors/head_views.h"

#include <gtest/gtest.h>

namespace vesk {
namespace {

GridRows oneRow(const char* flow, const char* head) {
    return {{flow, head}};
}

TEST(HeadViews, ConstantsAreExactlyTheSystemsOwn) {
    EXPECT_EQ(static_cast<Double>(head_view::gasSpecificGravity), 0.72000002861022949);
    EXPECT_EQ(static_cast<Double>(head_view::dieselSpecificGravity), 0.87000000476837158);
    EXPECT_EQ(head_view::feetOfWaterPerPsi, 2.31);
    EXPECT_EQ(head_view::metresPerFoot, 0.3048);
    EXPECT_EQ(head_view::psiPerMetreOfWater, 1.42);
}

TEST(HeadViews, EveryPassThroughFeetAndPsiRoundsTwice) {
    GridRows rows = oneRow("10", "100");
    RewriteGrid(
        rows, [](Single v) { return PressureFromHead(v, false, false); }, RewriteText::AsDouble);
    EXPECT_EQ(rows[0][1], "31.2");
    RewriteGrid(
        rows, [](Single v) { return HeadFromPressure(v, false, false); }, RewriteText::AsDouble);
    EXPECT_EQ(rows[0][1], "100.1");
    EXPECT_EQ(rows[0][0], "10");
}

TEST(HeadViews, DieselAfterGasWithPsiShownTurns31Point2Into37Point7) {
    GridRows rows = oneRow("0", "31.2");
    RewriteGrid(
        rows, [](Single v) { return PressureForFuel(v, true, true); }, RewriteText::AsSingle);
    EXPECT_EQ(rows[0][1], "37.7");
}

TEST(HeadViews, AFuelWithoutAFormerFuelMultipliesByItsGravityAlone) {
    GridRows rows = oneRow("0", "100");
    RewriteGrid(
        rows, [](Single v) { return PressureForFuel(v, true, false); }, RewriteText::AsSingle);
    EXPECT_EQ(rows[0][1], "87");
}

TEST(HeadViews, MetricFactorsUseMetresAndPsiPerMetre) {
    struct Case {
        bool toPsi;
        bool diesel;
        const char* head;
        const char* expected;
    } cases[] = {
        {true, false, "10", "10.2"},  // 10 x 0.72 x 1.42 = 10.224
        {true, true, "10", "12.4"},   // 10 x 0.87 x 1.42 = 12.354
        {false, false, "10.2", "10"}, // 10.2 x 2.31 / 0.72 x 0.3048 = 9.975
        {false, true, "12.4", "10"},  // 12.4 x 2.31 / 0.87 x 0.3048 = 10.035
    };
    for (const Case& c : cases) {
        GridRows rows = oneRow("0", c.head);
        RewriteGrid(
            rows,
            [&c](Single v) {
                return c.toPsi ? PressureFromHead(v, true, c.diesel) : HeadFromPressure(v, true, c.diesel);
            },
            RewriteText::AsDouble);
        EXPECT_EQ(rows[0][1], c.expected) << c.head;
    }
}

TEST(HeadViews, FlowsAreOnlyRoundedToOneDecimal) {
    GridRows rows = oneRow("12.34", "0");
    RewriteGrid(
        rows, [](Single v) { return PressureFromHead(v, false, false); }, RewriteText::AsDouble);
    EXPECT_EQ(rows[0][0], "12.3");
    EXPECT_EQ(rows[0][1], "0");
}

TEST(HeadViews, RoundingIsHalfToEvenOnTheText) {
    GridRows rows = oneRow("0.25", "0");
    RewriteGrid(
        rows, [](Single) { return 0.45; }, RewriteText::AsDouble);
    EXPECT_EQ(rows[0][0], "0.2");
    EXPECT_EQ(rows[0][1], "0.4");
}

TEST(HeadViews, ACellThatIsNoNumberIsATypeMismatch) {
    GridRows rows = oneRow("", "1");
    EXPECT_THROW(RewriteGrid(
                     rows, [](Single v) { return v; }, RewriteText::AsDouble),
                 RunTimeFailure);
}

TEST(HeadViews, MoreThan256RowsOverflowTheRowCounter) {
    GridRows rows(257, {"0", "0"});
    EXPECT_THROW(RewriteGrid(
                     rows, [](Single v) { return v; }, RewriteText::AsDouble),
                 RunTimeFailure);
}

} // namespace
} // namespace vesk
