// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The key filters and lost-focus checks of the fields, and the way out.
#include "support/started_app.h"
#include "workbench/field_checks.h"
#include "workbench/file_commands.h"

#include <gtest/gtest.h>

namespace vesk {
namespace {

using test::chooseSettings;
using test::shippedWithSettings;
using test::start;
using test::Started;
using test::TempProgramFolder;

class FieldChecks : public ::testing::Test {
  protected:
    void SetUp() override {
        start(folder, started);
        ASSERT_EQ(started.failure, "");
    }
    ApplicationState& app() { return started.app; }
    PanelState& panel() { return started.app.panel; }
    std::vector<std::string>& shown() { return started.ui.shown; }

    TempProgramFolder folder = TempProgramFolder::copyOfShipped();
    Started started;
};

TEST(KeyPasses, DigitsTakeOnlyDigitsAndBackspace) {
    EXPECT_TRUE(KeyPasses(KeyFilter::Digits, '7', "1"));
    EXPECT_TRUE(KeyPasses(KeyFilter::Digits, 8, "1"));
    EXPECT_FALSE(KeyPasses(KeyFilter::Digits, '.', "1"));
    EXPECT_FALSE(KeyPasses(KeyFilter::Digits, 'a', ""));
    EXPECT_FALSE(KeyPasses(KeyFilter::Digits, 200, ""));
}

TEST(KeyPasses, DecimalTakesOnePoint) {
    EXPECT_TRUE(KeyPasses(KeyFilter::Decimal, '.', "12"));
    EXPECT_FALSE(KeyPasses(KeyFilter::Decimal, '.', "1.2"));
    EXPECT_TRUE(KeyPasses(KeyFilter::Decimal, '5', "1.2"));
    EXPECT_FALSE(KeyPasses(KeyFilter::Decimal, '-', ""));
    EXPECT_FALSE(KeyPasses(KeyFilter::Decimal, 128, ""));
}

TEST_F(FieldChecks, HoseLengthOf999PassesInUsUnitsAnd999Point1IsRefused) {
    const PanelField& hose = FieldNamed("txtHoseLen");
    panel().txtHoseLen = "999";
    EXPECT_FALSE(LengthCheck(app(), hose, started.ui));
    EXPECT_TRUE(app().flags.blnFieldValid);
    panel().txtHoseLen = "999.1";
    EXPECT_TRUE(LengthCheck(app(), hose, started.ui));
    EXPECT_EQ(shown(), std::vector<std::string>{"Maximum Value can be entered is 999"});
    EXPECT_EQ(panel().txtHoseLen, "999.1") << "the value stays in the field";
    EXPECT_FALSE(app().flags.blnFieldValid);
}

TEST_F(FieldChecks, TheMetricLimitIsWrittenAsItStands) {
    chooseSettings(app(), [](FrmDataOptions& options) {
        options.optUS = false;
        options.optMetric = true;
    });
    panel().txtTankDiameter = "25397.6";
    EXPECT_TRUE(LengthCheck(app(), FieldNamed("txtTankDiameter"), started.ui));
    EXPECT_EQ(shown(), std::vector<std::string>{"Maximum Value can be entered is 25397.5"});
}

TEST_F(FieldChecks, ATankOf9999PassesInBothUnits) {
    panel().txtTankDiameter = "9999";
    EXPECT_FALSE(LengthCheck(app(), FieldNamed("txtTankDiameter"), started.ui));
    chooseSettings(app(), [](FrmDataOptions& options) {
        options.optUS = false;
        options.optMetric = true;
    });
    panel().txtTankDiameter = "9999";
    EXPECT_FALSE(LengthCheck(app(), FieldNamed("txtTankDiameter"), started.ui));
    EXPECT_TRUE(shown().empty());
}

TEST_F(FieldChecks, TheLimitFollowsTheUnitsSettingNotTheActiveFlags) {
    app().config.Units = false; // as a site read sets it
    app().flags.blnUSActive = true;
    panel().txtBuryDepth = "3047.8";
    EXPECT_TRUE(LengthCheck(app(), FieldNamed("txtBuryDepth"), started.ui));
    EXPECT_EQ(shown(), std::vector<std::string>{"Maximum Value can be entered is 3047.7"});
}

TEST_F(FieldChecks, ALengthIsWrittenBackAsANumber) {
    for (const auto& [typed, written] : std::vector<std::pair<std::string, std::string>>{
             {"007.50", "7.5"}, {".", "0"}, {"", "0"}, {"12abc", "12"}, {"3.", "3"}}) {
        panel().txtRise = typed;
        LengthCheck(app(), FieldNamed("txtRise"), started.ui);
        EXPECT_EQ(panel().txtRise, written) << typed;
    }
}

TEST(CountCheck, EmptyBecomesZeroAndAnyOtherTextTheNumber) {
    std::string text;
    CountCheck(text);
    EXPECT_EQ(text, "0");
    text = "03";
    CountCheck(text);
    EXPECT_EQ(text, "3");
}

TEST_F(FieldChecks, SevenNozzlesGiveEightRowsAndEightGiveTen) {
    panel().txtNoOfNozzle = "7";
    EXPECT_FALSE(NozzleCheck(app(), started.ui));
    EXPECT_EQ(app().ChartNozzles, 8);
    EXPECT_EQ(app().NoOfNozzles, 7);
    EXPECT_EQ(app().LastChartNozzles, 10) << "the old number, so the next press rebuilds the rows";
    panel().txtNoOfNozzle = "8";
    NozzleCheck(app(), started.ui);
    EXPECT_EQ(app().ChartNozzles, 10);
}

TEST_F(FieldChecks, ANewNumberOfNozzlesDiscardsTheBaselineResults) {
    panel().txtNoOfNozzle = "6";
    NozzleCheck(app(), started.ui);
    for (Single flow : app().results.Baseline.GpmPerNozzle) {
        EXPECT_EQ(flow, 0.0F);
    }
    Calculate(app());
    EXPECT_FALSE(app().flags.NeedBaseline) << "the next Calculate draws the Current line only";
    EXPECT_EQ(app().results.Baseline.GpmPerNozzle[1], 0.0F);
}

struct NozzleRefusal {
    std::string typed;
    std::string message;
};

TEST_F(FieldChecks, ABadNumberOfNozzlesShowsItsMessage) {
    for (const NozzleRefusal& refusal :
         {NozzleRefusal{"", "Field cannot be empty"},
          NozzleRefusal{"0", "Number of nozzles can not be zero please enter other number"},
          NozzleRefusal{"41", "Value should be less than or equal to 40"}}) {
        shown().clear();
        panel().txtNoOfNozzle = refusal.typed;
        EXPECT_TRUE(NozzleCheck(app(), started.ui)) << refusal.typed;
        EXPECT_EQ(shown(), std::vector<std::string>{refusal.message});
        EXPECT_EQ(app().ChartNozzles, 10);
    }
}

TEST(FieldChecksWithALimitOfZero, EveryNumberIsRefusedWithZeroAtTheEnd) {
    const TempProgramFolder folder = shippedWithSettings({"0", "4", "True", "True", "A"});
    Started started;
    start(folder, started);
    started.app.panel.txtNoOfNozzle = "3";
    EXPECT_TRUE(NozzleCheck(started.app, started.ui));
    EXPECT_EQ(started.ui.shown.back(), "Value should be less than or equal to 0");
    started.app.panel.txtNoOfNozzle = "0";
    NozzleCheck(started.app, started.ui);
    EXPECT_EQ(started.ui.shown.back(), "Number of nozzles can not be zero please enter other number");
}

TEST_F(FieldChecks, OpeningAMenuWithTheNozzlesEmptyPutsOneSilently) {
    panel().txtNoOfNozzle = "";
    OpenTopMenu(app(), started.ui);
    EXPECT_EQ(panel().txtNoOfNozzle, "1");
    EXPECT_TRUE(shown().empty());
    EXPECT_EQ(app().NoOfNozzles, 8) << "the corrected 1 does not reach the number of nozzles";
    EXPECT_FALSE(app().flags.blnQuietNozzleCheck);
}

TEST_F(FieldChecks, TheMenuPathStillShowsTheMessagesOfTheLengths) {
    panel().txtHoseLen = "1000";
    panel().txtRise = "2";
    OpenTopMenu(app(), started.ui);
    EXPECT_EQ(shown(), std::vector<std::string>{"Maximum Value can be entered is 999"});
    EXPECT_FALSE(app().flags.blnQuietNozzleCheck) << "the rise passed last, so the result is valid";
}

TEST_F(FieldChecks, ValidateAllFieldsAnswersForTheRiseOnly) {
    panel().txtTrunkLength = "10000";
    EXPECT_TRUE(ValidateAllFields(app(), started.ui));
    panel().txtRise = "10000";
    EXPECT_FALSE(ValidateAllFields(app(), started.ui));
}

TEST_F(FieldChecks, ExitAfterACalculateAsksAndYesSavesToTheSiteFile) {
    Calculate(app());
    started.ui.answers = {Answer::Yes};
    EXPECT_TRUE(ExitProgram(app(), started.ui));
    EXPECT_EQ(shown(), std::vector<std::string>{"Current Values are not saved. Do you want to save now?"});
    EXPECT_TRUE(std::filesystem::exists(app().strSiteFile));
    EXPECT_EQ(folder.read("Vesk.ini"), "40\r\n4\r\nTrue\r\nTrue\r\nA\r\n");
}

TEST_F(FieldChecks, CancelOfTheExitQuestionKeepsTheProgramGoing) {
    Calculate(app());
    folder.remove("Vesk.ini");
    started.ui.answers = {Answer::Cancel};
    EXPECT_FALSE(ExitProgram(app(), started.ui));
    EXPECT_FALSE(std::filesystem::exists(folder.path() / "Vesk.ini")) << "nothing is written";
}

TEST_F(FieldChecks, ExitRightAfterStartUpDoesNotAsk) {
    EXPECT_TRUE(ExitProgram(app(), started.ui));
    EXPECT_TRUE(shown().empty());
}

TEST_F(FieldChecks, ExitWithNoSiteFileNeverAsks) {
    Calculate(app());
    app().strSiteFile.clear();
    EXPECT_TRUE(ExitProgram(app(), started.ui));
    EXPECT_TRUE(shown().empty());
}

TEST_F(FieldChecks, TheCloseBoxWritesTheSettingsWithoutAsking) {
    Calculate(app());
    app().config.ComponentList = 2;
    CloseMainWindow(app());
    EXPECT_TRUE(shown().empty());
    EXPECT_EQ(folder.read("Vesk.ini"), "40\r\n4\r\nTrue\r\nTrue\r\nC\r\n");
    EXPECT_FALSE(std::filesystem::exists(app().strSiteFile)) << "unsaved values are lost without a word";
}

} // namespace
} // namespace vesk
