// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The grid of an editor's rate-loss table: cells typed into key by key, growing by itself, each cell checked as it is
// left.
#include "editors/rate_loss_grid.h"

namespace vesk {

namespace {

bool limitApplies(const CellLimit& limit, int column, const HeadShown& shown) {
    if (limit.column != column) {
        return false;
    }
    if ((limit.units == CellLimit::Units::US && shown.metric) ||
        (limit.units == CellLimit::Units::Metric && !shown.metric)) {
        return false;
    }
    switch (limit.head) {
    case CellLimit::Head::Any:
        return true;
    case CellLimit::Head::Feet:
        return shown.feet;
    case CellLimit::Head::PsiDiesel:
        return shown.psi && shown.diesel;
    case CellLimit::Head::PsiGas:
        return shown.psi && shown.gas;
    }
    return false;
}

} // namespace

void RateLossGrid::reset(std::size_t rowCount) {
    m_rows.assign(rowCount, {"0", "0"});
    m_row = 0;
    m_col = 0;
}

void RateLossGrid::setRows(GridRows rows) {
    m_rows = std::move(rows);
    m_row = 0;
    m_col = 0;
}

const std::string& RateLossGrid::cell(int row, int col) const {
    return at(m_rows, row)[static_cast<std::size_t>(col)];
}

std::string& RateLossGrid::current() {
    return at(m_rows, m_row)[static_cast<std::size_t>(m_col)];
}

void RateLossGrid::setCurrent(int row, int col) {
    if (row < 0 || static_cast<std::size_t>(row) >= m_rows.size() || col < 0 || col > 1) {
        fail(failure::invalidProperty);
    }
    m_row = row;
    m_col = col;
}

bool RateLossGrid::keyPress(int code, const GridKeyRules& rules) {
    if (rules.refuseKeys) {
        code = 0;
    }
    std::string& text = current();
    if (code != grid_key::backspace && text.size() == maxCellCharacters) {
        return false;
    }
    if (code >= '0' && code <= '9') {
        text += static_cast<char>(code);
        return false;
    }
    if (code == grid_key::backspace) {
        if (!text.empty()) {
            text.pop_back();
        }
        return false;
    }
    if (code == grid_key::point) {
        if (text.find('.') == std::string::npos) {
            text += '.';
        }
        return false;
    }
    if (code == grid_key::enter) {
        click();
        return false;
    }
    if (code == grid_key::deleteCharacter && rules.deleteKeyEmptiesCell) {
        text.clear();
        return false;
    }
    return true;
}

void RateLossGrid::keyDown(int keyCode, const GridKeyRules& rules) {
    if (rules.refuseKeys) {
        return;
    }
    if (keyCode == grid_key::point) {
        current().clear();
    }
}

void RateLossGrid::click() {
    if (current().empty()) {
        current() = "0";
    }
    if (m_rows.size() == 1 && m_row == 0) {
        addRowBehind(m_row);
        return;
    }
    const auto& row = at(m_rows, m_row);
    const bool last = static_cast<std::size_t>(m_row) == m_rows.size() - 1;
    if (last && (leadingNumber(row[0]) > 0 || leadingNumber(row[1]) > 0)) {
        addRowBehind(m_row);
    }
}

void RateLossGrid::addRowBehind(int row) {
    m_rows.push_back({"", ""});
    at(m_rows, row + 1) = {"0", "0"};
}

bool RateLossGrid::leaveCell(bool checks, std::span<const CellLimit> limits, const HeadShown& shown,
                             UserInteraction& ui) {
    const std::string& text = current();
    const Double value = leadingNumber(text);
    if (checks) {
        for (const CellLimit& limit : limits) {
            if (limitApplies(limit, m_col, shown) && value > limit.limit) {
                ui.showMessageBox(limit.message, MessageIcon::None);
                m_restoreRow = static_cast<Integer>(m_row);
                m_restoreCol = static_cast<Integer>(m_col);
                m_pending = true;
                return true;
            }
        }
        if (text.empty()) {
            ShowMessage(emptyCellMessage, ui);
            m_restoreRow = static_cast<Integer>(m_row);
            m_restoreCol = static_cast<Integer>(m_col);
            m_pending = true;
            return true;
        }
    }
    current() = doubleText(value);
    return false;
}

void RateLossGrid::enterCell() {
    if (m_pending) {
        m_row = m_restoreRow;
        m_col = m_restoreCol;
        m_pending = false;
    }
}

} // namespace vesk
