// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The update of a component file with new standard data from the maker: the eight names, the three merges, Browse and
// Update.
#pragma once

#include "catalogue/component_file.h"
#include "messages/user_interaction.h"

#include <array>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace vesk {

// The three merge routines. They share every step and differ only in what
// MergeRoutineTraits holds.
enum class MergeRoutine { Standard, Pump, Hose };

struct MergeRoutineTraits {
    MergeRoutine routine;
    std::string_view name;          // MergeStandardData, MergePumpData, MergeHoseData
    FlowConversion flowConversion;  // how the flow of a point is read, in both files
    std::string_view corruptedText; // the box of any failure inside the merge
};

inline constexpr std::array<MergeRoutineTraits, 3> mergeRoutines{{
    {MergeRoutine::Standard, "MergeStandardData", FlowConversion::ToInteger, "File got corrupted"},
    {MergeRoutine::Pump, "MergePumpData", FlowConversion::ToSingle, "File got corrupted"},
    {MergeRoutine::Hose, "MergeHoseData", FlowConversion::ToSingle, "File got Corrupted"},
}};

constexpr const MergeRoutineTraits& traitsOf(MergeRoutine routine) {
    return mergeRoutines[static_cast<std::size_t>(routine)];
}

// A name that an update file may have, with its leading backslash, and what
// it updates: the kind's grammar (a hose has its length line) and the merge.
struct UpdateFileName {
    std::string_view name;
    ComponentKind kind;
    MergeRoutine routine;
};

inline constexpr std::array<UpdateFileName, componentKindCount> updateFileNames{{
    {"\\Disp.dat", ComponentKind::Dispenser, MergeRoutine::Standard},
    {"\\DispOthers.dat", ComponentKind::DispenserOthers, MergeRoutine::Standard},
    {"\\Nozzle.dat", ComponentKind::Nozzle, MergeRoutine::Standard},
    {"\\MLD.dat", ComponentKind::LeakDetector, MergeRoutine::Standard},
    {"\\BRK.dat", ComponentKind::Breakaway, MergeRoutine::Standard},
    {"\\Pump.dat", ComponentKind::Pump, MergeRoutine::Pump},
    {"\\PumpOthers.dat", ComponentKind::PumpOthers, MergeRoutine::Standard},
    {"\\Hoses.dat", ComponentKind::Hose, MergeRoutine::Hose},
}};

// The texts of the Update dialog and of its boxes.
inline constexpr std::string_view updateCaption = "Update";
inline constexpr std::string_view updateFileLabel = "Selected File to Update Existing File";
inline constexpr std::string_view updateHelpText =
    "Select the updated data file of the components sent by Tolmark, click on Update button, the standard component "
    "of the existing data file will be replaced by the standard component of the updated data file but custom "
    "components of the existing data file will remain same in the file. The name and format of the updated data "
    "file must be same as existing data file.";
inline constexpr std::string_view updateQuestion =
    "Do you want to update the STANDARD component of existing data file with new data file?";
inline constexpr std::string_view updateFileFilter = "Vesk Files(*.dat)|*.dat";
inline constexpr std::string_view fileDoesNotExist = " file does not exist";
inline constexpr int updateFileMissingMessage = 11; // "File doesn't exists", at Browse
inline constexpr int updateNameMessage = 12;        // "Please select the default Data filename "

// The part of a chosen path from its last separator on, the separator
// included and written as a backslash ("/home/x/disp.DAT" gives "\disp.DAT").
// The path is cut at its last backslash, or at its last "/" where it has no
// backslash. A path without either gives the whole path.
std::string ChosenFileName(std::string_view chosenPath);

// The update file of that name, compared in upper case ("\disp.DAT" is
// "\Disp.dat"); nothing for any other name, the piping file's among them.
std::optional<UpdateFileName> FindUpdateFileName(std::string_view chosenFileName);

// The merged file's text, composed from the text of the existing file and of
// the new file: both read with the grammar of the component files in the
// routine's way; the existing records whose Origin is not exactly
// "#Standard#" kept, in their order; then every record of the new file, in its
// order, whatever its Origin, so a name on both sides stands twice. Fails with
// a RunTimeFailure wherever a reader or the writer fails.
std::string ComposeMergedFile(MergeRoutine routine, ComponentKind kind, std::string existingText, std::string newText);

// One merge: `existingFileShown` is the existing file's path as the boxes show
// it, `existingFile` the file itself (found without regard to case), nothing
// when there is none. A missing existing or new file shows its path followed by
// " file does not exist" and returns false, the existing file untouched; any
// failure while reading, composing or writing shows the routine's corrupted
// text and returns false. The existing file is opened for writing only after
// both files were read and the whole text composed. Returns true when the file
// was written.
bool MergeComponentFile(MergeRoutine routine, ComponentKind kind, const std::filesystem::path& newFile,
                        const std::string& existingFileShown, const std::optional<std::filesystem::path>& existingFile,
                        UserInteraction& ui);

// The existing file that an update file of `name` merges into: the program
// folder + Components + the name as chosen. `shown` is that path as built,
// `file` the regular file found there without regard to case, if any.
struct ExistingDataFile {
    std::string shown;
    std::optional<std::filesystem::path> file;
};
ExistingDataFile ExistingFileOf(const std::filesystem::path& programFolder, std::string_view chosenFileName);

// Browse: the open dialog of cdlgUpdate, with the filter "Vesk Files(*.dat)|*.dat".
FileDialogRequest UpdateBrowseDialog();

// Browse as a whole: the dialog; on Cancel nothing (the path as it was); else
// the path chosen, which the box shows whatever it is, after message 11 when
// no file is there.
std::optional<std::string> BrowseUpdateFile(UserInteraction& ui);

// How Update ended, for the dialog.
enum class UpdateEnd {
    Stays,  // message 12: no path, or not one of the eight names
    Closes, // the question answered No, or the merge returned false
    Merged, // the file was written: the main window is initialised again
};

// Update of the dialog up to the merge: message 12 for an empty path or an
// unknown name, the question with Yes and No, and on Yes the merge of the
// chosen file into the program folder's file of that name.
UpdateEnd UpdateStandardData(const std::filesystem::path& programFolder, const std::string& chosenPath,
                             UserInteraction& ui);

} // namespace vesk
