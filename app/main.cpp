// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The desktop program: the splash, then the main window over the state that start-up builds.
#include "gui/common/run_event.h"
#include "gui/workbench/main_window.h"
#include "gui/common/qt_user_interaction.h"
#include "gui/workbench/splash_window.h"

#include "workbench/application_state.h"
#include "workbench/startup.h"

#include <QApplication>
#include <filesystem>
#include <memory>
#include <optional>

// Numbers never pass through the C locale here: the core parses and formats
// them with std::from_chars and std::to_chars, so this program sets no locale
// of its own.
int main(int argc, char* argv[]) {
    QApplication application(argc, argv);
    application.setApplicationName(QStringLiteral("Vesk"));

    vesk::gui::QtUserInteraction ui(nullptr);
    std::unique_ptr<vesk::ApplicationState> app;
    std::unique_ptr<vesk::gui::MainWindow> window;
    // A failure's status stands, whatever closing the last window asks after it.
    std::optional<int> failedStatus;
    const auto endProgram = [&failedStatus](int status) {
        failedStatus = status;
        vesk::gui::QuitEventLoop(status);
    };

    vesk::gui::SplashWindow splash;
    splash.runThen([&] {
        vesk::gui::RunEvent(
            ui,
            [&] {
                app = std::make_unique<vesk::ApplicationState>();
                // The program folder is the executable's folder.
                app->programFolder = std::filesystem::path(QCoreApplication::applicationDirPath().toStdU16String());
                vesk::InitialiseMainWindow(*app, ui);
                window = std::make_unique<vesk::gui::MainWindow>(*app, ui);
                window->setProgramEnd(endProgram);
                ui.setParentWindow(window.get());
                window->show();
            },
            endProgram);
    });
    const int status = QApplication::exec();
    window.reset();
    return failedStatus.value_or(status);
}
