// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// Runs the vesk-calc of this build as a user does, from a shell, and catches what it prints.
#pragma once

#include <filesystem>
#include <string>

namespace vesk::test {

struct CalcRun {
    std::string out;
    std::string err;
    int exitCode = -1; // -1 when it did not exit by itself
};

// A path in single quotes for the shell.
std::string quoted(const std::filesystem::path& path);

// Runs vesk-calc with the arguments (already quoted where they need it),
// stdout and stderr caught apart; in `workingFolder` when one is given.
CalcRun runCalc(const std::string& arguments, const std::filesystem::path& workingFolder = {});

} // namespace vesk::test
