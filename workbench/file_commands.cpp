// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The New, Open, Save and Save As commands of the File menu, with their dialogs and questions.
#include "workbench/file_commands.h"

#include "workbench/site_file.h"

#include <filesystem>
#include <optional>
#include <string>

namespace vesk {

namespace {

// The name chosen in a file dialog; nothing for Cancel.
std::optional<std::string> chooseSiteFile(const ApplicationState& app, UserInteraction& ui, const char* title,
                                          bool save) {
    return ui.chooseFile(SiteFileDialog(app, title, save));
}

} // namespace

FileDialogRequest SiteFileDialog(const ApplicationState& app, const char* title, bool save) {
    FileDialogRequest request;
    request.save = save;
    request.title = title;
    request.startFolder = (app.programFolder / siteFileFolder).string();
    request.filter = siteFileFilter;
    request.fileName.clear();
    return request;
}

bool AskToSaveBeforeLeaving(ApplicationState& app, UserInteraction& ui) {
    if (app.flags.blnSaved || app.strSiteFile.empty()) {
        return true;
    }
    const Answer answer = ui.askYesNoCancel(unsavedQuestion);
    if (answer == Answer::Cancel) {
        return false;
    }
    if (answer == Answer::Yes) {
        // The command goes on to another site, so blnSaved is not set.
        WriteSiteFile(app, app.strSiteFile);
    }
    return true;
}

FileCommandEnd FileNew(ApplicationState& app, UserInteraction& ui) {
    if (!AskToSaveBeforeLeaving(app, ui)) {
        return FileCommandEnd::Nothing;
    }
    const std::optional<std::string> fileName = chooseSiteFile(app, ui, "New", false);
    if (!fileName) {
        return FileCommandEnd::Nothing;
    }
    return NewSite(app, *fileName, ui) ? FileCommandEnd::StartedAgain : FileCommandEnd::Nothing;
}

FileCommandEnd FileOpen(ApplicationState& app, UserInteraction& ui) {
    if (!AskToSaveBeforeLeaving(app, ui)) {
        return FileCommandEnd::Nothing;
    }
    const std::optional<std::string> fileName = chooseSiteFile(app, ui, "Open", false);
    if (!fileName) {
        return FileCommandEnd::Nothing;
    }
    std::error_code error;
    const bool exists = std::filesystem::is_regular_file(*fileName, error);
    if (OpenSiteFile(app, *fileName, ui)) {
        return FileCommandEnd::Opened;
    }
    // A missing file changed nothing on the screen; a failed read may have.
    return exists ? FileCommandEnd::ReadFailed : FileCommandEnd::Nothing;
}

FileCommandEnd FileSave(ApplicationState& app) {
    SaveSite(app);
    return FileCommandEnd::Nothing;
}

FileCommandEnd FileSaveAs(ApplicationState& app, UserInteraction& ui) {
    const std::optional<std::string> fileName = chooseSiteFile(app, ui, "Save As", true);
    if (!fileName || fileName->empty()) {
        return FileCommandEnd::Nothing;
    }
    std::error_code error;
    if (std::filesystem::exists(*fileName, error) && ui.askYesNo(overwriteQuestion) == Answer::No) {
        return FileCommandEnd::Nothing;
    }
    WriteSiteFile(app, *fileName);
    app.caption = *fileName;
    app.strSiteFile = *fileName;
    app.flags.blnSaved = true;
    return FileCommandEnd::CaptionChanged;
}

bool ExitProgram(ApplicationState& app, UserInteraction& ui) {
    if (!AskToSaveBeforeLeaving(app, ui)) {
        return false;
    }
    CloseMainWindow(app);
    return true;
}

void CloseMainWindow(ApplicationState& app) {
    WriteIniFile(app.programFolder, app.iniRawLines, app.config);
}

} // namespace vesk
