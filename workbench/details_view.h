// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// What the System Headloss Details dialog shows of a breakdown.
#pragma once

#include "workbench/application_state.h"

#include "engine/system_head.h"

#include <array>
#include <string>

namespace vesk {

inline constexpr const char* detailsCaption = "System Headloss Details";
inline constexpr const char* notInRange = "O/R";

// One line of the dialog: its caption control and text, its value control and text.
struct DetailsLine {
    std::string captionControl;
    std::string caption;
    std::string valueControl;
    std::string value;
};

inline constexpr int detailsLineCount = 11;

// The eleven lines for a breakdown in feet: with optUS the US captions and the
// values in feet, otherwise the metric captions and the values times 0.3048.
// A term that is exactly 0 shows "O/R"; the others "##0.0", the hose "##0.0#".
std::array<DetailsLine, detailsLineCount> DetailsLines(const HeadLossBreakdown& breakdown, bool optUS);

// The load of the dialog: the details stepping of the entries on the panels
// now (RunDetails), shown in the units of the System Settings dialog.
std::array<DetailsLine, detailsLineCount> LoadDetails(ApplicationState& app);

} // namespace vesk
