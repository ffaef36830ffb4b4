// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The Update dialog, frmUpdate: a maker's component file merged into the program's own.
#pragma once

#include "gui/workbench/window_context.h"

#include <QDialog>
#include <string>

class QLineEdit;

namespace vesk::gui {

// Browse chooses the maker's file and shows its path; Update checks the name,
// asks, merges, and closes the dialog unless message 12 was shown. After a
// merge that wrote the file the main window has been initialised anew.
class UpdateDialog : public QDialog {
    Q_OBJECT

  public:
    UpdateDialog(WindowContext& context, QWidget* parent = nullptr);

    void pressBrowse();
    void pressUpdate();
    // Whether an Update wrote the file, so that the main window shows its
    // state anew.
    bool merged() const { return m_merged; }

  private:
    WindowContext& m_context;
    // The path chosen with Browse, as the form keeps it.
    std::string m_selectedPath;
    bool m_merged = false;
    QLineEdit* m_txtFilePath;
};

// Options > Update: the dialog, modal over `parent`. Returns whether the
// component file was written (and the main window initialised anew).
bool ShowUpdate(QWidget* parent, WindowContext& context);

} // namespace vesk::gui
