// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// Finding a window's controls by the system's names, for the window tests.
#pragma once

#include <QAbstractButton>
#include <QLabel>
#include <QString>
#include <QTest>
#include <QWidget>

namespace vesk::gui::test {

// The control of `parent` with the system's name, or none with a warning.
template <typename T> T* child(QWidget* parent, const char* name) {
    T* widget = parent->findChild<T*>(QString::fromLatin1(name));
    if (widget == nullptr) {
        qWarning("no control named %s", name);
    }
    return widget;
}

inline QString labelText(QWidget* parent, const char* name) {
    const QLabel* label = child<QLabel>(parent, name);
    return label != nullptr ? label->text() : QStringLiteral("<missing %1>").arg(QLatin1String(name));
}

inline void click(QWidget* parent, const char* name) {
    QAbstractButton* button = child<QAbstractButton>(parent, name);
    QVERIFY(button != nullptr);
    button->click();
}

} // namespace vesk::gui::test
