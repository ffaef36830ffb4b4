// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// A chart of the core drawn by Qt Charts away from any window, to be painted on a page or turned into a picture.
#include "gui/reports/chart_picture.h"

#include <QApplication>
#include <QChart>
#include <QPainter>

namespace vesk::gui {

ChartPicture::ChartPicture(QSize pixels) : m_pixels(pixels), m_chart(new QChart) {
    m_chart->setBackgroundRoundness(0);
    m_chart->setMargins(QMargins(4, 4, 4, 4));
    m_chart->setAnimationOptions(QChart::NoAnimation);
    m_scene.addItem(m_chart); // the scene owns the chart
    m_adapter = new ChartAdapter(m_chart, &m_scene);
}

void ChartPicture::layOut() {
    m_chart->setGeometry(QRectF(QPointF(0, 0), QSizeF(m_pixels)));
    m_scene.setSceneRect(QRectF(QPointF(0, 0), QSizeF(m_pixels)));
    // The chart lays its plot out on the layout request it posts to itself.
    QApplication::sendPostedEvents(m_chart, QEvent::LayoutRequest);
    QApplication::sendPostedEvents();
}

void ChartPicture::paint(QPainter& painter, const QRectF& target) {
    layOut();
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    m_scene.render(&painter, target, m_scene.sceneRect(), Qt::IgnoreAspectRatio);
    painter.restore();
}

QImage ChartPicture::image() {
    layOut();
    QImage picture(m_pixels, QImage::Format_RGB32);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    m_scene.render(&painter, QRectF(picture.rect()), m_scene.sceneRect());
    return picture;
}

} // namespace vesk::gui
