// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// Vesk.ini: the five lines of settings kept between runs.
#pragma once

#include "catalogue/list_views.h"
#include "messages/user_interaction.h"
#include "site/configure_data.h"

#include <array>
#include <filesystem>
#include <string>

namespace vesk {

inline constexpr std::string_view settingsFileName = "Vesk.ini";

// The raw texts of lines 1 and 2, written back at exit as they were read.
struct IniRawLines {
    std::string maxNozzles;
    std::string branches;
};

// What reading the settings sets.
struct SettingsTargets {
    clsConfigureData& config;
    std::string& txtMaxNozz;
    ComboList& cmbNoOfBranches;
    IniRawLines& rawLines;
};

// ReadIniFile: reads Vesk.ini of `programFolder`.
// - Missing: message 8, and the process ends.
// - Other than five lines, or an empty line among them: message 9, the process
//   ends.
// - Line 1, a 16-bit integer: from 0 to 40 txtMaxNozz shows it, otherwise "40".
// - Line 2, a 16-bit integer of at least 1 (else message 9 and the end): the
//   branch list gets "1" to n; above 255 the Byte counter overflows.
// - Lines 1 or 2 not numeric: "Type mismatch", no message of ours.
// - Lines 3, 4, 5 ("True"/"False", "True"/"False", "A"/"I"/"C", compared
//   exactly): a bad one shows message 9 and the run goes on with the property
//   as it was.
void ReadIniFile(const std::filesystem::path& programFolder, UserInteraction& ui, const SettingsTargets& targets);

// The text WriteIniFile writes: the raw lines 1 and 2, then Data, Units and
// ComponentList. Lines end in CR LF.
std::string ComposeIniFile(const IniRawLines& rawLines, const clsConfigureData& config);

// WriteIniFile: replaces Vesk.ini of `programFolder`.
void WriteIniFile(const std::filesystem::path& programFolder, const IniRawLines& rawLines,
                  const clsConfigureData& config);

} // namespace vesk
