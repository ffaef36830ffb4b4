// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// Tests of the chart adapter: gaps split the line, markers by style, axes and colours.
#include "gui/common/chart_adapter.h"

#include <QCategoryAxis>
#include <QChart>
#include <QLineSeries>
#include <QScatterSeries>
#include <QSignalSpy>
#include <QTest>
#include <QValueAxis>
#include <memory>

using vesk::MarkerStyle;
using vesk::Single;
using vesk::gui::ChartAdapter;
using vesk::gui::ChartColumn;
using vesk::gui::ChartRows;

namespace {

using Values = std::vector<std::optional<Single>>;

ChartColumn columnOf(Values values, std::optional<MarkerStyle> marker = std::nullopt, QColor colour = Qt::red) {
    ChartColumn column;
    column.values = std::move(values);
    column.marker = marker;
    column.markerSize = 7;
    column.markerFill = QColor(128, 64, 0);
    column.colour = colour;
    return column;
}

QList<QPointF> pointsOf(const QLineSeries* series) {
    return series->points();
}

} // namespace

class ChartAdapterTest : public QObject {
    Q_OBJECT

  private slots:
    void init() {
        m_chart = std::make_unique<QChart>();
        m_adapter = std::make_unique<ChartAdapter>(m_chart.get());
        ChartRows rows;
        rows.firstX = 1;
        m_adapter->setRows(rows);
    }
    void cleanup() {
        m_adapter.reset();
        m_chart.reset();
    }

    void aGapSplitsTheLineIntoRuns() {
        m_adapter->setColumn(0, columnOf({1, 2, std::nullopt, 4, 5, std::nullopt, std::nullopt, 8}));
        const QList<QLineSeries*>& runs = m_adapter->lineRuns(0);
        QCOMPARE(runs.size(), 3);
        QCOMPARE(pointsOf(runs[0]), (QList<QPointF>{{1, 1}, {2, 2}}));
        QCOMPARE(pointsOf(runs[1]), (QList<QPointF>{{4, 4}, {5, 5}}));
        QCOMPARE(pointsOf(runs[2]), (QList<QPointF>{{8, 8}}));
    }

    void aColumnWithoutValuesDrawsNothing() {
        m_adapter->setColumn(1, columnOf({std::nullopt, std::nullopt}, MarkerStyle::Ball));
        QVERIFY(m_adapter->lineRuns(1).isEmpty());
        QVERIFY(m_adapter->markers(1) != nullptr);
        QCOMPARE(m_adapter->markers(1)->count(), 0);
    }

    void aZeroIsAPointNotAGap() {
        m_adapter->setColumn(0, columnOf({3, 0, 3}));
        QCOMPARE(m_adapter->lineRuns(0).size(), 1);
        QCOMPARE(pointsOf(m_adapter->lineRuns(0)[0]).size(), 3);
    }

    void markersStandOnEveryValue() {
        m_adapter->setColumn(0, columnOf({1, std::nullopt, 3}, MarkerStyle::FilledTriangle));
        QCOMPARE(m_adapter->markers(0)->points(), (QList<QPointF>{{1, 1}, {3, 3}}));
    }

    void markerShapeFollowsTheStyle_data() {
        QTest::addColumn<int>("style");
        QTest::addColumn<int>("shape");
        QTest::newRow("style 12, a filled triangle")
            << static_cast<int>(MarkerStyle::FilledTriangle) << static_cast<int>(QScatterSeries::MarkerShapeTriangle);
        QTest::newRow("style 14, a ball")
            << static_cast<int>(MarkerStyle::Ball) << static_cast<int>(QScatterSeries::MarkerShapeCircle);
    }
    void markerShapeFollowsTheStyle() {
        QFETCH(int, style);
        QFETCH(int, shape);
        m_adapter->setColumn(0, columnOf({1, 2}, static_cast<MarkerStyle>(style)));
        QCOMPARE(static_cast<int>(m_adapter->markers(0)->markerShape()), shape);
        QCOMPARE(m_adapter->markers(0)->brush().color(), QColor(128, 64, 0));
        QCOMPARE(m_adapter->markers(0)->markerSize(), 7.0);
    }

    void aColumnWithoutMarkerStyleHasNoMarkers() {
        m_adapter->setColumn(0, columnOf({1, 2}));
        QVERIFY(m_adapter->markers(0) == nullptr);
    }

    void everyRunTakesTheColumnsColour() {
        m_adapter->setColumn(1, columnOf({1, std::nullopt, 2}, MarkerStyle::Ball, QColor(0, 255, 0)));
        for (const QLineSeries* run : m_adapter->lineRuns(1)) {
            QCOMPARE(run->pen().color(), QColor(0, 255, 0));
        }
    }

    void settingAColumnAgainReplacesItsSeries() {
        m_adapter->setColumn(0, columnOf({1, std::nullopt, 2}, MarkerStyle::FilledTriangle));
        m_adapter->setColumn(1, columnOf({1, 2}, MarkerStyle::Ball));
        QCOMPARE(m_chart->series().size(), 2 + 1 + 2);
        m_adapter->setColumn(0, columnOf({1, 2, 3}, MarkerStyle::FilledTriangle));
        QCOMPARE(m_chart->series().size(), 1 + 1 + 2);
        // The markers stay above the lines, the second column's on top.
        QCOMPARE(m_chart->series().last(), m_adapter->markers(1));
    }

    void everySeriesUsesBothAxes() {
        m_adapter->setColumn(0, columnOf({1, std::nullopt, 2}, MarkerStyle::FilledTriangle));
        for (QAbstractSeries* series : m_chart->series()) {
            QCOMPARE(series->attachedAxes().size(), 2);
        }
    }

    void rowLabelsStandOnTheirRows() {
        ChartRows rows;
        rows.title = QStringLiteral("GPM");
        rows.labels = {"0", "1", "2", "3", "4", "5", "6", "7", "8", "9"};
        rows.firstX = 0;
        rows.labelEvery = 4;
        rows.minimum = 0;
        rows.maximum = 10;
        m_adapter->setRows(rows);
        QCategoryAxis* axis = m_adapter->rowAxis();
        QCOMPARE(axis->categoriesLabels(), (QStringList{"0", "4", "8"}));
        QCOMPARE(axis->endValue(QStringLiteral("8")), 8.0);
        QCOMPARE(axis->titleText(), QStringLiteral("GPM"));
        QCOMPARE(axis->max(), 10.0);
    }

    void rowsOfTheFlowGraphStartAtOne() {
        ChartRows rows;
        rows.labels = {"1", "2", "3"};
        rows.firstX = 1;
        rows.minimum = 0.5;
        rows.maximum = 3.5;
        m_adapter->setRows(rows);
        m_adapter->setColumn(0, columnOf({5, 6, 7}));
        QCOMPARE(m_adapter->rowAxis()->endValue(QStringLiteral("1")), 1.0);
        QCOMPARE(pointsOf(m_adapter->lineRuns(0)[0]).first(), QPointF(1, 5));
    }

    void valueAxisRunsFromZeroToItsMaximum() {
        m_adapter->setValueAxis({QStringLiteral("GPM per Nozzle"), 20, 4});
        QCOMPARE(m_adapter->valueAxis()->min(), 0.0);
        QCOMPARE(m_adapter->valueAxis()->max(), 20.0);
        QCOMPARE(m_adapter->valueAxis()->tickInterval(), 4.0);
        QCOMPARE(m_adapter->valueAxis()->titleText(), QStringLiteral("GPM per Nozzle"));
    }

    void hoveringAMarkerReportsItsColumnAndRow() {
        m_adapter->setColumn(1, columnOf({1, 2, 3}, MarkerStyle::Ball));
        QSignalSpy spy(m_adapter.get(), &ChartAdapter::pointHovered);
        emit m_adapter->markers(1)->hovered(QPointF(3, 3), true);
        QCOMPARE(spy.size(), 1);
        QCOMPARE(spy[0][0].toInt(), 1);
        QCOMPARE(spy[0][1].toInt(), 2);
        QCOMPARE(spy[0][2].toBool(), true);
    }

  private:
    std::unique_ptr<QChart> m_chart;
    std::unique_ptr<ChartAdapter> m_adapter;
};

QTEST_MAIN(ChartAdapterTest)

#include "chart_adapter_test.moc"
