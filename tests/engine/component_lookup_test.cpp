// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// Tests of the rate-loss lookups of the seven component kinds.
#include "hydraulic_fixture.h"

#include "engine/component_lookup.h"

#include <gtest/gtest.h>

namespace vesk {
namespace {

using test::bitsOf;
using test::chosen;
using test::failureOf;
using test::fixtureCatalogues;
using test::fixtureSite;
using test::recordOf;
using test::spareRecord;

class ComponentLookup : public ::testing::Test {
  protected:
    SiteDescription site = fixtureSite();
    Catalogues catalogues = fixtureCatalogues();
};

// The dispenser of the fixture has a table from 0 to 30 GPM.
TEST_F(ComponentLookup, DispenserInterpolatesInsideItsTable) {
    // Between (10, 2.5) and (20, 7.0): M = 0.5, D = 4.5.
    EXPECT_EQ(DispenserLoss(site, catalogues, 15), 4.75F);
    EXPECT_EQ(bitsOf(DispenserLoss(site, catalogues, 7.5F)), bitsOf(toSingle(2.5F * Double{0.75F})));
}

TEST_F(ComponentLookup, ZeroFlowGivesZero) {
    EXPECT_EQ(DispenserLoss(site, catalogues, 0), 0);
    EXPECT_EQ(DispenserLoss(site, catalogues, -5), 0);
}

TEST_F(ComponentLookup, FlowOnTheLastRowGivesThatRowsLoss) {
    EXPECT_EQ(DispenserLoss(site, catalogues, 30), 14.1F);
}

TEST_F(ComponentLookup, FlowOnARowTakesTheFirstBracketThatHoldsIt) {
    EXPECT_EQ(DispenserLoss(site, catalogues, 10), 2.5F);
    EXPECT_EQ(DispenserLoss(site, catalogues, 20), 7.0F);
}

TEST_F(ComponentLookup, FlowAboveTheTableGivesZero) {
    EXPECT_EQ(DispenserLoss(site, catalogues, 30.1F), 0);
}

TEST_F(ComponentLookup, FlowBelowTheFirstRowGivesZero) {
    catalogues.of(ComponentKind::Dispenser).Records[0] = recordOf("D1", true, {{5, 1}, {30, 14.1F}});
    EXPECT_EQ(DispenserLoss(site, catalogues, 4.9F), 0);
    EXPECT_EQ(DispenserLoss(site, catalogues, 5), 1);
}

TEST_F(ComponentLookup, SwitchingTheFuelPicksTheOtherRecordOfTheSameName) {
    site.IsGas = false;
    // The diesel record of D1 runs from (0, 0) to (30, 20).
    EXPECT_EQ(DispenserLoss(site, catalogues, 15), 10);
}

TEST_F(ComponentLookup, FuelWithoutARecordOfThatNameGivesZero) {
    site.IsGas = false;
    EXPECT_EQ(BreakawayLoss(site, catalogues, 15), 0);
    site.IsGas = true;
    EXPECT_GT(BreakawayLoss(site, catalogues, 15), 0);
}

TEST_F(ComponentLookup, SecondRecordOfTheSameNameAndFuelIsUsedWhenTheFirstDoesNotHoldTheFlow) {
    catalogues.of(ComponentKind::Breakaway).Records = {
        recordOf("B1", true, {{0, 0}, {10, 1}}),
        recordOf("B1", true, {{0, 0}, {40, 8}}),
        spareRecord(),
    };
    EXPECT_EQ(BreakawayLoss(site, catalogues, 5), 0.5F);
    EXPECT_EQ(BreakawayLoss(site, catalogues, 20), 4);
}

TEST_F(ComponentLookup, NameIsComparedExactlyLetterCaseIncluded) {
    site.Dispenser = chosen("d1");
    EXPECT_EQ(DispenserLoss(site, catalogues, 15), 0);
    site.Dispenser = chosen("D1 ");
    EXPECT_EQ(DispenserLoss(site, catalogues, 15), 0);
}

TEST_F(ComponentLookup, ComponentAtNoneGivesZero) {
    site.Dispenser = chosen("None");
    EXPECT_EQ(DispenserLoss(site, catalogues, 15), 0);
}

TEST_F(ComponentLookup, NothingSelectedGivesZeroWhateverTheName) {
    site.Dispenser = ComponentChoice{-1, "D1"};
    EXPECT_EQ(DispenserLoss(site, catalogues, 15), 0);
}

// The hose table gives 0.950000048 at 15 GPM: (10, 0.4) to (20, 1.5), M = 0.5.
TEST_F(ComponentLookup, HoseOfSixteenFeetDoublesTheLossOfATableMeasuredOnEight) {
    site.HoseLen = 8;
    const Single onEightFt = HoseLoss(site, catalogues, 15);
    EXPECT_EQ(bitsOf(onEightFt), 0x3f733334U) << singleText(onEightFt);
    site.HoseLen = 16;
    EXPECT_EQ(HoseLoss(site, catalogues, 15), 2 * onEightFt);
}

TEST_F(ComponentLookup, HoseLengthScalesTheInterpolatedLoss) {
    site.HoseLen = 12;
    EXPECT_EQ(bitsOf(HoseLoss(site, catalogues, 15)), 0x3fb66667U); // 1.42500007
}

TEST_F(ComponentLookup, MetricHoseLengthIsRoundedToOneDecimalOfAFoot) {
    site.IsMetric = true;
    site.HoseLen = 3.7F; // 12.139... ft, entered as 12.1
    EXPECT_EQ(ResolveComponents(site, catalogues).hoseLengthFt, 12.1F);
    EXPECT_EQ(bitsOf(HoseLoss(site, catalogues, 15)), 0x3fb7eb86U); // 1.4368751
}

TEST_F(ComponentLookup, HoseLengthOfZeroAtTheMatchingRecordFailsAsADivision) {
    catalogues.of(ComponentKind::Hose).Records[0].HoseLength = 0;
    EXPECT_EQ(failureOf([&] { HoseLoss(site, catalogues, 15); }), "Division by zero");
    // Nothing matches at 0 GPM, so nothing is divided.
    EXPECT_EQ(HoseLoss(site, catalogues, 0), 0);
}

TEST_F(ComponentLookup, HoseOutsideItsTableGivesZeroWithoutScaling) {
    catalogues.of(ComponentKind::Hose).Records[0].HoseLength = 0;
    EXPECT_EQ(HoseLoss(site, catalogues, 31), 0);
}

TEST_F(ComponentLookup, NozzleWhoseListCodesLackTheMarketLetterGivesZero) {
    EXPECT_GT(NozzleLoss(site, catalogues, 15), 0);
    site.Market = 'I';
    EXPECT_GT(NozzleLoss(site, catalogues, 15), 0);
    site.Market = 'C'; // the nozzle is listed for "AI"
    EXPECT_EQ(NozzleLoss(site, catalogues, 15), 0);
}

TEST_F(ComponentLookup, OnlyNozzlesAreFilteredByMarket) {
    site.Market = 'C';
    catalogues.of(ComponentKind::Dispenser).Records[0].ListCodes = "A";
    EXPECT_EQ(DispenserLoss(site, catalogues, 15), 4.75F);
}

TEST_F(ComponentLookup, RecordWithPointCountZeroHasNoBracket) {
    catalogues.of(ComponentKind::Breakaway).Records[0].Curve.PointCount = 0;
    EXPECT_EQ(BreakawayLoss(site, catalogues, 15), 0);
}

TEST_F(ComponentLookup, KindWithNoRecordsGivesZero) {
    catalogues.of(ComponentKind::Breakaway).Records.clear();
    EXPECT_EQ(BreakawayLoss(site, catalogues, 15), 0);
}

TEST_F(ComponentLookup, OnePointFirstRecordMakesTheWholeKindLoseNothing) {
    catalogues.of(ComponentKind::Dispenser)
        .Records.insert(catalogues.of(ComponentKind::Dispenser).Records.begin(), recordOf("Other", true, {{0, 0}}));
    EXPECT_EQ(DispenserLoss(site, catalogues, 15), 0);
    // A one-point record elsewhere only has no bracket.
    catalogues.of(ComponentKind::Dispenser).Records.erase(catalogues.of(ComponentKind::Dispenser).Records.begin());
    catalogues.of(ComponentKind::Dispenser)
        .Records.insert(catalogues.of(ComponentKind::Dispenser).Records.begin() + 1, recordOf("Other", true, {{0, 0}}));
    EXPECT_EQ(DispenserLoss(site, catalogues, 15), 4.75F);
}

TEST_F(ComponentLookup, OnePointTableOfTheSelectionHasNoBracketAndTheSearchGoesOn) {
    catalogues.of(ComponentKind::Breakaway).Records = {
        recordOf("B1", true, {{0, 0}, {30, 3}}),
        recordOf("B2", true, {{10, 1}}),
        recordOf("B2", true, {{0, 0}, {30, 6}}),
        spareRecord(),
    };
    site.BreakAway = chosen("B2");
    EXPECT_EQ(BreakawayLoss(site, catalogues, 10), 2);
}

TEST_F(ComponentLookup, InACatalogueOfThreeTheThirdIsNeverFound) {
    catalogues.of(ComponentKind::LeakDetector).Records = {
        recordOf("First", true, {{0, 0}, {100, 10}}),
        recordOf("Second", true, {{0, 0}, {100, 20}}),
        recordOf("Third", true, {{0, 0}, {100, 30}}),
    };
    site.Leak = chosen("First");
    EXPECT_EQ(LeakLoss(site, catalogues, 50), 5);
    site.Leak = chosen("Second");
    EXPECT_EQ(LeakLoss(site, catalogues, 50), 10);
    site.Leak = chosen("Third");
    EXPECT_EQ(LeakLoss(site, catalogues, 50), 0);
}

TEST_F(ComponentLookup, ComponentWhoseOnlyRecordIsTheLastLosesNothing) {
    catalogues.of(ComponentKind::Breakaway).Records = {recordOf("B1", true, {{0, 0}, {30, 3.3F}})};
    EXPECT_EQ(BreakawayLoss(site, catalogues, 15), 0);
}

TEST_F(ComponentLookup, LeakDetectorStopsLosingOnceTheTotalFlowPassesItsTable) {
    catalogues.of(ComponentKind::LeakDetector).Records[0] = recordOf("L1", true, {{0, 0}, {50, 2}});
    EXPECT_EQ(LeakLoss(site, catalogues, 50), 2);
    EXPECT_EQ(LeakLoss(site, catalogues, 50.1F), 0);
}

TEST_F(ComponentLookup, EqualNeighbouringFlowsAtThatFlowFailWithOverflow) {
    catalogues.of(ComponentKind::Breakaway).Records[0] = recordOf("B1", true, {{10, 1}, {10, 2}, {30, 3}});
    EXPECT_EQ(failureOf([&] { BreakawayLoss(site, catalogues, 10); }), "Overflow");
    EXPECT_EQ(BreakawayLoss(site, catalogues, 20), 2.5F);
}

TEST_F(ComponentLookup, UnsortedTableFindsBracketsOnlyWhereTheFlowsRise) {
    catalogues.of(ComponentKind::Breakaway).Records[0] = recordOf("B1", true, {{30, 3}, {0, 0}, {10, 1}});
    EXPECT_EQ(BreakawayLoss(site, catalogues, 20), 0);
    EXPECT_EQ(BreakawayLoss(site, catalogues, 5), 0.5F);
}

TEST_F(ComponentLookup, PumpOthersIsFoundThroughTheFuelFlagOfTheHoseAtTheSameIndex) {
    // The pump-others record itself says Diesel; the hose at index 0 says Gas.
    ASSERT_FALSE(catalogues.of(ComponentKind::PumpOthers).Records[0].IsGas);
    EXPECT_EQ(PumpOthersLoss(site, catalogues, 20), 0.55F);
    site.IsGas = false;
    EXPECT_EQ(PumpOthersLoss(site, catalogues, 20), 0);
    catalogues.of(ComponentKind::Hose).Records[0].IsGas = false;
    EXPECT_EQ(PumpOthersLoss(site, catalogues, 20), 0.55F);
}

class PumpOthersLongerThanHoses : public ComponentLookup {
  protected:
    void SetUp() override {
        catalogues.of(ComponentKind::Hose).Records = {recordOf("3/4", true, {{0, 0}, {30, 3}}, "AIC", 8)};
        catalogues.of(ComponentKind::PumpOthers).Records = {
            recordOf("Check", true, {{0, 0}, {10, 1}}),
            recordOf("Valve", true, {{0, 0}, {40, 4}}),
            recordOf("Check", true, {{0, 0}, {40, 2}}),
            spareRecord(),
        };
    }
};

TEST_F(PumpOthersLongerThanHoses, FailsOutOfRangeWhenTheScanPassesTheLastHose) {
    site.PumpOthers = chosen("Valve");
    EXPECT_EQ(failureOf([&] { PumpOthersLoss(site, catalogues, 20); }), "Subscript out of range");
}

TEST_F(PumpOthersLongerThanHoses, EarlierMatchThatHoldsTheFlowEndsTheScanInTime) {
    site.PumpOthers = chosen("Check");
    EXPECT_EQ(PumpOthersLoss(site, catalogues, 5), 0.5F);
    // Beyond the first table the scan goes on into the missing hose.
    EXPECT_EQ(failureOf([&] { PumpOthersLoss(site, catalogues, 20); }), "Subscript out of range");
}

TEST_F(PumpOthersLongerThanHoses, ZeroFlowOrNothingSelectedNeverScans) {
    site.PumpOthers = chosen("Valve");
    EXPECT_EQ(PumpOthersLoss(site, catalogues, 0), 0);
    site.PumpOthers = ComponentChoice{-1, "Valve"};
    EXPECT_EQ(PumpOthersLoss(site, catalogues, 20), 0);
}

TEST_F(PumpOthersLongerThanHoses, ResolvingDoesNotFailAndMarksTheFailure) {
    site.PumpOthers = chosen("Valve");
    const ResolvedComponents resolved = ResolveComponents(site, catalogues);
    EXPECT_TRUE(resolved.pumpOthers.failsAfterCandidates);
    EXPECT_TRUE(resolved.pumpOthers.candidates.empty());
}

TEST_F(ComponentLookup, ResolvedLookupGivesWhatTheStandAloneLookupGives) {
    const ResolvedComponents resolved = ResolveComponents(site, catalogues);
    for (const Single flowGpm : {0.0F, 0.1F, 7.3F, 15.0F, 29.9F, 30.0F, 35.0F, 120.0F, 250.0F}) {
        EXPECT_EQ(bitsOf(LookupLoss(resolved.leak, flowGpm)), bitsOf(LeakLoss(site, catalogues, flowGpm)));
        EXPECT_EQ(bitsOf(LookupLoss(resolved.dispenser, flowGpm)), bitsOf(DispenserLoss(site, catalogues, flowGpm)));
        EXPECT_EQ(bitsOf(LookupLoss(resolved.dispOthers, flowGpm)), bitsOf(DispOthersLoss(site, catalogues, flowGpm)));
        EXPECT_EQ(bitsOf(LookupLoss(resolved.breakaway, flowGpm)), bitsOf(BreakawayLoss(site, catalogues, flowGpm)));
        EXPECT_EQ(bitsOf(LookupLoss(resolved.nozzle, flowGpm)), bitsOf(NozzleLoss(site, catalogues, flowGpm)));
        EXPECT_EQ(bitsOf(LookupLoss(resolved.pumpOthers, flowGpm)), bitsOf(PumpOthersLoss(site, catalogues, flowGpm)));
        EXPECT_EQ(bitsOf(HoseLoss(resolved.hose, resolved.hoseLengthFt, flowGpm)),
                  bitsOf(HoseLoss(site, catalogues, flowGpm)));
    }
}

TEST_F(ComponentLookup, ResolvingKeepsTheReachableRecordsOfTheSelectionInCatalogueOrder) {
    catalogues.of(ComponentKind::Breakaway).Records = {
        recordOf("B1", true, {{0, 0}, {10, 1}}),  recordOf("B2", true, {{0, 0}, {10, 1}}),
        recordOf("B1", false, {{0, 0}, {10, 1}}), recordOf("B1", true, {{0, 0}, {40, 8}}),
        recordOf("B1", true, {{0, 0}, {50, 9}}),
    };
    const auto& records = catalogues.of(ComponentKind::Breakaway).Records;
    const ResolvedLookup breakaway = ResolveComponents(site, catalogues).breakaway;
    ASSERT_EQ(breakaway.candidates.size(), 2U);
    EXPECT_EQ(breakaway.candidates[0], &records[0]);
    EXPECT_EQ(breakaway.candidates[1], &records[3]);
    EXPECT_FALSE(breakaway.givesNothing);
}

TEST_F(ComponentLookup, InterpolationKeepsEachStepAsSingle) {
    // M = 7.3 / 20 and D = 1.7 kept as Singles, then D x M + 0.
    const Single expected = toSingle(Double{toSingle(Double{1.7F} - 0.0F)} * toSingle(Double{7.3F} / 20));
    EXPECT_EQ(bitsOf(DispOthersLoss(site, catalogues, 7.3F)), bitsOf(expected));
}

} // namespace
} // namespace vesk
