// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The Dynamic Flow Graph as data: what the chart shows after each drawing.
#pragma once

#include "engine/flow_sweep.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace vesk {

inline constexpr const char* flowChartTitle = "Dynamic Flow Graph";
inline constexpr const char* flowChartXTitle = "Number of Nozzles Operating";

enum class ChartSide { Current, Baseline };

struct Rgb {
    int red = 0;
    int green = 0;
    int blue = 0;
    bool operator==(const Rgb&) const = default;
};

inline constexpr Rgb chartRed{255, 0, 0};
inline constexpr Rgb chartGreen{0, 255, 0};
inline constexpr Rgb markerFill{128, 64, 0};

enum class MarkerStyle { FilledTriangle = 12, Ball = 14 };

struct SeriesLook {
    std::optional<MarkerStyle> marker; // set once the side is drawn
    int markerSize = 0;
    Rgb markerFill{};
    std::optional<Rgb> colour; // unchanged until a drawing sets it
};

// The chart itself: series 1 (index 0) is the Baseline, series 2 the Current.
struct FlowChart {
    std::string yTitle;
    Single yMaximum = 0;
    Integer yDivisionsPerLabel = 0;
    std::vector<std::string> rowLabels;
    // The cells by row, one per series; nullopt is a null cell, a gap.
    std::array<std::vector<std::optional<Single>>, 2> cells;
    std::array<SeriesLook, 2> series;
};

// ChartMatrix and the maxima kept beside the chart.
struct FlowChartState {
    // ChartMatrix: rows 1 to ChartNozzles (element 0 unused), columns 1
    // Baseline and 2 Current (elements 0 and 1); -1 is no point.
    std::vector<std::array<Single, 2>> ChartMatrix;
    Single CurrentFlowMax = 0;
    Single BaselineFlowMax = 0;
    Double FlowAxisMaximum = 0;
    bool CurrentInLitres = false;
    bool BaselineInLitres = false;
    std::string lblCurrentPump;
    std::string lblBaselinePump;
    FlowChart chart;
};

// ChartMatrix created anew with the result tables, cleared.
void CreateChartMatrix(FlowChartState& state, Integer chartNozzles);

// The legend label of a side for the selected pump P: " Dot Marker -
// Current(P)" or " Traingle Marker - Baseline(P)", the spelling the system's own.
std::string LegendLabel(ChartSide side, const std::string& pump);

// RebuildChartRows: when the chart was last built for another number of rows,
// every row of ChartMatrix is zeroed and the chart gets ChartNozzles empty,
// labelled rows. Returns the new LastChartNozzles.
Integer RebuildChartRows(FlowChartState& state, Integer lastChartNozzles, Integer chartNozzles,
                         const FlowTable& ownTable);

// DrawSeries: one side drawn from its table after its sweep, in GPM or LPM by
// the Units setting; the axis covers both lines; a flow of 0 leaves a gap;
// the colours follow whether both sides agree in every row.
void DrawSeries(FlowChartState& state, ChartSide side, const FlowTable& own, const FlowTable& other,
                Integer chartNozzles, bool usUnits);

// ReplotForUnits: both lines drawn again from the stored tables in the new
// unit, with no sweep; the Baseline maximum is not converted.
void ReplotForUnits(FlowChartState& state, FlowTable& current, FlowTable& baseline, Integer chartNozzles, bool usUnits);

// The point tool tip for data point d of a series: the nozzle label, two
// blanks, and the flow of that list. The lists cover only the nozzles swept.
std::string PointToolTip(const std::vector<Single>& nozzleLabels, const FlowTable& current, const FlowTable& baseline,
                         int series, long point, bool optUS);

} // namespace vesk
