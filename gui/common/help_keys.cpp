// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// F1 in the forms of the program: each opens its own help topic, as the table of topics gives it.
#include "gui/common/help_keys.h"

#include "messages/help_topics.h"

#include <QApplication>
#include <QKeyEvent>

namespace vesk::gui {

HelpKeys::HelpKeys(QWidget& mainWindow, const std::filesystem::path& programFolder, UserInteraction& ui)
    : QObject(&mainWindow), m_mainWindow(&mainWindow), m_programFolder(programFolder), m_ui(ui) {
    qApp->installEventFilter(this);
}

HelpKeys::~HelpKeys() {
    qApp->removeEventFilter(this);
}

bool HelpKeys::ownedByMainWindow(const QWidget* window) const {
    for (const QWidget* owner = window; owner != nullptr; owner = owner->parentWidget()) {
        if (owner == m_mainWindow) {
            return true;
        }
    }
    return false;
}

bool HelpKeys::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress || static_cast<QKeyEvent*>(event)->key() != Qt::Key_F1) {
        return false;
    }
    const auto* widget = qobject_cast<QWidget*>(watched);
    if (widget == nullptr || m_mainWindow.isNull()) {
        return false;
    }
    // A list dropped open is a window of its own; its form is the one under it.
    const QWidget* form = widget->window();
    while (form->windowType() == Qt::Popup && form->parentWidget() != nullptr) {
        form = form->parentWidget()->window();
    }
    if (!ownedByMainWindow(form)) {
        return false;
    }
    const std::optional<std::string_view> topic = HelpTopicOf(form->objectName().toStdString());
    if (!topic) {
        return false;
    }
    ShowHelpTopic(m_programFolder / helpFileName, *topic, m_ui);
    return true;
}

} // namespace vesk::gui
