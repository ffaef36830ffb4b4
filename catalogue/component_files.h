// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The files of the eight catalogued kinds and what sets each apart.
#pragma once

#include "engine/component_kind.h"

#include <array>
#include <string_view>

namespace vesk {

// The literal differences between the eight classes that own the files.
struct ComponentKindTraits {
    ComponentKind kind;
    std::string_view className;
    std::string_view fileAsRead;    // under \Components
    std::string_view fileAsWritten; // the same file, under the writer's spelling
    int missingMessage;             // the file does not exist
    int damagedMessage;             // the file cannot be read
    bool hasHoseLength;
};

inline constexpr std::array<ComponentKindTraits, componentKindCount> componentKinds{{
    {ComponentKind::Dispenser, "clsDispenserData", "DISP.DAT", "DISP.DAT", 22, 14, false},
    {ComponentKind::DispenserOthers, "clsDispOthersData", "DISPOTHERS.DAT", "DISPOTHERS.DAT", 23, 15, false},
    {ComponentKind::Nozzle, "clsNozzleData", "NOZZLE.DAT", "NOZZLE.DAT", 26, 18, false},
    {ComponentKind::LeakDetector, "clsLeakDetectorData", "MLD.DAT", "MLD.DAT", 25, 17, false},
    {ComponentKind::Breakaway, "clsBreakawayData", "BRK.DAT", "BRK.DAT", 21, 13, false},
    {ComponentKind::Pump, "clsPumpData", "PUMP.DAT", "Pump.DAT", 28, 19, false},
    {ComponentKind::PumpOthers, "clsPumpOthersData", "PUMPOTHERS.DAT", "PumpOthers.DAT", 29, 20, false},
    {ComponentKind::Hose, "clsHoseData", "HOSES.DAT", "Hoses.DAT", 24, 16, true},
}};

constexpr const ComponentKindTraits& traitsOf(ComponentKind kind) {
    return componentKinds[static_cast<std::size_t>(static_cast<int>(kind) - 1)];
}

// The order in which start-up reads the files, right behind the piping file.
inline constexpr std::array<ComponentKind, componentKindCount> startupReadOrder{
    ComponentKind::Dispenser, ComponentKind::DispenserOthers, ComponentKind::Nozzle,     ComponentKind::Hose,
    ComponentKind::Breakaway, ComponentKind::LeakDetector,    ComponentKind::PumpOthers, ComponentKind::Pump,
};

} // namespace vesk
