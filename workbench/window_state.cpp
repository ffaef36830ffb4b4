// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// What the main window shows besides the inputs: the area on show, the inert recommendation lists, the site picture,
// the focus.
#include "workbench/window_state.h"

#include <algorithm>
#include <array>

namespace vesk {

namespace {

// The controls whose focus clears a list, whatever they show.
constexpr std::array<std::string_view, 5> clearDispensing{"cmbDispenser", "cmbBreakAway", "cmbDispOthers", "txtHoseLen",
                                                          "txtNoOfNozzle"};
constexpr std::array<std::string_view, 4> clearPump{"cmbPumpOthers", "cmbQuantity", "opt50Hz", "opt60Hz"};

template <std::size_t N> bool isOneOf(std::string_view control, const std::array<std::string_view, N>& names) {
    return std::find(names.begin(), names.end(), control) != names.end();
}

// A list standing on an entry other than "None".
bool offNone(const ComboList& list) {
    return list.ListIndex() != 0;
}

} // namespace

RecommendationClears FocusEntered(std::string_view control, const PanelState& panel, RecommendationLists& lists) {
    RecommendationClears clears;
    if (isOneOf(control, clearDispensing)) {
        clears.lstDispensing = true;
    } else if (isOneOf(control, clearPump)) {
        clears.lstPump = true;
    } else if (control == "cmbNozzle" && offNone(panel.cmbNozzle)) {
        clears.lstDispensing = true;
        lists.lstDispensingEnabled = true;
        lists.lstDispensingVisible = true;
    } else if (control == "cmbHoseSize" && offNone(panel.cmbHoseSize)) {
        clears.lstDispensing = true;
        lists.lstDispensingVisible = false;
    } else if (control == "cmbPumps") {
        clears.lstPump = true;
        lists.lstPumpEnabled = true;
    } else if (control == "cmbLeak") {
        clears.lstPump = offNone(panel.cmbLeak);
        lists.lstPumpEnabled = true;
    } else if (control == "txtTankDiameter") {
        lists.txtSiteRecommend.clear();
    }
    return clears;
}

} // namespace vesk
