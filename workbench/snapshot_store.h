// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// Taking the snapshots of the panels and putting the Baseline's back.
#pragma once

#include "workbench/panel_state.h"

#include "messages/user_interaction.h"
#include "site/configure_data.h"
#include "site/site_snapshot.h"

namespace vesk {

// The three copies of the panels; only the Baseline's is restored.
struct Snapshots {
    SiteSnapshot StartupSnapshot;
    SiteSnapshot BaselineSnapshot;
    SiteSnapshot SpareSnapshot;
};

// FillStartupSnapshots: the panels at the end of start-up into all three
// snapshots, except the fields that only the Baseline takes (quantity, number
// of branches, settings, the unused slots); the piping mode and the frequency
// go to the start-up snapshot only.
void FillStartupSnapshots(PanelState& panel, const clsConfigureData& config, Snapshots& snapshots);

// StoreBaselineSnapshot: the panels and the settings in force into the
// Baseline snapshot. Its pump is copied from the start-up snapshot, so the
// Baseline snapshot always holds the pump of start-up.
void StoreBaselineSnapshot(PanelState& panel, const clsConfigureData& config, Snapshots& snapshots);

// RestoreBaselineSnapshot: under other settings (component list, fuel, or
// frequency) shows "System Settings has changed" and changes nothing;
// otherwise puts the lists back by position and the fields back in the units
// on the screen. Neither the piping mode nor the pump-side component, the
// pipe size, the valves or the number of nozzles is restored. Returns whether
// the panels were restored.
bool RestoreBaselineSnapshot(PanelState& panel, const clsConfigureData& config, SiteSnapshot& baseline,
                             UserInteraction& ui);

} // namespace vesk
