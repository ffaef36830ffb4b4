// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The grid of an editor's rate-loss table: cells typed into key by key, growing by itself, each cell checked as it is
// left.
#pragma once

#include "editors/head_views.h"

#include "messages/user_interaction.h"

#include <span>
#include <string_view>

namespace vesk {

// What a key press in the grid may do besides changing the cell.
struct GridKeyRules {
    bool refuseKeys = false;           // a standard record is viewed: every key is refused
    bool deleteKeyEmptiesCell = false; // the form has the branch for key code 127
};

// Which head the head column shows, and in which units, for the cell check.
struct HeadShown {
    bool metric = false; // optMetric of the System Settings dialog
    bool feet = false;
    bool psi = false;
    bool gas = false;
    bool diesel = false;
};

// One limit of the cell check: a value above it is refused with its text.
struct CellLimit {
    int column;
    enum class Units { Both, US, Metric } units;
    enum class Head { Any, Feet, PsiDiesel, PsiGas } head;
    Double limit;
    std::string_view message;
};

// The limits of the family's grids and of the pump's, in the order they are tried.
inline constexpr std::array<CellLimit, 7> familyCellLimits{{
    {0, CellLimit::Units::Both, CellLimit::Head::Any, 999.9, "Maximum value is 999.9"},
    {1, CellLimit::Units::US, CellLimit::Head::Feet, 999.1, "Maximum value is 999.1"},
    {1, CellLimit::Units::US, CellLimit::Head::PsiDiesel, 376.3, "Maximum value is 376.3"},
    {1, CellLimit::Units::US, CellLimit::Head::PsiGas, 311.4, "Maximum value is 311.4"},
    {1, CellLimit::Units::Metric, CellLimit::Head::Any, 304.5, "Maximum value is 304.5"},
    {1, CellLimit::Units::Metric, CellLimit::Head::PsiDiesel, 376.3, "Maximum value is 376.3"},
    {1, CellLimit::Units::Metric, CellLimit::Head::PsiGas, 311.4, "Maximum value is 311.4"},
}};
inline constexpr std::array<CellLimit, 3> pumpCellLimits{{
    {0, CellLimit::Units::Both, CellLimit::Head::Any, 999.9, "Maximum value is 999.9"},
    {1, CellLimit::Units::US, CellLimit::Head::Any, 999.1, "Maximum value is 999.1"},
    {1, CellLimit::Units::Metric, CellLimit::Head::Any, 304.5, "Maximum value is 304.5"},
}};

// Message 3, of an empty cell.
inline constexpr int emptyCellMessage = 3;
// A cell holds at most this many typed characters.
inline constexpr std::size_t maxCellCharacters = 5;

// The key codes the grid knows.
namespace grid_key {
inline constexpr int backspace = 8;
inline constexpr int enter = 13;
inline constexpr int point = 46; // "." as a character; the Delete key in KeyDown
inline constexpr int deleteCharacter = 127;
} // namespace grid_key

class RateLossGrid {
  public:
    // The table of `rowCount` rows of "0" and "0", with the first cell current.
    void reset(std::size_t rowCount);
    void setRows(GridRows rows);

    const GridRows& rows() const { return m_rows; }
    GridRows& rows() { return m_rows; }
    std::size_t rowCount() const { return m_rows.size(); }
    int row() const { return m_row; }
    int col() const { return m_col; }
    const std::string& cell(int row, int col) const;
    const std::string& currentCell() const { return cell(m_row, m_col); }
    // Makes a cell current, as a click or an arrow key does between LeaveCell
    // and EnterCell.
    void setCurrent(int row, int col);

    // KeyPress: edits the current cell; Enter runs Click. Returns whether the
    // key was refused with a beep.
    bool keyPress(int code, const GridKeyRules& rules);
    // KeyDown: the Delete key (46) empties the cell, unless keys are refused.
    void keyDown(int keyCode, const GridKeyRules& rules);
    // Click: an empty cell becomes "0", and a last row with a value gets a spare
    // row of "0" and "0" behind it (so does the only row).
    void click();
    // LeaveCell: with `checks`, the cell is checked against `limits` and
    // emptiness; a refusal shows its message, remembers the cell to come back
    // to and returns true. An accepted cell is written as its number's text.
    bool leaveCell(bool checks, std::span<const CellLimit> limits, const HeadShown& shown, UserInteraction& ui);
    // EnterCell: back to a refused cell, if one is waiting.
    void enterCell();
    bool restorePending() const { return m_pending; }

  private:
    std::string& current();
    void addRowBehind(int row);

    GridRows m_rows;
    int m_row = 0;
    int m_col = 0;
    // RestoreCell
    Integer m_restoreRow = 0;
    Integer m_restoreCol = 0;
    bool m_pending = false;
};

} // namespace vesk
