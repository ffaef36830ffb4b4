// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The snapshots of the panels, Back To Baseline, and the unsaved-work flag.
#include "support/started_app.h"
#include "workbench/snapshot_store.h"

#include <gtest/gtest.h>

namespace vesk {
namespace {

using test::chooseSettings;
using test::start;
using test::Started;
using test::TempProgramFolder;

class SnapshotTest : public ::testing::Test {
  protected:
    void SetUp() override {
        start(folder, started);
        ASSERT_EQ(started.failure, "");
    }
    ApplicationState& app() { return started.app; }
    PanelState& panel() { return started.app.panel; }

    TempProgramFolder folder = TempProgramFolder::copyOfShipped();
    Started started;
};

TEST_F(SnapshotTest, StartUpTakesAllThreeSnapshotsAndTheBaselineAgain) {
    const Snapshots& snapshots = app().snapshots;
    EXPECT_EQ(snapshots.StartupSnapshot.Dispenser, 1);
    EXPECT_EQ(snapshots.SpareSnapshot.Dispenser, 1);
    EXPECT_EQ(snapshots.StartupSnapshot.TankDiameter, "96");
    EXPECT_EQ(snapshots.StartupSnapshot.IsAdvance, 1);
    EXPECT_EQ(snapshots.SpareSnapshot.IsAdvance, 0) << "the piping mode goes to the start-up snapshot only";
    EXPECT_TRUE(snapshots.BaselineSnapshot.Data) << "the first Calculate stored the Baseline at once";
    EXPECT_EQ(snapshots.BaselineSnapshot.IsAdvance, 1);
}

TEST_F(SnapshotTest, BackToBaselinePutsThePanelsBack) {
    panel().txtTrunkLength = "120";
    panel().cmbDispenser.SetListIndex(2);
    MakeBaseline(app());
    panel().txtTrunkLength = "300";
    panel().cmbDispenser.SetListIndex(1);
    panel().txtRise = "4";
    BackToBaseline(app(), started.ui);
    EXPECT_TRUE(started.ui.shown.empty());
    EXPECT_EQ(panel().txtTrunkLength, "120");
    EXPECT_EQ(panel().cmbDispenser.ListIndex(), 2);
    EXPECT_EQ(panel().txtRise, "0");
}

TEST_F(SnapshotTest, OtherSettingsShowTheMessageAndAreMadeTheBaselineAllTheSame) {
    panel().txtTrunkLength = "120";
    MakeBaseline(app());
    chooseSettings(app(), [](FrmDataOptions& options) {
        options.optGas = false;
        options.optDiesel = true;
    });
    panel().txtTrunkLength = "300";
    BackToBaseline(app(), started.ui);
    EXPECT_EQ(started.ui.shown, std::vector<std::string>{"System Settings has changed"});
    EXPECT_EQ(panel().txtTrunkLength, "300") << "the panels stay as they are";
    EXPECT_EQ(app().flxBaseLine.TextMatrix(16, 1), "300") << "and the Baseline is made of them";
    EXPECT_FALSE(app().snapshots.BaselineSnapshot.Data);
}

TEST_F(SnapshotTest, AChangedFrequencyCountsAsOtherSettings) {
    MakeBaseline(app());
    ClickFrequencyOption(panel(), app().catalogues, app().config, true);
    BackToBaseline(app(), started.ui);
    EXPECT_EQ(started.ui.shown, std::vector<std::string>{"System Settings has changed"});
}

TEST_F(SnapshotTest, ABaselineMadeInUsIsRestoredInMetricConverted) {
    MakeBaseline(app());
    chooseSettings(app(), [](FrmDataOptions& options) {
        options.optUS = false;
        options.optMetric = true;
    });
    panel().txtTankDiameter = "100";
    BackToBaseline(app(), started.ui);
    EXPECT_TRUE(started.ui.shown.empty()) << "units are not compared";
    EXPECT_EQ(panel().txtTankDiameter, "243.8");
    EXPECT_EQ(panel().txtBuryDepth, "0.9");
}

TEST_F(SnapshotTest, LengthsAreKeptInFeetWhateverTheUnitsOnTheScreen) {
    chooseSettings(app(), [](FrmDataOptions& options) {
        options.optUS = false;
        options.optMetric = true;
    });
    panel().txtTrunkLength = "10";
    MakeBaseline(app());
    EXPECT_EQ(app().snapshots.BaselineSnapshot.TrunkLength, "32.8");
    EXPECT_EQ(app().snapshots.BaselineSnapshot.TankDiameter, "96");
}

TEST_F(SnapshotTest, TheBaselineAlwaysHoldsThePumpOfStartUp) {
    const Long startupPump = panel().cmbPumps.ListIndex();
    panel().cmbPumps.SetListIndex(2);
    MakeBaseline(app());
    panel().cmbPumps.SetListIndex(3);
    BackToBaseline(app(), started.ui);
    EXPECT_EQ(panel().cmbPumps.ListIndex(), startupPump);
}

TEST_F(SnapshotTest, ThePipingModeIsNotRestored) {
    panel().optBasic = true;
    panel().optAdvance = false;
    MakeBaseline(app());
    panel().optBasic = false;
    panel().optAdvance = true;
    BackToBaseline(app(), started.ui);
    EXPECT_TRUE(panel().optAdvance);
    EXPECT_FALSE(panel().optBasic);
    EXPECT_EQ(app().snapshots.BaselineSnapshot.IsBasic, 1);
    EXPECT_EQ(app().snapshots.BaselineSnapshot.IsAdvance, 1) << "marked again, never cleared";
}

TEST_F(SnapshotTest, TheNumberOfNozzlesTheValvesAndThePipeSizeAreNotRestored) {
    MakeBaseline(app());
    panel().txtNoOfNozzle = "6";
    panel().chkBall = 1;
    panel().cmbPipeSize.SetListIndex(3);
    panel().cmbPumpOthers.SetListIndex(2);
    BackToBaseline(app(), started.ui);
    EXPECT_EQ(panel().txtNoOfNozzle, "6");
    EXPECT_EQ(panel().chkBall, 1);
    EXPECT_EQ(panel().cmbPipeSize.ListIndex(), 3);
    EXPECT_EQ(panel().cmbPumpOthers.ListIndex(), 2);
}

TEST_F(SnapshotTest, PositionsNotNamesAreKept) {
    panel().cmbDispenser.SetListIndex(2);
    const std::string name = panel().cmbDispenser.Text();
    MakeBaseline(app());
    panel().cmbDispenser.Clear();
    panel().cmbDispenser.AddItem("None");
    panel().cmbDispenser.AddItem("Other");
    panel().cmbDispenser.AddItem("Another");
    RestoreBaselineSnapshot(app().panel, app().config, app().snapshots.BaselineSnapshot, started.ui);
    EXPECT_EQ(panel().cmbDispenser.ListIndex(), 2);
    EXPECT_NE(panel().cmbDispenser.Text(), name);
}

TEST_F(SnapshotTest, CalculateWithNothingChangedClearsTheSavedFlag) {
    EXPECT_TRUE(app().flags.blnSaved);
    Calculate(app());
    EXPECT_FALSE(app().flags.blnSaved);
}

TEST_F(SnapshotTest, MakeBaselineSettingsAndTypingLeaveTheSavedFlagAlone) {
    panel().txtRise = "2";
    MakeBaseline(app());
    chooseSettings(app(), [](FrmDataOptions& options) {
        options.optAmerican = false;
        options.optCommercial = true;
    });
    EXPECT_TRUE(app().flags.blnSaved);
}

TEST_F(SnapshotTest, AListWithNothingSelectedCannotBeKeptInAByte) {
    panel().cmbLeak.SetListIndex(-1);
    EXPECT_THROW(StoreBaselineSnapshot(app().panel, app().config, app().snapshots), RunTimeFailure);
}

} // namespace
} // namespace vesk
