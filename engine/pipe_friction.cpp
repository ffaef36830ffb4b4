// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// Friction loss of a pipe: Darcy-Weisbach with the Colebrook friction factor.
#include "engine/pipe_friction.h"

#include "engine/cycle_guard.h"

#include <cmath>

namespace vesk {

namespace {

// GPM through square feet of diameter squared to feet per second.
constexpr Double gpmPerSquareFootToFeetPerSecond = 352.48641128540038;
// Up to and including this Reynolds number the flow counts as laminar.
constexpr Double laminarReynoldsLimit = 4000;
constexpr Double laminarFactor = 64;
// The Colebrook substitution starts from this value as a Single.
constexpr Single colebrookStart = 0.001F;
// The substitution stops once the relative change is at most this Single.
constexpr Single colebrookTolerance = 0.0001F;
constexpr Double twiceGravityFtPerS2 = 64.34;

// The natural logarithm, which the platform refuses for 0 and below.
Double naturalLog(Double x) {
    if (!(x > 0)) {
        fail(failure::invalidCall);
    }
    return std::log(x);
}

// Darcy friction factor above the laminar limit: the Colebrook equation solved
// by repeated substitution from 0.001. The first pass always runs, and there is
// no limit on the number of passes; a substitution that comes back to a value
// it has had before would repeat forever, and ends with "Overflow".
Single colebrookFactor(Single diameterFt, Single roughnessFt, Single reynolds) {
    Single previous = colebrookStart;
    CycleGuard guard;
    for (;;) {
        const Double x = roughnessFt / (3.7 * diameterFt) + 2.51 / (reynolds * std::sqrt(Double{previous}));
        // The decimal logarithm as the natural one divided by ln(10), carried out so.
        const Double l = -2 * naturalLog(x) / std::log(10.0);
        const Single factor = toSingle(divide(1, l * l));
        const Single relativeChange = toSingle(std::fabs(divide(Double{factor} - previous, factor)));
        if (relativeChange <= colebrookTolerance) {
            return factor;
        }
        guard.observe(factor);
        previous = factor;
    }
}

} // namespace

Single PipeFriction(Single diameterFt, Single lengthFt, Single flowGpm, Single roughnessFt) {
    if (flowGpm <= 0) {
        return 0;
    }
    const Single velocityFtPerS =
        toSingle(divide(flowGpm, Double{diameterFt} * diameterFt * gpmPerSquareFootToFeetPerSecond));
    const Single reynolds = toSingle(Double{velocityFtPerS} * diameterFt / Viscosity);
    const Single factor = reynolds <= laminarReynoldsLimit ? toSingle(divide(laminarFactor, reynolds))
                                                           : colebrookFactor(diameterFt, roughnessFt, reynolds);
    return toSingle(divide(lengthFt, diameterFt) * factor *
                    (Double{velocityFtPerS} * velocityFtPerS / twiceGravityFtPerS2));
}

} // namespace vesk
