// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The inert recommendation feature: its texts, its focus flags, and its lists' click and double click.
#include "support/failure_of.h"
#include "support/started_app.h"
#include "workbench/panel_events.h"
#include "workbench/recommendation.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <map>

namespace vesk {
namespace {

using test::failureOf;
using F = RecommendationFamily;

bool hasText(std::string_view text) {
    return std::any_of(recommendationTexts.begin(), recommendationTexts.end(),
                       [text](const RecommendationText& entry) { return entry.text == text; });
}

TEST(RecommendationTexts, The43TextsStandInTheirFamilies) {
    std::map<F, int> counts;
    for (const RecommendationText& entry : recommendationTexts) {
        ++counts[entry.family];
    }
    EXPECT_EQ(counts[F::BestChoice], 6);
    EXPECT_EQ(counts[F::AlternativeGain], 2);
    EXPECT_EQ(counts[F::MorePumps], 9);
    EXPECT_EQ(counts[F::FewerPumps], 12);
    EXPECT_EQ(counts[F::NozzlesPerPump], 3);
    EXPECT_EQ(counts[F::NozzlesPerBranch], 3);
    EXPECT_EQ(counts[F::PipeSize], 2);
    EXPECT_EQ(counts[F::Fittings], 4);
    EXPECT_EQ(counts[F::HoseSize], 2);
}

TEST(RecommendationTexts, NoTextStandsTwice) {
    for (std::size_t i = 0; i < recommendationTexts.size(); ++i) {
        for (std::size_t j = i + 1; j < recommendationTexts.size(); ++j) {
            EXPECT_NE(recommendationTexts[i].text, recommendationTexts[j].text) << i << " " << j;
        }
    }
}

TEST(RecommendationTexts, TheNamedMembersStandWithTheirSpellingAndBlanks) {
    for (
        const char* text : {
            "This is the best Pump",
            "This is the best Nozzle",
            "This is the best LeakDetector",
            "The best Branch Size already selected",
            "The best combination is selcted, no Recommendation is available for the selected option.",
            "No Recommendation is avaialble for the selected Hose Size.",
            " yields ",
            "% increase in Flow",
            "Nozzle flow rates can be improved by manifolding multiple pumps. Please select two pump in the Pump "
            "Quantity combo box.",
            "Nozzle flow rates can be improved by manifolding multiple pumps. Two Pumps are selected, it can be "
            "reduced "
            "to one pump in Pump Quantity combo box.",
            "If the number of nozzles desired is more than 5 and only one pump is chosen, or if there are more than 4 "
            "nozzles per pump, Nozzle flow rates can be improved by manifolding multiple pumps. If there are more than "
            "4 nozzles per pump in the system, you may consider adding one pump to the piping system. Please select "
            "four pumps in Pump Quantity combo box.",
            "If there are more than 8 nozzles on one branch in the station layout, Decreasing the number of nozzles on "
            "one branch will decrease the piping head loss with multiple nozzles operating.  Branching the piping "
            "system if it is not already, or adding a branch to a system that is already branched can do this.",
            "Increasing the pipe diameter of the piping will reduce the piping head loss.Increase the piping to the "
            "next diameter size. 3 inch piping is the largest piping to be recommended.",
            "The total trunk fitting head loss is ",
            "Increasing the diameter of the hose will increase the flow rate per nozzle.The hose diameter is then "
            "increased one size, from 5/8 to 3/4, from 3/4 to 1. 1 is the limit for recommending gas dispensing hose "
            "size.",
        }) {
        EXPECT_TRUE(hasText(text)) << text;
    }
}

TEST(RecommendationTexts, TheMorePumpsFamilyHasTheMisspellingAndBothBlanks) {
    int misspelt = 0;
    int withoutBlank = 0;
    for (const RecommendationText& entry : recommendationTexts) {
        if (entry.family == F::MorePumps) {
            misspelt += entry.text.find("compb") != std::string_view::npos ? 1 : 0;
            withoutBlank += entry.text.find("pumps.Please") != std::string_view::npos ? 1 : 0;
        }
    }
    EXPECT_GT(misspelt, 0);
    EXPECT_GT(withoutBlank, 0);
}

TEST(RecommendationTexts, TheFittingTextsHaveAFootAndAMetreFollowingTheNumber) {
    EXPECT_TRUE(hasText("The total branch fitting head loss is "));
    int feet = 0;
    int metres = 0;
    for (const RecommendationText& entry : recommendationTexts) {
        feet += entry.text.starts_with(" ft. Flow may be improved") ? 1 : 0;
        metres += entry.text.starts_with(" mt. Flow may be improved") ? 1 : 0;
    }
    EXPECT_EQ(feet, 1);
    EXPECT_EQ(metres, 1);
}

// ---------------------------------------------------------------- focus flags

struct FocusRow {
    const char* control;
    bool RecommendationFocus::*flag;
};

class FocusFlags : public ::testing::TestWithParam<FocusRow> {};

TEST_P(FocusFlags, AControlGettingTheFocusSetsItsFlagAndClearsTheOthersOfItsArea) {
    RecommendationFocus focus;
    // Every flag of every area set first: those of other areas stay.
    for (const char* other : {"cmbPumps", "cmbNozzle", "cmbPiping"}) {
        RecordRecommendationFocus(other, focus);
    }
    RecordRecommendationFocus(GetParam().control, focus);
    EXPECT_TRUE(focus.*GetParam().flag);
    const int set = focus.pumps + focus.quantity + focus.frequency50Hz + focus.frequency60Hz + focus.leak +
                    focus.pumpOthers + focus.nozzle + focus.hoseSize + focus.piping + focus.trunkSize +
                    focus.trunkLength + focus.trunkFittings + focus.branchSize + focus.branchLength +
                    focus.branchFittings;
    EXPECT_EQ(set, 3) << "one flag per area";
    EXPECT_FALSE(focus.pumpRecommended);
    EXPECT_FALSE(focus.leakRecommended);
}

INSTANTIATE_TEST_SUITE_P(SixPumpTwoDispensingSevenPiping, FocusFlags,
                         ::testing::Values(FocusRow{"cmbPumps", &RecommendationFocus::pumps},
                                           FocusRow{"cmbQuantity", &RecommendationFocus::quantity},
                                           FocusRow{"opt50Hz", &RecommendationFocus::frequency50Hz},
                                           FocusRow{"opt60Hz", &RecommendationFocus::frequency60Hz},
                                           FocusRow{"cmbLeak", &RecommendationFocus::leak},
                                           FocusRow{"cmbPumpOthers", &RecommendationFocus::pumpOthers},
                                           FocusRow{"cmbNozzle", &RecommendationFocus::nozzle},
                                           FocusRow{"cmbHoseSize", &RecommendationFocus::hoseSize},
                                           FocusRow{"cmbPiping", &RecommendationFocus::piping},
                                           FocusRow{"cmbTrunk", &RecommendationFocus::trunkSize},
                                           FocusRow{"txtTrunkLength", &RecommendationFocus::trunkLength},
                                           FocusRow{"txtTrunkFitting(2)", &RecommendationFocus::trunkFittings},
                                           FocusRow{"cmbBranch", &RecommendationFocus::branchSize},
                                           FocusRow{"txtBranchLength", &RecommendationFocus::branchLength},
                                           FocusRow{"txtBranchFitting(0)", &RecommendationFocus::branchFittings}));

TEST(FocusFlags, OtherControlsChangeNoFlag) {
    RecommendationFocus focus;
    RecordRecommendationFocus("cmbPumps", focus);
    for (const char* control : {"txtTankDiameter", "cmbDispenser", "txtNoOfNozzle", "optBasic", "cmdCalculate"}) {
        RecordRecommendationFocus(control, focus);
    }
    EXPECT_TRUE(focus.pumps);
    EXPECT_FALSE(focus.nozzle);
}

TEST(FocusFlags, EnteringAControlOfTheWindowRecordsItsFlag) {
    const test::TempProgramFolder folder = test::TempProgramFolder::copyOfShipped();
    test::Started started;
    test::start(folder, started);
    EnterControl(started.app.panel, started.app.window, "cmbLeak");
    EXPECT_TRUE(started.app.window.recommendationFocus.leak);
    EnterControl(started.app.panel, started.app.window, "cmbPumps");
    EXPECT_FALSE(started.app.window.recommendationFocus.leak);
    EXPECT_TRUE(started.app.window.recommendationFocus.pumps);
}

// ---------------------------------------------------------------- the lists

TEST(RecommendationLists, AClickPutsTheEntrysTextIntoTheListsToolTip) {
    EXPECT_EQ(RecommendationListToolTip("Nozzle B yields 4% increase in Flow"), "Nozzle B yields 4% increase in Flow");
    EXPECT_EQ(RecommendationListToolTip(""), "");
}

class ListsOfTheStartedWindow : public ::testing::Test {
  protected:
    void SetUp() override {
        test::start(folder, started);
        ASSERT_EQ(started.failure, "");
    }
    test::TempProgramFolder folder = test::TempProgramFolder::copyOfShipped();
    test::Started started;
};

TEST_F(ListsOfTheStartedWindow, ADoubleClickInLstDispensingSelectsTheNameInFrontOfYieldsInCmbNozzle) {
    PanelState& panel = started.app.panel;
    const std::string name = panel.cmbNozzle.List(2);
    DoubleClickDispensingList(name + " yields 5% increase in Flow", panel);
    EXPECT_EQ(panel.cmbNozzle.ListIndex(), 2);
}

TEST_F(ListsOfTheStartedWindow, ADoubleClickInLstDispensingOnATextWithoutYieldsIsAnInvalidCall) {
    PanelState& panel = started.app.panel;
    EXPECT_EQ(failureOf([&] { DoubleClickDispensingList(panel.cmbNozzle.List(2), panel); }),
              "Invalid procedure call or argument");
}

TEST_F(ListsOfTheStartedWindow, ADoubleClickInLstDispensingOnANameNotOfferedIsAnInvalidPropertyValue) {
    EXPECT_EQ(failureOf([&] { DoubleClickDispensingList("Nothing like it yields 1%", started.app.panel); }),
              "Invalid property value");
}

TEST_F(ListsOfTheStartedWindow, ADoubleClickInLstPumpNeverActsSinceNothingSetsItsFlags) {
    PanelState& panel = started.app.panel;
    WindowState& window = started.app.window;
    const Long pump = panel.cmbPumps.ListIndex();
    const Long leak = panel.cmbLeak.ListIndex();
    // Whatever had the focus last.
    for (const char* control : {"cmbPumps", "cmbLeak", "cmbQuantity", "opt50Hz", "opt60Hz", "cmbPumpOthers"}) {
        EnterControl(panel, window, control);
        EXPECT_FALSE(DoubleClickPumpList(panel.cmbLeak.List(2) + " yields 3% increase in Flow", panel,
                                         window.recommendationFocus))
            << control;
    }
    EXPECT_EQ(panel.cmbPumps.ListIndex(), pump);
    EXPECT_EQ(panel.cmbLeak.ListIndex(), leak);
}

} // namespace
} // namespace vesk
