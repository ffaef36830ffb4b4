// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The one place where the system's line charts meet Qt Charts: gaps and marker shapes.
#include "gui/common/chart_adapter.h"

#include "gui/common/text_codec.h"

#include <QBrush>
#include <QCategoryAxis>
#include <QChart>
#include <QChartView>
#include <QFontInfo>
#include <QFontMetricsF>
#include <QGraphicsSimpleTextItem>
#include <QLineSeries>
#include <QPen>
#include <QScatterSeries>
#include <QValueAxis>
#include <cmath>

namespace vesk::gui {

namespace {

constexpr qreal lineWidth = 2;
constexpr int fifths = 5;

// The row axis under the plot, in pixels: the ticks and the space below them,
// the space between two labels, between the labels and the title, and left
// free under the title and beside the outer labels.
constexpr qreal tickRoom = 7;
constexpr qreal labelGap = 3;
constexpr qreal titleGap = 3;
constexpr qreal edgeRoom = 2;

// A font like `font`, `pixels` high.
QFont sizedFont(QFont font, int pixels) {
    font.setPixelSize(pixels);
    return font;
}

qreal widestText(const QFont& font, const QList<QGraphicsSimpleTextItem*>& items) {
    const QFontMetricsF metrics(font);
    qreal widest = 0;
    for (const QGraphicsSimpleTextItem* item : items) {
        widest = std::max(widest, metrics.horizontalAdvance(item->text()));
    }
    return widest;
}

QScatterSeries::MarkerShape shapeOf(MarkerStyle style) {
    switch (style) {
    case MarkerStyle::FilledTriangle:
        return QScatterSeries::MarkerShapeTriangle;
    case MarkerStyle::Ball:
        break;
    }
    return QScatterSeries::MarkerShapeCircle;
}

} // namespace

QChartView* MakeChartView(const char* name, ChartAdapter*& adapter, QObject* owner) {
    auto* chart = new QChart;
    chart->setBackgroundRoundness(0);
    chart->setMargins(QMargins(4, 4, 4, 4));
    auto* view = new QChartView(chart);
    view->setObjectName(QString::fromLatin1(name));
    view->setRenderHint(QPainter::Antialiasing);
    adapter = new ChartAdapter(chart, owner);
    return view;
}

QColor toQColor(const Rgb& colour) {
    return QColor(colour.red, colour.green, colour.blue);
}

void ShowFlowChart(ChartAdapter& adapter, const FlowChart& chart,
                   const std::array<QColor, ChartAdapter::columnCount>& uncoloured) {
    ChartRows rows;
    rows.title = QString::fromLatin1(flowChartXTitle);
    for (const std::string& label : chart.rowLabels) {
        rows.labels.append(fromWindows1252(label));
    }
    rows.firstX = 1;
    rows.minimum = 0.5;
    rows.maximum = static_cast<qreal>(chart.rowLabels.size()) + 0.5;
    adapter.setRows(rows);
    adapter.setValueAxis({fromWindows1252(chart.yTitle), chart.yMaximum, static_cast<qreal>(chart.yDivisionsPerLabel)});
    for (int column = 0; column < ChartAdapter::columnCount; ++column) {
        const auto index = static_cast<std::size_t>(column);
        const SeriesLook& look = chart.series[index];
        ChartColumn series;
        series.values = chart.cells[index];
        series.marker = look.marker;
        series.markerSize = look.markerSize / twipsPerPixel;
        series.markerFill = toQColor(look.markerFill);
        series.colour = look.colour ? toQColor(*look.colour) : uncoloured[index];
        adapter.setColumn(column, series);
    }
}

void ShowPumpCurve(ChartAdapter& adapter, const PumpCurveChart& curve) {
    adapter.setTitle(fromWindows1252(curve.title));
    ChartRows rows;
    rows.title = fromWindows1252(curve.xTitle);
    for (const std::string& label : curve.rowLabels) {
        rows.labels.append(fromWindows1252(label));
    }
    rows.firstX = 0;
    rows.labelEvery = curve.xDivisions;
    rows.minimum = curve.xMinimum.value_or(0);
    rows.maximum = curve.xMaximum;
    adapter.setRows(rows);
    adapter.setValueAxis({fromWindows1252(curve.yTitle), curve.yMaximum, static_cast<qreal>(curve.yDivisions)});
    ChartColumn series;
    series.values.reserve(curve.points.size());
    for (const Single head : curve.points) {
        series.values.push_back(head == -1 ? std::nullopt : std::optional<Single>(head));
    }
    series.colour = QColor(0, 0, 160);
    adapter.setColumn(0, series);
}

ChartAdapter::ChartAdapter(QChart* chart, QObject* parent)
    : QObject(parent), m_chart(chart), m_rowAxis(new QCategoryAxis), m_valueAxis(new QValueAxis),
      m_rowTitle(new QGraphicsSimpleTextItem(chart)), m_baseMargins(chart->margins()) {
    m_chart->legend()->hide();
    m_rowAxis->setLabelsPosition(QCategoryAxis::AxisLabelsPositionOnValue);
    // The axis draws the ticks and the grid; the labels and the title are ours.
    m_rowAxis->setLabelsVisible(false);
    m_rowAxis->setTitleVisible(false);
    connect(m_chart, &QChart::plotAreaChanged, this, [this] { layOutRowAxis(); });
    m_valueAxis->setLabelFormat(QStringLiteral("%g"));
    m_valueAxis->setTickType(QValueAxis::TicksDynamic);
    m_valueAxis->setTickAnchor(0);
    m_chart->addAxis(m_rowAxis, Qt::AlignBottom);
    m_chart->addAxis(m_valueAxis, Qt::AlignLeft);
}

void ChartAdapter::setTitle(const QString& title) {
    m_chart->setTitle(title);
}

void ChartAdapter::setRows(const ChartRows& rows) {
    m_firstX = rows.firstX;
    m_rowAxis->setTitleText(rows.title);
    m_rowTitle->setText(rows.title);
    for (const QString& label : m_rowAxis->categoriesLabels()) {
        m_rowAxis->remove(label);
    }
    qDeleteAll(m_rowLabels);
    m_rowLabels.clear();
    m_rowLabelX.clear();
    m_rowAxis->setStartValue(rows.minimum);
    const int every = std::max(rows.labelEvery, 1);
    for (qsizetype row = 0; row < rows.labels.size(); row += every) {
        const qreal x = rows.firstX + static_cast<qreal>(row);
        m_rowAxis->append(rows.labels[row], x);
        m_rowLabels.append(new QGraphicsSimpleTextItem(rows.labels[row], m_chart));
        m_rowLabelX.append(x);
    }
    m_rowAxis->setRange(rows.minimum, std::max(rows.maximum, rows.minimum + 1));
    layOutRowAxis();
}

void ChartAdapter::setValueAxis(const ChartValueAxis& axis) {
    m_valueAxis->setTitleText(axis.title);
    m_valueMaximum = axis.maximum > 0 ? axis.maximum : 1;
    m_valueAxis->setTickInterval(axis.step > 0 ? axis.step : m_valueMaximum / fifths);
    fitValueRange();
}

void ChartAdapter::fitValueRange() {
    qreal overhang = lineWidth / 2;
    for (const ColumnSeries& column : m_columns) {
        if (column.markers != nullptr) {
            overhang = std::max(overhang, column.markers->markerSize() / 2 + column.markers->pen().widthF());
        }
    }
    const qreal height = m_chart->plotArea().height();
    qreal top = m_valueMaximum;
    if (height > 4 * overhang) {
        // The maximum stands `overhang` pixels under the top of the plot.
        top = m_valueMaximum * height / (height - overhang);
    }
    if (std::abs(m_valueAxis->max() - top) > m_valueMaximum * 1e-9 || m_valueAxis->min() != 0) {
        m_valueAxis->setRange(0, top);
    }
}

void ChartAdapter::layOutRowAxis() {
    const QRectF plot = m_chart->plotArea();
    const qreal span = m_rowAxis->max() - m_rowAxis->min();
    if (plot.width() <= 0 || span <= 0) {
        return;
    }
    const qreal pixelsPerRow = plot.width() / span;
    const auto xOf = [&](qsizetype label) {
        return plot.left() + (m_rowLabelX[label] - m_rowAxis->min()) * pixelsPerRow;
    };

    // The largest font, from the axis's own down to the smallest readable one,
    // in which the widest label leaves a gap to the next; else the axis's own
    // font on end.
    const QFont axisFont = m_rowAxis->labelsFont();
    const int axisPixels = QFontInfo(axisFont).pixelSize();
    qreal spacing = plot.width();
    for (qsizetype label = 1; label < m_rowLabels.size(); ++label) {
        spacing = std::min(spacing, xOf(label) - xOf(label - 1));
    }
    QFont font = axisFont;
    bool onEnd = true;
    for (int pixels = axisPixels; pixels >= smallestRowLabelPixels; --pixels) {
        if (widestText(sizedFont(axisFont, pixels), m_rowLabels) + labelGap <= spacing) {
            font = sizedFont(axisFont, pixels);
            onEnd = false;
            break;
        }
    }
    const QFontMetricsF metrics(font);
    const qreal labelsHeight = onEnd ? widestText(font, m_rowLabels) : metrics.height();

    // Each label centred under its row, whole.
    const qreal labelsTop = plot.bottom() + tickRoom;
    for (qsizetype label = 0; label < m_rowLabels.size(); ++label) {
        QGraphicsSimpleTextItem* item = m_rowLabels[label];
        const qreal x = xOf(label);
        item->setVisible(x >= plot.left() - 0.5 && x <= plot.right() + 0.5);
        item->setFont(font);
        item->setBrush(m_rowAxis->labelsBrush());
        const qreal width = metrics.horizontalAdvance(item->text());
        if (onEnd) {
            item->setRotation(-90);
            item->setPos(x - metrics.height() / 2, labelsTop + width);
        } else {
            item->setRotation(0);
            item->setPos(x - width / 2, labelsTop);
        }
    }
    // In the look the chart's theme gives the axis.
    m_rowTitle->setFont(m_rowAxis->titleFont());
    m_rowTitle->setBrush(m_rowAxis->titleBrush());
    const QRectF title = m_rowTitle->boundingRect();
    const qreal titleTop = labelsTop + labelsHeight + titleGap;
    m_rowTitle->setPos(plot.center().x() - title.width() / 2, titleTop);

    // The room below the plot for the labels and the title, and beside it for
    // half the outer labels in the axis's own font; what the chart gives
    // beyond its margins stays as it is.
    const QRectF whole = m_chart->rect();
    const QMargins margins = m_chart->margins();
    const qreal halfWidest = widestText(axisFont, m_rowLabels) / 2;
    const auto marginFor = [](int base, int current, qreal given, qreal needed) {
        const qreal beyondMargin = given - current;
        return std::max(base, static_cast<int>(std::ceil(needed + base - beyondMargin)));
    };
    QMargins wanted = m_baseMargins;
    wanted.setBottom(marginFor(m_baseMargins.bottom(), margins.bottom(), whole.bottom() - plot.bottom(),
                               titleTop + title.height() - plot.bottom()));
    if (!m_rowLabels.isEmpty()) {
        wanted.setRight(marginFor(m_baseMargins.right(), margins.right(), whole.right() - plot.right(),
                                  xOf(m_rowLabels.size() - 1) - plot.right() + halfWidest + edgeRoom));
        wanted.setLeft(marginFor(m_baseMargins.left(), margins.left(), plot.left() - whole.left(),
                                 plot.left() - xOf(0) + halfWidest + edgeRoom));
    }
    if (wanted != margins) {
        m_chart->setMargins(wanted);
    }
    fitValueRange();
}

void ChartAdapter::setColumn(int column, const ChartColumn& data) {
    ColumnSeries& own = m_columns.at(static_cast<std::size_t>(column));
    for (QLineSeries* run : own.runs) {
        m_chart->removeSeries(run);
        delete run;
    }
    own.runs.clear();
    if (own.markers != nullptr) {
        m_chart->removeSeries(own.markers);
        delete own.markers;
        own.markers = nullptr;
    }

    QPen pen(data.colour);
    pen.setWidthF(lineWidth);
    QList<QPointF> run;
    QList<QPointF> points;
    const auto endRun = [&] {
        if (!run.isEmpty()) {
            auto* series = new QLineSeries;
            series->setPen(pen);
            series->replace(run);
            own.runs.append(series);
            run.clear();
        }
    };
    for (std::size_t row = 0; row < data.values.size(); ++row) {
        const std::optional<Single>& value = data.values[row];
        if (!value) {
            endRun(); // a row without a value is a gap in the line
            continue;
        }
        const QPointF point(m_firstX + static_cast<qreal>(row), static_cast<qreal>(*value));
        run.append(point);
        points.append(point);
    }
    endRun();

    if (data.marker) {
        own.markers = new QScatterSeries;
        own.markers->setMarkerShape(shapeOf(*data.marker));
        own.markers->setMarkerSize(data.markerSize);
        own.markers->setBrush(QBrush(data.markerFill));
        own.markers->setPen(QPen(data.colour));
        own.markers->replace(points);
        connect(own.markers, &QScatterSeries::hovered, this, [this, column](const QPointF& point, bool state) {
            emit pointHovered(column, static_cast<int>(std::lround(point.x() - m_firstX)), state);
        });
    }
    restack();
    fitValueRange();
}

const QList<QLineSeries*>& ChartAdapter::lineRuns(int column) const {
    return m_columns.at(static_cast<std::size_t>(column)).runs;
}

QScatterSeries* ChartAdapter::markers(int column) const {
    return m_columns.at(static_cast<std::size_t>(column)).markers;
}

void ChartAdapter::restack() {
    QList<QAbstractSeries*> order;
    for (const ColumnSeries& column : m_columns) {
        for (QLineSeries* run : column.runs) {
            order.append(run);
        }
    }
    for (const ColumnSeries& column : m_columns) {
        if (column.markers != nullptr) {
            order.append(column.markers);
        }
    }
    for (QAbstractSeries* series : order) {
        if (series->chart() == m_chart) {
            m_chart->removeSeries(series);
        }
    }
    for (QAbstractSeries* series : order) {
        m_chart->addSeries(series);
        series->attachAxis(m_rowAxis);
        series->attachAxis(m_valueAxis);
    }
}

} // namespace vesk::gui
