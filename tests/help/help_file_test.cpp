// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The committed help file: every topic the program opens is in it, and every link of its pages leads somewhere.
#include "gui/common/chm_file.h"

#include "messages/help_topics.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <regex>
#include <string>

namespace vesk {
namespace {

using gui::ChmFile;

const std::filesystem::path committedHelpFile = std::filesystem::path(VESK_SHIPPED_DATA_DIR) / helpFileName;

std::unique_ptr<ChmFile> openCommitted() {
    std::unique_ptr<ChmFile> file = ChmFile::open(committedHelpFile);
    EXPECT_NE(file, nullptr) << committedHelpFile;
    return file;
}

class TopicsOfTheForms : public ::testing::TestWithParam<std::string_view> {};

TEST_P(TopicsOfTheForms, EveryTopicPathResolvesInsideTheCommittedHelpFile) {
    const std::unique_ptr<ChmFile> file = openCommitted();
    ASSERT_NE(file, nullptr);
    const std::optional<std::string> page = file->read(GetParam());
    ASSERT_TRUE(page) << GetParam();
    EXPECT_NE(page->find("<title>"), std::string::npos) << GetParam();
}

std::vector<std::string_view> everyTopic() {
    std::vector<std::string_view> topics = AllFormTopics();
    topics.push_back(introductionTopic);
    return topics;
}

INSTANTIATE_TEST_SUITE_P(TheTable, TopicsOfTheForms, ::testing::ValuesIn(everyTopic()));

TEST(HelpFile, TopicPathsAreFoundWithoutRegardToCase) {
    const std::unique_ptr<ChmFile> file = openCommitted();
    ASSERT_NE(file, nullptr);
    EXPECT_EQ(file->read("option menu\\PUMPS.HTM"), file->read("Option Menu\\Pumps.htm"));
    EXPECT_FALSE(file->read("Option Menu\\No Such Page.htm"));
}

TEST(HelpFile, ItOpensOnItsContentsPage) {
    const std::unique_ptr<ChmFile> file = openCommitted();
    ASSERT_NE(file, nullptr);
    EXPECT_EQ(file->defaultTopic(), "/Contents.htm");
}

// The folder part of a path inside the file ("/Option Menu/").
std::string folderOf(const std::string& path) {
    return path.substr(0, path.rfind('/') + 1);
}

// "/a/b/../c.htm" as "/a/c.htm".
std::string normalised(const std::string& path) {
    return std::filesystem::path(path).lexically_normal().generic_string();
}

TEST(HelpFile, EveryLinkOfEveryPageLeadsToAPageOfTheFile) {
    const std::unique_ptr<ChmFile> file = openCommitted();
    ASSERT_NE(file, nullptr);
    const std::regex link(R"re((?:href|src)="([^"#:]+)(?:#[^"]*)?")re");
    int links = 0;
    for (const std::string& path : file->paths()) {
        if (!path.ends_with(".htm")) {
            continue;
        }
        const std::string page = *file->read(path);
        for (auto match = std::sregex_iterator(page.begin(), page.end(), link); match != std::sregex_iterator();
             ++match) {
            const std::string target = normalised(folderOf(path) + (*match)[1].str());
            EXPECT_TRUE(file->read(target)) << path << " links to " << target;
            ++links;
        }
    }
    EXPECT_GT(links, 100);
}

} // namespace
} // namespace vesk
