// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// Everything the program keeps from its initialisation to its end.
#pragma once

#include "workbench/flow_chart.h"
#include "workbench/panel_state.h"
#include "workbench/pump_curve.h"
#include "workbench/result_grid.h"
#include "workbench/snapshot_store.h"
#include "workbench/window_state.h"

#include "engine/catalogues.h"
#include "engine/flow_sweep.h"
#include "engine/piping_tables.h"
#include "site/configure_data.h"
#include "site/settings_file.h"
#include "site/site_properties.h"

#include <filesystem>
#include <string>
#include <vector>

namespace vesk {

// The flags of the workflow and of the units the fields stand in now.
struct WorkflowFlags {
    bool blnSaved = false;
    bool blnUSActive = true;
    bool blnMetricActive = false;
    bool NeedBaseline = true;
    bool ChartNotDrawnYet = true;
    bool BaselineGridPending = false;
    bool blnQuietNozzleCheck = false;
    bool blnFieldValid = false; // the last length check passed
};

// The results of the two sweeps and what the engine leaves behind.
struct ResultTables {
    FlowTable Current;
    FlowTable Baseline;
    std::vector<Single> NozzleLabels; // shared by both tables
    EngineScratch engine;
};

struct ApplicationState {
    std::filesystem::path programFolder;
    std::string strSiteFile;
    std::string caption; // the main window's caption: the path of the site file

    Catalogues catalogues;
    PipingTables piping;
    clsConfigureData config;
    IniRawLines iniRawLines;

    PanelState panel;
    WorkflowFlags flags;
    WindowState window;

    ResultGrid flxCurrent;
    ResultGrid flxBaseLine;
    Snapshots snapshots;
    clsSiteProperties siteProperties;
    SitePropertiesForm frmSiteProperties;

    Integer NoOfNozzles = 0;
    Integer ChartNozzles = 0;
    Integer LastChartNozzles = 0;
    ResultTables results;
    FlowChartState flowChart;
    PumpCurveChart pumpCurve;
};

} // namespace vesk
