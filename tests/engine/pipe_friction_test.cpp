// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// Tests of the friction loss of a pipe.
#include "hydraulic_fixture.h"

#include "engine/pipe_friction.h"

#include <cmath>
#include <gtest/gtest.h>

namespace vesk {
namespace {

using test::bitsOf;
using test::failureOf;

struct FrictionCase {
    const char* name;
    Single diameterFt;
    Single lengthFt;
    Single flowGpm;
    Single roughnessFt;
    std::uint32_t expectedBits;
};

// Expected values computed apart from this code, rounding to 32 bits at each
// point where the system keeps a Single.
const FrictionCase frictionCases[] = {
    {"LaminarSmallFlow", 0.1723F, 100, 0.5F, 0.00015F, 0x3a4da586U},             // 0.000784479431, Re 1680.14
    {"TurbulentTwoInch", 0.1667F, 100, 10, 0.00015F, 0x3e79dc30U},               // 0.244004011, Re 34731.7
    {"ReynoldsExactly4000", 0.1723F, 100, 1.19037485F, 0.00015F, 0x3af4cbe9U},   // 0.00186764926, f 0.016
    {"ReynoldsJustAbove4000", 0.1723F, 100, 1.19037497F, 0.00015F, 0x3b9bfd93U}, // 0.00476045301, f 0.0408
    {"ZeroRoughness", 0.1667F, 50, 20, 0, 0x3ec16896U},                          // 0.377751052
    {"LargeFlowFourInch", 0.3355F, 1000, 500, 0.00015F, 0x42f8f1b7U},            // 124.472099
    {"VeryLargeFlow", 0.3355F, 1000, 5000, 0.0005F, 0x4679a9d1U},                // 15978.4541, Re 8.6E+06
    {"RoughSmallPipe", 0.1342F, 37.5F, 3.3F, 0.0005F, 0x3d23f4cbU},              // 0.0400283746
    {"ZeroLength", 0.1667F, 0, 10, 0.00015F, 0x00000000U},                       // 0
    {"OddValues", 0.2557F, 123.4F, 57.3F, 0.000005F, 0x3f4bd486U},               // 0.7962116
};

class PipeFrictionGolden : public ::testing::TestWithParam<FrictionCase> {};

TEST_P(PipeFrictionGolden, MatchesTheSingleArithmeticBitForBit) {
    const FrictionCase& c = GetParam();
    const Single headFt = PipeFriction(c.diameterFt, c.lengthFt, c.flowGpm, c.roughnessFt);
    EXPECT_EQ(bitsOf(headFt), c.expectedBits) << singleText(headFt);
}

INSTANTIATE_TEST_SUITE_P(PipeFriction, PipeFrictionGolden, ::testing::ValuesIn(frictionCases),
                         [](const ::testing::TestParamInfo<FrictionCase>& row) { return std::string(row.param.name); });

TEST(PipeFriction, ZeroOrNegativeFlowGivesZero) {
    for (const Single flowGpm : {0.0F, -0.0F, -1.0F, -1000.0F}) {
        EXPECT_EQ(bitsOf(PipeFriction(0.1667F, 100, flowGpm, 0.00015F)), 0U) << flowGpm;
    }
}

TEST(PipeFriction, ZeroOrNegativeFlowComputesNothingEvenForAZeroDiameter) {
    EXPECT_EQ(PipeFriction(0, 100, 0, 0.00015F), 0);
}

TEST(PipeFriction, ZeroLengthGivesZero) {
    EXPECT_EQ(bitsOf(PipeFriction(0.1667F, 0, 10, 0.00015F)), 0U);
}

TEST(PipeFriction, ZeroDiameterFailsWithDivisionByZero) {
    EXPECT_EQ(failureOf([] { PipeFriction(0, 100, 10, 0.00015F); }), "Division by zero");
}

TEST(PipeFriction, ZeroRoughnessIsValidAndBelowTheRoughPipe) {
    const Single smooth = PipeFriction(0.1667F, 50, 20, 0);
    const Single rough = PipeFriction(0.1667F, 50, 20, 0.00015F);
    EXPECT_GT(smooth, 0);
    EXPECT_LT(smooth, rough);
}

// A 2-inch pipe at 10 GPM: V about 1.02 ft/s, Re about 34,700, well above the
// laminar branch; the loss agrees with the explicit Swamee-Jain factor.
TEST(PipeFriction, TwoInchPipeAtTenGpmAgreesWithTextbookTurbulentFriction) {
    const double diameterFt = 0.1667;
    const double velocityFtPerS = 10 / (diameterFt * diameterFt * 352.48641128540038);
    const double reynolds = velocityFtPerS * diameterFt / 4.9E-06;
    EXPECT_NEAR(velocityFtPerS, 1.02, 0.01);
    EXPECT_NEAR(reynolds, 34700, 100);
    const double swameeJain =
        0.25 / std::pow(std::log10(0.00015 / (3.7 * diameterFt) + 5.74 / std::pow(reynolds, 0.9)), 2);
    const double expectedFt = 100 / diameterFt * swameeJain * velocityFtPerS * velocityFtPerS / 64.34;
    EXPECT_NEAR(PipeFriction(0.1667F, 100, 10, 0.00015F), expectedFt, expectedFt * 0.02);
}

TEST(PipeFriction, LaminarLossIsSixtyFourOverReynolds) {
    // Re about 1680: hf = (L/D) x 64/Re x V^2/64.34.
    const double diameterFt = 0.1723;
    const double velocityFtPerS = 0.5 / (diameterFt * diameterFt * 352.48641128540038);
    const double reynolds = velocityFtPerS * diameterFt / 4.9E-06;
    const double expectedFt = 100 / diameterFt * (64 / reynolds) * velocityFtPerS * velocityFtPerS / 64.34;
    EXPECT_NEAR(PipeFriction(0.1723F, 100, 0.5F, 0.00015F), expectedFt, expectedFt * 1E-5);
}

// The flow 1.19037485 GPM gives a Reynolds number of exactly 4000 as a Single in
// a pipe of 0.1723 ft; the next Single flow gives 4000.00073.
TEST(PipeFriction, ReynoldsOfExactly4000TakesTheLaminarFactor) {
    const Single flowGpm = 1.19037485F;
    const Single velocityFtPerS = toSingle(flowGpm / (Double{0.1723F} * 0.1723F * 352.48641128540038));
    const Single reynolds = toSingle(Double{velocityFtPerS} * 0.1723F / Viscosity);
    ASSERT_EQ(reynolds, 4000);
    const Single laminar =
        toSingle(Double{100.0F} / 0.1723F * 0.016F * (Double{velocityFtPerS} * velocityFtPerS / 64.34));
    EXPECT_EQ(bitsOf(PipeFriction(0.1723F, 100, flowGpm, 0.00015F)), bitsOf(laminar));
}

TEST(PipeFriction, FactorJumpsJustAboveReynolds4000) {
    const Single atLimit = PipeFriction(0.1723F, 100, 1.19037485F, 0.00015F);
    const Single aboveLimit = PipeFriction(0.1723F, 100, std::nextafter(1.19037485F, 2.0F), 0.00015F);
    // The flows differ by one unit in the last place; the losses by a factor of 2.5.
    EXPECT_GT(aboveLimit, 2.5F * atLimit);
}

TEST(PipeFriction, LossGrowsWithFlowAndLength) {
    EXPECT_LT(PipeFriction(0.2557F, 100, 20, 0.00015F), PipeFriction(0.2557F, 100, 40, 0.00015F));
    EXPECT_NEAR(PipeFriction(0.2557F, 200, 40, 0.00015F), 2 * PipeFriction(0.2557F, 100, 40, 0.00015F), 1E-5);
}

} // namespace
} // namespace vesk
