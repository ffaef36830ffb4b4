// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The desktop program's boxes and questions: QMessageBox over a parent window.
#include "workbench/qt_user_interaction.h"

#include "workbench/text_codec.h"

#include <QMessageBox>

namespace vesk::gui {

namespace {

QMessageBox::Icon qtIcon(MessageIcon icon) {
    return icon == MessageIcon::Exclamation ? QMessageBox::Warning : QMessageBox::NoIcon;
}

// Shows one box until it is answered and returns the button pressed.
QMessageBox::StandardButton ask(QWidget* parent, std::string_view text, QMessageBox::Icon icon,
                                QMessageBox::StandardButtons buttons, QMessageBox::StandardButton firstButton) {
    QMessageBox box(icon, QString::fromLatin1(messageBoxTitle), fromWindows1252(text), buttons, parent);
    box.setDefaultButton(firstButton);
    return static_cast<QMessageBox::StandardButton>(box.exec());
}

} // namespace

QtUserInteraction::QtUserInteraction(QWidget* parent) : m_parent(parent) {}

void QtUserInteraction::showMessageBox(std::string_view text, MessageIcon icon) {
    ask(m_parent, text, qtIcon(icon), QMessageBox::Ok, QMessageBox::Ok);
}

Answer QtUserInteraction::askYesNoCancel(std::string_view text) {
    const auto button = ask(m_parent, text, QMessageBox::NoIcon,
                            QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, QMessageBox::Yes);
    if (button == QMessageBox::Yes) {
        return Answer::Yes;
    }
    if (button == QMessageBox::No) {
        return Answer::No;
    }
    return Answer::Cancel; // Cancel, Escape or the close box
}

Answer QtUserInteraction::askYesNo(std::string_view text) {
    const auto button = ask(m_parent, text, QMessageBox::NoIcon, QMessageBox::Yes | QMessageBox::No, QMessageBox::Yes);
    return button == QMessageBox::Yes ? Answer::Yes : Answer::No;
}

} // namespace vesk::gui
