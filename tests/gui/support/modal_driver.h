// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// Answers the modal windows that a call under test opens, so no test waits on a person.
#pragma once

#include <QElapsedTimer>
#include <QMessageBox>
#include <QString>
#include <QTimer>
#include <functional>
#include <memory>

class QDialog;
class QWidget;

namespace vesk::gui::test {

// The first visible top-level window that `matches`, or none.
QWidget* visibleTopLevel(const std::function<bool(QWidget*)>& matches);

// Answers the next modal window that `matches` from a polling timer, so that a
// call that runs its own event loop returns. If none appears within the time
// given every visible dialog is closed, so the test fails instead of hanging.
class ModalDriver {
  public:
    ModalDriver(std::function<bool(QWidget*)> matches, std::function<void(QWidget*)> answer, int timeoutMs = 5000);

    bool answered() const { return m_answered; }

  private:
    void poll();

    std::function<bool(QWidget*)> m_matches;
    std::function<void(QWidget*)> m_answer;
    int m_timeoutMs;
    QTimer m_timer;
    QElapsedTimer m_clock;
    bool m_answered = false;
};

// What a message box showed when it was answered.
struct SeenBox {
    QString title;
    QString text;
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    QMessageBox::StandardButtons buttons;
};

// Presses `button` in the next message box and records what it showed.
std::unique_ptr<ModalDriver> pressInNextBox(QMessageBox::StandardButton button, SeenBox& seen);

// Runs `open`, which brings up a modal dialog, and `drive` on that dialog once
// it is the active window; a dialog still open afterwards is rejected, and one
// that hangs is rejected after the time given. Returns whether a dialog came up.
bool driveModalDialog(const std::function<void()>& open, const std::function<void(QDialog*)>& drive,
                      int timeoutMs = 10000);

} // namespace vesk::gui::test
