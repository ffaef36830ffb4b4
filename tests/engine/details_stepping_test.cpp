// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// Tests of the stepping behind the head-loss details.
#include "hydraulic_fixture.h"

#include "engine/flow_sweep.h"

#include <gtest/gtest.h>
#include <vector>

namespace vesk {
namespace {

using test::bareSite;
using test::bitsOf;
using test::failureOf;
using test::fixtureCatalogues;
using test::fixturePiping;
using test::fixtureSite;

class DetailsSteppingTest : public ::testing::Test {
  protected:
    Single step() {
        const HydraulicSite hydraulics(site, piping, catalogues);
        return DetailsStepping(hydraulics, scratch);
    }

    SiteDescription site = fixtureSite();
    PipingTables piping = fixturePiping();
    Catalogues catalogues = fixtureCatalogues();
    EngineScratch scratch;
};

// Expected values computed apart from this code for the fixture station at 4 nozzles.
TEST_F(DetailsSteppingTest, BreakdownIsThatOfTheFailingStep) {
    const Single pumpHeadFt = step();
    EXPECT_EQ(bitsOf(scratch.TrialFlow), 0x41b7334eU) << singleText(scratch.TrialFlow); // 22.9000511
    EXPECT_EQ(bitsOf(pumpHeadFt), 0x42499858U) << singleText(pumpHeadFt);               // 50.3987732
    const HeadLossBreakdown& b = scratch.Breakdown;
    EXPECT_EQ(bitsOf(b.TrunkLoss), 0x403ac204U);        // 2.91809177
    EXPECT_EQ(bitsOf(b.BranchLoss), 0x3fbb52e3U);       // 1.463467
    EXPECT_EQ(bitsOf(b.TotalRise), 0x41480000U);        // 12.5
    EXPECT_EQ(bitsOf(b.LeakDetectorLoss), 0x40b7cf00U); // 5.74401855
    EXPECT_EQ(bitsOf(b.DispenserLoss), 0x4110f1d0U);    // 9.05903625
    EXPECT_EQ(bitsOf(b.DispOthersLoss), 0x4015a1faU);   // 2.33801126
    EXPECT_EQ(bitsOf(b.BreakawayLoss), 0x40213763U);    // 2.51900554
    EXPECT_EQ(bitsOf(b.NozzleLoss), 0x4131970dU);       // 11.0993776
    EXPECT_EQ(bitsOf(b.PumpOthersLoss), 0x3f213764U);   // 0.629751444
    EXPECT_EQ(bitsOf(b.HoseLoss), 0x403f542fU);         // 2.98951316
    EXPECT_EQ(bitsOf(b.ValveLength), 0x4134cccdU);      // 11.3000002
    EXPECT_EQ(bitsOf(b.TotalHead), 0x424d0a85U);        // 51.260273
}

TEST_F(DetailsSteppingTest, PumpHeadAtTheFailingStepIsNotAboveTheTotalHead) {
    const Single pumpHeadFt = step();
    EXPECT_LE(pumpHeadFt, scratch.Breakdown.TotalHead);
}

TEST_F(DetailsSteppingTest, StopsOneStepAboveTheFlowOfTheSweep) {
    FlowTable table;
    CreateFlowTable(table, NextEvenNozzles(4));
    std::vector<Single> labels;
    const HydraulicSite hydraulics(site, piping, catalogues);
    Sweep(table, labels, SweepButton::Calculate, hydraulics, scratch);
    const Single sweptRaw = scratch.TrialFlow; // the fourth pass, stepped back
    step();
    EXPECT_EQ(bitsOf(scratch.TrialFlow), bitsOf(toSingle(sweptRaw + 0.1)));
}

TEST_F(DetailsSteppingTest, TotalHeadIsTheSumOfTheTerms) {
    step();
    const HeadLossBreakdown& b = scratch.Breakdown;
    const double terms = double{b.TrunkLoss} + b.BranchLoss + b.TotalRise + b.LeakDetectorLoss + b.DispenserLoss +
                         b.DispOthersLoss + b.BreakawayLoss + b.NozzleLoss + b.PumpOthersLoss + b.HoseLoss;
    EXPECT_NEAR(b.TotalHead, terms, 1E-4);
    for (const Single term : {b.TrunkLoss, b.BranchLoss, b.TotalRise, b.LeakDetectorLoss, b.DispenserLoss,
                              b.DispOthersLoss, b.BreakawayLoss, b.NozzleLoss, b.PumpOthersLoss, b.HoseLoss}) {
        EXPECT_GT(term, 0);
    }
}

TEST_F(DetailsSteppingTest, ComponentAtNoneLeavesItsTermExactlyZero) {
    site.DispOthers = test::chosen("None");
    step();
    EXPECT_EQ(bitsOf(scratch.Breakdown.DispOthersLoss), 0U);
}

TEST_F(DetailsSteppingTest, NoPumpEndsAtTheFirstStep) {
    site.Pump = ComponentChoice{-1, "None"};
    EXPECT_EQ(step(), 0);
    EXPECT_EQ(scratch.TrialFlow, 0.1F);
    // The breakdown of 4 nozzles at 0.1 GPM each.
    const HydraulicSite hydraulics(site, piping, catalogues);
    HeadLossBreakdown expected;
    SystemHead(hydraulics, 0.1F, 4, expected);
    EXPECT_EQ(bitsOf(scratch.Breakdown.TotalHead), bitsOf(expected.TotalHead));
}

TEST_F(DetailsSteppingTest, NumberOfNozzlesIsReadAsAnIntegerRoundingHalfToEven) {
    site = bareSite();
    site.Rise = 0;
    catalogues.of(ComponentKind::Pump).Records[0] = test::recordOf("SP1", false, {{0, 100}, {30, 100}});
    const auto trialFlowFor = [this](const char* noOfNozzle) {
        site.NoOfNozzle = noOfNozzle;
        step();
        return scratch.TrialFlow;
    };
    const Single two = trialFlowFor("2");
    const Single four = trialFlowFor("4");
    EXPECT_NE(two, trialFlowFor("3"));
    EXPECT_EQ(trialFlowFor("2.5"), two);  // 2.5 counts as 2
    EXPECT_EQ(trialFlowFor("3.5"), four); // 3.5 counts as 4
    // The pump curve ends at 30 GPM of total flow: the stepping ends just above it.
    EXPECT_NEAR(two, 15, 0.1);
    EXPECT_GT(2 * two, 30);
}

TEST_F(DetailsSteppingTest, TextThatIsNotANumberFails) {
    site.NoOfNozzle = "";
    EXPECT_EQ(failureOf([&] { step(); }), "Type mismatch");
}

TEST_F(DetailsSteppingTest, LeavesTheTablesAsTheyWere) {
    FlowTable current;
    FlowTable baseline;
    CreateFlowTable(current, NextEvenNozzles(4));
    CreateFlowTable(baseline, NextEvenNozzles(4));
    std::vector<Single> labels;
    const HydraulicSite hydraulics(site, piping, catalogues);
    Sweep(current, labels, SweepButton::Calculate, hydraulics, scratch);
    site.Quantity = 2;
    const HydraulicSite twoPumps(site, piping, catalogues);
    Sweep(baseline, labels, SweepButton::BaseLine, twoPumps, scratch);
    const FlowTable currentBefore = current;
    const FlowTable baselineBefore = baseline;
    const std::vector<Single> labelsBefore = labels;

    // The stepping is given no table at all; it changes only the scratch.
    DetailsStepping(hydraulics, scratch);
    EXPECT_EQ(current.GpmPerNozzle, currentBefore.GpmPerNozzle);
    EXPECT_EQ(current.LpmPerNozzle, currentBefore.LpmPerNozzle);
    EXPECT_EQ(current.GpmList, currentBefore.GpmList);
    EXPECT_EQ(baseline.GpmPerNozzle, baselineBefore.GpmPerNozzle);
    EXPECT_EQ(baseline.LpmList, baselineBefore.LpmList);
    EXPECT_EQ(labels, labelsBefore);
    EXPECT_EQ(bitsOf(scratch.TrialFlow), 0x41b7334eU);
}

} // namespace
} // namespace vesk
