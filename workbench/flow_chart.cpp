// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The Dynamic Flow Graph as data: what the chart shows after each drawing.
#include "workbench/flow_chart.h"

#include "engine/chart_scale.h"

namespace vesk {

namespace {

constexpr int markerSize = 110;

// What the two sides do differently.
struct SideTraits {
    std::size_t column; // of ChartMatrix and of the chart's series
    MarkerStyle marker;
    const char* yTitleGpm;
    const char* yTitleLpm;
    const char* legend;
};

constexpr SideTraits currentTraits{1, MarkerStyle::Ball, " GPM per Nozzle ", " LPM per Nozzle ",
                                   " Dot Marker - Current"};
constexpr SideTraits baselineTraits{0, MarkerStyle::FilledTriangle, "GPM per Nozzle", "LPM per Nozzle",
                                    " Traingle Marker - Baseline"};

const SideTraits& traitsOf(ChartSide side) {
    return side == ChartSide::Current ? currentTraits : baselineTraits;
}

// The series colours after a drawing: series 1 (Baseline), series 2 (Current);
// nullopt leaves a colour unchanged. Asymmetric where both lines coincide.
struct SeriesColours {
    std::optional<Rgb> baseline;
    std::optional<Rgb> current;
};

SeriesColours coloursAfterDrawing(ChartSide side, bool usUnits, bool allRowsEqual) {
    if (side == ChartSide::Current) {
        if (!allRowsEqual) {
            return {chartGreen, chartRed};
        }
        return usUnits ? SeriesColours{chartRed, chartGreen} : SeriesColours{chartRed, std::nullopt};
    }
    if (usUnits && allRowsEqual) {
        return {chartGreen, std::nullopt};
    }
    return {chartGreen, chartRed};
}

const std::vector<Single>& flowsOf(const FlowTable& table, bool usUnits) {
    return usUnits ? table.GpmPerNozzle : table.LpmPerNozzle;
}

Single& matrixCell(FlowChartState& state, long row, std::size_t column) {
    return at(at(state.ChartMatrix, row), static_cast<long>(column));
}

// The row of ChartMatrix that NozzleAxis gives for i, as an index.
long axisRow(const FlowTable& table, long i) {
    return toLong(at(table.NozzleAxis, i));
}

std::optional<Single> cellOf(Single value) {
    return value == -1 ? std::nullopt : std::optional<Single>(value);
}

void setRows(FlowChart& chart, Integer chartNozzles) {
    chart.rowLabels.clear();
    for (Integer row = 1; row <= chartNozzles; ++row) {
        chart.rowLabels.push_back(integerText(row));
    }
    for (auto& column : chart.cells) {
        column.resize(static_cast<std::size_t>(std::max<Integer>(chartNozzles, 0)));
    }
}

void writeColumn(FlowChartState& state, std::size_t column, Integer chartNozzles) {
    for (long row = 1; row <= chartNozzles; ++row) {
        state.chart.cells[column][static_cast<std::size_t>(row - 1)] = cellOf(matrixCell(state, row, column));
    }
}

void setAxis(FlowChartState& state, Single maximum) {
    const Single scaled = ChartScale(maximum);
    state.chart.yMaximum = scaled;
    state.chart.yDivisionsPerLabel = toInteger(scaled / 5.0);
}

void showMarkers(FlowChart& chart, const SideTraits& traits) {
    SeriesLook& look = chart.series[traits.column];
    look.marker = traits.marker;
    look.markerSize = markerSize;
    look.markerFill = markerFill;
}

} // namespace

void CreateChartMatrix(FlowChartState& state, Integer chartNozzles) {
    state.ChartMatrix.assign(static_cast<std::size_t>(std::max<Integer>(chartNozzles, 0)) + 1, {0, 0});
}

std::string LegendLabel(ChartSide side, const std::string& pump) {
    return std::string(traitsOf(side).legend) + "(" + pump + ")";
}

Integer RebuildChartRows(FlowChartState& state, Integer lastChartNozzles, Integer chartNozzles,
                         const FlowTable& ownTable) {
    if (lastChartNozzles == chartNozzles) {
        return lastChartNozzles;
    }
    for (long i = 1; i <= chartNozzles; ++i) {
        const long row = axisRow(ownTable, i);
        matrixCell(state, row, 0) = 0;
        matrixCell(state, row, 1) = 0;
    }
    setRows(state.chart, chartNozzles);
    for (auto& column : state.chart.cells) {
        std::fill(column.begin(), column.end(), std::nullopt); // every row written with its null flag
    }
    return chartNozzles;
}

void DrawSeries(FlowChartState& state, ChartSide side, const FlowTable& own, const FlowTable& other,
                Integer chartNozzles, bool usUnits) {
    const SideTraits& traits = traitsOf(side);
    showMarkers(state.chart, traits);
    (side == ChartSide::Current ? state.CurrentInLitres : state.BaselineInLitres) = !usUnits;
    state.chart.yTitle = usUnits ? traits.yTitleGpm : traits.yTitleLpm;
    const std::vector<Single>& flows = flowsOf(own, usUnits);
    const std::vector<Single>& otherFlows = flowsOf(other, usUnits);

    const long swept = static_cast<long>(own.GpmList.size()) - 1;
    Single m = 0;
    for (long i = 1; i <= swept; ++i) {
        if (m < at(flows, i)) {
            m = at(flows, i);
        }
    }
    Single& ownMax = side == ChartSide::Current ? state.CurrentFlowMax : state.BaselineFlowMax;
    const Single otherMax = side == ChartSide::Current ? state.BaselineFlowMax : state.CurrentFlowMax;
    ownMax = m;
    if (otherMax > m) {
        m = otherMax; // the axis always covers both lines
    }
    const Single scaled = ChartScale(m);
    setAxis(state, m);
    if (usUnits) {
        if (side == ChartSide::Current || static_cast<Single>(state.FlowAxisMaximum) < scaled) {
            state.FlowAxisMaximum = scaled;
        }
    }

    long equalCount = 0;
    for (long i = 1; i <= chartNozzles; ++i) {
        Single& cell = matrixCell(state, axisRow(own, i), traits.column);
        cell = at(flows, i);
        if (cell == 0) {
            cell = -1; // a gap, never a point on the axis
        }
        if (at(flows, i) == at(otherFlows, i)) {
            ++equalCount;
        }
    }
    setRows(state.chart, chartNozzles);
    writeColumn(state, traits.column, chartNozzles);

    const SeriesColours colours = coloursAfterDrawing(side, usUnits, equalCount == chartNozzles);
    if (colours.baseline) {
        state.chart.series[0].colour = colours.baseline;
    }
    if (colours.current) {
        state.chart.series[1].colour = colours.current;
    }
}

void ReplotForUnits(FlowChartState& state, FlowTable& current, FlowTable& baseline, Integer chartNozzles,
                    bool usUnits) {
    showMarkers(state.chart, currentTraits); // series 1 keeps its markers
    state.chart.yTitle = usUnits ? "GPM per Nozzle" : "LPM per Nozzle";
    Single m = 0;
    for (long i = 1; i <= chartNozzles; ++i) {
        if (m < at(flowsOf(current, usUnits), i)) {
            m = at(flowsOf(current, usUnits), i);
        }
    }
    state.CurrentFlowMax = m;
    if (state.BaselineFlowMax > m) {
        m = state.BaselineFlowMax; // in the unit of its last drawing
    }
    setAxis(state, m);
    for (FlowTable* table : {&current, &baseline}) {
        const std::size_t column = table == &current ? currentTraits.column : baselineTraits.column;
        for (long i = 1; i <= chartNozzles; ++i) {
            if (at(table->NozzleAxis, i) == 0) {
                at(table->NozzleAxis, i) = 1;
            }
            Single& cell = matrixCell(state, axisRow(*table, i), column);
            cell = at(flowsOf(*table, usUnits), i);
            if (cell == 0) {
                cell = -1;
            }
        }
    }
    setRows(state.chart, chartNozzles);
    writeColumn(state, currentTraits.column, chartNozzles);
    writeColumn(state, baselineTraits.column, chartNozzles);
}

std::string PointToolTip(const std::vector<Single>& nozzleLabels, const FlowTable& current, const FlowTable& baseline,
                         int series, long point, bool optUS) {
    const FlowTable& table = series == 2 ? current : baseline;
    const std::vector<Single>& list = optUS ? table.GpmList : table.LpmList;
    return singleText(at(nozzleLabels, point)) + "  " + singleText(at(list, point));
}

} // namespace vesk
