// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The pump editor and the hose editor: what they do apart from the family.
#include "editor_rig.h"
#include "workbench/panel_state.h"

#include <gtest/gtest.h>

namespace vesk {
namespace {

using test::addAndSave;
using test::EditorRig;
using test::indexOf;
using test::metricFolder;
using test::typeCell;
using test::typeTable;

bool offers(const ComboList& list, std::string_view name) {
    const auto entries = list.Entries();
    return std::find(entries.begin(), entries.end(), name) != entries.end();
}

TEST(PumpEditor, LoadsEveryPumpOfEveryListAndBothFrequencies) {
    EditorRig rig(ComponentKind::Pump);
    EXPECT_EQ(rig->controls().list.size(), rig.catalogue().Records.size());
    EXPECT_TRUE(rig->controls().pump60.value);
    EXPECT_FALSE(rig->controls().pump50.value);
    EXPECT_FALSE(rig->controls().pump50.enabled || rig->controls().pump60.enabled);
    EXPECT_EQ(rig->controls().tdhCaption, "TDH - Feet");
}

TEST(PumpEditor, ANewPumpStartsAsA60HzPump) {
    EditorRig rig(ComponentKind::Pump);
    rig->add();
    EXPECT_TRUE(rig->controls().pump60.value);
    EXPECT_TRUE(rig->controls().pump50.enabled && rig->controls().pump60.enabled);
    rig->setName("Sixty");
    typeTable(*rig, {{"10", "200"}, {"40", "100"}});
    rig->save();
    EXPECT_FALSE(rig.catalogue().Records.back().IsGas);
    EXPECT_FALSE(rig.session.Adding); // the pump's Save ends the adding
}

TEST(PumpEditor, APumpAddedAt50HzAppearsInThePumpListOnlyUnder50Hz) {
    EditorRig rig(ComponentKind::Pump);
    rig->add();
    rig->setName("Fifty Custom");
    rig->clickPump50();
    typeTable(*rig, {{"10", "200"}, {"40", "100"}});
    rig->save();
    rig->ok();
    PanelState& panel = rig.started.app.panel;
    EXPECT_TRUE(panel.opt60Hz);
    EXPECT_FALSE(offers(panel.cmbPumps, "Fifty Custom"));
    ClickFrequencyOption(panel, rig.started.app.catalogues, rig.started.app.config, true);
    EXPECT_TRUE(offers(panel.cmbPumps, "Fifty Custom"));
    EXPECT_TRUE(rig.catalogueOnDisk().Records.back().IsGas);
}

TEST(PumpEditor, HeadsHaveNoPsiViewAndThePumpsOwnLimits) {
    EditorRig rig(ComponentKind::Pump);
    rig->add();
    typeCell(*rig, 0, 1, "999.2");
    EXPECT_TRUE(rig->gridLeaveCell());
    rig->gridKeyDown(46);
    test::typeKeys(*rig, "999.1");
    EXPECT_FALSE(rig->gridLeaveCell());
    EXPECT_EQ(rig.ui().shown, (std::vector<std::string>{"Maximum value is 999.1"}));
}

TEST(PumpEditor, MetricHeadsAreHeldTo304Point5) {
    EditorRig rig(ComponentKind::Pump, metricFolder());
    EXPECT_EQ(rig->controls().tdhCaption, "TDH - Meter");
    rig->add();
    typeCell(*rig, 0, 1, "304.6");
    EXPECT_TRUE(rig->gridLeaveCell());
    EXPECT_EQ(rig.ui().shown, (std::vector<std::string>{"Maximum value is 304.5"}));
}

TEST(PumpEditor, ThePumpListHasNoNoneSoASinglePumpLeavesItEmpty) {
    EditorRig rig(ComponentKind::Pump);
    Catalogue& pumps = rig.catalogue();
    pumps.Records.resize(1);
    ApplicationState& app = rig.started.app;
    bool failed = false;
    try {
        LoadAllLists(app.panel, app.catalogues, app.config);
    } catch (const RunTimeFailure&) {
        failed = true;
    }
    EXPECT_TRUE(failed || app.panel.cmbPumps.Entries().empty());
    EXPECT_FALSE(offers(app.panel.cmbPumps, "None"));
}

TEST(HoseEditor, SizesThatFailGiveMessage31AndKeepTheFocus) {
    EditorRig rig(ComponentKind::Hose);
    rig->add();
    for (const char* size : {"/4", "3/", "3/0", "3/ 0", "05", "1 2", "1 /2", "1/ 2"}) {
        rig.ui().shown.clear();
        rig->setName(size);
        EXPECT_TRUE(rig->nameLostFocus()) << size;
        EXPECT_EQ(rig.ui().shown, (std::vector<std::string>{"Enter Valid Hose Size"})) << size;
    }
}

TEST(HoseEditor, SizesThatPassAndNoneIsNoSpecialName) {
    EditorRig rig(ComponentKind::Hose);
    rig->add();
    for (const char* size : {"1 3/4", "12"}) {
        rig->setName(size);
        EXPECT_FALSE(rig->nameLostFocus()) << size;
    }
    rig->setName("1 1/4"); // a size the catalogue has, on the Commercial list
    EXPECT_TRUE(rig->nameLostFocus());
    EXPECT_EQ(rig.ui().shown, (std::vector<std::string>{"Component Name already exists - Please Enter Other name"}));
}

TEST(HoseEditor, AddShowsTheStandardLengthByUnits) {
    EditorRig us(ComponentKind::Hose);
    us->add();
    EXPECT_EQ(us->controls().hoseLength, "100");
    EXPECT_FALSE(us->controls().hoseLengthEnabled);
    EXPECT_EQ(us->controls().hoseLengthCaption, "Hose Length(ft)");
    EditorRig metric(ComponentKind::Hose, metricFolder());
    metric->add();
    EXPECT_EQ(metric->controls().hoseLength, "30.48");
    EXPECT_EQ(metric->controls().hoseLengthCaption, "Hose Length(m)");
}

TEST(HoseEditor, ACustomHoseOf150FeetCannotBeEntered) {
    EditorRig rig(ComponentKind::Hose);
    rig->add();
    rig->clickHoseCustomized();
    EXPECT_TRUE(rig->controls().hoseLengthEnabled);
    rig->setHoseLength("150");
    rig->hoseLengthLostFocus();
    EXPECT_EQ(rig->controls().hoseLength, "100");
    EXPECT_EQ(rig.ui().shown, (std::vector<std::string>{"Maximum Value can be entered is 100"}));
}

TEST(HoseEditor, ACustomHoseKeepsItsLengthAndTheFileKeepsItsName) {
    EditorRig rig(ComponentKind::Hose, test::withoutHoseSize("1 1/4"));
    rig->add();
    rig->setName("1 1/4");
    EXPECT_FALSE(rig->nameLostFocus());
    rig->clickHoseCustomized();
    rig->setHoseLength("50");
    rig->hoseLengthLostFocus();
    typeTable(*rig, {{"5", "2"}, {"10", "7.5"}});
    rig->save();
    EXPECT_EQ(rig.catalogue().Records.back().HoseLength, 50.0F);
    EXPECT_FALSE(rig->controls().hoseLengthEnabled);
    rig->ok();
    const ComponentRecord onDisk = rig.catalogueOnDisk().Records.back();
    EXPECT_EQ(onDisk.Name, "1 1/4");
    EXPECT_EQ(onDisk.HoseLength, 50.0F);
    EXPECT_EQ(onDisk.Origin, "#Custom#");
    // Read from HOSES.DAT, written back to the same file: no second spelling appears.
    const auto files = test::filesIn(rig.started.folder.path() / "Components");
    EXPECT_EQ(files.count("HOSES.DAT"), 1U);
    EXPECT_EQ(files.count("Hoses.DAT"), 0U);
    EXPECT_EQ(traitsOf(ComponentKind::Hose).fileAsWritten, "Hoses.DAT");
}

TEST(HoseEditor, EditShowsTheLengthOfACustomHoseAndLocksAStandardOne) {
    EditorRig rig(ComponentKind::Hose);
    rig->selectListEntry(0);
    rig->edit();
    EXPECT_EQ(rig->controls().hoseLength, "100");
    EXPECT_FALSE(rig->controls().hoseLengthEnabled);
    EXPECT_FALSE(rig->controls().hoseStandard.enabled || rig->controls().hoseCustomized.enabled);
}

TEST(HoseEditor, MetricLengthsGoBackToFeetAtOk) {
    EditorRig rig(ComponentKind::Hose, metricFolder());
    rig->add();
    rig->setName("1 1/4");
    rig->clickHoseCustomized();
    rig->setHoseLength("15.24");
    typeTable(*rig, {{"19", "1"}});
    rig->save();
    rig->ok();
    // 15.24 m, held as 15.24, back 50 ft (to 1 decimal).
    EXPECT_EQ(rig.catalogueOnDisk().Records.back().HoseLength, 50.0F);
}

} // namespace
} // namespace vesk
