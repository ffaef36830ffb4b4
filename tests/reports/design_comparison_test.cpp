// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// Comparing two saved designs: the second site opened keeping the Baseline of the first.
#include "report_fixture.h"
#include "reports/compare_table.h"
#include "reports/design_comparison.h"
#include "support/failure_of.h"

namespace vesk {
namespace {

using DesignComparison = test::ReportTest;

TEST_F(DesignComparison, TheSecondSiteIsTheCurrentAndTheFirstStaysTheBaseline) {
    openExample("SmallGasStation.txt");
    const FlowTable first = app().results.Current;
    const ResultGrid firstGrid = app().flxBaseLine;
    const std::string firstLegend = app().flowChart.lblBaselinePump;
    const Single firstMax = app().flowChart.BaselineFlowMax;

    ASSERT_TRUE(OpenSiteKeepingBaseline(app(), (folder.path() / "SaveSiteInfo" / "MetricStation.txt").string(), ui()));
    EXPECT_FALSE(app().flags.NeedBaseline);
    EXPECT_EQ(app().NoOfNozzles, 8) << "NoOfNozzles is left as it was";
    EXPECT_EQ(app().ChartNozzles, 10);
    const FlowTable& baseline = app().results.Baseline;
    ASSERT_EQ(baseline.GpmPerNozzle.size(), 11U) << "resized to the new ChartNozzles";
    for (std::size_t i = 0; i < first.GpmPerNozzle.size(); ++i) {
        EXPECT_EQ(baseline.GpmPerNozzle[i], first.GpmPerNozzle[i]) << i;
    }
    EXPECT_EQ(baseline.GpmPerNozzle[9], 0);
    EXPECT_EQ(baseline.GpmPerNozzle[10], 0);
    EXPECT_NE(app().results.Current.GpmPerNozzle[1], first.GpmPerNozzle[1]);
    EXPECT_EQ(app().flowChart.lblBaselinePump, firstLegend);
    EXPECT_EQ(app().flowChart.BaselineFlowMax, firstMax);
    for (long row = 1; row <= 35; ++row) {
        EXPECT_EQ(app().flxBaseLine.TextMatrix(row, 1), firstGrid.TextMatrix(row, 1)) << row;
    }
    EXPECT_NE(app().flxCurrent.TextMatrix(1, 1) + app().flxCurrent.TextMatrix(5, 1),
              app().flxBaseLine.TextMatrix(1, 1) + app().flxBaseLine.TextMatrix(5, 1));
    EXPECT_EQ(app().flowChart.ChartMatrix[1][0], first.GpmPerNozzle[1]) << "the Baseline's line stays";
    EXPECT_TRUE(app().flags.blnSaved);
}

TEST_F(DesignComparison, TheCompareGridSetsTheTwoSitesSideBySide) {
    openExample("SmallGasStation.txt");
    const FlowTable first = app().results.Current;
    ASSERT_TRUE(OpenSiteKeepingBaseline(app(), (folder.path() / "SaveSiteInfo" / "MetricStation.txt").string(), ui()));
    const SheetGrid grid = LoadCompareGrid(app().results.Current, app().results.Baseline, app().NoOfNozzles, true);
    EXPECT_EQ(grid.TextMatrix(3, 2), singleText(first.GpmPerNozzle[1]));
    EXPECT_EQ(grid.TextMatrix(3, 1), singleText(app().results.Current.GpmPerNozzle[1]));
}

TEST_F(DesignComparison, ASecondSiteOfFewerNozzlesThanAfterStartUpReadsPastItsTables) {
    openExample("SmallGasStation.txt");
    ASSERT_TRUE(
        OpenSiteKeepingBaseline(app(), (folder.path() / "SaveSiteInfo" / "DieselTruckStop.txt").string(), ui()));
    EXPECT_EQ(test::failureOf(
                  [&] { LoadCompareGrid(app().results.Current, app().results.Baseline, app().NoOfNozzles, true); }),
              "Subscript out of range");
}

TEST_F(DesignComparison, AMissingSecondSiteShowsItsMessage) {
    EXPECT_FALSE(OpenSiteKeepingBaseline(app(), (folder.path() / "nowhere.txt").string(), ui()));
    ASSERT_EQ(ui().shown.size(), 1U);
}

} // namespace
} // namespace vesk
