// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// Reading and writing Vesk.ini.
#include "support/recording_interaction.h"
#include "support/temp_program_folder.h"

#include "site/settings_file.h"

#include <gtest/gtest.h>

namespace vesk {
namespace {

using test::RecordingInteraction;
using test::TempProgramFolder;

struct SettingsRead {
    clsConfigureData config;
    std::string txtMaxNozz = "40";
    ComboList cmbNoOfBranches;
    IniRawLines rawLines;
    RecordingInteraction ui;
    bool ended = false;
    std::string failure;
};

void readSettings(const TempProgramFolder& folder, SettingsRead& read) {
    try {
        ReadIniFile(folder.path(), read.ui, {read.config, read.txtMaxNozz, read.cmbNoOfBranches, read.rawLines});
    } catch (const ProcessEnd&) {
        read.ended = true;
    } catch (const RunTimeFailure& failure) {
        read.failure = failure.what();
    }
}

SettingsRead settingsOf(std::initializer_list<std::string_view> lines) {
    TempProgramFolder folder;
    folder.writeLines("Vesk.ini", lines);
    SettingsRead read;
    readSettings(folder, read);
    return read;
}

constexpr const char* corrupt = "INI File Corrupted. Cannot Load Application";

TEST(ReadIniFile, ReadsTheFiveLines) {
    const SettingsRead read = settingsOf({"40", "4", "True", "True", "I"});
    EXPECT_FALSE(read.ended);
    EXPECT_TRUE(read.ui.shown.empty());
    EXPECT_EQ(read.txtMaxNozz, "40");
    EXPECT_EQ(read.cmbNoOfBranches.Entries(), (std::vector<std::string>{"1", "2", "3", "4"}));
    EXPECT_TRUE(read.config.Data);
    EXPECT_TRUE(read.config.Units);
    EXPECT_EQ(read.config.ComponentList, 1);
    EXPECT_EQ(read.rawLines.maxNozzles, "40");
    EXPECT_EQ(read.rawLines.branches, "4");
}

TEST(ReadIniFile, AMissingFileShowsMessage8AndEnds) {
    TempProgramFolder folder;
    SettingsRead read;
    readSettings(folder, read);
    EXPECT_TRUE(read.ended);
    EXPECT_EQ(read.ui.shown, std::vector<std::string>{"INI file does not exist"});
}

TEST(ReadIniFile, AFirstLineOutsideZeroToFortyShows40) {
    EXPECT_EQ(settingsOf({"41", "4", "True", "True", "A"}).txtMaxNozz, "40");
    EXPECT_EQ(settingsOf({"-1", "4", "True", "True", "A"}).txtMaxNozz, "40");
    EXPECT_EQ(settingsOf({"0", "4", "True", "True", "A"}).txtMaxNozz, "0");
    EXPECT_EQ(settingsOf({"5", "4", "True", "True", "A"}).txtMaxNozz, "5");
}

TEST(ReadIniFile, AnOutOfRangeFirstLineIsKeptRawForWritingBack) {
    const SettingsRead read = settingsOf({"41", "4", "True", "True", "A"});
    EXPECT_EQ(read.rawLines.maxNozzles, "41");
    EXPECT_EQ(ComposeIniFile(read.rawLines, read.config), "41\r\n4\r\nTrue\r\nTrue\r\nA\r\n");
}

TEST(ReadIniFile, WrongNumberOfLinesOrAnEmptyLineEnds) {
    for (const auto& read :
         {settingsOf({"40", "4", "True", "True"}), settingsOf({"40", "4", "True", "True", "A", "A"}),
          settingsOf({"40", "", "True", "True", "A"}), settingsOf({"40", "4", "True", "True", "A", ""})}) {
        EXPECT_TRUE(read.ended);
        EXPECT_EQ(read.ui.shown, std::vector<std::string>{corrupt});
    }
}

TEST(ReadIniFile, ABranchCountBelowOneEnds) {
    const SettingsRead read = settingsOf({"40", "0", "True", "True", "A"});
    EXPECT_TRUE(read.ended);
    EXPECT_EQ(read.ui.shown, std::vector<std::string>{corrupt});
}

TEST(ReadIniFile, MoreThan255BranchesOverflowTheByteCounter) {
    EXPECT_EQ(settingsOf({"40", "256", "True", "True", "A"}).failure, "Overflow");
    EXPECT_EQ(settingsOf({"40", "255", "True", "True", "A"}).cmbNoOfBranches.ListCount(), 255);
}

TEST(ReadIniFile, ANonNumericFirstOrSecondLineIsAConversionFailure) {
    EXPECT_EQ(settingsOf({"forty", "4", "True", "True", "A"}).failure, "Type mismatch");
    EXPECT_EQ(settingsOf({"40", "four", "True", "True", "A"}).failure, "Type mismatch");
}

TEST(ReadIniFile, ABadThirdLineWarnsAndGoesOnWithDiesel) {
    const SettingsRead read = settingsOf({"40", "4", "Gasoline", "True", "A"});
    EXPECT_FALSE(read.ended);
    EXPECT_EQ(read.ui.shown, std::vector<std::string>{corrupt});
    EXPECT_FALSE(read.config.Data);
}

TEST(ReadIniFile, ComparisonIsExactSoLowerCaseTrueIsRefused) {
    const SettingsRead read = settingsOf({"40", "4", "true", "true", "a"});
    EXPECT_EQ(read.ui.shown, (std::vector<std::string>{corrupt, corrupt, corrupt}));
    EXPECT_FALSE(read.config.Data);
    EXPECT_FALSE(read.config.Units);
    EXPECT_EQ(read.config.ComponentList, 0);
}

TEST(ReadIniFile, TheLastLineMayOrMayNotEndInALineBreak) {
    TempProgramFolder folder;
    folder.write("Vesk.ini", "40\r\n4\r\nTrue\r\nFalse\r\nC");
    SettingsRead read;
    readSettings(folder, read);
    EXPECT_FALSE(read.ended);
    EXPECT_EQ(read.config.ComponentList, 2);
    EXPECT_FALSE(read.config.Units);
}

TEST(WriteIniFile, ABadThirdLineHealsToFalseOnExit) {
    TempProgramFolder folder;
    folder.writeLines("Vesk.ini", {"40", "4", "Gasoline", "True", "A"});
    SettingsRead read;
    readSettings(folder, read);
    WriteIniFile(folder.path(), read.rawLines, read.config);
    EXPECT_EQ(folder.read("Vesk.ini"), "40\r\n4\r\nFalse\r\nTrue\r\nA\r\n");
}

TEST(WriteIniFile, WritesTheSettingsFileUnderItsExistingSpelling) {
    TempProgramFolder folder;
    folder.writeLines("VESK.INI", {"12", "3", "True", "True", "A"});
    SettingsRead read;
    readSettings(folder, read);
    read.config.ComponentList = 2;
    WriteIniFile(folder.path(), read.rawLines, read.config);
    EXPECT_EQ(folder.read("VESK.INI"), "12\r\n3\r\nTrue\r\nTrue\r\nC\r\n");
}

TEST(WriteIniFile, AFailureWhileComposingLeavesTheOldFileIntact) {
    TempProgramFolder folder;
    folder.writeLines("Vesk.ini", {"40", "4", "True", "True", "A"});
    const std::string before = folder.read("Vesk.ini");
    clsConfigureData config;
    config.ComponentList = 3; // no letter stands for it
    EXPECT_THROW(WriteIniFile(folder.path(), IniRawLines{"40", "4"}, config), RunTimeFailure);
    EXPECT_EQ(folder.read("Vesk.ini"), before);
}

} // namespace
} // namespace vesk
