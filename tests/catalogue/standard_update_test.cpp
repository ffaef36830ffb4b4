// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// Tests of the update of a component file with the maker's new standard data.
#include "support/failure_of.h"
#include "support/recording_interaction.h"
#include "support/temp_program_folder.h"

#include "catalogue/component_file.h"
#include "catalogue/standard_update.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace vesk {
namespace {

namespace fs = std::filesystem;
using test::crlfLines;
using test::failureOf;
using test::RecordingInteraction;
using test::TempProgramFolder;

// One record of a kind without a hose length: header, flag, origin, points.
std::string record(std::string_view name, std::string_view origin, std::initializer_list<std::string_view> points,
                   std::string_view codes = "AIC") {
    std::string text = "$" + std::string(name) + " #" + std::string(codes) + "\r\n#TRUE#\r\n" + std::string(origin) +
                       "\r\n#RATELOSS_BEGIN#\r\n";
    for (std::string_view point : points) {
        text += std::string(point) + "\r\n";
    }
    return text + "#RATELOSS_END#\r\n";
}

// One hose record, with its reference length.
std::string hoseRecord(std::string_view name, std::string_view origin, std::string_view length,
                       std::initializer_list<std::string_view> points) {
    std::string text = "$" + std::string(name) + " #AIC\r\n#TRUE#\r\n" + std::string(origin) + "\r\n" +
                       std::string(length) + "\r\n#RATELOSS_BEGIN#\r\n";
    for (std::string_view point : points) {
        text += std::string(point) + "\r\n";
    }
    return text + "#RATELOSS_END#\r\n";
}

const std::string standard = "#Standard#";
const std::string custom = "#Custom#";

// A program folder whose Components folder holds `existing` under
// `existingName`, and a maker's file `newText` outside it under `newName`.
struct UpdateFixture {
    TempProgramFolder folder;
    std::string existingName;
    std::string newPath;

    UpdateFixture(std::string_view existingFileName, const std::string& existing, std::string_view newFileName,
                  const std::string& newText)
        : existingName(existingFileName) {
        folder.write("Components/" + existingName, existing);
        folder.write("maker/" + std::string(newFileName), newText);
        newPath = (folder.path() / "maker" / std::string(newFileName)).string();
    }
    std::string existingText() const { return folder.read("Components/" + existingName); }
    UpdateEnd update(RecordingInteraction& ui) const { return UpdateStandardData(folder.path(), newPath, ui); }
};

RecordingInteraction answeringYes() {
    RecordingInteraction ui;
    ui.answers = {Answer::Yes};
    return ui;
}

// ---------------------------------------------------------------- names

struct NameRow {
    const char* chosenPath;
    const char* fileName;
};

class ChosenFileNames : public ::testing::TestWithParam<NameRow> {};

TEST_P(ChosenFileNames, TheNameIsThePathFromItsLastSeparatorOn) {
    EXPECT_EQ(ChosenFileName(GetParam().chosenPath), GetParam().fileName);
}

INSTANTIATE_TEST_SUITE_P(Paths, ChosenFileNames,
                         ::testing::Values(NameRow{"C:\\Data\\Maker\\DISP.DAT", "\\DISP.DAT"},
                                           NameRow{"/home/site/maker/Nozzle.dat", "\\Nozzle.dat"},
                                           NameRow{"/home/a\\b/Hoses.dat", "\\b/Hoses.dat"},
                                           NameRow{"Pump.dat", "Pump.dat"}, NameRow{"/maker/", "\\"}));

struct RoutineRow {
    const char* chosenName;
    ComponentKind kind;
    MergeRoutine routine;
};

class UpdateFileNames : public ::testing::TestWithParam<RoutineRow> {};

TEST_P(UpdateFileNames, NamesAreComparedInUpperCaseAndChooseTheirMerge) {
    const std::optional<UpdateFileName> found = FindUpdateFileName(GetParam().chosenName);
    ASSERT_TRUE(found);
    EXPECT_EQ(found->kind, GetParam().kind);
    EXPECT_EQ(found->routine, GetParam().routine);
}

INSTANTIATE_TEST_SUITE_P(
    TheEightNames, UpdateFileNames,
    ::testing::Values(RoutineRow{"\\disp.DAT", ComponentKind::Dispenser, MergeRoutine::Standard},
                      RoutineRow{"\\DISPOTHERS.DAT", ComponentKind::DispenserOthers, MergeRoutine::Standard},
                      RoutineRow{"\\Nozzle.dat", ComponentKind::Nozzle, MergeRoutine::Standard},
                      RoutineRow{"\\mld.dat", ComponentKind::LeakDetector, MergeRoutine::Standard},
                      RoutineRow{"\\Brk.Dat", ComponentKind::Breakaway, MergeRoutine::Standard},
                      RoutineRow{"\\PUMP.DAT", ComponentKind::Pump, MergeRoutine::Pump},
                      RoutineRow{"\\pumpothers.dat", ComponentKind::PumpOthers, MergeRoutine::Standard},
                      RoutineRow{"\\hoses.DAT", ComponentKind::Hose, MergeRoutine::Hose}));

TEST(UpdateFileNames, ThePipingFileAndOtherNamesAreNotUpdated) {
    for (const char* name : {"\\PIPING.DAT", "\\Disp.txt", "Disp.dat", "\\Disp.dat ", "\\Hose.dat", "\\"}) {
        EXPECT_FALSE(FindUpdateFileName(name)) << name;
    }
}

TEST(MergeRoutines, OnlyTheSixKindsReadTheirFlowsAsIntegersAndOnlyHosesSayCorruptedWithACapital) {
    EXPECT_EQ(traitsOf(MergeRoutine::Standard).name, "MergeStandardData");
    EXPECT_EQ(traitsOf(MergeRoutine::Standard).flowConversion, FlowConversion::ToInteger);
    EXPECT_EQ(traitsOf(MergeRoutine::Standard).corruptedText, "File got corrupted");
    EXPECT_EQ(traitsOf(MergeRoutine::Pump).name, "MergePumpData");
    EXPECT_EQ(traitsOf(MergeRoutine::Pump).flowConversion, FlowConversion::ToSingle);
    EXPECT_EQ(traitsOf(MergeRoutine::Pump).corruptedText, "File got corrupted");
    EXPECT_EQ(traitsOf(MergeRoutine::Hose).name, "MergeHoseData");
    EXPECT_EQ(traitsOf(MergeRoutine::Hose).flowConversion, FlowConversion::ToSingle);
    EXPECT_EQ(traitsOf(MergeRoutine::Hose).corruptedText, "File got Corrupted");
}

// ---------------------------------------------------------------- Update

TEST(Update, AnEmptyPathShowsMessage12AndTheDialogStays) {
    const TempProgramFolder folder;
    RecordingInteraction ui;
    EXPECT_EQ(UpdateStandardData(folder.path(), "", ui), UpdateEnd::Stays);
    EXPECT_EQ(ui.shown, std::vector<std::string>{"Please select the default Data filename "});
}

TEST(Update, AnUnknownNameShowsMessage12AsksNothingAndTheDialogStays) {
    UpdateFixture fixture("PIPING.DAT", "$PT\r\n", "PIPING.DAT", "$PT changed\r\n");
    RecordingInteraction ui = answeringYes();
    EXPECT_EQ(fixture.update(ui), UpdateEnd::Stays);
    EXPECT_EQ(ui.shown, std::vector<std::string>{"Please select the default Data filename "});
    EXPECT_EQ(fixture.existingText(), "$PT\r\n");
}

TEST(Update, AnUpdateWithAFileNamedDispInSmallLettersIsAccepted) {
    UpdateFixture fixture("DISP.DAT", record("Old", standard, {"1,1"}), "disp.DAT", record("New", standard, {"2,2"}));
    RecordingInteraction ui = answeringYes();
    EXPECT_EQ(fixture.update(ui), UpdateEnd::Merged);
    EXPECT_EQ(fixture.existingText(), record("New", standard, {"2,2"}));
    // The file that was there is written, under its own spelling.
    EXPECT_FALSE(fs::exists(fixture.folder.path() / "Components" / "disp.DAT"));
}

TEST(Update, TheQuestionIsAskedAndNoClosesTheDialogWithTheFileUntouched) {
    const std::string existing = record("Old", standard, {"1,1"});
    UpdateFixture fixture("NOZZLE.DAT", existing, "Nozzle.dat", record("New", standard, {"2,2"}));
    RecordingInteraction ui;
    ui.answers = {Answer::No};
    EXPECT_EQ(fixture.update(ui), UpdateEnd::Closes);
    EXPECT_EQ(ui.shown, std::vector<std::string>{
                            "Do you want to update the STANDARD component of existing data file with new data file?"});
    EXPECT_EQ(fixture.existingText(), existing);
}

TEST(Update, AMissingExistingFileShowsItsPathAndClosesTheDialog) {
    TempProgramFolder folder;
    folder.write("maker/MLD.dat", record("New", standard, {"2,2"}));
    RecordingInteraction ui = answeringYes();
    EXPECT_EQ(UpdateStandardData(folder.path(), (folder.path() / "maker" / "MLD.dat").string(), ui), UpdateEnd::Closes);
    ASSERT_EQ(ui.shown.size(), 2U);
    EXPECT_EQ(ui.shown[1], (folder.path() / "Components" / "MLD.dat").string() + " file does not exist");
    EXPECT_FALSE(fs::exists(folder.path() / "Components" / "MLD.dat"));
}

TEST(Update, AMissingNewFileShowsItsPathAndLeavesTheExistingFileUntouched) {
    const std::string existing = record("Mine", custom, {"1.5,1"}) + record("Old", standard, {"1,1"});
    TempProgramFolder folder;
    folder.write("Components/BRK.DAT", existing);
    const std::string missing = (folder.path() / "maker" / "BRK.dat").string();
    RecordingInteraction ui = answeringYes();
    EXPECT_EQ(UpdateStandardData(folder.path(), missing, ui), UpdateEnd::Closes);
    ASSERT_EQ(ui.shown.size(), 2U);
    EXPECT_EQ(ui.shown[1], missing + " file does not exist");
    EXPECT_EQ(folder.read("Components/BRK.DAT"), existing);
}

// ---------------------------------------------------------------- the merge

TEST(Merge, CustomRecordsStayFirstThenEveryRecordOfTheNewFileInItsOrder) {
    const std::string existing = record("Std A", standard, {"1,1"}) + record("Mine 1", custom, {"2,2"}) +
                                 record("Std B", standard, {"3,3"}) + record("Mine 2", custom, {"4,4"});
    const std::string incoming = record("Std B", standard, {"5,5"}) + record("Maker's custom", custom, {"6,6"}) +
                                 record("Mine 1", standard, {"7,7"});
    EXPECT_EQ(ComposeMergedFile(MergeRoutine::Standard, ComponentKind::Dispenser, existing, incoming),
              record("Mine 1", custom, {"2,2"}) + record("Mine 2", custom, {"4,4"}) + incoming);
}

TEST(Merge, AnOriginThatIsNotExactlyStandardIsKept) {
    const std::string existing = record("Small letters", "#standard#", {"1,1"}) +
                                 record("Blank behind", "#Standard# ", {"2,2"}) + record("Std", standard, {"3,3"}) +
                                 record("Anything", "made here", {"4,4"});
    const std::string incoming = record("New", standard, {"5,5"});
    EXPECT_EQ(ComposeMergedFile(MergeRoutine::Pump, ComponentKind::Pump, existing, incoming),
              record("Small letters", "#standard#", {"1,1"}) + record("Blank behind", "#Standard# ", {"2,2"}) +
                  record("Anything", "made here", {"4,4"}) + incoming);
}

TEST(Merge, AnExistingFileOfStandardRecordsOnlyBecomesTheNewFile) {
    const std::string incoming = record("New 1", standard, {"1,1", "2,2"}) + record("New 2", standard, {"3,3"});
    EXPECT_EQ(
        ComposeMergedFile(MergeRoutine::Standard, ComponentKind::Breakaway, record("Old", standard, {"9,9"}), incoming),
        incoming);
}

TEST(Merge, TheSameFileAsNewAndExistingKeepsItsCustomRecordsTwice) {
    const std::string file = record("Std", standard, {"1,1"}) + record("Mine", custom, {"2,2"});
    TempProgramFolder folder;
    folder.write("Components/NOZZLE.DAT", file);
    const fs::path existing = folder.path() / "Components" / "NOZZLE.DAT";
    RecordingInteraction ui = answeringYes();
    EXPECT_EQ(UpdateStandardData(folder.path(), existing.string(), ui), UpdateEnd::Merged);
    EXPECT_EQ(folder.read("Components/NOZZLE.DAT"),
              record("Mine", custom, {"2,2"}) + record("Std", standard, {"1,1"}) + record("Mine", custom, {"2,2"}));
}

TEST(Merge, TheHoseLengthLineGoesThroughTheHoseMerge) {
    const std::string existing = hoseRecord("3/4", custom, "12.5", {"10.25,3.5"});
    const std::string incoming = hoseRecord("1", standard, "8", {"20.5,1.25"});
    EXPECT_EQ(ComposeMergedFile(MergeRoutine::Hose, ComponentKind::Hose, existing, incoming), existing + incoming);
}

TEST(Merge, TheWrittenFileIsWrittenInTheGrammarOfTheComponentFiles) {
    // Blank lines and LF line ends are read; the file is written with CR LF
    // and the numbers' own texts.
    const std::string existing = "\n$Mine #A\n#FALSE#\n\n#Custom#\n#RATELOSS_BEGIN#\n010,3.50\n#RATELOSS_END#\n";
    const std::string incoming = record("New", standard, {"2,2"});
    const std::string merged = ComposeMergedFile(MergeRoutine::Standard, ComponentKind::Nozzle, existing, incoming);
    EXPECT_EQ(merged, crlfLines({"$Mine #A", "#FALSE#", "#Custom#", "#RATELOSS_BEGIN#", "10,3.5", "#RATELOSS_END#"}) +
                          incoming);
    const Catalogue back = ParseComponentFile(ComponentKind::Nozzle, merged);
    EXPECT_EQ(back.Top(), 1);
}

// Flows of 12.5 and 13.5 come out as 12 and 14 in the six kinds, for the
// kept custom records and the new ones alike; heads keep their fractions.
class IntegerFlows : public ::testing::TestWithParam<ComponentKind> {};

TEST_P(IntegerFlows, AFlowOf12Point5TurnsInto12And13Point5Into14) {
    const std::string existing = record("Mine", custom, {"12.5,1.5", "13.5,2.5", "-0.5,0.25"});
    const std::string incoming = record("New", standard, {"12.5,3.5", "13.5,4.5", "14.49,5"});
    EXPECT_EQ(ComposeMergedFile(MergeRoutine::Standard, GetParam(), existing, incoming),
              record("Mine", custom, {"12,1.5", "14,2.5", "0,0.25"}) +
                  record("New", standard, {"12,3.5", "14,4.5", "14,5"}));
}

INSTANTIATE_TEST_SUITE_P(TheSixKinds, IntegerFlows,
                         ::testing::Values(ComponentKind::Dispenser, ComponentKind::DispenserOthers,
                                           ComponentKind::Nozzle, ComponentKind::LeakDetector, ComponentKind::Breakaway,
                                           ComponentKind::PumpOthers));

TEST(Merge, PumpsAndHosesKeepTheFractionsOfTheirFlows) {
    EXPECT_EQ(ComposeMergedFile(MergeRoutine::Pump, ComponentKind::Pump, record("Mine", custom, {"12.5,100"}),
                                record("New", standard, {"13.5,90"})),
              record("Mine", custom, {"12.5,100"}) + record("New", standard, {"13.5,90"}));
    EXPECT_EQ(ComposeMergedFile(MergeRoutine::Hose, ComponentKind::Hose, hoseRecord("5/8", custom, "10", {"12.5,1"}),
                                hoseRecord("3/4", standard, "12", {"13.5,2"})),
              hoseRecord("5/8", custom, "10", {"12.5,1"}) + hoseRecord("3/4", standard, "12", {"13.5,2"}));
}

TEST(Merge, AFlowBeyondA16BitIntegerFailsInTheSixKindsOnly) {
    const std::string incoming = record("Big", standard, {"32767.5,1"});
    EXPECT_EQ(failureOf([&] {
                  ComposeMergedFile(MergeRoutine::Standard, ComponentKind::Dispenser, record("A", custom, {"1,1"}),
                                    incoming);
              }),
              "Overflow");
    EXPECT_EQ(ComposeMergedFile(MergeRoutine::Pump, ComponentKind::Pump, record("A", custom, {"1,1"}), incoming),
              record("A", custom, {"1,1"}) + record("Big", standard, {"32767.5,1"}));
}

// ---------------------------------------------------------------- failures

struct CorruptedRow {
    const char* existingName;
    const char* newName;
    std::string existing;
    std::string damaged;
    const char* box;
};

class DamagedFiles : public ::testing::TestWithParam<CorruptedRow> {};

TEST_P(DamagedFiles, ADamagedNewFileShowsTheRoutinesBoxAndLeavesTheExistingFileByteForByte) {
    const CorruptedRow& row = GetParam();
    UpdateFixture fixture(row.existingName, row.existing, row.newName, row.damaged);
    RecordingInteraction ui = answeringYes();
    EXPECT_EQ(fixture.update(ui), UpdateEnd::Closes);
    ASSERT_EQ(ui.shown.size(), 2U);
    EXPECT_EQ(ui.shown[1], row.box);
    EXPECT_EQ(fixture.existingText(), row.existing);
}

TEST_P(DamagedFiles, ADamagedExistingFileShowsTheRoutinesBoxAndIsLeftAsItWas) {
    const CorruptedRow& row = GetParam();
    UpdateFixture fixture(row.existingName, row.damaged, row.newName, row.existing);
    RecordingInteraction ui = answeringYes();
    EXPECT_EQ(fixture.update(ui), UpdateEnd::Closes);
    ASSERT_EQ(ui.shown.size(), 2U);
    EXPECT_EQ(ui.shown[1], row.box);
    EXPECT_EQ(fixture.existingText(), row.damaged);
}

INSTANTIATE_TEST_SUITE_P(
    EveryRoutine, DamagedFiles,
    ::testing::Values(CorruptedRow{"DISP.DAT", "Disp.dat", record("Mine", custom, {"1,1"}), "$No end #A\r\n#TRUE#\r\n",
                                   "File got corrupted"},
                      CorruptedRow{"PUMPOTHERS.DAT", "PumpOthers.dat", record("Mine", custom, {"1,1"}),
                                   record("Text flow", standard, {"ten,1"}), "File got corrupted"},
                      CorruptedRow{"PUMP.DAT", "Pump.dat", record("Mine", custom, {"1.5,1"}), "", "File got corrupted"},
                      CorruptedRow{"HOSES.DAT", "Hoses.dat", hoseRecord("3/4", custom, "12", {"1.5,1"}),
                                   record("No length", standard, {"1,1"}), "File got Corrupted"}));

TEST(Merge, ADamagedExistingFileIsReportedBeforeAMissingNewFile) {
    TempProgramFolder folder;
    folder.write("Components/HOSES.DAT", "$Broken\r\n");
    RecordingInteraction ui;
    EXPECT_FALSE(MergeComponentFile(MergeRoutine::Hose, ComponentKind::Hose, folder.path() / "missing" / "Hoses.dat",
                                    "shown", folder.path() / "Components" / "HOSES.DAT", ui));
    EXPECT_EQ(ui.shown, std::vector<std::string>{"File got Corrupted"});
}

TEST(Merge, AMissingExistingFileIsReportedBeforeTheNewFileIsLookedAt) {
    TempProgramFolder folder;
    RecordingInteraction ui;
    EXPECT_FALSE(MergeComponentFile(MergeRoutine::Standard, ComponentKind::Nozzle, folder.path() / "none.dat",
                                    "/the/shown/path", std::nullopt, ui));
    EXPECT_EQ(ui.shown, std::vector<std::string>{"/the/shown/path file does not exist"});
}

TEST(Merge, AFolderInThePlaceOfTheNewFileCountsAsMissing) {
    const std::string existing = record("Mine", custom, {"1,1"});
    TempProgramFolder folder;
    folder.write("Components/MLD.DAT", existing);
    fs::create_directories(folder.path() / "maker" / "MLD.dat");
    RecordingInteraction ui;
    EXPECT_FALSE(MergeComponentFile(MergeRoutine::Standard, ComponentKind::LeakDetector,
                                    folder.path() / "maker" / "MLD.dat", "shown",
                                    folder.path() / "Components" / "MLD.DAT", ui));
    EXPECT_EQ(ui.shown,
              std::vector<std::string>{(folder.path() / "maker" / "MLD.dat").string() + " file does not exist"});
    EXPECT_EQ(folder.read("Components/MLD.DAT"), existing);
}

TEST(Merge, TheFileIsOpenedForOutputOnlyAfterBothFilesWereRead) {
    // A new file that fails in its very last line: had the existing file been
    // opened for output earlier, it would be empty now.
    const std::string existing = record("Mine", custom, {"1,1"}) + record("Std", standard, {"2,2"});
    const std::string damagedAtTheEnd =
        record("New 1", standard, {"3,3"}) + record("New 2", standard, {"4,4"}) + "\r\n";
    UpdateFixture fixture("NOZZLE.DAT", existing, "NOZZLE.DAT", damagedAtTheEnd);
    RecordingInteraction ui = answeringYes();
    EXPECT_EQ(fixture.update(ui), UpdateEnd::Closes);
    EXPECT_EQ(ui.shown.back(), "File got corrupted");
    EXPECT_EQ(fixture.existingText(), existing);
}

// ---------------------------------------------------------------- Browse

TEST(Browse, TheDialogOffersTheDataFilesFilter) {
    const FileDialogRequest request = UpdateBrowseDialog();
    EXPECT_FALSE(request.save);
    EXPECT_EQ(request.filter, "Vesk Files(*.dat)|*.dat");
    EXPECT_FALSE(request.startFolder.empty());
}

TEST(Browse, ACancelKeepsThePathAsItWas) {
    RecordingInteraction ui;
    ui.chosenFiles = {std::nullopt};
    EXPECT_FALSE(BrowseUpdateFile(ui));
    EXPECT_TRUE(ui.shown.empty());
    EXPECT_EQ(ui.fileDialogs.size(), 1U);
}

TEST(Browse, AChosenFileThatIsNotThereShowsMessage11AndThePathStays) {
    const TempProgramFolder folder;
    const std::string missing = (folder.path() / "Nozzle.dat").string();
    RecordingInteraction ui;
    ui.chosenFiles = {missing};
    EXPECT_EQ(BrowseUpdateFile(ui), std::optional<std::string>(missing));
    EXPECT_EQ(ui.shown, std::vector<std::string>{"File doesn't exists"});
}

TEST(Browse, AChosenFileThatIsThereShowsNothing) {
    const TempProgramFolder folder;
    folder.write("Nozzle.dat", "x");
    RecordingInteraction ui;
    ui.chosenFiles = {(folder.path() / "Nozzle.dat").string()};
    EXPECT_EQ(BrowseUpdateFile(ui), std::optional<std::string>((folder.path() / "Nozzle.dat").string()));
    EXPECT_TRUE(ui.shown.empty());
}

} // namespace
} // namespace vesk
