// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The table of the eight editors: what each holds that the others do not.
#include "editors/editor_family.h"

#include <gtest/gtest.h>
#include <set>

namespace vesk {
namespace {

TEST(EditorFamily, EveryKindHasOneEditor) {
    std::set<ComponentKind> kinds;
    for (const EditorForm& form : editorForms) {
        kinds.insert(form.kind);
        EXPECT_EQ(&EditorFormOf(form.kind), &form);
    }
    EXPECT_EQ(kinds.size(), 8U);
}

TEST(EditorFamily, FormsCaptionsPromptsAndTopicsAreTheSystemsOwn) {
    struct Row {
        ComponentKind kind;
        const char* form;
        const char* caption;
        const char* topic;
        const char* prompt;
        const char* menu;
    };
    const Row rows[] = {
        {ComponentKind::Breakaway, "frmBRK", "Breakaway", "Option Menu\\Breakaways.htm", "Delete Breakaway - ",
         "mnuBreakaways"},
        {ComponentKind::Dispenser, "frmDispenser", "Dispensers", "Option Menu\\Dispensers.htm", "Delete Dispenser - ",
         "mnuDispensers"},
        {ComponentKind::LeakDetector, "frmMLD", "Leak Detector", "Option Menu\\Leak Detectors.htm",
         "Delete LeakDetector - ", "mnuLeakDetectors"},
        {ComponentKind::Nozzle, "frmNozzle", "Nozzle", "Option Menu\\Nozzles.htm", "Delete Nozzle - ", "mnuNozzles"},
        {ComponentKind::DispenserOthers, "frmDispOthers", "Dispensers Others", "Option Menu\\Dispenser Others.htm",
         "Delete DispOthers - ", "mnuDispenserOthers"},
        {ComponentKind::PumpOthers, "frmPumpOthers", "Pump Others", "Option Menu\\Pump Others.htm",
         "Delete PumpOther - ", "mnuPumpsOthers"},
        {ComponentKind::Pump, "frmPump", "Pumps", "Option Menu\\Pumps.htm", "Delete Pump - ", "mnuPumps"},
        {ComponentKind::Hose, "frmHose", "Hose Data", "Option Menu\\Hoses.htm", "Delete Hose - ", "mnuHoses"},
    };
    for (const Row& row : rows) {
        const EditorForm& form = EditorFormOf(row.kind);
        EXPECT_EQ(form.form, row.form);
        EXPECT_EQ(form.caption, row.caption);
        EXPECT_EQ(EditorHelpTopic(form), row.topic);
        EXPECT_EQ(form.deletePrompt, row.prompt);
        EXPECT_EQ(form.menuItem, row.menu);
    }
}

TEST(EditorFamily, ControlNamesCarryTheKindsInfix) {
    EXPECT_EQ(ControlName(EditorFormOf(ComponentKind::Breakaway), "lst", "Names"), "lstBRKNames");
    EXPECT_EQ(ControlName(EditorFormOf(ComponentKind::Breakaway), "cmd", "Add"), "cmdBRKAdd");
    EXPECT_EQ(ControlName(EditorFormOf(ComponentKind::Nozzle), "flx", ""), "flxNozzle");
    EXPECT_EQ(ControlName(EditorFormOf(ComponentKind::Dispenser), "opt", "Gas"), "optDispGas");
    EXPECT_EQ(ControlName(EditorFormOf(ComponentKind::Pump), "txt", "Name"), "txtPumpName");
}

TEST(EditorFamily, DispenserAxisCaptionsHaveNoBlanks) {
    EXPECT_EQ(EditorFormOf(ComponentKind::Dispenser).tdhFeet, "TDH-Feet");
    EXPECT_EQ(EditorFormOf(ComponentKind::Dispenser).tdhMetre, "TDH-Meter");
    for (const EditorForm& form : editorForms) {
        if (form.kind != ComponentKind::Dispenser) {
            EXPECT_EQ(form.tdhFeet, "TDH - Feet") << form.form;
            EXPECT_EQ(form.tdhMetre, "TDH - Meter") << form.form;
        }
    }
}

TEST(EditorFamily, OnlyDispenserAndDispenserOthersLackTheDeleteCharacterBranch) {
    for (const EditorForm& form : editorForms) {
        const bool lacks = form.kind == ComponentKind::Dispenser || form.kind == ComponentKind::DispenserOthers;
        EXPECT_EQ(form.deleteKeyEmptiesCell, !lacks) << form.form;
    }
}

TEST(EditorFamily, HelpTextsNameTheirOwnComponent) {
    EXPECT_EQ(EditorFormOf(ComponentKind::Breakaway).helpText,
              "User can enter the data for new Breakaway, edit the data for existing custom type of Breakaway and "
              "delete the existing custom type of Breakaway. User can not edit, delete the Standard type of Breakaway "
              "data. If user wants to see the values of the Standard type of Breakaway, he has to select the "
              "Breakaway and click on the Edit button.");
    EXPECT_EQ(EditorFormOf(ComponentKind::Pump).helpText,
              "User can enter the data for new Pump, edit the data for existing custom type of Pump and delete the "
              "existing custom type of Pump. User can not edit, delete the Standard type of Pump data. If user wants "
              "to see the values of the Standard type of Pump, he has to select the Pump and click on the Edit "
              "button.");
    EXPECT_EQ(EditorFormOf(ComponentKind::Hose).helpText,
              "User can enter the data for new Hoses, edit the data for existing custom type of Hose and delete the "
              "existing custom type of Hose. User can not edit, delete the Standard type of component. If user wants "
              "to see the values of the Standard type of Hose, he has to select the Hose and click on the Edit "
              "button.");
    EXPECT_NE(EditorFormOf(ComponentKind::Nozzle).helpText.find("Nozzle components data"), std::string_view::npos);
    EXPECT_NE(EditorFormOf(ComponentKind::Dispenser).helpText.find("new dispensers"), std::string_view::npos);
}

} // namespace
} // namespace vesk
