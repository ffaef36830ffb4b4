// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The update of a component file with new standard data from the maker: the eight names, the three merges, Browse and
// Update.
#include "catalogue/standard_update.h"

#include "catalogue/data_file_path.h"
#include "engine/ascii_case.h"

#include <algorithm>
#include <system_error>
#include <utility>

namespace vesk {

namespace {

constexpr std::string_view standardOrigin = "#Standard#";

bool isRegularFile(const std::filesystem::path& file) {
    std::error_code error;
    return std::filesystem::is_regular_file(file, error);
}

void showMissing(const std::string& path, UserInteraction& ui) {
    ui.showMessageBox(path + std::string(fileDoesNotExist), MessageIcon::None);
}

// Steps 2 and 3: the existing file read, and what is not exactly
// "#Standard#" kept: custom records, and any other text that stood on the
// Origin line, in their order.
Catalogue keptRecords(MergeRoutine routine, ComponentKind kind, std::string existingText) {
    Catalogue kept = ParseComponentFile(kind, std::move(existingText), traitsOf(routine).flowConversion);
    std::erase_if(kept.Records, [](const ComponentRecord& record) { return record.Origin == standardOrigin; });
    return kept;
}

// Steps 5 and 6: the new file read, and every record of it appended with no
// test at all; then the whole text of the merged file.
std::string appendNewRecords(MergeRoutine routine, ComponentKind kind, Catalogue kept, std::string newText) {
    Catalogue incoming = ParseComponentFile(kind, std::move(newText), traitsOf(routine).flowConversion);
    kept.Records.insert(kept.Records.end(), std::make_move_iterator(incoming.Records.begin()),
                        std::make_move_iterator(incoming.Records.end()));
    return ComposeComponentFile(kind, kept);
}

} // namespace

std::string ChosenFileName(std::string_view chosenPath) {
    std::size_t cut = chosenPath.rfind('\\');
    if (cut == std::string_view::npos) {
        cut = chosenPath.rfind('/');
    }
    if (cut == std::string_view::npos) {
        return std::string(chosenPath);
    }
    return "\\" + std::string(chosenPath.substr(cut + 1));
}

std::optional<UpdateFileName> FindUpdateFileName(std::string_view chosenFileName) {
    const std::string upper = UpperCase(chosenFileName);
    for (const UpdateFileName& entry : updateFileNames) {
        if (UpperCase(entry.name) == upper) {
            return entry;
        }
    }
    return std::nullopt;
}

std::string ComposeMergedFile(MergeRoutine routine, ComponentKind kind, std::string existingText, std::string newText) {
    return appendNewRecords(routine, kind, keptRecords(routine, kind, std::move(existingText)), std::move(newText));
}

bool MergeComponentFile(MergeRoutine routine, ComponentKind kind, const std::filesystem::path& newFile,
                        const std::string& existingFileShown, const std::optional<std::filesystem::path>& existingFile,
                        UserInteraction& ui) {
    if (!existingFile || !isRegularFile(*existingFile)) {
        showMissing(existingFileShown, ui);
        return false;
    }
    try {
        Catalogue kept = keptRecords(routine, kind, ReadWholeFile(*existingFile));
        if (!isRegularFile(newFile)) {
            showMissing(newFile.string(), ui);
            return false;
        }
        // Both files are read and the whole text is composed before the
        // existing file is opened for writing: a failure up to here leaves it
        // as it was.
        const std::string merged = appendNewRecords(routine, kind, std::move(kept), ReadWholeFile(newFile));
        WriteWholeFile(*existingFile, merged);
    } catch (const RunTimeFailure&) {
        ui.showMessageBox(traitsOf(routine).corruptedText, MessageIcon::None);
        return false;
    }
    return true;
}

ExistingDataFile ExistingFileOf(const std::filesystem::path& programFolder, std::string_view chosenFileName) {
    // The name as chosen, without its backslash.
    const std::string_view name = chosenFileName.substr(chosenFileName.starts_with('\\') ? 1 : 0);
    ExistingDataFile existing;
    existing.shown = (programFolder / "Components" / std::string(name)).string();
    existing.file = FindDataFile(programFolder, "Components/" + std::string(name));
    return existing;
}

FileDialogRequest UpdateBrowseDialog() {
    FileDialogRequest request;
    request.save = false;
    request.title = "Open";
#ifdef _WIN32
    request.startFolder = "c:";
#else
    // The root of the file system stands for the root of the system drive.
    request.startFolder = "/";
#endif
    request.filter = std::string(updateFileFilter);
    return request;
}

std::optional<std::string> BrowseUpdateFile(UserInteraction& ui) {
    std::optional<std::string> chosen = ui.chooseFile(UpdateBrowseDialog());
    if (!chosen) {
        return std::nullopt;
    }
    if (!isRegularFile(*chosen)) {
        ShowMessage(updateFileMissingMessage, ui);
    }
    return chosen;
}

UpdateEnd UpdateStandardData(const std::filesystem::path& programFolder, const std::string& chosenPath,
                             UserInteraction& ui) {
    if (chosenPath.empty()) {
        ShowMessage(updateNameMessage, ui);
        return UpdateEnd::Stays;
    }
    const std::string chosenName = ChosenFileName(chosenPath);
    const std::optional<UpdateFileName> file = FindUpdateFileName(chosenName);
    if (!file) {
        ShowMessage(updateNameMessage, ui);
        return UpdateEnd::Stays;
    }
    if (ui.askYesNo(updateQuestion) != Answer::Yes) {
        return UpdateEnd::Closes;
    }
    const ExistingDataFile existing = ExistingFileOf(programFolder, chosenName);
    const bool written = MergeComponentFile(file->routine, file->kind, chosenPath, existing.shown, existing.file, ui);
    return written ? UpdateEnd::Merged : UpdateEnd::Closes;
}

} // namespace vesk
