// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// Tests of the paths below the program folder and of whole-file reading and writing.
#include "support/temp_program_folder.h"

#include "catalogue/data_file_path.h"
#include "engine/numeric.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace vesk {
namespace {

namespace fs = std::filesystem;
using test::TempProgramFolder;

TEST(FindDataFile, FindsAFileWhoseNameDiffersInCase) {
    TempProgramFolder folder;
    folder.write("Components/Pump.DAT", "x");
    const auto found = FindDataFile(folder.path(), "Components/PUMP.DAT");
    ASSERT_TRUE(found.has_value());
    EXPECT_EQ(found->filename(), "Pump.DAT");
}

TEST(FindDataFile, FindsAFolderWhoseNameDiffersInCase) {
    TempProgramFolder folder;
    fs::remove(folder.path() / "Components");
    folder.write("components/pump.dat", "x");
    const auto found = FindDataFile(folder.path(), "Components/PUMP.DAT");
    ASSERT_TRUE(found.has_value());
    EXPECT_EQ(*found, folder.path() / "components" / "pump.dat");
}

TEST(FindDataFile, UnderstandsBackslashesAsSeparators) {
    TempProgramFolder folder;
    folder.write("Components/PIPING.DAT", "x");
    const auto found = FindDataFile(folder.path(), "\\Components\\piping.dat");
    ASSERT_TRUE(found.has_value());
    EXPECT_EQ(*found, folder.path() / "Components" / "PIPING.DAT");
}

TEST(FindDataFile, ExactSpellingWinsOverAnotherCase) {
    TempProgramFolder folder;
    folder.write("Components/pump.dat", "lower");
    folder.write("Components/PUMP.DAT", "upper");
    if (folder.read("Components/pump.dat") == "upper") {
        GTEST_SKIP() << "the file system does not tell letter case apart";
    }
    EXPECT_EQ(*FindDataFile(folder.path(), "Components/PUMP.DAT"), folder.path() / "Components" / "PUMP.DAT");
    EXPECT_EQ(*FindDataFile(folder.path(), "Components/pump.dat"), folder.path() / "Components" / "pump.dat");
}

TEST(FindDataFile, MissingFileGivesNothing) {
    TempProgramFolder folder;
    EXPECT_FALSE(FindDataFile(folder.path(), "Components/PUMP.DAT").has_value());
    EXPECT_FALSE(FindDataFile(folder.path(), "Nowhere/PUMP.DAT").has_value());
}

TEST(PathForWriting, TakesTheFileThatExistsUnderAnySpelling) {
    TempProgramFolder folder;
    folder.write("Components/pump.dat", "x");
    EXPECT_EQ(PathForWriting(folder.path(), "Components/Pump.DAT"), folder.path() / "Components" / "pump.dat");
}

TEST(PathForWriting, UsesTheWritersSpellingWhenNoFileExists) {
    TempProgramFolder folder;
    EXPECT_EQ(PathForWriting(folder.path(), "Components/Pump.DAT"), folder.path() / "Components" / "Pump.DAT");
}

TEST(PathForWriting, KeepsTheSpellingOfAnExistingFolder) {
    TempProgramFolder folder;
    fs::remove(folder.path() / "Components");
    fs::create_directories(folder.path() / "COMPONENTS");
    EXPECT_EQ(PathForWriting(folder.path(), "Components/Hoses.DAT"), folder.path() / "COMPONENTS" / "Hoses.DAT");
}

TEST(ReadWholeFile, KeepsEveryByte) {
    TempProgramFolder folder;
    const std::string bytes("a\r\nb\n\xE9\0c", 8);
    folder.write("Components/X.DAT", bytes);
    EXPECT_EQ(ReadWholeFile(folder.path() / "Components" / "X.DAT"), bytes);
}

TEST(ReadWholeFile, EmptyFileGivesEmptyText) {
    TempProgramFolder folder;
    folder.write("Components/X.DAT", "");
    EXPECT_EQ(ReadWholeFile(folder.path() / "Components" / "X.DAT"), "");
}

TEST(ReadWholeFile, MissingFileFails) {
    TempProgramFolder folder;
    try {
        ReadWholeFile(folder.path() / "Components" / "X.DAT");
        FAIL() << "no failure";
    } catch (const RunTimeFailure& failure) {
        EXPECT_STREQ(failure.what(), "Path/File access error");
    }
}

TEST(WriteWholeFile, ReplacesTheContentsInPlace) {
    TempProgramFolder folder;
    folder.write("Components/X.DAT", "a much longer old content\r\n");
    WriteWholeFile(folder.path() / "Components" / "X.DAT", "new\r\n");
    EXPECT_EQ(folder.read("Components/X.DAT"), "new\r\n");
}

TEST(WriteWholeFile, FolderThatDoesNotExistFails) {
    TempProgramFolder folder;
    try {
        WriteWholeFile(folder.path() / "Nowhere" / "X.DAT", "x");
        FAIL() << "no failure";
    } catch (const RunTimeFailure& failure) {
        EXPECT_STREQ(failure.what(), "Path/File access error");
    }
}

} // namespace
} // namespace vesk
