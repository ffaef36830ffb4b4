// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// A label that acts as a push button: the report pages' Print, Next, Prev and Close.
#pragma once

#include <QAbstractButton>

namespace vesk::gui {

// Looks like a label, with a border while it is pressed; acts on the click.
// Being a button underneath, it takes the focus by Tab, is pressed with the
// space bar, Enter or Return, and assistive technology sees a push button
// with its press action.
class LabelButton : public QAbstractButton {
    Q_OBJECT

  public:
    explicit LabelButton(const QString& caption, QWidget* parent = nullptr);

    QSize sizeHint() const override;

    // The border the label shows: 1 while pressed, else 0.
    int borderStyle() const { return isDown() ? 1 : 0; }

  protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
};

} // namespace vesk::gui
