// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The tables of the buried pipe, in feet, as the piping data file fills them.
#pragma once

#include "engine/numeric.h"

#include <array>
#include <string>

namespace vesk {

inline constexpr int pipeSizeCount = 5;
inline constexpr int pipeMaterialCount = 3;
inline constexpr int fittingTypeCount = 4; // 45 elbow, 90 elbow, thru tee, side tee
inline constexpr int valveCount = 2;       // ball valve, then swing check

struct ValveRecord {
    std::string Name;
    // Equivalent length by pipe size, feet; the file fills the first five.
    std::array<Single, pipeSizeCount + 1> Length{};
};

struct PipingTables {
    std::array<Single, pipeSizeCount> PipeDiameter{};      // inside diameter, feet
    std::array<Single, pipeMaterialCount> PipeRoughness{}; // absolute roughness, feet
    // Equivalent length in feet of fitting type [row] at pipe size [column].
    std::array<std::array<Single, pipeSizeCount>, fittingTypeCount> FittingLength{};
    std::array<ValveRecord, valveCount> ValveTable{};
};

} // namespace vesk
