// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The topics of the help file and the call that opens one.
#include "support/recording_interaction.h"
#include "support/temp_program_folder.h"

#include "messages/help_topics.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace vesk {
namespace {

using test::RecordingInteraction;
using test::TempProgramFolder;

struct TopicRow {
    const char* form;
    const char* topic;
};

class FormTopics : public ::testing::TestWithParam<TopicRow> {};

TEST_P(FormTopics, F1InAFormOpensItsTopic) {
    EXPECT_EQ(HelpTopicOf(GetParam().form), std::optional<std::string_view>(GetParam().topic));
}

INSTANTIATE_TEST_SUITE_P(EveryForm, FormTopics,
                         ::testing::Values(TopicRow{"frmMain", "Main Functionality\\Dynamic Flow Graph.htm"},
                                           TopicRow{"frmData", "Option Menu\\System Settings.htm"},
                                           TopicRow{"frmPump", "Option Menu\\Pumps.htm"},
                                           TopicRow{"frmHose", "Option Menu\\Hoses.htm"},
                                           TopicRow{"frmBRK", "Option Menu\\Breakaways.htm"},
                                           TopicRow{"frmDispenser", "Option Menu\\Dispensers.htm"},
                                           TopicRow{"frmMLD", "Option Menu\\Leak Detectors.htm"},
                                           TopicRow{"frmNozzle", "Option Menu\\Nozzles.htm"},
                                           TopicRow{"frmUpdate", "Option Menu\\Update Data.htm"},
                                           TopicRow{"frmDispOthers", "Option Menu\\Dispenser Others.htm"},
                                           TopicRow{"frmPumpOthers", "Option Menu\\Pump Others.htm"},
                                           TopicRow{"frmSiteProperties", "Option Menu\\Site Properties.htm"}));

TEST(HelpTopics, TheHelpMenuAndF1InTheMainWindowOpenDifferentTopics) {
    EXPECT_EQ(introductionTopic, "Introduction\\Introduction.htm");
    EXPECT_NE(HelpTopicOf("frmMain"), std::optional<std::string_view>(introductionTopic));
}

TEST(HelpTopics, FormsWithoutATopicHaveNone) {
    for (const char* form : {"frmCompare", "frmDetails", "frmPrint", "frmAbout"}) {
        EXPECT_FALSE(HelpTopicOf(form)) << form;
    }
}

TEST(HelpTopics, AMissingHelpFileShowsMessage32AndOpensNothing) {
    const TempProgramFolder folder;
    RecordingInteraction ui;
    ShowHelpTopic(folder.path() / helpFileName, "Option Menu\\Pumps.htm", ui);
    EXPECT_EQ(ui.shown, std::vector<std::string>{"Help File doesn't exist"});
    EXPECT_TRUE(ui.helpTopics.empty());
}

TEST(HelpTopics, AHelpFileThatIsThereIsOpenedAtTheTopic) {
    const TempProgramFolder folder;
    folder.write(std::string(helpFileName), "ITSF");
    RecordingInteraction ui;
    ShowHelpTopic(folder.path() / helpFileName, "Option Menu\\Pumps.htm", ui);
    EXPECT_TRUE(ui.shown.empty());
    ASSERT_EQ(ui.helpTopics.size(), 1U);
    EXPECT_EQ(ui.helpTopics[0].first, (folder.path() / helpFileName).string());
    EXPECT_EQ(ui.helpTopics[0].second, "Option Menu\\Pumps.htm");
}

struct PathRow {
    const char* topic;
    const char* path;
};

class HelpFilePaths : public ::testing::TestWithParam<PathRow> {};

TEST_P(HelpFilePaths, ATopicPathReadsItsBackslashesAsSlashes) {
    EXPECT_EQ(HelpFilePath(GetParam().topic), GetParam().path);
}

INSTANTIATE_TEST_SUITE_P(Topics, HelpFilePaths,
                         ::testing::Values(PathRow{"Option Menu\\Pumps.htm", "/Option Menu/Pumps.htm"},
                                           PathRow{"Introduction\\Introduction.htm", "/Introduction/Introduction.htm"},
                                           PathRow{"/Contents.htm", "/Contents.htm"},
                                           PathRow{"a\\b\\c.htm", "/a/b/c.htm"}));

TEST(HelpTopics, ATopicIsFoundWithoutRegardToCase) {
    const std::vector<std::string> paths{"/Contents.htm", "/OPTION MENU/pumps.HTM", "/Files/Site Files.htm"};
    EXPECT_EQ(FindHelpPath("Option Menu\\Pumps.htm", paths), std::optional<std::string>("/OPTION MENU/pumps.HTM"));
    EXPECT_EQ(FindHelpPath("files\\site files.htm", paths), std::optional<std::string>("/Files/Site Files.htm"));
    EXPECT_FALSE(FindHelpPath("Option Menu\\Hoses.htm", paths));
    EXPECT_FALSE(FindHelpPath("Option Menu", paths));
}

TEST(HelpTopics, TheExactSpellingWinsOverOneThatDiffersInCase) {
    const std::vector<std::string> paths{"/option menu/pumps.htm", "/Option Menu/Pumps.htm"};
    EXPECT_EQ(FindHelpPath("Option Menu\\Pumps.htm", paths), std::optional<std::string>("/Option Menu/Pumps.htm"));
}

TEST(HelpTopics, EveryFormWithATopicIsListed) {
    const std::vector<std::string_view> topics = AllFormTopics();
    EXPECT_EQ(topics.size(), 12U);
    for (const char* form : {"frmMain", "frmData", "frmPump", "frmHose", "frmBRK", "frmDispenser", "frmMLD",
                             "frmNozzle", "frmUpdate", "frmDispOthers", "frmPumpOthers", "frmSiteProperties"}) {
        EXPECT_NE(std::find(topics.begin(), topics.end(), *HelpTopicOf(form)), topics.end()) << form;
    }
}

} // namespace
} // namespace vesk
