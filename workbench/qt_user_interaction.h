// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The desktop program's boxes and questions: QMessageBox over a parent window.
#pragma once

#include "messages/user_interaction.h"

#include <QPointer>
#include <QWidget>

namespace vesk::gui {

// The program's title on every box, as a window's default title.
inline constexpr const char* messageBoxTitle = "Vesk";

// Shows the system's boxes as QMessageBoxes, modal over `parent`: an Ok box
// with the exclamation icon or none, and the two questions without an icon.
class QtUserInteraction : public UserInteraction {
  public:
    explicit QtUserInteraction(QWidget* parent);

    void showMessageBox(std::string_view text, MessageIcon icon) override;
    Answer askYesNoCancel(std::string_view text) override;
    Answer askYesNo(std::string_view text) override;

    // The window the boxes stand over; may change when the main window opens.
    void setParentWindow(QWidget* parent) { m_parent = parent; }

  private:
    QPointer<QWidget> m_parent;
};

} // namespace vesk::gui
