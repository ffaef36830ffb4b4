// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// Fuzz target of the reader of Vesk.ini: the input is the whole file.
#include "fuzz_contract.h"

#include "catalogue/data_file_path.h"
#include "site/settings_file.h"

#include <string>

namespace {

using namespace vesk;

constexpr int corruptMessage = 9;

struct SettingsRead {
    clsConfigureData config;
    std::string txtMaxNozz = "40";
    ComboList cmbNoOfBranches;
    IniRawLines rawLines;
    fuzz::RecordingInteraction ui;
};

// The only message the reader shows for a file that exists is message 9,
// whether it warns or ends the run.
void checkMessages(const fuzz::RecordingInteraction& ui) {
    for (const std::string& text : ui.shown) {
        if (text != fuzz::messageTextOf(corruptMessage)) {
            fuzz::contractBroken("a message other than message 9: " + text);
        }
    }
}

// A read that went through leaves every target in a state the program can
// show: a number of nozzles from 0 to 40, a branch list "1" to n of at most
// 255 entries, one of the three component lists, and the first two lines kept.
void checkLoaded(const SettingsRead& read) {
    const Double maxNozzles = parseNumber(read.txtMaxNozz);
    if (maxNozzles < 0 || maxNozzles > 40 || integerText(static_cast<Long>(maxNozzles)) != read.txtMaxNozz) {
        fuzz::contractBroken("txtMaxNozz outside 0 to 40: " + read.txtMaxNozz);
    }
    const Long branches = read.cmbNoOfBranches.ListCount();
    if (branches < 1 || branches > 255) {
        fuzz::contractBroken("a branch list of " + integerText(branches) + " entries");
    }
    for (Long i = 0; i < branches; ++i) {
        if (read.cmbNoOfBranches.List(i) != integerText(i + 1)) {
            fuzz::contractBroken("a branch list that does not count from 1");
        }
    }
    if (read.config.ComponentList > 2) {
        fuzz::contractBroken("a component list outside the three");
    }
    if (read.rawLines.maxNozzles.empty() || read.rawLines.branches.empty()) {
        fuzz::contractBroken("an empty raw line kept for writing back");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text = fuzz::textOf(data, size);
    const std::filesystem::path file = fuzz::scratchFolder() / settingsFileName;
    fuzz::writeBytes(file, text);

    SettingsRead read;
    try {
        ReadIniFile(fuzz::scratchFolder(), read.ui,
                    {read.config, read.txtMaxNozz, read.cmbNoOfBranches, read.rawLines});
        // Lines 3, 4 and 5 each warn at most once.
        if (read.ui.shown.size() > 3) {
            fuzz::contractBroken("more than three warnings");
        }
        checkMessages(read.ui);
        checkLoaded(read);
    } catch (const ProcessEnd& end) {
        // The file exists, so an end comes with message 9, its only message:
        // the lines are counted before any of them is looked at.
        if (end.messageCode() != corruptMessage || read.ui.shown.size() != 1) {
            fuzz::contractBroken("an end of the process other than by message 9 alone");
        }
        checkMessages(read.ui);
    } catch (const RunTimeFailure& failure) {
        // Lines 1 and 2 are converted to Integer and nothing else is.
        const std::string description = failure.what();
        if (description != failure::typeMismatch && description != failure::overflow) {
            fuzz::contractBroken("a run-time failure other than Type mismatch or Overflow: " + description);
        }
        // They come before lines 3 to 5, the only lines that warn.
        if (!read.ui.shown.empty()) {
            fuzz::contractBroken("a message shown before a failure of lines 1 or 2");
        }
    } catch (const std::exception& other) {
        fuzz::contractBroken(std::string("an exception other than a run-time failure: ") + other.what());
    } catch (...) {
        fuzz::contractBroken("an exception of an unknown type");
    }

    // Reading never writes: the file is as it was.
    if (ReadWholeFile(file) != text) {
        fuzz::contractBroken("the reader changed the settings file");
    }
    return 0;
}
