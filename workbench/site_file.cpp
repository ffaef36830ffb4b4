// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The site file: 52 lines, names not indices, feet and inches always.
#include "workbench/site_file.h"

#include "catalogue/data_file_path.h"
#include "catalogue/text_lines.h"
#include "engine/site_description.h"
#include "workbench/startup.h"

#include <filesystem>
#include <string_view>

namespace vesk {

namespace {

// The keys that open the sections. They are written but never read: the
// reader goes by position alone.
struct SectionKey {
    int line;
    const char* key;
};

constexpr std::array<SectionKey, 6> sectionKeys{{
    {0, "$DIA"},  // Dispensing Area
    {8, "$PIA"},  // Piping Area
    {26, "$PUA"}, // Pump Area
    {32, "$SL"},  // Site Layout
    {37, "$SS"},  // System Settings
    {41, "$SP"},  // Site Properties
}};

// How a line of the four areas is written and read back.
enum class LineKind {
    ListName, // the name of an entry of a list that offers only its own entries
    Text,     // a field's text as it stands: the number of nozzles
    Fitting,  // a fitting count of the branch or the trunk
    Length,   // a length in feet, or the tank diameter in inches
    Valve,    // the valve text of the trunk
    Mode,     // "True" for the Basic piping mode
};

// A length's unit: the file holds feet (inches for the tank); the fields hold
// metres (centimetres) when the System Settings dialog says metric.
struct LengthUnit {
    Double metricPerUs;                 // 0.3048 m per ft, 2.54 cm per in
    std::string UnitCaptions::*caption; // the label that takes its metric caption
};

// One line of the four areas: its place in the file, its cell of flxCurrent
// (and flxBaseLine) and its control. Only the member that its kind names is set.
struct AreaLine {
    int line;
    long row;
    long column;
    LineKind kind;
    ComboList PanelState::*list = nullptr;
    std::string PanelState::*text = nullptr;
    std::array<std::string, 4> PanelState::*fittings = nullptr;
    std::size_t fitting = 0;
    LengthUnit unit{};
};

constexpr AreaLine listLine(int line, long row, long column, ComboList PanelState::*list) {
    return {line, row, column, LineKind::ListName, list};
}

constexpr AreaLine lengthLine(int line, long row, long column, std::string PanelState::*text, Double metricPerUs,
                              std::string UnitCaptions::*caption) {
    return {line, row, column, LineKind::Length, nullptr, text, nullptr, 0, {metricPerUs, caption}};
}

constexpr AreaLine fittingLine(int line, long row, std::array<std::string, 4> PanelState::*fittings,
                               std::size_t index) {
    return {line, row, 2, LineKind::Fitting, nullptr, nullptr, fittings, index};
}

using PS = PanelState;
using UC = UnitCaptions;
constexpr Double feet = units::metresPerFoot;
constexpr Double inches = units::centimetresPerInch;

// The lines of the four areas in the order of the file. The frequency of line
// 29 and the settings of lines 38 to 40 are read ahead of these, so they stand
// apart.
constexpr std::array<AreaLine, 32> areaLines{{
    listLine(1, 1, 1, &PS::cmbDispenser),
    listLine(2, 2, 1, &PS::cmbBreakAway),
    listLine(3, 3, 1, &PS::cmbHoseSize),
    lengthLine(4, 4, 1, &PS::txtHoseLen, feet, &UC::lblHoseLength),
    listLine(5, 5, 1, &PS::cmbNozzle),
    listLine(6, 6, 1, &PS::cmbDispOthers),
    {7, 7, 2, LineKind::Text, nullptr, &PS::txtNoOfNozzle},
    listLine(9, 8, 1, &PS::cmbPiping),
    listLine(10, 9, 1, &PS::cmbBranch),
    lengthLine(11, 10, 1, &PS::txtBranchLength, feet, &UC::lblLength),
    fittingLine(12, 11, &PS::txtBranchFitting, 0),
    fittingLine(13, 12, &PS::txtBranchFitting, 1),
    fittingLine(14, 13, &PS::txtBranchFitting, 2),
    fittingLine(15, 14, &PS::txtBranchFitting, 3),
    listLine(16, 15, 1, &PS::cmbTrunk),
    lengthLine(17, 16, 1, &PS::txtTrunkLength, feet, &UC::lblTrunkLength),
    fittingLine(18, 17, &PS::txtTrunkFitting, 0),
    fittingLine(19, 18, &PS::txtTrunkFitting, 1),
    fittingLine(20, 19, &PS::txtTrunkFitting, 2),
    fittingLine(21, 20, &PS::txtTrunkFitting, 3),
    {22, 21, 1, LineKind::Valve},
    {23, 22, 1, LineKind::Mode},
    listLine(24, 23, 1, &PS::cmbPipeSize),
    lengthLine(25, 24, 1, &PS::txtPipeLen, feet, &UC::lblPipeLen),
    listLine(27, 25, 1, &PS::cmbPumps),
    listLine(28, 26, 2, &PS::cmbQuantity),
    listLine(30, 28, 1, &PS::cmbLeak),
    listLine(31, 29, 1, &PS::cmbPumpOthers),
    lengthLine(33, 30, 2, &PS::txtTankDiameter, inches, &UC::lblTankDiameter),
    lengthLine(34, 31, 2, &PS::txtBuryDepth, feet, &UC::lblBuryDepth),
    lengthLine(35, 32, 2, &PS::txtRise, feet, &UC::lblRise),
    listLine(36, 33, 2, &PS::cmbNoOfBranches),
}};

// Lines of the settings and their cells.
constexpr int frequencyLine = 29;
constexpr long frequencyRow = 27;
constexpr int fuelLine = 38;
constexpr long fuelRow = 34;
constexpr int unitsLine = 39;
constexpr int componentListLine = 40;
constexpr long componentListRow = 35;

constexpr const char* fileExistsMessage = "File already exists. Please enter a new filename";

constexpr const char* trueText = "True";
constexpr const char* falseText = "False";
constexpr const char* fiftyHzText = "50Hz Pump ";
constexpr const char* sixtyHzText = "60Hz Pump ";
constexpr const char* basicText = "Basic";
constexpr const char* advanceText = "Advance";

// The component lists: the letter of the file and the name of the grid.
struct ComponentListName {
    const char* letter;
    const char* name;
    bool FrmDataOptions::*option;
};

constexpr std::array<ComponentListName, 3> componentListNames{{
    {"A", "American", &FrmDataOptions::optAmerican},
    {"I", "International", &FrmDataOptions::optInternational},
    {"C", "Commercial", &FrmDataOptions::optCommercial},
}};

// The rows of column 0 that carry a unit, with their captions in US units and
// in metric units as a site file's read sets them. They are not the captions
// the grids are filled with.
struct UnitRowCaption {
    long row;
    const char* us;
    const char* metric;
};

constexpr std::array<UnitRowCaption, 7> unitRowCaptions{{
    {4, "Hose Length(ft)", "Hose Length(m)"},
    {10, "Branch Length(ft)", "Branch Length(m)"},
    {16, "Trunk Length(ft)", "Trunk Length(m)"},
    {24, "Pipe Length(ft)", "Pipe Length(m)"},
    {30, "Tank Diameter(inch)", "Tank Diameter(cm)"},
    {31, "Bury Depth(ft)", "Bury Depth(m)"},
    {32, "Rise(ft)", "Rise(m)"},
}};

// The valve texts a read understands, with blanks; the grid's own texts have
// none, so of a file this program wrote only "None" changes a box.
struct ValveBoxes {
    const char* text;
    Integer chkBall;
    Integer chkSwing;
};

constexpr std::array<ValveBoxes, 4> valveBoxes{{
    {"Ball Valve and Swing Check", 1, 1},
    {"Swing Check", 0, 1},
    {"Ball Valve", 1, 0},
    {"None", 0, 0},
}};

// Lines 42 to 51: the properties in the order of the file. Line 42 goes back
// to the class, lines 43 to 51 to the boxes of the Site Properties dialog.
struct PropertyLine {
    std::string clsSiteProperties::*property;
    std::array<std::string, 5> SitePropertiesForm::*boxes;
    std::size_t box;
};

constexpr int firstPropertyLine = 42;
constexpr std::array<PropertyLine, 10> propertyLines{{
    {&clsSiteProperties::strCustomerName, nullptr, 0},
    {&clsSiteProperties::strCustomerContact, &SitePropertiesForm::txtSiteInfo, 1},
    {&clsSiteProperties::strSiteDescription, &SitePropertiesForm::txtSiteInfo, 2},
    {&clsSiteProperties::strAddress1, &SitePropertiesForm::txtSiteInfo, 3},
    {&clsSiteProperties::strAddress2, &SitePropertiesForm::txtSiteInfo, 4},
    {&clsSiteProperties::strGeneratedBy, &SitePropertiesForm::txtReport, 0},
    {&clsSiteProperties::strDate, &SitePropertiesForm::txtReport, 1},
    {&clsSiteProperties::strContact, &SitePropertiesForm::txtReport, 2},
    {&clsSiteProperties::strEmail, &SitePropertiesForm::txtReport, 3},
    {&clsSiteProperties::strPhone, &SitePropertiesForm::txtReport, 4},
}};

std::string& textOf(PanelState& panel, const AreaLine& line) {
    if (line.kind == LineKind::Fitting) {
        return at(panel.*line.fittings, static_cast<long>(line.fitting));
    }
    return panel.*line.text;
}

// Both grids take a text in the same cell.
void setBothGrids(ApplicationState& app, long row, long column, const std::string& text) {
    app.flxCurrent.SetTextMatrix(row, column, text);
    app.flxBaseLine.SetTextMatrix(row, column, text);
}

// ---- Writing ----

// A length of the grid on its way into the file: read as a Single and, when
// the fields are metric, divided back into feet (inches for the tank) and
// rounded to 1 decimal, kept as a Single.
std::string lengthForFile(const std::string& gridText, const LengthUnit& unit, bool metric) {
    Single value = parseSingle(gridText);
    if (metric) {
        value = toSingle(roundHalfEven(divide(value, unit.metricPerUs), 1));
    }
    return singleText(value);
}

std::string areaLineForFile(const ResultGrid& grid, const AreaLine& line, bool metric) {
    const std::string& cell = grid.TextMatrix(line.row, line.column);
    switch (line.kind) {
    case LineKind::Length:
        return lengthForFile(cell, line.unit, metric);
    case LineKind::Mode:
        return cell == basicText ? trueText : falseText;
    default:
        return cell;
    }
}

// Line 40: the letter of the list the grid names; a text that names no list
// gives an empty line, which a read then ignores.
std::string componentListLetter(const std::string& gridText) {
    for (const ComponentListName& list : componentListNames) {
        if (gridText == list.name) {
            return list.letter;
        }
    }
    return {};
}

// ---- Reading ----

// The System Settings dialog's options, for setting: setting one loads the
// dialog from clsConfigureData first when it is not loaded.
FrmDataOptions& loadedFrmData(ApplicationState& app) {
    TouchFrmData(app.panel, app.config);
    return app.panel.frmData;
}

// Exactly 52 lines; a shorter file fails, what follows is ignored.
SiteFileLines readLines(const std::string& fileName) {
    TextLineReader reader(ReadWholeFile(fileName));
    SiteFileLines lines;
    for (std::string& line : lines) {
        line = reader.readLine();
    }
    return lines;
}

// The fuel, into the System Settings dialog (loaded first if it is not
// loaded) and both grids. clsConfigureData keeps the fuel of the run.
void readFuel(ApplicationState& app, const std::string& text) {
    FrmDataOptions& dialog = loadedFrmData(app);
    const bool gas = text == trueText;
    dialog.optGas = gas;
    dialog.optDiesel = !gas;
    setBothGrids(app, fuelRow, 1, gas ? "Gas" : "Diesel");
}

// The component list. The list options are what the loaders read, so
// they are the active list code too. A letter other than A, I, C changes
// nothing.
void readComponentList(ApplicationState& app, const std::string& text) {
    for (const ComponentListName& list : componentListNames) {
        if (text == list.letter) {
            FrmDataOptions& dialog = loadedFrmData(app);
            for (const ComponentListName& other : componentListNames) {
                dialog.*other.option = false;
            }
            dialog.*list.option = true;
            setBothGrids(app, componentListRow, 1, list.name);
            return;
        }
    }
}

// The units. Units of clsConfigureData follows the file, but Data and
// ComponentList do not.
void readUnits(ApplicationState& app, const std::string& text) {
    FrmDataOptions& dialog = loadedFrmData(app);
    const bool us = text == trueText;
    app.config.Units = us;
    dialog.optUS = us;
    dialog.optMetric = !us;
    for (const UnitRowCaption& caption : unitRowCaptions) {
        setBothGrids(app, caption.row, 0, us ? caption.us : caption.metric);
    }
    app.flags.blnUSActive = us;
    app.flags.blnMetricActive = !us;
}

// The frequency; a text other than "True" or "False" changes nothing.
void readFrequency(ApplicationState& app, const std::string& text) {
    if (text != trueText && text != falseText) {
        return;
    }
    const bool fiftyHz = text == trueText;
    setBothGrids(app, frequencyRow, 1, fiftyHz ? fiftyHzText : sixtyHzText);
    ClickFrequencyOption(app.panel, app.catalogues, app.config, fiftyHz);
}

// A length from the file into both grids and its field: read as a Single and,
// when the dialog says metric, multiplied into metres (centimetres) and
// rounded to 1 decimal, its label taking the metric caption. In US units the
// label is left as it is.
void readLength(ApplicationState& app, const AreaLine& line, const std::string& text) {
    Single value = parseSingle(text);
    if (TouchFrmData(app.panel, app.config).optMetric) {
        value = toSingle(roundHalfEven(value * line.unit.metricPerUs, 1));
        app.panel.captions.*line.unit.caption = MetricCaptions().*line.unit.caption;
    }
    const std::string valueText = singleText(value);
    setBothGrids(app, line.row, line.column, valueText);
    textOf(app.panel, line) = valueText;
}

// The valve text; the boxes follow only the texts with blanks.
void readValve(ApplicationState& app, const std::string& text) {
    setBothGrids(app, 21, 1, text);
    const std::string& gridText = app.flxCurrent.TextMatrix(21, 1);
    for (const ValveBoxes& valves : valveBoxes) {
        if (gridText == valves.text) {
            app.panel.chkBall = valves.chkBall;
            app.panel.chkSwing = valves.chkSwing;
            return;
        }
    }
}

// The piping mode: "True" is the Basic mode, anything else Advance.
void readMode(ApplicationState& app, const std::string& text) {
    const bool basic = text == trueText;
    setBothGrids(app, 22, 1, basic ? basicText : advanceText);
    app.panel.optBasic = basic;
    app.panel.optAdvance = !basic;
}

// One line of the four areas.
void readAreaLine(ApplicationState& app, const AreaLine& line, const std::string& text) {
    switch (line.kind) {
    case LineKind::ListName:
        setBothGrids(app, line.row, line.column, text);
        // A list takes only its own entries: a name missing from it fails.
        (app.panel.*line.list).SetText(app.flxCurrent.TextMatrix(line.row, line.column));
        break;
    case LineKind::Text:
    case LineKind::Fitting:
        setBothGrids(app, line.row, line.column, text);
        textOf(app.panel, line) = text;
        break;
    case LineKind::Length:
        readLength(app, line, text);
        break;
    case LineKind::Valve:
        readValve(app, text);
        break;
    case LineKind::Mode:
        readMode(app, text);
        break;
    }
}

// The customer name to the class, the other nine to the boxes of the
// Site Properties dialog, which is loaded (hidden) from the class first when
// it is not loaded. The class sees them only at the dialog's Ok.
void readProperties(ApplicationState& app, const SiteFileLines& lines) {
    app.siteProperties.strCustomerName = lines[firstPropertyLine];
    if (!app.frmSiteProperties.loaded) {
        LoadSitePropertiesForm(app.frmSiteProperties, app.siteProperties);
    }
    for (std::size_t i = 1; i < propertyLines.size(); ++i) {
        const PropertyLine& property = propertyLines[i];
        at(app.frmSiteProperties.*property.boxes, static_cast<long>(property.box)) = lines[firstPropertyLine + i];
    }
}

// The lines read, applied in the order that decides what a failure leaves:
// fuel, component list, units, the lists refilled, frequency, then the four
// areas line by line, then the properties.
void applySiteFile(ApplicationState& app, const SiteFileLines& lines) {
    readFuel(app, lines[fuelLine]);
    readComponentList(app, lines[componentListLine]);
    readUnits(app, lines[unitsLine]);
    LoadAllLists(app.panel, app.catalogues, app.config);
    readFrequency(app, lines[frequencyLine]);
    for (const AreaLine& line : areaLines) {
        readAreaLine(app, line, lines[static_cast<std::size_t>(line.line)]);
    }
    // The site picture follows cmbNoOfBranches in the window; the core loads none.
    readProperties(app, lines);
}

} // namespace

SiteFileLines ComposeSiteFile(ApplicationState& app) {
    const ResultGrid& grid = app.flxCurrent;
    const FrmDataOptions& dialog = TouchFrmData(app.panel, app.config);
    const bool metric = dialog.optMetric;

    SiteFileLines lines;
    for (const SectionKey& key : sectionKeys) {
        lines[static_cast<std::size_t>(key.line)] = key.key;
    }
    for (const AreaLine& line : areaLines) {
        lines[static_cast<std::size_t>(line.line)] = areaLineForFile(grid, line, metric);
    }
    lines[frequencyLine] = grid.TextMatrix(frequencyRow, 1) == fiftyHzText ? trueText : falseText;
    lines[fuelLine] = grid.TextMatrix(fuelRow, 1) == "Gas" ? trueText : falseText;
    lines[unitsLine] = dialog.optUS ? trueText : falseText;
    lines[componentListLine] = componentListLetter(grid.TextMatrix(componentListRow, 1));
    for (std::size_t i = 0; i < propertyLines.size(); ++i) {
        lines[firstPropertyLine + i] = app.siteProperties.*propertyLines[i].property;
    }
    return lines;
}

void WriteSiteFile(ApplicationState& app, const std::string& fileName) {
    // The whole text first: a failure while composing leaves the file as it was.
    const SiteFileLines lines = ComposeSiteFile(app);
    std::string text;
    for (const std::string& line : lines) {
        appendLine(text, line);
    }
    WriteWholeFile(fileName, text);
}

bool ReadSiteFile(ApplicationState& app, const std::string& fileName) {
    try {
        const SiteFileLines lines = readLines(fileName);
        applySiteFile(app, lines);
        return true;
    } catch (const RunTimeFailure&) {
        // What was applied before the failure stays applied.
        return false;
    }
}

bool OpenSiteFile(ApplicationState& app, const std::string& fileName, UserInteraction& ui) {
    // A site file is a path the user chose, taken exactly as given.
    std::error_code error;
    if (!std::filesystem::is_regular_file(fileName, error)) {
        ShowMessage(11, ui);
        app.strSiteFile.clear();
        return false;
    }
    app.strSiteFile = fileName;
    if (!ReadSiteFile(app, fileName)) {
        ShowMessage(10, ui); // the caption keeps the old name
        return false;
    }
    app.caption = fileName;
    if (leadingNumber(app.panel.txtNoOfNozzle) > leadingNumber(app.panel.txtMaxNozz)) {
        app.panel.txtNoOfNozzle = app.panel.txtMaxNozz;
    }
    // ChartNozzles follows the opened number of nozzles; NoOfNozzles does not.
    CreateResultTables(app);
    app.flags.NeedBaseline = true;
    Calculate(app);
    app.flags.blnSaved = true;
    return true;
}

bool NewSite(ApplicationState& app, const std::string& fileName, UserInteraction& ui) {
    std::error_code error;
    if (std::filesystem::exists(fileName, error)) {
        ui.showMessageBox(fileExistsMessage, MessageIcon::None);
        return false;
    }
    InitialiseMainWindow(app, ui);
    app.strSiteFile = fileName;
    app.caption = fileName;
    return true;
}

void SaveSite(ApplicationState& app) {
    WriteSiteFile(app, app.strSiteFile);
    app.flags.blnSaved = true;
}

} // namespace vesk
