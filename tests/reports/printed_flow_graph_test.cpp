// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The printed flow graph: its own chart from ChartMatrix, its side effects and the table of fourteen nozzles.
#include "report_fixture.h"
#include "reports/printed_flow_graph.h"
#include "support/failure_of.h"

#include "engine/chart_scale.h"

namespace vesk {
namespace {

using PrintedFlowGraph = test::ReportTest;

TEST_F(PrintedFlowGraph, EightNozzlesFillEightColumnsAndTheRestReadBlankZero) {
    const FlowGraphSheet sheet = LoadPrintFlowGraph(app());
    const FlowTable& current = app().results.Current;
    for (std::size_t k = 1; k <= 8; ++k) {
        EXPECT_EQ(sheet.lblNozz[k - 1], " " + std::to_string(k));
        EXPECT_EQ(sheet.lblCurrentFR[k - 1], singleText(current.GpmPerNozzle[k]));
        EXPECT_EQ(sheet.lblChangeFR[k - 1], "0") << "start-up makes both sides alike";
        EXPECT_EQ(sheet.lblPerFR[k - 1], "0") << "an equal flow gives 0 from the rounding";
    }
    for (std::size_t j = 8; j < 14; ++j) {
        EXPECT_EQ(sheet.lblNozz[j], " " + std::to_string(j + 1));
        EXPECT_EQ(sheet.lblCurrentFR[j], " 0");
        EXPECT_EQ(sheet.lblBaselineFR[j], " 0");
        EXPECT_EQ(sheet.lblChangeFR[j], " 0");
        EXPECT_EQ(sheet.lblPerFR[j], " 0");
    }
}

TEST_F(PrintedFlowGraph, FourteenNozzlesLeaveNoFillingColumns) {
    enterNozzles(14);
    Calculate(app());
    const FlowGraphSheet sheet = LoadPrintFlowGraph(app());
    EXPECT_EQ(sheet.lblNozz[13], " 14");
    EXPECT_EQ(sheet.lblCurrentFR[13], singleText(app().results.Current.GpmPerNozzle[14]));
    EXPECT_EQ(sheet.lblBaselineFR[13], "0") << "the Baseline was emptied by the new number of nozzles";
    EXPECT_EQ(sheet.lblPerFR[13], "100");
}

TEST_F(PrintedFlowGraph, FifteenNozzlesFillFourteenColumnsAndLeaveTheFifteenthToTheSecondSheet) {
    enterNozzles(15);
    Calculate(app());
    MakeBaseline(app());
    const FlowGraphSheet sheet = LoadPrintFlowGraph(app());
    EXPECT_EQ(sheet.lblNozz.size(), 14U);
    EXPECT_EQ(sheet.lblNozz[13], " 14");
    EXPECT_EQ(sheet.lblCurrentFR[13], singleText(app().results.Current.GpmPerNozzle[14]));
    EXPECT_NE(sheet.lblCurrentFR[13], " 0");
}

TEST_F(PrintedFlowGraph, ACurrentFlowOfZeroGivesBlankZeroAndAnEqualFlowGivesZero) {
    app().results.Current.GpmPerNozzle[3] = 0;
    app().results.Baseline.GpmPerNozzle[3] = 4;
    const FlowGraphSheet sheet = LoadPrintFlowGraph(app());
    EXPECT_EQ(sheet.lblPerFR[2], " 0");
    EXPECT_EQ(sheet.lblChangeFR[2], "-4");
    EXPECT_EQ(sheet.lblPerFR[1], "0");
}

TEST_F(PrintedFlowGraph, TheAxisLoopStopsOneShortOfTheNumberOfNozzles) {
    // The largest Current flow stands at the last nozzle: the loop misses it.
    FlowTable& current = app().results.Current;
    current.GpmPerNozzle[8] = 95;
    app().flowChart.BaselineFlowMax = 0;
    const FlowGraphSheet sheet = LoadPrintFlowGraph(app());
    Single largest = 0;
    for (std::size_t i = 1; i <= 7; ++i) {
        largest = std::max(largest, current.GpmPerNozzle[i]);
    }
    EXPECT_EQ(app().flowChart.CurrentFlowMax, largest);
    EXPECT_EQ(sheet.msChartFlowGraph.yMaximum, ChartScale(largest));
    EXPECT_EQ(app().flowChart.FlowAxisMaximum, ChartScale(largest));
    EXPECT_EQ(sheet.msChartFlowGraph.yDivisionsPerLabel, toInteger(ChartScale(largest) / 5.0));
}

TEST_F(PrintedFlowGraph, ASingleNozzleLeavesTheAxisToTheBaselineMaximum) {
    enterNozzles(1);
    Calculate(app());
    app().flowChart.BaselineFlowMax = 37;
    const FlowGraphSheet sheet = LoadPrintFlowGraph(app());
    EXPECT_EQ(app().flowChart.CurrentFlowMax, 0) << "the loop does not run";
    EXPECT_EQ(sheet.msChartFlowGraph.yMaximum, ChartScale(37));
}

TEST_F(PrintedFlowGraph, PrintingTurnsZerosOfChartMatrixIntoNoPoint) {
    enterNozzles(3); // ChartNozzles 4: row 4 stays empty
    Calculate(app());
    ASSERT_EQ(app().flowChart.ChartMatrix.size(), 5U);
    app().flowChart.ChartMatrix[2][1] = 0;
    ASSERT_EQ(app().flowChart.ChartMatrix[1][0], 0) << "the Baseline column was cleared with the tables";
    const FlowGraphSheet sheet = LoadPrintFlowGraph(app());
    EXPECT_EQ(app().flowChart.ChartMatrix[2][1], -1);
    EXPECT_EQ(app().flowChart.ChartMatrix[1][0], -1);
    EXPECT_FALSE(sheet.msChartFlowGraph.cells[1][1]);
    EXPECT_FALSE(sheet.msChartFlowGraph.cells[0][0]) << "the Baseline is empty after the change of nozzles";
    EXPECT_EQ(sheet.msChartFlowGraph.cells[1][0], app().flowChart.ChartMatrix[1][1]);
    EXPECT_EQ(sheet.msChartFlowGraph.rowLabels, (std::vector<std::string>{"1", "2", "3", "4"}));
}

TEST_F(PrintedFlowGraph, MarkersOfBothSeriesAndNoSeriesColours) {
    const FlowGraphSheet sheet = LoadPrintFlowGraph(app());
    const auto& series = sheet.msChartFlowGraph.series;
    EXPECT_EQ(series[1].marker, MarkerStyle::Ball);
    EXPECT_EQ(series[0].marker, MarkerStyle::FilledTriangle);
    EXPECT_EQ(series[0].markerSize, 110);
    EXPECT_EQ(series[1].markerFill, (Rgb{128, 64, 0}));
    EXPECT_FALSE(series[0].colour);
    EXPECT_FALSE(series[1].colour);
    EXPECT_EQ(sheet.msChartFlowGraph.yTitle, " GPM per Nozzle ");
}

TEST_F(PrintedFlowGraph, InLitresTheAxisMaximumKeptForPrintingIsNotTouched) {
    test::chooseSettings(app(), [](FrmDataOptions& options) {
        options.optUS = false;
        options.optMetric = true;
    });
    app().flowChart.FlowAxisMaximum = 12345;
    const FlowGraphSheet sheet = LoadPrintFlowGraph(app());
    EXPECT_EQ(app().flowChart.FlowAxisMaximum, 12345);
    EXPECT_EQ(sheet.msChartFlowGraph.yTitle, " LPM per Nozzle ");
    EXPECT_EQ(sheet.lblCaptions[1], "CurrentFlow(LPM)");
    EXPECT_EQ(sheet.lblCurrentFR[0], singleText(app().results.Current.LpmPerNozzle[1]));
}

TEST_F(PrintedFlowGraph, ChartMatrixKeepsTheUnitOfItsLastDrawingWhileTheTableFollowsTheSetting) {
    // The units changed with no drawing: the chart's points stay in GPM,
    // the table's figures are in LPM.
    const Single gpmPoint = app().flowChart.ChartMatrix[1][1];
    app().config.Units = false;
    app().panel.frmDataLoaded = false;
    const FlowGraphSheet sheet = LoadPrintFlowGraph(app());
    EXPECT_EQ(sheet.msChartFlowGraph.cells[1][0], gpmPoint);
    EXPECT_EQ(sheet.lblCurrentFR[0], singleText(app().results.Current.LpmPerNozzle[1]));
    EXPECT_NE(sheet.lblCurrentFR[0], singleText(gpmPoint));
}

TEST_F(PrintedFlowGraph, PrintFieldsFalsePrintsTheCaptionsWithBlankValues) {
    app().siteProperties.strCustomerName = "Harbour Fuels";
    app().siteProperties.blnPrintFields = false;
    EXPECT_EQ(LoadPrintFlowGraph(app()).heads.lblSiteData[0], "");
    app().siteProperties.blnPrintFields = true;
    EXPECT_EQ(LoadPrintFlowGraph(app()).heads.lblSiteData[0], "Harbour Fuels");
}

TEST_F(PrintedFlowGraph, AFourNozzleSiteOpenedAfterStartUpReadsPastItsTables) {
    openExample("BasicModeSite.txt"); // four nozzles: tables of six, NoOfNozzles still 8
    ASSERT_EQ(app().NoOfNozzles, 8);
    ASSERT_EQ(app().ChartNozzles, 6);
    EXPECT_EQ(test::failureOf([&] { LoadPrintFlowGraph(app()); }), "Subscript out of range");
    enterNozzles(4); // what a designer does: the number of nozzles entered again
    EXPECT_EQ(test::failureOf([&] { LoadPrintFlowGraph(app()); }), "");
}

} // namespace
} // namespace vesk
