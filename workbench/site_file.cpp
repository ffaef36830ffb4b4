// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// What Save writes from the grid and what Open sets on the panels: the site file and the main window.
#include "workbench/site_file.h"

#include "workbench/calculate.h"
#include "workbench/panel_events.h"
#include "workbench/panel_fields.h"
#include "workbench/startup.h"

#include "catalogue/component_lists.h"
#include "site/boolean_text.h"

#include <filesystem>
#include <string_view>

namespace vesk {

namespace {

constexpr const char* fileExistsMessage = "File already exists. Please enter a new filename";

// Both grids take a text in the same cell.
void setBothGrids(ApplicationState& app, GridPlace cell, const std::string& text) {
    app.flxCurrent.SetTextMatrix(cell.row, cell.column, text);
    app.flxBaseLine.SetTextMatrix(cell.row, cell.column, text);
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

// A line of the four areas, from its cell of the grid; the section keys and
// the frequency are written apart.
std::string areaLineForFile(const ResultGrid& grid, int line, bool metric) {
    if (const PanelList* list = ListOnLine(line)) {
        return grid.TextMatrix(list->cell.row, list->cell.column);
    }
    if (const PanelField* field = FieldOnLine(line)) {
        const std::string& cell = grid.TextMatrix(field->cell.row, field->cell.column);
        return field->isLength() ? lengthForFile(cell, field->unit, metric) : cell;
    }
    if (line == valveLine) {
        return grid.TextMatrix(valveRow, 1);
    }
    if (line == modeLine) {
        return std::string(BooleanText(grid.TextMatrix(modeRow, 1) == basicText));
    }
    return {};
}

// Line 40: the letter of the list the grid names; a text that names no list
// gives an empty line, which a read then ignores.
std::string componentListLetter(const std::string& gridText) {
    for (const ComponentListName& list : componentListNames) {
        if (gridText == list.name) {
            return std::string(list.letter);
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

// The fuel, into the System Settings dialog (loaded first if it is not
// loaded) and both grids. clsConfigureData keeps the fuel of the run.
void readFuel(ApplicationState& app, const std::string& text) {
    FrmDataOptions& dialog = loadedFrmData(app);
    const bool gas = text == trueText;
    dialog.optGas = gas;
    dialog.optDiesel = !gas;
    setBothGrids(app, {fuelRow, 1}, std::string(gas ? gasText : dieselText));
}

// The component list. The list options are what the loaders read, so
// they are the active list code too. A letter other than A, I, C changes
// nothing.
void readComponentList(ApplicationState& app, const std::string& text) {
    for (const ComponentListName& list : componentListNames) {
        if (text == list.letter) {
            FrmDataOptions& dialog = loadedFrmData(app);
            for (const ComponentListName& other : componentListNames) {
                dialog.*ComponentListOption(other.code) = false;
            }
            dialog.*ComponentListOption(list.code) = true;
            setBothGrids(app, {componentListRow, 1}, std::string(list.name));
            return;
        }
    }
}

// The units. Units of clsConfigureData follows the file, but Data and
// ComponentList do not. Column 0 of the length rows takes captions of its own.
void readUnits(ApplicationState& app, const std::string& text) {
    FrmDataOptions& dialog = loadedFrmData(app);
    const bool us = text == trueText;
    app.config.Units = us;
    dialog.optUS = us;
    dialog.optMetric = !us;
    for (const PanelField* field : LengthFields()) {
        setBothGrids(app, {field->cell.row, 0}, us ? field->unit.gridUsCaption : field->unit.gridMetricCaption);
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
    setBothGrids(app, {frequencyRow, 1}, std::string(fiftyHz ? fiftyHzText : sixtyHzText));
    ClickFrequencyOption(app.panel, app.catalogues, app.config, fiftyHz);
}

// A length from the file into both grids and its field: read as a Single and,
// when the dialog says metric, multiplied into metres (centimetres) and
// rounded to 1 decimal, its label taking the metric caption. In US units the
// label is left as it is.
void readLength(ApplicationState& app, const PanelField& field, const std::string& text) {
    Single value = parseSingle(text);
    if (TouchFrmData(app.panel, app.config).optMetric) {
        value = toSingle(roundHalfEven(value * field.unit.metricPerUs, 1));
        app.panel.captions.*field.unit.label = field.unit.metricCaption;
    }
    const std::string valueText = singleText(value);
    setBothGrids(app, field.cell, valueText);
    TextOf(app.panel, field) = valueText;
}

// The valve text; the boxes follow only the texts with blanks.
void readValve(ApplicationState& app, const std::string& text) {
    setBothGrids(app, {valveRow, 1}, text);
    const std::string& gridText = app.flxCurrent.TextMatrix(valveRow, 1);
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
    setBothGrids(app, {modeRow, 1}, std::string(basic ? basicText : advanceText));
    app.panel.optBasic = basic;
    app.panel.optAdvance = !basic;
}

// One line of the four areas. The section keys hold nothing to read, and the
// frequency was read ahead of the lists.
void readAreaLine(ApplicationState& app, int line, const std::string& text) {
    if (const PanelList* list = ListOnLine(line)) {
        setBothGrids(app, list->cell, text);
        // A list takes only its own entries: a name missing from it fails.
        (app.panel.*list->list).SetText(app.flxCurrent.TextMatrix(list->cell.row, list->cell.column));
    } else if (const PanelField* field = FieldOnLine(line)) {
        if (field->isLength()) {
            readLength(app, *field, text);
        } else { // the number of nozzles and the fitting counts, as they stand
            setBothGrids(app, field->cell, text);
            TextOf(app.panel, *field) = text;
        }
    } else if (line == valveLine) {
        readValve(app, text);
    } else if (line == modeLine) {
        readMode(app, text);
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
    for (int line = 1; line <= lastAreaLine; ++line) {
        readAreaLine(app, line, lines[static_cast<std::size_t>(line)]);
    }
    // The site picture follows cmbNoOfBranches in the window; the core loads none.
    readProperties(app, lines);
}

} // namespace

SiteFileLines ComposeSiteFileLines(const ResultGrid& grid, const FrmDataOptions& frmData,
                                   const clsSiteProperties& properties) {
    SiteFileLines lines;
    for (const SectionKey& key : sectionKeys) {
        lines[static_cast<std::size_t>(key.line)] = key.key;
    }
    for (int line = 1; line <= lastAreaLine; ++line) {
        if (!IsSectionKeyLine(line)) {
            lines[static_cast<std::size_t>(line)] = areaLineForFile(grid, line, frmData.optMetric);
        }
    }
    lines[frequencyLine] = BooleanText(grid.TextMatrix(frequencyRow, 1) == fiftyHzText);
    lines[fuelLine] = BooleanText(grid.TextMatrix(fuelRow, 1) == gasText);
    lines[unitsLine] = BooleanText(frmData.optUS);
    lines[componentListLine] = componentListLetter(grid.TextMatrix(componentListRow, 1));
    for (std::size_t i = 0; i < propertyLines.size(); ++i) {
        lines[firstPropertyLine + i] = properties.*propertyLines[i].property;
    }
    return lines;
}

SiteFileLines ComposeSiteFile(ApplicationState& app) {
    const FrmDataOptions& frmData = TouchFrmData(app.panel, app.config);
    return ComposeSiteFileLines(app.flxCurrent, frmData, app.siteProperties);
}

void WriteSiteFile(ApplicationState& app, const std::string& fileName) {
    // The whole text first: a failure while composing leaves the file as it was.
    WriteSiteFileLines(fileName, ComposeSiteFile(app));
}

bool ReadSiteFile(ApplicationState& app, const std::string& fileName) {
    try {
        const SiteFileLines lines = ReadSiteFileLines(fileName);
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
    // The number of branches read loads the site picture; the menus are
    // enabled and the focus goes to the number of nozzles.
    app.window.sitePictureDue = true;
    app.window.mnuOptionsEnabled = true;
    app.window.mnuSaveEnabled = true;
    app.window.mnuSaveAsEnabled = true;
    GiveFocus(app.window, "txtNoOfNozzle");
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
