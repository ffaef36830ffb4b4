// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The one place where the system's line charts meet Qt Charts: gaps and marker shapes.
#pragma once

#include "workbench/flow_chart.h"
#include "workbench/pump_curve.h"

#include <QColor>
#include <QList>
#include <QMargins>
#include <QObject>
#include <QString>
#include <QStringList>
#include <array>
#include <optional>
#include <vector>

class QCategoryAxis;
class QChartView;
class QChart;
class QGraphicsSimpleTextItem;
class QLineSeries;
class QScatterSeries;
class QValueAxis;

namespace vesk::gui {

// One column of a line chart as the system gives it: a value per row, none
// where the row has no point, and the look of its series.
struct ChartColumn {
    std::vector<std::optional<Single>> values;
    std::optional<MarkerStyle> marker; // no markers when none
    qreal markerSize = 0;              // in pixels
    QColor markerFill;
    QColor colour;
};

// The rows of a chart, its X axis: row r (from 0) stands at x = firstX + r,
// and every labelEvery-th row from the first carries its label.
struct ChartRows {
    QString title;
    QStringList labels;
    qreal firstX = 1;
    int labelEvery = 1;
    qreal minimum = 0;
    qreal maximum = 1;
};

// The value axis: from 0 to maximum, a label every `step` units (every fifth
// of the maximum when step is 0 or less).
struct ChartValueAxis {
    QString title;
    qreal maximum = 1;
    qreal step = 0;
};

// Turns columns of values into what Qt Charts 6.4 can draw: it draws no gap in
// a line and no per-point marker shape, so each column becomes one line series
// per run of rows with a value, plus a companion scatter series for the
// markers (a filled triangle for style 12, a ball for style 14). The adapter
// owns the series and the two axes of its chart.
//
// It also writes the row labels and the row axis title itself. Qt Charts gives
// a category label 1/(n+1) of the axis less 8 pixels and cuts a longer one to
// "...", so a flow graph of 40 nozzles would show no number at all; here every
// label keeps its whole text and the labels take a smaller font, down to
// `smallestRowLabelPixels`, or stand on end when even that does not fit. And
// it keeps room above the value maximum for half a marker, since Qt Charts
// clips the markers to the plot area and a point on the maximum would lose
// its top.
class ChartAdapter : public QObject {
    Q_OBJECT

  public:
    static constexpr int columnCount = 2;

    // `chart` is the chart the adapter draws into; it gets the axes now.
    explicit ChartAdapter(QChart* chart, QObject* parent = nullptr);

    void setTitle(const QString& title);
    void setRows(const ChartRows& rows);
    void setValueAxis(const ChartValueAxis& axis);
    // Replaces the series of a column (0 or 1) by those of `column`.
    void setColumn(int column, const ChartColumn& data);

    QChart* chart() const { return m_chart; }
    QCategoryAxis* rowAxis() const { return m_rowAxis; }
    QValueAxis* valueAxis() const { return m_valueAxis; }
    // The line runs of a column, in the order of their rows.
    const QList<QLineSeries*>& lineRuns(int column) const;
    // The markers of a column; empty when the column shows none.
    QScatterSeries* markers(int column) const;
    // The labels of the rows as they stand under the plot, in the order of the rows.
    const QList<QGraphicsSimpleTextItem*>& rowLabels() const { return m_rowLabels; }

    // The smallest row label, in pixels, before the labels stand on end.
    static constexpr int smallestRowLabelPixels = 9;

  signals:
    // The mouse rests on (or leaves) the marker of a row of a column.
    void pointHovered(int column, int row, bool state);

  private:
    struct ColumnSeries {
        QList<QLineSeries*> runs;
        QScatterSeries* markers = nullptr;
    };

    // Puts every series back in the chart in one order: the lines of both
    // columns, then the markers, the second column's above the first's.
    void restack();
    // Places the row labels and the title under the plot area, in a size
    // that fits the room between two labels, and keeps the room they need
    // below the plot and beside its ends.
    void layOutRowAxis();
    // The value axis from 0 to its maximum and the few pixels more that the
    // largest marker needs to be drawn whole on the maximum.
    void fitValueRange();

    QChart* m_chart;
    QCategoryAxis* m_rowAxis;
    QValueAxis* m_valueAxis;
    QGraphicsSimpleTextItem* m_rowTitle;
    QList<QGraphicsSimpleTextItem*> m_rowLabels;
    QList<qreal> m_rowLabelX; // where each label stands on the row axis
    QMargins m_baseMargins;
    qreal m_valueMaximum = 1;
    qreal m_firstX = 1;
    std::array<ColumnSeries, columnCount> m_columns;
};

// A chart view, named for its control, over a new chart that `adapter` is
// made to draw into; the adapter belongs to `owner`.
QChartView* MakeChartView(const char* name, ChartAdapter*& adapter, QObject* owner);

// A colour of the core as Qt's.
QColor toQColor(const Rgb& colour);

// The screen's units of the system: 15 twips to a pixel.
inline constexpr qreal twipsPerPixel = 15;

// Shows the Dynamic Flow Graph as the core holds it: rows, value axis and both
// columns with their markers. A series without a colour of its own takes its
// colour from `uncoloured` (series 1, series 2).
void ShowFlowChart(ChartAdapter& adapter, const FlowChart& chart,
                   const std::array<QColor, ChartAdapter::columnCount>& uncoloured = {Qt::darkGray, Qt::darkGray});

// Shows a pump performance curve as the core holds it, title included.
void ShowPumpCurve(ChartAdapter& adapter, const PumpCurveChart& curve);

} // namespace vesk::gui
