// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The About dialog, frmAbout: the program's name and version.
#pragma once

#include <QDialog>
#include <QString>

namespace vesk::gui {

// "Version " and the program's major and minor number, as "Version 1.0".
QString versionText();

// lblVersion shows "Vesk Version 1.0"; cmdAboutOK closes the dialog.
class AboutDialog : public QDialog {
    Q_OBJECT

  public:
    explicit AboutDialog(QWidget* parent = nullptr);
};

} // namespace vesk::gui
