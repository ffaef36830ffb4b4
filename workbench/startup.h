// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The initialisation of the main window, at start-up and at File, New.
#pragma once

#include "workbench/application_state.h"

#include "messages/user_interaction.h"

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

} // namespace vesk
