// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// What the main window shows besides the inputs: the area on show, the inert recommendation lists, the site picture,
// the focus.
#pragma once

#include "workbench/panel_fields.h"
#include "workbench/recommendation.h"

#include <optional>
#include <string>
#include <string_view>

namespace vesk {

// The controls of the recommendation feature that something manages: two
// lists and one box, always empty, since nothing fills them.
struct RecommendationLists {
    bool lstDispensingEnabled = false;
    bool lstDispensingVisible = true;
    bool lstPumpEnabled = false;
    std::string txtSiteRecommend;
};

struct WindowState {
    Area tabMain = Area::Dispensing;
    RecommendationLists recommendation;
    RecommendationFocus recommendationFocus;
    bool mnuOptionsEnabled = true;
    bool mnuSaveEnabled = true;
    bool mnuSaveAsEnabled = true;
    // The picture of the site layout is to be loaded anew (SitePicture).
    bool sitePictureDue = false;
    // A control that the program itself gives the focus to, once.
    std::optional<std::string> focusRequest;
};

// What a control getting the focus does to the recommendation lists: the
// Dispensing Area's controls clear lstDispensing, the Pump Area's lstPump, and
// cmbNozzle, cmbHoseSize, cmbPumps and cmbLeak also enable, show or hide a list;
// txtTankDiameter clears txtSiteRecommend. Returns which lists were cleared:
// none of it changes a result.
struct RecommendationClears {
    bool lstDispensing = false;
    bool lstPump = false;
};
RecommendationClears FocusEntered(std::string_view control, const PanelState& panel, RecommendationLists& lists);

} // namespace vesk
