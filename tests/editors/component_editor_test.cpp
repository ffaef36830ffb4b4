// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The editor family: load, Add, Edit, Delete, the name check, Save, Clear, Ok, Cancel and the head views.
#include "editor_rig.h"

#include <gtest/gtest.h>

namespace vesk {
namespace {

using test::addAndSave;
using test::EditorRig;
using test::indexOf;
using test::metricFolder;
using test::recordText;
using test::TempProgramFolder;
using test::typeCell;
using test::typeTable;

const std::vector<std::pair<std::string, std::string>> fivePoints{
    {"2", "0.5"}, {"4", "1.8"}, {"6", "3.9"}, {"8", "7.1"}, {"10", "11.2"}};

// A program folder whose breakaway file holds the shipped records and custom ones behind them.
TempProgramFolder withCustomBreakaways(std::initializer_list<std::string_view> names) {
    TempProgramFolder folder = TempProgramFolder::copyOfShipped();
    std::string text = folder.read("Components/BRK.DAT");
    for (const std::string_view name : names) {
        text += recordText(name, "A", true, "#Custom#", {"0,0", "10,2.5", "20,9.1"});
    }
    folder.write("Components/BRK.DAT", text);
    return folder;
}

TEST(EditorLoad, ListsEveryRecordAndStartsInBrowse) {
    EditorRig rig(ComponentKind::Breakaway);
    const EditorControls& c = rig->controls();
    ASSERT_EQ(c.list.size(), rig.catalogue().Records.size());
    EXPECT_EQ(c.listIndex, 0);
    EXPECT_FALSE(c.nameEnabled);
    EXPECT_FALSE(c.fuelFrameEnabled);
    EXPECT_FALSE(c.headFrameEnabled);
    EXPECT_TRUE(c.gas.value);
    EXPECT_TRUE(c.feet.value);
    EXPECT_EQ(c.grid.rowCount(), 13U);
    EXPECT_FALSE(c.gridInTabOrder);
    EXPECT_TRUE(c.addEnabled && c.editEnabled && c.deleteEnabled && c.okEnabled && c.cancelEnabled);
    EXPECT_FALSE(c.saveEnabled || c.clearEnabled);
    EXPECT_EQ(c.feetCaption, "Feet");
    EXPECT_EQ(c.tdhCaption, "TDH - Feet");
    EXPECT_EQ(c.gpmCaption, "GPM");
    EXPECT_TRUE(rig.ui().shown.empty());
}

TEST(EditorLoad, MetricUnitsShowMetresAndLitresAndConvertTheCatalogue) {
    EditorRig rig(ComponentKind::Breakaway, metricFolder());
    EXPECT_EQ(rig->controls().feetCaption, "Meter");
    EXPECT_EQ(rig->controls().tdhCaption, "TDH - Meter");
    EXPECT_EQ(rig->controls().gpmCaption, "LPM");
    EXPECT_TRUE(rig.session.metricPair[static_cast<int>(ComponentKind::Breakaway) - 1]);
    // 2 GPM is 7.6 LPM; 0.13 ft is 0.04 m, rounded to 0.
    EXPECT_EQ(rig.catalogue().Records[0].Curve.Flow[1], 7.6F);
    EXPECT_EQ(rig.catalogue().Records[0].Curve.Head[1], 0.0F);
}

TEST(EditorLoad, TheDispenserEditorCaptionsItsHeadWithoutBlanks) {
    EditorRig rig(ComponentKind::Dispenser);
    EXPECT_EQ(rig->controls().tdhCaption, "TDH-Feet");
}

TEST(EditorDelete, DeleteOfAStandardRecordShowsMessage1AndChangesNothing) {
    EditorRig rig(ComponentKind::Breakaway);
    const std::string before = rig.file();
    const std::size_t records = rig.catalogue().Records.size();
    rig->selectListEntry(2);
    rig->deleteSelected();
    EXPECT_EQ(rig.ui().shown, (std::vector<std::string>{"Selected Component is Standard -- Cannot be Deleted"}));
    EXPECT_FALSE(rig->controls().custom);
    EXPECT_EQ(rig->controls().listIndex, 0);
    EXPECT_EQ(rig.catalogue().Records.size(), records);
    EXPECT_EQ(rig->controls().list.size(), records);
    rig->ok();
    EXPECT_EQ(rig.file(), before);
}

TEST(EditorDelete, DeleteAsksWithTheKindsPromptAndCancelKeepsTheRecord) {
    EditorRig rig(ComponentKind::Breakaway, withCustomBreakaways({"My Breakaway"}));
    const int index = indexOf(rig.catalogue(), "My Breakaway");
    rig->selectListEntry(index);
    rig->deleteSelected();
    EXPECT_EQ(rig.ui().shown, (std::vector<std::string>{"Delete Breakaway - My Breakaway"}));
    EXPECT_TRUE(rig->controls().custom);
    EXPECT_EQ(rig->controls().listIndex, 0);
    EXPECT_EQ(indexOf(rig.catalogue(), "My Breakaway"), index);
}

TEST(EditorDelete, DeleteOfACustomRecordMovesTheOthersDownAndOkWritesTheFile) {
    EditorRig rig(ComponentKind::Breakaway, withCustomBreakaways({"First Custom", "Second Custom"}));
    const std::size_t records = rig.catalogue().Records.size();
    rig->selectListEntry(indexOf(rig.catalogue(), "First Custom"));
    rig.ui().answers = {Answer::Yes};
    rig->deleteSelected();
    EXPECT_TRUE(rig->deleted());
    EXPECT_EQ(rig.catalogue().Records.size(), records - 1);
    EXPECT_EQ(rig.catalogue().Records.back().Name, "Second Custom");
    EXPECT_EQ(rig->controls().list.back(), "Second Custom");
    EXPECT_EQ(rig->controls().grid.rowCount(), 12U);
    EXPECT_FALSE(rig->controls().custom);
    rig->ok();
    EXPECT_EQ(indexOf(rig.catalogueOnDisk(), "First Custom"), -1);
    EXPECT_EQ(indexOf(rig.catalogueOnDisk(), "Second Custom"), static_cast<int>(records) - 2);
}

TEST(EditorDelete, DeleteOfTheOnlyRecordLeavesTopAtMinusOneAndEditAndDeleteThenDoNothing) {
    TempProgramFolder folder = TempProgramFolder::copyOfShipped();
    folder.write("Components/BRK.DAT", recordText("One", "A", true, "#Custom#", {"0,0", "10,2"}) +
                                           recordText("Two", "A", true, "#Custom#", {"0,0", "10,2"}));
    EditorRig rig(ComponentKind::Breakaway, std::move(folder));
    rig.ui().answers = {Answer::Yes};
    rig->deleteSelected();
    EXPECT_EQ(rig.catalogue().Top(), 0);
    rig.ui().answers = {Answer::Yes};
    rig->deleteSelected();
    EXPECT_EQ(rig.catalogue().Top(), -1);
    EXPECT_TRUE(rig->controls().list.empty());
    rig.ui().shown.clear();
    rig->edit();
    EXPECT_FALSE(rig.session.Editing);
    rig->deleteSelected();
    EXPECT_TRUE(rig.ui().shown.empty());
    EXPECT_EQ(rig.catalogue().Top(), -1);
}

TEST(EditorNameCheck, AddingANameEqualToAnExistingOneInAnotherCaseGivesMessage2) {
    EditorRig rig(ComponentKind::Breakaway);
    rig->add();
    std::string name = rig.catalogue().Records[3].Name;
    for (char& c : name) {
        c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    }
    rig->setName(name);
    EXPECT_TRUE(rig->nameLostFocus());
    EXPECT_EQ(rig.ui().shown, (std::vector<std::string>{"Component Name already exists - Please Enter Other name"}));
    EXPECT_EQ(rig->takeFocusRequest(), EditorControl::NameBox);
    EXPECT_EQ(rig->controls().listIndex, 0);
}

TEST(EditorNameCheck, AddingNoneGivesMessage30) {
    EditorRig rig(ComponentKind::Nozzle);
    rig->add();
    rig->setName("NONE");
    EXPECT_TRUE(rig->nameLostFocus());
    EXPECT_EQ(rig.ui().shown, (std::vector<std::string>{"Component Name cannot be None"}));
}

TEST(EditorNameCheck, BlanksAtEitherEndAreCheckedBeforeTheEmptyCheck) {
    EditorRig rig(ComponentKind::Breakaway);
    rig->add();
    rig->setName("Mine ");
    EXPECT_TRUE(rig->nameLostFocus());
    rig->setName(" Mine");
    EXPECT_TRUE(rig->nameLostFocus());
    rig->setName(" ");
    EXPECT_TRUE(rig->nameLostFocus());
    rig->setName("");
    EXPECT_TRUE(rig->nameLostFocus());
    EXPECT_EQ(rig.ui().shown, (std::vector<std::string>{"Last Character of Component Name cannot have space",
                                                        "First Character of Component Name cannot have space",
                                                        "First Character of Component Name cannot have space",
                                                        "Enter Component name"}));
}

TEST(EditorNameCheck, AnEmptyNameInBrowseGivesNothing) {
    EditorRig rig(ComponentKind::Breakaway);
    EXPECT_FALSE(rig->nameLostFocus());
    EXPECT_TRUE(rig.ui().shown.empty());
}

TEST(EditorNameCheck, AnUnchangedNameInEditingIsGood) {
    EditorRig rig(ComponentKind::Breakaway, withCustomBreakaways({"Mine"}));
    rig->selectListEntry(indexOf(rig.catalogue(), "Mine"));
    rig->edit();
    EXPECT_FALSE(rig->nameLostFocus());
    rig->setName(rig.catalogue().Records[0].Name);
    EXPECT_TRUE(rig->nameLostFocus());
    EXPECT_EQ(rig.ui().shown, (std::vector<std::string>{"Component Name already exists - Please Enter Other name"}));
    EXPECT_EQ(rig->controls().listIndex, indexOf(rig.catalogue(), "Mine"));
}

TEST(EditorNameCheck, PressingClearWithABadNameGivesNoMessage) {
    EditorRig rig(ComponentKind::Breakaway);
    rig->add();
    rig->setName(" bad ");
    rig->mouseDownOnClear();
    EXPECT_FALSE(rig->nameLostFocus());
    rig->clear();
    EXPECT_TRUE(rig.ui().shown.empty());
    EXPECT_FALSE(rig->skipNameCheck());
}

TEST(EditorNameCheck, APressOnClearOrCancelNeverRaisesAGridMessage) {
    for (const bool cancel : {false, true}) {
        EditorRig rig(ComponentKind::Breakaway);
        rig->add();
        typeCell(*rig, 0, 0, "1000");
        if (cancel) {
            rig->mouseDownOnCancel();
        } else {
            rig->mouseDownOnClear();
        }
        EXPECT_FALSE(rig->gridLeaveCell());
        EXPECT_TRUE(rig.ui().shown.empty());
    }
}

TEST(EditorSave, AddAndSaveStoresTheRecordRoundedWithTheListsLetter) {
    EditorRig rig(ComponentKind::Nozzle);
    const std::size_t records = rig.catalogue().Records.size();
    addAndSave(*rig, "My Nozzle", {{"2.25", "0.25"}, {"4", "1.8"}});
    ASSERT_EQ(rig.catalogue().Records.size(), records + 1);
    const ComponentRecord& record = rig.catalogue().Records.back();
    EXPECT_EQ(record.Name, "My Nozzle");
    EXPECT_EQ(record.Origin, "#Custom#");
    EXPECT_EQ(record.ListCodes, "A");
    EXPECT_TRUE(record.IsGas);
    EXPECT_EQ(record.Curve.PointCount, 2);
    EXPECT_EQ(record.Curve.Flow[0], 2.2F); // 2.25 held as a Single, then to 1 decimal, half to even
    EXPECT_EQ(record.Curve.Head[0], 0.2F);
    EXPECT_EQ(rig->controls().list.back(), "My Nozzle");
    EXPECT_TRUE(rig->addSaved());
    EXPECT_FALSE(rig->controls().nameEnabled);
    EXPECT_FALSE(rig->controls().saveEnabled);
}

TEST(EditorSave, SaveAndOkForceFeetFirstSoAPsiTableIsStoredAsHead) {
    EditorRig rig(ComponentKind::Breakaway);
    rig->add();
    rig->setName("Psi Table");
    typeTable(*rig, {{"10", "100"}});
    rig->clickPsi();
    EXPECT_EQ(rig->controls().grid.cell(0, 1), "31.2");
    EXPECT_EQ(rig->controls().tdhCaption, "PSI");
    rig->save();
    EXPECT_EQ(rig.catalogue().Records.back().Curve.Head[0], 100.1F);
}

TEST(EditorSave, AFuelClickInFeetModeChangesNoCell) {
    EditorRig rig(ComponentKind::Breakaway);
    rig->add();
    typeTable(*rig, {{"10", "100"}});
    const GridRows before = rig->controls().grid.rows();
    rig->clickDiesel();
    rig->clickGas();
    EXPECT_EQ(rig->controls().grid.rows(), before);
}

TEST(EditorSave, WithPsiShownDieselAfterGasTurns31Point2Into37Point7) {
    EditorRig rig(ComponentKind::Breakaway);
    rig->add();
    typeTable(*rig, {{"10", "100"}});
    rig->clickPsi();
    rig->clickDiesel();
    EXPECT_EQ(rig->controls().grid.cell(0, 1), "37.7");
}

TEST(EditorSave, TheNewRecordsPlaceIsTheCatalogueEndWhateverAClickDidToSelected) {
    EditorRig rig(ComponentKind::Breakaway);
    rig->add();
    EXPECT_EQ(rig->selected(), rig.catalogue().Top() + 1);
    rig->setName("At The End");
    rig->clickPsi();
    EXPECT_EQ(rig->selected(), 0);
    rig->save();
    EXPECT_EQ(rig.catalogue().Records.back().Name, "At The End");
    EXPECT_NE(rig.catalogue().Records[0].Name, "At The End");
}

TEST(EditorEdit, TheStandardRecordsViewHasItsOptionsDisabledAndRefusesKeys) {
    EditorRig rig(ComponentKind::Breakaway);
    rig->selectListEntry(1);
    rig->edit();
    const EditorControls& c = rig->controls();
    EXPECT_FALSE(c.nameEnabled);
    EXPECT_EQ(c.name, rig.catalogue().Records[1].Name);
    EXPECT_FALSE(c.gas.enabled || c.diesel.enabled || c.feet.enabled || c.psi.enabled);
    EXPECT_TRUE(c.diesel.value); // record 1 is the diesel twin
    EXPECT_TRUE(c.gridInTabOrder);
    EXPECT_EQ(c.grid.rowCount(), static_cast<std::size_t>(rig.catalogue().Records[1].Curve.PointCount));
    EXPECT_EQ(c.grid.cell(1, 1), "0.1"); // 0.13 to 1 decimal
    const GridRows before = c.grid.rows();
    rig->gridKeyPress('5');
    rig->gridKeyDown(46);
    EXPECT_EQ(rig->takeBeeps(), 1);
    EXPECT_EQ(c.grid.rows(), before);
}

TEST(EditorEdit, EditingAStandardRecordAndPressingOkGivesItTheListsLetterAndARoundedTable) {
    EditorRig rig(ComponentKind::Breakaway);
    rig->selectListEntry(0);
    rig->edit();
    rig->ok();
    const Catalogue onDisk = rig.catalogueOnDisk();
    EXPECT_EQ(onDisk.Records[0].ListCodes, "A");
    EXPECT_EQ(onDisk.Records[0].Origin, "#Standard#");
    EXPECT_EQ(onDisk.Records[0].Curve.Head[1], 0.1F);
    EXPECT_EQ(onDisk.Records[1].ListCodes, "AIC");
}

TEST(EditorOk, OkRightAfterLoadWritesTheFileUnchangedInUsUnits) {
    EditorRig rig(ComponentKind::Breakaway);
    const std::string before = rig.file();
    rig->ok();
    EXPECT_EQ(rig.file(), before);
    EXPECT_TRUE(rig->closing());
    EXPECT_TRUE(rig->commitOnClose());
}

TEST(EditorOk, OkRightAfterLoadInMetricWritesTheNumbersOfBothConversions) {
    EditorRig rig(ComponentKind::Breakaway, metricFolder());
    rig->ok();
    const Catalogue onDisk = rig.catalogueOnDisk();
    // 2 GPM: 7.6 LPM, back 2.0076 -> 2; 0.13 ft: 0.04 m -> 0, back 0.
    EXPECT_EQ(onDisk.Records[0].Curve.Flow[1], 2.0F);
    EXPECT_EQ(onDisk.Records[0].Curve.Head[1], 0.0F);
    // 25 GPM: 94.641 -> 94.6 LPM, back 24.9892 -> 25; 20.5 ft: 6.2484 -> 6.2 m, back 20.34 -> 20.3.
    EXPECT_EQ(onDisk.Records[0].Curve.Flow[11], 25.0F);
    EXPECT_EQ(onDisk.Records[0].Curve.Head[11], 20.3F);
    EXPECT_FALSE(rig.session.metricPair[static_cast<int>(ComponentKind::Breakaway) - 1]);
}

TEST(EditorOk, AMetricTableComesBackInFeetAndGpmWithTheRounding) {
    EditorRig rig(ComponentKind::Nozzle, metricFolder());
    addAndSave(*rig, "Metric Nozzle", {{"37.9", "3"}, {"75.7", "10.5"}});
    rig->ok();
    const Catalogue onDisk = rig.catalogueOnDisk();
    const ComponentRecord& record = onDisk.Records.back();
    ASSERT_EQ(record.Name, "Metric Nozzle");
    // 37.9 / 3.78564 = 10.0115 -> 10; 3 / 0.3048 = 9.8425 -> 9.8;
    // 75.7 / 3.78564 = 19.997 -> 20; 10.5 / 0.3048 = 34.449 -> 34.4.
    EXPECT_EQ(record.Curve.Flow[0], 10.0F);
    EXPECT_EQ(record.Curve.Head[0], 9.8F);
    EXPECT_EQ(record.Curve.Flow[1], 20.0F);
    EXPECT_EQ(record.Curve.Head[1], 34.4F);
}

TEST(EditorOk, AnOpenEntryWithANameIsCompletedByOk) {
    EditorRig rig(ComponentKind::Nozzle);
    rig->add();
    rig->setName("Open Entry");
    typeTable(*rig, {{"5", "2.5"}, {"10", "8"}});
    rig->ok();
    const ComponentRecord record = rig.catalogueOnDisk().Records.back();
    EXPECT_EQ(record.Name, "Open Entry");
    EXPECT_EQ(record.Curve.PointCount, 2);
    EXPECT_EQ(record.Curve.Head[1], 8.0F);
}

TEST(EditorOk, AnEditStoredWithSaveAndFollowedByClearDoesNotReachTheFile) {
    EditorRig rig(ComponentKind::Breakaway, withCustomBreakaways({"Mine"}));
    const std::string before = rig.file();
    rig->selectListEntry(indexOf(rig.catalogue(), "Mine"));
    rig->edit();
    rig->setName("Renamed");
    rig->save();
    rig->clear();
    rig->ok();
    EXPECT_EQ(rig.file(), before);
    EXPECT_NE(indexOf(rig.catalogue(), "Renamed"), -1); // in memory only
}

TEST(EditorOk, ANewEntryAfterADeletionIsDropped) {
    EditorRig rig(ComponentKind::Breakaway, withCustomBreakaways({"Gone"}));
    rig->selectListEntry(indexOf(rig.catalogue(), "Gone"));
    rig.ui().answers = {Answer::Yes};
    rig->deleteSelected();
    rig->add();
    rig->setName("Dropped");
    typeTable(*rig, {{"5", "1"}});
    rig->ok();
    EXPECT_EQ(indexOf(rig.catalogueOnDisk(), "Dropped"), -1);
    EXPECT_EQ(indexOf(rig.catalogueOnDisk(), "Gone"), -1);
}

TEST(EditorOk, OkRefillsTheMainWindowsLists) {
    EditorRig rig(ComponentKind::Nozzle);
    addAndSave(*rig, "Listed Nozzle", {{"5", "1"}});
    rig->ok();
    const auto entries = rig.started.app.panel.cmbNozzle.Entries();
    EXPECT_NE(std::find(entries.begin(), entries.end(), "Listed Nozzle"), entries.end());
}

TEST(EditorOk, APastedHashInANameIsNotCaughtAndBreaksTheHeaderLine) {
    EditorRig rig(ComponentKind::Nozzle);
    addAndSave(*rig, "Bad#Name", {{"5", "1"}});
    rig->ok();
    EXPECT_NE(rig.file().find("$Bad#Name #A\r\n"), std::string::npos);
    EXPECT_EQ(indexOf(rig.catalogueOnDisk(), "Bad#Name"), -1);
}

TEST(EditorCancel, NoLeavesTheFileAsItWasAndYesSavesWhatSaveStored) {
    {
        EditorRig rig(ComponentKind::Nozzle);
        const std::string before = rig.file();
        addAndSave(*rig, "Not Written", {{"5", "1"}});
        rig.ui().answers = {Answer::No};
        rig->cancel();
        EXPECT_TRUE(rig->closing());
        EXPECT_EQ(rig.ui().shown.back(), "Do you want to Save changes?");
        EXPECT_EQ(rig.file(), before);
        EXPECT_TRUE(rig->queryClose()); // the close that follows asks nothing more
        EXPECT_EQ(rig.ui().shown.back(), "Do you want to Save changes?");
    }
    {
        EditorRig rig(ComponentKind::Nozzle);
        addAndSave(*rig, "Written", {{"5", "1"}});
        rig.ui().answers = {Answer::Yes};
        rig->cancel();
        EXPECT_TRUE(rig->closing());
        EXPECT_NE(indexOf(rig.catalogueOnDisk(), "Written"), -1);
    }
}

TEST(EditorCancel, CancellingTheQuestionKeepsTheDialogOpen) {
    EditorRig rig(ComponentKind::Nozzle);
    rig->cancel();
    EXPECT_FALSE(rig->closing());
    EXPECT_FALSE(rig->queryClose());
    EXPECT_FALSE(rig->closing());
}

TEST(EditorCancel, ANoInMetricLeavesTheCatalogueMetricUntilTheNextLoadSetsItRight) {
    EditorRig rig(ComponentKind::Breakaway, metricFolder());
    const Single metricFlow = rig.catalogue().Records[0].Curve.Flow[1];
    rig.ui().answers = {Answer::No};
    rig->cancel();
    EXPECT_EQ(rig.catalogue().Records[0].Curve.Flow[1], metricFlow);
    rig.open();
    EXPECT_EQ(rig.catalogue().Records[0].Curve.Flow[1], metricFlow); // not converted twice
}

} // namespace
} // namespace vesk
