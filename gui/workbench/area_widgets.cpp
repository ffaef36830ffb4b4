// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The small pieces the areas of the main window are made of.
#include "gui/workbench/area_widgets.h"

#include "gui/common/text_codec.h"

#include <QHBoxLayout>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace vesk::gui {

QString qs(const std::string& bytes) {
    return fromWindows1252(bytes);
}

QLabel* caption(const QString& text) {
    return new QLabel(text);
}

QGroupBox* frame(const char* name, const char* title) {
    return named(new QGroupBox(QString::fromLatin1(title)), name);
}

void nameAreaFrame(QGroupBox& box, Area area) {
    const AreaInfo& info = at(areas, static_cast<long>(area));
    box.setObjectName(QString::fromLatin1(info.frame));
    box.setTitle(QString::fromLatin1(info.frameCaption));
}

QGroupBox* helpFrame(Area area) {
    const AreaInfo& info = at(areas, static_cast<long>(area));
    auto* box = new QGroupBox(QStringLiteral("Help"));
    auto* label = named(new QLabel(QString::fromLatin1(info.helpText)), info.helpLabel);
    label->setWordWrap(true);
    label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    auto* layout = new QVBoxLayout(box);
    layout->addWidget(label);
    return box;
}

void showOption(QRadioButton* option, bool on) {
    if (!on && option->isChecked()) {
        option->setAutoExclusive(false);
        option->setChecked(false);
        option->setAutoExclusive(true);
        return;
    }
    option->setChecked(on);
}

QWidget* recommendation(const char* buttonName, const char* boxName, QListWidget* list) {
    auto* row = new QWidget;
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* button = named(new QPushButton(QStringLiteral("Recommend")), buttonName);
    button->setEnabled(false);
    auto* box = named(new QLineEdit, boxName);
    box->setReadOnly(true);
    box->setEnabled(false);
    layout->addWidget(button);
    layout->addWidget(box, 1);
    if (list != nullptr) {
        list->setMaximumHeight(list->fontMetrics().height() * 3);
        layout->addWidget(list, 1);
    }
    return row;
}

} // namespace vesk::gui
