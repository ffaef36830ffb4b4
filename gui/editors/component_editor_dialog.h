// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The dialog of a component editor, one class for the eight kinds, showing the editor's state and forwarding its
// events.
#pragma once

#include "editors/component_editor.h"

#include <QDialog>
#include <functional>
#include <memory>

class QCheckBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;
class QRadioButton;
class QTableWidget;

namespace vesk::gui {

// Runs the work of an event under the program's failure policy; false when it
// did not run to its end.
using EventRunner = std::function<bool(const std::function<void()>&)>;

// frmBRK, frmNozzle, frmPump, frmHose …: modal over the main window. Every
// control carries the system's name. The dialog closes itself after Ok, after
// No to the save question, and when the close box or Escape is let through.
class ComponentEditorDialog : public QDialog {
    Q_OBJECT

  public:
    ComponentEditorDialog(ComponentKind kind, ApplicationState& app, EditorSession& session, UserInteraction& ui,
                          EventRunner runEvent, QWidget* parent = nullptr);
    ~ComponentEditorDialog() override;

    ComponentEditor& editor() { return *m_editor; }
    // Whether Ok ran, so that the main window shows its refilled lists.
    bool okRan() const { return m_okRan; }

    void reject() override;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void build();
    QWidget* buildOptions();
    QWidget* buildGrid();
    QWidget* buildButtons();
    // Runs one event of the editor, then shows its state; false if it failed.
    bool run(const std::function<void()>& work);
    void refresh();
    void refreshGrid();
    void applyFocusRequest();
    bool gridKey(QKeyEvent* event);
    QString name(std::string_view prefix, std::string_view role) const;

    const EditorForm& m_form;
    EventRunner m_runEvent;
    std::unique_ptr<ComponentEditor> m_editor;
    bool m_refreshing = false;
    bool m_okRan = false;
    bool m_failed = false;

    QListWidget* m_list = nullptr;
    QLineEdit* m_name = nullptr;
    QLabel* m_nameLabel = nullptr;
    QCheckBox* m_custom = nullptr;
    QGroupBox* m_fuelFrame = nullptr;
    QGroupBox* m_headFrame = nullptr;
    QRadioButton* m_gas = nullptr;
    QRadioButton* m_diesel = nullptr;
    QRadioButton* m_feet = nullptr;
    QRadioButton* m_psi = nullptr;
    QRadioButton* m_pump50 = nullptr;
    QRadioButton* m_pump60 = nullptr;
    QLabel* m_hoseLengthLabel = nullptr;
    QLineEdit* m_hoseLength = nullptr;
    QRadioButton* m_hoseStandard = nullptr;
    QRadioButton* m_hoseCustomized = nullptr;
    QLabel* m_gpmLabel = nullptr;
    QLabel* m_tdhLabel = nullptr;
    QTableWidget* m_grid = nullptr;
    QPushButton* m_add = nullptr;
    QPushButton* m_edit = nullptr;
    QPushButton* m_delete = nullptr;
    QPushButton* m_save = nullptr;
    QPushButton* m_clear = nullptr;
    QPushButton* m_ok = nullptr;
    QPushButton* m_cancel = nullptr;
};

} // namespace vesk::gui
