// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The splash window, frmSplash: the first window, which loads the main one.
#include "gui/workbench/splash_window.h"

#include "gui/workbench/about_dialog.h"

#include "engine/numeric.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFrame>
#include <QLabel>
#include <QScreen>
#include <QTimer>
#include <QVBoxLayout>
#include <chrono>
#include <cstdint>
#include <thread>

namespace vesk::gui {

namespace {

// The multimedia timer: milliseconds since the machine's start, read as a
// signed 32-bit number (it turns negative after 24.8 days).
std::int32_t readTimer() {
    QElapsedTimer now;
    now.start();
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(now.msecsSinceReference()));
}

QLabel* splashLabel(const char* name, const QString& text, double pointScale, QWidget* parent) {
    auto* label = new QLabel(text, parent);
    label->setObjectName(QString::fromLatin1(name));
    label->setAlignment(Qt::AlignCenter);
    QFont font = label->font();
    font.setPointSizeF(font.pointSizeF() * pointScale);
    font.setBold(pointScale > 1.5);
    label->setFont(font);
    return label;
}

} // namespace

void Delay(float milliseconds) {
    const Single target = toSingle(static_cast<Double>(readTimer()) + milliseconds);
    while (static_cast<Double>(target) > static_cast<Double>(readTimer())) {
        QApplication::processEvents();
        // A short rest between the rounds of events keeps the wait from
        // spinning a core; it changes nothing of what runs.
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
}

SplashWindow::SplashWindow(QWidget* parent) : QWidget(parent, Qt::SplashScreen | Qt::FramelessWindowHint) {
    setObjectName(QStringLiteral("frmSplash"));
    setWindowTitle(QString());

    auto* frame = new QFrame(this);
    frame->setFrameStyle(QFrame::Box | QFrame::Raised);
    frame->setLineWidth(2);

    // The product name is set twice at load, first as the text and then from
    // the version record: both say "Vesk".
    auto* lblProductName = splashLabel("lblProductName", QStringLiteral("Vesk"), 3.0, frame);
    lblProductName->setText(QStringLiteral("Vesk"));
    auto* lblVersion = splashLabel("lblVersion", versionText(), 1.2, frame);

    auto* inner = new QVBoxLayout(frame);
    inner->setContentsMargins(32, 32, 32, 32);
    inner->addStretch();
    inner->addWidget(lblProductName);
    inner->addSpacing(12);
    inner->addWidget(lblVersion);
    inner->addStretch();

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(frame);
    setFixedSize(420, 260);

    m_startTimer.setSingleShot(true);
    connect(&m_startTimer, &QTimer::timeout, this, &SplashWindow::waitAndLoad);
}

void SplashWindow::runThen(std::function<void()> loadMain, int milliseconds) {
    // Showing a splash window lets pending events run; the loader is set only
    // afterwards, so the wait starts from the event loop and not inside show().
    if (!isVisible()) {
        if (const QScreen* display = screen()) {
            move(display->availableGeometry().center() - rect().center());
        }
        show();
    }
    m_loadMain = std::move(loadMain);
    m_milliseconds = milliseconds;
    startWhenReady();
}

void SplashWindow::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    m_shown = true;
    startWhenReady();
}

void SplashWindow::startWhenReady() {
    if (!m_shown || !m_loadMain || m_started) {
        return;
    }
    m_started = true;
    // From the event loop after the show, as an activation would.
    m_startTimer.start(0);
}

void SplashWindow::waitAndLoad() {
    Delay(static_cast<float>(m_milliseconds));
    m_loadMain();
    close();
}

} // namespace vesk::gui
