// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The copy of the panels that Back To Baseline puts back.
#pragma once

#include "engine/numeric.h"

#include <array>
#include <string>

namespace vesk {

// Lists are kept by their position, text fields as text, lengths in feet (the
// tank in inches) whatever the units on the screen.
struct SiteSnapshot {
    Byte Dispenser = 0;
    Byte BreakAway = 0;
    Byte HoseSize = 0;
    std::string HoseLen;
    Byte Nozzle = 0;
    Byte DispOthers = 0;
    Byte Piping = 0;
    Byte Branch = 0;
    std::string BranchLength;
    std::array<std::string, 4> BranchFitting;
    Byte Trunk = 0;
    std::string TrunkLength;
    std::array<std::string, 4> TrunkFitting;
    Byte ValveSlot = 0; // set to 0, never read
    Byte IsBasic = 0;   // set to 1 when optBasic is on; never cleared
    Byte IsAdvance = 0; // set to 1 when optBasic is off; never cleared
    Byte Pump = 0;
    Byte Quantity = 0;
    Byte Leak = 0;
    Byte PumpOthersSlot = 0; // set to 0, never read
    std::string TankDiameter;
    std::string BuryDepth;
    std::string Rise;
    Byte NoOfBranches = 0;
    Byte PipeSize = 0;
    std::string PipeLen;
    bool Data = false;
    bool Is50Hz = false;
    Byte ComponentList = 0;
};

} // namespace vesk
