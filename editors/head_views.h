// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The head column of an editor's table shown as head of fuel or as pressure, and the rewrites between them.
#pragma once

#include "engine/numeric.h"

#include <array>
#include <functional>
#include <string>
#include <vector>

namespace vesk {

namespace head_view {
inline constexpr Single gasSpecificGravity = 0.72F;
inline constexpr Single dieselSpecificGravity = 0.87F;
inline constexpr Double feetOfWaterPerPsi = 2.31;
inline constexpr Double metresPerFoot = 0.3048;
inline constexpr Double psiPerMetreOfWater = 1.42;
} // namespace head_view

using GridRows = std::vector<std::array<std::string, 2>>;

// How the head after a factor becomes text: the head options write the
// Double, the fuel options first hold it as a Single.
enum class RewriteText { AsDouble, AsSingle };

// Rewrites every row of the table: the flow read as a Single, written as text
// and rounded to 1 decimal; the head read as a Single, `factor` applied, then
// written as text and rounded to 1 decimal (half to even, on the number the
// text denotes). The rows are counted with an 8-bit index: a table beyond 256
// rows fails with "Overflow"; a cell that is no number fails with "Type
// mismatch".
void RewriteGrid(GridRows& rows, const std::function<Double(Single)>& factor, RewriteText text);

// The factor of a click on the Feet option: a pressure back to head of fuel,
// in feet or, in metric units, in metres.
Double HeadFromPressure(Single psi, bool metric, bool diesel);
// The factor of a click on the PSI option: head of fuel to a pressure.
Double PressureFromHead(Single head, bool metric, bool diesel);
// The factor of a fuel click while PSI is shown: the pressure of the former
// fuel turned into that of the new one, or, with no former fuel, the gravity of
// the new one alone, as if the pressure had been one of water.
Double PressureForFuel(Single psi, bool toDiesel, bool fromOtherFuel);

} // namespace vesk
