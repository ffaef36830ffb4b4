// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The size the main window opens at.
#include "gui/workbench/window_size.h"

namespace vesk::gui {

namespace {

constexpr QSize preferredSize(1260, 760);
// What a window manager adds around the window: the frame and the title bar.
constexpr QSize frameRoom(16, 40);

} // namespace

QSize OpeningWindowSize(const QRect& available) {
    return preferredSize.boundedTo(available.size() - frameRoom);
}

} // namespace vesk::gui
