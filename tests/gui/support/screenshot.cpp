// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// Screenshots of the windows under test, for a person to look at.
#include "gui/support/screenshot.h"

#include <QDir>
#include <QPixmap>
#include <QWidget>

namespace vesk::gui::test {

QString saveScreenshot(QWidget* widget, const QString& name) {
    QDir().mkpath(VESK_SCREENSHOT_DIR);
    const QString file = QStringLiteral(VESK_SCREENSHOT_DIR) + "/" + name + ".png";
    widget->grab().save(file);
    return file;
}

} // namespace vesk::gui::test
