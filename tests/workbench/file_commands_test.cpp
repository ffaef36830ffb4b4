// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// File, New, Open, Save and Save As: their dialogs, their questions and what each branch leaves.
#include "panel_view.h"
#include "support/failure_of.h"
#include "support/started_app.h"
#include "workbench/field_checks.h"
#include "workbench/file_commands.h"
#include "workbench/site_file.h"

#include "catalogue/text_lines.h"

#include <algorithm>
#include <fstream>
#include <gtest/gtest.h>
#include <map>
#include <sstream>

namespace vesk {
namespace {

using test::changed;
using test::chooseSettings;
using test::failureOf;
using test::filesIn;
using test::gridText;
using test::join;
using test::panelState;
using test::readBytes;
using test::start;
using test::Started;
using test::TempProgramFolder;

namespace fs = std::filesystem;

constexpr const char* notSaved = "Current Values are not saved. Do you want to save now?";
constexpr const char* message10 = "Error in File Load";
constexpr const char* message11 = "File doesn't exists";
constexpr const char* newNameTaken = "File already exists. Please enter a new filename";

// Everything a command could change, for the checks of "nothing else".
std::map<std::string, std::string> everything(const ApplicationState& app) {
    std::map<std::string, std::string> state = panelState(app.panel);
    state["flxCurrent"] = gridText(app.flxCurrent);
    state["flxBaseLine"] = gridText(app.flxBaseLine);
    state["blnSaved"] = std::to_string(app.flags.blnSaved);
    state["NeedBaseline"] = std::to_string(app.flags.NeedBaseline);
    state["strSiteFile"] = app.strSiteFile;
    state["caption"] = app.caption;
    const clsSiteProperties& p = app.siteProperties;
    state["siteProperties"] = join({p.strCustomerName, p.strCustomerContact, p.strSiteDescription, p.strAddress1,
                                    p.strAddress2, p.strGeneratedBy, p.strDate, p.strContact, p.strEmail, p.strPhone});
    state["frmSiteProperties"] = std::to_string(app.frmSiteProperties.loaded);
    std::string flows;
    for (Single flow : app.results.Current.GpmPerNozzle) {
        flows += singleText(flow) + " ";
    }
    state["Current"] = flows;
    return state;
}

// A shipped program folder started; the site files of its SaveSiteInfo at hand.
class FileCommandsTest : public ::testing::Test {
  protected:
    void SetUp() override {
        start(folder, run);
        ASSERT_FALSE(run.ended);
        ASSERT_EQ(run.failure, "");
        ASSERT_TRUE(run.app.flags.blnSaved);
    }
    ApplicationState& app() { return run.app; }
    test::RecordingInteraction& ui() { return run.ui; }
    std::string site(std::string_view name) const { return (folder.path() / "SaveSiteInfo" / name).string(); }
    std::string defaultSite() const { return site("Default.txt"); }
    // A Calculate since the last save: the work counts as unsaved.
    void calculate() {
        Calculate(app());
        ASSERT_FALSE(app().flags.blnSaved);
    }
    // A site file of the shipped example with its lines changed.
    std::string writeSite(std::string_view name, std::string_view example, std::size_t lineCount,
                          const std::map<std::size_t, std::string>& changes = {}) {
        TextLineReader reader(readBytes(test::shippedDataDir() / "SaveSiteInfo" / example));
        std::string bytes;
        for (std::size_t line = 0; line < lineCount; ++line) {
            std::string text = reader.readLine();
            if (changes.count(line) != 0) {
                text = changes.at(line);
            }
            bytes += text + "\r\n";
        }
        folder.write(std::string("SaveSiteInfo/") + std::string(name), bytes);
        return site(name);
    }

    TempProgramFolder folder = TempProgramFolder::copyOfShipped();
    Started run;
};

// ---- The dialogs ----

struct DialogCase {
    const char* title;
    bool save;
    FileCommandEnd (*command)(ApplicationState&, UserInteraction&);
};

class FileDialogs : public FileCommandsTest, public ::testing::WithParamInterface<DialogCase> {};

TEST_P(FileDialogs, StartInTheSiteFolderWithTheFilterTheTitleAndNoName) {
    ui().chosenFiles = {std::nullopt};
    GetParam().command(app(), ui());
    ASSERT_EQ(ui().fileDialogs.size(), 1U);
    const FileDialogRequest& request = ui().fileDialogs.front();
    EXPECT_EQ(request.title, GetParam().title);
    EXPECT_EQ(request.save, GetParam().save);
    EXPECT_EQ(request.startFolder, (folder.path() / "SaveSiteInfo").string());
    EXPECT_EQ(request.filter, "Vesk Files(*.txt)|*.txt");
    EXPECT_EQ(request.fileName, "");
}

TEST_P(FileDialogs, CancelEndsTheCommandSilently) {
    calculate(); // New and Open ask first; No lets them go on to the dialog
    ui().answers = {Answer::No};
    const auto before = everything(app());
    const auto files = filesIn(folder.path() / "SaveSiteInfo");
    ui().chosenFiles = {std::nullopt};
    EXPECT_EQ(GetParam().command(app(), ui()), FileCommandEnd::Nothing);
    EXPECT_EQ(ui().fileDialogs.size(), 1U);
    EXPECT_EQ(ui().shown.size(), GetParam().save ? 0U : 1U) << "only the question before the dialog";
    EXPECT_TRUE(changed(before, everything(app())).empty());
    EXPECT_EQ(filesIn(folder.path() / "SaveSiteInfo"), files);
}

INSTANTIATE_TEST_SUITE_P(Commands, FileDialogs,
                         ::testing::Values(DialogCase{"New", false, FileNew}, DialogCase{"Open", false, FileOpen},
                                           DialogCase{"Save As", true, FileSaveAs}),
                         [](const ::testing::TestParamInfo<DialogCase>& param) {
                             return param.param.save ? std::string("SaveAs") : std::string(param.param.title);
                         });

// ---- The question of New and Open ----

struct QuestionCase {
    bool saved;
    bool siteFile;
    bool asks;
};

class UnsavedQuestion : public FileCommandsTest,
                        public ::testing::WithParamInterface<std::tuple<DialogCase, QuestionCase>> {};

TEST_P(UnsavedQuestion, ComesOnlyAfterACalculateWithASiteFile) {
    const auto& [command, when] = GetParam();
    app().flags.blnSaved = when.saved;
    if (!when.siteFile) {
        app().strSiteFile.clear();
    }
    ui().answers = {Answer::Cancel};
    command.command(app(), ui());
    if (when.asks) {
        EXPECT_EQ(ui().shown, std::vector<std::string>{notSaved});
        EXPECT_TRUE(ui().fileDialogs.empty()) << "Cancel ends the command before its dialog";
    } else {
        EXPECT_TRUE(ui().shown.empty());
        EXPECT_EQ(ui().fileDialogs.size(), 1U);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Commands, UnsavedQuestion,
    ::testing::Combine(::testing::Values(DialogCase{"New", false, FileNew}, DialogCase{"Open", false, FileOpen}),
                       ::testing::Values(QuestionCase{false, true, true}, QuestionCase{true, true, false},
                                         QuestionCase{false, false, false}, QuestionCase{true, false, false})),
    [](const ::testing::TestParamInfo<std::tuple<DialogCase, QuestionCase>>& param) {
        const DialogCase& command = std::get<0>(param.param);
        const QuestionCase& when = std::get<1>(param.param);
        return std::string(command.title) + (when.saved ? "Saved" : "Unsaved") +
               (when.siteFile ? "WithSiteFile" : "WithoutSiteFile");
    });

TEST_F(FileCommandsTest, YesWritesTheOldSiteFileAndLeavesBlnSavedFalse) {
    calculate();
    ASSERT_FALSE(fs::exists(defaultSite()));
    ui().answers = {Answer::Yes};
    ui().chosenFiles = {std::nullopt};
    EXPECT_EQ(FileOpen(app(), ui()), FileCommandEnd::Nothing);
    EXPECT_TRUE(fs::exists(defaultSite()));
    SiteFileLines lines = ComposeSiteFile(app());
    std::string expected;
    for (const std::string& line : lines) {
        expected += line + "\r\n";
    }
    EXPECT_EQ(readBytes(defaultSite()), expected);
    EXPECT_FALSE(app().flags.blnSaved);
    EXPECT_EQ(app().strSiteFile, defaultSite());
}

TEST_F(FileCommandsTest, NoWritesNothingAndGoesOnToTheDialog) {
    calculate();
    const auto files = filesIn(folder.path() / "SaveSiteInfo");
    ui().answers = {Answer::No};
    ui().chosenFiles = {std::nullopt};
    FileNew(app(), ui());
    EXPECT_EQ(filesIn(folder.path() / "SaveSiteInfo"), files);
    EXPECT_EQ(ui().fileDialogs.size(), 1U);
    EXPECT_FALSE(app().flags.blnSaved);
}

TEST_F(FileCommandsTest, YesBeforeANewSiteSavesTheOldOneAndTheNewSiteStartsSaved) {
    calculate();
    ui().answers = {Answer::Yes};
    ui().chosenFiles = {site("Next.txt")};
    EXPECT_EQ(FileNew(app(), ui()), FileCommandEnd::StartedAgain);
    EXPECT_TRUE(fs::exists(defaultSite()));
    EXPECT_FALSE(fs::exists(site("Next.txt")));
    EXPECT_TRUE(app().flags.blnSaved) << "by the end of the initialisation";
}

// ---- File, Save ----

TEST_F(FileCommandsTest, SaveNeverAsksEvenForDefaultTxt) {
    calculate();
    EXPECT_EQ(FileSave(app()), FileCommandEnd::Nothing);
    EXPECT_TRUE(ui().shown.empty());
    EXPECT_TRUE(ui().fileDialogs.empty());
    EXPECT_TRUE(fs::exists(defaultSite()));
    EXPECT_TRUE(app().flags.blnSaved);
}

TEST_F(FileCommandsTest, SaveRightAfterAChangeWithoutCalculateWritesTheLastCalculate) {
    const SiteFileLines calculated = ComposeSiteFile(app());
    app().panel.txtRise = "12";
    app().flags.blnSaved = false;
    FileSave(app());
    EXPECT_TRUE(app().flags.blnSaved);
    TextLineReader reader(readBytes(defaultSite()));
    for (const std::string& line : calculated) {
        EXPECT_EQ(reader.readLine(), line);
    }
}

// ---- File, Save As ----

TEST_F(FileCommandsTest, SaveAsANewNameWritesItAndTakesItAsTheSiteFile) {
    calculate();
    ui().chosenFiles = {site("Mine.txt")};
    EXPECT_EQ(FileSaveAs(app(), ui()), FileCommandEnd::CaptionChanged);
    EXPECT_TRUE(ui().shown.empty());
    EXPECT_TRUE(fs::exists(site("Mine.txt")));
    EXPECT_FALSE(fs::exists(defaultSite()));
    EXPECT_EQ(app().strSiteFile, site("Mine.txt"));
    EXPECT_EQ(app().caption, site("Mine.txt"));
    EXPECT_TRUE(app().flags.blnSaved);
}

TEST_F(FileCommandsTest, SaveAsNeverAsksTheUnsavedQuestion) {
    calculate();
    ui().chosenFiles = {std::nullopt};
    FileSaveAs(app(), ui());
    EXPECT_TRUE(ui().shown.empty());
}

TEST_F(FileCommandsTest, SaveAsOverAnExistingFileAsksAndNoEnds) {
    calculate();
    const std::string existing = site("SmallGasStation.txt");
    const auto before = everything(app());
    const auto files = filesIn(folder.path() / "SaveSiteInfo");
    ui().chosenFiles = {existing};
    ui().answers = {Answer::No};
    EXPECT_EQ(FileSaveAs(app(), ui()), FileCommandEnd::Nothing);
    EXPECT_EQ(ui().shown, std::vector<std::string>{"File Already exists! Do you want to overwrite"});
    EXPECT_EQ(filesIn(folder.path() / "SaveSiteInfo"), files);
    EXPECT_TRUE(changed(before, everything(app())).empty());
}

TEST_F(FileCommandsTest, SaveAsOverAnExistingFileWithYesReplacesIt) {
    const std::string existing = site("SmallGasStation.txt");
    ui().chosenFiles = {existing};
    ui().answers = {Answer::Yes};
    EXPECT_EQ(FileSaveAs(app(), ui()), FileCommandEnd::CaptionChanged);
    EXPECT_EQ(ui().shown, std::vector<std::string>{"File Already exists! Do you want to overwrite"});
    EXPECT_EQ(TextLineReader(readBytes(existing)).readLine(), "$DIA");
    EXPECT_EQ(app().caption, existing);
    EXPECT_EQ(app().strSiteFile, existing);
}

TEST_F(FileCommandsTest, SaveAsWithAnEmptyNameEnds) {
    calculate();
    const auto before = everything(app());
    const auto files = filesIn(folder.path() / "SaveSiteInfo");
    ui().chosenFiles = {std::string()};
    EXPECT_EQ(FileSaveAs(app(), ui()), FileCommandEnd::Nothing);
    EXPECT_TRUE(ui().shown.empty());
    EXPECT_EQ(filesIn(folder.path() / "SaveSiteInfo"), files);
    EXPECT_TRUE(changed(before, everything(app())).empty());
}

// ---- File, Open ----

TEST_F(FileCommandsTest, OpenOfAGoodFileReadsCalculatesAndTakesItsName) {
    calculate();
    ui().answers = {Answer::No};
    ui().chosenFiles = {site("SmallGasStation.txt")};
    EXPECT_EQ(FileOpen(app(), ui()), FileCommandEnd::Opened);
    EXPECT_EQ(ui().shown, std::vector<std::string>{notSaved});
    EXPECT_EQ(app().strSiteFile, site("SmallGasStation.txt"));
    EXPECT_EQ(app().caption, site("SmallGasStation.txt"));
    EXPECT_TRUE(app().flags.blnSaved);
    EXPECT_EQ(app().panel.txtNoOfNozzle, "6");
    EXPECT_EQ(app().results.Current.GpmPerNozzle, app().results.Baseline.GpmPerNozzle);
}

TEST_F(FileCommandsTest, OpenOfAMissingFileShowsMessage11EmptiesTheSiteFileAndKeepsTheCaption) {
    const auto before = everything(app());
    const auto files = filesIn(folder.path() / "SaveSiteInfo");
    ui().chosenFiles = {site("Nowhere.txt")};
    EXPECT_EQ(FileOpen(app(), ui()), FileCommandEnd::Nothing);
    EXPECT_EQ(ui().shown, std::vector<std::string>{message11});
    EXPECT_EQ(app().strSiteFile, "");
    EXPECT_EQ(app().caption, defaultSite());
    EXPECT_EQ(changed(before, everything(app())), std::vector<std::string>{"strSiteFile"});
    EXPECT_EQ(filesIn(folder.path() / "SaveSiteInfo"), files);
}

TEST_F(FileCommandsTest, AfterAMissingFileNewOpenAndExitNoLongerAsk) {
    ui().chosenFiles = {site("Nowhere.txt")};
    FileOpen(app(), ui());
    calculate();
    ui().shown.clear();
    ui().chosenFiles = {std::nullopt, std::nullopt};
    FileNew(app(), ui());
    FileOpen(app(), ui());
    EXPECT_TRUE(ExitProgram(app(), ui()));
    EXPECT_TRUE(ui().shown.empty());
    EXPECT_EQ(ui().fileDialogs.size(), 3U);
}

TEST_F(FileCommandsTest, SaveAfterAMissingFileIsAnUntrappedFileError) {
    ui().chosenFiles = {site("Nowhere.txt")};
    FileOpen(app(), ui());
    EXPECT_NE(failureOf([&] { FileSave(app()); }), "");
}

struct BadFile {
    const char* name;
    std::size_t lines;
    std::map<std::size_t, std::string> changes;
};

class FailedOpen : public FileCommandsTest, public ::testing::WithParamInterface<BadFile> {};

TEST_P(FailedOpen, ShowsMessage10KeepsTheNewNameTheOldCaptionAndBlnSavedAndWritesNothing) {
    const std::string bad = writeSite("bad.txt", "SmallGasStation.txt", GetParam().lines, GetParam().changes);
    for (const bool saved : {true, false}) {
        SCOPED_TRACE(saved);
        app().flags.blnSaved = saved;
        app().strSiteFile = defaultSite();
        ui().shown.clear();
        ui().icons.clear();
        const auto files = filesIn(folder.path() / "SaveSiteInfo");
        ui().answers = {Answer::No};
        ui().chosenFiles = {bad};
        EXPECT_EQ(FileOpen(app(), ui()), FileCommandEnd::ReadFailed);
        EXPECT_EQ(ui().shown.back(), message10);
        EXPECT_EQ(ui().icons.back(), MessageIcon::Exclamation);
        EXPECT_EQ(app().strSiteFile, bad);
        EXPECT_EQ(app().caption, defaultSite());
        EXPECT_EQ(app().flags.blnSaved, saved);
        EXPECT_EQ(filesIn(folder.path() / "SaveSiteInfo"), files);
    }
}

INSTANTIATE_TEST_SUITE_P(Files, FailedOpen,
                         ::testing::Values(BadFile{"Short", 51, {}}, BadFile{"UnknownName", 52, {{1, "Nothing"}}},
                                           BadFile{"BadNumber", 52, {{4, "twelve"}}}),
                         [](const ::testing::TestParamInfo<BadFile>& param) { return param.param.name; });

TEST_F(FileCommandsTest, OpenOfAFiftyOneLineFileChangesNoControl) {
    const std::string bad = writeSite("short.txt", "DieselTruckStop.txt", siteFileLineCount - 1);
    const auto before = panelState(app().panel);
    ui().chosenFiles = {bad};
    FileOpen(app(), ui());
    EXPECT_EQ(ui().shown, std::vector<std::string>{message10});
    EXPECT_EQ(panelState(app().panel), before);
}

TEST_F(FileCommandsTest, AfterAFailedReadTheQuestionAndSaveGoToTheNewName) {
    const std::string bad = writeSite("bad.txt", "SmallGasStation.txt", 51);
    ui().chosenFiles = {bad};
    FileOpen(app(), ui());
    calculate();
    ui().shown.clear();
    ui().answers = {Answer::Yes};
    ui().chosenFiles = {std::nullopt};
    FileOpen(app(), ui());
    EXPECT_EQ(ui().shown, std::vector<std::string>{notSaved});
    EXPECT_EQ(TextLineReader(readBytes(bad)).readLine(), "$DIA");
    const std::string written = readBytes(bad);
    EXPECT_EQ(std::count(written.begin(), written.end(), '\n'), siteFileLineCount) << "the short file written over";
    EXPECT_FALSE(fs::exists(defaultSite()));
}

TEST_F(FileCommandsTest, OpenCutsTheNozzlesToTheLimitWithoutAMessage) {
    ui().chosenFiles = {writeSite("many.txt", "SmallGasStation.txt", 52, {{7, "45"}})};
    EXPECT_EQ(FileOpen(app(), ui()), FileCommandEnd::Opened);
    EXPECT_TRUE(ui().shown.empty());
    EXPECT_EQ(app().panel.txtNoOfNozzle, "40");
}

TEST_F(FileCommandsTest, ASiteOfTheOtherFuelOpensWithItsOwnLists) {
    ASSERT_TRUE(app().config.Data); // a gas run
    ui().chosenFiles = {site("DieselTruckStop.txt")};
    EXPECT_EQ(FileOpen(app(), ui()), FileCommandEnd::Opened);
    EXPECT_TRUE(ui().shown.empty());
    EXPECT_TRUE(app().panel.frmData.optDiesel);
    EXPECT_EQ(app().panel.cmbDispenser.Text(), "Dispenser commercial diesel 1in");
    EXPECT_GT(app().results.Current.GpmPerNozzle[1], 0.0F);
}

TEST_F(FileCommandsTest, AMetricSiteHoldsFeetAndComesBackInTheLastDigitOfItsOwn) {
    chooseSettings(app(), [](FrmDataOptions& options) {
        options.optUS = false;
        options.optMetric = true;
    });
    app().panel.txtTankDiameter = "100"; // cm: 39.37 inches, written as 39.4
    calculate();
    ui().chosenFiles = {site("Metric.txt"), site("Metric.txt")};
    FileSaveAs(app(), ui());
    SiteFileLines lines;
    TextLineReader reader(readBytes(site("Metric.txt")));
    for (std::string& line : lines) {
        line = reader.readLine();
    }
    EXPECT_EQ(lines[33], "39.4");
    EXPECT_EQ(lines[39], "False");
    EXPECT_EQ(FileOpen(app(), ui()), FileCommandEnd::Opened);
    EXPECT_EQ(app().panel.txtTankDiameter, "100.1");
}

TEST_F(FileCommandsTest, OpenBringsTheCustomerNameIntoTheClassAndTheOtherNineIntoTheHiddenDialog) {
    app().siteProperties.strGeneratedBy = "earlier author";
    ui().chosenFiles = {site("SmallGasStation.txt")};
    ASSERT_EQ(FileOpen(app(), ui()), FileCommandEnd::Opened);
    EXPECT_EQ(app().siteProperties.strCustomerName, "Maple Street Fuel");
    EXPECT_EQ(app().siteProperties.strGeneratedBy, "earlier author");
    EXPECT_TRUE(app().frmSiteProperties.loaded);
    EXPECT_EQ(app().frmSiteProperties.txtReport[0], "Site design office");
}

// ---- File, New ----

TEST_F(FileCommandsTest, NewWithTheNameOfAnExistingFileShowsTheMessageAndChangesNothing) {
    app().panel.txtRise = "4";
    calculate();
    ui().answers = {Answer::No};
    const auto before = everything(app());
    const auto files = filesIn(folder.path() / "SaveSiteInfo");
    ui().chosenFiles = {site("SmallGasStation.txt")};
    EXPECT_EQ(FileNew(app(), ui()), FileCommandEnd::Nothing);
    EXPECT_EQ(ui().shown, (std::vector<std::string>{notSaved, newNameTaken}));
    EXPECT_EQ(ui().icons.back(), MessageIcon::None);
    EXPECT_TRUE(changed(before, everything(app())).empty());
    EXPECT_EQ(filesIn(folder.path() / "SaveSiteInfo"), files);
}

TEST_F(FileCommandsTest, NewStartsAgainUnderTheNameAndTheFileComesAtTheFirstSave) {
    app().siteProperties.strCustomerName = "old customer";
    app().siteProperties.blnPrintFields = true;
    app().panel.txtHoseLen = "20";
    app().panel.txtRise = "7";
    ui().chosenFiles = {site("Fresh.txt")};
    EXPECT_EQ(FileNew(app(), ui()), FileCommandEnd::StartedAgain);
    EXPECT_TRUE(ui().shown.empty());
    EXPECT_EQ(app().strSiteFile, site("Fresh.txt"));
    EXPECT_EQ(app().caption, site("Fresh.txt"));
    EXPECT_TRUE(app().flags.blnSaved);
    EXPECT_EQ(app().siteProperties.strCustomerName, "");
    EXPECT_FALSE(app().siteProperties.blnPrintFields);
    EXPECT_EQ(app().panel.txtHoseLen, "0");
    EXPECT_EQ(app().panel.txtRise, "7") << "the initialisation keeps what the user typed, but the hose length";
    EXPECT_FALSE(fs::exists(site("Fresh.txt")));
    FileSave(app());
    EXPECT_TRUE(fs::exists(site("Fresh.txt")));
}

// ---- blnSaved ----

TEST_F(FileCommandsTest, ACalculateWithNothingChangedMakesExitAsk) {
    calculate();
    ui().answers = {Answer::Cancel};
    EXPECT_FALSE(ExitProgram(app(), ui()));
    EXPECT_EQ(ui().shown, std::vector<std::string>{notSaved});
}

TEST_F(FileCommandsTest, SaveAsAndOpenSetBlnSavedSoNothingAsksAfterwards) {
    calculate();
    ui().chosenFiles = {site("Mine.txt"), site("Mine.txt"), std::nullopt};
    FileSaveAs(app(), ui());
    EXPECT_TRUE(app().flags.blnSaved);
    FileOpen(app(), ui());
    EXPECT_TRUE(app().flags.blnSaved);
    FileNew(app(), ui());
    EXPECT_TRUE(ui().shown.empty());
}

} // namespace
} // namespace vesk
