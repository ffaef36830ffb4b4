// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The pump performance curve of the Pump Area.
#include "support/started_app.h"
#include "workbench/pump_curve.h"

#include "engine/chart_scale.h"

#include <gtest/gtest.h>

namespace vesk {
namespace {

using test::start;
using test::Started;
using test::TempProgramFolder;

ComponentRecord pumpRecord(std::string name, bool is50Hz, std::vector<Single> flow, std::vector<Single> head) {
    ComponentRecord record;
    record.Name = std::move(name);
    record.ListCodes = "AIC";
    record.IsGas = is50Hz;
    record.Curve.PointCount = static_cast<Integer>(flow.size());
    record.Curve.Flow = std::move(flow);
    record.Curve.Head = std::move(head);
    return record;
}

struct PumpCurveFixture {
    Catalogues catalogues;
    PanelState panel;
    clsConfigureData config;
    PumpCurveChart chart;

    explicit PumpCurveFixture(ComponentRecord pump) {
        catalogues.of(ComponentKind::Pump).Records = {std::move(pump)};
        panel.cmbPumps.AddItem(catalogues.of(ComponentKind::Pump).Records[0].Name, 0);
        panel.cmbPumps.SetListIndex(0);
        for (const char* quantity : {"1", "2", "3", "4"}) {
            panel.cmbQuantity.AddItem(quantity);
        }
        panel.cmbQuantity.SetListIndex(0);
        config.Units = true;
        config.Data = true;
    }
    Single headAt(Single flow, bool optUS = true) {
        return PumpHeadInfo(catalogues.of(ComponentKind::Pump), 0, flow, panel, optUS);
    }
};

TEST(PumpHeadInfo, InterpolatesTheHeadOfTheSelectedQuantity) {
    PumpCurveFixture f(pumpRecord("P", false, {0, 30, 60}, {200, 150, 80}));
    EXPECT_EQ(f.headAt(45), 115.0F);
    f.panel.cmbQuantity.SetListIndex(1);
    EXPECT_EQ(f.headAt(90), 115.0F) << "quantity 2 doubles the flow at equal head";
    EXPECT_EQ(f.headAt(121), 0.0F) << "above the last point";
}

TEST(PumpHeadInfo, AFlowOnACurvePointTakesTheFirstSegmentThatHoldsIt) {
    PumpCurveFixture f(pumpRecord("P", false, {0, 30, 60}, {200, 150, 80}));
    EXPECT_EQ(f.headAt(30), 150.0F);
}

TEST(PumpHeadInfo, ALaterPointOfHeadZeroEndsTheUsableCurve) {
    PumpCurveFixture f(pumpRecord("P", false, {0, 30, 60, 90}, {200, 150, 0, 40}));
    EXPECT_EQ(f.headAt(70), -1.0F);
    EXPECT_EQ(f.headAt(10), static_cast<Single>(Double{toSingle(-50.0)} * toSingle(10.0 / 30) + 200))
        << "before the point of head 0 the curve is read";
}

TEST(PumpHeadInfo, InLitresTheFlowsAndHeadsAreConverted) {
    PumpCurveFixture f(pumpRecord("P", false, {0, 30, 60}, {200, 150, 80}));
    const Single head = f.headAt(0, false);
    EXPECT_EQ(head, toSingle(200 * 0.3048));
}

TEST(UpdatePumpCurve, ScalesTheAxesFromTheLargestFlowAndHead) {
    PumpCurveFixture f(pumpRecord("P", false, {0, 30, 60}, {200, 150, 80}));
    UpdatePumpCurve(f.chart, f.panel, f.config, f.catalogues);
    EXPECT_EQ(f.chart.title, "P");
    EXPECT_EQ(f.chart.xTitle, "GPM");
    EXPECT_EQ(f.chart.yTitle, "Feet of Head");
    EXPECT_EQ(f.chart.xMaximum, 100); // ChartScale(60)
    EXPECT_EQ(f.chart.xMinimum, 0.0F);
    EXPECT_EQ(f.chart.yMaximum, 500); // ChartScale(200): the multiple above 200 is 300
    EXPECT_EQ(f.chart.xDivisions, 20);
    EXPECT_EQ(f.chart.yDivisions, 100);
    ASSERT_EQ(f.chart.points.size(), 100U);
    EXPECT_EQ(f.chart.points[0], 200.0F);
    EXPECT_EQ(f.chart.points[61], -1.0F) << "beyond the curve: no point";
    EXPECT_EQ(f.chart.rowLabels.front(), "0");
    EXPECT_EQ(f.chart.rowLabels.back(), "99");
}

TEST(UpdatePumpCurve, AQuantityOfTwoScalesTheAxisFromTwiceTheLargestFlow) {
    PumpCurveFixture f(pumpRecord("P", false, {0, 30, 60}, {200, 150, 80}));
    f.panel.cmbQuantity.SetListIndex(1);
    UpdatePumpCurve(f.chart, f.panel, f.config, f.catalogues);
    EXPECT_EQ(f.chart.xMaximum, 250); // ChartScale(120)
    EXPECT_EQ(f.chart.points[90], 115.0F);
}

TEST(UpdatePumpCurve, AHeadOfNineFeetGivesAnAxisOfTwenty) {
    PumpCurveFixture f(pumpRecord("P", false, {0, 10}, {9, 5}));
    UpdatePumpCurve(f.chart, f.panel, f.config, f.catalogues);
    EXPECT_EQ(f.chart.yMaximum, 20);
    EXPECT_EQ(f.chart.yDivisions, 4);
}

TEST(UpdatePumpCurve, NoRecordOfThatFrequencyLeavesTheChartAsItWas) {
    PumpCurveFixture f(pumpRecord("P", false, {0, 30, 60}, {200, 150, 80}));
    UpdatePumpCurve(f.chart, f.panel, f.config, f.catalogues);
    f.panel.opt50Hz = true;
    f.panel.opt60Hz = false;
    f.catalogues.of(ComponentKind::Pump).Records[0].Curve.Head = {1, 1, 1};
    UpdatePumpCurve(f.chart, f.panel, f.config, f.catalogues);
    EXPECT_EQ(f.chart.points[0], 200.0F);
}

TEST(UpdatePumpCurve, InLitresTheXMinimumIsLeftAsItWas) {
    PumpCurveFixture f(pumpRecord("P", false, {0, 30, 60}, {200, 150, 80}));
    f.config.Units = false;
    f.panel.frmDataLoaded = true;
    f.panel.frmData.optMetric = true;
    UpdatePumpCurve(f.chart, f.panel, f.config, f.catalogues);
    EXPECT_EQ(f.chart.xTitle, "LPM");
    EXPECT_EQ(f.chart.yTitle, "Meters of Head");
    EXPECT_FALSE(f.chart.xMinimum.has_value());
    EXPECT_EQ(f.chart.xMaximum, 500); // ChartScale(60 x 3.78564 = 227.1): 300, then 500
    EXPECT_EQ(f.chart.yMaximum, 100); // ChartScale(60.96)
}

TEST(UpdatePumpCurve, TheFlowZeroLiesBelowACurveThatStartsAboveIt) {
    PumpCurveFixture f(pumpRecord("P", false, {5, 30, 60}, {200, 150, 80}));
    UpdatePumpCurve(f.chart, f.panel, f.config, f.catalogues);
    EXPECT_EQ(f.chart.points[0], -1.0F);
    EXPECT_EQ(f.chart.points[5], 200.0F);
}

TEST(UpdatePumpCurve, StartUpDrawsTheSelectedPump) {
    const TempProgramFolder folder = TempProgramFolder::copyOfShipped();
    Started started;
    start(folder, started);
    EXPECT_EQ(started.app.pumpCurve.title, started.app.panel.cmbPumps.Text());
    EXPECT_FALSE(started.app.pumpCurve.points.empty());
}

} // namespace
} // namespace vesk
