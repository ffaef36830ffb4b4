// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The one table of the panels' inputs: every text field and every list of the four areas.
#pragma once

#include "workbench/panel_state.h"

#include "engine/units.h"
#include "site/site_snapshot.h"

#include <array>
#include <span>
#include <string>
#include <string_view>

namespace vesk {

// The four areas of the main window, in the order of their tabs.
enum class Area { Dispensing = 0, Piping = 1, Pump = 2, SiteLayout = 3 };
inline constexpr int areaCount = 4;

// An area: its tab of tabMain, the button that shows it, its frame and the
// text of its help frame.
struct AreaInfo {
    Area area;
    const char* button;
    const char* buttonCaption;
    const char* frame;
    const char* frameCaption;
    const char* helpLabel;
    const char* helpText;
};

extern const std::array<AreaInfo, areaCount> areas;

// A cell of the grids flxCurrent and flxBaseLine.
struct GridPlace {
    long row = -1;
    long column = -1;
    bool operator==(const GridPlace&) const = default;
};

enum class KeyFilter { Digits, Decimal };

// The check a field runs when it loses the focus.
enum class FieldCheck { Length, Count, Nozzle, None };

// What a length holds and how it is converted: the file and the snapshots
// hold feet (inches for the tank), the field metres (centimetres) when the
// units are metric.
struct LengthUnit {
    Double metricPerUs = 0;                     // 0.3048 m a foot, 2.54 cm an inch; 0 for a number without a unit
    const char* labelControl = nullptr;         // the label beside the field
    std::string UnitCaptions::*label = nullptr; // its caption in the panels
    const char* usCaption = nullptr;            // in US units
    const char* metricCaption = nullptr;        // and in metric units
    // Column 0 of the field's grid row, as a site file's read sets it.
    const char* gridUsCaption = nullptr;
    const char* gridMetricCaption = nullptr;
    std::string SiteSnapshot::*snapshot = nullptr; // where the snapshots keep it, in feet
    // The largest values the length check lets pass, by the Units setting.
    Double usLimit = 0;
    Double metricLimit = 0;
};

// One text field of the panels.
struct PanelField {
    const char* controlName; // "txtHoseLen", "txtTrunkFitting(0)"
    Area area;
    std::string PanelState::*text = nullptr;                    // the field's text, or
    std::array<std::string, 4> PanelState::*fittings = nullptr; // one of a row of fitting counts
    std::size_t fitting = 0;
    GridPlace cell{};  // where the grids list it
    int fileLine = -1; // its line in a site file; -1 for none
    int maxLength = 0; // characters; 0 for no limit
    FieldCheck check = FieldCheck::None;
    KeyFilter keys = KeyFilter::Digits;
    const char* toolTip = "";
    LengthUnit unit{}; // for the lengths and the tank diameter

    constexpr bool isLength() const { return unit.metricPerUs != 0; }
};

// One list of the panels; each offers only its own entries.
struct PanelList {
    const char* controlName;
    Area area;
    ComboList PanelState::*list;
    GridPlace cell;
    int fileLine;
    const char* toolTip;
    // A click shows the chosen entry's text as the tool tip, so a long name
    // that the box cuts can be read.
    bool selectionToolTip;
};

// The text fields, in the order of the site file.
extern const std::array<PanelField, 17> panelFields;
// The lists, in the order of the site file.
extern const std::array<PanelList, 14> panelLists;

// A field or a list by its control name; an unknown name fails with
// "Subscript out of range".
const PanelField& FieldNamed(std::string_view controlName);
const PanelList& ListNamed(std::string_view controlName);

// The field or the list at a cell of the grids, or on a line of a site file;
// nullptr where there is none.
const PanelField* FieldAt(GridPlace cell);
const PanelList* ListAt(GridPlace cell);
const PanelField* FieldOnLine(int fileLine);
const PanelList* ListOnLine(int fileLine);

// The text of a field in the panels.
std::string& TextOf(PanelState& panel, const PanelField& field);
const std::string& TextOf(const PanelState& panel, const PanelField& field);

// The lengths and the tank diameter: the fields with a unit.
std::span<const PanelField* const> LengthFields();

} // namespace vesk
