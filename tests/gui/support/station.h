// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// A station under test: a program folder, the application started on it and the main window over it.
#pragma once

#include "gui/common/field_filters.h"
#include "gui/workbench/main_window.h"
#include "support/recording_interaction.h"
#include "support/temp_program_folder.h"
#include "workbench/application_state.h"

#include <QColor>
#include <QComboBox>
#include <QLineEdit>
#include <QString>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

class QAction;
class QDialog;
class QMenu;

namespace vesk::gui::test {

using vesk::test::RecordingInteraction;
using vesk::test::TempProgramFolder;

// The colour of the site picture written for a pump quantity and a number of
// branches, each of its own, so a test can tell which picture is shown.
QColor sitePictureColour(int pumps, int branches);
// Writes a picture of its own colour for every pump quantity and number of branches.
void writeSitePictures(const TempProgramFolder& folder);

// Types keys into a widget as the user does, the characters outside ASCII too.
void typeKeys(QWidget* widget, const QString& keys);

// A program folder, the state start-up builds from it, and the window over it;
// the boxes are recorded and the file dialogs answered from a script.
class Station {
  public:
    // On a copy of the shipped program folder with site pictures of their own
    // colours, changed by `prepare` before start-up.
    explicit Station(const std::function<void(const TempProgramFolder&)>& prepare = {});
    // On a program folder that the test keeps, as a second start of the program.
    explicit Station(const TempProgramFolder& programFolder);

  private:
    std::optional<TempProgramFolder> m_ownFolder; // before `folder`, which may refer to it

  public:
    const TempProgramFolder& folder;
    ApplicationState app;
    RecordingInteraction ui;
    std::unique_ptr<MainWindow> window;
    std::vector<int> programEnds;

    template <class Widget = QWidget> Widget* find(const char* name) const {
        auto* widget = window->findChild<Widget*>(QString::fromLatin1(name));
        if (widget == nullptr) {
            qWarning("no control named %s", name);
        }
        return widget;
    }
    QMenu* menu(const char* name) const;
    QAction* action(const char* name) const;
    void trigger(const char* name) const;
    QLineEdit* field(const char* name) const { return find<QLineEdit>(name); }
    FieldFilter* filterOf(const char* name) const { return field(name)->findChild<FieldFilter*>(); }
    void click(const char* name) const;
    // A site file of the program folder's site folder.
    std::string sitePath(const char* name) const;
    QString site(const char* name) const { return QString::fromStdString(sitePath(name)); }

    // Types into a field as the user does: the old text selected and replaced.
    void type(const char* name, const QString& keys) const;
    // Types a text and leaves the field, which runs its check; true when the
    // check refused the text and kept the focus.
    bool enter(const char* name, const QString& text) const;
    // Chooses an entry of a list as a click in its drop-down does.
    void choose(const char* name, int index) const;
    // Shows the window at 1280x800 and waits until it is active.
    void show() const;

    // Opens a dialog from a menu command and runs `drive` on it while it is up;
    // a dialog still open afterwards is rejected. Returns whether it came up.
    bool driveDialog(const char* command, const std::function<void(QDialog*)>& drive) const;
    // Runs System Settings over the window and presses Ok with the units given.
    void chooseUnits(bool metric) const;
    // Opens Options > Site Properties and runs `drive` on the dialog.
    bool siteProperties(const std::function<void(QDialog*)>& drive) const {
        return driveDialog("mnuSiteProperties", drive);
    }

  private:
    void start();
};

} // namespace vesk::gui::test
