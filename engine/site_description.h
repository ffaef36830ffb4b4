// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The one record of everything the hydraulic engine reads about a station.
#pragma once

#include "engine/numeric.h"
#include "engine/units.h"

#include <array>
#include <string>

namespace vesk {

// One selection from a component list. Records are found by Name; Index only
// tells that nothing is selected (-1).
struct ComponentChoice {
    Long Index = -1;
    std::string Name;
};

enum class PipingMode { Basic, Advance };

// The inputs of a station in the units shown on the screen: lengths in feet or
// metres, the tank diameter in inches or centimetres, as IsMetric says. The
// engine converts to feet and GPM each time it evaluates a head loss.
struct SiteDescription {
    // Site Layout
    Single TankDiameter = 96;
    Single BuryDepth = 3;
    Single Rise = 0;
    Byte NoOfBranches = 1;

    // Dispensing Area
    ComponentChoice Dispenser;
    ComponentChoice BreakAway;
    ComponentChoice HoseSize;
    Single HoseLen = 0;
    ComponentChoice Nozzle;
    ComponentChoice DispOthers;
    // The text of the number of nozzles: the sweep reads it as a Double before
    // each pass, the details stepping as an Integer.
    std::string NoOfNozzle = "8";

    // Piping Area
    PipingMode Mode = PipingMode::Advance;
    Integer PipingTag = 0;  // never assigned by the system: always 0
    Long PipeSizeIndex = 0; // Basic
    Single PipeLen = 0;     // Basic; enters the formulas as feet in both unit systems
    Long TrunkIndex = 0;
    Single TrunkLength = 0;
    std::array<Integer, 4> TrunkFitting{}; // 45 elbow, 90 elbow, thru tee, side tee
    Integer BallValve = 0;                 // 0 or 1
    Integer SwingCheck = 0;                // 0 or 1
    Long BranchIndex = 0;
    Single BranchLength = 0;
    std::array<Integer, 4> BranchFitting{};

    // Pump Area
    ComponentChoice Pump;
    Byte Quantity = 1;
    bool Is50Hz = false;
    ComponentChoice Leak;
    ComponentChoice PumpOthers;

    // System Settings
    bool IsGas = true;
    char Market = 'A'; // 'A' American, 'I' International, 'C' Commercial
    bool IsMetric = false;
};

} // namespace vesk
