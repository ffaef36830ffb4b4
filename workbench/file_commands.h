// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The New, Open, Save and Save As commands of the File menu, with their dialogs and questions.
#pragma once

#include "workbench/application_state.h"

#include "messages/user_interaction.h"

namespace vesk {

// The file dialogs' filter, in the system's "description|pattern" form.
inline constexpr const char* siteFileFilter = "Vesk Files(*.txt)|*.txt";
// The folder under the program folder where site files live and the dialogs start.
inline constexpr const char* siteFileFolder = "SaveSiteInfo";
inline constexpr const char* unsavedQuestion = "Current Values are not saved. Do you want to save now?";
inline constexpr const char* overwriteQuestion = "File Already exists! Do you want to overwrite";

// What the window has to show after a command, from the least to the most.
enum class FileCommandEnd {
    Nothing,        // ended silently or after a box; nothing on the screen changed
    CaptionChanged, // the site file was written under a new name
    ReadFailed,     // a site read failed part way: the panels and grids may be partly changed
    Opened,         // a site was read and calculated: everything anew, the site picture too, and
                    // the focus to txtNoOfNozzle
    StartedAgain,   // the initialisation ran again: everything anew, the Dispensing Area shown
};

// The request of one of the file dialogs: the title, the save or open mode,
// the start folder (the program folder + SaveSiteInfo), the filter and an
// empty start name.
FileDialogRequest SiteFileDialog(const ApplicationState& app, const char* title, bool save);

// The question of New and Open: when a Calculate has run since the last save
// and there is a site file, "Current Values are not saved. Do you want to save
// now?" with Yes, No and Cancel. Yes writes the site file but leaves blnSaved
// as it is. Returns false when the command is to end (Cancel).
bool AskToSaveBeforeLeaving(ApplicationState& app, UserInteraction& ui);

// File, New: the question, the open dialog titled "New" (Cancel ends), then
// NewSite with the name chosen: an existing file shows its message and changes
// nothing, any other name starts the site again under that name.
FileCommandEnd FileNew(ApplicationState& app, UserInteraction& ui);

// File, Open: the question, the open dialog titled "Open" (Cancel ends), then
// OpenSiteFile with the name chosen: message 11 for a missing file (the site
// file name emptied), message 10 for a failed read (the new name kept, the
// caption the old), else the site read, cut to the nozzle limit, calculated
// and saved.
FileCommandEnd FileOpen(ApplicationState& app, UserInteraction& ui);

// File, Save: the site file written, blnSaved set; it never asks.
FileCommandEnd FileSave(ApplicationState& app);

// File, Save As: the save dialog titled "Save As" (Cancel or an empty name
// ends); over an existing file "File Already exists! Do you want to overwrite"
// with Yes and No (No ends); then the file written under the name, which the
// caption and strSiteFile take, and blnSaved set.
FileCommandEnd FileSaveAs(ApplicationState& app, UserInteraction& ui);

// File, Exit up to the end of the process: the question of New and Open
// (Cancel keeps the program going: false), then the settings file written.
// Returns whether the process ends.
bool ExitProgram(ApplicationState& app, UserInteraction& ui);

// The close box: the settings file is written, nothing is asked, so unsaved
// values are lost without a word.
void CloseMainWindow(ApplicationState& app);

} // namespace vesk
