// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The pump performance curve of the Pump Area, as data for the chart.
#include "workbench/pump_curve.h"

#include "engine/chart_scale.h"
#include "engine/site_description.h"

namespace vesk {

namespace {

// The quantity selected, as an Integer.
Integer selectedQuantity(const PanelState& panel) {
    return parseInteger(panel.cmbQuantity.Text());
}

// The first record of the selected name and frequency, or none.
std::optional<Integer> findPump(const Catalogue& pumps, const PanelState& panel) {
    const std::string name = panel.cmbPumps.Text();
    for (Integer i = 0; i <= pumps.Top(); ++i) {
        const ComponentRecord& record = pumps.Records[static_cast<std::size_t>(i)];
        if (record.Name == name && record.IsGas == panel.opt50Hz) {
            return i;
        }
    }
    return std::nullopt;
}

// The largest flow and head of a curve, in both units, each a Single.
struct CurveMaxima {
    Single flow = 0;
    Single head = 0;
    Single headMetres = 0;
    Single flowLitres = 0;
};

CurveMaxima maximaOf(const RateLossCurve& curve) {
    CurveMaxima maxima;
    maxima.flow = at(curve.Flow, 0);
    maxima.head = at(curve.Head, 0);
    maxima.headMetres = toSingle(maxima.head * units::metresPerFoot);
    for (long j = 0; j <= static_cast<long>(curve.PointCount) - 1; ++j) {
        if (maxima.flow < at(curve.Flow, j)) {
            maxima.flow = at(curve.Flow, j);
            maxima.flowLitres = toSingle(maxima.flow * units::lpmPerGpm);
        }
        if (maxima.head < at(curve.Head, j)) {
            maxima.head = at(curve.Head, j);
            maxima.headMetres = toSingle(maxima.head * units::metresPerFoot);
        }
    }
    return maxima;
}

Integer fifthOf(Single maximum) {
    return toInteger(maximum / 5.0);
}

} // namespace

Single PumpHeadInfo(const Catalogue& pumps, Integer pumpIndex, Single flowValue, const PanelState& panel, bool optUS) {
    const Single q = selectedQuantity(panel);
    const RateLossCurve& curve = at(pumps.Records, pumpIndex).Curve;
    for (long j = 0; j <= static_cast<long>(curve.PointCount) - 2; ++j) {
        if (at(curve.Head, j + 1) == 0) {
            return -1; // a head of 0 ends the usable curve
        }
        Single a = toSingle(q * Double{at(curve.Flow, j)});
        Single b = toSingle(q * Double{at(curve.Flow, j + 1)});
        if (!optUS) {
            a = toSingle(a * units::lpmPerGpm);
            b = toSingle(b * units::lpmPerGpm);
        }
        if (flowValue < a || flowValue > b) {
            continue;
        }
        const Single t = toSingle(divide(Double{flowValue} - a, Double{b} - a));
        Double h0 = at(curve.Head, j);
        Double h1 = at(curve.Head, j + 1);
        if (!optUS) {
            h0 *= units::metresPerFoot;
            h1 *= units::metresPerFoot;
        }
        const Single rise = toSingle(h1 - h0);
        return toSingle(Double{rise} * t + h0);
    }
    return 0;
}

void UpdatePumpCurve(PumpCurveChart& chart, PanelState& panel, const clsConfigureData& config,
                     const Catalogues& catalogues) {
    const Integer quantity = selectedQuantity(panel);
    const Catalogue& pumps = catalogues.of(ComponentKind::Pump);
    const std::optional<Integer> pumpIndex = findPump(pumps, panel);
    if (!pumpIndex) {
        return;
    }
    const ComponentRecord& pump = pumps.Records[static_cast<std::size_t>(*pumpIndex)];
    const CurveMaxima maxima = maximaOf(pump.Curve);

    const Single rowsGpm = ChartScale(toSingle(quantity * Double{maxima.flow}));
    Single rowsLpm = 0; // computed in litres only
    if (config.Units) {
        chart.yTitle = "Feet of Head";
        chart.xTitle = "GPM";
        chart.xMaximum = rowsGpm;
        chart.xMinimum = 0;
        chart.yMaximum = ChartScale(maxima.head);
    } else {
        chart.yTitle = "Meters of Head";
        chart.xTitle = "LPM";
        rowsLpm = ChartScale(toSingle(quantity * Double{maxima.flowLitres}));
        chart.xMaximum = rowsLpm;
        chart.yMaximum = ChartScale(maxima.headMetres);
    }
    std::vector<Single> points;
    redim(points, static_cast<long>(chart.xMaximum) - 1);
    chart.xDivisions = fifthOf(chart.xMaximum);
    if (chart.yMaximum <= 10) {
        chart.yMaximum = 20;
    }
    chart.yDivisions = fifthOf(chart.yMaximum);
    chart.title = pump.Name;

    const bool optUS = TouchFrmData(panel, config).optUS;
    const Single rows = optUS ? rowsGpm : rowsLpm;
    for (Single x = 0; x < rows; x = toSingle(Double{x} + 1)) {
        const Single head = PumpHeadInfo(pumps, *pumpIndex, x, panel, optUS);
        at(points, static_cast<long>(x)) = head < 0 ? 0 : head;
    }
    for (Single& head : points) {
        if (head == 0) {
            head = -1;
        }
    }
    const Integer rowCount = toInteger(rows);
    points.resize(static_cast<std::size_t>(std::max<Integer>(rowCount, 0)), -1);
    chart.points = std::move(points);
    chart.rowLabels.clear();
    for (Integer i = 0; i < rowCount; ++i) {
        chart.rowLabels.push_back(integerText(i));
    }
}

} // namespace vesk
