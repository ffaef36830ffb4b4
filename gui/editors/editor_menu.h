// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The Options menu entries of the eight component editors, and what outlives one editor.
#pragma once

#include "gui/editors/component_editor_dialog.h"

#include <QObject>

namespace vesk::gui {

// Connects the entries mnuDispensers … mnuHoses found in `window` to their
// editors, each shown modally over `window`. After an Ok, `afterOk` lets the
// window show its refilled lists. Lives as a child of `window`, holding the
// flags the editors share.
class ComponentEditorMenu : public QObject {
    Q_OBJECT

  public:
    ComponentEditorMenu(QWidget& window, ApplicationState& app, UserInteraction& ui, EventRunner runEvent,
                        std::function<void()> afterOk);

    // Opens the editor of a kind, modal, until it closes.
    void open(ComponentKind kind);
    EditorSession& session() { return m_session; }

  private:
    QWidget& m_window;
    ApplicationState& m_app;
    UserInteraction& m_ui;
    EventRunner m_runEvent;
    std::function<void()> m_afterOk;
    EditorSession m_session;
};

} // namespace vesk::gui
