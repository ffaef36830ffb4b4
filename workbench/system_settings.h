// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The Ok of the System Settings dialog: lists, settings, the fields converted once between units.
#pragma once

#include "workbench/application_state.h"

namespace vesk {

// frmData.cmdOk_Click as logic: lists refilled, clsConfigureData told, the
// fields converted once between units (guarded by blnUSActive and
// blnMetricActive) and the captions set, and the dialog unloaded. Returns
// whether the graph is to be re-plotted in the new units (a Calculate has run
// before); it is re-plotted here.
bool ApplySystemSettings(ApplicationState& app);

} // namespace vesk
