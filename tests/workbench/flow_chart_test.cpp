// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The Dynamic Flow Graph after Calculate, Make Baseline and a change of units.
#include "support/started_app.h"
#include "workbench/flow_chart.h"

#include "engine/chart_scale.h"

#include <gtest/gtest.h>

namespace vesk {
namespace {

using test::chooseSettings;
using test::start;
using test::Started;
using test::TempProgramFolder;

class FlowChartTest : public ::testing::Test {
  protected:
    void SetUp() override {
        start(folder, started);
        ASSERT_EQ(started.failure, "");
    }
    ApplicationState& app() { return started.app; }
    const FlowChart& chart() { return started.app.flowChart.chart; }

    TempProgramFolder folder = TempProgramFolder::copyOfShipped();
    Started started;
};

TEST_F(FlowChartTest, EightNozzlesGiveTenRowsOfWhichTheLastTwoAreEmpty) {
    EXPECT_EQ(chart().rowLabels.size(), 10U);
    EXPECT_EQ(chart().rowLabels[8], "9");
    EXPECT_EQ(chart().rowLabels[9], "10");
    for (int series = 0; series < 2; ++series) {
        EXPECT_TRUE(chart().cells[series][7].has_value());
        EXPECT_FALSE(chart().cells[series][8].has_value());
        EXPECT_FALSE(chart().cells[series][9].has_value());
    }
    EXPECT_EQ(*chart().cells[1][0], app().results.Current.GpmPerNozzle[1]);
}

TEST_F(FlowChartTest, StartUpDrawsBothLinesCoincidingInTheColoursOfEqualRows) {
    // The Calculate drew the Current against an empty Baseline (green and
    // red); Make Baseline then found every row equal, in GPM, which sets
    // series 1 green and leaves series 2 as it was.
    EXPECT_EQ(chart().series[0].colour, chartGreen);
    EXPECT_EQ(chart().series[1].colour, chartRed);
    EXPECT_EQ(chart().series[1].marker, MarkerStyle::Ball);
    EXPECT_EQ(chart().series[0].marker, MarkerStyle::FilledTriangle);
    EXPECT_EQ(chart().series[0].markerSize, 110);
    EXPECT_EQ(chart().series[0].markerFill, markerFill);
    EXPECT_EQ(chart().yTitle, "GPM per Nozzle");
}

TEST_F(FlowChartTest, MakeBaselineThenCalculateOnTheSameSiteUseTheEqualRowsColours) {
    MakeBaseline(app());
    Calculate(app());
    EXPECT_EQ(chart().series[0].colour, chartRed);
    EXPECT_EQ(chart().series[1].colour, chartGreen);
    EXPECT_EQ(chart().yTitle, " GPM per Nozzle ");
}

TEST_F(FlowChartTest, ADifferentCurrentIsRedAgainstAGreenBaseline) {
    app().panel.txtTrunkLength = "900";
    Calculate(app());
    EXPECT_EQ(chart().series[0].colour, chartGreen);
    EXPECT_EQ(chart().series[1].colour, chartRed);
}

TEST_F(FlowChartTest, TheAxisCoversBothLinesFromTheChartScale) {
    const Single currentMax = app().flowChart.CurrentFlowMax;
    EXPECT_EQ(currentMax, app().results.Current.GpmPerNozzle[1]);
    EXPECT_EQ(chart().yMaximum, ChartScale(currentMax));
    EXPECT_EQ(chart().yDivisionsPerLabel, toInteger(chart().yMaximum / 5.0));
    app().panel.txtTrunkLength = "900";
    Calculate(app());
    EXPECT_EQ(chart().yMaximum, ChartScale(app().flowChart.BaselineFlowMax)) << "the larger Baseline sets the axis";
}

TEST_F(FlowChartTest, APumpThatGivesNoFlowLeavesNoPointAndTheSmallestAxis) {
    app().panel.cmbPumps.Clear();
    app().panel.cmbPumps.AddItem("None");
    app().panel.cmbPumps.SetListIndex(0);
    Calculate(app());
    for (std::size_t row = 0; row < chart().cells[1].size(); ++row) {
        EXPECT_FALSE(chart().cells[1][row].has_value());
    }
    EXPECT_EQ(app().flowChart.CurrentFlowMax, 0);
}

TEST(FlowChart, AZeroFlowBetweenPositiveFlowsLeavesAGap) {
    FlowChartState state;
    CreateChartMatrix(state, 4);
    FlowTable own;
    FlowTable other;
    CreateFlowTable(own, 4);
    CreateFlowTable(other, 4);
    FillNozzleAxis(own);
    FillNozzleAxis(other);
    own.GpmPerNozzle = {0, 10, 0, 8, 0};
    own.GpmList = {0, 10, 0, 8};
    DrawSeries(state, ChartSide::Current, own, other, 4, true);
    EXPECT_EQ(state.chart.cells[1][0], 10.0F);
    EXPECT_FALSE(state.chart.cells[1][1].has_value());
    EXPECT_EQ(state.chart.cells[1][2], 8.0F);
    EXPECT_EQ(state.ChartMatrix[2][1], -1);
}

TEST_F(FlowChartTest, AChangeOfUnitsRedrawsAtOnceWithoutASweep) {
    const std::vector<Single> before = app().results.Current.GpmPerNozzle;
    chooseSettings(app(), [](FrmDataOptions& options) {
        options.optUS = false;
        options.optMetric = true;
    });
    EXPECT_EQ(chart().yTitle, "LPM per Nozzle");
    EXPECT_EQ(*chart().cells[1][0], app().results.Current.LpmPerNozzle[1]);
    EXPECT_EQ(*chart().cells[0][0], app().results.Baseline.LpmPerNozzle[1]);
    EXPECT_EQ(app().results.Current.GpmPerNozzle, before);
    EXPECT_EQ(app().flowChart.CurrentFlowMax, app().results.Current.LpmPerNozzle[1]);
}

TEST_F(FlowChartTest, MetricDrawingsUseLitresAndTheirOwnTitles) {
    chooseSettings(app(), [](FrmDataOptions& options) {
        options.optUS = false;
        options.optMetric = true;
    });
    const Double axisBefore = app().flowChart.FlowAxisMaximum;
    Calculate(app());
    EXPECT_EQ(chart().yTitle, " LPM per Nozzle ");
    EXPECT_TRUE(app().flowChart.CurrentInLitres);
    EXPECT_EQ(app().flowChart.FlowAxisMaximum, axisBefore) << "written only in GPM";
}

TEST_F(FlowChartTest, LegendLabelsNameThePumpWithTheSystemsSpelling) {
    const std::string pump = app().panel.cmbPumps.Text();
    EXPECT_EQ(app().flowChart.lblCurrentPump, " Dot Marker - Current(" + pump + ")");
    EXPECT_EQ(app().flowChart.lblBaselinePump, " Traingle Marker - Baseline(" + pump + ")");
}

TEST_F(FlowChartTest, ThePointToolTipShowsTheNozzlesAndTheFlowOfTheSeries) {
    const ResultTables& results = app().results;
    EXPECT_EQ(PointToolTip(results.NozzleLabels, results.Current, results.Baseline, 2, 3, true),
              "3  " + singleText(results.Current.GpmList[3]));
    EXPECT_EQ(PointToolTip(results.NozzleLabels, results.Current, results.Baseline, 1, 3, false),
              "3  " + singleText(results.Baseline.LpmList[3]));
    EXPECT_THROW(PointToolTip(results.NozzleLabels, results.Current, results.Baseline, 2, 9, true), RunTimeFailure)
        << "a row past the nozzles swept";
}

TEST_F(FlowChartTest, ANewNumberOfNozzlesRebuildsTheRowsAtTheNextCalculate) {
    app().panel.txtNoOfNozzle = "11";
    app().LastChartNozzles = app().ChartNozzles;
    CreateResultTables(app());
    Calculate(app());
    EXPECT_EQ(chart().rowLabels.size(), 12U);
    EXPECT_EQ(app().LastChartNozzles, 12);
    EXPECT_FALSE(chart().cells[0][0].has_value()) << "the Baseline results are gone";
}

} // namespace
} // namespace vesk
