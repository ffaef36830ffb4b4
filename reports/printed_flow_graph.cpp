// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The first printed sheet (frmPrintFlowGraph): the heads, a flow graph of its own and the table of fourteen nozzles.
#include "reports/printed_flow_graph.h"

#include "reports/compare_table.h"

#include "engine/chart_scale.h"

#include <algorithm>

namespace vesk {

namespace {

constexpr int markerSize = 110;
constexpr std::size_t baselineColumn = 0; // series 1
constexpr std::size_t currentColumn = 1;  // series 2

void showMarkers(FlowChart& chart) {
    for (const auto& [column, style] :
         {std::pair{currentColumn, MarkerStyle::Ball}, std::pair{baselineColumn, MarkerStyle::FilledTriangle}}) {
        SeriesLook& look = chart.series[column];
        look.marker = style;
        look.markerSize = markerSize;
        look.markerFill = markerFill;
    }
}

// Steps 4 and 5: the axis over the Current flows of nozzles 1 to C - 1 and
// the Baseline's maximum.
void setAxis(FlowChart& chart, FlowChartState& state, const std::vector<Single>& flows, const FlowGraphInputs& in) {
    Single m = 0;
    for (long i = 1; i <= static_cast<long>(in.noOfNozzles) - 1; ++i) {
        if (m < at(flows, i)) {
            m = at(flows, i);
        }
    }
    state.CurrentFlowMax = m;
    if (state.BaselineFlowMax > m) {
        m = state.BaselineFlowMax;
    }
    m = static_cast<Single>(ChartScale(m));
    chart.yMaximum = m;
    if (in.units) {
        state.FlowAxisMaximum = m;
    }
    m = toSingle(m / 5.0);
    chart.yDivisionsPerLabel = toInteger(m);
}

// Step 6: the rows of ChartMatrix, a 0 turned into -1, written as cells.
void setCells(FlowChart& chart, FlowChartState& state, Integer chartNozzles) {
    const std::size_t rows = static_cast<std::size_t>(std::max<Integer>(chartNozzles, 0));
    for (auto& column : chart.cells) {
        column.assign(rows, std::nullopt);
    }
    for (long r = 1; r <= chartNozzles; ++r) {
        std::array<Single, 2>& row = at(state.ChartMatrix, r);
        for (const std::size_t column : {currentColumn, baselineColumn}) {
            if (row[column] == 0) {
                row[column] = -1;
            }
        }
        for (const std::size_t column : {currentColumn, baselineColumn}) {
            const Single value = row[column];
            chart.cells[column][static_cast<std::size_t>(r - 1)] =
                value == -1 ? std::nullopt : std::optional<Single>(value);
        }
    }
    chart.rowLabels.clear();
    for (Integer r = 1; r <= chartNozzles; ++r) {
        chart.rowLabels.push_back(integerText(r));
    }
}

void setTable(FlowGraphSheet& sheet, const std::vector<Single>& current, const std::vector<Single>& baseline,
              Integer c) {
    const long filled = std::min<long>(c, flowGraphTableNozzles);
    for (Byte k = 1; k <= filled; k = static_cast<Byte>(k + 1)) {
        const auto index = static_cast<std::size_t>(k - 1);
        CompareFigures figures = CompareFiguresOf(current, baseline, k, " 0");
        sheet.lblNozz[index] = " " + integerText(k);
        sheet.lblCurrentFR[index] = std::move(figures.current);
        sheet.lblBaselineFR[index] = std::move(figures.baseline);
        sheet.lblChangeFR[index] = std::move(figures.change);
        sheet.lblPerFR[index] = std::move(figures.percent);
    }
    if (c < flowGraphTableNozzles) {
        for (long j = c; j <= flowGraphTableNozzles - 1; ++j) {
            const auto index = static_cast<std::size_t>(j);
            sheet.lblNozz[index] = " " + integerText(j + 1);
            for (auto* row : {&sheet.lblCurrentFR, &sheet.lblBaselineFR, &sheet.lblChangeFR, &sheet.lblPerFR}) {
                (*row)[index] = " 0";
            }
        }
    }
}

} // namespace

FlowGraphSheet LoadPrintFlowGraph(FlowChartState& flowChart, const FlowGraphInputs& inputs) {
    FlowGraphSheet sheet;
    FlowChart& chart = sheet.msChartFlowGraph;
    showMarkers(chart);
    chart.yTitle = inputs.units ? " GPM per Nozzle " : " LPM per Nozzle ";
    const std::vector<Single>& current = FlowsInUnit(inputs.current, inputs.units);
    const std::vector<Single>& baseline = FlowsInUnit(inputs.baseline, inputs.units);
    setAxis(chart, flowChart, current, inputs);
    setCells(chart, flowChart, inputs.chartNozzles);
    sheet.heads = LoadReportHeads(flowChart, inputs.properties);
    const std::array<std::string, 5> heads = CompareHeads(inputs.optUS);
    std::copy(heads.begin(), heads.end(), sheet.lblCaptions.begin());
    setTable(sheet, current, baseline, inputs.noOfNozzles);
    return sheet;
}

FlowGraphSheet LoadPrintFlowGraph(ApplicationState& app) {
    const bool optUS = TouchFrmData(app.panel, app.config).optUS;
    return LoadPrintFlowGraph(app.flowChart, {app.results.Current, app.results.Baseline, app.NoOfNozzles,
                                              app.ChartNozzles, app.config.Units, optUS, app.siteProperties});
}

} // namespace vesk
