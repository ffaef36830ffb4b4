// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// Calculate, Make Baseline and Back To Baseline: the sweeps of the two sides and what they draw.
#include "workbench/calculate.h"

#include "workbench/snapshot_store.h"

namespace vesk {

namespace {

// What the Current and the Baseline side of a press do differently up to the
// drawing; after it, Calculate and Make Baseline go their own ways.
struct SweepSide {
    SweepButton button;
    ChartSide chart;
    FlowTable ResultTables::*own;
    FlowTable ResultTables::*other;
    std::string FlowChartState::*legend;
};

constexpr SweepSide currentSide{SweepButton::Calculate, ChartSide::Current, &ResultTables::Current,
                                &ResultTables::Baseline, &FlowChartState::lblCurrentPump};
constexpr SweepSide baselineSide{SweepButton::BaseLine, ChartSide::Baseline, &ResultTables::Baseline,
                                 &ResultTables::Current, &FlowChartState::lblBaselinePump};

SiteDescription siteOnThePanels(ApplicationState& app) {
    return BuildSiteDescription(app.panel, app.config);
}

// The legend label, the rows of the chart when their number changed, the sweep
// into the side's table and the drawing of its line.
void sweepAndDraw(ApplicationState& app, const SweepSide& side) {
    FlowTable& own = app.results.*side.own;
    app.flowChart.*side.legend = LegendLabel(side.chart, app.panel.cmbPumps.Text());
    FillNozzleAxis(own);
    app.LastChartNozzles = RebuildChartRows(app.flowChart, app.LastChartNozzles, app.ChartNozzles, own);

    const SiteDescription site = siteOnThePanels(app);
    const HydraulicSite hydraulics(site, app.piping, app.catalogues);
    Sweep(own, app.results.NozzleLabels, side.button, hydraulics, app.results.engine);

    DrawSeries(app.flowChart, side.chart, own, app.results.*side.other, app.ChartNozzles, app.config.Units);
}

} // namespace

void Calculate(ApplicationState& app) {
    app.flags.ChartNotDrawnYet = false;
    sweepAndDraw(app, currentSide);
    if (app.flags.NeedBaseline) {
        MakeBaseline(app);
        app.flags.NeedBaseline = false;
    }
    FillGrid(app.flxCurrent, GridSide::Current, app.panel, app.config);
    app.flags.blnSaved = false;
}

void MakeBaseline(ApplicationState& app) {
    app.flags.NeedBaseline = false;
    app.flags.BaselineGridPending = true;
    sweepAndDraw(app, baselineSide);
    if (!app.flags.NeedBaseline) { // always so here
        StoreBaselineSnapshot(app.panel, app.config, app.snapshots);
    }
    if (!app.flags.NeedBaseline || app.flags.BaselineGridPending) {
        FillGrid(app.flxBaseLine, GridSide::Baseline, app.panel, app.config);
        app.flags.BaselineGridPending = false;
    }
}

void BackToBaseline(ApplicationState& app, UserInteraction& ui) {
    // The three steps run with no check between them: under other settings
    // the message shows, and a Baseline of the panels as they are is made.
    RestoreBaselineSnapshot(app.panel, app.config, app.snapshots.BaselineSnapshot, ui);
    FillGrid(app.flxBaseLine, GridSide::Baseline, app.panel, app.config);
    MakeBaseline(app);
}

void CreateResultTables(ApplicationState& app) {
    app.ChartNozzles = NextEvenNozzles(parseInteger(app.panel.txtNoOfNozzle));
    CreateFlowTable(app.results.Current, app.ChartNozzles);
    CreateFlowTable(app.results.Baseline, app.ChartNozzles);
    CreateChartMatrix(app.flowChart, app.ChartNozzles);
}

const HeadLossBreakdown& RunDetails(ApplicationState& app) {
    const SiteDescription site = siteOnThePanels(app);
    const HydraulicSite hydraulics(site, app.piping, app.catalogues);
    DetailsStepping(hydraulics, app.results.engine);
    return app.results.engine.Breakdown;
}

} // namespace vesk
