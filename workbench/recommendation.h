// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The recommendation feature that stands inert on the four areas: its texts, its focus flags and its two lists.
#pragma once

#include "workbench/panel_state.h"

#include <array>
#include <string>
#include <string_view>

namespace vesk {

// The families of the feature's texts. Nothing shows any of them: the logic
// that would choose one is not part of the program.
enum class RecommendationFamily {
    BestChoice,       // the selection is already the best one
    AlternativeGain,  // the two pieces a list entry would be built from
    MorePumps,        // add pumps to the pump quantity
    FewerPumps,       // fewer pumps would do
    NozzlesPerPump,   // too many nozzles for one pump
    NozzlesPerBranch, // too many nozzles on one branch
    PipeSize,         // a larger pipe
    Fittings,         // the head loss of the fittings, around a number
    HoseSize,         // a larger hose
};

struct RecommendationText {
    RecommendationFamily family;
    std::string_view text;
};

// The 43 texts, spelling and blanks as they stand.
extern const std::array<RecommendationText, 43> recommendationTexts;

// Which control of an area had the focus last: six in the Pump Area, two in
// the Dispensing Area, seven in the Piping Area. Only the double click of
// lstPump reads flags, and it reads two that nothing ever sets.
struct RecommendationFocus {
    // Pump Area
    bool pumps = false;
    bool quantity = false;
    bool frequency50Hz = false;
    bool frequency60Hz = false;
    bool leak = false;
    bool pumpOthers = false;
    // Dispensing Area
    bool nozzle = false;
    bool hoseSize = false;
    // Piping Area
    bool piping = false;
    bool trunkSize = false;
    bool trunkLength = false;
    bool trunkFittings = false;
    bool branchSize = false;
    bool branchLength = false;
    bool branchFittings = false;
    // The two the double click of lstPump asks; never set.
    bool pumpRecommended = false;
    bool leakRecommended = false;
};

// A control of an area got the focus: its flag set and the other flags of its
// area cleared. Other controls change nothing.
void RecordRecommendationFocus(std::string_view control, RecommendationFocus& focus);

// A click in lstDispensing or lstPump: the list's tool tip becomes the text
// of the entry clicked.
std::string RecommendationListToolTip(const std::string& entryText);

// A double click in lstDispensing: the entry's text up to " yields" selects
// that name in cmbNozzle. A text without " yields" is an invalid call, and a
// name cmbNozzle does not offer an invalid property value; no entry exists to
// be double-clicked, so neither can happen in the window.
void DoubleClickDispensingList(const std::string& entryText, PanelState& panel);

// A double click in lstPump: the same for cmbPumps or cmbLeak, by the two
// flags that nothing sets, so it never acts. Returns whether it acted.
bool DoubleClickPumpList(const std::string& entryText, PanelState& panel, const RecommendationFocus& focus);

} // namespace vesk
