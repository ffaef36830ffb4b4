// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// A label that acts as a push button: the report pages' Print, Next, Prev and Close.
#include "gui/reports/label_button.h"

#include <QKeyEvent>
#include <QPainter>
#include <QStyleOptionFocusRect>
#include <QStylePainter>

namespace vesk::gui {

namespace {
constexpr int padding = 6;
} // namespace

LabelButton::LabelButton(const QString& caption, QWidget* parent) : QAbstractButton(parent) {
    setText(caption);
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::PointingHandCursor);
    setAccessibleName(caption);
    QFont bold = font();
    bold.setBold(true);
    bold.setUnderline(true);
    setFont(bold);
    setForegroundRole(QPalette::Link);
}

QSize LabelButton::sizeHint() const {
    const QSize textSize = fontMetrics().size(Qt::TextShowMnemonic, text());
    return textSize + QSize(2 * padding, 2 * padding);
}

void LabelButton::paintEvent(QPaintEvent* /*event*/) {
    QStylePainter painter(this);
    painter.setPen(palette().color(QPalette::Link));
    painter.drawText(rect(), Qt::AlignCenter | Qt::TextShowMnemonic, text());
    if (borderStyle() == 1) {
        painter.setPen(QPen(palette().color(QPalette::WindowText), 1));
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }
    if (hasFocus()) {
        QStyleOptionFocusRect focus;
        focus.initFrom(this);
        focus.rect = rect().adjusted(2, 2, -2, -2);
        painter.drawPrimitive(QStyle::PE_FrameFocusRect, focus);
    }
}

void LabelButton::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        animateClick();
        return;
    }
    QAbstractButton::keyPressEvent(event);
}

} // namespace vesk::gui
