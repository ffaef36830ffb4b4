// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// A sweep whose pump never gives out ends with "Overflow" instead of hanging.
#include "engine/flow_sweep.h"
#include "hydraulic_fixture.h"

#include <gtest/gtest.h>

namespace vesk {
namespace {

using test::bareSite;
using test::failureOf;
using test::fixtureCatalogues;
using test::fixturePiping;
using test::recordOf;
using test::spareRecord;

TEST(EndlessSweep, APumpThatNeverGivesOutEndsWithOverflowWhenTheTrialFlowStopsGrowing) {
    // A pump curve far beyond any flow, against a system of no length and no
    // components: the trial flow climbs until a Single cannot hold another
    // 0.1 GPM, some 21 million steps, where the stepping would repeat forever.
    Catalogues catalogues = fixtureCatalogues();
    catalogues.of(ComponentKind::Pump).Records = {recordOf("Endless", false, {{0, 1.0E9F}, {1.0E12F, 1.0E9F}}),
                                                   spareRecord()};
    SiteDescription site = bareSite();
    site.Pump = ComponentChoice{0, "Endless"};
    site.NoOfNozzle = "1";
    const PipingTables piping = fixturePiping();
    const HydraulicSite hydraulics(site, piping, catalogues);
    FlowTable table;
    CreateFlowTable(table, NextEvenNozzles(1));
    std::vector<Single> labels;
    EngineScratch scratch;
    EXPECT_EQ(failureOf([&] { Sweep(table, labels, SweepButton::Calculate, hydraulics, scratch); }), "Overflow");
    EXPECT_EQ(scratch.TrialFlow, 2097152.0F);
}

} // namespace
} // namespace vesk
