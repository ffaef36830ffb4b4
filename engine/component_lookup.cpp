// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// Head loss of the selected components, and head of the pump set, from their
// rate-loss curves.
#include "engine/component_lookup.h"

namespace vesk {

namespace {

// Where a lookup reads the fuel flag that a record must match.
enum class FuelFlagSource {
    OwnRecord,
    // Pump others: the flag of the hose record at the same index.
    HoseAtSameIndex,
};

// What sets the seven lookups apart.
struct LookupTraits {
    ResolvedLookup ResolvedComponents::*resolved;
    ComponentKind kind;
    ComponentChoice SiteDescription::*choice;
    FuelFlagSource fuelFlag;
    bool needsMarketLetter; // nozzles: ListCodes must hold the market letter
};

constexpr LookupTraits leakTraits{&ResolvedComponents::leak, ComponentKind::LeakDetector, &SiteDescription::Leak,
                                  FuelFlagSource::OwnRecord, false};
constexpr LookupTraits dispenserTraits{&ResolvedComponents::dispenser, ComponentKind::Dispenser,
                                       &SiteDescription::Dispenser, FuelFlagSource::OwnRecord, false};
constexpr LookupTraits dispOthersTraits{&ResolvedComponents::dispOthers, ComponentKind::DispenserOthers,
                                        &SiteDescription::DispOthers, FuelFlagSource::OwnRecord, false};
constexpr LookupTraits breakawayTraits{&ResolvedComponents::breakaway, ComponentKind::Breakaway,
                                       &SiteDescription::BreakAway, FuelFlagSource::OwnRecord, false};
constexpr LookupTraits nozzleTraits{&ResolvedComponents::nozzle, ComponentKind::Nozzle, &SiteDescription::Nozzle,
                                    FuelFlagSource::OwnRecord, true};
constexpr LookupTraits pumpOthersTraits{&ResolvedComponents::pumpOthers, ComponentKind::PumpOthers,
                                        &SiteDescription::PumpOthers, FuelFlagSource::HoseAtSameIndex, false};
constexpr LookupTraits hoseTraits{&ResolvedComponents::hose, ComponentKind::Hose, &SiteDescription::HoseSize,
                                  FuelFlagSource::OwnRecord, false};

constexpr LookupTraits lookupTraits[] = {leakTraits,   dispenserTraits,  dispOthersTraits, breakawayTraits,
                                         nozzleTraits, pumpOthersTraits, hoseTraits};

bool holdsLetter(const std::string& listCodes, char letter) {
    return listCodes.find(letter) != std::string::npos;
}

// The records of one kind that the linear search of a lookup can reach, in
// catalogue order: index 0 to Top - 1, so the last record is never searched.
ResolvedLookup resolveLookup(const LookupTraits& traits, const SiteDescription& site, const Catalogues& catalogues) {
    ResolvedLookup lookup;
    const ComponentChoice& choice = site.*traits.choice;
    const Catalogue& catalogue = catalogues.of(traits.kind);
    if (choice.Index == -1) {
        return lookup;
    }
    // Only the first record is looked at: a one-point table there makes the
    // whole kind lose nothing, whichever component is selected.
    if (!catalogue.Records.empty() && catalogue.Records.front().Curve.PointCount == 1) {
        return lookup;
    }
    lookup.givesNothing = false;
    const auto& hoses = catalogues.of(ComponentKind::Hose).Records;
    const long searched = static_cast<long>(catalogue.Top()); // indices 0 to Top - 1
    for (long i = 0; i < searched; ++i) {
        const ComponentRecord& record = catalogue.Records[static_cast<std::size_t>(i)];
        if (traits.needsMarketLetter && !holdsLetter(record.ListCodes, site.Market)) {
            continue;
        }
        bool recordIsGas = record.IsGas;
        if (traits.fuelFlag == FuelFlagSource::HoseAtSameIndex) {
            // Both sides of the test are read at every index, so the search
            // stops here with an out-of-range failure if no earlier candidate
            // holds the flow.
            if (i >= static_cast<long>(hoses.size())) {
                lookup.failsAfterCandidates = true;
                break;
            }
            recordIsGas = hoses[static_cast<std::size_t>(i)].IsGas;
        }
        if (record.Name == choice.Name && recordIsGas == site.IsGas) {
            lookup.candidates.push_back(&record);
        }
    }
    return lookup;
}

// The hose length entered, in feet: metric lengths are converted and rounded
// to one decimal.
Single enteredHoseLengthFt(const SiteDescription& site) {
    Single lengthFt = site.HoseLen;
    if (site.IsMetric) {
        lengthFt = toSingle(roundHalfEven(lengthFt / units::metresPerFoot, 1));
    }
    return lengthFt;
}

ResolvedPump resolvePump(const SiteDescription& site, const Catalogues& catalogues) {
    ResolvedPump pump;
    if (site.Pump.Index == -1) {
        return pump;
    }
    pump.givesNothing = false;
    pump.quantity = static_cast<Single>(site.Quantity);
    const Catalogue& catalogue = catalogues.of(ComponentKind::Pump);
    const long searched = static_cast<long>(catalogue.Top()); // the last pump is never searched
    for (long i = 0; i < searched; ++i) {
        const ComponentRecord& record = catalogue.Records[static_cast<std::size_t>(i)];
        // A pump record's fuel flag holds its frequency.
        if (record.Name == site.Pump.Name && record.IsGas == site.Is50Hz) {
            pump.candidates.push_back(&record);
        }
    }
    return pump;
}

struct Interpolated {
    Single headFt = 0;
    const ComponentRecord* record = nullptr; // nullptr: no record holds the flow
};

// The first bracket of the candidates that holds `flowGpm`, interpolated.
Interpolated interpolate(const ResolvedLookup& lookup, Single flowGpm) {
    if (flowGpm <= 0 || lookup.givesNothing) {
        return {};
    }
    for (const ComponentRecord* record : lookup.candidates) {
        const RateLossCurve& curve = record->Curve;
        for (long j = 0; j <= static_cast<long>(curve.PointCount) - 2; ++j) {
            const Single flowLo = at(curve.Flow, j);
            const Single flowHi = at(curve.Flow, j + 1);
            if (flowGpm < flowLo || flowGpm > flowHi) {
                continue;
            }
            const Single fraction = toSingle(divide(Double{flowGpm} - flowLo, Double{flowHi} - flowLo));
            const Single rise = toSingle(Double{at(curve.Head, j + 1)} - at(curve.Head, j));
            return {toSingle(Double{rise} * fraction + at(curve.Head, j)), record};
        }
    }
    if (lookup.failsAfterCandidates) {
        fail(failure::subscript);
    }
    return {};
}

} // namespace

ResolvedComponents ResolveComponents(const SiteDescription& site, const Catalogues& catalogues) {
    ResolvedComponents components;
    for (const LookupTraits& traits : lookupTraits) {
        components.*traits.resolved = resolveLookup(traits, site, catalogues);
    }
    components.hoseLengthFt = enteredHoseLengthFt(site);
    components.pump = resolvePump(site, catalogues);
    return components;
}

Single LookupLoss(const ResolvedLookup& lookup, Single flowGpm) {
    return interpolate(lookup, flowGpm).headFt;
}

Single HoseLoss(const ResolvedLookup& hose, Single hoseLengthFt, Single flowGpm) {
    const Interpolated found = interpolate(hose, flowGpm);
    if (found.record == nullptr) {
        return 0;
    }
    // The table holds the loss of a hose of HoseLength feet.
    return toSingle(divide(Double{hoseLengthFt} * found.headFt, found.record->HoseLength));
}

Single LeakLoss(const SiteDescription& site, const Catalogues& catalogues, Single flowGpm) {
    return LookupLoss(resolveLookup(leakTraits, site, catalogues), flowGpm);
}

Single DispenserLoss(const SiteDescription& site, const Catalogues& catalogues, Single flowGpm) {
    return LookupLoss(resolveLookup(dispenserTraits, site, catalogues), flowGpm);
}

Single DispOthersLoss(const SiteDescription& site, const Catalogues& catalogues, Single flowGpm) {
    return LookupLoss(resolveLookup(dispOthersTraits, site, catalogues), flowGpm);
}

Single BreakawayLoss(const SiteDescription& site, const Catalogues& catalogues, Single flowGpm) {
    return LookupLoss(resolveLookup(breakawayTraits, site, catalogues), flowGpm);
}

Single NozzleLoss(const SiteDescription& site, const Catalogues& catalogues, Single flowGpm) {
    return LookupLoss(resolveLookup(nozzleTraits, site, catalogues), flowGpm);
}

Single PumpOthersLoss(const SiteDescription& site, const Catalogues& catalogues, Single flowGpm) {
    return LookupLoss(resolveLookup(pumpOthersTraits, site, catalogues), flowGpm);
}

Single HoseLoss(const SiteDescription& site, const Catalogues& catalogues, Single flowGpm) {
    const Single hoseLengthFt = enteredHoseLengthFt(site);
    return HoseLoss(resolveLookup(hoseTraits, site, catalogues), hoseLengthFt, flowGpm);
}

Single PumpHead(const ResolvedPump& pump, Single totalFlowGpm) {
    if (totalFlowGpm <= 0 || pump.givesNothing) {
        return 0;
    }
    // Quantity identical pumps in parallel: the flow axis is scaled, the head is not.
    const Single q = pump.quantity;
    for (const ComponentRecord* record : pump.candidates) {
        const RateLossCurve& curve = record->Curve;
        for (long j = 0; j <= static_cast<long>(curve.PointCount) - 2; ++j) {
            const Double flowLo = Double{q} * at(curve.Flow, j);
            const Double flowHi = Double{q} * at(curve.Flow, j + 1);
            // The bracket test compares the scaled flows as Singles.
            if (toSingle(flowLo) > totalFlowGpm || toSingle(flowHi) < totalFlowGpm) {
                continue;
            }
            const Single fraction = toSingle(divide(Double{totalFlowGpm} - flowLo, flowHi - flowLo));
            const Single rise = toSingle(Double{at(curve.Head, j + 1)} - at(curve.Head, j));
            return toSingle(Double{rise} * fraction + at(curve.Head, j));
        }
    }
    return 0;
}

Single PumpHead(const SiteDescription& site, const Catalogues& catalogues, Single totalFlowGpm) {
    return PumpHead(resolvePump(site, catalogues), totalFlowGpm);
}

} // namespace vesk
