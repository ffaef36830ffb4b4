// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// A small station, piping tables and catalogues built in memory for the engine tests.
#pragma once

#include "support/failure_of.h"

#include "engine/catalogues.h"
#include "engine/piping_tables.h"
#include "engine/site_description.h"

#include <bit>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <utility>

namespace vesk::test {

// The bits of a Single: the system's arithmetic is compared exactly.
inline std::uint32_t bitsOf(Single value) {
    return std::bit_cast<std::uint32_t>(value);
}

inline RateLossCurve curveOf(std::initializer_list<std::pair<Single, Single>> points) {
    RateLossCurve curve;
    curve.Flow.clear();
    curve.Head.clear();
    for (const auto& [flowGpm, headFt] : points) {
        curve.Flow.push_back(flowGpm);
        curve.Head.push_back(headFt);
    }
    curve.PointCount = static_cast<Integer>(points.size());
    return curve;
}

inline ComponentRecord recordOf(std::string name, bool isGas, std::initializer_list<std::pair<Single, Single>> points,
                                std::string listCodes = "AIC", Single hoseLengthFt = 0) {
    ComponentRecord record;
    record.Name = std::move(name);
    record.ListCodes = std::move(listCodes);
    record.IsGas = isGas;
    record.Origin = "#Standard#";
    record.HoseLength = hoseLengthFt;
    record.Curve = curveOf(points);
    return record;
}

// Stands last in every fixture catalogue, where no lookup reaches it.
inline ComponentRecord spareRecord(Single hoseLengthFt = 0) {
    return recordOf("Spare", true, {{0, 0}, {300, 99}}, "AIC", hoseLengthFt);
}

inline ComponentChoice chosen(std::string name) {
    return ComponentChoice{1, std::move(name)};
}

inline PipingTables fixturePiping() {
    PipingTables piping;
    piping.PipeDiameter = {0.1342F, 0.1723F, 0.2557F, 0.3355F, 0.5054F};
    piping.PipeRoughness = {0.000005F, 0.00015F, 0.0005F};
    piping.FittingLength = {{
        {1.0F, 1.4F, 2.0F, 2.6F, 3.9F},   // 45 elbow
        {2.1F, 2.6F, 3.8F, 5.0F, 7.5F},   // 90 elbow
        {1.5F, 2.0F, 3.0F, 4.0F, 6.0F},   // thru tee
        {4.5F, 5.6F, 8.0F, 10.5F, 15.5F}, // side tee
    }};
    piping.ValveTable[0] = {"Ball Valve", {0.7F, 0.9F, 1.3F, 1.7F, 2.5F, 0}};
    piping.ValveTable[1] = {"Swing Check", {5.6F, 6.9F, 10.0F, 13.0F, 19.0F, 0}};
    return piping;
}

inline Catalogues fixtureCatalogues() {
    Catalogues catalogues;
    catalogues.of(ComponentKind::Dispenser).Records = {
        recordOf("D1", true, {{0, 0}, {10, 2.5F}, {20, 7.0F}, {30, 14.1F}}),
        recordOf("D1", false, {{0, 0}, {30, 20}}),
        spareRecord(),
    };
    catalogues.of(ComponentKind::DispenserOthers).Records = {
        recordOf("Filter", true, {{0, 0}, {20, 1.7F}, {40, 6.1F}}),
        spareRecord(),
    };
    catalogues.of(ComponentKind::Nozzle).Records = {
        recordOf("N1", true, {{0, 0}, {15, 4.2F}, {30, 17.3F}}, "AI"),
        spareRecord(),
    };
    catalogues.of(ComponentKind::LeakDetector).Records = {
        recordOf("L1", true, {{0, 0}, {50, 2.0F}, {100, 6.5F}, {200, 22.0F}}),
        spareRecord(),
    };
    catalogues.of(ComponentKind::Breakaway).Records = {
        recordOf("B1", true, {{0, 0}, {30, 3.3F}}),
        spareRecord(),
    };
    // Its own flag says Diesel: the search reads the flag of the hose at the same index.
    catalogues.of(ComponentKind::PumpOthers).Records = {
        recordOf("Check", false, {{0, 0}, {40, 1.1F}}),
        spareRecord(),
    };
    catalogues.of(ComponentKind::Hose).Records = {
        recordOf("3/4", true, {{0, 0}, {10, 0.4F}, {20, 1.5F}, {30, 3.2F}}, "AIC", 8),
        spareRecord(8),
    };
    // A pump record's fuel flag is its frequency: false is 60 Hz.
    catalogues.of(ComponentKind::Pump).Records = {
        recordOf("SP1", false, {{0, 160}, {30, 140}, {60, 110}, {90, 60}, {100, 0}}),
        recordOf("SP1", true, {{0, 120}, {50, 60}, {80, 0}}),
        spareRecord(),
    };
    return catalogues;
}

// An Advance-mode station in US units with every component of the fixture chosen.
inline SiteDescription fixtureSite() {
    SiteDescription site;
    site.TankDiameter = 96;
    site.BuryDepth = 3;
    site.Rise = 1.5F;
    site.NoOfBranches = 2;
    site.Dispenser = chosen("D1");
    site.BreakAway = chosen("B1");
    site.HoseSize = chosen("3/4");
    site.HoseLen = 12;
    site.Nozzle = chosen("N1");
    site.DispOthers = chosen("Filter");
    site.NoOfNozzle = "4";
    site.Mode = PipingMode::Advance;
    site.PipeSizeIndex = 3;
    site.PipeLen = 120;
    site.TrunkIndex = 2;
    site.TrunkLength = 150;
    site.TrunkFitting = {1, 3, 1, 2};
    site.BallValve = 1;
    site.SwingCheck = 1;
    site.BranchIndex = 1;
    site.BranchLength = 40;
    site.BranchFitting = {0, 2, 0, 1};
    site.Pump = ComponentChoice{0, "SP1"};
    site.Quantity = 1;
    site.Is50Hz = false;
    site.Leak = chosen("L1");
    site.PumpOthers = chosen("Check");
    site.IsGas = true;
    site.Market = 'A';
    site.IsMetric = false;
    return site;
}

// The fixture station with nothing chosen but the pump, and no pipe.
inline SiteDescription bareSite() {
    SiteDescription site = fixtureSite();
    for (ComponentChoice* choice : {&site.Dispenser, &site.BreakAway, &site.HoseSize, &site.Nozzle, &site.DispOthers,
                                    &site.Leak, &site.PumpOthers}) {
        *choice = chosen("None");
    }
    site.TrunkLength = 0;
    site.BranchLength = 0;
    site.TrunkFitting = {};
    site.BranchFitting = {};
    site.BallValve = 0;
    site.SwingCheck = 0;
    return site;
}

} // namespace vesk::test
