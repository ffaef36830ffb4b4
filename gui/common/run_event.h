// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The failure policy of every event of the windows: a fatal message or a run-time failure ends the program.
#pragma once

#include "messages/user_interaction.h"

#include <functional>

namespace vesk::gui {

// The exit status of a program that a fatal message or a run-time failure ends.
inline constexpr int failedExitStatus = 1;

// Runs the work of one event. A fatal message (ProcessEnd), whose box has
// already been shown, ends the program with status 1; a run-time failure that
// escapes the work ends it as a platform would: one box with its description,
// then status 1. `endProgram` receives the status. Returns whether the work
// ran to its end. Every event of the windows goes through this.
bool RunEvent(UserInteraction& ui, const std::function<void()>& work, const std::function<void(int)>& endProgram);

// Ends the event loop, and with it the program, with `status`.
void QuitEventLoop(int status);

} // namespace vesk::gui
