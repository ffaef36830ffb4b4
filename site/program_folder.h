// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// Which folder is the program folder: the executable's own, or a per-user copy of the shipped one.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace vesk {

// The shipped program folder of an installed Vesk, relative to the folder of
// its executables: /usr/bin/vesk finds /usr/share/vesk.
inline constexpr std::string_view shippedProgramFolder = "../share/vesk";

// The per-user program folder's name below the user's data folder.
inline constexpr std::string_view perUserProgramFolderName = "vesk";

// What the rule reads of the environment.
struct UserDataFolders {
    std::string xdgDataHome; // $XDG_DATA_HOME, empty when unset
    std::string home;        // $HOME, empty when unset
};

// The environment's values of XDG_DATA_HOME and HOME.
UserDataFolders UserDataFoldersFromEnvironment();

// Where a user's data live: $XDG_DATA_HOME when it is an absolute path,
// otherwise $HOME/.local/share (a relative or empty XDG_DATA_HOME is ignored,
// as the XDG base directory rules say). Fails with a RunTimeFailure ("Path/File
// access error") when neither gives an absolute path.
std::filesystem::path UserDataFolder(const UserDataFolders& environment);

// The decision, before anything is made on disk.
struct ProgramFolderChoice {
    std::filesystem::path folder;
    // Set when `folder` is the per-user copy of this shipped folder: the copy
    // is made when `folder` does not exist yet.
    std::optional<std::filesystem::path> shippedFolder;
};

// The rule, first match wins, for the folder `executableFolder` that holds
// vesk and vesk-calc:
// 1. The executable's folder holds Vesk.ini (in any letter case): a build tree
//    or a portable folder. The program folder is the executable's folder.
// 2. A folder shippedProgramFolder exists beside it: an installed Vesk. The
//    program folder is UserDataFolder(environment)/vesk.
// 3. Otherwise the executable's folder, where start-up then reports the
//    missing settings file as it always does.
// Reads only whether files exist; the environment is needed only for rule 2.
ProgramFolderChoice ChooseProgramFolder(const std::filesystem::path& executableFolder,
                                        const UserDataFolders& environment);

// Makes the per-user copy of a choice that asks for one, when the folder does
// not exist yet: the whole shipped folder is copied to a temporary folder
// beside it and then renamed into place, so a failed copy never leaves a half
// program folder behind, and a folder that exists (made by an earlier start,
// changed by the user since) is never touched. Fails with a RunTimeFailure
// ("Path/File access error") when the copy cannot be made.
void MakeProgramFolder(const ProgramFolderChoice& choice);

// ChooseProgramFolder with the environment, then MakeProgramFolder: the
// program folder vesk and vesk-calc run on.
std::filesystem::path ProgramFolderFor(const std::filesystem::path& executableFolder);

} // namespace vesk
