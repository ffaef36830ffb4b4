// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The desktop program: the splash, then the main window over the state that start-up builds.
#include "gui/common/qt_user_interaction.h"
#include "gui/common/run_event.h"
#include "gui/workbench/main_window.h"
#include "gui/workbench/splash_window.h"
#include "workbench/application_state.h"
#include "workbench/startup.h"

#include "site/program_folder.h"

#include <QApplication>
#include <QTimer>
#include <QWindow>
#include <filesystem>
#include <iostream>
#include <memory>
#include <optional>

namespace {

// For the check of an installed program, which has no test harness around it:
// with VESK_QUIT_WHEN_SHOWN set, once the platform has put the main window on
// the screen the program prints its caption (the program folder's
// SaveSiteInfo/Default.txt) and ends with status 0.
void quitOnceShownIfAsked(QWidget& window) {
    if (!qEnvironmentVariableIsSet("VESK_QUIT_WHEN_SHOWN")) {
        return;
    }
    auto* poll = new QTimer(&window);
    QObject::connect(poll, &QTimer::timeout, &window, [&window, poll] {
        if (window.windowHandle() != nullptr && window.windowHandle()->isExposed()) {
            poll->stop();
            std::cout << "Vesk main window shown: " << window.windowTitle().toStdString() << std::endl;
            vesk::gui::QuitEventLoop(0);
        }
    });
    poll->start(10);
}

} // namespace

// Numbers never pass through the C locale here: the core parses and formats
// them with std::from_chars and std::to_chars, so this program sets no locale
// of its own.
int main(int argc, char* argv[]) {
    QApplication application(argc, argv);
    application.setApplicationName(QStringLiteral("Vesk"));
    // The desktop entry's id, so that Wayland matches the window to the entry.
    QGuiApplication::setDesktopFileName(QStringLiteral("org.vesk.Vesk"));

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
                app->programFolder = vesk::ProgramFolderFor(
                    std::filesystem::path(QCoreApplication::applicationDirPath().toStdU16String()));
                vesk::InitialiseMainWindow(*app, ui);
                window = std::make_unique<vesk::gui::MainWindow>(*app, ui);
                window->setProgramEnd(endProgram);
                ui.setParentWindow(window.get());
                window->show();
                quitOnceShownIfAsked(*window);
            },
            endProgram);
    });
    const int status = QApplication::exec();
    window.reset();
    return failedStatus.value_or(status);
}
