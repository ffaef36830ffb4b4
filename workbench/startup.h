// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The initialisation of the main window and the Calculate that ends it.
#pragma once

#include "messages/user_interaction.h"
#include "workbench/application_state.h"

namespace vesk {

// The path of the first site file: the program folder + \SaveSiteInfo\Default.txt.
std::string DefaultSiteFile(const std::filesystem::path& programFolder);

// The initialisation of frmMain, as far as it decides something: the settings
// file, the panels, the catalogue files, the System Settings Ok run unseen
// (which converts the default numbers of a metric start), the lists and their
// selections, the number of nozzles and the result tables, and the first
// Calculate, which also makes the Baseline. Runs again over live state for
// File, New: the texts of the fields stay as they are, except the hose length.
// A missing or damaged file shows its message and ends the process.
void InitialiseMainWindow(ApplicationState& app, UserInteraction& ui);

// The Ok of the System Settings dialog, frmData.cmdOk_Click, as logic: lists
// refilled, clsConfigureData told, the fields converted once between units
// (guarded by blnUSActive and blnMetricActive) and the captions set, and the
// dialog unloaded. Returns whether the graph is to be re-plotted in the new
// units (a Calculate has run before).
bool ApplySystemSettings(ApplicationState& app);

// Calculate (cmdCalculate): the Current sweep, and the Baseline too while
// NeedBaseline is set. Clears blnSaved.
void Calculate(ApplicationState& app);

// Make Baseline (BaseLine): the Baseline sweep.
void MakeBaseline(ApplicationState& app);

// ChartNozzles from the text of txtNoOfNozzle, the next even number above it,
// and both result tables created anew and cleared. NoOfNozzles is not touched.
void CreateResultTables(ApplicationState& app);

// Back To Baseline: the panels restored from the Baseline snapshot (or the
// message "System Settings has changed" and the panels left as they are),
// then the Baseline grid filled and Make Baseline, whatever the restore did.
void BackToBaseline(ApplicationState& app, UserInteraction& ui);

} // namespace vesk
