// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The component list page: the two input grids side by side.
#include "report_fixture.h"
#include "reports/component_list.h"

namespace vesk {
namespace {

using ComponentList = test::ReportTest;

TEST_F(ComponentList, CopiesTheRowsOfBothGridsAsTheyStand) {
    const SheetGrid list = LoadComponentList(app().flxCurrent, app().flxBaseLine);
    ASSERT_EQ(list.Rows(), 39);
    ASSERT_EQ(list.Cols(), 6);
    for (long r = 1; r <= 35; ++r) {
        EXPECT_EQ(list.TextMatrix(r + 3, 1), app().flxCurrent.TextMatrix(r, 0)) << r;
        EXPECT_EQ(list.TextMatrix(r + 3, 2), app().flxCurrent.TextMatrix(r, 1)) << r;
        EXPECT_EQ(list.TextMatrix(r + 3, 3), app().flxCurrent.TextMatrix(r, 2)) << r;
        EXPECT_EQ(list.TextMatrix(r + 3, 4), app().flxBaseLine.TextMatrix(r, 1)) << r;
        EXPECT_EQ(list.TextMatrix(r + 3, 5), app().flxBaseLine.TextMatrix(r, 2)) << r;
    }
    EXPECT_EQ(list.TextMatrix(7 + 3, 1), "NoOfNozzles ") << "the names come from flxCurrent alone";
}

TEST_F(ComponentList, TitleHeadsWidthsAndMerging) {
    const SheetGrid list = LoadComponentList(app().flxCurrent, app().flxBaseLine);
    const std::array<const char*, 5> heads{"Equipment Type", "Current", "No.", "Baseline", "No."};
    for (long column = 1; column <= 5; ++column) {
        EXPECT_EQ(list.TextMatrix(1, column), std::string(80, ' ') + "Current And Baseline Components List");
        EXPECT_EQ(list.TextMatrix(2, column), std::string(35, ' '));
        EXPECT_EQ(list.TextMatrix(3, column), heads[static_cast<std::size_t>(column - 1)]);
    }
    EXPECT_TRUE(list.MergeRow(1));
    EXPECT_TRUE(list.MergeRow(2));
    EXPECT_FALSE(list.MergeRow(3));
    EXPECT_EQ(list.ColWidth(0), 20);
    EXPECT_EQ(list.RowHeight(0), 20);
    EXPECT_EQ(list.ColWidth(1), 11000 / 5 - 400);
    EXPECT_EQ(list.ColWidth(2), 11000 / 5 + 800);
    EXPECT_EQ(list.ColWidth(3), 11000 / 5 - 1055);
    EXPECT_EQ(list.ColWidth(4), 11000 / 5 + 800);
    EXPECT_EQ(list.ColWidth(5), 11000 / 5 - 1055);
    EXPECT_EQ(list.ColAlignment(1), CellAlignment::LeftCenter);
    EXPECT_EQ(list.ColAlignment(4), CellAlignment::CenterCenter);
    EXPECT_FALSE(list.fontBold) << "the grid's font is bold only while the heads are written";
}

TEST_F(ComponentList, AChangeOfUnitBetweenMakeBaselineAndThePageShowsBothUnits) {
    // Make Baseline in US units, then metric and a Calculate: the Current
    // column speaks metres, the Baseline column keeps its feet.
    app().panel.txtTrunkLength = "100";
    MakeBaseline(app());
    test::chooseSettings(app(), [](FrmDataOptions& options) {
        options.optUS = false;
        options.optMetric = true;
    });
    Calculate(app());
    const SheetGrid list = LoadComponentList(app().flxCurrent, app().flxBaseLine);
    EXPECT_EQ(list.TextMatrix(16 + 3, 1), "TrunkLen(m)");
    EXPECT_EQ(list.TextMatrix(16 + 3, 2), app().panel.txtTrunkLength);
    EXPECT_EQ(list.TextMatrix(16 + 3, 4), "100");
    EXPECT_NE(list.TextMatrix(16 + 3, 2), "100");
}

TEST_F(ComponentList, BasicModeListsTheBranchAndTrunkRowsWithTheirValues) {
    app().panel.optBasic = true;
    app().panel.optAdvance = false;
    app().panel.txtTrunkLength = "120";
    Calculate(app());
    const SheetGrid list = LoadComponentList(app().flxCurrent, app().flxBaseLine);
    EXPECT_EQ(list.TextMatrix(22 + 3, 2), "Basic");
    EXPECT_EQ(list.TextMatrix(15 + 3, 1), "TrunkSize  ");
    EXPECT_EQ(list.TextMatrix(15 + 3, 2), app().panel.cmbTrunk.Text());
    EXPECT_EQ(list.TextMatrix(16 + 3, 2), "120");
    EXPECT_EQ(list.TextMatrix(9 + 3, 2), app().panel.cmbBranch.Text());
}

TEST_F(ComponentList, CellsOfOneBlankStayBlankAndGiveNoToolTip) {
    const SheetGrid list = LoadComponentList(app().flxCurrent, app().flxBaseLine);
    EXPECT_EQ(list.TextMatrix(7 + 3, 2), " "); // NoOfNozzles has no unit text
    EXPECT_EQ(CellToolTip(list.TextMatrix(7 + 3, 2)), "");
    EXPECT_EQ(CellToolTip(list.TextMatrix(7 + 3, 3)), "8");
    EXPECT_EQ(CellToolTip("  "), "  ");
}

} // namespace
} // namespace vesk
