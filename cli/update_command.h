// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// vesk-calc --update: the Update of the Update dialog from a script, with its question answered Yes.
#pragma once

#include <filesystem>
#include <functional>
#include <ostream>
#include <string>

namespace vesk::cli {

// Runs Update on the program folder (`programFolder` finds it, and may fail
// as the platform does) with `newDataFile` as the chosen file and
// the question answered Yes. Every box goes to `err`, one line each. Returns
// the exit status: 0 when the component file was written; 1 when a box ended
// it ("Please select the default Data filename ", "<path> file does not
// exist", "File got corrupted" …), the existing file untouched; 3 after a
// run-time failure of the platform ("Run-time error: …").
int RunUpdateCommand(const std::function<std::filesystem::path()>& programFolder, const std::string& newDataFile,
                     std::ostream& err);

} // namespace vesk::cli
