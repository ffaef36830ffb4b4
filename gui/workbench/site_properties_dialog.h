// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The Site Properties dialog, frmSiteProperties: the ten texts of a site and its report.
#pragma once

#include "workbench/application_state.h"

#include "messages/user_interaction.h"

#include <QDialog>
#include <array>

class QCheckBox;
class QLineEdit;
class QPushButton;

namespace vesk::gui {

// The dialog over the form state of the application: its show loads the form
// from clsSiteProperties unless a site read has left it loaded (hidden, with
// the file's texts), and every edit goes straight into the form state. Each
// box takes at most 35 characters and passes its keys through the key filters
// of the form; leaving the e-mail box for another control runs its check. A
// mouse press on Cancel sets the cancelling flag before the e-mail box loses
// the focus to it. Ok stores the texts into the class; Cancel, Escape and the
// close box unload the form and store nothing.
class SitePropertiesDialog : public QDialog {
    Q_OBJECT

  public:
    SitePropertiesDialog(ApplicationState& app, UserInteraction& ui, QWidget* parent = nullptr);

    // cmdOk: the texts and the print switch into clsSiteProperties, the form unloaded.
    void pressOk();
    // cmdCancel's click, Escape and the close box: the form unloaded, nothing stored.
    void reject() override;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    // The box's index in its frame and whether it is one of the report's.
    struct Box {
        int index;
        bool report;
    };
    Box boxOf(const QObject* watched) const;
    std::string& textOf(Box box);
    void showForm();

    ApplicationState& m_app;
    UserInteraction& m_ui;
    std::array<QLineEdit*, 5> m_txtSiteInfo{};
    std::array<QLineEdit*, 5> m_txtReport{};
    QCheckBox* m_chkPrint = nullptr;
    QPushButton* m_cmdOk = nullptr;
    QPushButton* m_cmdCancel = nullptr;
};

// Options > Site Properties: the dialog, modal over `parent`. Returns whether
// Ok was pressed.
bool ShowSiteProperties(QWidget* parent, ApplicationState& app, UserInteraction& ui);

} // namespace vesk::gui
