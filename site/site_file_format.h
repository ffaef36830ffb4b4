// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The site file: 52 lines of text, one value a line, in sections by position.
#pragma once

#include "site/site_properties.h"

#include <array>
#include <filesystem>
#include <string>
#include <string_view>

namespace vesk {

inline constexpr int siteFileLineCount = 52;
using SiteFileLines = std::array<std::string, siteFileLineCount>;

// The keys that open the sections. They are written but never read: a reader
// goes by position alone.
struct SectionKey {
    int line;
    const char* key;
};

inline constexpr std::array<SectionKey, 6> sectionKeys{{
    {0, "$DIA"},  // Dispensing Area
    {8, "$PIA"},  // Piping Area
    {26, "$PUA"}, // Pump Area
    {32, "$SL"},  // Site Layout
    {37, "$SS"},  // System Settings
    {41, "$SP"},  // Site Properties
}};

bool IsSectionKeyLine(int line);

// Lines 1 to 36 hold the four areas: component names, lengths in feet (the tank
// in inches), counts, and these three lines of their own.
inline constexpr int lastAreaLine = 36;
inline constexpr int valveLine = 22;     // the valve text of the trunk
inline constexpr int modeLine = 23;      // "True" for the Basic piping mode
inline constexpr int frequencyLine = 29; // "True" for 50 Hz pumps

// Lines 38 to 40: the settings.
inline constexpr int fuelLine = 38;          // "True" for gas
inline constexpr int unitsLine = 39;         // "True" for US units
inline constexpr int componentListLine = 40; // "A", "I" or "C"

// The valve texts a read understands, with blanks, and the boxes they set.
// The grid writes its own texts without blanks, so of a file this program
// wrote only "None" sets the boxes.
struct ValveBoxes {
    const char* text;
    Integer chkBall;
    Integer chkSwing;
};

inline constexpr std::array<ValveBoxes, 4> valveBoxes{{
    {"Ball Valve and Swing Check", 1, 1},
    {"Swing Check", 0, 1},
    {"Ball Valve", 1, 0},
    {"None", 0, 0},
}};

// Lines 42 to 51: the site properties, in the order of the file. Line 42 goes
// to the class, lines 43 to 51 to the boxes of the Site Properties dialog.
struct PropertyLine {
    std::string clsSiteProperties::*property;
    std::array<std::string, 5> SitePropertiesForm::*boxes;
    std::size_t box;
};

inline constexpr int firstPropertyLine = 42;
inline constexpr std::array<PropertyLine, 10> propertyLines{{
    {&clsSiteProperties::strCustomerName, nullptr, 0},
    {&clsSiteProperties::strCustomerContact, &SitePropertiesForm::txtSiteInfo, 1},
    {&clsSiteProperties::strSiteDescription, &SitePropertiesForm::txtSiteInfo, 2},
    {&clsSiteProperties::strAddress1, &SitePropertiesForm::txtSiteInfo, 3},
    {&clsSiteProperties::strAddress2, &SitePropertiesForm::txtSiteInfo, 4},
    {&clsSiteProperties::strGeneratedBy, &SitePropertiesForm::txtReport, 0},
    {&clsSiteProperties::strDate, &SitePropertiesForm::txtReport, 1},
    {&clsSiteProperties::strContact, &SitePropertiesForm::txtReport, 2},
    {&clsSiteProperties::strEmail, &SitePropertiesForm::txtReport, 3},
    {&clsSiteProperties::strPhone, &SitePropertiesForm::txtReport, 4},
}};

// The 52 lines of a file read with a plain line read; a shorter file fails
// ("Input past end of file"), and what follows line 51 is ignored.
SiteFileLines ReadSiteFileLines(const std::filesystem::path& fileName);

// The text of a site file: the lines, each ended by CR LF.
std::string SiteFileText(const SiteFileLines& lines);

// Replaces the file with the lines, written in place.
void WriteSiteFileLines(const std::filesystem::path& fileName, const SiteFileLines& lines);

} // namespace vesk
