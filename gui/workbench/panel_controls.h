// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The text fields, lists and unit labels of the four areas, made from the table of the panels and bound to them.
#pragma once

#include "gui/workbench/window_context.h"
#include "workbench/panel_fields.h"

#include <QObject>
#include <functional>
#include <vector>

class QComboBox;
class QLabel;
class QLineEdit;
class QWidget;

namespace vesk::gui {

// Makes each control from its row of the table: its name, its length, its key
// filter, its check on the loss of focus, its tool tip; and shows the panels'
// state in it again on request. Every control it makes, and every other
// control handed to watchFocus, tells the core when it gets the focus.
class PanelControls : public QObject {
    Q_OBJECT

  public:
    explicit PanelControls(WindowContext& context, QObject* parent = nullptr);

    QLineEdit* field(const char* controlName);
    QComboBox* list(const char* controlName);
    // The label that carries the unit of a length.
    QLabel* unitLabel(const char* fieldName);

    // A control whose getting the focus the core hears of (EnterControl).
    void watchFocus(QWidget* control);

    // The panels' state shown in the controls of an area, or in every text
    // field.
    void showArea(Area area);
    void showTextFields();

  signals:
    // A control got the focus and the core answered: the recommendation lists
    // to clear, and the piping mode may have changed.
    void controlEntered(bool clearDispensing, bool clearPump);
    // A list was left or chosen in a way that makes the site picture due.
    void sitePictureDue();

  private:
    struct Field {
        const PanelField* row;
        QLineEdit* edit;
    };
    struct List {
        const PanelList* row;
        QComboBox* combo;
    };
    struct UnitLabel {
        const PanelField* row;
        QLabel* label;
    };

    void showField(const Field& field);
    void showList(const List& list);
    std::function<bool()> checkOf(const Field& field);

    WindowContext& m_context;
    std::vector<Field> m_fields;
    std::vector<List> m_lists;
    std::vector<UnitLabel> m_unitLabels;
};

} // namespace vesk::gui
