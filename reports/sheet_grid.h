// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// A grid of text cells as the report pages and sheets hold it: sizes in twips, alignments, merged rows.
#pragma once

#include "engine/numeric.h"

#include <string>
#include <vector>

namespace vesk {

// The height of a grid row in twips, and the size that hides row 0 and
// column 0 of the grids made for paper.
inline constexpr Long gridRowHeightTwips = 240;
inline constexpr Long hiddenSizeTwips = 20;

// The two alignments the report grids use, by the grid's own numbers.
enum class CellAlignment { LeftCenter = 1, CenterCenter = 4 };

// A grid of rows by columns of text. Adjacent cells of equal text in a row
// whose mergeRow is set show as one cell (the grid's MergeCells 1).
class SheetGrid {
  public:
    SheetGrid(long rows, long columns);

    long Rows() const { return static_cast<long>(m_cells.size()); }
    long Cols() const { return static_cast<long>(m_columnWidths.size()); }

    // The text of a cell; a row or column outside the grid fails with
    // "Subscript out of range".
    const std::string& TextMatrix(long row, long column) const;
    void SetTextMatrix(long row, long column, std::string text);

    Long ColWidth(long column) const;
    void SetColWidth(long column, Long twips);
    Long RowHeight(long row) const;
    void SetRowHeight(long row, Long twips);
    CellAlignment ColAlignment(long column) const;
    void SetColAlignment(long column, CellAlignment alignment);
    bool MergeRow(long row) const;
    void SetMergeRow(long row, bool merge);

    // The bold flag of the grid's font: one flag for the whole grid.
    bool fontBold = false;

    // The size of the picture of the whole grid: the sum of its column widths
    // and of its row heights.
    Long WidthTwips() const;
    Long HeightTwips() const;

  private:
    std::vector<std::vector<std::string>> m_cells;
    std::vector<Long> m_columnWidths;
    std::vector<Long> m_rowHeights;
    std::vector<CellAlignment> m_alignments;
    std::vector<bool> m_mergeRows;
};

// A run of cells of one row that shows as one: columns first to last.
struct MergedSpan {
    long first = 0;
    long last = 0;
};

// The spans of a row: in a merged row, adjacent cells of equal text form one
// span; otherwise every cell is its own.
std::vector<MergedSpan> RowSpans(const SheetGrid& grid, long row);

// The tool tip of a grid cell when it becomes current: none for a cell that
// holds exactly one blank, else the cell's text.
std::string CellToolTip(const std::string& cellText);

// A width of a column from a grid width, rounded half to even to whole twips.
Long ColumnWidthTwips(Double width);

} // namespace vesk
