// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// Screenshots of the windows under test, for a person to look at.
#pragma once

#include <QString>

class QWidget;

namespace vesk::gui::test {

// Grabs the widget to screenshots/<name>.png under the build tree, so a person
// can look at it; returns the file's path.
QString saveScreenshot(QWidget* widget, const QString& name);

} // namespace vesk::gui::test
