// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// Which folder is the program folder, and the per-user copy an installed Vesk makes of the shipped one.
#include "support/failure_of.h"
#include "support/temp_program_folder.h"

#include "site/program_folder.h"

#include <fstream>
#include <gtest/gtest.h>
#include <map>
#include <sstream>

namespace vesk {
namespace {

namespace fs = std::filesystem;
using test::failureOf;
using test::TempProgramFolder;

constexpr const char* fileAccessError = "Path/File access error";

std::string readBytes(const fs::path& file) {
    std::ifstream in(file, std::ios::binary);
    std::ostringstream bytes;
    bytes << in.rdbuf();
    return bytes.str();
}

void writeBytes(const fs::path& file, std::string_view bytes) {
    fs::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary) << bytes;
}

// Every file below `folder`, by its relative path, with its bytes.
std::map<std::string, std::string> filesBelow(const fs::path& folder) {
    std::map<std::string, std::string> files;
    for (const auto& entry : fs::recursive_directory_iterator(folder)) {
        if (entry.is_regular_file()) {
            files[fs::relative(entry.path(), folder).generic_string()] = readBytes(entry.path());
        }
    }
    return files;
}

// A scratch root for the three layouts the programs run in.
struct Layouts {
    TempProgramFolder root;
    fs::path home = root.path() / "home";
    fs::path xdgDataHome = root.path() / "xdg";

    // bin/ and share/vesk/ side by side, as a package installs them, with the
    // shipped program folder of the source tree.
    fs::path installedBin() const {
        const fs::path bin = root.path() / "usr" / "bin";
        fs::create_directories(bin);
        if (!fs::exists(root.path() / "usr" / "share" / "vesk")) {
            fs::create_directories(root.path() / "usr" / "share");
            fs::copy(test::shippedDataDir(), root.path() / "usr" / "share" / "vesk", fs::copy_options::recursive);
        }
        return bin;
    }
    fs::path shipped() const { return root.path() / "usr" / "share" / "vesk"; }

    // The executables beside a program folder, as in a portable folder or a
    // build tree.
    fs::path portableFolder() const {
        const fs::path folder = root.path() / "vesk-portable";
        if (!fs::exists(folder)) {
            fs::copy(test::shippedDataDir(), folder, fs::copy_options::recursive);
        }
        return folder;
    }

    UserDataFolders environment() const { return {xdgDataHome.string(), home.string()}; }
};

// --- The choice -------------------------------------------------------------

TEST(ChooseProgramFolder, APortableFolderOrBuildTreeUsesTheExecutablesOwnFolder) {
    Layouts layouts;
    const ProgramFolderChoice choice = ChooseProgramFolder(layouts.portableFolder(), layouts.environment());
    EXPECT_EQ(choice.folder, layouts.portableFolder());
    EXPECT_FALSE(choice.shippedFolder);
}

TEST(ChooseProgramFolder, AnInstalledProgramUsesThePerUserFolderUnderXdgDataHome) {
    Layouts layouts;
    const ProgramFolderChoice choice = ChooseProgramFolder(layouts.installedBin(), layouts.environment());
    EXPECT_EQ(choice.folder, layouts.xdgDataHome / "vesk");
    ASSERT_TRUE(choice.shippedFolder);
    EXPECT_EQ(*choice.shippedFolder, layouts.shipped());
}

TEST(ChooseProgramFolder, TheShippedFolderIsFoundRelativeToTheExecutableWhereverItIsUnpacked) {
    Layouts layouts;
    const fs::path elsewhere = layouts.root.path() / "unpacked" / "here";
    fs::create_directories(elsewhere);
    fs::rename(layouts.installedBin().parent_path(), elsewhere / "usr");
    const ProgramFolderChoice choice = ChooseProgramFolder(elsewhere / "usr" / "bin", layouts.environment());
    EXPECT_EQ(choice.folder, layouts.xdgDataHome / "vesk");
    ASSERT_TRUE(choice.shippedFolder);
    EXPECT_EQ(*choice.shippedFolder, elsewhere / "usr" / "share" / "vesk");
}

TEST(ChooseProgramFolder, ASettingsFileBesideTheExecutableWinsOverAShippedFolder) {
    Layouts layouts;
    const fs::path bin = layouts.installedBin();
    writeBytes(bin / "VESK.INI", "40\r\n4\r\nTrue\r\nTrue\r\nA\r\n");
    const ProgramFolderChoice choice = ChooseProgramFolder(bin, layouts.environment());
    EXPECT_EQ(choice.folder, bin);
    EXPECT_FALSE(choice.shippedFolder);
}

TEST(ChooseProgramFolder, AFolderNamedLikeTheSettingsFileDoesNotCount) {
    Layouts layouts;
    const fs::path bin = layouts.installedBin();
    fs::create_directories(bin / "Vesk.ini");
    EXPECT_EQ(ChooseProgramFolder(bin, layouts.environment()).folder, layouts.xdgDataHome / "vesk");
}

TEST(ChooseProgramFolder, WithNeitherSettingsNorAShippedFolderTheExecutablesFolderStays) {
    Layouts layouts;
    const fs::path bare = layouts.root.path() / "bare" / "bin";
    fs::create_directories(bare);
    const ProgramFolderChoice choice = ChooseProgramFolder(bare, layouts.environment());
    EXPECT_EQ(choice.folder, bare);
    EXPECT_FALSE(choice.shippedFolder);
}

// The per-user folder's parent for each environment; "" when none can be had.
struct EnvironmentCase {
    const char* name;
    const char* xdgDataHome;
    const char* home;
    const char* userDataFolder;
};

class UserDataFolderOf : public ::testing::TestWithParam<EnvironmentCase> {};

TEST_P(UserDataFolderOf, TheEnvironment) {
    const EnvironmentCase& c = GetParam();
    const UserDataFolders environment{c.xdgDataHome, c.home};
    if (std::string_view(c.userDataFolder).empty()) {
        EXPECT_EQ(failureOf([&] { UserDataFolder(environment); }), fileAccessError);
    } else {
        EXPECT_EQ(UserDataFolder(environment), fs::path(c.userDataFolder));
    }
}

INSTANTIATE_TEST_SUITE_P(
    Table, UserDataFolderOf,
    ::testing::Values(EnvironmentCase{"XdgDataHomeWhenAbsolute", "/data/ann", "/home/ann", "/data/ann"},
                      EnvironmentCase{"HomeLocalShareWhenXdgUnset", "", "/home/ann", "/home/ann/.local/share"},
                      EnvironmentCase{"RelativeXdgIsIgnored", "data/ann", "/home/ann", "/home/ann/.local/share"},
                      EnvironmentCase{"RelativeHomeIsNoHome", "", "ann", ""},
                      EnvironmentCase{"NeitherIsAFailure", "", "", ""}),
    [](const ::testing::TestParamInfo<EnvironmentCase>& row) { return std::string(row.param.name); });

TEST(ChooseProgramFolder, AnInstalledProgramWithoutHomeOrXdgDataHomeFails) {
    Layouts layouts;
    const fs::path bin = layouts.installedBin();
    EXPECT_EQ(failureOf([&] { ChooseProgramFolder(bin, UserDataFolders{}); }), fileAccessError);
}

TEST(ChooseProgramFolder, APortableFolderNeedsNoHome) {
    Layouts layouts;
    EXPECT_EQ(ChooseProgramFolder(layouts.portableFolder(), UserDataFolders{}).folder, layouts.portableFolder());
}

// --- The per-user copy ------------------------------------------------------

TEST(MakeProgramFolder, TheFirstStartCopiesTheWholeShippedFolder) {
    Layouts layouts;
    const ProgramFolderChoice choice = ChooseProgramFolder(layouts.installedBin(), layouts.environment());
    MakeProgramFolder(choice);
    const auto copied = filesBelow(choice.folder);
    EXPECT_EQ(copied, filesBelow(test::shippedDataDir()));
    // The catalogue, the settings, the pictures, the help file, the examples.
    for (const char* file : {"Vesk.ini", "Components/PIPING.DAT", "Components/PUMP.DAT", "Image/1Pump1Branch.jpg",
                             "VeskHelpFile.chm", "SaveSiteInfo/SmallGasStation.txt"}) {
        EXPECT_EQ(copied.count(file), 1U) << file;
    }
}

TEST(MakeProgramFolder, LaterStartsNeverOverwriteThePerUserFolder) {
    Layouts layouts;
    const ProgramFolderChoice choice = ChooseProgramFolder(layouts.installedBin(), layouts.environment());
    MakeProgramFolder(choice);
    writeBytes(choice.folder / "Vesk.ini", "12\r\n3\r\nFalse\r\nFalse\r\nC\r\n");
    writeBytes(choice.folder / "SaveSiteInfo" / "Mine.txt", "my site");
    fs::remove(choice.folder / "SaveSiteInfo" / "BasicModeSite.txt");
    // An upgrade brings new shipped files.
    writeBytes(layouts.shipped() / "Vesk.ini", "40\r\n4\r\nTrue\r\nTrue\r\nI\r\n");
    writeBytes(layouts.shipped() / "Components" / "NEW.DAT", "new");
    const auto before = filesBelow(choice.folder);

    const ProgramFolderChoice again = ChooseProgramFolder(layouts.installedBin(), layouts.environment());
    MakeProgramFolder(again);
    EXPECT_EQ(again.folder, choice.folder);
    EXPECT_EQ(filesBelow(again.folder), before);
    EXPECT_EQ(readBytes(again.folder / "Vesk.ini"), "12\r\n3\r\nFalse\r\nFalse\r\nC\r\n");
}

TEST(MakeProgramFolder, AnEmptyPerUserFolderIsLeftAsItIs) {
    Layouts layouts;
    const ProgramFolderChoice choice = ChooseProgramFolder(layouts.installedBin(), layouts.environment());
    fs::create_directories(choice.folder);
    MakeProgramFolder(choice);
    EXPECT_TRUE(fs::is_empty(choice.folder));
}

TEST(MakeProgramFolder, APortableFolderIsNeitherCopiedNorChanged) {
    Layouts layouts;
    const auto before = filesBelow(layouts.portableFolder());
    MakeProgramFolder(ChooseProgramFolder(layouts.portableFolder(), layouts.environment()));
    EXPECT_EQ(filesBelow(layouts.portableFolder()), before);
    EXPECT_FALSE(fs::exists(layouts.xdgDataHome));
}

TEST(MakeProgramFolder, TheCopyIsTheUsersToChangeWhateverTheShippedModes) {
    Layouts layouts;
    const ProgramFolderChoice choice = ChooseProgramFolder(layouts.installedBin(), layouts.environment());
    fs::permissions(layouts.shipped() / "Vesk.ini", fs::perms::owner_read | fs::perms::group_read);
    MakeProgramFolder(choice);
    const fs::perms perms = fs::status(choice.folder / "Vesk.ini").permissions();
    EXPECT_NE(perms & fs::perms::owner_write, fs::perms::none);
}

TEST(MakeProgramFolder, AFailedCopyFailsAndLeavesNoFolderBehind) {
    Layouts layouts;
    const ProgramFolderChoice choice = ChooseProgramFolder(layouts.installedBin(), layouts.environment());
    fs::remove_all(layouts.shipped()); // gone between the choice and the copy
    EXPECT_EQ(failureOf([&] { MakeProgramFolder(choice); }), fileAccessError);
    EXPECT_FALSE(fs::exists(choice.folder));
    EXPECT_TRUE(fs::is_empty(choice.folder.parent_path())) << "no staging folder is left";
}

TEST(MakeProgramFolder, AUserDataFolderThatIsAFileFails) {
    Layouts layouts;
    writeBytes(layouts.xdgDataHome, "not a folder");
    const ProgramFolderChoice choice = ChooseProgramFolder(layouts.installedBin(), layouts.environment());
    EXPECT_EQ(failureOf([&] { MakeProgramFolder(choice); }), fileAccessError);
}

} // namespace
} // namespace vesk
