// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// What the controls of the four areas do when they are clicked, entered and left.
#include "workbench/panel_events.h"

#include <algorithm>

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

RecommendationClears EnterControl(PanelState& panel, WindowState& window, std::string_view control, FocusMove move) {
    if (control == "optBasic" && move == FocusMove::ByUser) {
        ChoosePipingMode(panel, true);
    }
    RecordRecommendationFocus(control, window.recommendationFocus);
    return FocusEntered(control, panel, window.recommendation);
}

std::optional<Area> AreaOfControl(std::string_view control) {
    const auto field = std::ranges::find(panelFields, control,
                                         [](const PanelField& row) { return std::string_view(row.controlName); });
    if (field != panelFields.end()) {
        return field->area;
    }
    const auto list =
        std::ranges::find(panelLists, control, [](const PanelList& row) { return std::string_view(row.controlName); });
    if (list != panelLists.end()) {
        return list->area;
    }
    return std::nullopt;
}

void GiveFocus(WindowState& window, std::string_view control) {
    window.focusRequest = std::string(control);
    if (const std::optional<Area> area = AreaOfControl(control)) {
        window.tabMain = *area;
    }
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
