// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The three choices that steer the whole program.
#pragma once

#include "engine/numeric.h"

namespace vesk {

// clsConfigureData: which component list, which units, which fuel. A new
// instance holds 0, false, false: American, Metric, Diesel.
struct clsConfigureData {
    Byte ComponentList = 0; // 0 American, 1 International, 2 Commercial
    bool Units = false;     // true US, false Metric
    bool Data = false;      // true Gas, false Diesel
};

} // namespace vesk
