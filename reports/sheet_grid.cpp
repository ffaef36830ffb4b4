// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// A grid of text cells as the report pages and sheets hold it: sizes in twips, alignments, merged rows.
#include "reports/sheet_grid.h"

namespace vesk {

SheetGrid::SheetGrid(long rows, long columns) {
    if (rows < 0 || columns < 0) {
        fail(failure::invalidProperty);
    }
    const auto rowCount = static_cast<std::size_t>(rows);
    const auto columnCount = static_cast<std::size_t>(columns);
    m_cells.assign(rowCount, std::vector<std::string>(columnCount));
    m_columnWidths.assign(columnCount, 0);
    m_rowHeights.assign(rowCount, gridRowHeightTwips);
    m_alignments.assign(columnCount, CellAlignment::LeftCenter);
    m_mergeRows.assign(rowCount, false);
}

const std::string& SheetGrid::TextMatrix(long row, long column) const {
    return at(at(m_cells, row), column);
}

void SheetGrid::SetTextMatrix(long row, long column, std::string text) {
    at(at(m_cells, row), column) = std::move(text);
}

Long SheetGrid::ColWidth(long column) const {
    return at(m_columnWidths, column);
}

void SheetGrid::SetColWidth(long column, Long twips) {
    at(m_columnWidths, column) = twips;
}

Long SheetGrid::RowHeight(long row) const {
    return at(m_rowHeights, row);
}

void SheetGrid::SetRowHeight(long row, Long twips) {
    at(m_rowHeights, row) = twips;
}

CellAlignment SheetGrid::ColAlignment(long column) const {
    return at(m_alignments, column);
}

void SheetGrid::SetColAlignment(long column, CellAlignment alignment) {
    at(m_alignments, column) = alignment;
}

bool SheetGrid::MergeRow(long row) const {
    if (row < 0 || row >= Rows()) {
        fail(failure::subscript);
    }
    return m_mergeRows[static_cast<std::size_t>(row)];
}

void SheetGrid::SetMergeRow(long row, bool merge) {
    if (row < 0 || row >= Rows()) {
        fail(failure::subscript);
    }
    m_mergeRows[static_cast<std::size_t>(row)] = merge;
}

Long SheetGrid::WidthTwips() const {
    Long width = 0;
    for (const Long column : m_columnWidths) {
        width += column;
    }
    return width;
}

Long SheetGrid::HeightTwips() const {
    Long height = 0;
    for (const Long row : m_rowHeights) {
        height += row;
    }
    return height;
}

std::vector<MergedSpan> RowSpans(const SheetGrid& grid, long row) {
    std::vector<MergedSpan> spans;
    for (long column = 0; column < grid.Cols(); ++column) {
        if (grid.MergeRow(row) && !spans.empty() &&
            grid.TextMatrix(row, spans.back().last) == grid.TextMatrix(row, column)) {
            spans.back().last = column;
        } else {
            spans.push_back({column, column});
        }
    }
    return spans;
}

std::string CellToolTip(const std::string& cellText) {
    return cellText == " " ? std::string() : cellText;
}

Long ColumnWidthTwips(Double width) {
    return toLong(width);
}

} // namespace vesk
