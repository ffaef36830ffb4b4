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

RecommendationClears EnterControl(PanelState& panel, WindowState& window, std::string_view control) {
    if (control == "optBasic") {
        ChoosePipingMode(panel, true);
    }
    RecordRecommendationFocus(control, window.recommendationFocus);
    return FocusEntered(control, panel, window.recommendation);
}

void ChoosePipingMode(PanelState& panel, bool basic) {
    panel.optBasic = basic;
    panel.optAdvance = !basic;
}

void ClickList(PanelState& panel, WindowState& window, const PanelList& list, Long index) {
    (panel.*list.list).SetListIndex(index);
    if (list.list == &PanelState::cmbNoOfBranches) {
        window.sitePictureDue = true;
    }
}

void LeaveList(WindowState& window, const PanelList& list) {
    if (list.list == &PanelState::cmbQuantity) {
        window.sitePictureDue = true;
    }
}

} // namespace vesk
