// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The Ok of the System Settings dialog: lists, settings, the fields converted once between units.
#include "workbench/system_settings.h"

#include "workbench/panel_fields.h"

#include "catalogue/component_lists.h"

namespace vesk {

namespace {

// A field's text converted between units: read as a Double, multiplied or
// divided, rounded to 1 decimal, written back.
std::string convertedText(const std::string& text, Double metricPerUs, bool toMetric) {
    const Double value = parseNumber(text);
    const Double converted = toMetric ? value * metricPerUs : value / metricPerUs;
    return doubleText(roundHalfEven(converted, 1));
}

// Every length and the tank diameter converted, and their labels captioned in
// the new units.
void convertFields(PanelState& panel, bool toMetric) {
    for (const PanelField* field : LengthFields()) {
        std::string& text = TextOf(panel, *field);
        text = convertedText(text, field->unit.metricPerUs, toMetric);
    }
    panel.captions = toMetric ? MetricCaptions() : UsCaptions();
}

} // namespace

bool ApplySystemSettings(ApplicationState& app) {
    PanelState& panel = app.panel;
    LoadAllLists(panel, app.catalogues, app.config);

    const FrmDataOptions& dialog = TouchFrmData(panel, app.config);
    app.config.Data = dialog.optGas;
    for (const ComponentListName& list : componentListNames) {
        if (dialog.*ComponentListOption(list.code)) {
            app.config.ComponentList = list.code;
        }
    }
    app.config.Units = dialog.optUS;

    if (dialog.optUS && app.flags.blnMetricActive) {
        convertFields(panel, false);
        app.flags.blnMetricActive = false;
        app.flags.blnUSActive = true;
    }
    if (dialog.optMetric && app.flags.blnUSActive) {
        convertFields(panel, true);
        app.flags.blnMetricActive = true;
        app.flags.blnUSActive = false;
    }
    const bool replot = !app.flags.ChartNotDrawnYet;
    if (replot) {
        ReplotForUnits(app.flowChart, app.results.Current, app.results.Baseline, app.ChartNozzles, app.config.Units);
    }
    panel.frmDataLoaded = false;
    return replot;
}

} // namespace vesk
