// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The compare table: its figures and their texts, the screen grid and the two printed grids.
#include "reports/compare_table.h"
#include "support/failure_of.h"

#include <gtest/gtest.h>

namespace vesk {
namespace {

// A table of `size` + 1 entries with the given flows from index 1 on, in both
// units (the LPM flows are the GPM flows times ten, to tell them apart).
FlowTable tableOf(long size, std::initializer_list<Single> gpm) {
    FlowTable table;
    CreateFlowTable(table, static_cast<Integer>(size));
    long i = 1;
    for (const Single flow : gpm) {
        table.GpmPerNozzle.at(static_cast<std::size_t>(i)) = flow;
        table.LpmPerNozzle.at(static_cast<std::size_t>(i)) = flow * 10;
        ++i;
    }
    return table;
}

TEST(FormatString, PadsWithBlanksToTheLengthAndChangesItsArgument) {
    std::string text = "ab";
    EXPECT_EQ(FormatString(text, 5), "ab   ");
    EXPECT_EQ(text, "ab   ");
    std::string blank = " ";
    EXPECT_EQ(FormatString(blank, 30), std::string(30, ' '));
}

TEST(FormatString, LeavesATextThatIsLongEnough) {
    std::string text = "abcdef";
    EXPECT_EQ(FormatString(text, 3), "abcdef");
    EXPECT_EQ(FormatString(std::string("abc"), 3), "abc");
}

struct FiguresRow {
    const char* name;
    Single current;
    Single baseline;
    const char* currentText;
    const char* baselineText;
    const char* change;
    const char* percent;
};

class CompareFiguresTable : public testing::TestWithParam<FiguresRow> {};

TEST_P(CompareFiguresTable, GivesTheFourTexts) {
    const FiguresRow& row = GetParam();
    const std::vector<Single> current{0, row.current};
    const std::vector<Single> baseline{0, row.baseline};
    const CompareFigures figures = CompareFiguresOf(current, baseline, 1);
    EXPECT_EQ(figures.current, row.currentText);
    EXPECT_EQ(figures.baseline, row.baselineText);
    EXPECT_EQ(figures.change, row.change);
    EXPECT_EQ(figures.percent, row.percent);
}

INSTANTIATE_TEST_SUITE_P(
    CompareFigures, CompareFiguresTable,
    testing::Values(FiguresRow{"CurrentAboveBaseline", 13.9F, 12.8F, "13.9", "12.8", "1.1", "7.9"},
                    FiguresRow{"CurrentEqualToBaselineGivesZeroChangeAndZeroPercent", 12.3F, 12.3F, "12.3", "12.3", "0",
                               "0"},
                    FiguresRow{"CurrentTenBaselineTwelveAndAHalf", 10.0F, 12.5F, "10", "12.5", "-2.5", "-25"},
                    FiguresRow{"CurrentZeroBaselineFiveGuardsThePercentage", 0.0F, 5.0F, "0", "5", "-5", "0"},
                    FiguresRow{"BaselineZeroGivesAHundredPercent", 8.4F, 0.0F, "8.4", "0", "8.4", "100"},
                    FiguresRow{"BothZero", 0.0F, 0.0F, "0", "0", "0", "0"},
                    FiguresRow{"AWholeFlowShowsNoDecimals", 12.0F, 11.5F, "12", "11.5", "0.5", "4.2"},
                    FiguresRow{"AFlowOfTwoDecimalsRoundsHalfToEven", 0.25F, 0.35F, "0.2", "0.4", "-0.1", "-40"}),
    [](const testing::TestParamInfo<FiguresRow>& row) { return std::string(row.param.name); });

TEST(CompareFigures, ACurrentOfZeroGivesTheTextAskedForTheFlowGraph) {
    const std::vector<Single> current{0, 0};
    const std::vector<Single> baseline{0, 5};
    EXPECT_EQ(CompareFiguresOf(current, baseline, 1, " 0").percent, " 0");
}

TEST(CompareFigures, ANozzleOutsideTheTablesIsASubscriptFailure) {
    const std::vector<Single> flows{0, 1, 2};
    EXPECT_EQ(test::failureOf([&] { CompareFiguresOf(flows, flows, 3); }), "Subscript out of range");
}

TEST(CompareHeads, FollowTheUnitOption) {
    EXPECT_EQ(CompareHeads(true), (std::array<std::string, 5>{"NoOfNozzles", "CurrentFlow(GPM)", "BaselineFlow(GPM)",
                                                              "ChangeInFlow(GPM)", "%ChangeInFlow(GPM)"}));
    EXPECT_EQ(CompareHeads(false), (std::array<std::string, 5>{"NoOfNozzles", "CurrentFlow(LPM)", "BaselineFlow(LPM)",
                                                               "ChangeInFlow(LPM)", "%ChangeInFlow(LPM)"}));
}

TEST(CompareGrid, OneNozzleGivesFourRowsWithOneRowOfFigures) {
    const SheetGrid grid = LoadCompareGrid(tableOf(2, {13.9F}), tableOf(2, {12.8F}), 1, true);
    ASSERT_EQ(grid.Rows(), 4);
    ASSERT_EQ(grid.Cols(), 5);
    EXPECT_EQ(grid.TextMatrix(3, 0), "1");
    EXPECT_EQ(grid.TextMatrix(3, 1), "13.9");
    EXPECT_EQ(grid.TextMatrix(3, 2), "12.8");
    EXPECT_EQ(grid.TextMatrix(3, 3), "1.1");
    EXPECT_EQ(grid.TextMatrix(3, 4), "7.9");
}

TEST(CompareGrid, TitleRowsAreMergedAndTheHeadsFollow) {
    const SheetGrid grid = LoadCompareGrid(tableOf(2, {1}), tableOf(2, {1}), 1, false);
    for (long column = 0; column < 5; ++column) {
        EXPECT_EQ(grid.TextMatrix(0, column),
                  std::string(30, ' ') + "FlowRate Improvement Between Baseline Vs Current");
        EXPECT_EQ(grid.TextMatrix(1, column), std::string(35, ' '));
        EXPECT_EQ(grid.ColAlignment(column), CellAlignment::CenterCenter);
    }
    EXPECT_TRUE(grid.MergeRow(0));
    EXPECT_TRUE(grid.MergeRow(1));
    EXPECT_FALSE(grid.MergeRow(2));
    EXPECT_EQ(RowSpans(grid, 0).size(), 1U);
    EXPECT_EQ(grid.TextMatrix(2, 1), "CurrentFlow(LPM)");
    EXPECT_EQ(grid.TextMatrix(3, 1), "10"); // the LPM flows of the table
}

TEST(CompareGrid, ColumnWidthsFollowTheGridWidth) {
    const SheetGrid grid = LoadCompareGrid(tableOf(2, {1}), tableOf(2, {1}), 1, true);
    EXPECT_EQ(grid.ColWidth(0), 9600 / 5 - 400);
    for (long column = 1; column < 5; ++column) {
        EXPECT_EQ(grid.ColWidth(column), 9600 / 5);
    }
}

TEST(CompareGrid, ANozzleCountBeyondTheTablesReadsPastTheirEnd) {
    // NoOfNozzles 8 from start-up, tables of a four-nozzle site (6 rows).
    EXPECT_EQ(test::failureOf([] {
                  LoadCompareGrid(tableOf(6, {9, 8, 7, 6}), tableOf(6, {9, 8, 7, 6}), 8, true);
              }),
              "Subscript out of range");
}

TEST(CompareGrid, AfterAChangeOfNozzlesTheBaselineReadsZeroAndTheChangeEqualsTheCurrent) {
    const SheetGrid grid = LoadCompareGrid(tableOf(4, {12.5F, 11}), tableOf(4, {}), 2, true);
    EXPECT_EQ(grid.TextMatrix(4, 2), "0");
    EXPECT_EQ(grid.TextMatrix(4, 3), "11");
    EXPECT_EQ(grid.TextMatrix(4, 4), "100");
}

FlowTable thirtyNozzles() {
    FlowTable table;
    CreateFlowTable(table, 32);
    for (std::size_t i = 1; i <= 30; ++i) {
        table.GpmPerNozzle[i] = static_cast<Single>(40 - static_cast<int>(i)) / 2;
        table.LpmPerNozzle[i] = table.GpmPerNozzle[i];
    }
    return table;
}

TEST(PrintCompare, ThirtyNozzlesFillFifteenToTwentySevenThenTwentyEightToThirty) {
    const FlowTable current = thirtyNozzles();
    const PrintCompareGrids grids = LoadPrintCompare(current, current, true);
    const SheetGrid& first = grids.flxCompare;
    const SheetGrid& next = grids.flxNextCompare;
    ASSERT_EQ(first.Rows(), 8);
    ASSERT_EQ(next.Rows(), 6);
    ASSERT_EQ(first.Cols(), 15);
    for (long k = 15; k <= 27; ++k) {
        EXPECT_EQ(first.TextMatrix(3, k - 13), integerText(k));
        EXPECT_EQ(first.TextMatrix(4, k - 13), singleText(static_cast<Single>(40 - k) / 2)) << k;
        EXPECT_EQ(first.TextMatrix(6, k - 13), "0");
    }
    for (long k = 28; k <= 40; ++k) {
        EXPECT_EQ(next.TextMatrix(1, k - 26), integerText(k)) << "the number stands in every column";
    }
    EXPECT_EQ(next.TextMatrix(2, 2), "6"); // nozzle 28
    EXPECT_EQ(next.TextMatrix(2, 4), "5"); // nozzle 30
    EXPECT_EQ(next.TextMatrix(2, 5), "0"); // 31: an empty row of the table
    EXPECT_EQ(next.TextMatrix(2, 6), "0"); // 32: the last row of the table
    EXPECT_EQ(next.TextMatrix(5, 6), "0"); // a Current of 0
    for (long row = 2; row <= 5; ++row) {
        EXPECT_EQ(next.TextMatrix(row, 14), "0"); // 40: beyond the table
    }
}

TEST(PrintCompare, HeadsTitleAndLayoutOfBothGrids) {
    const FlowTable current = thirtyNozzles();
    const PrintCompareGrids grids = LoadPrintCompare(current, current, false);
    for (long i = 0; i < 5; ++i) {
        EXPECT_EQ(grids.flxCompare.TextMatrix(3 + i, 1), CompareHeads(false)[static_cast<std::size_t>(i)]);
        EXPECT_EQ(grids.flxNextCompare.TextMatrix(1 + i, 1), CompareHeads(false)[static_cast<std::size_t>(i)]);
    }
    EXPECT_EQ(grids.flxCompare.TextMatrix(1, 14),
              std::string(80, ' ') + "FlowRate Improvement Between Baseline Vs Current");
    EXPECT_TRUE(grids.flxCompare.MergeRow(1));
    EXPECT_TRUE(grids.flxCompare.MergeRow(2));
    EXPECT_FALSE(grids.flxNextCompare.MergeRow(1));
    for (const SheetGrid* grid : {&grids.flxCompare, &grids.flxNextCompare}) {
        EXPECT_EQ(grid->ColWidth(0), 20);
        EXPECT_EQ(grid->RowHeight(0), 20);
        EXPECT_EQ(grid->ColWidth(1), 9000 / 15 + 2000);
        EXPECT_EQ(grid->ColAlignment(1), CellAlignment::LeftCenter);
        for (long column = 2; column <= 14; ++column) {
            EXPECT_EQ(grid->ColWidth(column), 600);
            EXPECT_EQ(grid->ColAlignment(column), CellAlignment::CenterCenter);
        }
    }
}

TEST(PrintCompare, NozzlesAboveFortyDoNotReachThePaper) {
    FlowTable current;
    CreateFlowTable(current, 44);
    for (std::size_t i = 1; i <= 43; ++i) {
        current.GpmPerNozzle[i] = static_cast<Single>(i);
    }
    const PrintCompareGrids grids = LoadPrintCompare(current, current, true);
    EXPECT_EQ(grids.flxNextCompare.Cols(), 15);
    EXPECT_EQ(grids.flxNextCompare.TextMatrix(1, 14), "40"); // the last column that exists
    EXPECT_EQ(grids.flxNextCompare.TextMatrix(2, 14), "40");
}

} // namespace
} // namespace vesk
