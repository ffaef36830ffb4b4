// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// vesk-calc from the outside: its output, its messages and its exit codes.
#include "calc_run.h"
#include "support/temp_program_folder.h"

#include <array>
#include <cstdio>
#include <gtest/gtest.h>
#include <sstream>

namespace vesk {
namespace {

using test::CalcRun;
using test::readBytes;
using test::runCalc;
using test::TempProgramFolder;

std::string golden(const char* name) {
    return readBytes(std::filesystem::path(VESK_CLI_GOLDEN_DIR) / name);
}

std::string dirOf(const TempProgramFolder& folder) {
    return "--dir '" + folder.path().string() + "'";
}

TEST(VeskCalc, CsvOfTheShippedFolderMatchesItsGoldenFile) {
    const CalcRun run = runCalc("--csv --dir '" + test::shippedDataDir().string() + "'");
    EXPECT_EQ(run.exitCode, 0) << run.err;
    EXPECT_EQ(run.err, "");
    EXPECT_EQ(run.out, golden("shipped_startup.csv"));
}

TEST(VeskCalc, DetailsOfTheShippedFolderMatchItsGoldenFile) {
    const CalcRun run = runCalc("--details --dir '" + test::shippedDataDir().string() + "'");
    EXPECT_EQ(run.exitCode, 0) << run.err;
    EXPECT_EQ(run.out, golden("shipped_startup_details.csv"));
}

TEST(VeskCalc, TheReadableTableHoldsTheSameNumbers) {
    const CalcRun table = runCalc("--dir '" + test::shippedDataDir().string() + "'");
    const CalcRun csv = runCalc("--csv --dir '" + test::shippedDataDir().string() + "'");
    EXPECT_EQ(table.exitCode, 0);
    std::istringstream lines(csv.out);
    std::string line;
    std::getline(lines, line); // header
    while (std::getline(lines, line)) {
        const auto first = line.find(',');
        const auto second = line.find(',', first + 1);
        const std::string gpm = line.substr(first + 1, second - first - 1);
        EXPECT_NE(table.out.find(" " + gpm + " "), std::string::npos) << gpm;
    }
}

TEST(VeskCalc, WithoutDirItUsesTheFolderOfTheExecutable) {
    const CalcRun fromBuildTree = runCalc("--csv");
    EXPECT_EQ(fromBuildTree.exitCode, 0) << fromBuildTree.err;
    EXPECT_EQ(fromBuildTree.out, golden("shipped_startup.csv"));
}

TEST(VeskCalc, AMetricSettingsFileGivesTheSameFlows) {
    // The default numbers are converted to metric and back into feet by the
    // engine; 243.8 cm and 0.9 m are not exactly 96 in and 3 ft.
    TempProgramFolder folder = TempProgramFolder::copyOfShipped();
    folder.writeLines("Vesk.ini", {"40", "4", "True", "False", "A"});
    const CalcRun run = runCalc("--csv " + dirOf(folder));
    EXPECT_EQ(run.exitCode, 0) << run.err;
    EXPECT_EQ(run.out, golden("metric_startup.csv"));
}

TEST(VeskCalc, AMissingFilePrintsItsMessageAndExits1) {
    TempProgramFolder folder = TempProgramFolder::copyOfShipped();
    folder.remove("Components/PIPING.DAT");
    const CalcRun run = runCalc(dirOf(folder));
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.err, "Piping data file does not exist\n");
    EXPECT_EQ(run.out, "");
}

TEST(VeskCalc, ADamagedFilePrintsItsMessageAndExits1) {
    TempProgramFolder folder = TempProgramFolder::copyOfShipped();
    folder.write("Components/PUMP.DAT", folder.read("Components/PUMP.DAT") + "\r\n");
    const CalcRun run = runCalc(dirOf(folder));
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.err, "Problem in reading Pump Data file\n");
}

TEST(VeskCalc, AMissingSettingsFilePrintsItsMessageAndExits1) {
    TempProgramFolder folder = TempProgramFolder::copyOfShipped();
    folder.remove("Vesk.ini");
    const CalcRun run = runCalc(dirOf(folder));
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.err, "INI file does not exist\n");
}

TEST(VeskCalc, ABadThirdSettingsLineWarnsAndCalculatesForDiesel) {
    TempProgramFolder folder = TempProgramFolder::copyOfShipped();
    folder.writeLines("Vesk.ini", {"40", "4", "Petrol", "True", "A"});
    const CalcRun run = runCalc("--csv " + dirOf(folder));
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.err, "INI File Corrupted. Cannot Load Application\n");
    EXPECT_EQ(run.out, golden("diesel_startup.csv"));
}

TEST(VeskCalc, LowerCaseFileNamesAreFound) {
    TempProgramFolder folder = TempProgramFolder::copyOfShipped();
    std::filesystem::rename(folder.path() / "Components" / "PUMP.DAT", folder.path() / "Components" / "pump.dat");
    std::filesystem::rename(folder.path() / "Components" / "HOSES.DAT", folder.path() / "Components" / "Hoses.DAT");
    const CalcRun run = runCalc("--csv " + dirOf(folder));
    EXPECT_EQ(run.exitCode, 0) << run.err;
    EXPECT_EQ(run.out, golden("shipped_startup.csv"));
}

TEST(VeskCalc, AOneRecordDispenserCatalogueEndsWithARunTimeFailure) {
    TempProgramFolder folder = TempProgramFolder::copyOfShipped();
    folder.writeLines("Components/DISP.DAT",
                      {"$Only #AIC", "#TRUE#", "#Standard#", "#RATELOSS_BEGIN#", "0,0", "30,10", "#RATELOSS_END#"});
    const CalcRun run = runCalc(dirOf(folder));
    EXPECT_EQ(run.exitCode, 3);
    EXPECT_EQ(run.err, "Run-time error: Invalid property value\n");
}

TEST(VeskCalc, AOneRecordPumpCatalogueEndsWithARunTimeFailure) {
    TempProgramFolder folder = TempProgramFolder::copyOfShipped();
    folder.writeLines("Components/PUMP.DAT", {"$Only pump #AIC", "#FALSE#", "#Standard#", "#RATELOSS_BEGIN#", "0,100",
                                              "50,0", "#RATELOSS_END#"});
    const CalcRun run = runCalc("--csv " + dirOf(folder));
    EXPECT_EQ(run.exitCode, 3);
    EXPECT_EQ(run.err, "Run-time error: Invalid property value\n");
    EXPECT_EQ(run.out, "");
}

TEST(VeskCalc, APumpStandingLastInItsFileGivesNoFlow) {
    // The last record of a catalogue is never searched: the pump is listed
    // and selected, but its head is 0 at every flow.
    TempProgramFolder folder = TempProgramFolder::copyOfShipped();
    folder.writeLines("Components/PUMP.DAT", {"$Other pump #AIC", "#TRUE#", "#Standard#", "#RATELOSS_BEGIN#", "0,100",
                                              "50,0", "#RATELOSS_END#", "$Last pump #AIC", "#FALSE#", "#Standard#",
                                              "#RATELOSS_BEGIN#", "0,100", "50,0", "#RATELOSS_END#"});
    const CalcRun run = runCalc("--csv " + dirOf(folder));
    EXPECT_EQ(run.exitCode, 0) << run.err;
    EXPECT_EQ(run.out,
              "nozzles,gpm_per_nozzle,lpm_per_nozzle\n1,0,0\n2,0,0\n3,0,0\n4,0,0\n5,0,0\n6,0,0\n7,0,0\n8,0,0\n");
}

TEST(VeskCalc, BadUsageExits2WithAUsageLine) {
    for (const char* arguments : {"--bogus", "--dir", "a.txt b.txt"}) {
        const CalcRun run = runCalc(arguments);
        EXPECT_EQ(run.exitCode, 2) << arguments;
        EXPECT_EQ(run.err.rfind("usage: vesk-calc", 0), 0U) << run.err;
    }
}

std::string shippedSite(const char* name) {
    return "'" + (test::shippedDataDir() / "SaveSiteInfo" / name).string() + "'";
}

std::string shippedDir() {
    return "--dir '" + test::shippedDataDir().string() + "'";
}

struct SiteGolden {
    const char* site;
    const char* golden;
};

class ExampleSiteCsv : public ::testing::TestWithParam<SiteGolden> {};

TEST_P(ExampleSiteCsv, MatchesItsGoldenFile) {
    const SiteGolden& example = GetParam();
    const CalcRun run = runCalc("--csv " + shippedDir() + " " + shippedSite(example.site));
    EXPECT_EQ(run.exitCode, 0) << run.err;
    EXPECT_EQ(run.err, "");
    EXPECT_EQ(run.out, golden(example.golden));
}

INSTANTIATE_TEST_SUITE_P(VeskCalc, ExampleSiteCsv,
                         ::testing::Values(SiteGolden{"SmallGasStation.txt", "site_small_gas_station.csv"},
                                           SiteGolden{"MetricStation.txt", "site_metric_station.csv"},
                                           SiteGolden{"DieselTruckStop.txt", "site_diesel_truck_stop.csv"},
                                           SiteGolden{"BasicModeSite.txt", "site_basic_mode.csv"}));

TEST(VeskCalc, DetailsOfASiteFileMatchTheirGoldenFile) {
    const CalcRun run = runCalc("--details " + shippedDir() + " " + shippedSite("DieselTruckStop.txt"));
    EXPECT_EQ(run.exitCode, 0) << run.err;
    EXPECT_EQ(run.out, golden("site_diesel_truck_stop_details.csv"));
}

TEST(VeskCalc, TheTableOfASiteFileNamesItsFullPath) {
    // A relative name is made absolute, as the open dialog gives full paths.
    const CalcRun run =
        runCalc(shippedDir() + " " + shippedSite("SmallGasStation.txt"), test::shippedDataDir() / "SaveSiteInfo");
    EXPECT_EQ(run.exitCode, 0) << run.err;
    const std::string fullPath = (test::shippedDataDir() / "SaveSiteInfo" / "SmallGasStation.txt").string();
    EXPECT_EQ(run.out.rfind("Site: " + fullPath + "\n", 0), 0U) << run.out;
    const CalcRun relative = runCalc(shippedDir() + " SmallGasStation.txt", test::shippedDataDir() / "SaveSiteInfo");
    EXPECT_EQ(relative.exitCode, 0) << relative.err;
    EXPECT_EQ(relative.out, run.out);
}

TEST(VeskCalc, ADamagedSiteFilePrintsErrorInFileLoadAndExits1) {
    TempProgramFolder folder = TempProgramFolder::copyOfShipped();
    std::string text = folder.read("SaveSiteInfo/SmallGasStation.txt");
    text.erase(text.rfind("(555)")); // the 52nd line is missing
    folder.write("SaveSiteInfo/short.txt", text);
    const CalcRun run =
        runCalc("--csv " + dirOf(folder) + " '" + (folder.path() / "SaveSiteInfo/short.txt").string() + "'");
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.err, "Error in File Load\n");
    EXPECT_EQ(run.out, "");
}

TEST(VeskCalc, ASiteNamingAnUnknownComponentPrintsErrorInFileLoadAndExits1) {
    TempProgramFolder folder = TempProgramFolder::copyOfShipped();
    std::string text = folder.read("SaveSiteInfo/DieselTruckStop.txt");
    text.replace(text.find("STP 5 HP high-flow"), 18, "STP 9 HP");
    folder.write("SaveSiteInfo/unknown.txt", text);
    const CalcRun run = runCalc(dirOf(folder) + " '" + (folder.path() / "SaveSiteInfo/unknown.txt").string() + "'");
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.err, "Error in File Load\n");
    EXPECT_EQ(run.out, "");
}

TEST(VeskCalc, AMissingSiteFilePrintsFileDoesntExistsAndExits1) {
    const CalcRun run =
        runCalc(shippedDir() + " '" + (test::shippedDataDir() / "SaveSiteInfo" / "Nowhere.txt").string() + "'");
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.err, "File doesn't exists\n");
    EXPECT_EQ(run.out, "");
}

} // namespace
} // namespace vesk

namespace vesk {
namespace {

TEST(VeskCalcOptions, VersionPrintsTheProjectVersion) {
    const CalcRun run = runCalc("--version");
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.out, std::string("vesk-calc ") + VESK_VERSION + "\n");
}

TEST(VeskCalcOptions, HelpListsEveryOption) {
    const CalcRun run = runCalc("--help");
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.out.rfind("usage: vesk-calc", 0), 0U);
    for (const char* option : {"--dir", "--baseline", "--csv", "--details", "--compare", "--report", "--version"}) {
        EXPECT_NE(run.out.find(option), std::string::npos) << option;
    }
}

struct BadUsage {
    const char* arguments;
    const char* says;
};

class VeskCalcBadUsage : public testing::TestWithParam<BadUsage> {};

TEST_P(VeskCalcBadUsage, PrintsTheUsageLineAndWhatWasWrong) {
    const CalcRun run = runCalc(GetParam().arguments);
    EXPECT_EQ(run.exitCode, 2);
    EXPECT_EQ(run.err.rfind("usage: vesk-calc", 0), 0U) << run.err;
    EXPECT_NE(run.err.find(GetParam().says), std::string::npos) << run.err;
    EXPECT_EQ(run.out, "");
}

INSTANTIATE_TEST_SUITE_P(VeskCalcOptions, VeskCalcBadUsage,
                         testing::Values(BadUsage{"--bogus", "--bogus"}, BadUsage{"--csv --compare", "excludes"},
                                         BadUsage{"--details --report a.pdf", "excludes"},
                                         BadUsage{"--baseline a.txt", "SITE_FILE"}, BadUsage{"--report", "--report"}));

TEST(VeskCalcCompare, TheCompareTableOfAnOpenedSiteMatchesItsGoldenFile) {
    const CalcRun run = runCalc("--compare " + shippedDir() + " " + shippedSite("SmallGasStation.txt"));
    EXPECT_EQ(run.exitCode, 0) << run.err;
    EXPECT_EQ(run.out, golden("site_small_gas_station_compare.tsv"));
}

TEST(VeskCalcCompare, TwoSavedDesignsSideBySideMatchTheirGoldenFile) {
    const CalcRun run = runCalc("--compare " + shippedDir() + " --baseline " + shippedSite("SmallGasStation.txt") +
                                " " + shippedSite("MetricStation.txt"));
    EXPECT_EQ(run.exitCode, 0) << run.err;
    EXPECT_EQ(run.out, golden("baseline_small_gas_current_metric_compare.tsv"));
}

TEST(VeskCalcCompare, AFourNozzleSiteAfterStartUpReadsPastItsTables) {
    // NoOfNozzles stays 8 from start-up; the tables of the opened site have 6 rows.
    const CalcRun run = runCalc("--compare " + shippedDir() + " " + shippedSite("BasicModeSite.txt"));
    EXPECT_EQ(run.exitCode, 3);
    EXPECT_EQ(run.err, "Run-time error: Subscript out of range\n");
    EXPECT_EQ(run.out, "");
}

TEST(VeskCalcCompare, AMissingBaselineSitePrintsItsMessageAndExits1) {
    const CalcRun run =
        runCalc("--compare " + shippedDir() + " --baseline nowhere.txt " + shippedSite("SmallGasStation.txt"));
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_NE(run.err, "");
}

TEST(VeskCalcReport, WritesTheTwoSheetsAsAPdfFile) {
    const TempProgramFolder folder = TempProgramFolder::copyOfShipped();
    const auto pdf = folder.path() / "report.pdf";
    const CalcRun run = runCalc("--report '" + pdf.string() + "' " + dirOf(folder) + " --baseline " +
                                shippedSite("SmallGasStation.txt") + " " + shippedSite("MetricStation.txt"));
    EXPECT_EQ(run.exitCode, 0) << run.err;
    EXPECT_EQ(run.err, "");
    EXPECT_EQ(run.out, "");
    EXPECT_EQ(test::readBytes(pdf).rfind("%PDF", 0), 0U);
    FILE* pages = ::popen(("pdfinfo '" + pdf.string() + "' | grep '^Pages:'").c_str(), "r");
    ASSERT_NE(pages, nullptr);
    std::array<char, 128> line{};
    const std::string text = std::fgets(line.data(), line.size(), pages) != nullptr ? line.data() : "";
    ::pclose(pages);
    EXPECT_EQ(text, "Pages:           2\n");
}

TEST(VeskCalcReport, AFileThatCannotBeWrittenIsARunTimeFailure) {
    const CalcRun run = runCalc("--report /nonexistent-folder/report.pdf " + shippedDir());
    EXPECT_EQ(run.exitCode, 3);
    EXPECT_EQ(run.err, "Run-time error: Path/File access error\n");
}

TEST(VeskCalcReport, TheTrapOfAFourNozzleSiteLeavesNoFile) {
    const TempProgramFolder folder = TempProgramFolder::copyOfShipped();
    const auto pdf = folder.path() / "report.pdf";
    const CalcRun run =
        runCalc("--report '" + pdf.string() + "' " + dirOf(folder) + " " + shippedSite("BasicModeSite.txt"));
    EXPECT_EQ(run.exitCode, 3);
    EXPECT_FALSE(std::filesystem::exists(pdf));
}

} // namespace
} // namespace vesk
