// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// Driving a component editor as the user does: the mouse on its buttons and cells, keys into its boxes and grid.
#pragma once

#include "gui/editors/component_editor_dialog.h"
#include "gui/editors/editor_menu.h"
#include "gui/support/station.h"
#include "gui/support/widgets.h"

#include <QHeaderView>
#include <QPushButton>
#include <QTableWidget>
#include <QTest>
#include <memory>
#include <utility>
#include <vector>

namespace vesk::gui::test {

using Points = std::vector<std::pair<QString, QString>>;

// An editor opened over the station's window, shown and active, as the menu
// opens it but without its own event loop, so a test drives it directly.
inline std::unique_ptr<ComponentEditorDialog> openEditor(Station& station, ComponentKind kind,
                                                         std::vector<std::string>* failures = nullptr) {
    auto* menu = station.window->findChild<ComponentEditorMenu*>();
    auto dialog = std::make_unique<ComponentEditorDialog>(
        kind, station.app, menu->session(), station.ui,
        [failures](const std::function<void()>& work) {
            try {
                work();
                return true;
            } catch (const RunTimeFailure& failure) {
                if (failures != nullptr) {
                    failures->emplace_back(failure.what());
                }
                return false;
            }
        },
        station.window.get());
    dialog->show();
    if (!QTest::qWaitForWindowActive(dialog.get())) {
        qWarning("the editor did not become active");
    }
    return dialog;
}

// A press of a button with the mouse, as the user makes it.
inline void press(QWidget* dialog, const char* name) {
    auto* button = child<QPushButton>(dialog, name);
    QVERIFY(button != nullptr);
    QVERIFY(button->isEnabled());
    QTest::mouseClick(button, Qt::LeftButton);
}

// A click of the mouse on an option button, on its circle.
inline void clickOption(QWidget* dialog, const char* name) {
    auto* button = child<QAbstractButton>(dialog, name);
    QVERIFY(button != nullptr);
    QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(8, button->height() / 2));
}

// Closes an editor as the close box does, answering No to the save question.
inline void closeWithoutSaving(Station& station, QDialog* dialog) {
    station.ui.answers = {Answer::No};
    dialog->reject();
}

inline QTableWidget* gridOf(QWidget* dialog) {
    return dialog->findChild<QTableWidget*>();
}

// A click of the mouse on a cell of the grid.
inline void clickCell(QTableWidget* grid, int row, int col) {
    QTableWidgetItem* item = grid->item(row, col);
    QVERIFY(item != nullptr);
    grid->scrollToItem(item);
    QTest::mouseClick(grid->viewport(), Qt::LeftButton, {}, grid->visualItemRect(item).center());
}

// Types a cell anew: a click on it, the Delete key, then the keys.
inline void typeCell(QTableWidget* grid, int row, int col, const QString& keys) {
    clickCell(grid, row, col);
    QTest::keyClick(grid, Qt::Key_Delete);
    QTest::keyClicks(grid, keys);
}

// Types a table as the user does, Enter growing it by a spare row each time.
inline void typeTable(QTableWidget* grid, const Points& points) {
    for (std::size_t i = 0; i < points.size(); ++i) {
        typeCell(grid, static_cast<int>(i), 0, points[i].first);
        typeCell(grid, static_cast<int>(i), 1, points[i].second);
        QTest::keyClick(grid, Qt::Key_Return);
    }
}

inline QStringList cellTexts(QTableWidget* grid) {
    QStringList texts;
    for (int row = 0; row < grid->rowCount(); ++row) {
        texts << grid->item(row, 0)->text() + QLatin1Char(',') + grid->item(row, 1)->text();
    }
    return texts;
}

} // namespace vesk::gui::test
