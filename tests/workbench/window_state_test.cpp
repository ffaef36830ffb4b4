// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// What the controls of the areas do when clicked, entered and left, and the site picture.
#include "support/failure_of.h"
#include "support/started_app.h"
#include "workbench/panel_events.h"
#include "workbench/site_file.h"
#include "workbench/site_picture.h"

#include <gtest/gtest.h>

namespace vesk {
namespace {

using test::failureOf;
using test::start;
using test::Started;
using test::TempProgramFolder;

class WindowStateTest : public ::testing::Test {
  protected:
    void SetUp() override {
        start(folder, started);
        ASSERT_EQ(started.failure, "");
    }
    PanelState& panel() { return started.app.panel; }
    WindowState& window() { return started.app.window; }

    TempProgramFolder folder = TempProgramFolder::copyOfShipped();
    Started started;
};

TEST_F(WindowStateTest, StartUpShowsTheDispensingAreaWithTheListsDisabledAndAPictureDue) {
    EXPECT_EQ(window().tabMain, Area::Dispensing);
    EXPECT_FALSE(window().recommendation.lstDispensingEnabled);
    EXPECT_FALSE(window().recommendation.lstPumpEnabled);
    EXPECT_TRUE(window().sitePictureDue);
    EXPECT_FALSE(window().focusRequest);
}

TEST_F(WindowStateTest, TheDispensingControlsClearTheDispensingList) {
    for (const char* control : {"cmbDispenser", "cmbBreakAway", "cmbDispOthers", "txtHoseLen", "txtNoOfNozzle"}) {
        const RecommendationClears clears = EnterControl(panel(), window(), control);
        EXPECT_TRUE(clears.lstDispensing) << control;
        EXPECT_FALSE(clears.lstPump) << control;
    }
}

TEST_F(WindowStateTest, ThePumpControlsClearThePumpList) {
    for (const char* control : {"cmbPumpOthers", "cmbQuantity", "opt50Hz", "opt60Hz", "cmbPumps"}) {
        const RecommendationClears clears = EnterControl(panel(), window(), control);
        EXPECT_TRUE(clears.lstPump) << control;
        EXPECT_FALSE(clears.lstDispensing) << control;
    }
}

TEST_F(WindowStateTest, TheNozzleOffNoneEnablesAndShowsTheDispensingList) {
    panel().cmbNozzle.SetListIndex(0);
    EXPECT_FALSE(EnterControl(panel(), window(), "cmbNozzle").lstDispensing);
    EXPECT_FALSE(window().recommendation.lstDispensingEnabled);
    panel().cmbNozzle.SetListIndex(1);
    EXPECT_TRUE(EnterControl(panel(), window(), "cmbNozzle").lstDispensing);
    EXPECT_TRUE(window().recommendation.lstDispensingEnabled);
    EXPECT_TRUE(window().recommendation.lstDispensingVisible);
}

TEST_F(WindowStateTest, AHoseSizeOffNoneHidesTheDispensingList) {
    ASSERT_EQ(panel().cmbHoseSize.ListIndex(), 0);
    EnterControl(panel(), window(), "cmbHoseSize");
    EXPECT_TRUE(window().recommendation.lstDispensingVisible);
    panel().cmbHoseSize.SetListIndex(1);
    EXPECT_TRUE(EnterControl(panel(), window(), "cmbHoseSize").lstDispensing);
    EXPECT_FALSE(window().recommendation.lstDispensingVisible);
}

TEST_F(WindowStateTest, TheLeakDetectorEnablesThePumpListAndClearsItOffNoneOnly) {
    panel().cmbLeak.SetListIndex(0);
    EXPECT_FALSE(EnterControl(panel(), window(), "cmbLeak").lstPump);
    EXPECT_TRUE(window().recommendation.lstPumpEnabled);
    panel().cmbLeak.SetListIndex(1);
    EXPECT_TRUE(EnterControl(panel(), window(), "cmbLeak").lstPump);
}

TEST_F(WindowStateTest, TheTankDiameterClearsTheSiteRecommendation) {
    window().recommendation.txtSiteRecommend = "something";
    EnterControl(panel(), window(), "txtTankDiameter");
    EXPECT_EQ(window().recommendation.txtSiteRecommend, "");
}

TEST_F(WindowStateTest, OptBasicGettingTheFocusChoosesBasic) {
    EnterControl(panel(), window(), "optBasic");
    EXPECT_TRUE(panel().optBasic);
    EXPECT_FALSE(panel().optAdvance);
}

TEST_F(WindowStateTest, OptBasicGettingTheFocusFromTheProgramKeepsThePipingMode) {
    ChoosePipingMode(panel(), false);
    const RecommendationClears clears = EnterControl(panel(), window(), "optBasic", FocusMove::ByProgram);
    EXPECT_FALSE(panel().optBasic);
    EXPECT_TRUE(panel().optAdvance);
    EXPECT_FALSE(clears.lstDispensing);
}

TEST_F(WindowStateTest, AFocusFromTheProgramStillClearsTheRecommendationLists) {
    EXPECT_TRUE(EnterControl(panel(), window(), "txtNoOfNozzle", FocusMove::ByProgram).lstDispensing);
    EXPECT_TRUE(EnterControl(panel(), window(), "cmbPumps", FocusMove::ByProgram).lstPump);
}

TEST(AreaOfControl, FindsTheAreaOfEveryFieldAndListAndNothingElse) {
    EXPECT_EQ(AreaOfControl("txtNoOfNozzle"), Area::Dispensing);
    EXPECT_EQ(AreaOfControl("txtTrunkLength"), Area::Piping);
    EXPECT_EQ(AreaOfControl("cmbQuantity"), Area::Pump);
    EXPECT_EQ(AreaOfControl("txtTankDiameter"), Area::SiteLayout);
    EXPECT_EQ(AreaOfControl("cmbNoOfBranches"), Area::SiteLayout);
    EXPECT_EQ(AreaOfControl("cmdCalculate"), std::nullopt);
}

TEST_F(WindowStateTest, AnAreaButtonShowsItsAreaAndClearsBothLists) {
    const RecommendationClears clears = ClickAreaButton(window(), Area::Pump);
    EXPECT_EQ(window().tabMain, Area::Pump);
    EXPECT_TRUE(clears.lstDispensing);
    EXPECT_TRUE(clears.lstPump);
}

TEST_F(WindowStateTest, TabbingForwardThroughAnAreaButtonShowsItsArea) {
    LeaveAreaButton(window(), Area::SiteLayout, false);
    EXPECT_EQ(window().tabMain, Area::Dispensing);
    LeaveAreaButton(window(), Area::SiteLayout, true);
    EXPECT_EQ(window().tabMain, Area::SiteLayout);
}

TEST_F(WindowStateTest, ANumberOfBranchesChosenMakesThePictureDueAQuantityOnlyWhenLeft) {
    window().sitePictureDue = false;
    ClickList(panel(), window(), ListNamed("cmbQuantity"), 2);
    EXPECT_EQ(panel().cmbQuantity.ListIndex(), 2);
    EXPECT_FALSE(window().sitePictureDue);
    LeaveList(window(), ListNamed("cmbQuantity"));
    EXPECT_TRUE(window().sitePictureDue);

    window().sitePictureDue = false;
    ClickList(panel(), window(), ListNamed("cmbNoOfBranches"), 1);
    EXPECT_TRUE(window().sitePictureDue);
    window().sitePictureDue = false;
    LeaveList(window(), ListNamed("cmbNoOfBranches"));
    EXPECT_FALSE(window().sitePictureDue);
}

TEST_F(WindowStateTest, TheSitePictureIsNamedForThePumpsAndTheBranches) {
    panel().cmbQuantity.SetListIndex(1);
    panel().cmbNoOfBranches.SetListIndex(2);
    EXPECT_EQ(SitePicture(folder.path(), panel()), folder.path() / "Image" / "2Pump3Branch.jpg");
}

TEST_F(WindowStateTest, AMissingSitePictureIsFileNotFound) {
    folder.remove("Image/1Pump1Branch.jpg");
    EXPECT_EQ(failureOf([&] { SitePicture(folder.path(), panel()); }), "File not found");
}

TEST_F(WindowStateTest, AnOpenedSiteAsksForThePictureTheMenusAndTheNozzleField) {
    window() = WindowState{};
    window().mnuSaveEnabled = false;
    const std::string site = (folder.path() / "SaveSiteInfo" / "SmallGasStation.txt").string();
    ASSERT_TRUE(OpenSiteFile(started.app, site, started.ui));
    EXPECT_TRUE(window().sitePictureDue);
    EXPECT_TRUE(window().mnuSaveEnabled);
    EXPECT_EQ(window().focusRequest, std::optional<std::string>("txtNoOfNozzle"));
}

TEST_F(WindowStateTest, AnOpenedSiteShowsTheNozzleFieldFromAnyArea) {
    for (const Area shown : {Area::Dispensing, Area::Piping, Area::Pump, Area::SiteLayout}) {
        window().tabMain = shown;
        const std::string site = (folder.path() / "SaveSiteInfo" / "SmallGasStation.txt").string();
        ASSERT_TRUE(OpenSiteFile(started.app, site, started.ui));
        EXPECT_EQ(window().tabMain, Area::Dispensing);
    }
}

TEST_F(WindowStateTest, AFailedOpenAsksForNothing) {
    window() = WindowState{};
    folder.write("SaveSiteInfo/short.txt", "$DIA\r\n");
    EXPECT_FALSE(OpenSiteFile(started.app, (folder.path() / "SaveSiteInfo" / "short.txt").string(), started.ui));
    EXPECT_FALSE(window().sitePictureDue);
    EXPECT_FALSE(window().focusRequest);
}

} // namespace
} // namespace vesk
