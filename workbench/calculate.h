// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// Calculate, Make Baseline and Back To Baseline: the sweeps of the two sides and what they draw.
#pragma once

#include "workbench/application_state.h"

#include "messages/user_interaction.h"

namespace vesk {

// Calculate (cmdCalculate): the Current sweep drawn, and the Baseline too while
// NeedBaseline is set; then flxCurrent filled. Clears blnSaved.
void Calculate(ApplicationState& app);

// Make Baseline (BaseLine): the Baseline sweep drawn, the Baseline snapshot
// taken and flxBaseLine filled.
void MakeBaseline(ApplicationState& app);

// Back To Baseline: the panels restored from the Baseline snapshot (or the
// message "System Settings has changed" and the panels left as they are),
// then the Baseline grid filled and Make Baseline, whatever the restore did.
void BackToBaseline(ApplicationState& app, UserInteraction& ui);

// ChartNozzles from the text of txtNoOfNozzle, the next even number above it,
// and both result tables and ChartMatrix created anew and cleared. NoOfNozzles
// is not touched.
void CreateResultTables(ApplicationState& app);

// The head-loss breakdown of the details dialog for the entries on the panels
// now: one stepping at the full number of nozzles, left at its failing step.
// Changes only the trial flow and the breakdown.
const HeadLossBreakdown& RunDetails(ApplicationState& app);

} // namespace vesk
