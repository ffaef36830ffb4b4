// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The first printed sheet (frmPrintFlowGraph): the heads, a flow graph of its own and the table of fourteen nozzles.
#pragma once

#include "reports/report_page.h"
#include "workbench/application_state.h"

#include <array>
#include <string>

namespace vesk {

inline constexpr const char* flowGraphTableTitle = "Flow Improvement Baseline Vs Current";
inline constexpr long flowGraphTableNozzles = 14;

// The sheet as loaded: never shown, printed as a form.
struct FlowGraphSheet {
    ReportHeads heads;
    FlowChart msChartFlowGraph;
    std::array<std::string, 5> lblCaptions;
    std::array<std::string, flowGraphTableNozzles> lblNozz;
    std::array<std::string, flowGraphTableNozzles> lblCurrentFR;
    std::array<std::string, flowGraphTableNozzles> lblBaselineFR;
    std::array<std::string, flowGraphTableNozzles> lblChangeFR;
    std::array<std::string, flowGraphTableNozzles> lblPerFR;
};

// What the loading reads, and the state it changes.
struct FlowGraphInputs {
    const FlowTable& current;
    const FlowTable& baseline;
    Integer noOfNozzles;  // C, as entered last
    Integer chartNozzles; // the size of the tables
    bool units;           // clsConfigureData.Units: the chart's unit and the table's flows
    bool optUS;           // frmData.optUS: the heads of the table
    const clsSiteProperties& properties;
};

// Loads frmPrintFlowGraph. Its chart is drawn anew from ChartMatrix, not
// copied from the main window's: the markers of both series, the series'
// colours left at the chart's defaults; the Y title " GPM per Nozzle " or
// " LPM per Nozzle " by Units; the axis from the largest Current flow of
// nozzles 1 to NoOfNozzles - 1 (one short) and BaselineFlowMax. Its side
// effects stay: CurrentFlowMax takes that largest flow, FlowAxisMaximum the
// axis maximum when the unit is GPM, and every 0 in ChartMatrix becomes -1.
// The table holds nozzles 1 to 14: " 1" ... under "No. of Nozzles", the
// figures of the compare table (a Current flow of 0 gives the percentage
// " 0"), and " 0" in every figure of a nozzle above NoOfNozzles. A table
// shorter than NoOfNozzles (or 14 of them) fails with "Subscript out of range".
FlowGraphSheet LoadPrintFlowGraph(FlowChartState& flowChart, const FlowGraphInputs& inputs);

// The same from the application: the tables, the numbers of nozzles, the
// settings (frmData touched), the site properties.
FlowGraphSheet LoadPrintFlowGraph(ApplicationState& app);

} // namespace vesk
