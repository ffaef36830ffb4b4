// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// A timed harness of the main window: start-up to the window shown, and Calculate on forty nozzles.
#include "gui/common/field_filters.h"
#include "gui/common/qt_user_interaction.h"
#include "gui/workbench/main_window.h"
#include "timed_harness.h"
#include "workbench/application_state.h"
#include "workbench/startup.h"

#include <QAbstractButton>
#include <QApplication>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QTest>
#include <cstdio>
#include <vector>

namespace {

using vesk::bench::milliseconds;

constexpr int presses = 10;

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
    vesk::bench::printMedianAndWorst("Calculate on 40 nozzles, sweep and redraw", pressed);
    vesk::bench::printMedianAndWorst("The same with the window painted", painted);
}

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    const vesk::bench::ScratchProgramFolder folder("vesk-window-timings");
    {
        vesk::ApplicationState app;
        vesk::gui::QtUserInteraction ui(nullptr);
        app.programFolder = folder.path();
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
    return 0;
}
