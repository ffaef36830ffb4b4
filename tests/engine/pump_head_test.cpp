// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// Tests of the head of the pump set from the pump's curve.
#include "hydraulic_fixture.h"

#include "engine/component_lookup.h"

#include <gtest/gtest.h>

namespace vesk {
namespace {

using test::bitsOf;
using test::fixtureCatalogues;
using test::fixtureSite;
using test::recordOf;
using test::spareRecord;

class PumpHeadTest : public ::testing::Test {
  protected:
    void SetUp() override {
        catalogues.of(ComponentKind::Pump).Records = {
            recordOf("P200", false, {{0, 200}, {30, 150}, {60, 80}}),
            spareRecord(),
        };
        site.Pump = ComponentChoice{0, "P200"};
    }
    Single headAt(Single totalGpm) const { return PumpHead(site, catalogues, totalGpm); }

    SiteDescription site = fixtureSite();
    Catalogues catalogues = fixtureCatalogues();
};

struct PumpCase {
    Byte quantity;
    Single totalGpm;
    Single expectedHeadFt;
};

TEST_F(PumpHeadTest, QuantityScalesTheFlowAxisNotTheHead) {
    const PumpCase cases[] = {
        {1, 45, 115},  {2, 90, 115},   {1, 60, 80},
        {1, 60.1F, 0}, {1, 0, 0},      {1, -3, 0},
        {4, 180, 115}, {4, 240, 80},   {4, 240.1F, 0},
        {1, 15, 175},  {3, 0, 0},      {1, 30, 150},
        {2, 120, 80},  {2, 120.1F, 0}, {1, 0.1F, toSingle(Double{toSingle(-50.0)} * toSingle(0.1F / 30.0) + 200)},
    };
    for (const PumpCase& c : cases) {
        site.Quantity = c.quantity;
        EXPECT_EQ(bitsOf(headAt(c.totalGpm)), bitsOf(c.expectedHeadFt))
            << "quantity " << int{c.quantity} << " at " << c.totalGpm << " GPM: " << singleText(headAt(c.totalGpm));
    }
}

TEST_F(PumpHeadTest, FrequencyWithoutARecordGivesZero) {
    site.Is50Hz = true;
    EXPECT_EQ(headAt(45), 0);
    site.Is50Hz = false;
    EXPECT_EQ(headAt(45), 115);
}

TEST_F(PumpHeadTest, FrequencyPicksTheRecordOfThatFrequency) {
    catalogues.of(ComponentKind::Pump)
        .Records.insert(catalogues.of(ComponentKind::Pump).Records.begin(),
                        recordOf("P200", true, {{0, 100}, {50, 50}}));
    site.Is50Hz = true;
    EXPECT_EQ(headAt(25), 75);
    site.Is50Hz = false;
    EXPECT_EQ(headAt(45), 115);
}

TEST_F(PumpHeadTest, FuelAndMarketDoNotEnter) {
    site.IsGas = false;
    site.Market = 'C';
    EXPECT_EQ(headAt(45), 115);
}

TEST_F(PumpHeadTest, NothingSelectedGivesZero) {
    site.Pump = ComponentChoice{-1, "P200"};
    EXPECT_EQ(headAt(45), 0);
}

TEST_F(PumpHeadTest, PumpStandingLastInItsCatalogueGivesZero) {
    catalogues.of(ComponentKind::Pump).Records.pop_back();
    EXPECT_EQ(headAt(45), 0);
}

TEST_F(PumpHeadTest, OnePointFirstRecordDoesNotSilenceThePumps) {
    catalogues.of(ComponentKind::Pump)
        .Records.insert(catalogues.of(ComponentKind::Pump).Records.begin(), recordOf("Solo", false, {{10, 100}}));
    EXPECT_EQ(headAt(45), 115);
}

TEST_F(PumpHeadTest, EmptyCatalogueGivesZero) {
    catalogues.of(ComponentKind::Pump).Records.clear();
    EXPECT_EQ(headAt(45), 0);
}

TEST_F(PumpHeadTest, SecondCurveOfTheSameNameIsSearchedWhenTheFirstDoesNotReach) {
    catalogues.of(ComponentKind::Pump).Records = {
        recordOf("P200", false, {{0, 200}, {30, 150}}),
        recordOf("P200", false, {{0, 90}, {100, 40}}),
        spareRecord(),
    };
    EXPECT_EQ(headAt(30), 150);
    EXPECT_EQ(headAt(50), 65);
}

// 3 x 33.3333321 is 99.9999962 in Double but 100 as a Single: the bracket test
// on Singles holds the flow 100, and M is computed from the Double products.
TEST_F(PumpHeadTest, BracketTestComparesTheScaledFlowsAsSingles) {
    catalogues.of(ComponentKind::Pump).Records[0] = recordOf("P200", false, {{0, 100}, {33.3333321F, 50}});
    site.Quantity = 3;
    EXPECT_EQ(headAt(100), 50);
    EXPECT_EQ(headAt(100.00001F), 0);
}

TEST_F(PumpHeadTest, ResolvedPumpGivesWhatTheStandAloneFunctionGives) {
    site.Quantity = 2;
    const ResolvedPump pump = ResolveComponents(site, catalogues).pump;
    EXPECT_EQ(pump.quantity, 2);
    ASSERT_EQ(pump.candidates.size(), 1U);
    for (const Single flowGpm : {0.0F, 0.1F, 13.7F, 60.0F, 99.9F, 120.0F, 120.1F}) {
        EXPECT_EQ(bitsOf(PumpHead(pump, flowGpm)), bitsOf(headAt(flowGpm)));
    }
}

} // namespace
} // namespace vesk
