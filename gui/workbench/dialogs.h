// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The dialogs the main window opens, each shown modally over it.
#pragma once

#include "workbench/application_state.h"

class QWidget;

namespace vesk::gui {

// Options > System Settings (frmData): the dialog loaded from the state (or as
// a site read left it), modal; Ok applies it (lists, units, captions, the
// graph re-plotted in the new unit), Cancel changes nothing. Returns whether
// Ok was pressed.
bool ShowSystemSettings(QWidget* parent, ApplicationState& app);

// cmdDetails (frmDetails): runs the details stepping of the present entries
// and shows the breakdown, modal, until Close.
void ShowDetails(QWidget* parent, ApplicationState& app);

// Help > About Vesk (frmAbout): "Vesk Version " and the version, modal.
void ShowAbout(QWidget* parent);

} // namespace vesk::gui
