// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// What the fields of the four areas accept, and how a bad entry is turned away.
#pragma once

#include "workbench/application_state.h"
#include "workbench/panel_fields.h"

#include "messages/user_interaction.h"

#include <array>
#include <string>

namespace vesk {

// A key typed into a field: codes of 128 and above are thrown away, backspace
// always passes; digits pass; the decimal filter also takes one ".".
bool KeyPasses(KeyFilter filter, int keyCode, const std::string& text);

// The length check on the loss of focus: an empty text becomes "0"; a value
// above the limit of the Units setting (not the active flags) shows "Maximum
// Value can be entered is " and the limit, keeps the value and asks for the
// focus back; any other text becomes the number written back ("007.50" gives
// "7.5"). Sets blnFieldValid. Returns whether the focus goes back.
bool LengthCheck(ApplicationState& app, const PanelField& field, UserInteraction& ui);

// The count check of the fitting fields: an empty text becomes "0", any other
// the number written back. No message; blnFieldValid is left alone.
void CountCheck(std::string& text);

// The nozzle check on the loss of focus of txtNoOfNozzle. Normally: an empty
// text, 0, or a value above txtMaxNozz shows its message and asks for the focus
// back; a good one is written back and the number of nozzles, ChartNozzles and
// the result tables are made anew (earlier results are gone). On the quiet
// path (a top menu opening) the flag is cleared at once, and a bad value is
// replaced by "1" silently, with nothing else computed. Returns whether the
// focus goes back.
bool NozzleCheck(ApplicationState& app, UserInteraction& ui);

// The checks in order, the nozzles first and the rise last; the result is
// blnFieldValid, which belongs to the last length check.
bool ValidateAllFields(ApplicationState& app, UserInteraction& ui);

// A top menu (File, Options, Help) opening: the quiet nozzle check, all
// fields checked, and the quiet flag cleared when they passed. The menu opens
// whatever the result.
void OpenTopMenu(ApplicationState& app, UserInteraction& ui);

} // namespace vesk
