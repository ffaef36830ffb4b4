// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The Options menu entries of the eight component editors, and what outlives one editor.
#include "gui/editors/editor_menu.h"

#include <QAction>
#include <QWidget>

namespace vesk::gui {

ComponentEditorMenu::ComponentEditorMenu(QWidget& window, ApplicationState& app, UserInteraction& ui,
                                         EventRunner runEvent, std::function<void()> afterOk)
    : QObject(&window), m_window(window), m_app(app), m_ui(ui), m_runEvent(std::move(runEvent)),
      m_afterOk(std::move(afterOk)) {
    setObjectName(QStringLiteral("componentEditorMenu"));
    for (const EditorForm& form : editorForms) {
        auto* action = window.findChild<QAction*>(
            QString::fromLatin1(form.menuItem.data(), static_cast<qsizetype>(form.menuItem.size())));
        if (action != nullptr) {
            const ComponentKind kind = form.kind;
            connect(action, &QAction::triggered, this, [this, kind] { open(kind); });
        }
    }
}

void ComponentEditorMenu::open(ComponentKind kind) {
    // The load converts the catalogue, which may fail like any event.
    std::unique_ptr<ComponentEditorDialog> dialog;
    if (!m_runEvent([&] {
            dialog = std::make_unique<ComponentEditorDialog>(kind, m_app, m_session, m_ui, m_runEvent, &m_window);
        })) {
        return;
    }
    dialog->exec();
    if (dialog->okRan() && m_afterOk) {
        m_afterOk();
    }
}

} // namespace vesk::gui
