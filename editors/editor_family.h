// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The eight component editors as one table of what sets each apart.
#pragma once

#include "engine/component_kind.h"

#include <array>
#include <string>
#include <string_view>

namespace vesk {

// The six editors of one design, and the two that differ in places.
enum class EditorVariant { Family, Pump, Hose };

// What one editor holds that the others do not. Control names are the infix
// between the prefix and the role: lst + BRK + Names, txt + BRK + Name …
struct EditorForm {
    ComponentKind kind;
    EditorVariant variant;
    std::string_view form;        // frmBRK
    std::string_view menuItem;    // the Options menu entry that opens it
    std::string_view infix;       // BRK
    std::string_view caption;     // the window's caption
    std::string_view nameLabel;   // the label of the name box
    std::string_view nameCaption; // its text
    std::string_view deletePrompt;
    std::string_view tdhFeet;  // the head column's caption in US units
    std::string_view tdhMetre; // and in metric units
    bool deleteKeyEmptiesCell; // the grid's branch for key code 127
    std::string_view helpText;
};

inline constexpr std::string_view tdhFeetCaption = "TDH - Feet";
inline constexpr std::string_view tdhMetreCaption = "TDH - Meter";

inline constexpr std::array<EditorForm, 8> editorForms{{
    {ComponentKind::Breakaway, EditorVariant::Family, "frmBRK", "mnuBreakaways", "BRK", "Breakaway", "lblBreakName",
     "Breakaway Name", "Delete Breakaway - ", tdhFeetCaption, tdhMetreCaption, true,
     "User can enter the data for new Breakaway, edit the data for existing custom type of Breakaway and delete the "
     "existing custom type of Breakaway. User can not edit, delete the Standard type of Breakaway data. If user wants "
     "to see the values of the Standard type of Breakaway, he has to select the Breakaway and click on the Edit "
     "button."},
    {ComponentKind::Dispenser, EditorVariant::Family, "frmDispenser", "mnuDispensers", "Disp", "Dispensers",
     "lblDispName", "Dispenser Name", "Delete Dispenser - ", "TDH-Feet", "TDH-Meter", false,
     "User can enter the data for new dispensers, edit the data for existing custom type of dispenser and delete the "
     "existing custom type of dispenser. User can not edit, delete the Standard type of component. If user wants to "
     "see the values of the Standard type of dispenser, he has to select the dispenser and click on the Edit "
     "button."},
    {ComponentKind::LeakDetector, EditorVariant::Family, "frmMLD", "mnuLeakDetectors", "MLD", "Leak Detector",
     "lblMLDName", "Leak Detector Name", "Delete LeakDetector - ", tdhFeetCaption, tdhMetreCaption, true,
     "User can enter the data for new Leak Detector, edit the data for existing custom type of Leak Detector and "
     "delete the existing custom type of Leak Detector. User can not edit, delete the Standard type of Leak Detector "
     "data. If user wants to see the values of the Standard type of Leak Detector, he has to select the Leak Detector "
     "and click on the Edit button."},
    {ComponentKind::Nozzle, EditorVariant::Family, "frmNozzle", "mnuNozzles", "Nozzle", "Nozzle", "lblNozzleName",
     "Nozzle Name", "Delete Nozzle - ", tdhFeetCaption, tdhMetreCaption, true,
     "User can enter the data for new Nozzle, edit the data for existing custom type of Nozzle and delete the "
     "existing custom type of Nozzle. User can not edit, delete the Standard type of Nozzle components data. If user "
     "wants to see the values of the Standard type of Nozzle, he has to select the Nozzle and click on the Edit "
     "button."},
    {ComponentKind::DispenserOthers, EditorVariant::Family, "frmDispOthers", "mnuDispenserOthers", "DispOthers",
     "Dispensers Others", "lblDispOthersName", "Dispenser Others Name", "Delete DispOthers - ", tdhFeetCaption,
     tdhMetreCaption, false,
     "User can enter the data for new Dispenser Others components, edit the data for existing custom type of "
     "Dispenser Others components and delete the existing custom type of Dispenser Others components. User can not "
     "edit, delete the Standard type of Dispenser Others components data. If user wants to see the values of the "
     "Standard type of Dispenser Others components, he has to select the Dispenser Others components and click on "
     "the Edit button."},
    {ComponentKind::PumpOthers, EditorVariant::Family, "frmPumpOthers", "mnuPumpsOthers", "PumpOthers", "Pump Others",
     "lblPumpOthersName", "Pump Others Name", "Delete PumpOther - ", tdhFeetCaption, tdhMetreCaption, true,
     "User can enter the data for new Pump Others, edit the data for existing custom type of Pump Others and delete "
     "the existing custom type of Pump Others. User can not edit, delete the Standard type of Pump Others data. If "
     "user wants to see the values of the Standard type of Pump Others, he has to select the Pump Others and click "
     "on the Edit button."},
    {ComponentKind::Pump, EditorVariant::Pump, "frmPump", "mnuPumps", "Pump", "Pumps", "lblPumpName", "Pump Name",
     "Delete Pump - ", tdhFeetCaption, tdhMetreCaption, true,
     "User can enter the data for new Pump, edit the data for existing custom type of Pump and delete the existing "
     "custom type of Pump. User can not edit, delete the Standard type of Pump data. If user wants to see the values "
     "of the Standard type of Pump, he has to select the Pump and click on the Edit button."},
    {ComponentKind::Hose, EditorVariant::Hose, "frmHose", "mnuHoses", "Hose", "Hose Data", "lblHoseSize", "Hose Size",
     "Delete Hose - ", tdhFeetCaption, tdhMetreCaption, true,
     "User can enter the data for new Hoses, edit the data for existing custom type of Hose and delete the existing "
     "custom type of Hose. User can not edit, delete the Standard type of component. If user wants to see the values "
     "of the Standard type of Hose, he has to select the Hose and click on the Edit button."},
}};

// The editor of a kind.
const EditorForm& EditorFormOf(ComponentKind kind);

// The name of one of an editor's controls: prefix, the editor's infix, role
// ("lst", "Names" gives lstBRKNames).
std::string ControlName(const EditorForm& form, std::string_view prefix, std::string_view role);

// The help topic that F1 opens in the editor.
std::string_view EditorHelpTopic(const EditorForm& form);

} // namespace vesk
