// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The compare table: the Current flow beside the Baseline flow for each number of nozzles.
#include "reports/compare_table.h"

namespace vesk {

namespace {

// A Single's text read back as a Double, rounded to 1 decimal half to even,
// and written in its shortest form. No format pattern is used.
std::string roundedFlowText(Single value) {
    return doubleText(roundHalfEven(parseNumber(singleText(value)), 1));
}

void setHeads(SheetGrid& grid, long row, long column, bool optUS) {
    const std::array<std::string, 5> heads = CompareHeads(optUS);
    for (std::size_t i = 0; i < heads.size(); ++i) {
        grid.SetTextMatrix(row, column + static_cast<long>(i), heads[i]);
    }
}

// The figures of nozzle k down a column of a printed grid, under its number
// in `numberRow`.
void setPrintedColumn(SheetGrid& grid, long numberRow, long column, long k, const std::vector<Single>& current,
                      const std::vector<Single>& baseline) {
    grid.SetTextMatrix(numberRow, column, integerText(k));
    const long upper = static_cast<long>(current.size()) - 1;
    if (k > upper) {
        for (long row = numberRow + 1; row <= numberRow + 4; ++row) {
            grid.SetTextMatrix(row, column, "0");
        }
        return;
    }
    CompareFigures figures = CompareFiguresOf(current, baseline, k);
    grid.SetTextMatrix(numberRow + 1, column, std::move(figures.current));
    grid.SetTextMatrix(numberRow + 2, column, std::move(figures.baseline));
    grid.SetTextMatrix(numberRow + 3, column, std::move(figures.change));
    grid.SetTextMatrix(numberRow + 4, column, std::move(figures.percent));
}

// The sizes and alignments both printed grids share: column 0 and row 0
// hidden, column 1 the heads, left, columns 2 to 14 one nozzle each, centred.
void formatPrintedGrid(SheetGrid& grid) {
    const Double w = printCompareGridWidthTwips;
    grid.SetColWidth(0, hiddenSizeTwips);
    grid.SetRowHeight(0, hiddenSizeTwips);
    grid.SetColWidth(1, ColumnWidthTwips(w / 15 + 2000));
    grid.SetColAlignment(1, CellAlignment::LeftCenter);
    for (long column = 2; column <= 14; ++column) {
        grid.SetColWidth(column, ColumnWidthTwips(w / 15));
        grid.SetColAlignment(column, CellAlignment::CenterCenter);
    }
}

} // namespace

std::string& FormatString(std::string& text, Integer length) {
    if (static_cast<long>(text.size()) < length) {
        text.append(static_cast<std::size_t>(length) - text.size(), ' ');
    }
    return text;
}

std::string FormatString(std::string&& text, Integer length) {
    return FormatString(text, length);
}

std::array<std::string, 5> CompareHeads(bool optUS) {
    const std::string unit = optUS ? "(GPM)" : "(LPM)";
    return {"NoOfNozzles", "CurrentFlow" + unit, "BaselineFlow" + unit, "ChangeInFlow" + unit, "%ChangeInFlow" + unit};
}

const std::vector<Single>& FlowsInUnit(const FlowTable& table, bool us) {
    return us ? table.GpmPerNozzle : table.LpmPerNozzle;
}

CompareFigures CompareFiguresOf(const std::vector<Single>& current, const std::vector<Single>& baseline, long k,
                                const char* zeroCurrentPercent) {
    const Single cur = at(current, k);
    const Single base = at(baseline, k);
    CompareFigures figures;
    figures.current = roundedFlowText(cur);
    figures.baseline = roundedFlowText(base);
    // Current less Baseline: a design that improved on the Baseline shows a
    // positive change.
    const Single change = toSingle(static_cast<Double>(cur) - static_cast<Double>(base));
    figures.change = singleText(toSingle(roundHalfEven(change, 1)));
    if (cur == 0) {
        figures.percent = zeroCurrentPercent;
    } else {
        // On the Current flow, so a Baseline of 0 gives 100 and needs no guard.
        const Single percent = toSingle(divide(change, cur) * 100);
        figures.percent = roundedFlowText(percent);
    }
    return figures;
}

SheetGrid LoadCompareGrid(const FlowTable& current, const FlowTable& baseline, Integer noOfNozzles, bool optUS) {
    const long c = noOfNozzles;
    SheetGrid grid(c + 3, 5);
    const Double w = compareGridWidthTwips;
    grid.SetColWidth(0, ColumnWidthTwips(w / 5 - 400));
    for (long column = 0; column < 5; ++column) {
        if (column > 0) {
            grid.SetColWidth(column, ColumnWidthTwips(w / 5));
        }
        grid.SetColAlignment(column, CellAlignment::CenterCenter);
    }
    grid.SetMergeRow(0, true);
    grid.SetMergeRow(1, true);
    for (long column = 0; column < 5; ++column) {
        grid.SetTextMatrix(0, column, FormatString(" ", 30) + compareTitle);
        grid.SetTextMatrix(1, column, FormatString(" ", 35));
    }
    setHeads(grid, 2, 0, optUS);
    const std::vector<Single>& cur = FlowsInUnit(current, optUS);
    const std::vector<Single>& base = FlowsInUnit(baseline, optUS);
    for (long k = 1; k <= c; ++k) {
        CompareFigures figures = CompareFiguresOf(cur, base, k);
        grid.SetTextMatrix(k + 2, 0, integerText(k));
        grid.SetTextMatrix(k + 2, 1, std::move(figures.current));
        grid.SetTextMatrix(k + 2, 2, std::move(figures.baseline));
        grid.SetTextMatrix(k + 2, 3, std::move(figures.change));
        grid.SetTextMatrix(k + 2, 4, std::move(figures.percent));
    }
    return grid;
}

PrintCompareGrids LoadPrintCompare(const FlowTable& current, const FlowTable& baseline, bool optUS) {
    PrintCompareGrids grids;
    formatPrintedGrid(grids.flxCompare);
    formatPrintedGrid(grids.flxNextCompare);
    grids.flxCompare.SetMergeRow(1, true);
    grids.flxCompare.SetMergeRow(2, true);
    for (long column = 1; column <= 14; ++column) {
        grids.flxCompare.SetTextMatrix(1, column, FormatString(" ", 80) + compareTitle);
        grids.flxCompare.SetTextMatrix(2, column, FormatString(" ", 35));
    }
    const std::array<std::string, 5> heads = CompareHeads(optUS);
    for (long i = 0; i < 5; ++i) {
        grids.flxCompare.SetTextMatrix(3 + i, 1, heads[static_cast<std::size_t>(i)]);
        grids.flxNextCompare.SetTextMatrix(1 + i, 1, heads[static_cast<std::size_t>(i)]);
    }
    const std::vector<Single>& cur = FlowsInUnit(current, optUS);
    const std::vector<Single>& base = FlowsInUnit(baseline, optUS);
    for (long k = firstPrintCompareNozzle; k <= 27; ++k) {
        setPrintedColumn(grids.flxCompare, 3, k - 13, k, cur, base);
    }
    for (long k = 28; k <= lastPrintCompareNozzle; ++k) {
        setPrintedColumn(grids.flxNextCompare, 1, k - 26, k, cur, base);
    }
    return grids;
}

} // namespace vesk
