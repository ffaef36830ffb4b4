// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The grids flxCurrent and flxBaseLine as data: the inputs behind each line.
#pragma once

#include "workbench/panel_state.h"

#include "site/configure_data.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace vesk {

inline constexpr int gridRowCount = 36;
inline constexpr int gridColumnCount = 3;

// Colours as the grids hold them; grey is the same in either byte order.
inline constexpr std::uint32_t gridGrey = 0xCCCCCC;
inline constexpr std::uint32_t gridDefaultForeColour = 0x000000;
inline constexpr std::uint32_t gridDefaultBackColour = 0xFFFFFF;

struct GridCell {
    std::string text;
    std::uint32_t foreColour = gridDefaultForeColour;
    std::uint32_t backColour = gridDefaultBackColour;
};

// A grid of 36 rows and 3 columns of text cells.
class ResultGrid {
  public:
    // The text of a cell; a row or column outside the grid fails with
    // "Subscript out of range".
    const std::string& TextMatrix(long row, long column) const;
    void SetTextMatrix(long row, long column, std::string text);
    const GridCell& Cell(long row, long column) const;
    GridCell& Cell(long row, long column);

  private:
    std::array<std::array<GridCell, gridColumnCount>, gridRowCount> m_cells{};
};

// The rows that no field or list of the panels fills: the choices of the
// piping and the settings, each in column 1.
inline constexpr long valveRow = 21;
inline constexpr long modeRow = 22;
inline constexpr long frequencyRow = 27;
inline constexpr long fuelRow = 34;
inline constexpr long componentListRow = 35;

// Their texts.
inline constexpr std::string_view basicText = "Basic";
inline constexpr std::string_view advanceText = "Advance";
inline constexpr std::string_view fiftyHzText = "50Hz Pump ";
inline constexpr std::string_view sixtyHzText = "60Hz Pump ";
inline constexpr std::string_view gasText = "Gas";
inline constexpr std::string_view dieselText = "Diesel";

// The two grids differ only in some captions: the twin routines are one
// routine told apart by this.
enum class GridSide { Current, Baseline };

// The format of start-up: row 0 of each grid on a grey background.
void FormatGrid(ResultGrid& grid);

// The widths of the three columns for a grid W units wide: W / 3 - 200,
// W / 3 + 900 and W / 3 + 300, each rounded half to even.
std::array<Long, gridColumnCount> GridColumnWidths(Double gridWidth);

// FillCurrentGrid and FillBaselineGrid: the inputs on the panels now, row by
// row, with the captions of the units of clsConfigureData.Units and the
// piping rows of the mode not chosen greyed out (not blanked).
void FillGrid(ResultGrid& grid, GridSide side, const PanelState& panel, const clsConfigureData& config);

// The caption of column 0 of a row, in US or metric units, as the grid fills it.
std::string UnitCaption(GridSide side, long row, bool usUnits);

// The valve text of row 21 for the two check boxes; empty when a box is in
// its grey state, which leaves the cell as it was.
std::string ValveText(Integer chkBall, Integer chkSwing);

} // namespace vesk
