// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// Tests of the total dynamic head of the system and its breakdown.
#include "hydraulic_fixture.h"

#include "engine/pipe_friction.h"
#include "engine/system_head.h"

#include <cstdint>
#include <gtest/gtest.h>
#include <vector>

namespace vesk {
namespace {

using test::bareSite;
using test::bitsOf;
using test::chosen;
using test::failureOf;
using test::fixtureCatalogues;
using test::fixturePiping;
using test::fixtureSite;

struct FieldBits {
    const char* field;
    Single HeadLossBreakdown::*member;
    std::uint32_t expectedBits;
};

void expectBreakdown(const HeadLossBreakdown& breakdown, const std::vector<FieldBits>& expected) {
    for (const FieldBits& e : expected) {
        EXPECT_EQ(bitsOf(breakdown.*e.member), e.expectedBits) << e.field << " is " << singleText(breakdown.*e.member);
    }
}

class SystemHeadTest : public ::testing::Test {
  protected:
    Single headAt(Single flowPerNozzleGpm, Integer nozzles) {
        const HydraulicSite hydraulics(site, piping, catalogues);
        return SystemHead(hydraulics, flowPerNozzleGpm, nozzles, breakdown);
    }

    SiteDescription site = fixtureSite();
    PipingTables piping = fixturePiping();
    Catalogues catalogues = fixtureCatalogues();
    HeadLossBreakdown breakdown;
};

// Expected bits computed apart from this code for the fixture station at 7.5
// GPM per nozzle and 4 nozzles.
TEST_F(SystemHeadTest, AdvanceModeInUsUnitsMatchesTheSingleArithmetic) {
    const Single headFt = headAt(7.5F, 4);
    EXPECT_EQ(bitsOf(headFt), 0x41a30f33U) << singleText(headFt); // 20.3824215
    expectBreakdown(breakdown, {
                                   {"TrunkLoss", &HeadLossBreakdown::TrunkLoss, 0x3ec85bc7U},
                                   {"BranchLoss", &HeadLossBreakdown::BranchLoss, 0x3e4a150fU},
                                   {"TotalRise", &HeadLossBreakdown::TotalRise, 0x41480000U},
                                   {"LeakDetectorLoss", &HeadLossBreakdown::LeakDetectorLoss, 0x3f99999aU},
                                   {"DispenserLoss", &HeadLossBreakdown::DispenserLoss, 0x3ff00000U},
                                   {"DispOthersLoss", &HeadLossBreakdown::DispOthersLoss, 0x3f233334U},
                                   {"BreakawayLoss", &HeadLossBreakdown::BreakawayLoss, 0x3f533333U},
                                   {"NozzleLoss", &HeadLossBreakdown::NozzleLoss, 0x40066666U},
                                   {"PumpOthersLoss", &HeadLossBreakdown::PumpOthersLoss, 0x3e533334U},
                                   {"HoseLoss", &HeadLossBreakdown::HoseLoss, 0x3ee66667U},
                                   {"ValveLength", &HeadLossBreakdown::ValveLength, 0x4134cccdU},
                                   {"TotalHead", &HeadLossBreakdown::TotalHead, 0x41a30f33U},
                               });
}

TEST_F(SystemHeadTest, AdvanceModeInMetricUnitsMatchesTheSingleArithmetic) {
    site.IsMetric = true;
    site.TrunkLength = 45.7F;
    site.BranchLength = 12.2F;
    site.TankDiameter = 243.84F;
    site.BuryDepth = 0.9F;
    site.Rise = 0.45F;
    site.HoseLen = 3.7F;
    const Single headFt = headAt(7.5F, 4);
    EXPECT_EQ(bitsOf(headFt), 0x41a28556U) << singleText(headFt); // 20.3151054
    expectBreakdown(breakdown, {
                                   {"TrunkLoss", &HeadLossBreakdown::TrunkLoss, 0x3ec8414cU},
                                   {"BranchLoss", &HeadLossBreakdown::BranchLoss, 0x3e4a150fU},
                                   {"TotalRise", &HeadLossBreakdown::TotalRise, 0x4146ddbcU},
                                   {"HoseLoss", &HeadLossBreakdown::HoseLoss, 0x3ee851edU},
                                   {"ValveLength", &HeadLossBreakdown::ValveLength, 0x4134cccdU},
                                   {"TotalHead", &HeadLossBreakdown::TotalHead, 0x41a28556U},
                               });
}

TEST_F(SystemHeadTest, BasicModeMatchesTheSingleArithmetic) {
    site.Mode = PipingMode::Basic;
    const Single headFt = headAt(7.5F, 4);
    EXPECT_EQ(bitsOf(headFt), 0x41d6f634U) << singleText(headFt); // 26.8702164
    expectBreakdown(breakdown, {
                                   {"TrunkLoss", &HeadLossBreakdown::TrunkLoss, 0x40d15e44U},
                                   {"BranchLoss", &HeadLossBreakdown::BranchLoss, 0x3f08a0fdU},
                                   {"TotalRise", &HeadLossBreakdown::TotalRise, 0x41480000U},
                                   {"TotalHead", &HeadLossBreakdown::TotalHead, 0x41d6f634U},
                               });
}

TEST_F(SystemHeadTest, BasicModeInMetricUnitsTakesThePipeLengthAsFeet) {
    site.Mode = PipingMode::Basic;
    site.IsMetric = true;
    site.TankDiameter = 243.84F;
    site.BuryDepth = 0.9F;
    site.Rise = 0.45F;
    site.HoseLen = 3.7F;
    const Single headFt = headAt(7.5F, 4);
    EXPECT_EQ(bitsOf(headFt), 0x41d66cc0U) << singleText(headFt); // 26.8031006
    // The pipe terms are those of the same PipeLen in US units.
    EXPECT_EQ(bitsOf(breakdown.TrunkLoss), 0x40d15e44U);
    EXPECT_EQ(bitsOf(breakdown.BranchLoss), 0x3f08a0fdU);
}

// A site whose only term is the friction of one run, to see its length and diameter.
class PipeRunTest : public SystemHeadTest {
  protected:
    void SetUp() override { site = bareSite(); }
    Single trunkLoss(Single flowPerNozzleGpm, Integer nozzles) {
        headAt(flowPerNozzleGpm, nozzles);
        return breakdown.TrunkLoss;
    }
    Single branchLoss(Single flowPerNozzleGpm, Integer nozzles) {
        headAt(flowPerNozzleGpm, nozzles);
        return breakdown.BranchLoss;
    }
};

TEST_F(PipeRunTest, MetricTrunkLengthIsRoundedToOneDecimalBeforeTheFittings) {
    site.IsMetric = true;
    site.TrunkLength = 10; // 32.8083... ft, entered as 32.8
    site.TrunkFitting = {0, 1, 0, 0};
    const Single expectedLengthFt = toSingle(Double{32.8F} + 3.8F);
    EXPECT_EQ(bitsOf(trunkLoss(10, 4)), bitsOf(PipeFriction(0.2557F, expectedLengthFt, 40, 0.000005F)));
}

TEST_F(PipeRunTest, MetricBranchLengthIsRoundedToOneDecimalBeforeTheFittings) {
    site.IsMetric = true;
    site.BranchLength = 10;
    site.BranchFitting = {1, 0, 0, 0};
    site.NoOfBranches = 1;
    const Single expectedLengthFt = toSingle(Double{32.8F} + 1.4F);
    EXPECT_EQ(bitsOf(branchLoss(10, 4)), bitsOf(PipeFriction(0.1723F, expectedLengthFt, 40, 0.000005F)));
}

TEST_F(PipeRunTest, TrunkLengthPlusFittingsPlusValves) {
    site.TrunkLength = 100;
    site.TrunkFitting = {1, 2, 1, 1}; // 2.0 + 2 x 3.8 + 3.0 + 8.0 at size 2
    site.BallValve = 1;
    Single lengthFt = 100;
    for (const Single term : {2.0F, 2 * 3.8F, 3.0F, 8.0F, 1.3F}) {
        lengthFt = toSingle(Double{lengthFt} + term);
    }
    EXPECT_EQ(bitsOf(trunkLoss(10, 4)), bitsOf(PipeFriction(0.2557F, lengthFt, 40, 0.000005F)));
    EXPECT_EQ(breakdown.ValveLength, 1.3F);
}

TEST_F(PipeRunTest, EqualFittingCountsGiveDifferentLengthsOnDifferentSizes) {
    site.TrunkFitting = {0, 2, 0, 0};
    site.BranchFitting = {0, 2, 0, 0};
    site.NoOfBranches = 1;
    headAt(10, 4);
    EXPECT_EQ(bitsOf(breakdown.TrunkLoss), bitsOf(PipeFriction(0.2557F, 2 * 3.8F, 40, 0.000005F)));
    EXPECT_EQ(bitsOf(breakdown.BranchLoss), bitsOf(PipeFriction(0.1723F, 2 * 2.6F, 40, 0.000005F)));
}

TEST_F(PipeRunTest, AdvanceModeTakesTheRoughnessOfTheFirstMaterial) {
    site.TrunkLength = 100;
    EXPECT_EQ(bitsOf(trunkLoss(10, 4)), bitsOf(PipeFriction(0.2557F, 100, 40, 0.000005F)));
    // The tag is never assigned; were it, it would pick that material.
    site.PipingTag = 2;
    EXPECT_EQ(bitsOf(trunkLoss(10, 4)), bitsOf(PipeFriction(0.2557F, 100, 40, 0.0005F)));
}

TEST_F(PipeRunTest, PipingTagBeyondTheMaterialsFailsOutOfRange) {
    site.PipingTag = -1;
    EXPECT_EQ(failureOf([&] { headAt(10, 4); }), "Subscript out of range");
}

TEST_F(PipeRunTest, BasicModeTakesTheSecondMaterialTheFirstDiameterAndTheChosenSizesFittings) {
    site.Mode = PipingMode::Basic;
    site.PipeLen = 100;
    site.PipeSizeIndex = 3;
    site.NoOfBranches = 1;
    Single trunkFt = toSingle(100 * 0.75);
    trunkFt = toSingle(trunkFt + 2 * Double{5.0F});
    trunkFt = toSingle(Double{trunkFt} + 4.0F);
    trunkFt = toSingle(Double{trunkFt} + 10.5F);
    const Single branchFt = toSingle(100 * 0.25 + Double{5.0F});
    headAt(10, 4);
    EXPECT_EQ(bitsOf(breakdown.TrunkLoss), bitsOf(PipeFriction(0.1342F, trunkFt, 40, 0.00015F)));
    EXPECT_EQ(bitsOf(breakdown.BranchLoss), bitsOf(PipeFriction(0.1342F, branchFt, 40, 0.00015F)));
}

TEST_F(PipeRunTest, BasicModePipeSizeChangesTheFittingsNotTheDiameter) {
    site.Mode = PipingMode::Basic;
    site.PipeLen = 0;
    site.PipeSizeIndex = 0;
    const Single smallFittings = trunkLoss(10, 4);
    site.PipeSizeIndex = 4;
    const Single largeFittings = trunkLoss(10, 4);
    // Same diameter, longer equivalent length: 2 x 7.5 + 6 + 15.5 against 2 x 2.1 + 1.5 + 4.5.
    EXPECT_NEAR(largeFittings / smallFittings, 36.5 / 10.2, 1E-5);
}

TEST_F(PipeRunTest, BasicModeIgnoresTheEnteredFittingsAndValvesAndLeavesValveLength) {
    site.Mode = PipingMode::Basic;
    site.PipeLen = 100;
    const Single plain = trunkLoss(10, 4);
    site.TrunkFitting = {5, 5, 5, 5};
    site.BallValve = 1;
    site.SwingCheck = 1;
    site.TrunkIndex = -1;
    site.BranchIndex = -1;
    breakdown.ValveLength = 123;
    EXPECT_EQ(bitsOf(trunkLoss(10, 4)), bitsOf(plain));
    EXPECT_EQ(breakdown.ValveLength, 123);
}

TEST_F(PipeRunTest, BasicModeWithMetricUnitsSplitsThePipeLengthAsFeet) {
    site.Mode = PipingMode::Basic;
    site.PipeLen = 100;
    const Single usTrunk = trunkLoss(10, 4);
    const Single usBranch = branchLoss(10, 4);
    site.IsMetric = true;
    EXPECT_EQ(bitsOf(trunkLoss(10, 4)), bitsOf(usTrunk));
    EXPECT_EQ(bitsOf(branchLoss(10, 4)), bitsOf(usBranch));
}

TEST_F(PipeRunTest, ChangingThePipingMaterialInAdvanceModeChangesNothing) {
    // The selected material reaches the engine only through the tag, which stays 0.
    site.TrunkLength = 100;
    const Single before = headAt(10, 4);
    piping.PipeRoughness[1] = 0.01F;
    piping.PipeRoughness[2] = 0.02F;
    EXPECT_EQ(bitsOf(headAt(10, 4)), bitsOf(before));
}

TEST_F(PipeRunTest, NegativeSizeIndexFailsOutOfRange) {
    site.TrunkIndex = -1;
    EXPECT_EQ(failureOf([&] { headAt(10, 4); }), "Subscript out of range");
    site.TrunkIndex = 2;
    site.BranchIndex = 5;
    EXPECT_EQ(failureOf([&] { headAt(10, 4); }), "Subscript out of range");
    site.BranchIndex = 1;
    site.Mode = PipingMode::Basic;
    site.PipeSizeIndex = -1;
    EXPECT_EQ(failureOf([&] { headAt(10, 4); }), "Subscript out of range");
}

TEST_F(PipeRunTest, ZeroDiameterInUseFailsWithDivisionByZero) {
    piping.PipeDiameter[2] = 0;
    site.TrunkLength = 100;
    EXPECT_EQ(failureOf([&] { headAt(10, 4); }), "Division by zero");
}

TEST_F(PipeRunTest, TwoBranchesHalveTheBranchFlowNotTheTrunkFlow) {
    site.TrunkLength = 100;
    site.BranchLength = 50;
    site.NoOfBranches = 2;
    headAt(10, 4);
    EXPECT_EQ(bitsOf(breakdown.TrunkLoss), bitsOf(PipeFriction(0.2557F, 100, 40, 0.000005F)));
    EXPECT_EQ(bitsOf(breakdown.BranchLoss), bitsOf(PipeFriction(0.1723F, 50, 20, 0.000005F)));
}

TEST_F(PipeRunTest, ZeroBranchesFailAsADivision) {
    site.NoOfBranches = 0;
    EXPECT_EQ(failureOf([&] { headAt(10, 4); }), "Division by zero");
    EXPECT_EQ(failureOf([&] { headAt(0, 4); }), "Overflow");
}

TEST(TrunkValveLength, FollowsTheTwoBoxesAtTheTrunkSize) {
    const PipingTables piping = fixturePiping();
    SiteDescription site = fixtureSite();
    site.TrunkIndex = 3;
    site.BranchIndex = 0;
    struct Case {
        Integer ball;
        Integer swing;
        Single expectedFt;
    };
    for (const Case& c :
         {Case{0, 0, 0}, Case{1, 0, 1.7F}, Case{0, 1, 13.0F}, Case{1, 1, toSingle(Double{1.7F} + 13.0F)}}) {
        site.BallValve = c.ball;
        site.SwingCheck = c.swing;
        EXPECT_EQ(bitsOf(TrunkValveLength(site, piping)), bitsOf(c.expectedFt)) << c.ball << c.swing;
    }
}

TEST(TrunkValveLength, BothBoxesClearedGiveZeroWhateverTheFileHolds) {
    PipingTables piping = fixturePiping();
    piping.ValveTable[0].Length.fill(50);
    SiteDescription site = fixtureSite();
    site.BallValve = 0;
    site.SwingCheck = 0;
    EXPECT_EQ(TrunkValveLength(site, piping), 0);
}

TEST(TrunkValveLength, ValveRecordsAreTakenByPositionNotByName) {
    PipingTables piping = fixturePiping();
    std::swap(piping.ValveTable[0].Name, piping.ValveTable[1].Name);
    SiteDescription site = fixtureSite();
    site.BallValve = 1;
    site.SwingCheck = 0;
    EXPECT_EQ(TrunkValveLength(site, piping), 1.3F);
}

TEST_F(SystemHeadTest, AllComponentsNoneAndZeroLengthsGiveTheRiseOfEleven) {
    site = bareSite();
    site.Rise = 0;
    EXPECT_EQ(headAt(10, 4), 11);
    EXPECT_EQ(breakdown.TotalRise, 11); // 96 / 12 + 3
    EXPECT_EQ(breakdown.TrunkLoss, 0);
    EXPECT_EQ(breakdown.BranchLoss, 0);
}

TEST_F(SystemHeadTest, WholeTankDiameterCountsInTheRise) {
    site.TankDiameter = 120;
    site.BuryDepth = 2;
    site.Rise = 4;
    headAt(10, 4);
    EXPECT_EQ(breakdown.TotalRise, 16);
}

TEST_F(SystemHeadTest, MetricRiseConvertsEachTermUnrounded) {
    site.IsMetric = true;
    site.TankDiameter = 254; // 100 in
    site.BuryDepth = 1;      // about 3.28084 ft, unrounded
    site.Rise = 0;
    headAt(10, 4);
    Single expected = toSingle(Double{toSingle(254 / 2.54)} / 12);
    expected = toSingle(Double{expected} + toSingle(1 / 0.3048));
    expected = toSingle(Double{expected} + 0.0F);
    EXPECT_EQ(bitsOf(breakdown.TotalRise), bitsOf(expected));
    EXPECT_NEAR(breakdown.TotalRise, 100.0 / 12 + 3.28084, 1E-5);
}

TEST_F(SystemHeadTest, ZeroFlowGivesTheRiseAlone) {
    EXPECT_EQ(headAt(0, 4), 12.5F);
    EXPECT_EQ(breakdown.TrunkLoss, 0);
    EXPECT_EQ(breakdown.BranchLoss, 0);
    EXPECT_EQ(breakdown.LeakDetectorLoss, 0);
    EXPECT_EQ(breakdown.HoseLoss, 0);
    EXPECT_EQ(breakdown.TotalHead, 12.5F);
}

TEST_F(SystemHeadTest, OnlyTheLeakDetectorSeesTheTotalFlow) {
    headAt(7.5F, 4);
    // The leak detector at 30 GPM, the pump-side component at 7.5.
    EXPECT_EQ(breakdown.LeakDetectorLoss, 1.2F);
    EXPECT_EQ(bitsOf(breakdown.PumpOthersLoss), bitsOf(toSingle(1.1F * Double{toSingle(7.5 / 40)})));
}

TEST_F(SystemHeadTest, ComponentLossesAddUpInOrderRoundingAfterEach) {
    const HydraulicSite hydraulics(site, piping, catalogues);
    const Single sum = AddComponentLosses(hydraulics, 12.5F, 30, 7.5F, breakdown);
    Single expected = 12.5F;
    for (const Single term :
         {breakdown.LeakDetectorLoss, breakdown.DispenserLoss, breakdown.DispOthersLoss, breakdown.BreakawayLoss,
          breakdown.NozzleLoss, breakdown.PumpOthersLoss, breakdown.HoseLoss}) {
        EXPECT_GT(term, 0);
        expected = toSingle(Double{expected} + term);
    }
    EXPECT_EQ(bitsOf(sum), bitsOf(expected));
    EXPECT_EQ(bitsOf(breakdown.TotalHead), bitsOf(sum));
}

TEST_F(SystemHeadTest, TotalHeadHoldsTheSumBeforeTheHoseWhenTheHoseFails) {
    catalogues.of(ComponentKind::Hose).Records[0].HoseLength = 0;
    const HydraulicSite hydraulics(site, piping, catalogues);
    breakdown.HoseLoss = 77;
    EXPECT_EQ(failureOf([&] { AddComponentLosses(hydraulics, 12.5F, 30, 7.5F, breakdown); }), "Division by zero");
    Single expected = 12.5F;
    for (const Single term : {breakdown.LeakDetectorLoss, breakdown.DispenserLoss, breakdown.DispOthersLoss,
                              breakdown.BreakawayLoss, breakdown.NozzleLoss, breakdown.PumpOthersLoss}) {
        expected = toSingle(Double{expected} + term);
    }
    EXPECT_EQ(bitsOf(breakdown.TotalHead), bitsOf(expected));
    EXPECT_EQ(breakdown.HoseLoss, 77);
}

TEST_F(SystemHeadTest, BreakdownIsOverwrittenByEachEvaluationNotCleared) {
    headAt(7.5F, 4);
    const HeadLossBreakdown first = breakdown;
    headAt(7.5F, 4);
    EXPECT_EQ(bitsOf(breakdown.TotalHead), bitsOf(first.TotalHead));
    headAt(0, 4);
    EXPECT_EQ(breakdown.DispenserLoss, 0);
    EXPECT_EQ(breakdown.ValveLength, first.ValveLength);
}

} // namespace
} // namespace vesk
