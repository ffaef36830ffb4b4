// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// Writing and reading the site file, and File, Open, Save and New around them.
#include "panel_view.h"
#include "support/failure_of.h"
#include "support/started_app.h"
#include "workbench/site_file.h"

#include "catalogue/text_lines.h"
#include "site/site_properties.h"

#include <fstream>
#include <gtest/gtest.h>
#include <map>
#include <sstream>

namespace vesk {
namespace {

using test::changed;
using test::gridText;
using test::join;
using test::panelState;

using test::failureOf;
using test::readBytes;
using test::shippedWithSettings;
using test::start;
using test::Started;
using test::TempProgramFolder;

namespace fs = std::filesystem;

// ---- Helpers ----

std::string sitePath(const TempProgramFolder& folder, std::string_view name) {
    return (folder.path() / "SaveSiteInfo" / name).string();
}

// The lines of one of the shipped example sites.
SiteFileLines exampleLines(std::string_view name) {
    TextLineReader reader(readBytes(test::shippedDataDir() / "SaveSiteInfo" / name));
    SiteFileLines lines;
    for (std::string& line : lines) {
        line = reader.readLine();
    }
    return lines;
}

// The first `count` lines, each ended by `lineEnd`.
std::string joined(const SiteFileLines& lines, std::string_view lineEnd = "\r\n",
                   std::size_t count = siteFileLineCount) {
    std::string text;
    for (std::size_t i = 0; i < count; ++i) {
        text += lines[i];
        text += lineEnd;
    }
    return text;
}

std::string writeSite(const TempProgramFolder& folder, std::string_view name, const std::string& bytes) {
    folder.write(std::string("SaveSiteInfo/") + std::string(name), bytes);
    return sitePath(folder, name);
}

void started(const TempProgramFolder& folder, Started& app) {
    start(folder, app);
    ASSERT_FALSE(app.ended);
    ASSERT_EQ(app.failure, "");
}

// Everything a read or an open could change, for the checks of "nothing else".
std::map<std::string, std::string> everything(const ApplicationState& app) {
    std::map<std::string, std::string> state = panelState(app.panel);
    state["flxCurrent"] = gridText(app.flxCurrent);
    state["flxBaseLine"] = gridText(app.flxBaseLine);
    state["config"] = join(
        {std::to_string(app.config.ComponentList), std::to_string(app.config.Units), std::to_string(app.config.Data)});
    state["flags"] = join({std::to_string(app.flags.blnSaved), std::to_string(app.flags.blnUSActive),
                           std::to_string(app.flags.blnMetricActive), std::to_string(app.flags.NeedBaseline)});
    const clsSiteProperties& p = app.siteProperties;
    state["siteProperties"] = join({p.strCustomerName, p.strCustomerContact, p.strSiteDescription, p.strAddress1,
                                    p.strAddress2, p.strGeneratedBy, p.strDate, p.strContact, p.strEmail, p.strPhone});
    const SitePropertiesForm& f = app.frmSiteProperties;
    state["frmSiteProperties"] = std::to_string(f.loaded) +
                                 join(std::vector<std::string>(f.txtSiteInfo.begin(), f.txtSiteInfo.end())) +
                                 join(std::vector<std::string>(f.txtReport.begin(), f.txtReport.end()));
    state["strSiteFile"] = app.strSiteFile;
    state["caption"] = app.caption;
    state["nozzles"] = std::to_string(app.NoOfNozzles) + "/" + std::to_string(app.ChartNozzles);
    std::string flows;
    for (Single flow : app.results.Current.GpmPerNozzle) {
        flows += singleText(flow) + " ";
    }
    state["Current"] = flows;
    return state;
}

// A shipped program folder started, with a site file written beside it.
class SiteFileTest : public ::testing::Test {
  protected:
    void SetUp() override { started(folder, first); }
    ApplicationState& app() { return first.app; }
    PanelState& panel() { return first.app.panel; }

    TempProgramFolder folder = TempProgramFolder::copyOfShipped();
    Started first;
};

// ---- Writing ----

TEST_F(SiteFileTest, TheWriterCopiesTheRowsOfTheLastCalculateLineByLine) {
    panel().cmbHoseSize.SetText("5/8");
    panel().txtHoseLen = "12.5";
    panel().txtBranchFitting = {"1", "2", "3", "4"};
    panel().txtTrunkFitting = {"5", "6", "7", "8"};
    panel().txtTrunkLength = "007.50";
    panel().cmbQuantity.SetText("3");
    panel().cmbNoOfBranches.SetText("2");
    panel().chkSwing = 1;
    Calculate(app());

    const SiteFileLines lines = ComposeSiteFile(app());
    const std::vector<std::pair<int, std::string>> expected = {
        {0, "$DIA"},
        {1, panel().cmbDispenser.Text()},
        {2, panel().cmbBreakAway.Text()},
        {3, "5/8"},
        {4, "12.5"},
        {5, panel().cmbNozzle.Text()},
        {6, panel().cmbDispOthers.Text()},
        {7, "8"},
        {8, "$PIA"},
        {9, panel().cmbPiping.Text()},
        {10, panel().cmbBranch.Text()},
        {11, "0"},
        {12, "1"},
        {15, "4"},
        {16, panel().cmbTrunk.Text()},
        {17, "7.5"},
        {18, "5"},
        {21, "8"},
        {22, "SwingCheck"},
        {23, "False"},
        {24, panel().cmbPipeSize.Text()},
        {25, "0"},
        {26, "$PUA"},
        {27, panel().cmbPumps.Text()},
        {28, "3"},
        {29, "False"},
        {30, panel().cmbLeak.Text()},
        {31, panel().cmbPumpOthers.Text()},
        {32, "$SL"},
        {33, "96"},
        {34, "3"},
        {35, "0"},
        {36, "2"},
        {37, "$SS"},
        {38, "True"},
        {39, "True"},
        {40, "A"},
        {41, "$SP"},
    };
    for (const auto& [line, text] : expected) {
        EXPECT_EQ(lines[static_cast<std::size_t>(line)], text) << "line " << line;
    }
}

TEST_F(SiteFileTest, TheWriterWritesWhatTheGridHoldsNotWhatTheFieldsShow) {
    Calculate(app());
    panel().txtRise = "7";
    panel().cmbQuantity.SetText("4");
    const SiteFileLines lines = ComposeSiteFile(app());
    EXPECT_EQ(lines[35], "0");
    EXPECT_EQ(lines[28], "1");
}

struct FlagCell {
    long row;
    const char* gridText;
    int line;
    const char* expected;
};

class WriterFlagLines : public SiteFileTest, public ::testing::WithParamInterface<FlagCell> {};

TEST_P(WriterFlagLines, TrueOnlyForTheExactTextOfTheGrid) {
    const FlagCell& cell = GetParam();
    app().flxCurrent.SetTextMatrix(cell.row, 1, cell.gridText);
    EXPECT_EQ(ComposeSiteFile(app())[static_cast<std::size_t>(cell.line)], cell.expected) << cell.gridText;
}

INSTANTIATE_TEST_SUITE_P(SiteFile, WriterFlagLines,
                         ::testing::Values(FlagCell{22, "Basic", 23, "True"}, FlagCell{22, "Basic ", 23, "False"},
                                           FlagCell{22, "Advance", 23, "False"}, FlagCell{27, "50Hz Pump ", 29, "True"},
                                           FlagCell{27, "50Hz Pump", 29, "False"},
                                           FlagCell{27, "60Hz Pump ", 29, "False"}, FlagCell{34, "Gas", 38, "True"},
                                           FlagCell{34, "Gas ", 38, "False"}, FlagCell{34, "Diesel", 38, "False"},
                                           FlagCell{35, "American", 40, "A"}, FlagCell{35, "International", 40, "I"},
                                           FlagCell{35, "Commercial", 40, "C"}, FlagCell{35, "", 40, ""},
                                           FlagCell{35, "american", 40, ""}));

TEST_F(SiteFileTest, TheUnitsLineComesFromTheSystemSettingsDialog) {
    TouchFrmData(panel(), app().config);
    panel().frmData.optUS = false; // neither option on: "False", and no conversion
    panel().frmData.optMetric = false;
    app().flxCurrent.SetTextMatrix(30, 2, "96");
    const SiteFileLines lines = ComposeSiteFile(app());
    EXPECT_EQ(lines[39], "False");
    EXPECT_EQ(lines[33], "96");
}

TEST_F(SiteFileTest, TouchingTheUnloadedDialogLoadsItFromTheSettings) {
    panel().frmDataLoaded = false;
    app().config.Units = false;
    EXPECT_EQ(ComposeSiteFile(app())[39], "False");
    EXPECT_TRUE(panel().frmDataLoaded);
}

struct MetricLength {
    long row;
    long column;
    const char* gridText;
    int line;
    const char* written;
};

class WriterMetricLengths : public SiteFileTest, public ::testing::WithParamInterface<MetricLength> {};

TEST_P(WriterMetricLengths, AreDividedBackIntoFeetAndRoundedHalfToEven) {
    const MetricLength& length = GetParam();
    TouchFrmData(panel(), app().config);
    panel().frmData.optUS = false;
    panel().frmData.optMetric = true;
    app().flxCurrent.SetTextMatrix(length.row, length.column, length.gridText);
    EXPECT_EQ(ComposeSiteFile(app())[static_cast<std::size_t>(length.line)], length.written) << length.gridText;
}

INSTANTIATE_TEST_SUITE_P(SiteFile, WriterMetricLengths,
                         ::testing::Values(MetricLength{4, 1, "4", 4, "13.1"}, MetricLength{10, 1, "30.5", 11, "100.1"},
                                           MetricLength{16, 1, "0.9", 17, "3"}, MetricLength{24, 1, "0", 25, "0"},
                                           MetricLength{30, 2, "243.8", 33, "96"},
                                           MetricLength{30, 2, "243.9", 33, "96"}, MetricLength{31, 2, "0.9", 34, "3"},
                                           MetricLength{32, 2, "2.5", 35, "8.2"},
                                           // 0.0762 m is 0.25 ft, but its Single is a little more, so it rounds up;
                                           // the Single of 0.635 cm is a little less than a quarter inch.
                                           MetricLength{32, 2, "0.0762", 35, "0.3"},
                                           MetricLength{30, 2, "0.635", 33, "0.2"},
                                           MetricLength{4, 1, "0.1524", 4, "0.5"}));

TEST_F(SiteFileTest, LengthsInUsUnitsAreWrittenAsTheTextOfTheirSingle) {
    for (const char* text : {"007.50", "1e1", " 12 "}) {
        app().flxCurrent.SetTextMatrix(24, 1, text);
        const Single single = parseSingle(text);
        EXPECT_EQ(ComposeSiteFile(app())[25], singleText(single)) << text;
    }
}

TEST_F(SiteFileTest, TheLastTenLinesComeFromTheClassNotTheDialog) {
    clsSiteProperties& p = app().siteProperties;
    p = {true,        "phone",     "mail",        "contact",      "date",    "by",
         "address 2", "address 1", "description", "cust contact", "customer"};
    LoadSitePropertiesForm(app().frmSiteProperties, p);
    app().frmSiteProperties.txtSiteInfo[1] = "typed but not Ok'd";
    const SiteFileLines lines = ComposeSiteFile(app());
    const std::vector<std::string> expected = {"customer", "cust contact", "description", "address 1", "address 2",
                                               "by",       "date",         "contact",     "mail",      "phone"};
    EXPECT_EQ(std::vector<std::string>(lines.begin() + 42, lines.end()), expected);
}

TEST_F(SiteFileTest, TheFileHasFiftyTwoLinesEachEndedByCrLf) {
    Calculate(app());
    const std::string path = sitePath(folder, "written.txt");
    WriteSiteFile(app(), path);
    const std::string bytes = readBytes(path);
    const SiteFileLines lines = ComposeSiteFile(app());
    EXPECT_EQ(bytes, joined(lines));
    EXPECT_EQ(std::count(bytes.begin(), bytes.end(), '\n'), 52);
    EXPECT_EQ(std::count(bytes.begin(), bytes.end(), '\r'), 52);
}

TEST_F(SiteFileTest, AFailureWhileComposingLeavesTheOldFileIntact) {
    const std::string path = writeSite(folder, "old.txt", "the old file\r\n");
    app().flxCurrent.SetTextMatrix(16, 1, "12 ft");
    EXPECT_EQ(failureOf([&] { WriteSiteFile(app(), path); }), "Type mismatch");
    EXPECT_EQ(readBytes(path), "the old file\r\n");
}

TEST_F(SiteFileTest, SaveRightAfterChangingAFieldWritesTheLastCalculateAndSetsBlnSaved) {
    Calculate(app());
    EXPECT_FALSE(app().flags.blnSaved);
    panel().txtRise = "5";
    app().strSiteFile = sitePath(folder, "saved.txt");
    SaveSite(app());
    EXPECT_TRUE(app().flags.blnSaved);
    Started second;
    started(folder, second);
    ASSERT_TRUE(OpenSiteFile(second.app, sitePath(folder, "saved.txt"), second.ui));
    EXPECT_EQ(second.app.panel.txtRise, "0");
}

TEST_F(SiteFileTest, SaveWithAnEmptySiteFileNameIsAnUntrappedFileError) {
    app().strSiteFile.clear();
    EXPECT_EQ(failureOf([&] { SaveSite(app()); }), "Path/File access error");
}

TEST_F(SiteFileTest, SaveNeverAsksEvenForDefaultTxt) {
    SaveSite(app());
    EXPECT_TRUE(first.ui.shown.empty());
    EXPECT_TRUE(fs::exists(folder.path() / "SaveSiteInfo" / "Default.txt"));
}

// ---- Reading: the settings lines ----

TEST_F(SiteFileTest, AFileOfTheOtherFuelRebuildsTheListsFirstSoItsNamesAreFound) {
    ASSERT_TRUE(app().config.Data);
    ASSERT_TRUE(OpenSiteFile(app(), sitePath(folder, "DieselTruckStop.txt"), first.ui));
    EXPECT_TRUE(first.ui.shown.empty());
    EXPECT_TRUE(panel().frmData.optDiesel);
    EXPECT_FALSE(panel().frmData.optGas);
    EXPECT_TRUE(panel().frmData.optCommercial);
    EXPECT_FALSE(panel().frmData.optAmerican);
    EXPECT_EQ(panel().cmbDispenser.Text(), "Dispenser commercial diesel 1in");
    EXPECT_EQ(panel().cmbNozzle.Text(), "Nozzle high-flow diesel 1in");
    EXPECT_EQ(panel().cmbPumps.Text(), "STP 5 HP high-flow");
    EXPECT_EQ(panel().cmbQuantity.Text(), "2");
    // The settings of the run stay those of Vesk.ini.
    EXPECT_TRUE(app().config.Data);
    EXPECT_EQ(app().config.ComponentList, 0);
    const SiteDescription site = BuildSiteDescription(panel(), app().config);
    EXPECT_FALSE(site.IsGas);
    EXPECT_EQ(site.Market, 'C');
}

TEST_F(SiteFileTest, ADieselSiteOpenedInAGasRunIsSavedBackAsGas) {
    // The grid's fuel row follows the run's setting at every Calculate.
    ASSERT_TRUE(OpenSiteFile(app(), sitePath(folder, "DieselTruckStop.txt"), first.ui));
    EXPECT_EQ(app().flxCurrent.TextMatrix(34, 1), "Gas");
    EXPECT_EQ(ComposeSiteFile(app())[38], "True");
    EXPECT_EQ(ComposeSiteFile(app())[40], "C");
}

TEST_F(SiteFileTest, TheFuelGoesToTheDialogAndBothGrids) {
    SiteFileLines lines = exampleLines("SmallGasStation.txt");
    lines[38] = "true"; // anything but "True" is diesel
    lines[1] = "Dispenser standard 3/4in";
    lines[2] = "Breakaway 3/4in reconnectable";
    lines[5] = "Nozzle standard 3/4in";
    lines[30] = "Mechanical line leak detector";
    ASSERT_TRUE(ReadSiteFile(app(), writeSite(folder, "fuel.txt", joined(lines))));
    EXPECT_TRUE(panel().frmData.optDiesel);
    EXPECT_EQ(app().flxCurrent.TextMatrix(34, 1), "Diesel");
    EXPECT_EQ(app().flxBaseLine.TextMatrix(34, 1), "Diesel");
}

struct ListLetter {
    const char* letter;
    bool FrmDataOptions::*option;
    const char* name;
};

class ComponentListLetters : public SiteFileTest, public ::testing::WithParamInterface<ListLetter> {};

TEST_P(ComponentListLetters, SetTheDialogsOptionAndBothGrids) {
    const ListLetter& letter = GetParam();
    SiteFileLines lines = exampleLines("SmallGasStation.txt");
    lines[40] = letter.letter;
    EXPECT_TRUE(ReadSiteFile(app(), writeSite(folder, "list.txt", joined(lines))));
    EXPECT_TRUE(panel().frmData.*letter.option);
    const int on = panel().frmData.optAmerican + panel().frmData.optInternational + panel().frmData.optCommercial;
    EXPECT_EQ(on, 1);
    EXPECT_EQ(app().flxCurrent.TextMatrix(35, 1), letter.name);
    EXPECT_EQ(app().flxBaseLine.TextMatrix(35, 1), letter.name);
    EXPECT_EQ(ActiveListCode(ListOptionsOf(panel(), app().config)), letter.letter);
    EXPECT_EQ(app().config.ComponentList, 0);
}

INSTANTIATE_TEST_SUITE_P(SiteFile, ComponentListLetters,
                         ::testing::Values(ListLetter{"A", &FrmDataOptions::optAmerican, "American"},
                                           ListLetter{"I", &FrmDataOptions::optInternational, "International"},
                                           ListLetter{"C", &FrmDataOptions::optCommercial, "Commercial"}));

TEST_F(SiteFileTest, AnUnknownListLetterChangesNothingOfTheList) {
    SiteFileLines lines = exampleLines("SmallGasStation.txt");
    lines[40] = "a";
    app().flxCurrent.SetTextMatrix(35, 1, "as it was");
    ASSERT_TRUE(ReadSiteFile(app(), writeSite(folder, "list.txt", joined(lines))));
    EXPECT_TRUE(panel().frmData.optAmerican);
    EXPECT_EQ(app().flxCurrent.TextMatrix(35, 1), "as it was");
}

TEST_F(SiteFileTest, AMetricFileSetsTheUnitsTheFlagsAndItsOwnGridCaptions) {
    ASSERT_TRUE(ReadSiteFile(app(), sitePath(folder, "MetricStation.txt")));
    EXPECT_FALSE(app().config.Units);
    EXPECT_TRUE(panel().frmData.optMetric);
    EXPECT_FALSE(panel().frmData.optUS);
    EXPECT_TRUE(app().flags.blnMetricActive);
    EXPECT_FALSE(app().flags.blnUSActive);
    const std::vector<std::pair<long, std::string>> captions = {
        {4, "Hose Length(m)"},     {10, "Branch Length(m)"}, {16, "Trunk Length(m)"}, {24, "Pipe Length(m)"},
        {30, "Tank Diameter(cm)"}, {31, "Bury Depth(m)"},    {32, "Rise(m)"}};
    for (const auto& [row, caption] : captions) {
        EXPECT_EQ(app().flxCurrent.TextMatrix(row, 0), caption);
        EXPECT_EQ(app().flxBaseLine.TextMatrix(row, 0), caption);
    }
    // The labels of the fields take their metric captions with the numbers.
    EXPECT_EQ(panel().captions.lblHoseLength, "Hose Length(m)");
    EXPECT_EQ(panel().captions.lblLength, "Length(m)");
    EXPECT_EQ(panel().captions.lblTrunkLength, "Length(m)");
    EXPECT_EQ(panel().captions.lblPipeLen, "Length(m)");
    EXPECT_EQ(panel().captions.lblTankDiameter, "Tank Diameter(cm)");
    EXPECT_EQ(panel().captions.lblBuryDepth, "Bury Depth(m)");
    EXPECT_EQ(panel().captions.lblRise, "Rise(m)");
    EXPECT_EQ(panel().txtHoseLen, "4");
    EXPECT_EQ(panel().txtTankDiameter, "249.9");
    EXPECT_EQ(app().flxBaseLine.TextMatrix(30, 2), "249.9");
}

TEST_F(SiteFileTest, AUsFileSetsItsOwnGridCaptionsButNoLabel) {
    app().config.Units = false;
    ASSERT_TRUE(ReadSiteFile(app(), sitePath(folder, "SmallGasStation.txt")));
    EXPECT_TRUE(app().config.Units);
    EXPECT_EQ(app().flxCurrent.TextMatrix(4, 0), "Hose Length(ft)");
    EXPECT_EQ(app().flxBaseLine.TextMatrix(30, 0), "Tank Diameter(inch)");
    EXPECT_EQ(app().flxCurrent.TextMatrix(32, 0), "Rise(ft)");
    EXPECT_EQ(panel().captions.lblHoseLength, "Hose length(ft)");
}

TEST(SiteFileUnits, AUsFileOpenedInAMetricRunLeavesTheMetricCaptions) {
    const TempProgramFolder folder = shippedWithSettings({"40", "4", "True", "False", "A"});
    Started metric;
    started(folder, metric);
    ASSERT_EQ(metric.app.panel.captions.lblTankDiameter, "Tank Diameter(cm)");
    ASSERT_TRUE(OpenSiteFile(metric.app, sitePath(folder, "SmallGasStation.txt"), metric.ui));
    // Feet in the fields under metric labels: the labels are never set back.
    EXPECT_EQ(metric.app.panel.txtTankDiameter, "96");
    EXPECT_EQ(metric.app.panel.captions.lblTankDiameter, "Tank Diameter(cm)");
    EXPECT_EQ(metric.app.panel.captions.lblHoseLength, "Hose Length(m)");
    EXPECT_TRUE(metric.app.config.Units);
    EXPECT_TRUE(metric.app.flags.blnUSActive);
}

TEST_F(SiteFileTest, TheFrequencyLineClicksItsOptionAndRefillsThePumps) {
    ASSERT_TRUE(ReadSiteFile(app(), sitePath(folder, "MetricStation.txt")));
    EXPECT_TRUE(panel().opt50Hz);
    EXPECT_FALSE(panel().opt60Hz);
    EXPECT_EQ(app().flxCurrent.TextMatrix(27, 1), "50Hz Pump ");
    EXPECT_EQ(app().flxBaseLine.TextMatrix(27, 1), "50Hz Pump ");
    EXPECT_EQ(panel().cmbPumps.Text(), "STP 1-1/2 HP");
    for (Long i = 0; i < panel().cmbPumps.ListCount(); ++i) {
        const Long index = panel().cmbPumps.ItemData(i);
        EXPECT_TRUE(app().catalogues.of(ComponentKind::Pump).Records.at(static_cast<std::size_t>(index)).IsGas)
            << "a 50 Hz record";
    }
}

TEST_F(SiteFileTest, AnUnknownFrequencyTextChangesNeitherOptionNorGrid) {
    SiteFileLines lines = exampleLines("SmallGasStation.txt");
    lines[29] = "50";
    app().flxCurrent.SetTextMatrix(27, 1, "as it was");
    ASSERT_TRUE(ReadSiteFile(app(), writeSite(folder, "hz.txt", joined(lines))));
    EXPECT_TRUE(panel().opt60Hz);
    EXPECT_EQ(app().flxCurrent.TextMatrix(27, 1), "as it was");
}

// ---- Reading: the areas ----

TEST_F(SiteFileTest, EveryLineOfTheAreasReachesBothGridsAndItsControl) {
    ASSERT_TRUE(ReadSiteFile(app(), sitePath(folder, "DieselTruckStop.txt")));
    const SiteFileLines lines = exampleLines("DieselTruckStop.txt");
    const std::vector<std::tuple<int, long, long, std::string>> cells = {
        {1, 1, 1, panel().cmbDispenser.Text()},
        {2, 2, 1, panel().cmbBreakAway.Text()},
        {3, 3, 1, panel().cmbHoseSize.Text()},
        {4, 4, 1, panel().txtHoseLen},
        {5, 5, 1, panel().cmbNozzle.Text()},
        {6, 6, 1, panel().cmbDispOthers.Text()},
        {7, 7, 2, panel().txtNoOfNozzle},
        {9, 8, 1, panel().cmbPiping.Text()},
        {10, 9, 1, panel().cmbBranch.Text()},
        {11, 10, 1, panel().txtBranchLength},
        {12, 11, 2, panel().txtBranchFitting[0]},
        {15, 14, 2, panel().txtBranchFitting[3]},
        {16, 15, 1, panel().cmbTrunk.Text()},
        {17, 16, 1, panel().txtTrunkLength},
        {18, 17, 2, panel().txtTrunkFitting[0]},
        {21, 20, 2, panel().txtTrunkFitting[3]},
        {24, 23, 1, panel().cmbPipeSize.Text()},
        {25, 24, 1, panel().txtPipeLen},
        {27, 25, 1, panel().cmbPumps.Text()},
        {28, 26, 2, panel().cmbQuantity.Text()},
        {30, 28, 1, panel().cmbLeak.Text()},
        {31, 29, 1, panel().cmbPumpOthers.Text()},
        {33, 30, 2, panel().txtTankDiameter},
        {34, 31, 2, panel().txtBuryDepth},
        {35, 32, 2, panel().txtRise},
        {36, 33, 2, panel().cmbNoOfBranches.Text()},
    };
    for (const auto& [line, row, column, control] : cells) {
        EXPECT_EQ(control, lines[static_cast<std::size_t>(line)]) << "line " << line;
        EXPECT_EQ(app().flxCurrent.TextMatrix(row, column), control) << "line " << line;
        EXPECT_EQ(app().flxBaseLine.TextMatrix(row, column), control) << "line " << line;
    }
    EXPECT_EQ(app().flxCurrent.TextMatrix(21, 1), "BallValve and SwingCheck");
    EXPECT_EQ(app().flxCurrent.TextMatrix(22, 1), "Advance");
}

TEST_F(SiteFileTest, NumbersAreReadAsSinglesAndWrittenBackAsTheirText) {
    SiteFileLines lines = exampleLines("SmallGasStation.txt");
    lines[4] = "012.50";
    lines[33] = " 96.0";
    lines[7] = "06"; // a count is taken as it stands
    ASSERT_TRUE(ReadSiteFile(app(), writeSite(folder, "numbers.txt", joined(lines))));
    EXPECT_EQ(panel().txtHoseLen, "12.5");
    EXPECT_EQ(panel().txtTankDiameter, "96");
    EXPECT_EQ(panel().txtNoOfNozzle, "06");
}

TEST(SiteFileUnits, AMetricFileHoldsFeetAndMayComeBackDifferentInTheLastDigit) {
    const TempProgramFolder folder = shippedWithSettings({"40", "4", "True", "False", "A"});
    Started metric;
    started(folder, metric);
    metric.app.panel.txtTankDiameter = "243.9";
    metric.app.panel.txtTrunkLength = "30.5";
    Calculate(metric.app);
    const std::string path = sitePath(folder, "metric.txt");
    WriteSiteFile(metric.app, path);
    const SiteFileLines lines = ComposeSiteFile(metric.app);
    EXPECT_EQ(lines[33], "96");
    EXPECT_EQ(lines[17], "100.1");
    ASSERT_TRUE(OpenSiteFile(metric.app, path, metric.ui));
    EXPECT_EQ(metric.app.panel.txtTankDiameter, "243.8");
    EXPECT_EQ(metric.app.panel.txtTrunkLength, "30.5");
}

struct ValveCase {
    const char* text;
    Integer ballBefore;
    Integer swingBefore;
    Integer ballAfter;
    Integer swingAfter;
};

class ValveTexts : public SiteFileTest, public ::testing::WithParamInterface<ValveCase> {};

TEST_P(ValveTexts, SetTheBoxesOnlyWhenWrittenWithBlanksOrNone) {
    const ValveCase& valve = GetParam();
    SiteFileLines lines = exampleLines("SmallGasStation.txt");
    lines[22] = valve.text;
    panel().chkBall = valve.ballBefore;
    panel().chkSwing = valve.swingBefore;
    ASSERT_TRUE(ReadSiteFile(app(), writeSite(folder, "valve.txt", joined(lines))));
    EXPECT_EQ(panel().chkBall, valve.ballAfter) << valve.text;
    EXPECT_EQ(panel().chkSwing, valve.swingAfter) << valve.text;
    EXPECT_EQ(app().flxCurrent.TextMatrix(21, 1), valve.text);
    EXPECT_EQ(app().flxBaseLine.TextMatrix(21, 1), valve.text);
}

INSTANTIATE_TEST_SUITE_P(SiteFile, ValveTexts,
                         ::testing::Values(ValveCase{"Ball Valve and Swing Check", 0, 0, 1, 1},
                                           ValveCase{"Swing Check", 1, 0, 0, 1}, ValveCase{"Ball Valve", 0, 1, 1, 0},
                                           ValveCase{"None", 1, 1, 0, 0},
                                           // the texts this program writes have no blanks
                                           ValveCase{"BallValve and SwingCheck", 0, 0, 0, 0},
                                           ValveCase{"SwingCheck", 1, 0, 1, 0}, ValveCase{"BallValve", 0, 1, 0, 1},
                                           ValveCase{"", 1, 1, 1, 1}));

TEST_F(SiteFileTest, ASiteSavedWithBothValvesLeavesTheBoxesOfTheOpeningRunAsTheyWere) {
    panel().chkBall = 1;
    panel().chkSwing = 1;
    Calculate(app());
    const std::string path = sitePath(folder, "valves.txt");
    WriteSiteFile(app(), path);
    Started second;
    started(folder, second);
    ASSERT_TRUE(OpenSiteFile(second.app, path, second.ui));
    EXPECT_EQ(second.app.panel.chkBall, 0);
    EXPECT_EQ(second.app.panel.chkSwing, 0);
    // The Calculate of Open lists the boxes as they are.
    EXPECT_EQ(second.app.flxCurrent.TextMatrix(21, 1), "None");
}

TEST_F(SiteFileTest, ASiteSavedWithNoValveClearsTheBoxes) {
    Calculate(app());
    const std::string path = sitePath(folder, "novalve.txt");
    WriteSiteFile(app(), path);
    panel().chkBall = 1;
    panel().chkSwing = 1;
    ASSERT_TRUE(OpenSiteFile(app(), path, first.ui));
    EXPECT_EQ(panel().chkBall, 0);
    EXPECT_EQ(panel().chkSwing, 0);
}

TEST_F(SiteFileTest, LineTwentyThreeChoosesBasicOrAdvance) {
    ASSERT_TRUE(ReadSiteFile(app(), sitePath(folder, "BasicModeSite.txt")));
    EXPECT_TRUE(panel().optBasic);
    EXPECT_FALSE(panel().optAdvance);
    EXPECT_EQ(app().flxCurrent.TextMatrix(22, 1), "Basic");
    EXPECT_EQ(app().flxBaseLine.TextMatrix(22, 1), "Basic");
    EXPECT_EQ(panel().cmbPipeSize.Text(), "2\"");
    EXPECT_EQ(panel().txtPipeLen, "150");
    ASSERT_TRUE(ReadSiteFile(app(), sitePath(folder, "SmallGasStation.txt")));
    EXPECT_FALSE(panel().optBasic);
    EXPECT_TRUE(panel().optAdvance);
    EXPECT_EQ(app().flxCurrent.TextMatrix(22, 1), "Advance");
}

// ---- Reading: the site properties ----

TEST_F(SiteFileTest, TheCustomerNameGoesToTheClassAndTheOtherNineToTheDialog) {
    app().siteProperties.strCustomerContact = "old contact";
    app().siteProperties.blnPrintFields = true;
    ASSERT_FALSE(app().frmSiteProperties.loaded);
    ASSERT_TRUE(ReadSiteFile(app(), sitePath(folder, "SmallGasStation.txt")));
    EXPECT_EQ(app().siteProperties.strCustomerName, "Maple Street Fuel");
    EXPECT_EQ(app().siteProperties.strCustomerContact, "old contact");
    EXPECT_EQ(app().siteProperties.strPhone, "");
    const SitePropertiesForm& form = app().frmSiteProperties;
    EXPECT_TRUE(form.loaded);
    EXPECT_EQ(form.chkPrint, 1);
    const std::array<std::string, 5> siteInfo = {"Maple Street Fuel", "J. Carter", "Six-nozzle gas forecourt",
                                                 "118 Maple Street", "Springfield"};
    const std::array<std::string, 5> report = {"Site design office", "2024-03-12", "A. Rivera", "design@example.com",
                                               "(555) 010-2030"};
    EXPECT_EQ(form.txtSiteInfo, siteInfo);
    EXPECT_EQ(form.txtReport, report);
}

TEST_F(SiteFileTest, ADialogAlreadyLoadedKeepsItsCustomerNameBox) {
    LoadSitePropertiesForm(app().frmSiteProperties, app().siteProperties);
    app().frmSiteProperties.txtSiteInfo[0] = "typed name";
    ASSERT_TRUE(ReadSiteFile(app(), sitePath(folder, "SmallGasStation.txt")));
    EXPECT_EQ(app().frmSiteProperties.txtSiteInfo[0], "typed name");
    EXPECT_EQ(app().frmSiteProperties.txtSiteInfo[1], "J. Carter");
    EXPECT_EQ(app().siteProperties.strCustomerName, "Maple Street Fuel");
}

TEST_F(SiteFileTest, ASaveBeforeTheDialogsOkWritesTheOldValuesOfTheLastNineLines) {
    app().siteProperties.strPhone = "old phone";
    ASSERT_TRUE(OpenSiteFile(app(), sitePath(folder, "SmallGasStation.txt"), first.ui));
    SiteFileLines lines = ComposeSiteFile(app());
    EXPECT_EQ(lines[42], "Maple Street Fuel");
    EXPECT_EQ(lines[43], "");
    EXPECT_EQ(lines[51], "old phone");
    AcceptSitePropertiesForm(app().frmSiteProperties, app().siteProperties);
    lines = ComposeSiteFile(app());
    EXPECT_EQ(lines[43], "J. Carter");
    EXPECT_EQ(lines[51], "(555) 010-2030");
}

// ---- Damaged files ----

TEST_F(SiteFileTest, AFiftyOneLineFileShowsMessage10AndChangesNoControl) {
    const std::string path =
        writeSite(folder, "short.txt", joined(exampleLines("DieselTruckStop.txt"), "\r\n", siteFileLineCount - 1));
    const auto before = everything(app());
    EXPECT_FALSE(OpenSiteFile(app(), path, first.ui));
    EXPECT_EQ(first.ui.shown, std::vector<std::string>{"Error in File Load"});
    EXPECT_EQ(first.ui.icons, std::vector<MessageIcon>{MessageIcon::Exclamation});
    EXPECT_EQ(changed(before, everything(app())), std::vector<std::string>{"strSiteFile"});
    EXPECT_EQ(app().strSiteFile, path);
}

TEST_F(SiteFileTest, LinesAfterTheFiftySecondAreIgnored) {
    const std::string path =
        writeSite(folder, "long.txt", joined(exampleLines("SmallGasStation.txt")) + "extra line\r\n$DIA\r\nmore\r\n");
    ASSERT_TRUE(OpenSiteFile(app(), path, first.ui));
    EXPECT_TRUE(first.ui.shown.empty());
    EXPECT_EQ(app().frmSiteProperties.txtReport[4], "(555) 010-2030");
}

TEST_F(SiteFileTest, LineFeedLineEndsAreAcceptedAsWell) {
    ASSERT_TRUE(OpenSiteFile(app(), sitePath(folder, "SmallGasStation.txt"), first.ui));
    const auto withCrLf = everything(app());
    Started second;
    started(folder, second);
    const std::string path = writeSite(folder, "lf.txt", joined(exampleLines("SmallGasStation.txt"), "\n"));
    ASSERT_TRUE(OpenSiteFile(second.app, path, second.ui));
    auto withLf = everything(second.app);
    EXPECT_EQ(changed(withCrLf, withLf), (std::vector<std::string>{"caption", "strSiteFile"}));
}

TEST_F(SiteFileTest, ABadNumberFailsWithTheLinesBeforeItApplied) {
    SiteFileLines lines = exampleLines("DieselTruckStop.txt");
    lines[4] = "15 ft";
    const std::string path = writeSite(folder, "badnumber.txt", joined(lines));
    const std::string hoseLength = panel().txtHoseLen;
    const std::string nozzleCell = app().flxCurrent.TextMatrix(5, 1);
    EXPECT_FALSE(OpenSiteFile(app(), path, first.ui));
    EXPECT_EQ(first.ui.shown, std::vector<std::string>{"Error in File Load"});
    // Applied before the number: settings, lists, frequency, the first three names.
    EXPECT_TRUE(panel().frmData.optDiesel);
    EXPECT_EQ(panel().cmbHoseSize.Text(), "1");
    EXPECT_EQ(panel().cmbNozzle.Text(), "None") << "refilled for diesel, the name of line 5 not yet set";
    EXPECT_EQ(panel().cmbPumps.ListIndex(), 0) << "the pump of line 27 comes after the number";
    EXPECT_EQ(app().flxCurrent.TextMatrix(3, 1), "1");
    // The number and everything after it: untouched.
    EXPECT_EQ(panel().txtHoseLen, hoseLength);
    EXPECT_EQ(app().flxCurrent.TextMatrix(4, 1), hoseLength);
    EXPECT_EQ(app().flxCurrent.TextMatrix(5, 1), nozzleCell);
    EXPECT_EQ(app().siteProperties.strCustomerName, "");
    EXPECT_FALSE(app().frmSiteProperties.loaded);
}

TEST_F(SiteFileTest, ANameMissingFromItsListFailsWithTheEarlierStepsKept) {
    SiteFileLines lines = exampleLines("SmallGasStation.txt");
    lines[38] = "False"; // a diesel site naming a gas-only dispenser
    lines[1] = "Dispenser blender 3/4in";
    const std::string path = writeSite(folder, "unknown.txt", joined(lines));
    const std::string breakawayCell = app().flxCurrent.TextMatrix(2, 1);
    app().flags.blnSaved = true;
    EXPECT_FALSE(OpenSiteFile(app(), path, first.ui));
    EXPECT_EQ(first.ui.shown, std::vector<std::string>{"Error in File Load"});
    EXPECT_TRUE(panel().frmData.optDiesel);
    EXPECT_EQ(app().flxCurrent.TextMatrix(34, 1), "Diesel");
    EXPECT_EQ(app().flxCurrent.TextMatrix(1, 1), "Dispenser blender 3/4in");
    EXPECT_EQ(app().flxBaseLine.TextMatrix(1, 1), "Dispenser blender 3/4in");
    EXPECT_EQ(panel().cmbDispenser.Text(), "None") << "the lists were refilled for diesel";
    EXPECT_EQ(app().flxCurrent.TextMatrix(2, 1), breakawayCell);
    EXPECT_TRUE(app().flags.blnSaved);
    EXPECT_EQ(app().strSiteFile, path);
    EXPECT_NE(app().caption, path);
}

TEST_F(SiteFileTest, AnUnknownNameFailsAtAnyLineOfAList) {
    for (int line : {2, 3, 5, 6, 9, 10, 16, 24, 27, 28, 30, 31, 36}) {
        SiteFileLines lines = exampleLines("SmallGasStation.txt");
        lines[static_cast<std::size_t>(line)] = "No such entry";
        EXPECT_FALSE(ReadSiteFile(app(), writeSite(folder, "unknown.txt", joined(lines)))) << "line " << line;
    }
}

TEST_F(SiteFileTest, ABadNumberFailsAtAnyLength) {
    for (int line : {4, 11, 17, 25, 33, 34, 35}) {
        SiteFileLines lines = exampleLines("SmallGasStation.txt");
        lines[static_cast<std::size_t>(line)] = "";
        EXPECT_FALSE(ReadSiteFile(app(), writeSite(folder, "bad.txt", joined(lines)))) << "line " << line;
    }
}

// ---- File, Open ----

TEST_F(SiteFileTest, OpeningAMissingFileShowsMessage11AndEmptiesTheSiteFile) {
    const std::string caption = app().caption;
    const auto before = everything(app());
    EXPECT_FALSE(OpenSiteFile(app(), sitePath(folder, "nowhere.txt"), first.ui));
    EXPECT_EQ(first.ui.shown, std::vector<std::string>{"File doesn't exists"});
    EXPECT_EQ(first.ui.icons, std::vector<MessageIcon>{MessageIcon::None});
    EXPECT_EQ(app().strSiteFile, "");
    EXPECT_EQ(app().caption, caption);
    EXPECT_EQ(changed(before, everything(app())), std::vector<std::string>{"strSiteFile"});
}

TEST_F(SiteFileTest, AFolderIsNotASiteFile) {
    EXPECT_FALSE(OpenSiteFile(app(), (folder.path() / "SaveSiteInfo").string(), first.ui));
    EXPECT_EQ(first.ui.shown, std::vector<std::string>{"File doesn't exists"});
}

TEST_F(SiteFileTest, SiteFileNamesAreTakenExactlyNotWithoutRegardToCase) {
    EXPECT_FALSE(OpenSiteFile(app(), sitePath(folder, "smallgasstation.txt"), first.ui));
    EXPECT_EQ(first.ui.shown, std::vector<std::string>{"File doesn't exists"});
}

TEST_F(SiteFileTest, OpenSetsTheCaptionCalculatesBothSidesAndSetsBlnSaved) {
    Calculate(app());
    ASSERT_FALSE(app().flags.blnSaved);
    const std::string path = sitePath(folder, "SmallGasStation.txt");
    ASSERT_TRUE(OpenSiteFile(app(), path, first.ui));
    EXPECT_TRUE(first.ui.shown.empty());
    EXPECT_EQ(app().caption, path);
    EXPECT_EQ(app().strSiteFile, path);
    EXPECT_TRUE(app().flags.blnSaved);
    EXPECT_FALSE(app().flags.NeedBaseline);
    EXPECT_EQ(app().ChartNozzles, 8);
    EXPECT_EQ(app().results.Current.GpmPerNozzle, app().results.Baseline.GpmPerNozzle);
    EXPECT_GT(app().results.Current.GpmPerNozzle[6], 5.0F);
    EXPECT_EQ(app().results.Current.GpmList.size(), 7U);
    // Both grids list the opened site as Calculate fills them.
    EXPECT_EQ(app().flxCurrent.TextMatrix(4, 0), "HoseLen(ft)");
    EXPECT_EQ(app().flxBaseLine.TextMatrix(21, 1), "None") << "the boxes of start-up, not the file's text";
}

TEST_F(SiteFileTest, AFailedOpenLeavesBlnSavedAsItWas) {
    const std::string path =
        writeSite(folder, "short.txt", joined(exampleLines("SmallGasStation.txt"), "\r\n", siteFileLineCount - 1));
    app().flags.blnSaved = false;
    EXPECT_FALSE(OpenSiteFile(app(), path, first.ui));
    EXPECT_FALSE(app().flags.blnSaved);
    app().flags.blnSaved = true;
    EXPECT_FALSE(OpenSiteFile(app(), sitePath(folder, "nowhere.txt"), first.ui));
    EXPECT_TRUE(app().flags.blnSaved);
}

TEST_F(SiteFileTest, MoreNozzlesThanTheLimitAreCutWithoutAMessage) {
    SiteFileLines lines = exampleLines("SmallGasStation.txt");
    lines[7] = "45";
    ASSERT_TRUE(OpenSiteFile(app(), writeSite(folder, "many.txt", joined(lines)), first.ui));
    EXPECT_TRUE(first.ui.shown.empty());
    EXPECT_EQ(panel().txtNoOfNozzle, "40");
    EXPECT_EQ(app().ChartNozzles, 42);
    EXPECT_EQ(app().flxBaseLine.TextMatrix(7, 2), "40");
}

TEST_F(SiteFileTest, OpenComputesChartNozzlesButNotNoOfNozzles) {
    ASSERT_EQ(app().NoOfNozzles, 8);
    ASSERT_TRUE(OpenSiteFile(app(), sitePath(folder, "DieselTruckStop.txt"), first.ui));
    EXPECT_EQ(panel().txtNoOfNozzle, "4");
    EXPECT_EQ(app().ChartNozzles, 6);
    EXPECT_EQ(app().NoOfNozzles, 8);
}

// ---- Round trips ----

TEST_F(SiteFileTest, AUsRoundTripGivesTheSamePanelsAndTheSameTable) {
    PanelState& p = panel();
    ClickFrequencyOption(p, app().catalogues, app().config, true);
    p.cmbPumps.SetText("STP 1-1/2 HP");
    p.cmbQuantity.SetText("2");
    p.cmbDispenser.SetText("Dispenser blender 3/4in");
    p.cmbBreakAway.SetText("Breakaway 3/4in single-use");
    p.cmbHoseSize.SetText("5/8");
    p.txtHoseLen = "14.5";
    p.cmbNozzle.SetText("Nozzle vapour-recovery balance 3/4in");
    p.cmbDispOthers.SetText("Inline filter");
    p.txtNoOfNozzle = "7";
    CreateResultTables(app());
    p.cmbPiping.SetListIndex(2);
    p.cmbBranch.SetListIndex(1);
    p.txtBranchLength = "75.5";
    p.txtBranchFitting = {"1", "2", "3", "4"};
    p.cmbTrunk.SetListIndex(2);
    p.txtTrunkLength = "180";
    p.txtTrunkFitting = {"2", "0", "1", "0"};
    p.cmbPipeSize.SetListIndex(3);
    p.txtPipeLen = "20";
    p.cmbLeak.SetText("Electronic line leak detector");
    p.cmbPumpOthers.SetText("Line check valve 2in");
    p.txtTankDiameter = "110";
    p.txtBuryDepth = "4.5";
    p.txtRise = "9.5";
    p.cmbNoOfBranches.SetText("3");
    Calculate(app());
    const std::string path = sitePath(folder, "roundtrip.txt");
    WriteSiteFile(app(), path);

    Started second;
    started(folder, second);
    ASSERT_TRUE(OpenSiteFile(second.app, path, second.ui));
    EXPECT_EQ(panelState(second.app.panel), panelState(p));
    EXPECT_EQ(second.app.results.Current.GpmPerNozzle, app().results.Current.GpmPerNozzle);
    EXPECT_EQ(second.app.results.Current.LpmPerNozzle, app().results.Current.LpmPerNozzle);
    EXPECT_EQ(gridText(second.app.flxCurrent), gridText(app().flxCurrent));
}

TEST(SiteFileUnits, AMetricRoundTripGivesTheSamePanelsAndTheSameTable) {
    const TempProgramFolder folder = shippedWithSettings({"40", "4", "True", "False", "I"});
    Started first;
    started(folder, first);
    PanelState& p = first.app.panel;
    p.cmbNozzle.SetText("Nozzle vapour-recovery vacuum-assist 3/4in");
    p.cmbHoseSize.SetText("3/4");
    p.txtHoseLen = "4";
    p.txtBranchLength = "15";
    p.txtTrunkLength = "30";
    p.txtTrunkFitting = {"0", "2", "0", "1"};
    p.optBasic = false;
    p.txtPipeLen = "12.5";
    p.txtTankDiameter = "254";
    p.txtBuryDepth = "1";
    p.txtRise = "3";
    p.cmbNoOfBranches.SetText("2");
    Calculate(first.app);
    const std::string path = sitePath(folder, "metric.txt");
    WriteSiteFile(first.app, path);
    EXPECT_EQ(ComposeSiteFile(first.app)[39], "False");
    EXPECT_EQ(ComposeSiteFile(first.app)[33], "100");

    Started second;
    started(folder, second);
    ASSERT_TRUE(OpenSiteFile(second.app, path, second.ui));
    EXPECT_EQ(panelState(second.app.panel), panelState(p));
    EXPECT_EQ(second.app.results.Current.GpmPerNozzle, first.app.results.Current.GpmPerNozzle);
    EXPECT_EQ(gridText(second.app.flxCurrent), gridText(first.app.flxCurrent));
}

// ---- The example sites ----

struct ExampleSite {
    const char* file;
    std::array<std::string_view, 5> settings; // Vesk.ini of the run the site was made in
    std::size_t nozzles;
    Integer chkBall; // the boxes it was saved with: a read leaves them as they are
    Integer chkSwing;
};

class ExampleSites : public ::testing::TestWithParam<ExampleSite> {};

TEST_P(ExampleSites, LoadAndDeliverARealFlowAtEveryNozzle) {
    const ExampleSite& example = GetParam();
    const TempProgramFolder folder = TempProgramFolder::copyOfShipped();
    Started run;
    started(folder, run);
    ASSERT_TRUE(OpenSiteFile(run.app, sitePath(folder, example.file), run.ui)) << example.file;
    EXPECT_TRUE(run.ui.shown.empty());
    const FlowTable& current = run.app.results.Current;
    ASSERT_EQ(current.GpmList.size(), example.nozzles + 1);
    for (std::size_t n = 1; n <= example.nozzles; ++n) {
        EXPECT_GT(current.GpmPerNozzle[n], 4.0F) << example.file << " with " << n << " nozzles";
        EXPECT_LT(current.GpmPerNozzle[n], 60.0F) << example.file << " with " << n << " nozzles";
    }
}

TEST_P(ExampleSites, AreWhatTheWriterWritesWhenOpenedInTheRunAndWithTheValvesTheyWereMadeWith) {
    const ExampleSite& example = GetParam();
    const auto& ini = example.settings;
    const TempProgramFolder folder = shippedWithSettings({ini[0], ini[1], ini[2], ini[3], ini[4]});
    Started run;
    started(folder, run);
    const std::string path = sitePath(folder, example.file);
    const std::string bytes = readBytes(path);
    run.app.panel.chkBall = example.chkBall;
    run.app.panel.chkSwing = example.chkSwing;
    ASSERT_TRUE(OpenSiteFile(run.app, path, run.ui));
    AcceptSitePropertiesForm(run.app.frmSiteProperties, run.app.siteProperties);
    SaveSite(run.app);
    EXPECT_EQ(readBytes(path), bytes);
}

INSTANTIATE_TEST_SUITE_P(
    SiteFile, ExampleSites,
    ::testing::Values(ExampleSite{"SmallGasStation.txt", {"40", "4", "True", "True", "A"}, 6, 1, 0},
                      ExampleSite{"MetricStation.txt", {"40", "4", "True", "False", "I"}, 8, 1, 1},
                      ExampleSite{"DieselTruckStop.txt", {"40", "4", "False", "True", "C"}, 4, 1, 1},
                      ExampleSite{"BasicModeSite.txt", {"40", "4", "True", "True", "A"}, 4, 0, 0}),
    [](const ::testing::TestParamInfo<ExampleSite>& param) {
        const std::string file = param.param.file;
        return file.substr(0, file.find('.'));
    });

// ---- File, New ----

TEST_F(SiteFileTest, NewWithTheNameOfAnExistingFileShowsTheMessageAndChangesNothing) {
    panel().txtRise = "4";
    const auto before = everything(app());
    EXPECT_FALSE(NewSite(app(), sitePath(folder, "SmallGasStation.txt"), first.ui));
    EXPECT_EQ(first.ui.shown, std::vector<std::string>{"File already exists. Please enter a new filename"});
    EXPECT_TRUE(changed(before, everything(app())).empty());
}

TEST_F(SiteFileTest, NewWithAFreshNameStartsAgainUnderThatNameWithoutWritingIt) {
    app().siteProperties.strCustomerName = "old customer";
    const std::string path = sitePath(folder, "fresh.txt");
    ASSERT_TRUE(NewSite(app(), path, first.ui));
    EXPECT_EQ(app().strSiteFile, path);
    EXPECT_EQ(app().caption, path);
    EXPECT_TRUE(app().flags.blnSaved);
    EXPECT_EQ(app().siteProperties.strCustomerName, "");
    EXPECT_FALSE(fs::exists(path));
}

} // namespace
} // namespace vesk
