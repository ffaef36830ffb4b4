// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// vesk-calc --update from the outside: what it writes, its boxes on stderr and its exit codes.
#include "calc_run.h"
#include "support/recording_interaction.h"
#include "support/temp_program_folder.h"

#include "catalogue/standard_update.h"

#include <gtest/gtest.h>

namespace vesk {
namespace {

namespace fs = std::filesystem;
using test::CalcRun;
using test::quoted;
using test::RecordingInteraction;
using test::runCalc;
using test::TempProgramFolder;

// A copy of the shipped program folder with a maker's file beside it.
struct MakerUpdate {
    TempProgramFolder folder = TempProgramFolder::copyOfShipped();
    fs::path makerFile;

    MakerUpdate(std::string_view name, std::string_view text) {
        folder.write("maker/" + std::string(name), text);
        makerFile = folder.path() / "maker" / std::string(name);
    }
    CalcRun run() const { return runCalc("--dir " + quoted(folder.path()) + " --update " + quoted(makerFile)); }
};

const std::string makersNozzles = test::crlfLines({
    "$Maker nozzle 1 #AIC",
    "#TRUE#",
    "#Standard#",
    "#RATELOSS_BEGIN#",
    "0,0",
    "10.5,12.25",
    "20.5,40",
    "#RATELOSS_END#",
    "$Maker nozzle 2 #A",
    "#FALSE#",
    "#Custom#",
    "#RATELOSS_BEGIN#",
    "12.5,1",
    "#RATELOSS_END#",
});

TEST(VeskCalcUpdate, WritesTheSameBytesAsTheWindowsUpdateAndExits0) {
    const MakerUpdate update("nozzle.DAT", makersNozzles);
    // What the dialog writes, on a second copy of the same folder.
    const TempProgramFolder window = TempProgramFolder::copyOfShipped();
    RecordingInteraction ui;
    ui.answers = {Answer::Yes};
    ASSERT_EQ(UpdateStandardData(window.path(), update.makerFile.string(), ui), UpdateEnd::Merged);

    const CalcRun run = update.run();
    EXPECT_EQ(run.exitCode, 0) << run.err;
    EXPECT_EQ(run.err, "");
    EXPECT_EQ(run.out, "");
    EXPECT_EQ(update.folder.read("Components/NOZZLE.DAT"), window.read("Components/NOZZLE.DAT"));
    EXPECT_NE(update.folder.read("Components/NOZZLE.DAT"),
              test::TempProgramFolder::copyOfShipped().read("Components/NOZZLE.DAT"));
}

TEST(VeskCalcUpdate, AnUnknownNamePrintsMessage12WritesNothingAndExits1) {
    const MakerUpdate update("PIPING.DAT", "$PT\r\n");
    const std::string before = update.folder.read("Components/PIPING.DAT");
    const CalcRun run = update.run();
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.err, "Please select the default Data filename \n");
    EXPECT_EQ(update.folder.read("Components/PIPING.DAT"), before);
}

TEST(VeskCalcUpdate, AMissingNewFilePrintsItsPathAndExits1) {
    const TempProgramFolder folder = TempProgramFolder::copyOfShipped();
    const fs::path missing = folder.path() / "maker" / "Pump.dat";
    const std::string before = folder.read("Components/PUMP.DAT");
    const CalcRun run = runCalc("--dir " + quoted(folder.path()) + " --update " + quoted(missing));
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.err, missing.string() + " file does not exist\n");
    EXPECT_EQ(folder.read("Components/PUMP.DAT"), before);
}

TEST(VeskCalcUpdate, AMissingExistingFilePrintsItsPathAndExits1) {
    const MakerUpdate update("MLD.dat", makersNozzles);
    update.folder.remove("Components/MLD.DAT");
    const CalcRun run = update.run();
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.err, (update.folder.path() / "Components" / "MLD.dat").string() + " file does not exist\n");
}

struct DamagedRow {
    const char* name;
    const char* existing;
    const char* printed;
};

class VeskCalcDamagedUpdate : public ::testing::TestWithParam<DamagedRow> {};

TEST_P(VeskCalcDamagedUpdate, ADamagedNewFilePrintsTheRoutinesTextLeavesTheFileAndExits1) {
    const MakerUpdate update(GetParam().name, "$Broken #A\r\n#TRUE#\r\n");
    const std::string before = update.folder.read(GetParam().existing);
    const CalcRun run = update.run();
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.err, GetParam().printed);
    EXPECT_EQ(update.folder.read(GetParam().existing), before);
}

INSTANTIATE_TEST_SUITE_P(EveryRoutine, VeskCalcDamagedUpdate,
                         ::testing::Values(DamagedRow{"Disp.dat", "Components/DISP.DAT", "File got corrupted\n"},
                                           DamagedRow{"Pump.dat", "Components/PUMP.DAT", "File got corrupted\n"},
                                           DamagedRow{"Hoses.dat", "Components/HOSES.DAT", "File got Corrupted\n"}));

TEST(VeskCalcUpdate, UpdateWithOtherOutputsOrASiteFileIsBadUsage) {
    for (const char* arguments : {"--update", "--update a.dat --csv", "--details --update a.dat",
                                  "--update a.dat site.txt", "--update a.dat --update b.dat"}) {
        const CalcRun run = runCalc(arguments);
        EXPECT_EQ(run.exitCode, 2) << arguments;
        EXPECT_EQ(run.err.rfind("usage: vesk-calc", 0), 0U) << run.err;
    }
}

} // namespace
} // namespace vesk
