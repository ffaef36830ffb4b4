// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The key filters and lost-focus checks of the fields, written once and configured per field.
#pragma once

#include "workbench/field_checks.h"
#include "workbench/panel_fields.h"

#include <QObject>
#include <functional>
#include <optional>

class QAbstractButton;
class QKeyEvent;
class QLineEdit;
class QWidget;

namespace vesk::gui {

// The code a key press gives a key filter, as the system's keys are coded: the
// Windows-1252 byte of the character typed, 8 for backspace, 1 to 26 for a
// control letter; none for a key that types nothing (arrows, Tab, Delete …),
// which no filter sees.
std::optional<int> KeyCodeOf(const QKeyEvent& event);

// What a field does: the key filter it applies, if any, and the check that
// runs when the field loses the focus. The check returns true when the focus
// goes back to the field.
struct FieldRule {
    std::optional<KeyFilter> keys;
    std::function<bool()> check;
};

// An event filter on one QLineEdit (its child, so found with findChild): keys
// that the rule's filter refuses never reach the field, and leaving the field
// for another control runs the check and gives the focus back when told.
// Leaving it for a menu or another application runs nothing: that is what the
// quiet check of the top menus is for.
class FieldFilter : public QObject {
    Q_OBJECT

  public:
    FieldFilter(QLineEdit* field, FieldRule rule);

    // The loss of focus: runs the check, and gives the focus back when told.
    // Returns whether the focus goes back.
    bool leave();

    // Whether the field was entered or typed into since its check last let
    // it go.
    bool checkPending() const { return m_checkPending; }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QLineEdit* m_field;
    FieldRule m_rule;
    bool m_checkPending = false;
};

// An event filter for the controls whose getting or losing the focus does
// something: the area buttons, the grids, the lists of the Pump Area. Both
// handlers get the reason of the move (Tab, Shift+Tab, mouse …).
class FocusFilter : public QObject {
    Q_OBJECT

  public:
    struct Handlers {
        std::function<void(Qt::FocusReason)> entered;
        std::function<void(Qt::FocusReason)> left;
    };

    FocusFilter(QWidget* control, Handlers handlers);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    Handlers m_handlers;
};

// Whether a loss of focus for this reason moves the focus to another control
// of the window (and so runs a check), rather than to a menu, a pop-up or
// another window. The program moving the focus itself (a page of the grids, a
// screen reader's set-focus, the focus after Open) counts: no number leaves
// a field unchecked.
bool MovesToAnotherControl(Qt::FocusReason reason);

// Whether the user moved the focus for this reason (a click, Tab, Shift+Tab,
// a shortcut), rather than the program or the window system.
bool MovedByUser(Qt::FocusReason reason);

// Connects a command button so that its command runs only on text the checks
// have seen. However the button is pressed (the mouse, the keyboard, a screen
// reader's press, which moves no focus) the focus moves to it first, as a
// click of the mouse moves it, and so the check of the field being left runs;
// a field that refuses its text keeps the focus, and the command does not run.
void ConnectCheckedCommand(QAbstractButton* button, std::function<void()> command);

} // namespace vesk::gui
