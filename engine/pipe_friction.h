// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// Friction loss of a pipe: Darcy-Weisbach with the Colebrook friction factor.
#pragma once

#include "engine/numeric.h"

namespace vesk {

// Kinematic viscosity of the fuel, square feet per second, the same for gas
// and diesel.
inline constexpr Single Viscosity = 4.9E-06F;

// Head loss in feet of a pipe of `diameterFt` inside diameter and `lengthFt`
// equivalent length (pipe and fittings together), carrying `flowGpm`, with
// absolute roughness `roughnessFt`.
// - A flow of 0 or less gives 0, and nothing else is computed.
// - Up to and including a Reynolds number of 4000 the laminar factor 64 / Re
//   holds; above it the Colebrook equation, solved by repeated substitution from
//   0.001 until the relative change is at most 0.0001. The factor jumps at 4000.
// - A diameter of 0 fails with "Division by zero".
// Every intermediate value that the rules keep as Single is rounded to 32 bits.
Single PipeFriction(Single diameterFt, Single lengthFt, Single flowGpm, Single roughnessFt);

} // namespace vesk
