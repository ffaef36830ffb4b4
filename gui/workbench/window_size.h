// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The size the main window opens at.
#pragma once

#include <QRect>
#include <QSize>

namespace vesk::gui {

// The size the main window asks for: most of a laptop screen of 1280x800, so
// the flow graph and the grids have room, and on a smaller screen what fits
// in its free room with the window's frame and title.
QSize OpeningWindowSize(const QRect& available);

} // namespace vesk::gui
