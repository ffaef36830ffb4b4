// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The rows of flxCurrent and flxBaseLine.
#include "support/started_app.h"
#include "workbench/result_grid.h"

#include <gtest/gtest.h>

namespace vesk {
namespace {

using test::chooseSettings;
using test::start;
using test::Started;
using test::TempProgramFolder;

class ResultGridTest : public ::testing::Test {
  protected:
    void SetUp() override {
        start(folder, started);
        ASSERT_EQ(started.failure, "");
    }
    ApplicationState& app() { return started.app; }

    TempProgramFolder folder = TempProgramFolder::copyOfShipped();
    Started started;
};

TEST_F(ResultGridTest, StartUpFillsBothGridsFromTheDefaultSite) {
    const ResultGrid& grid = app().flxCurrent;
    EXPECT_EQ(grid.TextMatrix(0, 0), "Equipment Type");
    EXPECT_EQ(grid.TextMatrix(0, 1), "           Unit Selected ");
    EXPECT_EQ(grid.TextMatrix(0, 2), "No.");
    EXPECT_EQ(grid.TextMatrix(1, 1), app().panel.cmbDispenser.Text());
    EXPECT_EQ(grid.TextMatrix(1, 2), "1");
    EXPECT_EQ(grid.TextMatrix(3, 1), "None");
    EXPECT_EQ(grid.TextMatrix(4, 0), "HoseLen(ft)");
    EXPECT_EQ(grid.TextMatrix(4, 1), "0");
    EXPECT_EQ(grid.TextMatrix(7, 1), " ");
    EXPECT_EQ(grid.TextMatrix(7, 2), "8");
    EXPECT_EQ(grid.TextMatrix(21, 1), "None");
    EXPECT_EQ(grid.TextMatrix(22, 1), "Advance");
    EXPECT_EQ(grid.TextMatrix(27, 1), "60Hz Pump ");
    EXPECT_EQ(grid.TextMatrix(30, 2), "96");
    EXPECT_EQ(grid.TextMatrix(33, 2), "1");
    EXPECT_EQ(grid.TextMatrix(34, 1), "Gas");
    EXPECT_EQ(grid.TextMatrix(35, 1), "American");
    EXPECT_EQ(app().flxBaseLine.TextMatrix(34, 1), "Gas ");
}

TEST_F(ResultGridTest, RowZeroHasAGreyBackground) {
    for (long column = 0; column < gridColumnCount; ++column) {
        EXPECT_EQ(app().flxCurrent.Cell(0, column).backColour, gridGrey);
        EXPECT_EQ(app().flxBaseLine.Cell(0, column).backColour, gridGrey);
    }
    EXPECT_EQ(app().flxCurrent.Cell(1, 0).backColour, gridDefaultBackColour);
}

struct CaptionRow {
    long row;
    const char* current;
    const char* baseline;
    bool us;
};

class GridTwinCaptions : public ::testing::TestWithParam<CaptionRow> {};

TEST_P(GridTwinCaptions, DifferInTheirTrailingBlanksAsTheSystemHasThem) {
    const CaptionRow row = GetParam();
    EXPECT_EQ(UnitCaption(GridSide::Current, row.row, row.us), row.current);
    EXPECT_EQ(UnitCaption(GridSide::Baseline, row.row, row.us), row.baseline);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, GridTwinCaptions,
    ::testing::Values(
        CaptionRow{3, "HoseSize", "HoseSize ", true}, CaptionRow{4, "HoseLen(ft)", "HoseLen(ft)", true},
        CaptionRow{4, "HoseLength(m)", "HoseLen(m)", false}, CaptionRow{7, "NoOfNozzles ", "NoOfNozzles", true},
        CaptionRow{9, "BranchSize  ", "BranchSize  ", true}, CaptionRow{10, "BranchLen(m)", "BranchLen(m)", false},
        CaptionRow{17, "Trunk45Elbow  ", "Trunk45Elbow ", true},
        CaptionRow{18, "Trunk90Elbow  ", "Trunk90Elbow ", true}, CaptionRow{19, "TrunkThruT  ", "TrunkThruT ", true},
        CaptionRow{20, "TrunkSideT  ", "TrunkSideT ", true}, CaptionRow{23, "PipeSize", "PipeSize ", true},
        CaptionRow{24, "PipeLen(m)", "PipeLen(m)", false}, CaptionRow{30, "TankDia(inch)", "TankDia(inch)", true},
        CaptionRow{30, "TankDia(cm)", "TankDia(cm)", false}, CaptionRow{31, "BuryDepth(m)", "BuryDepth(m)", false},
        CaptionRow{32, "Rise(ft)", "Rise(ft)", true}));

TEST_F(ResultGridTest, UnitCaptionsFollowTheUnitsSettingAtTheMomentOfFilling) {
    chooseSettings(app(), [](FrmDataOptions& options) {
        options.optUS = false;
        options.optMetric = true;
    });
    EXPECT_EQ(app().flxCurrent.TextMatrix(4, 0), "HoseLen(ft)") << "the grids keep their texts until a Calculate";
    Calculate(app());
    EXPECT_EQ(app().flxCurrent.TextMatrix(4, 0), "HoseLength(m)");
    EXPECT_EQ(app().flxCurrent.TextMatrix(30, 0), "TankDia(cm)");
    EXPECT_EQ(app().flxCurrent.TextMatrix(30, 2), "243.8");
}

TEST_F(ResultGridTest, BasicModeGreysTheBranchAndTrunkRowsButKeepsTheirValues) {
    app().panel.optBasic = true;
    app().panel.optAdvance = false;
    Calculate(app());
    const ResultGrid& grid = app().flxCurrent;
    for (long row = 9; row <= 21; ++row) {
        for (long column = 0; column < gridColumnCount; ++column) {
            EXPECT_EQ(grid.Cell(row, column).foreColour, gridGrey) << row;
        }
    }
    EXPECT_EQ(grid.TextMatrix(9, 1), app().panel.cmbBranch.Text());
    EXPECT_EQ(grid.TextMatrix(15, 1), app().panel.cmbTrunk.Text());
    EXPECT_EQ(grid.Cell(23, 1).foreColour, gridDefaultForeColour);
    EXPECT_EQ(grid.Cell(24, 2).foreColour, gridDefaultForeColour);
    EXPECT_EQ(grid.TextMatrix(22, 1), "Basic");
}

TEST_F(ResultGridTest, AdvanceModeGreysThePipeRows) {
    const ResultGrid& grid = app().flxCurrent;
    EXPECT_EQ(grid.Cell(23, 0).foreColour, gridGrey);
    EXPECT_EQ(grid.Cell(24, 2).foreColour, gridGrey);
    EXPECT_EQ(grid.Cell(9, 0).foreColour, gridDefaultForeColour);
    EXPECT_EQ(grid.Cell(21, 1).foreColour, gridDefaultForeColour);
}

TEST(ValveText, FollowsTheTwoCheckBoxes) {
    EXPECT_EQ(ValveText(1, 1), "BallValve and SwingCheck");
    EXPECT_EQ(ValveText(0, 1), "SwingCheck");
    EXPECT_EQ(ValveText(1, 0), "BallValve");
    EXPECT_EQ(ValveText(0, 0), "None");
    EXPECT_EQ(ValveText(2, 0), "") << "the grey state gives no text";
}

TEST_F(ResultGridTest, AGreyCheckBoxLeavesTheValveCellAsItWas) {
    app().panel.chkBall = 1;
    Calculate(app());
    EXPECT_EQ(app().flxCurrent.TextMatrix(21, 1), "BallValve");
    app().panel.chkBall = 2;
    Calculate(app());
    EXPECT_EQ(app().flxCurrent.TextMatrix(21, 1), "BallValve");
}

TEST_F(ResultGridTest, WithNoComponentListOptionRow35KeepsItsText) {
    TouchFrmData(app().panel, app().config);
    app().panel.frmData.optAmerican = false;
    FillGrid(app().flxCurrent, GridSide::Current, app().panel, app().config);
    EXPECT_EQ(app().flxCurrent.TextMatrix(35, 1), "American");
    app().panel.frmData.optCommercial = true;
    FillGrid(app().flxCurrent, GridSide::Current, app().panel, app().config);
    EXPECT_EQ(app().flxCurrent.TextMatrix(35, 1), "Commercial");
}

TEST_F(ResultGridTest, TheFuelRowFollowsTheDataSettingNotTheDialog) {
    TouchFrmData(app().panel, app().config);
    app().panel.frmData.optGas = false;
    app().panel.frmData.optDiesel = true;
    FillGrid(app().flxCurrent, GridSide::Current, app().panel, app().config);
    EXPECT_EQ(app().flxCurrent.TextMatrix(34, 1), "Gas");
}

TEST_F(ResultGridTest, TheBaselineGridHoldsThePanelsOfTheLastMakeBaseline) {
    app().panel.txtTrunkLength = "250";
    Calculate(app());
    EXPECT_EQ(app().flxCurrent.TextMatrix(16, 1), "250");
    EXPECT_EQ(app().flxBaseLine.TextMatrix(16, 1), "0");
    MakeBaseline(app());
    EXPECT_EQ(app().flxBaseLine.TextMatrix(16, 1), "250");
}

TEST(GridColumnWidths, AreAThirdOfTheWidthWithTheirOffsets) {
    EXPECT_EQ(GridColumnWidths(6000), (std::array<Long, 3>{1800, 2900, 2300}));
    EXPECT_EQ(GridColumnWidths(6001.5), (std::array<Long, 3>{1800, 2900, 2300})) << "2000.5 rounds to even";
}

TEST(ResultGrid, ACellOutsideTheGridFails) {
    ResultGrid grid;
    EXPECT_THROW(grid.SetTextMatrix(36, 0, "x"), RunTimeFailure);
    EXPECT_THROW(grid.TextMatrix(0, 3), RunTimeFailure);
}

} // namespace
} // namespace vesk
