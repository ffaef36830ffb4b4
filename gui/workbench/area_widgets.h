// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The small pieces the areas of the main window are made of.
#pragma once

#include "workbench/panel_fields.h"

#include <QGroupBox>
#include <QLabel>
#include <QString>
#include <string>

class QListWidget;
class QRadioButton;

namespace vesk::gui {

// A widget carries the system's own control name as its object name.
template <class Widget> Widget* named(Widget* widget, const char* name) {
    widget->setObjectName(QString::fromLatin1(name));
    return widget;
}

// The core's Windows-1252 text as Qt's.
QString qs(const std::string& bytes);

// A plain caption.
QLabel* caption(const QString& text);

// A named frame with its title.
QGroupBox* frame(const char* name, const char* title);

// Names and titles the frame of an area as the table of the areas says.
void nameAreaFrame(QGroupBox& box, Area area);

// The "Help" frame at the foot of an area, with the area's help text.
QGroupBox* helpFrame(Area area);

// An option button as the panel has it; both of a pair may be off.
void showOption(QRadioButton* option, bool on);

// The inert controls of the recommendation feature: a disabled button and a
// disabled, locked box, and, where the area has one, a list.
QWidget* recommendation(const char* buttonName, const char* boxName, QListWidget* list);

} // namespace vesk::gui
