// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The round axis maximum of a chart.
#pragma once

#include "engine/numeric.h"

namespace vesk {

// The round axis maximum strictly above `value`: 10 for anything that rounds
// to one digit, otherwise the next multiple of the leading decade raised along
// the ladder 15, 25, 50, 100, 250, 500, 1000, 2500, 5000, and the multiple itself
// above 5000. All arithmetic in 16-bit integers: a value of 32767.5 or more, or
// from 30000 up, fails with "Overflow".
Integer ChartScale(Single value);

} // namespace vesk
