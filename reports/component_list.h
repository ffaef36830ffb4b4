// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The component list page: the inputs of the Current and the Baseline design side by side.
#pragma once

#include "reports/sheet_grid.h"
#include "workbench/result_grid.h"

namespace vesk {

inline constexpr const char* componentListTitle = "Current And Baseline Components List";

// The grid design width in twips of flxComponentPrint.
inline constexpr Double componentListGridWidthTwips = 11000;

inline constexpr long componentListRows = 39;
inline constexpr long componentListColumns = 6;

// frmComponentList.flxComponentPrint: 39 rows by 6 columns, row 0 and column 0
// hidden; the title in rows 1 and 2 merged, the heads "Equipment Type",
// "Current", "No.", "Baseline", "No." in row 3, and rows 1 to 35 of the input
// grids in rows 4 to 38: the name and the Current columns from flxCurrent,
// the Baseline columns from flxBaseLine. The texts are copied as they stand;
// a greyed row's colour is not carried over. The grid's font is bold while
// rows 1 to 3 are written and plain again afterwards.
SheetGrid LoadComponentList(const ResultGrid& flxCurrent, const ResultGrid& flxBaseLine);

} // namespace vesk
