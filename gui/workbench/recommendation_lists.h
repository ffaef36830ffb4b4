// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The click and double click of the two recommendation lists, which never hold an entry.
#pragma once

#include "gui/workbench/window_context.h"

#include <functional>

class QListWidget;

namespace vesk::gui {

enum class RecommendationList { Dispensing, Pump };

// A click on an entry puts its text into the list's tool tip; a double click
// on one goes to the core (DoubleClickDispensingList, DoubleClickPumpList),
// and the area shows its state again. Nothing adds an entry, so neither ever
// happens in the window.
void WireRecommendationList(QListWidget* list, RecommendationList which, WindowContext& context,
                            std::function<void()> showArea);

} // namespace vesk::gui
