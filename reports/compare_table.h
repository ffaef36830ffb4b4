// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The compare table: the Current flow beside the Baseline flow for each number of nozzles.
#pragma once

#include "reports/sheet_grid.h"

#include "engine/flow_sweep.h"

#include <array>
#include <string>
#include <vector>

namespace vesk {

// FormatString: appends blanks to `text` until it has `length` characters,
// changing the argument, and returns it. A text that is long enough stays.
std::string& FormatString(std::string& text, Integer length);
// The same for a text that is not kept.
std::string FormatString(std::string&& text, Integer length);

inline constexpr const char* compareTitle = "FlowRate Improvement Between Baseline Vs Current";

// The five heads of the table, by frmData.optUS: "NoOfNozzles",
// "CurrentFlow(GPM)", "BaselineFlow(GPM)", "ChangeInFlow(GPM)",
// "%ChangeInFlow(GPM)", or the same with LPM.
std::array<std::string, 5> CompareHeads(bool optUS);

// The flows of a table in a unit: GpmPerNozzle when `us`, else LpmPerNozzle.
const std::vector<Single>& FlowsInUnit(const FlowTable& table, bool us);

// The four texts of the figures of one number of nozzles.
struct CompareFigures {
    std::string current;
    std::string baseline;
    std::string change;
    std::string percent;
};

// The figures of nozzle count k from the flows of the two tables in one unit:
// each flow's text rounded to 1 decimal, half to even, and written shortest
// ("12", "12.5"); the change Current less Baseline, kept as a Single, rounded
// to 1 decimal; the percentage of the change on the Current flow, or
// `zeroCurrentPercent` when the Current flow is exactly 0 (the one division
// that could fail). A k outside either table fails with "Subscript out of range".
CompareFigures CompareFiguresOf(const std::vector<Single>& current, const std::vector<Single>& baseline, long k,
                                const char* zeroCurrentPercent = "0");

// frmCompare's grid design width in twips; the columns follow from it.
inline constexpr Double compareGridWidthTwips = 9600;

// frmCompare.flxCompare: NoOfNozzles + 3 rows of 5 centred columns, the title
// in rows 0 and 1 merged, the heads in row 2, and for each k from 1 to
// NoOfNozzles the number and its figures in row k + 2, in the unit of
// frmData.optUS. Reads the tables only as far as NoOfNozzles: a number of
// nozzles beyond ChartNozzles fails with "Subscript out of range".
SheetGrid LoadCompareGrid(const FlowTable& current, const FlowTable& baseline, Integer noOfNozzles, bool optUS);

// frmPrintCompare's grid design width in twips.
inline constexpr Double printCompareGridWidthTwips = 9000;
// The nozzles the two printed grids hold: 15 to 27 and 28 to 40.
inline constexpr long firstPrintCompareNozzle = 15;
inline constexpr long lastPrintCompareNozzle = 40;

// frmPrintCompare: the same figures sideways for nozzles 15 to 40, one
// column per nozzle; a nozzle beyond the Current table's upper index shows
// "0" in its four figure rows, still under its number.
struct PrintCompareGrids {
    SheetGrid flxCompare{8, 15};
    SheetGrid flxNextCompare{6, 15};
};
PrintCompareGrids LoadPrintCompare(const FlowTable& current, const FlowTable& baseline, bool optUS);

} // namespace vesk
