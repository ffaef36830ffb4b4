// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// Answers the modal windows that a call under test opens, so no test waits on a person.
#include "gui/support/modal_driver.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QTest>

namespace vesk::gui::test {

namespace {

void rejectEveryVisibleDialog() {
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (auto* dialog = qobject_cast<QDialog*>(widget); dialog != nullptr && dialog->isVisible()) {
            dialog->done(QDialog::Rejected);
        }
    }
}

} // namespace

QWidget* visibleTopLevel(const std::function<bool(QWidget*)>& matches) {
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (widget->isVisible() && matches(widget)) {
            return widget;
        }
    }
    return nullptr;
}

ModalDriver::ModalDriver(std::function<bool(QWidget*)> matches, std::function<void(QWidget*)> answer, int timeoutMs)
    : m_matches(std::move(matches)), m_answer(std::move(answer)), m_timeoutMs(timeoutMs) {
    m_clock.start();
    QObject::connect(&m_timer, &QTimer::timeout, [this] { poll(); });
    m_timer.start(10);
}

void ModalDriver::poll() {
    if (QWidget* window = visibleTopLevel(m_matches)) {
        m_timer.stop();
        m_answered = true;
        m_answer(window);
        return;
    }
    if (m_clock.elapsed() > m_timeoutMs) {
        m_timer.stop();
        rejectEveryVisibleDialog();
    }
}

std::unique_ptr<ModalDriver> pressInNextBox(QMessageBox::StandardButton button, SeenBox& seen) {
    return std::make_unique<ModalDriver>(
        [](QWidget* widget) { return qobject_cast<QMessageBox*>(widget) != nullptr; },
        [button, &seen](QWidget* widget) {
            auto* box = qobject_cast<QMessageBox*>(widget);
            seen = {box->windowTitle(), box->text(), box->icon(), box->standardButtons()};
            if (QAbstractButton* pressed = box->button(button)) {
                pressed->click();
            } else {
                box->done(QMessageBox::Cancel);
            }
        });
}

bool driveModalDialog(const std::function<void()>& open, const std::function<void(QDialog*)>& drive, int timeoutMs) {
    bool cameUp = false;
    QTimer::singleShot(0, [&] {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (dialog == nullptr) {
            return;
        }
        cameUp = true;
        // The focus events of the dialog's boxes need it to be the active window.
        dialog->activateWindow();
        QApplication::setActiveWindow(dialog);
        if (QTest::qWaitFor([dialog] { return QApplication::activeWindow() == dialog; })) {
            drive(dialog);
        }
        if (dialog->isVisible()) {
            dialog->reject();
        }
    });
    QTimer watchdog;
    watchdog.setSingleShot(true);
    QObject::connect(&watchdog, &QTimer::timeout, [] {
        if (auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
            dialog->reject();
        }
    });
    watchdog.start(timeoutMs);
    open();
    return cameUp;
}

} // namespace vesk::gui::test
