// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// What the controls of the four areas do when they are clicked, entered and left.
#pragma once

#include "workbench/panel_fields.h"
#include "workbench/window_state.h"

#include <optional>
#include <string_view>

namespace vesk {

// An area button clicked: its area shown, and both recommendation lists
// cleared. Returns which lists were cleared.
RecommendationClears ClickAreaButton(WindowState& window, Area area);

// An area button losing the focus: tabbing forward through it (Tab down,
// Shift up) shows its area too; a back tab or a click elsewhere does not.
void LeaveAreaButton(WindowState& window, Area area, bool tabbedForward);

// Who moved the focus: the user (a click, Tab, Shift+Tab, a shortcut) or the
// program itself (after Open, when a dialog or a menu gives the window back).
enum class FocusMove { ByUser, ByProgram };

// A control getting the focus: the recommendation lists of its area
// (FocusEntered), and optBasic merely getting the focus from the user chooses
// Basic. A focus the program moves never does: the piping mode a site file
// set must survive the window taking the focus back.
RecommendationClears EnterControl(PanelState& panel, WindowState& window, std::string_view control,
                                  FocusMove move = FocusMove::ByUser);

// The area that holds a field or a list of the table, if any.
std::optional<Area> AreaOfControl(std::string_view control);

// The program giving a control the focus (after Open, the number of nozzles):
// the control's area is shown as well, so that what the user types next
// reaches the control in sight.
void GiveFocus(WindowState& window, std::string_view control);

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
