// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// Numbers written with a format pattern of fixed decimals, as the dialogs and
// reports show them.
#pragma once

#include "engine/numeric.h"

#include <string>

namespace vesk {

// A number with at least one digit before the point and from `minDecimals` to
// `maxDecimals` decimals: "##0.0" is (1, 1), "##0.0#" is (1, 2). The number is
// first written with 15 significant digits, and that decimal text is rounded
// half away from zero, so 0.25 gives "0.3" and the Single 0.256 gives "0.26".
// Optional decimals that come out 0 are dropped ("1.2", not "1.20").
std::string FormatFixed(Double value, int minDecimals, int maxDecimals);

} // namespace vesk
