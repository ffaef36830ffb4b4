// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// What the controls of the four areas do when they are clicked, entered and left.
#include "workbench/panel_events.h"

namespace vesk {

RecommendationClears ClickAreaButton(WindowState& window, Area area) {
    window.tabMain = area;
    return {true, true};
}

void LeaveAreaButton(WindowState& window, Area area, bool tabbedForward) {
    if (tabbedForward) {
        window.tabMain = area;
    }
}

RecommendationClears EnterControl(ApplicationState& app, std::string_view control) {
    if (control == "optBasic") {
        ChoosePipingMode(app.panel, true);
    }
    return FocusEntered(control, app.panel, app.window.recommendation);
}

void ChoosePipingMode(PanelState& panel, bool basic) {
    panel.optBasic = basic;
    panel.optAdvance = !basic;
}

void ClickList(ApplicationState& app, const PanelList& list, Long index) {
    (app.panel.*list.list).SetListIndex(index);
    if (list.list == &PanelState::cmbNoOfBranches) {
        app.window.sitePictureDue = true;
    }
}

void LeaveList(ApplicationState& app, const PanelList& list) {
    if (list.list == &PanelState::cmbQuantity) {
        app.window.sitePictureDue = true;
    }
}

} // namespace vesk
