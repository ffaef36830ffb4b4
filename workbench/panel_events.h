// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// What the controls of the four areas do when they are clicked, entered and left.
#pragma once

#include "workbench/panel_fields.h"
#include "workbench/window_state.h"

#include <string_view>

namespace vesk {

// An area button clicked: its area shown, and both recommendation lists
// cleared. Returns which lists were cleared.
RecommendationClears ClickAreaButton(WindowState& window, Area area);

// An area button losing the focus: tabbing forward through it (Tab down,
// Shift up) shows its area too; a back tab or a click elsewhere does not.
void LeaveAreaButton(WindowState& window, Area area, bool tabbedForward);

// A control getting the focus: the recommendation lists of its area
// (FocusEntered), and optBasic merely getting the focus chooses Basic.
RecommendationClears EnterControl(PanelState& panel, WindowState& window, std::string_view control);

// optBasic or optAdvance clicked: the piping mode it stands for; the entries of
// the other mode are kept.
void ChoosePipingMode(PanelState& panel, bool basic);

// An entry of a list chosen with the mouse or the keyboard. Choosing a number
// of branches loads the site picture.
void ClickList(PanelState& panel, WindowState& window, const PanelList& list, Long index);

// A list losing the focus to another control: the pump quantity loads the
// site picture then (a click in it alone does not).
void LeaveList(WindowState& window, const PanelList& list);

} // namespace vesk
