// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The grids flxCurrent and flxBaseLine as data: the inputs behind each line.
#include "workbench/result_grid.h"

#include "workbench/panel_fields.h"

#include "catalogue/component_lists.h"

#include <optional>

namespace vesk {

const GridCell& ResultGrid::Cell(long row, long column) const {
    return at(at(m_cells, row), column);
}

GridCell& ResultGrid::Cell(long row, long column) {
    return at(at(m_cells, row), column);
}

const std::string& ResultGrid::TextMatrix(long row, long column) const {
    return Cell(row, column).text;
}

void ResultGrid::SetTextMatrix(long row, long column, std::string text) {
    Cell(row, column).text = std::move(text);
}

void FormatGrid(ResultGrid& grid) {
    for (long column = 0; column < gridColumnCount; ++column) {
        grid.Cell(0, column).backColour = gridGrey;
    }
}

std::array<Long, gridColumnCount> GridColumnWidths(Double gridWidth) {
    return {toLong(gridWidth / 3 - 200), toLong(gridWidth / 3 + 900), toLong(gridWidth / 3 + 300)};
}

namespace {

// Each row: column 0 in US units and, where it differs, in metric units, as
// flxCurrent has them; and column 2 where no input of the panels stands there.
struct GridRow {
    const char* us;
    const char* metric; // nullptr: the same as in US units
    const char* count;  // "1" for a component counted once, " " for none
};

const std::array<GridRow, gridRowCount> gridRows{{
    {"Equipment Type", nullptr, "No."},     {"Dispenser ", nullptr, "1"},
    {"Breakaway ", nullptr, "1"},           {"HoseSize", nullptr, "1"},
    {"HoseLen(ft)", "HoseLength(m)", "1"},  {"Nozzle ", nullptr, "1"},
    {"DispOthers ", nullptr, "1"},          {"NoOfNozzles ", nullptr, " "},
    {"PipingType ", nullptr, " "},          {"BranchSize  ", nullptr, " "},
    {"BranchLen(ft)", "BranchLen(m)", " "}, {"Branch45Elbow  ", nullptr, " "},
    {"Branch90Elbow  ", nullptr, " "},      {"BranchThruT  ", nullptr, " "},
    {"BranchSideT  ", nullptr, " "},        {"TrunkSize  ", nullptr, " "},
    {"TrunkLen(ft)", "TrunkLen(m)", " "},   {"Trunk45Elbow  ", nullptr, " "},
    {"Trunk90Elbow  ", nullptr, " "},       {"TrunkThruT  ", nullptr, " "},
    {"TrunkSideT  ", nullptr, " "},         {"ValveType ", nullptr, " "},
    {"AdvOrBasic ", nullptr, " "},          {"PipeSize", nullptr, " "},
    {"PipeLen(ft)", "PipeLen(m)", " "},     {"Pump ", nullptr, " "},
    {"PumpQuantity ", nullptr, " "},        {"50Or60HzPumps ", nullptr, " "},
    {"LeakDetector ", nullptr, "1"},        {"PumpOthers ", nullptr, "1"},
    {"TankDia(inch)", "TankDia(cm)", " "},  {"BuryDepth(ft)", "BuryDepth(m)", " "},
    {"Rise(ft)", "Rise(m)", " "},           {"NoOfBranches ", nullptr, " "},
    {"GasOrDiesel", nullptr, " "},          {"ComponentList", nullptr, " "},
}};

// Where flxBaseLine's captions differ from flxCurrent's: trailing blanks, and
// the metric caption of the hose length.
struct CaptionDifference {
    long row;
    const char* us;
    const char* metric;
};

const std::array<CaptionDifference, 8> baselineCaptionDifferences{{
    {3, "HoseSize ", nullptr},
    {4, "HoseLen(ft)", "HoseLen(m)"},
    {7, "NoOfNozzles", nullptr},
    {17, "Trunk45Elbow ", nullptr},
    {18, "Trunk90Elbow ", nullptr},
    {19, "TrunkThruT ", nullptr},
    {20, "TrunkSideT ", nullptr},
    {23, "PipeSize ", nullptr},
}};

// The fuel text of row 34 differs too.
std::string_view gasTextOf(GridSide side) {
    return side == GridSide::Current ? gasText : "Gas ";
}

constexpr const char* blank = " ";

std::optional<std::string> componentListName(const FrmDataOptions& dialog) {
    std::optional<std::string> name; // left unwritten when no option is on
    for (const ComponentListName& list : componentListNames) {
        if (dialog.*ComponentListOption(list.code)) {
            name = std::string(list.name);
        }
    }
    return name;
}

// Column 1 of the rows that no input of the panels fills; nullopt leaves the
// cell as it was.
std::optional<std::string> choiceText(long row, GridSide side, const PanelState& panel,
                                      const clsConfigureData& config) {
    switch (row) {
    case 0:
        return "           Unit Selected ";
    case valveRow: {
        const std::string valves = ValveText(panel.chkBall, panel.chkSwing);
        return valves.empty() ? std::nullopt : std::optional<std::string>(valves);
    }
    case modeRow:
        return std::string(panel.optBasic ? basicText : advanceText);
    case frequencyRow:
        return std::string(panel.opt50Hz ? fiftyHzText : sixtyHzText);
    case fuelRow:
        return std::string(config.Data ? gasTextOf(side) : dieselText);
    case componentListRow:
        return componentListName(panel.frmDataLoaded ? panel.frmData : LoadFrmDataOptions(config));
    default:
        return blank;
    }
}

// A cell of columns 1 and 2: the input of the panels that stands there, or
// the row's own text.
std::optional<std::string> cellText(long row, long column, GridSide side, const PanelState& panel,
                                    const clsConfigureData& config) {
    const GridPlace cell{row, column};
    if (const PanelList* list = ListAt(cell)) {
        return (panel.*list->list).Text();
    }
    if (const PanelField* field = FieldAt(cell)) {
        return TextOf(panel, *field);
    }
    return column == 2 ? std::optional<std::string>(at(gridRows, row).count) : choiceText(row, side, panel, config);
}

void setForeColourOfRows(ResultGrid& grid, long firstRow, long lastRow, std::uint32_t colour) {
    for (long row = firstRow; row <= lastRow; ++row) {
        for (long column = 0; column < gridColumnCount; ++column) {
            grid.Cell(row, column).foreColour = colour;
        }
    }
}

// The rows of the piping mode not chosen are greyed, those of the chosen one
// return to the default colour.
void greyRowsOfTheOtherMode(ResultGrid& grid, bool basic) {
    setForeColourOfRows(grid, 9, 21, basic ? gridGrey : gridDefaultForeColour);
    setForeColourOfRows(grid, 23, 24, basic ? gridDefaultForeColour : gridGrey);
}

} // namespace

std::string UnitCaption(GridSide side, long row, bool usUnits) {
    const char* us = at(gridRows, row).us;
    const char* metric = at(gridRows, row).metric;
    if (side == GridSide::Baseline) {
        for (const CaptionDifference& difference : baselineCaptionDifferences) {
            if (difference.row == row) {
                us = difference.us;
                metric = difference.metric;
            }
        }
    }
    return (usUnits || metric == nullptr) ? us : metric;
}

std::string ValveText(Integer chkBall, Integer chkSwing) {
    if (chkBall == 1 && chkSwing == 1) {
        return std::string("BallValve and ") + "SwingCheck";
    }
    if (chkSwing == 1 && chkBall == 0) {
        return "SwingCheck";
    }
    if (chkBall == 1 && chkSwing == 0) {
        return "BallValve";
    }
    if (chkBall == 0 && chkSwing == 0) {
        return "None";
    }
    return {};
}

void FillGrid(ResultGrid& grid, GridSide side, const PanelState& panel, const clsConfigureData& config) {
    // The captions that depend on the unit first: those of the lengths.
    for (const PanelField* field : LengthFields()) {
        grid.SetTextMatrix(field->cell.row, 0, UnitCaption(side, field->cell.row, config.Units));
    }
    for (long row = 0; row < gridRowCount; ++row) {
        grid.SetTextMatrix(row, 0, UnitCaption(side, row, config.Units));
        for (long column = 1; column < gridColumnCount; ++column) {
            if (std::optional<std::string> text = cellText(row, column, side, panel, config)) {
                grid.SetTextMatrix(row, column, std::move(*text));
            }
        }
        if (row == modeRow) {
            greyRowsOfTheOtherMode(grid, panel.optBasic);
        }
    }
}

} // namespace vesk
