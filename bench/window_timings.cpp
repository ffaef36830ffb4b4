// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// A timed harness of the main window: start-up to the window shown, and Calculate on forty nozzles.
#include "gui/common/field_filters.h"
#include "gui/common/qt_user_interaction.h"
#include "gui/workbench/main_window.h"
#include "workbench/application_state.h"
#include "workbench/startup.h"

#include <QAbstractButton>
#include <QApplication>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QTest>
#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <vector>

namespace {

namespace fs = std::filesystem;

constexpr int presses = 10;

double milliseconds(qint64 nanoseconds) {
    return static_cast<double>(nanoseconds) / 1e6;
}

// A program folder of the shipped data of its own, so the harness writes into no tree.
fs::path copyOfShippedFolder() {
    const fs::path folder =
        fs::temp_directory_path() / ("vesk-window-timings-" + std::to_string(QCoreApplication::applicationPid()));
    fs::remove_all(folder);
    fs::copy(VESK_SHIPPED_DATA_DIR, folder, fs::copy_options::recursive);
    return folder;
}

void measureCalculateOnFortyNozzles(vesk::gui::MainWindow& window) {
    auto* nozzles = window.findChild<QLineEdit*>(QStringLiteral("txtNoOfNozzle"));
    nozzles->setText(QStringLiteral("40"));
    nozzles->findChild<vesk::gui::FieldFilter*>()->leave();
    auto* calculate = window.findChild<QAbstractButton*>(QStringLiteral("cmdCalculate"));
    calculate->click(); // the rows rebuilt once
    std::vector<double> pressed;
    std::vector<double> painted;
    for (int round = 0; round < presses; ++round) {
        QElapsedTimer timer;
        timer.start();
        calculate->click();
        pressed.push_back(milliseconds(timer.nsecsElapsed()));
        window.repaint();
        painted.push_back(milliseconds(timer.nsecsElapsed()));
    }
    std::sort(pressed.begin(), pressed.end());
    std::sort(painted.begin(), painted.end());
    std::printf("Calculate on 40 nozzles, sweep and redraw: median %.1f ms, worst %.1f ms\n", pressed[presses / 2],
                pressed.back());
    std::printf("The same with the window painted: median %.1f ms, worst %.1f ms\n", painted[presses / 2],
                painted.back());
}

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    const fs::path folder = copyOfShippedFolder();
    {
        vesk::ApplicationState app;
        vesk::gui::QtUserInteraction ui(nullptr);
        app.programFolder = folder;
        QElapsedTimer timer;
        timer.start();
        vesk::InitialiseMainWindow(app, ui);
        const qint64 initialised = timer.nsecsElapsed();
        vesk::gui::MainWindow window(app, ui);
        window.resize(1280, 800);
        window.show();
        if (!QTest::qWaitForWindowExposed(&window)) {
            std::fprintf(stderr, "the window was never shown\n");
            return 1;
        }
        std::printf("From the end of the splash wait to the window shown: %.1f ms (initialisation %.1f ms)\n",
                    milliseconds(timer.nsecsElapsed()), milliseconds(initialised));
        measureCalculateOnFortyNozzles(window);
    }
    fs::remove_all(folder);
    return 0;
}
