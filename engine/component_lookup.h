// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// Head loss of the selected components, and head of the pump set, from their
// rate-loss curves.
#pragma once

#include "engine/catalogues.h"
#include "engine/site_description.h"

#include <vector>

namespace vesk {

// The records that a lookup may reach for one selection, resolved once per sweep
// so that the stepping does no string compare: the records of the catalogue
// from index 0 to Top - 1 (the last record is never searched) whose Name equals
// the selection's and whose fuel (or frequency) flag matches, in catalogue
// order. Looking up in it gives exactly what the linear search of the
// catalogue gives.
struct ResolvedLookup {
    bool givesNothing = true; // flow ignored: nothing selected, or a one-point first record
    std::vector<const ComponentRecord*> candidates;
    // The pump-others search reads the fuel flag of the hose at the same index:
    // when it would run past the end of the hose catalogue before a bracket
    // holds, it fails with "Subscript out of range".
    bool failsAfterCandidates = false;
};

struct ResolvedPump {
    bool givesNothing = true; // no pump selected
    Single quantity = 1;
    std::vector<const ComponentRecord*> candidates;
};

// The seven lookups and the pump of one site, resolved.
struct ResolvedComponents {
    ResolvedLookup leak;
    ResolvedLookup dispenser;
    ResolvedLookup dispOthers;
    ResolvedLookup breakaway;
    ResolvedLookup nozzle;
    ResolvedLookup pumpOthers;
    ResolvedLookup hose;
    Single hoseLengthFt = 0; // the entered hose length in feet
    ResolvedPump pump;
};

ResolvedComponents ResolveComponents(const SiteDescription& site, const Catalogues& catalogues);

// Linear interpolation in the first record that brackets `flowGpm`; 0 when the
// flow is 0 or less, when nothing is selected, and when no record holds the
// flow (there is no extrapolation). Two neighbouring rows of the same flow,
// equal to `flowGpm`, fail with "Overflow" (0 by 0).
Single LookupLoss(const ResolvedLookup& lookup, Single flowGpm);

// Loss in feet of the hose selection at `flowGpm`: the interpolated loss R of
// the record that holds the flow, scaled from the record's HoseLength to the
// hose length entered, `hoseLengthFt` x R / HoseLength. 0 when no record holds
// the flow; a HoseLength of 0 at that record fails as a division.
Single HoseLoss(const ResolvedLookup& hose, Single hoseLengthFt, Single flowGpm);

// The seven lookups, each on its own: loss in feet at `flowGpm` (the total flow
// for LeakLoss, the flow of one nozzle for the others).
Single LeakLoss(const SiteDescription& site, const Catalogues& catalogues, Single flowGpm);
Single DispenserLoss(const SiteDescription& site, const Catalogues& catalogues, Single flowGpm);
Single DispOthersLoss(const SiteDescription& site, const Catalogues& catalogues, Single flowGpm);
Single BreakawayLoss(const SiteDescription& site, const Catalogues& catalogues, Single flowGpm);
Single NozzleLoss(const SiteDescription& site, const Catalogues& catalogues, Single flowGpm);
Single PumpOthersLoss(const SiteDescription& site, const Catalogues& catalogues, Single flowGpm);
Single HoseLoss(const SiteDescription& site, const Catalogues& catalogues, Single flowGpm);

// Head in feet that the pump set delivers at `totalFlowGpm`, the flow of all
// nozzles together: Quantity identical pumps in parallel give the head of one
// at Quantity times its flow. 0 for no pump, for a flow of 0 or less, and for a
// flow outside the curve.
Single PumpHead(const ResolvedPump& pump, Single totalFlowGpm);
Single PumpHead(const SiteDescription& site, const Catalogues& catalogues, Single totalFlowGpm);

} // namespace vesk
