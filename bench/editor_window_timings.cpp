// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// A timed harness of the pump editor's window in metric units: opened and shown, and its Ok pressed.
#include "gui/common/qt_user_interaction.h"
#include "gui/editors/component_editor_dialog.h"
#include "workbench/startup.h"

#include <QAbstractButton>
#include <QApplication>
#include <QElapsedTimer>
#include <QTest>
#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <vector>

namespace {

namespace fs = std::filesystem;

constexpr int rounds = 20;

double milliseconds(qint64 nanoseconds) {
    return static_cast<double>(nanoseconds) / 1e6;
}

// A program folder of the shipped data of its own, set to metric units.
fs::path metricCopyOfShippedFolder() {
    const fs::path folder =
        fs::temp_directory_path() / ("vesk-editor-timings-" + std::to_string(QCoreApplication::applicationPid()));
    fs::remove_all(folder);
    fs::copy(VESK_SHIPPED_DATA_DIR, folder, fs::copy_options::recursive);
    std::ofstream(folder / "Vesk.ini", std::ios::binary) << "40\r\n4\r\nTrue\r\nFalse\r\nA\r\n";
    return folder;
}

void report(const char* what, std::vector<double> times) {
    std::sort(times.begin(), times.end());
    std::printf("%s: median %.2f ms, worst %.2f ms\n", what, times[times.size() / 2], times.back());
}

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    const fs::path folder = metricCopyOfShippedFolder();
    {
        vesk::ApplicationState app;
        vesk::gui::QtUserInteraction ui(nullptr);
        app.programFolder = folder;
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
        report("Pump editor in metric units, opened and shown", opened);
        report("Its Ok: catalogue back to US, Pump.DAT written, lists refilled, closed", okPressed);
    }
    fs::remove_all(folder);
    return 0;
}
