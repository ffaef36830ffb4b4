// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// A station under test: a program folder, the application started on it and the main window over it.
#include "gui/support/station.h"

#include "gui/support/modal_driver.h"
#include "workbench/startup.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QImage>
#include <QKeyEvent>
#include <QMenu>
#include <QMenuBar>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <filesystem>

namespace vesk::gui::test {

namespace {

constexpr int pumpQuantities = 4;
constexpr int branchCounts = 4;

} // namespace

QColor sitePictureColour(int pumps, int branches) {
    return QColor::fromHsv((pumps * branchCounts + branches) * 21 % 360, 200, 220);
}

void writeSitePictures(const TempProgramFolder& folder) {
    std::filesystem::create_directories(folder.path() / "Image");
    for (int pumps = 1; pumps <= pumpQuantities; ++pumps) {
        for (int branches = 1; branches <= branchCounts; ++branches) {
            QImage picture(160, 110, QImage::Format_RGB32);
            picture.fill(sitePictureColour(pumps, branches));
            QPainter painter(&picture);
            painter.drawText(picture.rect(), Qt::AlignCenter,
                             QStringLiteral("%1 pump, %2 branch").arg(pumps).arg(branches));
            painter.end();
            const std::filesystem::path file =
                folder.path() / "Image" / (std::to_string(pumps) + "Pump" + std::to_string(branches) + "Branch.jpg");
            QVERIFY(picture.save(QString::fromStdString(file.string()), "JPG"));
        }
    }
}

void typeKeys(QWidget* widget, const QString& keys) {
    for (const QChar key : keys) {
        if (key.unicode() < 128) {
            QTest::keyClick(widget, key.toLatin1());
        } else { // QTest types ASCII only
            QKeyEvent press(QEvent::KeyPress, Qt::Key_unknown, Qt::NoModifier, QString(key));
            QApplication::sendEvent(widget, &press);
        }
    }
}

Station::Station(const std::function<void(const TempProgramFolder&)>& prepare)
    : m_ownFolder(TempProgramFolder::copyOfShipped()), folder(*m_ownFolder) {
    writeSitePictures(folder);
    if (prepare) {
        prepare(folder);
    }
    start();
}

Station::Station(const TempProgramFolder& programFolder) : folder(programFolder) {
    start();
}

void Station::start() {
    app.programFolder = folder.path();
    InitialiseMainWindow(app, ui);
    window = std::make_unique<MainWindow>(app, ui);
    window->setProgramEnd([this](int status) { programEnds.push_back(status); });
}

QMenu* Station::menu(const char* name) const {
    return window->menuBar()->findChild<QMenu*>(QString::fromLatin1(name));
}

QAction* Station::action(const char* name) const {
    return window->menuBar()->findChild<QAction*>(QString::fromLatin1(name));
}

void Station::trigger(const char* name) const {
    action(name)->trigger();
}

void Station::click(const char* name) const {
    find<QAbstractButton>(name)->click();
}

std::string Station::sitePath(const char* name) const {
    return (app.programFolder / "SaveSiteInfo" / name).string();
}

void Station::type(const char* name, const QString& keys) const {
    QLineEdit* edit = field(name);
    edit->setFocus();
    edit->selectAll();
    QTest::keyClick(edit, Qt::Key_Backspace);
    typeKeys(edit, keys);
}

bool Station::enter(const char* name, const QString& text) const {
    type(name, text);
    return filterOf(name)->leave();
}

void Station::choose(const char* name, int index) const {
    auto* combo = find<QComboBox>(name);
    combo->setCurrentIndex(index);
    emit combo->activated(index);
}

void Station::show() const {
    window->resize(1280, 800);
    window->show();
    window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(window.get()));
}

bool Station::driveDialog(const char* command, const std::function<void(QDialog*)>& drive) const {
    return driveModalDialog([this, command] { trigger(command); }, drive);
}

void Station::chooseUnits(bool metric) const {
    bool pressed = false;
    driveDialog("mnuSystemSettings", [&pressed, metric](QDialog* dialog) {
        auto* option = dialog->findChild<QRadioButton*>(metric ? QStringLiteral("optMetric") : QStringLiteral("optUS"));
        auto* ok = dialog->findChild<QPushButton*>(QStringLiteral("cmdOk"));
        if (option != nullptr && ok != nullptr) {
            option->click();
            ok->click();
            pressed = true;
        }
    });
    QVERIFY(pressed);
}

} // namespace vesk::gui::test
