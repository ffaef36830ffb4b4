// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// What start-up makes of a program folder: lists, fields, flags and the first results.
#include "support/started_app.h"
#include "workbench/startup.h"

#include "engine/pipe_friction.h"

#include <gtest/gtest.h>

namespace vesk {
namespace {

using test::shippedWithSettings;
using test::start;
using test::Started;
using test::TempProgramFolder;

TEST(Startup, ShippedFolderStartsWithTheDesignersDefaults) {
    const TempProgramFolder folder = TempProgramFolder::copyOfShipped();
    Started started;
    start(folder, started);
    ASSERT_FALSE(started.ended);
    ASSERT_EQ(started.failure, "");
    const PanelState& panel = started.app.panel;
    EXPECT_TRUE(started.ui.shown.empty());
    EXPECT_EQ(panel.txtTankDiameter, "96");
    EXPECT_EQ(panel.txtBuryDepth, "3");
    EXPECT_EQ(panel.txtRise, "0");
    EXPECT_EQ(panel.txtHoseLen, "0");
    EXPECT_EQ(panel.txtNoOfNozzle, "8");
    EXPECT_EQ(panel.txtMaxNozz, "40");
    EXPECT_EQ(panel.captions.lblTankDiameter, "Tank Diameter(inch)");
    EXPECT_EQ(panel.captions.lblHoseLength, "Hose length(ft)");
    EXPECT_TRUE(panel.optAdvance);
    EXPECT_FALSE(panel.optBasic);
    EXPECT_TRUE(panel.opt60Hz);
    EXPECT_FALSE(panel.opt50Hz);
    EXPECT_EQ(panel.cmbNoOfBranches.Entries(), (std::vector<std::string>{"1", "2", "3", "4"}));
    EXPECT_EQ(panel.cmbNoOfBranches.ListIndex(), 0);
    EXPECT_EQ(panel.cmbQuantity.Entries(), (std::vector<std::string>{"1", "2", "3", "4"}));
    EXPECT_EQ(panel.cmbQuantity.ListIndex(), 0);
    EXPECT_EQ(panel.cmbPiping.ListIndex(), 0);
    EXPECT_EQ(panel.cmbTrunk.ListIndex(), 0);
    EXPECT_EQ(panel.cmbBranch.ListIndex(), 0);
    EXPECT_EQ(panel.cmbPipeSize.ListIndex(), 0);
    EXPECT_EQ(panel.cmbPumps.ListIndex(), 0);
    EXPECT_NE(panel.cmbPumps.Text(), "None");
    for (const ComboList* list : {&panel.cmbDispenser, &panel.cmbDispOthers, &panel.cmbNozzle, &panel.cmbLeak,
                                  &panel.cmbBreakAway, &panel.cmbPumpOthers}) {
        EXPECT_EQ(list->List(0), "None");
        EXPECT_EQ(list->ListIndex(), 1);
    }
    EXPECT_EQ(panel.cmbHoseSize.ListIndex(), 0);
    EXPECT_EQ(panel.cmbHoseSize.Text(), "None");
}

TEST(Startup, FlagsAfterStartUp) {
    const TempProgramFolder folder = TempProgramFolder::copyOfShipped();
    Started started;
    start(folder, started);
    const WorkflowFlags& flags = started.app.flags;
    EXPECT_TRUE(flags.blnSaved);
    EXPECT_TRUE(flags.blnUSActive);
    EXPECT_FALSE(flags.blnMetricActive);
    EXPECT_FALSE(flags.NeedBaseline);
    EXPECT_FALSE(flags.ChartNotDrawnYet);
    EXPECT_FALSE(flags.BaselineGridPending);
    EXPECT_EQ(started.app.NoOfNozzles, 8);
    EXPECT_EQ(started.app.ChartNozzles, 10);
    EXPECT_EQ(started.app.LastChartNozzles, 10);
    EXPECT_EQ(started.app.strSiteFile, (folder.path() / "SaveSiteInfo" / "Default.txt").string());
}

TEST(Startup, FirstCalculateMakesEqualCurrentAndBaseline) {
    const TempProgramFolder folder = TempProgramFolder::copyOfShipped();
    Started started;
    start(folder, started);
    const ResultTables& results = started.app.results;
    ASSERT_EQ(results.Current.GpmList.size(), 9U);
    EXPECT_EQ(results.Current.GpmPerNozzle, results.Baseline.GpmPerNozzle);
    EXPECT_EQ(results.Current.LpmPerNozzle, results.Baseline.LpmPerNozzle);
    EXPECT_GT(results.Current.GpmPerNozzle[1], 5.0F) << "the shipped site must deliver a real flow";
    EXPECT_EQ(results.Current.GpmPerNozzle[0], 0.0F);
    EXPECT_EQ(results.NozzleLabels.size(), 10U);
}

TEST(Startup, MetricSettingsConvertTheDefaultNumbers) {
    const TempProgramFolder folder = shippedWithSettings({"40", "4", "True", "False", "A"});
    Started started;
    start(folder, started);
    ASSERT_EQ(started.failure, "");
    const PanelState& panel = started.app.panel;
    EXPECT_EQ(panel.txtTankDiameter, "243.8");
    EXPECT_EQ(panel.txtBuryDepth, "0.9");
    EXPECT_EQ(panel.txtRise, "0");
    EXPECT_EQ(panel.captions.lblTankDiameter, "Tank Diameter(cm)");
    EXPECT_EQ(panel.captions.lblBuryDepth, "Bury Depth(m)");
    EXPECT_EQ(panel.captions.lblHoseLength, "Hose Length(m)");
    EXPECT_TRUE(started.app.flags.blnMetricActive);
    EXPECT_FALSE(started.app.flags.blnUSActive);
    const SiteDescription site = BuildSiteDescription(started.app.panel, started.app.config);
    EXPECT_TRUE(site.IsMetric);
    EXPECT_EQ(site.TankDiameter, 243.8F);
}

TEST(Startup, FileNewInMetricConvertsTheNumbersASecondTime) {
    const TempProgramFolder folder = shippedWithSettings({"40", "4", "True", "False", "A"});
    Started started;
    start(folder, started);
    InitialiseMainWindow(started.app, started.ui);
    EXPECT_EQ(started.app.panel.txtTankDiameter, "619.3");
}

TEST(Startup, FileNewKeepsTypedFieldsButNotTheHoseLength) {
    const TempProgramFolder folder = TempProgramFolder::copyOfShipped();
    Started started;
    start(folder, started);
    PanelState& panel = started.app.panel;
    panel.txtTrunkLength = "120";
    panel.txtRise = "2.5";
    panel.txtHoseLen = "12";
    panel.cmbDispenser.SetListIndex(2);
    panel.optBasic = true;
    panel.optAdvance = false;
    InitialiseMainWindow(started.app, started.ui);
    EXPECT_EQ(panel.txtTrunkLength, "120");
    EXPECT_EQ(panel.txtRise, "2.5");
    EXPECT_EQ(panel.txtHoseLen, "0");
    EXPECT_EQ(panel.cmbDispenser.ListIndex(), 1);
    EXPECT_TRUE(panel.optAdvance);
}

TEST(Startup, AFirstSettingsLineOfFiveCutsTheNozzlesButNotTheTables) {
    const TempProgramFolder folder = shippedWithSettings({"5", "4", "True", "True", "A"});
    Started started;
    start(folder, started);
    EXPECT_EQ(started.app.panel.txtMaxNozz, "5");
    EXPECT_EQ(started.app.panel.txtNoOfNozzle, "5");
    EXPECT_EQ(started.app.NoOfNozzles, 8);
    EXPECT_EQ(started.app.ChartNozzles, 10);
    EXPECT_EQ(started.app.results.Current.GpmList.size(), 6U) << "the sweep reads the field: five nozzles";
}

TEST(Startup, ThePumpListHolds60HzPumpsAfterEveryStart) {
    const TempProgramFolder folder = TempProgramFolder::copyOfShipped();
    Started started;
    start(folder, started);
    const Catalogue& pumps = started.app.catalogues.of(ComponentKind::Pump);
    const ComboList& list = started.app.panel.cmbPumps;
    ASSERT_GT(list.ListCount(), 0);
    for (Long i = 0; i < list.ListCount(); ++i) {
        EXPECT_FALSE(pumps.Records[static_cast<std::size_t>(list.ItemData(i))].IsGas) << list.List(i);
    }
}

TEST(Startup, ADieselSettingListsDieselComponents) {
    const TempProgramFolder folder = shippedWithSettings({"40", "4", "False", "True", "A"});
    Started started;
    start(folder, started);
    ASSERT_EQ(started.failure, "");
    const ComboList& list = started.app.panel.cmbDispenser;
    const Catalogue& dispensers = started.app.catalogues.of(ComponentKind::Dispenser);
    for (Long i = 1; i < list.ListCount(); ++i) {
        EXPECT_FALSE(dispensers.Records[static_cast<std::size_t>(list.ItemData(i))].IsGas);
    }
    EXPECT_FALSE(BuildSiteDescription(started.app.panel, started.app.config).IsGas);
}

TEST(Startup, ACatalogueOfOneDispenserOffersOnlyNoneAndStartUpFails) {
    TempProgramFolder folder = TempProgramFolder::copyOfShipped();
    folder.writeLines("Components/DISP.DAT", {"$Only dispenser #AIC", "#TRUE#", "#Standard#", "#RATELOSS_BEGIN#", "0,0",
                                              "30,10", "#RATELOSS_END#"});
    Started started;
    start(folder, started);
    EXPECT_EQ(started.failure, "Invalid property value");
}

TEST(Startup, ACatalogueOfOnePumpLeavesThePumpListEmptyAndStartUpFails) {
    // The System Settings Ok refills the pump list and selects its entry 0,
    // which an empty list does not have.
    TempProgramFolder folder = TempProgramFolder::copyOfShipped();
    folder.writeLines("Components/PUMP.DAT", {"$Only pump #AIC", "#FALSE#", "#Standard#", "#RATELOSS_BEGIN#", "0,100",
                                              "50,0", "#RATELOSS_END#"});
    Started started;
    start(folder, started);
    EXPECT_EQ(started.failure, "Invalid property value");
    EXPECT_EQ(started.app.panel.cmbPumps.ListCount(), 0);
}

struct MissingFileRow {
    const char* file;
    const char* message;
};

class StartupWithoutAFile : public ::testing::TestWithParam<MissingFileRow> {};

TEST_P(StartupWithoutAFile, ShowsItsMessageAndEnds) {
    TempProgramFolder folder = TempProgramFolder::copyOfShipped();
    folder.remove(GetParam().file);
    Started started;
    start(folder, started);
    EXPECT_TRUE(started.ended);
    EXPECT_EQ(started.ui.shown, std::vector<std::string>{GetParam().message});
}

INSTANTIATE_TEST_SUITE_P(
    EveryFile, StartupWithoutAFile,
    ::testing::Values(MissingFileRow{"Vesk.ini", "INI file does not exist"},
                      MissingFileRow{"Components/PIPING.DAT", "Piping data file does not exist"},
                      MissingFileRow{"Components/DISP.DAT", "Dispenser data file does not exist"},
                      MissingFileRow{"Components/DISPOTHERS.DAT", "Dispenser Others data file does not exist"},
                      MissingFileRow{"Components/NOZZLE.DAT", "Nozzle data file does not exist"},
                      MissingFileRow{"Components/HOSES.DAT", "Hose data file does not exist"},
                      MissingFileRow{"Components/BRK.DAT", "Breakaway data file does not exist"},
                      MissingFileRow{"Components/MLD.DAT", "LeakDetector data file does not exist"},
                      MissingFileRow{"Components/PUMPOTHERS.DAT", "Pump Others data file does not exist"},
                      MissingFileRow{"Components/PUMP.DAT", "Pump data file does not exist"}));

TEST(Startup, TheFirstDamagedFileInReadingOrderEndsTheStart) {
    TempProgramFolder folder = TempProgramFolder::copyOfShipped();
    folder.write("Components/NOZZLE.DAT", "");
    folder.write("Components/PUMP.DAT", "");
    Started started;
    start(folder, started);
    EXPECT_TRUE(started.ended);
    EXPECT_EQ(started.ui.shown, std::vector<std::string>{"Problem in reading Nozzle Data File"});
}

TEST(BuildSiteDescription, ReadsTheStartUpPanels) {
    const TempProgramFolder folder = TempProgramFolder::copyOfShipped();
    Started started;
    start(folder, started);
    const SiteDescription site = BuildSiteDescription(started.app.panel, started.app.config);
    EXPECT_EQ(site.TankDiameter, 96.0F);
    EXPECT_EQ(site.BuryDepth, 3.0F);
    EXPECT_EQ(site.NoOfBranches, 1);
    EXPECT_EQ(site.Quantity, 1);
    EXPECT_EQ(site.Mode, PipingMode::Advance);
    EXPECT_EQ(site.PipingTag, 0);
    EXPECT_EQ(site.TrunkIndex, 0);
    EXPECT_EQ(site.HoseSize.Index, 0);
    EXPECT_EQ(site.HoseSize.Name, "None");
    EXPECT_EQ(site.Dispenser.Index, 1);
    EXPECT_EQ(site.Dispenser.Name, started.app.panel.cmbDispenser.List(1));
    EXPECT_FALSE(site.Is50Hz);
    EXPECT_TRUE(site.IsGas);
    EXPECT_EQ(site.Market, 'A');
    EXPECT_FALSE(site.IsMetric);
}

TEST(BuildSiteDescription, FittingCountsRoundHalfToEven) {
    const TempProgramFolder folder = TempProgramFolder::copyOfShipped();
    Started started;
    start(folder, started);
    started.app.panel.txtTrunkFitting = {"1.5", "2.5", "0", "3"};
    const SiteDescription site = BuildSiteDescription(started.app.panel, started.app.config);
    EXPECT_EQ(site.TrunkFitting, (std::array<Integer, 4>{2, 2, 0, 3}));
}

TEST(BuildSiteDescription, AFieldThatIsNotANumberFailsTheCalculation) {
    const TempProgramFolder folder = TempProgramFolder::copyOfShipped();
    Started started;
    start(folder, started);
    started.app.panel.txtRise = "";
    EXPECT_THROW(Calculate(started.app), RunTimeFailure);
}

TEST(ApplySystemSettings, ChoosingMetricTwiceConvertsTheFieldsOnce) {
    const TempProgramFolder folder = TempProgramFolder::copyOfShipped();
    Started started;
    start(folder, started);
    ApplicationState& app = started.app;
    for (int press = 0; press < 2; ++press) {
        TouchFrmData(app.panel, app.config);
        app.panel.frmData.optUS = false;
        app.panel.frmData.optMetric = true;
        EXPECT_TRUE(ApplySystemSettings(app)) << "a Calculate has run, so the graph is re-plotted";
    }
    EXPECT_EQ(app.panel.txtTankDiameter, "243.8");
    EXPECT_FALSE(app.config.Units);
    TouchFrmData(app.panel, app.config);
    app.panel.frmData.optUS = true;
    app.panel.frmData.optMetric = false;
    ApplySystemSettings(app);
    EXPECT_EQ(app.panel.txtTankDiameter, "96") << "243.8 / 2.54 = 95.98..., rounded";
    EXPECT_EQ(app.panel.captions.lblTankDiameter, "Tank Diameter(inch)");
}

TEST(ApplySystemSettings, DoesNotTouchTheResultsOrTheSavedFlag) {
    const TempProgramFolder folder = TempProgramFolder::copyOfShipped();
    Started started;
    start(folder, started);
    ApplicationState& app = started.app;
    const std::vector<Single> before = app.results.Current.GpmPerNozzle;
    TouchFrmData(app.panel, app.config);
    app.panel.frmData.optGas = false;
    app.panel.frmData.optDiesel = true;
    ApplySystemSettings(app);
    EXPECT_EQ(app.results.Current.GpmPerNozzle, before);
    EXPECT_TRUE(app.flags.blnSaved);
    EXPECT_FALSE(app.config.Data);
}

TEST(LoadAllLists, WithBothFuelOptionsClearLeavesAllButThePumpListAlone) {
    const TempProgramFolder folder = TempProgramFolder::copyOfShipped();
    Started started;
    start(folder, started);
    ApplicationState& app = started.app;
    const ComboList dispensersBefore = app.panel.cmbDispenser;
    app.panel.cmbDispenser.SetListIndex(2);
    app.panel.cmbPumps.SetListIndex(1);
    TouchFrmData(app.panel, app.config);
    app.panel.frmData.optGas = false;
    app.panel.frmData.optDiesel = false;
    LoadAllLists(app.panel, app.catalogues, app.config);
    EXPECT_EQ(app.panel.cmbDispenser.Entries(), dispensersBefore.Entries());
    EXPECT_EQ(app.panel.cmbDispenser.ListIndex(), 2);
    EXPECT_EQ(app.panel.cmbPumps.ListIndex(), 0) << "the pump list is refilled";
}

TEST(Calculate, ChangingThePipingMaterialInAdvanceModeChangesNoResult) {
    const TempProgramFolder folder = TempProgramFolder::copyOfShipped();
    Started started;
    start(folder, started);
    ApplicationState& app = started.app;
    app.panel.txtTrunkLength = "300";
    app.panel.txtBranchLength = "80";
    Calculate(app);
    const std::vector<Single> firstMaterial = app.results.Current.GpmPerNozzle;
    app.panel.cmbPiping.SetListIndex(2);
    Calculate(app);
    EXPECT_EQ(app.results.Current.GpmPerNozzle, firstMaterial);
}

TEST(Calculate, ChangingThePipeSizeInBasicModeChangesOnlyTheFittingLengths) {
    const TempProgramFolder folder = TempProgramFolder::copyOfShipped();
    Started started;
    start(folder, started);
    ApplicationState& app = started.app;
    app.panel.optBasic = true;
    app.panel.optAdvance = false;
    app.panel.txtPipeLen = "400";
    const SiteDescription smallest = BuildSiteDescription(app.panel, app.config);
    app.panel.cmbPipeSize.SetListIndex(4);
    const SiteDescription largest = BuildSiteDescription(app.panel, app.config);
    HeadLossBreakdown small;
    HeadLossBreakdown large;
    SystemHead(HydraulicSite(smallest, app.piping, app.catalogues), 10, 4, small);
    SystemHead(HydraulicSite(largest, app.piping, app.catalogues), 10, 4, large);
    // The diameter stays that of the first size, and the longer fittings of
    // the largest size add friction.
    EXPECT_GT(large.TrunkLoss, small.TrunkLoss);
    EXPECT_GT(large.BranchLoss, small.BranchLoss);
    const Single smallestDiameterLoss =
        PipeFriction(app.piping.PipeDiameter[0], 400 * 0.75F, 40, app.piping.PipeRoughness[1]);
    EXPECT_GT(small.TrunkLoss, smallestDiameterLoss) << "fittings add to the pipe of the first size";
}

TEST(Calculate, ClearsTheSavedFlagAndMakesNoBaselineOnceItIsMade) {
    const TempProgramFolder folder = TempProgramFolder::copyOfShipped();
    Started started;
    start(folder, started);
    ApplicationState& app = started.app;
    const std::vector<Single> baseline = app.results.Baseline.GpmPerNozzle;
    app.panel.txtTrunkLength = "900";
    Calculate(app);
    EXPECT_FALSE(app.flags.blnSaved);
    EXPECT_EQ(app.results.Baseline.GpmPerNozzle, baseline);
    EXPECT_NE(app.results.Current.GpmPerNozzle, baseline);
    MakeBaseline(app);
    EXPECT_EQ(app.results.Baseline.GpmPerNozzle, app.results.Current.GpmPerNozzle);
}

} // namespace
} // namespace vesk
