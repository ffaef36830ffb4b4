// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The component list page: the inputs of the Current and the Baseline design side by side.
#include "reports/component_list.h"

#include "reports/compare_table.h"

#include <array>

namespace vesk {

namespace {

// Where a list row's five cells come from: the grid and its column.
struct ListSource {
    bool fromCurrent;
    long column;
};

constexpr std::array<ListSource, 5> listSources{{{true, 0}, {true, 1}, {true, 2}, {false, 1}, {false, 2}}};

constexpr std::array<const char*, 5> listHeads{"Equipment Type", "Current", "No.", "Baseline", "No."};

void formatComponentList(SheetGrid& grid) {
    const Double w = componentListGridWidthTwips;
    grid.SetColWidth(0, hiddenSizeTwips);
    grid.SetRowHeight(0, hiddenSizeTwips);
    grid.SetColWidth(1, ColumnWidthTwips(w / 5 - 400));
    grid.SetColWidth(2, ColumnWidthTwips(w / 5 + 800));
    grid.SetColWidth(3, ColumnWidthTwips(w / 5 - 1055));
    grid.SetColWidth(4, ColumnWidthTwips(w / 5 + 800));
    grid.SetColWidth(5, ColumnWidthTwips(w / 5 - 1055));
    grid.SetColAlignment(1, CellAlignment::LeftCenter);
    for (long column = 2; column <= 5; ++column) {
        grid.SetColAlignment(column, CellAlignment::CenterCenter);
    }
    grid.SetMergeRow(1, true);
    grid.SetMergeRow(2, true);
}

} // namespace

SheetGrid LoadComponentList(const ResultGrid& flxCurrent, const ResultGrid& flxBaseLine) {
    SheetGrid grid(componentListRows, componentListColumns);
    formatComponentList(grid);

    grid.fontBold = true;
    for (long column = 1; column <= 5; ++column) {
        grid.SetTextMatrix(1, column, FormatString(" ", 80) + componentListTitle);
        grid.SetTextMatrix(2, column, FormatString(" ", 35));
        grid.SetTextMatrix(3, column, listHeads[static_cast<std::size_t>(column - 1)]);
    }
    grid.fontBold = false;

    for (Byte r = 1; r <= 35; r = static_cast<Byte>(r + 1)) {
        for (long column = 1; column <= 5; ++column) {
            const ListSource& source = listSources[static_cast<std::size_t>(column - 1)];
            const ResultGrid& from = source.fromCurrent ? flxCurrent : flxBaseLine;
            grid.SetTextMatrix(r + 3, column, from.TextMatrix(r, source.column));
        }
    }
    return grid;
}

} // namespace vesk
