// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The one seam through which the system shows boxes and asks the user.
#pragma once

#include "messages/message_catalogue.h"

#include <optional>
#include <string>
#include <string_view>

namespace vesk {

enum class Answer { Yes, No, Cancel };

// A file open or save dialog as the system asks for one.
struct FileDialogRequest {
    bool save = false;       // a save dialog, else an open dialog
    std::string title;       // "Open", "New", "Save As"
    std::string startFolder; // the program folder's SaveSiteInfo
    std::string filter;      // "Vesk Files(*.txt)|*.txt"
    std::string fileName;    // the name the dialog starts with
};

// What the printer dialog gives back: the printer chosen, or the file that a
// "print to file" printer writes (a PDF), and the number of copies.
struct PrinterChoice {
    std::string printerName; // empty: the system's default printer
    std::string outputFile;  // not empty: the sheets go to this PDF file
    int copies = 1;
};

// Every modal box of the system goes through this interface: the desktop
// program shows real boxes, the command-line calculator writes to stderr, and
// tests record what was shown and script the answers.
class UserInteraction {
  public:
    virtual ~UserInteraction() = default;
    // A box with the text and an Ok button, under the window's default title.
    virtual void showMessageBox(std::string_view text, MessageIcon icon) = 0;
    // A question with Yes, No and Cancel. Where nobody can answer, Cancel.
    virtual Answer askYesNoCancel(std::string_view /*text*/) { return Answer::Cancel; }
    // A question with Yes and No. Where nobody can answer, No.
    virtual Answer askYesNo(std::string_view /*text*/) { return Answer::No; }
    // A question with Ok and Cancel: true for Ok. Where nobody can answer,
    // Cancel.
    virtual bool askOkCancel(std::string_view /*text*/) { return false; }
    // A file dialog: the full path chosen, or nothing for Cancel. Where nobody
    // can answer, Cancel.
    virtual std::optional<std::string> chooseFile(const FileDialogRequest& /*request*/) { return std::nullopt; }
    // The printer dialog: the printer chosen, or nothing for Cancel. Where
    // nobody can answer, Cancel.
    virtual std::optional<PrinterChoice> choosePrinter() { return std::nullopt; }
    // The help viewer opened at a topic of the help file ("Option Menu\Pumps.htm"),
    // running on by itself. Where nobody can see it, nothing happens.
    virtual void showHelpTopic(const std::string& /*helpFile*/, std::string_view /*topic*/) {}
};

// Shows a numbered message; a code outside the catalogue shows nothing.
void ShowMessage(int code, UserInteraction& ui);

// The end of the process that a fatal message announces: main() turns it into
// the exit. Nothing is written on that path.
class ProcessEnd {
  public:
    explicit ProcessEnd(int messageCode) : m_messageCode(messageCode) {}
    int messageCode() const { return m_messageCode; }

  private:
    int m_messageCode;
};

// Shows a numbered message and ends the process.
[[noreturn]] void EndWithMessage(int code, UserInteraction& ui);

} // namespace vesk
