// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The failure policy of every event of the windows: a fatal message or a run-time failure ends the program.
#include "gui/common/run_event.h"

#include "engine/numeric.h"

#include <QCoreApplication>

namespace vesk::gui {

void QuitEventLoop(int status) {
    QCoreApplication::exit(status);
}

bool RunEvent(UserInteraction& ui, const std::function<void()>& work, const std::function<void(int)>& endProgram) {
    try {
        work();
        return true;
    } catch (const ProcessEnd&) {
        endProgram(failedExitStatus); // its box has been shown
    } catch (const RunTimeFailure& failure) {
        ui.showMessageBox(failure.what(), MessageIcon::Exclamation);
        endProgram(failedExitStatus);
    }
    return false;
}

} // namespace vesk::gui
