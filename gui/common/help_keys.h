// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// F1 in the forms of the program: each opens its own help topic, as the table of topics gives it.
#pragma once

#include "messages/user_interaction.h"

#include <QObject>
#include <QPointer>
#include <QWidget>
#include <filesystem>

namespace vesk::gui {

// Sees every key before the controls of a form do, as the forms see them.
// F1 pressed in `mainWindow`, or in a window it owns (its dialogs), opens the
// topic of that window's form, found by its object name in the table of
// topics (HelpTopicOf: "frmMain", "frmData", "frmPump" …), with the help file
// of the program folder (ShowHelpTopic: message 32 when the file is missing,
// and the form goes on). A form without a topic (frmDetails, frmAbout …)
// gets nothing from F1; every other key goes on to the controls.
class HelpKeys : public QObject {
    Q_OBJECT

  public:
    // `programFolder` is read at each F1, so it may change while the keys live.
    HelpKeys(QWidget& mainWindow, const std::filesystem::path& programFolder, UserInteraction& ui);
    ~HelpKeys() override;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    bool ownedByMainWindow(const QWidget* window) const;

    QPointer<QWidget> m_mainWindow;
    const std::filesystem::path& m_programFolder;
    UserInteraction& m_ui;
};

} // namespace vesk::gui
