// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// Update as the main window lives through it: the lists after a merge, and after a merge that failed.
#include "support/started_app.h"
#include "workbench/update_data.h"

#include "catalogue/component_file.h"

#include <gtest/gtest.h>

namespace vesk {
namespace {

using test::RecordingInteraction;
using test::Started;
using test::TempProgramFolder;

const std::string makersNozzles = test::crlfLines({
    "$Maker nozzle 1 #AIC",
    "#TRUE#",
    "#Standard#",
    "#RATELOSS_BEGIN#",
    "0,0",
    "10.5,12.5",
    "20,40",
    "#RATELOSS_END#",
    "$Maker nozzle 2 #AIC",
    "#TRUE#",
    "#Standard#",
    "#RATELOSS_BEGIN#",
    "0,0",
    "12.5,20",
    "#RATELOSS_END#",
});

// A started application whose lists the designer has moved off their first
// entries, and a maker's nozzle file beside the program folder.
struct MovedLists {
    TempProgramFolder folder = TempProgramFolder::copyOfShipped();
    Started started;
    std::string makerFile;

    MovedLists() {
        folder.write("maker/Nozzle.dat", makersNozzles);
        makerFile = (folder.path() / "maker" / "Nozzle.dat").string();
        test::start(folder, started);
        PanelState& panel = started.app.panel;
        panel.cmbNozzle.SetListIndex(2);
        panel.cmbDispenser.SetListIndex(2);
        panel.cmbHoseSize.SetListIndex(1);
        panel.cmbQuantity.SetListIndex(2);
        panel.cmbPiping.SetListIndex(1);
    }
    void expectListsMoved() const {
        const PanelState& panel = started.app.panel;
        EXPECT_EQ(panel.cmbNozzle.ListIndex(), 2);
        EXPECT_EQ(panel.cmbDispenser.ListIndex(), 2);
        EXPECT_EQ(panel.cmbHoseSize.ListIndex(), 1);
        EXPECT_EQ(panel.cmbQuantity.ListIndex(), 2);
        EXPECT_EQ(panel.cmbPiping.ListIndex(), 1);
    }
};

TEST(UpdateFromDialog, ASuccessfulUpdateReloadsTheCataloguesAndPutsTheListsBackOnTheirFirstEntries) {
    MovedLists moved;
    ASSERT_FALSE(moved.started.ended);
    moved.started.ui.answers = {Answer::Yes};
    EXPECT_EQ(UpdateFromDialog(moved.started.app, moved.makerFile, moved.started.ui), UpdateEnd::Merged);

    const PanelState& panel = moved.started.app.panel;
    // The first real entry behind "None", as start-up selects it.
    EXPECT_EQ(panel.cmbNozzle.ListIndex(), 1);
    EXPECT_EQ(panel.cmbNozzle.Text(), "Maker nozzle 1");
    EXPECT_EQ(panel.cmbNozzle.Entries(), (std::vector<std::string>{"None", "Maker nozzle 1", "Maker nozzle 2"}));
    EXPECT_EQ(panel.cmbDispenser.ListIndex(), 1);
    EXPECT_EQ(panel.cmbHoseSize.ListIndex(), 0);
    EXPECT_EQ(panel.cmbQuantity.ListIndex(), 0);
    EXPECT_EQ(panel.cmbPiping.ListIndex(), 0);
    // The catalogue in memory is the file as written, flows as whole numbers.
    const Catalogue& nozzles = moved.started.app.catalogues.of(ComponentKind::Nozzle);
    ASSERT_EQ(nozzles.Top(), 1);
    EXPECT_EQ(nozzles.Records[0].Curve.Flow[1], 10.0F);
    EXPECT_EQ(nozzles.Records[1].Curve.Flow[1], 12.0F);
}

TEST(UpdateFromDialog, AnUpdateThatFailsDoesNotReloadTheMainWindow) {
    MovedLists moved;
    moved.folder.write("maker/Nozzle.dat", "$Broken #A\r\n");
    moved.started.ui.answers = {Answer::Yes};
    EXPECT_EQ(UpdateFromDialog(moved.started.app, moved.makerFile, moved.started.ui), UpdateEnd::Closes);
    EXPECT_EQ(moved.started.ui.shown.back(), "File got corrupted");
    moved.expectListsMoved();
}

TEST(UpdateFromDialog, NoToTheQuestionDoesNotReloadTheMainWindow) {
    MovedLists moved;
    moved.started.ui.answers = {Answer::No};
    EXPECT_EQ(UpdateFromDialog(moved.started.app, moved.makerFile, moved.started.ui), UpdateEnd::Closes);
    moved.expectListsMoved();
}

} // namespace
} // namespace vesk
