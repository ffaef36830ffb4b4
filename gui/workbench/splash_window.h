// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The splash window, frmSplash: the first window, which loads the main one.
#pragma once

#include <QTimer>
#include <QWidget>
#include <functional>

class QLabel;

namespace vesk::gui {

// Waits `milliseconds` by the timer while letting the window system deliver
// events: target = timer + milliseconds, kept as a Single, and events run
// while the target is above the timer. The timer is the milliseconds since the
// machine's start as a signed 32-bit number, so long after the start the
// Single target makes the wait some milliseconds longer or shorter.
void Delay(float milliseconds);

// A frameless window without a title of its own, with the product name and the
// version. When it is first shown it runs the Delay, calls the loader of the
// main window, and closes itself.
class SplashWindow : public QWidget {
    Q_OBJECT

  public:
    explicit SplashWindow(QWidget* parent = nullptr);

    // Shows the window (if it is not shown yet) and, once it is on the screen,
    // waits, calls `loadMain` and closes. `loadMain` runs inside the event
    // loop, so it handles its own exceptions.
    void runThen(std::function<void()> loadMain, int milliseconds = 2000);

  protected:
    void showEvent(QShowEvent* event) override;

  private:
    void startWhenReady();
    void waitAndLoad();

    QTimer m_startTimer;
    std::function<void()> m_loadMain;
    int m_milliseconds = 2000;
    bool m_shown = false;
    bool m_started = false;
};

} // namespace vesk::gui
