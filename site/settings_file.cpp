// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// Vesk.ini: the five lines of settings kept between runs.
#include "site/settings_file.h"

#include "catalogue/component_lists.h"
#include "catalogue/data_file_path.h"
#include "catalogue/text_lines.h"
#include "site/boolean_text.h"

#include <vector>

namespace vesk {

namespace {

constexpr int iniLineCount = 5;
constexpr int corruptMessage = 9;
constexpr int missingMessage = 8;
constexpr Integer largestMaxNozzles = 40;

// IniLines: the lines up to the end of the file. A sixth line, an empty line
// among the five, or fewer than five end the process with message 9.
std::array<std::string, iniLineCount> readIniLines(const std::filesystem::path& file, UserInteraction& ui) {
    TextLineReader stream(ReadWholeFile(file));
    std::vector<std::string> lines;
    while (!stream.atEndOfStream()) {
        if (lines.size() == iniLineCount) {
            EndWithMessage(corruptMessage, ui);
        }
        lines.push_back(stream.readLine());
    }
    std::array<std::string, iniLineCount> iniLines;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (lines[i].empty()) {
            EndWithMessage(corruptMessage, ui);
        }
        iniLines[i] = lines[i];
    }
    if (lines.size() < iniLineCount) {
        EndWithMessage(corruptMessage, ui);
    }
    return iniLines;
}

// "True" or "False", compared exactly; anything else warns with message 9 and
// leaves the property as it was.
void readTrueFalse(const std::string& line, bool& property, UserInteraction& ui) {
    if (line == trueText) {
        property = true;
    } else if (line == falseText) {
        property = false;
    } else {
        ShowMessage(corruptMessage, ui);
    }
}

void readComponentList(const std::string& line, Byte& property, UserInteraction& ui) {
    for (const ComponentListName& list : componentListNames) {
        if (line == list.letter) {
            property = list.code;
            return;
        }
    }
    ShowMessage(corruptMessage, ui);
}

void fillBranchList(ComboList& cmbNoOfBranches, Integer branches) {
    cmbNoOfBranches.Clear();
    // The counter is a Byte: more than 255 branches overflow.
    const Byte last = toByte(branches);
    for (int branch = 1; branch <= last; ++branch) {
        cmbNoOfBranches.AddItem(integerText(branch));
    }
}

} // namespace

void ReadIniFile(const std::filesystem::path& programFolder, UserInteraction& ui, const SettingsTargets& targets) {
    const auto file = FindDataFile(programFolder, settingsFileName);
    if (!file) {
        EndWithMessage(missingMessage, ui);
    }
    const auto lines = readIniLines(*file, ui);

    const Integer maxNozzles = parseInteger(lines[0]);
    targets.txtMaxNozz =
        (maxNozzles >= 0 && maxNozzles <= largestMaxNozzles) ? integerText(maxNozzles) : integerText(largestMaxNozzles);

    const Integer branches = parseInteger(lines[1]);
    if (branches < 1) {
        EndWithMessage(corruptMessage, ui);
    }
    fillBranchList(targets.cmbNoOfBranches, branches);

    readTrueFalse(lines[2], targets.config.Data, ui);
    readTrueFalse(lines[3], targets.config.Units, ui);
    readComponentList(lines[4], targets.config.ComponentList, ui);

    targets.rawLines = IniRawLines{lines[0], lines[1]};
}

std::string ComposeIniFile(const IniRawLines& rawLines, const clsConfigureData& config) {
    std::string text;
    appendLine(text, rawLines.maxNozzles);
    appendLine(text, rawLines.branches);
    appendLine(text, BooleanText(config.Data));
    appendLine(text, BooleanText(config.Units));
    appendLine(text, at(componentListNames, config.ComponentList).letter);
    return text;
}

void WriteIniFile(const std::filesystem::path& programFolder, const IniRawLines& rawLines,
                  const clsConfigureData& config) {
    const std::string text = ComposeIniFile(rawLines, config);
    WriteWholeFile(PathForWriting(programFolder, settingsFileName), text);
}

} // namespace vesk
