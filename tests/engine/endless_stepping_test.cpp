// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// Iterations that would repeat forever end with "Overflow" instead.
#include "hydraulic_fixture.h"

#include "engine/cycle_guard.h"
#include "engine/flow_sweep.h"
#include "engine/pipe_friction.h"

#include <cmath>
#include <gtest/gtest.h>

namespace vesk {
namespace {

using test::failureOf;

TEST(NextTrialFlow, AddsTheDoubleTenthAndKeepsASingle) {
    EXPECT_EQ(NextTrialFlow(0), 0.1F);
    EXPECT_EQ(NextTrialFlow(0.1F), static_cast<Single>(Double{0.1F} + 0.1));
    EXPECT_EQ(NextTrialFlow(1048576.0F), 1048576.125F) << "2^20: a tenth still moves the Single up";
}

TEST(NextTrialFlow, EndsWithOverflowWhereASingleCannotHoldAnotherTenth) {
    // From 2^21 on, 0.1 is less than half the gap to the next Single.
    EXPECT_EQ(failureOf([] { NextTrialFlow(2097152.0F); }), "Overflow");
    EXPECT_EQ(failureOf([] { NextTrialFlow(1.0E9F); }), "Overflow");
}

TEST(CycleGuard, EndsAnIterationThatComesBackToAValue) {
    CycleGuard guard;
    const std::string failure = failureOf([&guard] {
        // A two-value cycle after a lead-in of distinct values.
        for (int pass = 0; pass < 100; ++pass) {
            guard.observe(pass < 10 ? static_cast<Single>(pass) : static_cast<Single>(100 + pass % 2));
        }
    });
    EXPECT_EQ(failure, "Overflow");
}

TEST(CycleGuard, CatchesALongCycleToo) {
    CycleGuard guard;
    int passes = 0;
    const std::string failure = failureOf([&] {
        for (passes = 0; passes < 100000; ++passes) {
            guard.observe(static_cast<Single>(passes % 997));
        }
    });
    EXPECT_EQ(failure, "Overflow");
    EXPECT_LT(passes, 4 * 997) << "found within a few turns of the cycle";
}

TEST(CycleGuard, LetsAnIterationOfNewValuesRun) {
    CycleGuard guard;
    EXPECT_EQ(failureOf([&guard] {
                  for (int pass = 0; pass < 100000; ++pass) {
                      guard.observe(static_cast<Single>(pass));
                  }
              }),
              "");
}

TEST(PipeFriction, ANegativeRoughnessThatDrivesTheLogarithmBelowZeroIsAnInvalidCall) {
    // The roughness comes from the piping file as it stands.
    EXPECT_EQ(failureOf([] { PipeFriction(0.1667F, 100, 50, -1.0F); }), "Invalid procedure call or argument");
}

TEST(PipeFriction, ConvergesForEveryRoughnessRatioTried) {
    // The substitution has always converged; the guard must not end a good one.
    for (Single roughnessFt : {0.0F, 1e-6F, 1e-4F, 1e-2F, 1.0F, 100.0F}) {
        for (Single flowGpm : {1.2F, 10.0F, 1000.0F, 1.0E6F}) {
            const std::string failure = failureOf([&] { PipeFriction(0.1667F, 100, flowGpm, roughnessFt); });
            EXPECT_EQ(failure, "") << roughnessFt << " " << flowGpm;
        }
    }
}

} // namespace
} // namespace vesk
