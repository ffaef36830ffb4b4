// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// An application started on a program folder, for the tests of the workbench and above.
#pragma once

#include "support/recording_interaction.h"
#include "support/temp_program_folder.h"
#include "workbench/calculate.h"
#include "workbench/startup.h"
#include "workbench/system_settings.h"

#include <string>

namespace vesk::test {

// Start-up on a program folder, with what it showed and how it ended.
struct Started {
    ApplicationState app;
    RecordingInteraction ui;
    bool ended = false;
    std::string failure;
};

inline void start(const TempProgramFolder& folder, Started& started) {
    started.app.programFolder = folder.path();
    try {
        InitialiseMainWindow(started.app, started.ui);
    } catch (const ProcessEnd&) {
        started.ended = true;
    } catch (const RunTimeFailure& failure) {
        started.failure = failure.what();
    }
}

// Start-up on a program folder of its own, kept as long as the start.
struct StartedApp : Started {
    explicit StartedApp(TempProgramFolder programFolder) : folder(std::move(programFolder)) { start(folder, *this); }
    TempProgramFolder folder;
};

// A program folder of the shipped data with its settings file replaced.
inline TempProgramFolder shippedWithSettings(std::initializer_list<std::string_view> iniLines) {
    TempProgramFolder folder = TempProgramFolder::copyOfShipped();
    folder.writeLines("Vesk.ini", iniLines);
    return folder;
}

// Opens the System Settings dialog, lets `choose` set its options, and presses Ok.
template <typename Choose> void chooseSettings(ApplicationState& app, Choose&& choose) {
    TouchFrmData(app.panel, app.config);
    choose(app.panel.frmData);
    ApplySystemSettings(app);
}

} // namespace vesk::test
