// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// Runs the vesk-calc of this build as a user does, from a shell, and catches what it prints.
#include "calc_run.h"

#include "support/temp_program_folder.h"

#include <array>
#include <cstdio>
#include <gtest/gtest.h>
#include <sys/wait.h>

namespace vesk::test {

std::string quoted(const std::filesystem::path& path) {
    return "'" + path.string() + "'";
}

CalcRun runCalc(const std::string& arguments, const std::filesystem::path& workingFolder) {
    const TempProgramFolder scratch;
    const std::string changeFolder = workingFolder.empty() ? "" : "cd " + quoted(workingFolder) + " && ";
    const std::string command =
        changeFolder + quoted(VESK_CALC) + " " + arguments + " 2>" + quoted(scratch.path() / "stderr");
    CalcRun run;
    FILE* pipe = ::popen(command.c_str(), "r");
    if (pipe == nullptr) {
        ADD_FAILURE() << "cannot run " << command;
        return run;
    }
    std::array<char, 4096> buffer{};
    std::size_t count = 0;
    while ((count = std::fread(buffer.data(), 1, buffer.size(), pipe)) > 0) {
        run.out.append(buffer.data(), count);
    }
    const int status = ::pclose(pipe);
    run.exitCode = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    run.err = scratch.read("stderr");
    return run;
}

} // namespace vesk::test
