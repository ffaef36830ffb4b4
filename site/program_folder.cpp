// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// Which folder is the program folder: the executable's own, or a per-user copy of the shipped one.
#include "site/program_folder.h"

#include "catalogue/data_file_path.h"
#include "engine/numeric.h"
#include "site/settings_file.h"

#include <cstdlib>
#include <random>
#include <system_error>

namespace vesk {

namespace fs = std::filesystem;

namespace {

constexpr const char* fileAccessError = "Path/File access error";

std::string environmentValue(const char* name) {
    const char* value = std::getenv(name);
    return value ? std::string(value) : std::string();
}

bool holdsSettingsFile(const fs::path& folder) {
    const auto settings = FindDataFile(folder, settingsFileName);
    std::error_code error;
    return settings && fs::is_regular_file(*settings, error);
}

// A name beside the per-user folder that no other start uses at the same time.
fs::path stagingFolderFor(const fs::path& folder) {
    std::random_device random;
    const auto tag = std::to_string(random()) + std::to_string(random());
    return folder.parent_path() / ("." + folder.filename().string() + ".new-" + tag);
}

// The copy belongs to the user: every file and folder in it can be changed,
// whatever the modes of the shipped files.
void makeWritable(const fs::path& folder, std::error_code& error) {
    constexpr auto folderPerms = fs::perms::owner_all;
    constexpr auto filePerms = fs::perms::owner_read | fs::perms::owner_write;
    fs::permissions(folder, folderPerms, fs::perm_options::add, error);
    for (auto it = fs::recursive_directory_iterator(folder, error); !error && it != fs::recursive_directory_iterator();
         it.increment(error)) {
        const bool isFolder = it->is_directory(error);
        if (!error) {
            fs::permissions(it->path(), isFolder ? folderPerms : filePerms, fs::perm_options::add, error);
        }
    }
}

} // namespace

UserDataFolders UserDataFoldersFromEnvironment() {
    return {environmentValue("XDG_DATA_HOME"), environmentValue("HOME")};
}

fs::path UserDataFolder(const UserDataFolders& environment) {
    const fs::path xdgDataHome = environment.xdgDataHome;
    if (xdgDataHome.is_absolute()) {
        return xdgDataHome;
    }
    const fs::path home = environment.home;
    if (home.is_absolute()) {
        return home / ".local" / "share";
    }
    fail(fileAccessError);
}

ProgramFolderChoice ChooseProgramFolder(const fs::path& executableFolder, const UserDataFolders& environment) {
    if (holdsSettingsFile(executableFolder)) {
        return {executableFolder, std::nullopt};
    }
    const fs::path shipped = (executableFolder / shippedProgramFolder).lexically_normal();
    std::error_code error;
    if (fs::is_directory(shipped, error)) {
        return {UserDataFolder(environment) / perUserProgramFolderName, shipped};
    }
    return {executableFolder, std::nullopt};
}

void MakeProgramFolder(const ProgramFolderChoice& choice) {
    if (!choice.shippedFolder) {
        return;
    }
    std::error_code error;
    // Anything there already, even a link or a file, is the user's.
    if (fs::exists(fs::symlink_status(choice.folder, error))) {
        return;
    }
    fs::create_directories(choice.folder.parent_path(), error);
    if (error) {
        fail(fileAccessError);
    }
    const fs::path staging = stagingFolderFor(choice.folder);
    fs::copy(*choice.shippedFolder, staging, fs::copy_options::recursive, error);
    if (!error) {
        makeWritable(staging, error);
    }
    if (!error) {
        fs::rename(staging, choice.folder, error);
    }
    if (error) {
        std::error_code ignored;
        fs::remove_all(staging, ignored);
        // Another start that made the folder meanwhile has done the work.
        if (!fs::is_directory(choice.folder, ignored)) {
            fail(fileAccessError);
        }
    }
}

fs::path ProgramFolderFor(const fs::path& executableFolder) {
    const ProgramFolderChoice choice = ChooseProgramFolder(executableFolder, UserDataFoldersFromEnvironment());
    MakeProgramFolder(choice);
    return choice.folder;
}

} // namespace vesk
