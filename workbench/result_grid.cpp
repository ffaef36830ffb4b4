// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The grids flxCurrent and flxBaseLine as data: the inputs behind each line.
#include "workbench/result_grid.h"

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

// Column 0 of each row: the caption in US units and, where it differs, in
// metric units, as flxCurrent has them.
struct RowCaption {
    const char* us;
    const char* metric; // nullptr: the same as in US units
};

const std::array<RowCaption, gridRowCount> currentCaptions{{
    {"Equipment Type", nullptr},       {"Dispenser ", nullptr},
    {"Breakaway ", nullptr},           {"HoseSize", nullptr},
    {"HoseLen(ft)", "HoseLength(m)"},  {"Nozzle ", nullptr},
    {"DispOthers ", nullptr},          {"NoOfNozzles ", nullptr},
    {"PipingType ", nullptr},          {"BranchSize  ", nullptr},
    {"BranchLen(ft)", "BranchLen(m)"}, {"Branch45Elbow  ", nullptr},
    {"Branch90Elbow  ", nullptr},      {"BranchThruT  ", nullptr},
    {"BranchSideT  ", nullptr},        {"TrunkSize  ", nullptr},
    {"TrunkLen(ft)", "TrunkLen(m)"},   {"Trunk45Elbow  ", nullptr},
    {"Trunk90Elbow  ", nullptr},       {"TrunkThruT  ", nullptr},
    {"TrunkSideT  ", nullptr},         {"ValveType ", nullptr},
    {"AdvOrBasic ", nullptr},          {"PipeSize", nullptr},
    {"PipeLen(ft)", "PipeLen(m)"},     {"Pump ", nullptr},
    {"PumpQuantity ", nullptr},        {"50Or60HzPumps ", nullptr},
    {"LeakDetector ", nullptr},        {"PumpOthers ", nullptr},
    {"TankDia(inch)", "TankDia(cm)"},  {"BuryDepth(ft)", "BuryDepth(m)"},
    {"Rise(ft)", "Rise(m)"},           {"NoOfBranches ", nullptr},
    {"GasOrDiesel", nullptr},          {"ComponentList", nullptr},
}};

// Where flxBaseLine's captions differ from flxCurrent's: trailing blanks, and
// the metric caption of the hose length.
struct CaptionDifference {
    long row;
    RowCaption caption;
};

const std::array<CaptionDifference, 8> baselineCaptionDifferences{{
    {3, {"HoseSize ", nullptr}},
    {4, {"HoseLen(ft)", "HoseLen(m)"}},
    {7, {"NoOfNozzles", nullptr}},
    {17, {"Trunk45Elbow ", nullptr}},
    {18, {"Trunk90Elbow ", nullptr}},
    {19, {"TrunkThruT ", nullptr}},
    {20, {"TrunkSideT ", nullptr}},
    {23, {"PipeSize ", nullptr}},
}};

// The fuel text of row 34 differs too.
const char* gasText(GridSide side) {
    return side == GridSide::Current ? "Gas" : "Gas ";
}

const RowCaption& captionOf(GridSide side, long row) {
    if (side == GridSide::Baseline) {
        for (const CaptionDifference& difference : baselineCaptionDifferences) {
            if (difference.row == row) {
                return difference.caption;
            }
        }
    }
    return at(currentCaptions, row);
}

constexpr std::array<long, 7> unitRows{4, 10, 16, 24, 30, 31, 32};

// Columns 1 and 2 of a row; nullopt leaves the cell as it was.
struct RowValues {
    std::optional<std::string> unitSelected;
    std::optional<std::string> number;
};

constexpr const char* blank = " ";

std::string listText(const ComboList& list) {
    return list.Text();
}

std::optional<std::string> componentListName(const FrmDataOptions& dialog) {
    if (dialog.optAmerican) {
        return "American";
    }
    if (dialog.optInternational) {
        return "International";
    }
    if (dialog.optCommercial) {
        return "Commercial";
    }
    return std::nullopt; // left unwritten
}

RowValues rowValues(long row, GridSide side, const PanelState& panel, const clsConfigureData& config) {
    const FrmDataOptions dialog = panel.frmDataLoaded ? panel.frmData : LoadFrmDataOptions(config);
    switch (row) {
    case 0:
        return {"           Unit Selected ", "No."};
    case 1:
        return {listText(panel.cmbDispenser), "1"};
    case 2:
        return {listText(panel.cmbBreakAway), "1"};
    case 3:
        return {listText(panel.cmbHoseSize), "1"};
    case 4:
        return {panel.txtHoseLen, "1"};
    case 5:
        return {listText(panel.cmbNozzle), "1"};
    case 6:
        return {listText(panel.cmbDispOthers), "1"};
    case 7:
        return {blank, panel.txtNoOfNozzle};
    case 8:
        return {listText(panel.cmbPiping), blank};
    case 9:
        return {listText(panel.cmbBranch), blank};
    case 10:
        return {panel.txtBranchLength, blank};
    case 11:
    case 12:
    case 13:
    case 14:
        return {blank, panel.txtBranchFitting[static_cast<std::size_t>(row - 11)]};
    case 15:
        return {listText(panel.cmbTrunk), blank};
    case 16:
        return {panel.txtTrunkLength, blank};
    case 17:
    case 18:
    case 19:
    case 20:
        return {blank, panel.txtTrunkFitting[static_cast<std::size_t>(row - 17)]};
    case 21: {
        const std::string valves = ValveText(panel.chkBall, panel.chkSwing);
        return {valves.empty() ? std::nullopt : std::optional<std::string>(valves), blank};
    }
    case 22:
        return {panel.optBasic ? "Basic" : "Advance", blank};
    case 23:
        return {listText(panel.cmbPipeSize), blank};
    case 24:
        return {panel.txtPipeLen, blank};
    case 25:
        return {listText(panel.cmbPumps), blank};
    case 26:
        return {blank, listText(panel.cmbQuantity)};
    case 27:
        return {panel.opt50Hz ? "50Hz Pump " : "60Hz Pump ", blank};
    case 28:
        return {listText(panel.cmbLeak), "1"};
    case 29:
        return {listText(panel.cmbPumpOthers), "1"};
    case 30:
        return {blank, panel.txtTankDiameter};
    case 31:
        return {blank, panel.txtBuryDepth};
    case 32:
        return {blank, panel.txtRise};
    case 33:
        return {blank, listText(panel.cmbNoOfBranches)};
    case 34:
        return {config.Data ? gasText(side) : "Diesel", blank};
    case 35:
        return {componentListName(dialog), blank};
    default:
        fail(failure::subscript);
    }
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
    const RowCaption& caption = captionOf(side, row);
    return (usUnits || caption.metric == nullptr) ? caption.us : caption.metric;
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
    for (long row : unitRows) {
        grid.SetTextMatrix(row, 0, UnitCaption(side, row, config.Units));
    }
    for (long row = 0; row < gridRowCount; ++row) {
        grid.SetTextMatrix(row, 0, UnitCaption(side, row, config.Units));
        RowValues values = rowValues(row, side, panel, config);
        if (values.unitSelected) {
            grid.SetTextMatrix(row, 1, std::move(*values.unitSelected));
        }
        if (values.number) {
            grid.SetTextMatrix(row, 2, std::move(*values.number));
        }
        if (row == 22) {
            greyRowsOfTheOtherMode(grid, panel.optBasic);
        }
    }
}

} // namespace vesk
