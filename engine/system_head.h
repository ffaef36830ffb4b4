// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The total dynamic head that the pump set must deliver.
#pragma once

#include "engine/component_lookup.h"
#include "engine/piping_tables.h"
#include "engine/site_description.h"

namespace vesk {

// The terms of the latest system head evaluation, feet. Each evaluation
// overwrites the fields it computes; nothing clears them in between.
struct HeadLossBreakdown {
    Single TrunkLoss = 0;
    Single BranchLoss = 0;
    Single TotalRise = 0;
    Single LeakDetectorLoss = 0;
    Single DispenserLoss = 0;
    Single DispOthersLoss = 0;
    Single BreakawayLoss = 0;
    Single NozzleLoss = 0;
    Single PumpOthersLoss = 0;
    Single HoseLoss = 0;
    Single ValveLength = 0; // Advance mode only; left as it was in Basic mode
    Single TotalHead = 0;
};

// What a head evaluation reads: the site, the piping tables and the site's
// components resolved in the catalogue.
struct HydraulicSite {
    const SiteDescription& site;
    const PipingTables& piping;
    ResolvedComponents components;

    HydraulicSite(const SiteDescription& siteDescription, const PipingTables& pipingTables,
                  const Catalogues& catalogues)
        : site(siteDescription), piping(pipingTables), components(ResolveComponents(siteDescription, catalogues)) {}
};

// Equivalent length in feet of the trunk valves at the trunk size: the ball
// valve (first valve record), the swing check (second), both, or none.
Single TrunkValveLength(const SiteDescription& site, const PipingTables& piping);

// Adds the seven component losses to `sum`, in order, rounding to Single after
// each, and writes them and TotalHead to the breakdown. Only the leak detector
// sees the total flow.
Single AddComponentLosses(const HydraulicSite& hydraulics, Single sum, Single totalGpm, Single flowPerNozzleGpm,
                          HeadLossBreakdown& breakdown);

// Total dynamic head in feet for `nozzles` nozzles running at `flowPerNozzleGpm`
// each: trunk friction at the total flow, one branch at the total divided by the
// number of branches, the rise from the tank, and the component losses.
Single SystemHead(const HydraulicSite& hydraulics, Single flowPerNozzleGpm, Integer nozzles,
                  HeadLossBreakdown& breakdown);

} // namespace vesk
