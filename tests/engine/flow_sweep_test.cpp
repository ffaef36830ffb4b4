// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// Tests of the sweep over the number of nozzles and of the result tables.
#include "hydraulic_fixture.h"

#include "engine/flow_sweep.h"

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
using test::recordOf;
using test::spareRecord;

class SweepTest : public ::testing::Test {
  protected:
    void sweep(SweepButton button = SweepButton::Calculate) {
        const HydraulicSite hydraulics(site, piping, catalogues);
        Sweep(table, nozzleLabels, button, hydraulics, scratch);
    }
    void usePump(std::initializer_list<std::pair<Single, Single>> points) {
        catalogues.of(ComponentKind::Pump).Records = {recordOf("Test", false, points), spareRecord()};
        site.Pump = ComponentChoice{0, "Test"};
    }

    SiteDescription site = fixtureSite();
    PipingTables piping = fixturePiping();
    Catalogues catalogues = fixtureCatalogues();
    FlowTable table;
    std::vector<Single> nozzleLabels;
    EngineScratch scratch;

    void SetUp() override { CreateFlowTable(table, NextEvenNozzles(4)); }
};

// Expected values computed apart from this code for the fixture station.
TEST_F(SweepTest, FixtureStationMatchesTheSingleArithmetic) {
    sweep();
    EXPECT_EQ(table.GpmPerNozzle, (std::vector<Single>{0, 96, 48, 29.1F, 22.8F, 0, 0}));
    EXPECT_EQ(table.LpmPerNozzle, (std::vector<Single>{0, 363.4F, 181.7F, 110.2F, 86.3F, 0, 0}));
    EXPECT_EQ(table.GpmList, (std::vector<Single>{0, 96, 48, 29.1F, 22.8F}));
    EXPECT_EQ(table.LpmList, (std::vector<Single>{0, 363.4F, 181.7F, 110.2F, 86.3F}));
    // The raw trial flow of the last pass, after the step back: 22.8000507.
    EXPECT_EQ(bitsOf(scratch.TrialFlow), 0x41b66681U) << singleText(scratch.TrialFlow);
}

TEST_F(SweepTest, TwoPumpsInParallelMatchTheSingleArithmetic) {
    site.Quantity = 2;
    sweep();
    EXPECT_EQ(table.GpmPerNozzle, (std::vector<Single>{0, 184.1F, 92, 61.3F, 46, 0, 0}));
    EXPECT_EQ(table.LpmPerNozzle, (std::vector<Single>{0, 696.9F, 348.3F, 232.1F, 174.1F, 0, 0}));
    EXPECT_EQ(bitsOf(scratch.TrialFlow), 0x4237ffdeU) << singleText(scratch.TrialFlow); // 45.9998703
}

TEST_F(SweepTest, BasicModeStationMatchesTheSingleArithmetic) {
    site.Mode = PipingMode::Basic;
    sweep();
    EXPECT_EQ(table.GpmPerNozzle, (std::vector<Single>{0, 84, 42, 24.3F, 19.2F, 0, 0}));
    EXPECT_EQ(table.LpmPerNozzle, (std::vector<Single>{0, 318, 159, 92, 72.7F, 0, 0}));
    EXPECT_EQ(bitsOf(scratch.TrialFlow), 0x419999adU) << singleText(scratch.TrialFlow); // 19.200037
}

TEST_F(SweepTest, TrialFlowAfterTheFirstStepBackIsNotExactlyZero) {
    site.Pump = ComponentChoice{-1, "None"};
    site.NoOfNozzle = "1";
    sweep();
    // The Single 0.1 less the Double 0.1.
    EXPECT_EQ(bitsOf(scratch.TrialFlow), bitsOf(toSingle(Double{0.1F} - 0.1)));
    EXPECT_NEAR(scratch.TrialFlow, 1.49E-09, 0.01E-09);
    EXPECT_EQ(bitsOf(table.GpmPerNozzle[1]), 0U); // the rounding makes it 0
}

TEST_F(SweepTest, TrialFlowAccumulatesTheErrorOfEachSingleSum) {
    // Ten steps of 0.1 make 1.00000012, not 1: a pump curve that ends at 1 GPM
    // ends the stepping at the tenth step.
    site = bareSite();
    usePump({{0, 100}, {1, 100}});
    site.NoOfNozzle = "1";
    sweep();
    Single expected = 0;
    for (int i = 0; i < 10; ++i) {
        expected = toSingle(expected + 0.1);
    }
    ASSERT_EQ(bitsOf(expected), 0x3f800001U);
    EXPECT_EQ(bitsOf(scratch.TrialFlow), bitsOf(toSingle(expected - 0.1)));
    EXPECT_EQ(table.GpmPerNozzle[1], 0.9F);
}

TEST_F(SweepTest, NoPumpGivesZeroForEveryNozzleCount) {
    site.Pump = ComponentChoice{-1, "None"};
    sweep();
    EXPECT_EQ(table.GpmList, (std::vector<Single>{0, 0, 0, 0, 0}));
}

TEST_F(SweepTest, FrequencyWithoutAPumpRecordGivesZeroGpm) {
    site.Is50Hz = true;
    catalogues.of(ComponentKind::Pump).Records.erase(catalogues.of(ComponentKind::Pump).Records.begin() + 1);
    sweep();
    EXPECT_EQ(table.GpmList, (std::vector<Single>{0, 0, 0, 0, 0}));
}

TEST_F(SweepTest, PumpThatCannotOvercomeTheStaticHeadGivesZero) {
    usePump({{0, 12.5F}, {100, 12.5F}}); // the fixture's rise is 12.5 ft
    sweep();
    EXPECT_EQ(table.GpmList, (std::vector<Single>{0, 0, 0, 0, 0}));
}

TEST_F(SweepTest, PumpHeadEqualToSystemHeadEndsTheStepping) {
    site = bareSite();
    site.Rise = 0; // the system head is 11 ft at every flow
    site.NoOfNozzle = "1";
    usePump({{0, 11}, {50, 11}});
    sweep();
    EXPECT_EQ(table.GpmPerNozzle[1], 0);
    usePump({{0, 11.001F}, {50, 11.001F}});
    sweep();
    EXPECT_EQ(table.GpmPerNozzle[1], 50);
}

TEST_F(SweepTest, PumpHeadOfExactlyMinusOneEndsTheStepping) {
    site = bareSite();
    site.Rise = -20; // a system head of -9 ft, rising by 1 ft per GPM
    site.NoOfNozzle = "1";
    catalogues.of(ComponentKind::Dispenser).Records = {recordOf("Ramp", true, {{0, 0}, {100, 100}}), spareRecord()};
    site.Dispenser = chosen("Ramp");
    usePump({{0, -1}, {50, -1}});
    sweep();
    EXPECT_EQ(table.GpmPerNozzle[1], 0);
    // A head of -2 is above the system head up to 7 GPM.
    usePump({{0, -2}, {50, -2}});
    sweep();
    EXPECT_EQ(table.GpmPerNozzle[1], 7);
}

TEST_F(SweepTest, PumpCurveEndCapsTheTotalFlow) {
    site = bareSite();
    site.NoOfNozzle = "3";
    usePump({{0, 100}, {30, 100}});
    sweep();
    // The 300th step lies above 30 GPM, so one nozzle stops at 29.9.
    EXPECT_EQ(table.GpmList, (std::vector<Single>{0, 29.9F, 14.9F, 9.9F}));
}

TEST_F(SweepTest, SweepGoesOnPastTheEndOfAComponentTable) {
    site = bareSite();
    site.Rise = 0;
    site.NoOfNozzle = "1";
    catalogues.of(ComponentKind::Dispenser).Records = {recordOf("Steep", true, {{0, 0}, {10, 40}}), spareRecord()};
    site.Dispenser = chosen("Steep");
    usePump({{0, 60}, {50, 60}});
    sweep();
    // At 10 GPM the system needs 51 ft; above the table it needs 11 again.
    EXPECT_EQ(table.GpmPerNozzle[1], 50);
    EXPECT_EQ(table.LpmPerNozzle[1], 189.3F);
}

TEST_F(SweepTest, EightNozzlesSweepOneToEightAndListNineEntries) {
    site.Pump = ComponentChoice{-1, "None"};
    site.NoOfNozzle = "8";
    CreateFlowTable(table, NextEvenNozzles(8));
    sweep();
    EXPECT_EQ(table.GpmList.size(), 9U);
    EXPECT_EQ(table.LpmList.size(), 9U);
    ASSERT_EQ(nozzleLabels.size(), 10U); // n ends at 9
    for (int n = 1; n <= 8; ++n) {
        EXPECT_EQ(nozzleLabels[static_cast<std::size_t>(n)], static_cast<Single>(n));
    }
    EXPECT_EQ(nozzleLabels[9], 0);
    EXPECT_EQ(table.NozzleAxis, (std::vector<Single>{0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10}));
}

TEST_F(SweepTest, ZeroNozzlesDoNoPassAndListOnlyIndexZero) {
    site.NoOfNozzle = "0";
    sweep();
    EXPECT_EQ(table.GpmList, (std::vector<Single>{0}));
    EXPECT_EQ(table.LpmList, (std::vector<Single>{0}));
    EXPECT_EQ(nozzleLabels, (std::vector<Single>{0, 0}));
}

TEST_F(SweepTest, NumberOfNozzlesIsReadAsADouble) {
    site.Pump = ComponentChoice{-1, "None"};
    site.NoOfNozzle = "2.5";
    sweep();
    EXPECT_EQ(table.GpmList.size(), 3U);
    site.NoOfNozzle = " 3 ";
    sweep();
    EXPECT_EQ(table.GpmList.size(), 4U);
    site.NoOfNozzle = "x";
    EXPECT_EQ(failureOf([&] { sweep(); }), "Type mismatch");
}

TEST_F(SweepTest, RawFlowIsRoundedToOneDecimalAndLitresComeFromTheRoundedFlow) {
    // Index 0 is never swept but is rounded with the others.
    site.NoOfNozzle = "0";
    table.GpmPerNozzle[0] = 12.30002F;
    sweep();
    EXPECT_EQ(table.GpmPerNozzle[0], 12.3F);
    EXPECT_EQ(table.LpmPerNozzle[0], 46.6F); // 12.3 x 3.78564 = 46.563...
    EXPECT_EQ(table.GpmList[0], 12.3F);
    EXPECT_EQ(table.LpmList[0], 46.6F);
    EXPECT_EQ(singleText(table.LpmList[0]), "46.6");
}

TEST_F(SweepTest, RoundingIsHalfToEven) {
    site.NoOfNozzle = "0";
    table.GpmPerNozzle[0] = 0.25F; // exactly half way
    sweep();
    EXPECT_EQ(table.GpmPerNozzle[0], 0.2F);
}

TEST_F(SweepTest, ElementsAboveTheNozzlesSweptKeepWhatTheyHeld) {
    site.NoOfNozzle = "2";
    table.GpmPerNozzle[5] = 33.33F;
    table.LpmPerNozzle[5] = 126.17F;
    sweep();
    EXPECT_EQ(table.GpmPerNozzle[5], 33.33F);
    EXPECT_EQ(table.LpmPerNozzle[5], 126.17F);
    EXPECT_EQ(table.GpmList.size(), 3U);
}

TEST_F(SweepTest, TwoCalculatesWithUnchangedInputGiveIdenticalTables) {
    sweep();
    const FlowTable first = table;
    const std::vector<Single> firstLabels = nozzleLabels;
    sweep();
    EXPECT_EQ(table.GpmPerNozzle, first.GpmPerNozzle);
    EXPECT_EQ(table.LpmPerNozzle, first.LpmPerNozzle);
    EXPECT_EQ(table.GpmList, first.GpmList);
    EXPECT_EQ(table.LpmList, first.LpmList);
    EXPECT_EQ(nozzleLabels, firstLabels);
}

TEST_F(SweepTest, CalculateClearsTheNozzleLabelsFirst) {
    site.Pump = ComponentChoice{-1, "None"};
    site.NoOfNozzle = "2";
    nozzleLabels = {9, 5, 6, 7, 8, 9};
    sweep(SweepButton::Calculate);
    EXPECT_EQ(nozzleLabels, (std::vector<Single>{0, 1, 2, 0}));
}

TEST_F(SweepTest, BaselineKeepsTheNozzleLabelsUntilEachPassResizesThem) {
    site.Pump = ComponentChoice{-1, "None"};
    site.NoOfNozzle = "2";
    nozzleLabels = {9, 5, 6, 7, 8, 9};
    sweep(SweepButton::BaseLine);
    // Element 0 is never written; each pass cuts the array to one above its n.
    EXPECT_EQ(nozzleLabels, (std::vector<Single>{9, 1, 2, 0}));
}

TEST_F(SweepTest, BaselineWithoutAPassLeavesTheNozzleLabelsAlone) {
    site.NoOfNozzle = "0";
    nozzleLabels = {9, 5, 6, 7, 8, 9};
    sweep(SweepButton::BaseLine);
    EXPECT_EQ(nozzleLabels, (std::vector<Single>{9, 5, 6, 7, 8, 9}));
}

TEST_F(SweepTest, NumberOfNozzlesBeyondTheTableFailsOutOfRange) {
    site.Pump = ComponentChoice{-1, "None"};
    CreateFlowTable(table, 4);
    site.NoOfNozzle = "5";
    EXPECT_EQ(failureOf([&] { sweep(); }), "Subscript out of range");
    // The passes up to the size of the table were stored.
    EXPECT_EQ(nozzleLabels, (std::vector<Single>{0, 1, 2, 3, 4, 0}));
}

TEST_F(SweepTest, UnitSettingDoesNotChangeTheSweepOfAnUnconvertedSite) {
    site.Mode = PipingMode::Basic;
    site.HoseLen = 0;
    site.TankDiameter = 0;
    site.BuryDepth = 0;
    site.Rise = 0;
    sweep();
    const FlowTable us = table;
    site.IsMetric = true;
    sweep();
    EXPECT_EQ(table.GpmPerNozzle, us.GpmPerNozzle);
    EXPECT_EQ(table.LpmPerNozzle, us.LpmPerNozzle);
}

TEST(NextEvenNozzles, IsTheNextEvenNumberStrictlyAbove) {
    const std::pair<Integer, Integer> cases[] = {{8, 10}, {7, 8}, {0, 2}, {1, 2}, {40, 42}, {99, 100}, {-3, -2}};
    for (const auto& [entered, expected] : cases) {
        EXPECT_EQ(NextEvenNozzles(entered), expected) << entered;
    }
}

TEST(NextEvenNozzles, OverflowsAtTheEndOfTheIntegerRange) {
    EXPECT_EQ(NextEvenNozzles(32765), 32766);
    EXPECT_EQ(failureOf([] { NextEvenNozzles(32766); }), "Overflow");
}

TEST(CreateFlowTable, CreatesTheThreeArraysAnewAndCleared) {
    FlowTable table;
    CreateFlowTable(table, 4);
    table.GpmPerNozzle[2] = 5;
    table.NozzleAxis[3] = 3;
    CreateFlowTable(table, 6);
    EXPECT_EQ(table.GpmPerNozzle, std::vector<Single>(7, 0));
    EXPECT_EQ(table.LpmPerNozzle, std::vector<Single>(7, 0));
    EXPECT_EQ(table.NozzleAxis, std::vector<Single>(7, 0));
    EXPECT_TRUE(table.GpmList.empty());
    EXPECT_TRUE(table.LpmList.empty());
}

TEST(FillNozzleAxis, PutsEachIndexAtItsPlace) {
    FlowTable table;
    CreateFlowTable(table, 4);
    FillNozzleAxis(table);
    EXPECT_EQ(table.NozzleAxis, (std::vector<Single>{0, 1, 2, 3, 4}));
}

} // namespace
} // namespace vesk
