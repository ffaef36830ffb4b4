// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The desktop program's boxes and questions: QMessageBox over a parent window.
#pragma once

#include "messages/user_interaction.h"

#include <QPointer>
#include <QString>
#include <QWidget>
#include <string_view>

namespace vesk::gui {

// The program's title on every box, as a window's default title.
inline constexpr const char* messageBoxTitle = "Vesk";

// A filter of the system's form, "description|pattern" pairs joined by "|",
// in Qt's form: "description (pattern)" entries joined by ";;". A description
// that already ends in its bracketed pattern is taken as it stands, so
// "Vesk Files(*.txt)|*.txt" gives "Vesk Files(*.txt)".
QString QtFileFilter(std::string_view filter);

// Shows the system's boxes as QMessageBoxes, modal over `parent`: an Ok box
// with the exclamation icon or none, and the two questions without an icon.
// The file dialogs are QFileDialogs that take any name typed (an open dialog
// does not insist on an existing file, a save dialog asks nothing about one:
// the commands do their own checks).
class QtUserInteraction : public UserInteraction {
  public:
    explicit QtUserInteraction(QWidget* parent);

    void showMessageBox(std::string_view text, MessageIcon icon) override;
    Answer askYesNoCancel(std::string_view text) override;
    Answer askYesNo(std::string_view text) override;
    bool askOkCancel(std::string_view text) override;
    std::optional<std::string> chooseFile(const FileDialogRequest& request) override;
    // The printer dialog, QPrintDialog: a printer or a PDF file, or nothing for Cancel.
    std::optional<PrinterChoice> choosePrinter() override;
    // On Windows the system's help viewer; elsewhere our own (HelpViewer).
    void showHelpTopic(const std::string& helpFile, std::string_view topic) override;

    // The window the boxes stand over; may change when the main window opens.
    void setParentWindow(QWidget* parent) { m_parent = parent; }

  private:
    QPointer<QWidget> m_parent;
};

} // namespace vesk::gui
