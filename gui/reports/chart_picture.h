// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// A chart of the core drawn by Qt Charts away from any window, to be painted on a page or turned into a picture.
#pragma once

#include "gui/common/chart_adapter.h"

#include <QGraphicsScene>
#include <QImage>
#include <QSize>

class QPainter;

namespace vesk::gui {

// Series drawn without colours of their own take the chart's default colours.
inline const std::array<QColor, ChartAdapter::columnCount> chartDefaultColours{QColor(32, 159, 223),
                                                                               QColor(153, 202, 83)};

class ChartPicture {
  public:
    // A chart laid out at `pixels`, its fonts in the screen's sizes.
    explicit ChartPicture(QSize pixels);
    ChartPicture(const ChartPicture&) = delete;
    ChartPicture& operator=(const ChartPicture&) = delete;

    ChartAdapter& adapter() { return *m_adapter; }

    // Paints the chart into `target`, in the painter's own units, as lines,
    // shapes and text: sharp at any zoom on paper and in a PDF.
    void paint(QPainter& painter, const QRectF& target);
    // The chart as a picture of its own size.
    QImage image();

  private:
    void layOut();

    QSize m_pixels;
    QGraphicsScene m_scene;
    QChart* m_chart;
    ChartAdapter* m_adapter = nullptr;
};

} // namespace vesk::gui
