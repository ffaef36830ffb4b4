// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The key filters and lost-focus checks of the fields, written once and configured per field.
#include "gui/common/field_filters.h"

#include "gui/common/text_codec.h"

#include <QAbstractButton>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QWidget>
#include <utility>

namespace vesk::gui {

namespace {

constexpr int backspaceCode = 8;

} // namespace

std::optional<int> KeyCodeOf(const QKeyEvent& event) {
    switch (event.key()) {
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
        return std::nullopt; // moves the focus; no filter sees it
    case Qt::Key_Backspace:
        return backspaceCode;
    default:
        break;
    }
    if (event.modifiers().testFlag(Qt::ControlModifier) && event.key() >= Qt::Key_A && event.key() <= Qt::Key_Z) {
        return event.key() - Qt::Key_A + 1;
    }
    const QString text = event.text();
    if (text.isEmpty()) {
        return std::nullopt;
    }
    const std::string bytes = toWindows1252(text.left(1));
    return bytes.empty() ? std::nullopt : std::optional<int>(static_cast<unsigned char>(bytes.front()));
}

bool MovesToAnotherControl(Qt::FocusReason reason) {
    return MovedByUser(reason) || reason == Qt::OtherFocusReason;
}

bool MovedByUser(Qt::FocusReason reason) {
    switch (reason) {
    case Qt::MouseFocusReason:
    case Qt::TabFocusReason:
    case Qt::BacktabFocusReason:
    case Qt::ShortcutFocusReason:
        return true;
    default:
        // A menu, a pop-up, another window, or code moving the focus.
        return false;
    }
}

namespace {

// The press of a command button, told apart by whether the mouse made it: a
// mouse press has moved the focus already, and the check has run.
class CheckedCommand : public QObject {
  public:
    CheckedCommand(QAbstractButton* button, std::function<void()> command)
        : QObject(button), m_button(button), m_command(std::move(command)) {
        button->installEventFilter(this);
        connect(button, &QAbstractButton::clicked, this, &CheckedCommand::pressed);
    }

  protected:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        if (event->type() == QEvent::MouseButtonPress) {
            m_pressedByMouse = true;
        }
        return false;
    }

  private:
    void pressed() {
        const bool byMouse = std::exchange(m_pressedByMouse, false);
        if (byMouse ? focusIsOnTheButton() : takeFocus()) {
            m_command();
        }
    }

    bool focusIsOnTheButton() const { return m_button->window()->focusWidget() == m_button; }

    // The focus moved to the button by the program, which runs the check of
    // the field left; an inactive window sends no focus events, so there the
    // field is left by hand.
    bool takeFocus() {
        QWidget* left = m_button->window()->focusWidget();
        if (left == m_button) {
            return true;
        }
        if (!m_button->isActiveWindow()) {
            auto* filter =
                left != nullptr ? left->findChild<FieldFilter*>(QString(), Qt::FindDirectChildrenOnly) : nullptr;
            if (filter != nullptr && filter->checkPending() && filter->leave()) {
                return false;
            }
        }
        m_button->setFocus(Qt::OtherFocusReason);
        return focusIsOnTheButton();
    }

    QAbstractButton* m_button;
    std::function<void()> m_command;
    bool m_pressedByMouse = false;
};

} // namespace

void ConnectCheckedCommand(QAbstractButton* button, std::function<void()> command) {
    new CheckedCommand(button, std::move(command));
}

FieldFilter::FieldFilter(QLineEdit* field, FieldRule rule) : QObject(field), m_field(field), m_rule(std::move(rule)) {
    field->installEventFilter(this);
}

bool FieldFilter::leave() {
    if (!m_rule.check || !m_rule.check()) {
        m_checkPending = false;
        return false;
    }
    m_field->setFocus(Qt::OtherFocusReason);
    return true;
}

bool FieldFilter::eventFilter(QObject* watched, QEvent* event) {
    if (watched != m_field) {
        return false;
    }
    if (event->type() == QEvent::FocusIn) {
        m_checkPending = true;
    }
    if (event->type() == QEvent::KeyPress) {
        const std::optional<int> code = KeyCodeOf(*static_cast<QKeyEvent*>(event));
        if (m_rule.keys && code && !KeyPasses(*m_rule.keys, *code, toWindows1252(m_field->text()))) {
            return true; // the key is thrown away
        }
        m_checkPending = true;
    }
    if (event->type() == QEvent::FocusOut && MovesToAnotherControl(static_cast<QFocusEvent*>(event)->reason())) {
        leave();
    }
    return false;
}

FocusFilter::FocusFilter(QWidget* control, Handlers handlers) : QObject(control), m_handlers(std::move(handlers)) {
    control->installEventFilter(this);
}

bool FocusFilter::eventFilter(QObject* /*watched*/, QEvent* event) {
    if (event->type() == QEvent::FocusIn && m_handlers.entered) {
        m_handlers.entered(static_cast<QFocusEvent*>(event)->reason());
    }
    if (event->type() == QEvent::FocusOut && m_handlers.left) {
        m_handlers.left(static_cast<QFocusEvent*>(event)->reason());
    }
    return false;
}

} // namespace vesk::gui
