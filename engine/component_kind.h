// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The eight catalogued kinds of component, by their codes.
#pragma once

namespace vesk {

enum class ComponentKind {
    Dispenser = 1,
    DispenserOthers = 2,
    Nozzle = 3,
    LeakDetector = 4,
    Breakaway = 5,
    Pump = 6,
    PumpOthers = 7,
    Hose = 8,
};

inline constexpr int componentKindCount = 8;

} // namespace vesk
