// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// Update of the Update dialog as the main window lives through it: the merge, then the main window initialised anew.
#include "workbench/update_data.h"

#include "workbench/startup.h"

namespace vesk {

UpdateEnd UpdateFromDialog(ApplicationState& app, const std::string& chosenPath, UserInteraction& ui) {
    const UpdateEnd end = UpdateStandardData(app.programFolder, chosenPath, ui);
    if (end == UpdateEnd::Merged) {
        InitialiseMainWindow(app, ui);
    }
    return end;
}

} // namespace vesk
