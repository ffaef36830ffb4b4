// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The desktop program's boxes and questions: QMessageBox over a parent window.
#include "gui/common/qt_user_interaction.h"

#include "gui/common/text_codec.h"

#include <QFile>
#include <QFileDialog>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrinter>
#include <QStringList>

#ifdef _WIN32
// htmlhelp.h needs the types of windows.h first.
#include <windows.h>
// clang-format off
#include <htmlhelp.h>
// clang-format on
#else
#include "gui/common/help_viewer.h"
#endif

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

QString QtFileFilter(std::string_view filter) {
    const QStringList parts = fromWindows1252(filter).split(QLatin1Char('|'));
    QStringList entries;
    for (qsizetype index = 0; index + 1 < parts.size(); index += 2) {
        const QString& description = parts.at(index);
        const QString pattern = parts.at(index + 1);
        const QString bracketed = QLatin1Char('(') + pattern + QLatin1Char(')');
        entries.append(description.endsWith(bracketed) ? description : description + QLatin1Char(' ') + bracketed);
    }
    return entries.join(QStringLiteral(";;"));
}

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

bool QtUserInteraction::askOkCancel(std::string_view text) {
    const auto button =
        ask(m_parent, text, QMessageBox::NoIcon, QMessageBox::Ok | QMessageBox::Cancel, QMessageBox::Ok);
    return button == QMessageBox::Ok; // Cancel, Escape or the close box
}

std::optional<std::string> QtUserInteraction::chooseFile(const FileDialogRequest& request) {
    // Paths travel as the file system's own bytes.
    QFileDialog dialog(m_parent, fromWindows1252(request.title), QFile::decodeName(request.startFolder.c_str()),
                       QtFileFilter(request.filter));
    dialog.setAcceptMode(request.save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setOption(QFileDialog::DontConfirmOverwrite);
    if (!request.fileName.empty()) {
        dialog.selectFile(QFile::decodeName(request.fileName.c_str()));
    }
    if (dialog.exec() != QDialog::Accepted) {
        return std::nullopt; // Cancel, Escape or the close box
    }
    const QStringList chosen = dialog.selectedFiles();
    if (chosen.isEmpty()) {
        return std::string();
    }
    return QFile::encodeName(chosen.front()).toStdString();
}

std::optional<PrinterChoice> QtUserInteraction::choosePrinter() {
    QPrinter printer(QPrinter::HighResolution);
    QPrintDialog dialog(&printer, m_parent);
    if (dialog.exec() != QDialog::Accepted) {
        return std::nullopt; // Cancel, Escape or the close box
    }
    PrinterChoice choice;
    if (printer.outputFormat() == QPrinter::PdfFormat) {
        choice.outputFile = QFile::encodeName(printer.outputFileName()).toStdString();
    } else {
        choice.printerName = printer.printerName().toStdString();
    }
    choice.copies = printer.copyCount();
    return choice;
}

// The viewer runs on by itself; nothing waits for it, and a failure of it is
// not reported.
void QtUserInteraction::showHelpTopic(const std::string& helpFile, std::string_view topic) {
#ifdef _WIN32
    const std::string topicText(topic);
    HtmlHelpA(nullptr, helpFile.c_str(), HH_DISPLAY_TOPIC, reinterpret_cast<DWORD_PTR>(topicText.c_str()));
#else
    HelpViewer::showTopic(std::filesystem::path(helpFile), topic);
#endif
}

} // namespace vesk::gui
