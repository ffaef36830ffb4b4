// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// Update of the Update dialog as the main window lives through it: the merge, then the main window initialised anew.
#pragma once

#include "workbench/application_state.h"

#include "catalogue/standard_update.h"

namespace vesk {

// Update with the path the dialog holds (UpdateStandardData); when the file
// was written, the initialisation of the main window runs again
// (InitialiseMainWindow): every file read anew, the lists refilled and back on
// their first entries, both sides calculated. Returns how the dialog ends.
UpdateEnd UpdateFromDialog(ApplicationState& app, const std::string& chosenPath, UserInteraction& ui);

} // namespace vesk
