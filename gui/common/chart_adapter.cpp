// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The one place where the system's line charts meet Qt Charts: gaps and marker shapes.
#include "gui/common/chart_adapter.h"

#include "gui/common/text_codec.h"

#include <QBrush>
#include <QCategoryAxis>
#include <QChart>
#include <QChartView>
#include <QLineSeries>
#include <QPen>
#include <QScatterSeries>
#include <QValueAxis>
#include <cmath>

namespace vesk::gui {

namespace {

constexpr qreal lineWidth = 2;
constexpr int fifths = 5;

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
    : QObject(parent), m_chart(chart), m_rowAxis(new QCategoryAxis), m_valueAxis(new QValueAxis) {
    m_chart->legend()->hide();
    m_rowAxis->setLabelsPosition(QCategoryAxis::AxisLabelsPositionOnValue);
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
    for (const QString& label : m_rowAxis->categoriesLabels()) {
        m_rowAxis->remove(label);
    }
    m_rowAxis->setStartValue(rows.minimum);
    const int every = std::max(rows.labelEvery, 1);
    for (qsizetype row = 0; row < rows.labels.size(); row += every) {
        m_rowAxis->append(rows.labels[row], rows.firstX + static_cast<qreal>(row));
    }
    m_rowAxis->setRange(rows.minimum, std::max(rows.maximum, rows.minimum + 1));
}

void ChartAdapter::setValueAxis(const ChartValueAxis& axis) {
    m_valueAxis->setTitleText(axis.title);
    const qreal maximum = axis.maximum > 0 ? axis.maximum : 1;
    m_valueAxis->setRange(0, maximum);
    m_valueAxis->setTickInterval(axis.step > 0 ? axis.step : maximum / fifths);
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
