// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The System Headloss Details dialog, frmDetails: the head loss by component.
#pragma once

#include "workbench/application_state.h"

#include <QDialog>

namespace vesk::gui {

// All its work happens at load, in the constructor: one details stepping of
// the present entries at the full number of nozzles, and the eleven lines of
// the breakdown where that stepping failed. Only the trial flow and the
// breakdown of app.results.engine change. A run-time failure of the stepping
// (a number of nozzles that does not convert) propagates.
class DetailsDialog : public QDialog {
    Q_OBJECT

  public:
    explicit DetailsDialog(ApplicationState& app, QWidget* parent = nullptr);
};

} // namespace vesk::gui
