// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The program's own conversion constants between US and metric units.
#pragma once

#include "engine/numeric.h"

namespace vesk::units {

// None of these is to be replaced by a more exact value.
inline constexpr Double metresPerFoot = 0.3048;
inline constexpr Double centimetresPerInch = 2.54;
inline constexpr Single inchesPerFoot = 12;
inline constexpr Double lpmPerGpm = 3.78564; // the program's own factor, not 3.785411784

} // namespace vesk::units
