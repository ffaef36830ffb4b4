// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// Comparing two saved designs: the Baseline from one site file, the Current from another.
#include "reports/design_comparison.h"

#include "workbench/calculate.h"
#include "workbench/site_file.h"

#include <filesystem>

namespace vesk {

namespace {

// Everything that makes the Baseline side, as the first open left it.
struct KeptBaseline {
    FlowTable table;
    Single flowMax;
    std::string legend;
    ResultGrid grid;
    SiteSnapshot snapshot;
    std::vector<Single> chartColumn; // ChartMatrix column 1, rows 0 to the old ChartNozzles
    SeriesLook look;
};

constexpr std::size_t baselineColumn = 0;

KeptBaseline keep(const ApplicationState& app) {
    KeptBaseline kept{app.results.Baseline,
                      app.flowChart.BaselineFlowMax,
                      app.flowChart.lblBaselinePump,
                      app.flxBaseLine,
                      app.snapshots.BaselineSnapshot,
                      {},
                      app.flowChart.chart.series[baselineColumn]};
    for (const auto& row : app.flowChart.ChartMatrix) {
        kept.chartColumn.push_back(row[baselineColumn]);
    }
    return kept;
}

void resizeTable(FlowTable& table, Integer chartNozzles) {
    redimPreserve(table.GpmPerNozzle, chartNozzles);
    redimPreserve(table.LpmPerNozzle, chartNozzles);
    redimPreserve(table.NozzleAxis, chartNozzles);
}

// The Baseline's line in ChartMatrix and on the chart, as far as the new rows go.
void restoreChartColumn(ApplicationState& app, const KeptBaseline& kept) {
    FlowChartState& state = app.flowChart;
    for (long row = 1; row <= app.ChartNozzles; ++row) {
        const Single value =
            row < static_cast<long>(kept.chartColumn.size()) ? kept.chartColumn[static_cast<std::size_t>(row)] : 0;
        at(state.ChartMatrix, row)[baselineColumn] = value;
        auto& cells = state.chart.cells[baselineColumn];
        if (static_cast<std::size_t>(row) <= cells.size()) {
            cells[static_cast<std::size_t>(row - 1)] =
                value == -1 || value == 0 ? std::nullopt : std::optional<Single>(value);
        }
    }
    state.chart.series[baselineColumn] = kept.look;
}

} // namespace

bool OpenSiteKeepingBaseline(ApplicationState& app, const std::string& fileName, UserInteraction& ui) {
    std::error_code error;
    if (!std::filesystem::is_regular_file(fileName, error)) {
        ShowMessage(11, ui);
        app.strSiteFile.clear();
        return false;
    }
    const KeptBaseline kept = keep(app);
    app.strSiteFile = fileName;
    if (!ReadSiteFile(app, fileName)) {
        ShowMessage(10, ui);
        return false;
    }
    app.caption = fileName;
    if (leadingNumber(app.panel.txtNoOfNozzle) > leadingNumber(app.panel.txtMaxNozz)) {
        app.panel.txtNoOfNozzle = app.panel.txtMaxNozz;
    }
    CreateResultTables(app);
    app.results.Baseline = kept.table;
    resizeTable(app.results.Baseline, app.ChartNozzles);
    app.flowChart.BaselineFlowMax = kept.flowMax;
    app.flowChart.lblBaselinePump = kept.legend;
    app.flxBaseLine = kept.grid;
    app.snapshots.BaselineSnapshot = kept.snapshot;
    app.flags.NeedBaseline = false;
    Calculate(app);
    restoreChartColumn(app, kept);
    app.flags.blnSaved = true;
    return true;
}

} // namespace vesk
