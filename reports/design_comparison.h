// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// Comparing two saved designs: the Baseline from one site file, the Current from another.
#pragma once

#include "workbench/application_state.h"

#include "messages/user_interaction.h"

#include <string>

namespace vesk {

// Opens `fileName` as File > Open does (the read, the caption, the nozzle cap,
// ChartNozzles anew, NoOfNozzles left as it was, the Calculate) but keeps the
// Baseline that an earlier open left: its FlowTable (resized to the new
// ChartNozzles, its values kept at the indices it had and 0 at new ones),
// BaselineFlowMax, lblBaselinePump, flxBaseLine, its column of ChartMatrix and
// the Baseline snapshot. NeedBaseline stays clear, so the Calculate draws the
// Current side only. Returns whether the site was opened; a missing or
// damaged file shows its message as Open does.
bool OpenSiteKeepingBaseline(ApplicationState& app, const std::string& fileName, UserInteraction& ui);

} // namespace vesk
