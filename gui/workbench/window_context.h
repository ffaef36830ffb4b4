// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// What every part of the main window works with: the state, the seam, and the way an event runs.
#pragma once

#include "workbench/application_state.h"

#include "messages/user_interaction.h"

#include <functional>

namespace vesk::gui {

struct WindowContext {
    ApplicationState& app;
    UserInteraction& ui;
    // Runs the work of an event under the failure policy (RunEvent); returns
    // whether it ran to its end.
    std::function<bool(const std::function<void()>&)> runEvent;
};

} // namespace vesk::gui
