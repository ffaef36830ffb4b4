// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The hourglass pointer while a button's work runs.
#pragma once

#include <QApplication>

namespace vesk::gui {

class HourGlass {
  public:
    HourGlass() { QApplication::setOverrideCursor(Qt::WaitCursor); }
    ~HourGlass() { QApplication::restoreOverrideCursor(); }
    HourGlass(const HourGlass&) = delete;
    HourGlass& operator=(const HourGlass&) = delete;
};

} // namespace vesk::gui
