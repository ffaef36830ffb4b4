// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The pump performance curve of the Pump Area, as data for the chart.
#pragma once

#include "workbench/panel_state.h"

#include "engine/catalogues.h"
#include "site/configure_data.h"

#include <optional>
#include <string>
#include <vector>

namespace vesk {

inline constexpr const char* pumpCurveTitle = "Pump Performance Curve";

// What the pump curve chart shows after its last drawing. It keeps what it
// showed when a drawing finds no pump, and keeps its X minimum in litres.
struct PumpCurveChart {
    std::string title = pumpCurveTitle;
    std::string xTitle;
    std::string yTitle;
    Single xMaximum = 0;
    std::optional<Single> xMinimum; // set to 0 in GPM, left as it was in LPM
    Single yMaximum = 0;
    Integer xDivisions = 0; // per label and per tick
    Integer yDivisions = 0;
    // PumpCurvePoints: the head at a flow of x (1 GPM or 1 LPM a row); -1 for
    // no point.
    std::vector<Single> points;
    std::vector<std::string> rowLabels; // "0", "1", ...
};

// PumpHeadInfo: the head of the selected quantity of the pump record at
// `pumpIndex` at `flowValue` (GPM with optUS, else LPM), in feet or metres. A
// later point of head 0 ends the usable curve: -1. Outside the curve: 0.
Single PumpHeadInfo(const Catalogue& pumps, Integer pumpIndex, Single flowValue, const PanelState& panel, bool optUS);

// cmdUpdate: finds the first pump record of the selected name and frequency
// (the last record included) and draws its curve for the selected quantity.
// With no such record the chart stays as it was.
void UpdatePumpCurve(PumpCurveChart& chart, PanelState& panel, const clsConfigureData& config,
                     const Catalogues& catalogues);

} // namespace vesk
