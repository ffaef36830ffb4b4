// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// What Save writes from the grid and what Open sets on the panels: the site file and the main window.
#pragma once

#include "workbench/application_state.h"

#include "messages/user_interaction.h"
#include "site/site_file_format.h"

#include <string>

namespace vesk {

// The 52 lines of a site: the rows of flxCurrent (the inputs of the last
// Calculate), lengths converted back to feet and the tank to inches when the
// System Settings dialog says metric, line 39 from its units option, and lines
// 42 to 51 from clsSiteProperties.
SiteFileLines ComposeSiteFileLines(const ResultGrid& flxCurrent, const FrmDataOptions& frmData,
                                   const clsSiteProperties& properties);

// The lines WriteSiteFile writes: the System Settings dialog is touched, which
// loads it when it is not loaded, and the lines composed from it.
SiteFileLines ComposeSiteFile(ApplicationState& app);

// WriteSiteFile: composes the lines, then replaces the file, each line ended
// by CR LF. A file that cannot be written fails with a RunTimeFailure.
void WriteSiteFile(ApplicationState& app, const std::string& fileName);

// ReadSiteFile: reads 52 lines and applies them to the panels, the System
// Settings dialog, both grids and the hidden Site Properties dialog, in the
// order of its steps. Returns true (-1) on success; on any failure false (0),
// and what was done stays done.
bool ReadSiteFile(ApplicationState& app, const std::string& fileName);

// File, Open from the point where the file has been chosen: a missing file
// shows message 11 and empties strSiteFile; a failed read shows message 10
// (strSiteFile keeps the new name, the caption the old one); a good one sets
// the caption, cuts the number of nozzles to its limit, creates the result
// tables anew, sets NeedBaseline, calculates (which makes the Baseline too) and
// sets blnSaved. Returns whether the site was opened.
bool OpenSiteFile(ApplicationState& app, const std::string& fileName, UserInteraction& ui);

// File, New from the point where the name has been chosen: the name of an
// existing file shows "File already exists. Please enter a new filename" and
// changes nothing; otherwise the whole initialisation runs again and
// strSiteFile and the caption take the name. The file itself comes into being
// at the first save. Returns whether a new site was started.
bool NewSite(ApplicationState& app, const std::string& fileName, UserInteraction& ui);

// File, Save: WriteSiteFile to strSiteFile, then blnSaved. It never asks.
void SaveSite(ApplicationState& app);

} // namespace vesk
