// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// A timed harness of the pump editor's window in metric units: opened and shown, and its Ok pressed.
#include "gui/common/qt_user_interaction.h"
#include "gui/editors/component_editor_dialog.h"
#include "timed_harness.h"
#include "workbench/startup.h"

#include <QAbstractButton>
#include <QApplication>
#include <QElapsedTimer>
#include <QTest>
#include <cstdio>
#include <fstream>
#include <vector>

namespace {

using vesk::bench::milliseconds;

constexpr int rounds = 20;

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    const vesk::bench::ScratchProgramFolder folder("vesk-editor-timings");
    // In metric units.
    std::ofstream(folder.path() / "Vesk.ini", std::ios::binary) << "40\r\n4\r\nTrue\r\nFalse\r\nA\r\n";
    {
        vesk::ApplicationState app;
        vesk::gui::QtUserInteraction ui(nullptr);
        app.programFolder = folder.path();
        vesk::InitialiseMainWindow(app, ui);
        vesk::EditorSession session;
        const vesk::gui::EventRunner runEvent = [](const std::function<void()>& work) {
            work();
            return true;
        };
        std::vector<double> opened;
        std::vector<double> okPressed;
        for (int round = 0; round < rounds; ++round) {
            QElapsedTimer timer;
            timer.start();
            vesk::gui::ComponentEditorDialog dialog(vesk::ComponentKind::Pump, app, session, ui, runEvent);
            dialog.show();
            if (!QTest::qWaitForWindowExposed(&dialog)) {
                std::fprintf(stderr, "the editor was never shown\n");
                return 1;
            }
            opened.push_back(milliseconds(timer.nsecsElapsed()));
            auto* ok = dialog.findChild<QAbstractButton*>(QStringLiteral("cmdPumpOk"));
            timer.restart();
            ok->click();
            okPressed.push_back(milliseconds(timer.nsecsElapsed()));
            if (dialog.isVisible()) {
                std::fprintf(stderr, "Ok did not close the editor\n");
                return 1;
            }
        }
        vesk::bench::printMedianAndWorst("Pump editor in metric units, opened and shown", opened);
        vesk::bench::printMedianAndWorst("Its Ok: catalogue back to US, Pump.DAT written, lists refilled, closed",
                                         okPressed);
    }
    return 0;
}
