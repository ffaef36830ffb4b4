// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// Fuzz target of the reader of the site file, applied to the panels of an
// application started on a copy of the shipped program folder.
#include "fuzz_contract.h"
#include "workbench/site_file.h"
#include "workbench/startup.h"

#include <array>
#include <string>

namespace {

using namespace vesk;

// An application after its start on a copy of the shipped program folder
// whose settings are replaced by `iniText`. Made once per process: every input
// is read into a fresh copy of it.
ApplicationState startedOn(const std::string& folderName, const std::string& iniText) {
    const std::filesystem::path folder = fuzz::scratchFolder() / folderName;
    std::filesystem::copy(VESK_SHIPPED_DATA_DIR, folder, std::filesystem::copy_options::recursive);
    fuzz::writeBytes(folder / settingsFileName, iniText);
    ApplicationState app;
    app.programFolder = folder;
    fuzz::RecordingInteraction ui;
    try {
        InitialiseMainWindow(app, ui);
    } catch (...) {
        fuzz::contractBroken("the shipped program folder does not start");
    }
    return app;
}

// A run in US units with gas and one in metric units with diesel: a site file
// changes the fuel, the list and the units, so the two start states reach
// different paths of the reader.
const std::array<ApplicationState, 2>& startedRuns() {
    static const std::array<ApplicationState, 2> runs{
        startedOn("us", "40\r\n4\r\nTrue\r\nTrue\r\nA\r\n"),
        startedOn("metric", "40\r\n4\r\nFalse\r\nFalse\r\nI\r\n"),
    };
    return runs;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text = fuzz::textOf(data, size);
    const std::filesystem::path file = fuzz::scratchFolder() / "site.txt";
    fuzz::writeBytes(file, text);

    ApplicationState app = startedRuns()[size > 0 ? data[0] % 2 : 0];
    // The reader traps every failure of its own: true or false, nothing escapes.
    try {
        ReadSiteFile(app, file.string());
    } catch (const RunTimeFailure& failure) {
        fuzz::contractBroken(std::string("a run-time failure escaped the site reader: ") + failure.what());
    } catch (const std::exception& other) {
        fuzz::contractBroken(std::string("an exception escaped the site reader: ") + other.what());
    } catch (...) {
        fuzz::contractBroken("an exception of an unknown type escaped the site reader");
    }
    return 0;
}
