// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The one table of the panels' inputs: every text field and every list of the four areas.
#include "workbench/panel_fields.h"

#include <algorithm>
#include <vector>

namespace vesk {

namespace {

using PS = PanelState;
using UC = UnitCaptions;
using SS = SiteSnapshot;

constexpr Double feet = units::metresPerFoot;
constexpr Double inches = units::centimetresPerInch;

// A field of a length. The metric limits are the US ones times the factor,
// rounded up.
constexpr PanelField length(const char* name, Area area, std::string PS::*text, GridPlace cell, int fileLine,
                            int maxLength, const char* toolTip, LengthUnit unit) {
    return {name,    area, text, nullptr, 0, cell, fileLine, maxLength, FieldCheck::Length, KeyFilter::Decimal,
            toolTip, unit};
}

constexpr PanelField fitting(const char* name, std::array<std::string, 4> PS::*fittings, std::size_t index,
                             GridPlace cell, int fileLine, const char* toolTip) {
    return {name, Area::Piping,      nullptr,           fittings, index, cell, fileLine,
            2,    FieldCheck::Count, KeyFilter::Digits, toolTip};
}

} // namespace

// The tables below stand one entry a line.
// clang-format off

// The help texts are the system's own, spelling included.
const std::array<AreaInfo, areaCount> areas{{
    {Area::Dispensing, "cmdDispenser", "Dispensing Area", "fraDispensing", "Dispensing Area", "lblDispenserHelp",
     "In Dispensing Area user can select the Dispenser, Breakaway, Hose Size, Nozzle and Others components. User can "
     "enter the desired Hose Length and number of nozzles. Graph will be plotted on the basis of number of nozzle "
     "entered (next even number)."},
    {Area::Piping, "cmdPiping", "Piping Area", "fraPiping", "Piping Area", "lblPipingHelp",
     "In Piping Area user can select the type of piping material, Branch Size, Trunk Size. User can also enter the "
     "number and value of different Pipe Fittings used. In this area user can select either the advance or basic "
     "option."},
    {Area::Pump, "cmdPump", "Pump Area", "fraPump", "Pumping Area", "lblPumpHelp",
     "In Pump Area user can select the different components in the given fields. On click of 'Update' button, a "
     "pump curve will be shown in the graph for the selected pump."},
    {Area::SiteLayout, "cmdSite", "Site Layout", "fraSite", "Site Layout", "lblSiteHelp",
     "In Site Layout area user can enter the size of Tank Diamenter, Bury Depth and Rise. Apart from these user can "
     "select the number of branches to be used in Fuel Station. An image is shown here on the basis of Pump quantity "
     "selected in Pump Area and Number of Branches in Site Layout. This image will be changed dynamically if any of "
     "these selection is changed."},
}};

const std::array<PanelField, 17> panelFields{{
    length("txtHoseLen", Area::Dispensing, &PS::txtHoseLen, {4, 1}, 4, 5, "Enter the desired Hose Length ",
           {feet, "lblHoseLength", &UC::lblHoseLength, "Hose length(ft)", "Hose Length(m)", "Hose Length(ft)", "Hose Length(m)",
            &SS::HoseLen, 999, 304.5}),
    {"txtNoOfNozzle", Area::Dispensing, &PS::txtNoOfNozzle, nullptr, 0, {7, 2}, 7, 2, FieldCheck::Nozzle,
     KeyFilter::Digits, "Enter the No.of Nozzles required in Fuel Station"},
    // The limit of the number of nozzles, from the settings file: shown, not entered.
    {"txtMaxNozz", Area::Dispensing, &PS::txtMaxNozz},
    length("txtBranchLength", Area::Piping, &PS::txtBranchLength, {10, 1}, 11, 6,
           "Enter the length of the Branch to be used in Fuel Station",
           {feet, "lblLength", &UC::lblLength, "Length(ft)", "Length(m)", "Branch Length(ft)", "Branch Length(m)",
            &SS::BranchLength, 9999, 3047.7}),
    fitting("txtBranchFitting(0)", &PS::txtBranchFitting, 0, {11, 2}, 12,
            "Enter the number of 45 elbows required in Branch"),
    fitting("txtBranchFitting(1)", &PS::txtBranchFitting, 1, {12, 2}, 13,
            "Enter the number of 90 elbows required in Branch"),
    fitting("txtBranchFitting(2)", &PS::txtBranchFitting, 2, {13, 2}, 14,
            "Enter the number of Thru T required in Branch"),
    fitting("txtBranchFitting(3)", &PS::txtBranchFitting, 3, {14, 2}, 15,
            "Enter the number of Side T required in Branch"),
    length("txtTrunkLength", Area::Piping, &PS::txtTrunkLength, {16, 1}, 17, 6,
           "Enter the length of the Trunk  to be used in Fuel Station",
           {feet, "lblTrunkLength", &UC::lblTrunkLength, "Length(ft)", "Length(m)", "Trunk Length(ft)", "Trunk Length(m)",
            &SS::TrunkLength, 9999, 3047.7}),
    fitting("txtTrunkFitting(0)", &PS::txtTrunkFitting, 0, {17, 2}, 18,
            "Enter the number of 45 elbows required in Trunk"),
    fitting("txtTrunkFitting(1)", &PS::txtTrunkFitting, 1, {18, 2}, 19,
            "Enter the number of 90 elbows required in Trunk"),
    fitting("txtTrunkFitting(2)", &PS::txtTrunkFitting, 2, {19, 2}, 20, "Enter the number of Thru T required in Trunk"),
    fitting("txtTrunkFitting(3)", &PS::txtTrunkFitting, 3, {20, 2}, 21, "Enter the number of Side T required in Trunk"),
    length("txtPipeLen", Area::Piping, &PS::txtPipeLen, {24, 1}, 25, 6, "Enter the length of the the pipe to be used",
           {feet, "lblPipeLen", &UC::lblPipeLen, "Length(ft)", "Length(m)", "Pipe Length(ft)", "Pipe Length(m)", &SS::PipeLen, 9999,
            3047.7}),
    length("txtTankDiameter", Area::SiteLayout, &PS::txtTankDiameter, {30, 2}, 33, 7,
           "Enter the diameter of the Tank to be used",
           {inches, "lblTankDiameter", &UC::lblTankDiameter, "Tank Diameter(inch)", "Tank Diameter(cm)", "Tank Diameter(inch)",
            "Tank Diameter(cm)", &SS::TankDiameter, 9999, 25397.5}),
    length("txtBuryDepth", Area::SiteLayout, &PS::txtBuryDepth, {31, 2}, 34, 7, "Enter the Bury Depth",
           {feet, "lblBuryDepth", &UC::lblBuryDepth, "Bury Depth(ft)", "Bury Depth(m)", "Bury Depth(ft)", "Bury Depth(m)",
            &SS::BuryDepth, 9999, 3047.7}),
    length("txtRise", Area::SiteLayout, &PS::txtRise, {32, 2}, 35, 6, "Enter the Rise value",
           {feet, "lblRise", &UC::lblRise, "Rise(ft)", "Rise(m)", "Rise(ft)", "Rise(m)", &SS::Rise, 9999, 3047.7}),
}};

// The blanks inside the tool tips are the system's own.
const std::array<PanelList, 14> panelLists{{
    {"cmbDispenser", Area::Dispensing, &PS::cmbDispenser, {1, 1}, 1, "Select the desired Dispenser from the combo box",
     true},
    {"cmbBreakAway", Area::Dispensing, &PS::cmbBreakAway, {2, 1}, 2, "Select the desired Breakaway from the combo box",
     true},
    {"cmbHoseSize", Area::Dispensing, &PS::cmbHoseSize, {3, 1}, 3, "Select the required hose size from the  combo box",
     false},
    {"cmbNozzle", Area::Dispensing, &PS::cmbNozzle, {5, 1}, 5, "Select the desired Nozzle from the combo box", true},
    {"cmbDispOthers", Area::Dispensing, &PS::cmbDispOthers, {6, 1}, 6,
     "Select the Others component from the combo box", true},
    {"cmbPiping", Area::Piping, &PS::cmbPiping, {8, 1}, 9, "Select piping material to be used in Fuel Station", false},
    {"cmbBranch", Area::Piping, &PS::cmbBranch, {9, 1}, 10, "Select the size of the Branch to be used in Fuel Station",
     false},
    {"cmbTrunk", Area::Piping, &PS::cmbTrunk, {15, 1}, 16, "Select the size of the Trunk to be used in Fuel Station",
     false},
    {"cmbPipeSize", Area::Piping, &PS::cmbPipeSize, {23, 1}, 24, "Select the size of the Pipe to be used in Fuel Station",
     false},
    {"cmbPumps", Area::Pump, &PS::cmbPumps, {25, 1}, 27, "Select the desired Pump from Available Pump combo box", true},
    {"cmbQuantity", Area::Pump, &PS::cmbQuantity, {26, 2}, 28, "Select the number of Pumps to be used", false},
    {"cmbLeak", Area::Pump, &PS::cmbLeak, {28, 1}, 30, "Select the desired Leak Detector from the combo box", true},
    {"cmbPumpOthers", Area::Pump, &PS::cmbPumpOthers, {29, 1}, 31, "Select the Other Pump related component", true},
    {"cmbNoOfBranches", Area::SiteLayout, &PS::cmbNoOfBranches, {33, 2}, 36, "Select the number of branches to be used",
     false},
}};
// clang-format on

namespace {

template <typename Entry, std::size_t N, typename Match>
const Entry* findEntry(const std::array<Entry, N>& entries, Match&& match) {
    const auto found = std::find_if(entries.begin(), entries.end(), match);
    return found == entries.end() ? nullptr : &*found;
}

template <typename Entry> const Entry& orFail(const Entry* entry) {
    if (entry == nullptr) {
        fail(failure::subscript);
    }
    return *entry;
}

} // namespace

const PanelField& FieldNamed(std::string_view controlName) {
    return orFail(findEntry(panelFields, [&](const PanelField& field) { return field.controlName == controlName; }));
}

const PanelList& ListNamed(std::string_view controlName) {
    return orFail(findEntry(panelLists, [&](const PanelList& list) { return list.controlName == controlName; }));
}

const PanelField* FieldAt(GridPlace cell) {
    return findEntry(panelFields, [&](const PanelField& field) { return field.cell == cell; });
}

const PanelList* ListAt(GridPlace cell) {
    return findEntry(panelLists, [&](const PanelList& list) { return list.cell == cell; });
}

const PanelField* FieldOnLine(int fileLine) {
    return findEntry(panelFields, [&](const PanelField& field) { return field.fileLine == fileLine; });
}

const PanelList* ListOnLine(int fileLine) {
    return findEntry(panelLists, [&](const PanelList& list) { return list.fileLine == fileLine; });
}

namespace {

// The text of a field of panels that may be const.
template <typename Panel> auto& textIn(Panel& panel, const PanelField& field) {
    if (field.fittings != nullptr) {
        return at(panel.*field.fittings, static_cast<long>(field.fitting));
    }
    return panel.*field.text;
}

} // namespace

std::string& TextOf(PanelState& panel, const PanelField& field) {
    return textIn(panel, field);
}

const std::string& TextOf(const PanelState& panel, const PanelField& field) {
    return textIn(panel, field);
}

std::span<const PanelField* const> LengthFields() {
    static const std::vector<const PanelField*> lengths = [] {
        std::vector<const PanelField*> found;
        for (const PanelField& field : panelFields) {
            if (field.isLength()) {
                found.push_back(&field);
            }
        }
        return found;
    }();
    return lengths;
}

} // namespace vesk
