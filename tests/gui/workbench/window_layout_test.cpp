// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// Tests of the main window's layout on a 1280x800 screen: its size, the room of the graph and the grids, readable axes.
#include "gui/common/chart_adapter.h"
#include "gui/support/station.h"

#include <QCategoryAxis>
#include <QChart>
#include <QChartView>
#include <QComboBox>
#include <QFontInfo>
#include <QGraphicsSimpleTextItem>
#include <QGraphicsTextItem>
#include <QHeaderView>
#include <QLabel>
#include <QScatterSeries>
#include <QScreen>
#include <QTableWidget>
#include <QValueAxis>
#include <QtTest>
#include <algorithm>

namespace vesk::gui::test {

namespace {

// The smallest text a designer reads on the screen without effort, in pixels.
constexpr int readablePixels = 9;

// A text drawn in a chart, where it stands in the view and in what font.
struct ChartText {
    QString text;
    QRectF rect;
    int pixelSize = 0;
};

// Every text the chart shows below its plot area, across it: the labels of its
// rows, left to right, without the axis title.
QList<ChartText> rowLabelsShown(const QChart* chart, const QString& axisTitle) {
    const QRectF plot = chart->plotArea();
    QList<ChartText> shown;
    for (QGraphicsItem* item : chart->scene()->items()) {
        if (!item->isVisible() || !chart->isAncestorOf(item)) {
            continue;
        }
        ChartText text;
        if (const auto* simple = dynamic_cast<const QGraphicsSimpleTextItem*>(item)) {
            text = {simple->text(), simple->sceneBoundingRect(), QFontInfo(simple->font()).pixelSize()};
        } else if (const auto* rich = dynamic_cast<const QGraphicsTextItem*>(item)) {
            text = {rich->toPlainText(), rich->sceneBoundingRect(), QFontInfo(rich->font()).pixelSize()};
        } else {
            continue;
        }
        const qreal middle = text.rect.center().x();
        if (text.text.isEmpty() || text.text == axisTitle || text.rect.top() < plot.bottom() || middle < plot.left() ||
            middle > plot.right()) {
            continue;
        }
        shown.append(text);
    }
    std::sort(shown.begin(), shown.end(),
              [](const ChartText& a, const ChartText& b) { return a.rect.center().x() < b.rect.center().x(); });
    return shown;
}

// The axis title under the labels: drawn, whole and inside the view.
void verifyTitleUnder(const QChart* chart, const QString& axisTitle, const QList<ChartText>& labels,
                      const QChartView* view) {
    const QRectF visible = view->mapToScene(view->viewport()->rect()).boundingRect();
    int titles = 0;
    for (QGraphicsItem* item : chart->scene()->items()) {
        QRectF rect;
        bool drawn = false;
        if (const auto* simple = dynamic_cast<const QGraphicsSimpleTextItem*>(item);
            simple != nullptr && simple->text() == axisTitle) {
            rect = simple->sceneBoundingRect();
            drawn = simple->brush().style() != Qt::NoBrush && simple->brush().color().alpha() > 0;
        } else if (const auto* rich = dynamic_cast<const QGraphicsTextItem*>(item);
                   rich != nullptr && rich->toPlainText() == axisTitle) {
            rect = rich->sceneBoundingRect();
            drawn = rich->defaultTextColor().alpha() > 0;
        } else {
            continue;
        }
        if (!item->isVisible()) {
            continue;
        }
        ++titles;
        QVERIFY(drawn);
        QVERIFY(visible.contains(rect));
        for (const ChartText& label : labels) {
            QVERIFY2(rect.top() >= label.rect.bottom(), qPrintable(label.text));
        }
    }
    QCOMPARE(titles, 1);
}

QStringList textsOf(const QList<ChartText>& shown) {
    QStringList texts;
    for (const ChartText& text : shown) {
        texts.append(text.text);
    }
    return texts;
}

// Each label whole, in a readable size, clear of its neighbours and inside the view.
void verifyReadable(const QList<ChartText>& shown, const QChartView* view) {
    const QRectF visible = view->mapToScene(view->viewport()->rect()).boundingRect();
    for (qsizetype i = 0; i < shown.size(); ++i) {
        const ChartText& label = shown[i];
        QVERIFY2(!label.text.contains(QStringLiteral("...")) && !label.text.contains(QChar(0x2026)),
                 qPrintable(label.text));
        QVERIFY2(label.pixelSize >= readablePixels,
                 qPrintable(QStringLiteral("%1 at %2 px").arg(label.text).arg(label.pixelSize)));
        QVERIFY2(visible.contains(label.rect), qPrintable(label.text));
        if (i > 0) {
            QVERIFY2(!shown[i - 1].rect.intersects(label.rect),
                     qPrintable(QStringLiteral("%1 runs into %2").arg(shown[i - 1].text, label.text)));
        }
    }
}

// Where each marker of a column is drawn, in the chart's coordinates.
QList<QRectF> markerRects(const ChartAdapter& adapter, int column) {
    QList<QRectF> rects;
    const QScatterSeries* markers = adapter.markers(column);
    if (markers == nullptr) {
        return rects;
    }
    const qreal half = markers->markerSize() / 2;
    for (const QPointF& point : markers->points()) {
        const QPointF centre = adapter.chart()->mapToPosition(point, const_cast<QScatterSeries*>(markers));
        rects.append(QRectF(centre.x() - half, centre.y() - half, 2 * half, 2 * half));
    }
    return rects;
}

// The rows of a grid that are on show, whole.
int rowsShown(const QTableWidget* grid) {
    const int height = grid->viewport()->height();
    int rows = 0;
    for (int row = 0; row < grid->rowCount(); ++row) {
        const int bottom = grid->rowViewportPosition(row) + grid->rowHeight(row);
        if (grid->rowViewportPosition(row) >= 0 && bottom <= height) {
            ++rows;
        }
    }
    return rows;
}

} // namespace

class WindowLayoutTest : public QObject {
    Q_OBJECT

  private slots:
    void initTestCase() {
        // The suite runs on a screen of 1280x800 (see the CMake file).
        QCOMPARE(QGuiApplication::primaryScreen()->geometry().size(), QSize(1280, 800));
    }
    void init() { m_station = std::make_unique<Station>(); }
    void cleanup() { m_station.reset(); }

    // ------------------------------------------------------------ the window's size

    void theWindowOpensAtASizeThatUsesTheScreen() {
        showAtItsOwnSize();
        const QSize size = m_station->window->size();
        const QRect available = m_station->window->screen()->availableGeometry();
        QVERIFY2(size.width() >= 1200 && size.height() >= 720,
                 qPrintable(QStringLiteral("%1x%2").arg(size.width()).arg(size.height())));
        QVERIFY(m_station->window->frameGeometry().width() <= available.width());
        QVERIFY(m_station->window->frameGeometry().height() <= available.height());
        QVERIFY(available.contains(m_station->window->frameGeometry()));
    }

    void openingASiteWithLongNamesKeepsTheWindowsSize_data() {
        QTest::addColumn<QStringList>("sites");
        QTest::newRow("MetricStation") << QStringList{"MetricStation.txt"};
        QTest::newRow("DieselTruckStop") << QStringList{"DieselTruckStop.txt"};
        QTest::newRow("one after the other")
            << QStringList{"MetricStation.txt", "DieselTruckStop.txt", "SmallGasStation.txt", "BasicModeSite.txt"};
    }
    void openingASiteWithLongNamesKeepsTheWindowsSize() {
        QFETCH(QStringList, sites);
        Station& s = *m_station;
        showAtItsOwnSize();
        const QSize size = s.window->size();
        const QSize minimum = s.window->minimumSizeHint();
        for (const QString& site : sites) {
            open(site);
            for (const char* area : {"cmdDispenser", "cmdPiping", "cmdPump", "cmdSite"}) {
                s.click(area);
                QCoreApplication::processEvents();
                QCOMPARE(s.window->size(), size);
            }
            QCOMPARE(s.window->minimumSizeHint(), minimum);
        }
    }

    void aLongNameIsCutInItsBoxAndShownWholeInTheToolTip() {
        Station& s = *m_station;
        showAtItsOwnSize();
        open(QStringLiteral("DieselTruckStop.txt"));
        auto* pumps = s.find<QComboBox>("cmbPumps");
        const int width = pumps->width();
        int longest = 0;
        for (int index = 1; index < pumps->count(); ++index) {
            if (pumps->itemText(index).size() > pumps->itemText(longest).size()) {
                longest = index;
            }
        }
        s.choose("cmbPumps", longest);
        QCoreApplication::processEvents();
        QCOMPARE(pumps->toolTip(), pumps->itemText(longest));
        QCOMPARE(pumps->width(), width);
    }

    // ------------------------------------------------------------ the room of the results

    void theFlowGraphGrowsWithTheWindow() {
        Station& s = *m_station;
        showAtItsOwnSize();
        auto* chart = s.find<QChartView>("MSChart1");
        const QSize before = chart->size();
        const QSize atItsOwnSize = s.window->size();
        s.window->resize(atItsOwnSize + QSize(240, 160));
        settle();
        const QSize larger = chart->size();
        // The graph takes all the width the window gains, and the larger part of the height.
        QCOMPARE(larger.width() - before.width(), 240);
        QVERIFY2(larger.height() - before.height() >= 80,
                 qPrintable(QStringLiteral("%1 of 160").arg(larger.height() - before.height())));
        s.window->resize(atItsOwnSize);
        settle();
        QCOMPARE(chart->size(), before);
    }

    void theGridsShowMostOfTheirRows() {
        Station& s = *m_station;
        showAtItsOwnSize();
        auto* grid = s.find<QTableWidget>("flxCurrent");
        const int shown = rowsShown(grid);
        QVERIFY2(shown >= 14, qPrintable(QString::number(shown)));
        // Every column whole, side by side.
        int columns = 0;
        for (int column = 0; column < grid->columnCount(); ++column) {
            columns += grid->columnWidth(column);
        }
        QVERIFY2(columns <= grid->viewport()->width(),
                 qPrintable(QStringLiteral("%1 in %2").arg(columns).arg(grid->viewport()->width())));
    }

    void theLegendStaysTogetherBesideTheGraph() {
        Station& s = *m_station;
        showAtItsOwnSize();
        open(QStringLiteral("DieselTruckStop.txt"));
        s.trigger("mnuNew");
        QCoreApplication::processEvents();
        auto* current = s.find<QLabel>("lblCurrentPump");
        auto* baseline = s.find<QLabel>("lblBaselinePump");
        auto* chart = s.find<QChartView>("MSChart1");
        const int currentEnd = current->x() + current->fontMetrics().horizontalAdvance(current->text());
        QVERIFY(!current->text().isEmpty());
        QVERIFY(!baseline->text().isEmpty());
        QCOMPARE(baseline->y(), current->y());
        QVERIFY2(baseline->x() >= currentEnd && baseline->x() - currentEnd <= 60,
                 qPrintable(QStringLiteral("%1 .. %2").arg(currentEnd).arg(baseline->x())));
        const QRect chartRect = chart->geometry();
        QVERIFY(current->x() >= chartRect.left());
        QVERIFY(baseline->x() + baseline->fontMetrics().horizontalAdvance(baseline->text()) <= chartRect.right());
    }

    // ------------------------------------------------------------ readable graphs

    void everyNozzleNumberOfTheFlowGraphIsReadable_data() {
        QTest::addColumn<QString>("nozzles");
        QTest::newRow("8") << "8";
        QTest::newRow("14") << "14";
        QTest::newRow("24") << "24";
        QTest::newRow("40") << "40";
    }
    void everyNozzleNumberOfTheFlowGraphIsReadable() {
        QFETCH(QString, nozzles);
        Station& s = *m_station;
        showAtItsOwnSize();
        QVERIFY(!s.enter("txtNoOfNozzle", nozzles));
        s.click("cmdCalculate");
        s.click("BaseLine");
        settle();
        const ChartAdapter& adapter = s.window->flowChart();
        QStringList rows;
        for (int row = 1; row <= s.app.ChartNozzles; ++row) {
            rows.append(QString::number(row));
        }
        const QList<ChartText> shown = rowLabelsShown(adapter.chart(), adapter.rowAxis()->titleText());
        QCOMPARE(textsOf(shown), rows);
        verifyReadable(shown, s.find<QChartView>("MSChart1"));
        verifyTitleUnder(adapter.chart(), adapter.rowAxis()->titleText(), shown, s.find<QChartView>("MSChart1"));
        // The markers stand clear of each other and of the labels.
        for (int column = 0; column < ChartAdapter::columnCount; ++column) {
            const QList<QRectF> markers = markerRects(adapter, column);
            QVERIFY(!markers.isEmpty());
            for (qsizetype i = 0; i < markers.size(); ++i) {
                if (i > 0) {
                    QVERIFY(markers[i - 1].right() < markers[i].left());
                }
                for (const ChartText& label : shown) {
                    QVERIFY2(!markers[i].intersects(label.rect), qPrintable(label.text));
                }
            }
        }
    }

    void everyFlowOfThePumpCurveIsReadable_data() {
        QTest::addColumn<QString>("site");
        QTest::newRow("start-up") << QString();
        QTest::newRow("SmallGasStation") << "SmallGasStation.txt";
        QTest::newRow("DieselTruckStop") << "DieselTruckStop.txt";
        QTest::newRow("MetricStation") << "MetricStation.txt";
    }
    void everyFlowOfThePumpCurveIsReadable() {
        QFETCH(QString, site);
        Station& s = *m_station;
        showAtItsOwnSize();
        if (!site.isEmpty()) {
            open(site);
        }
        s.click("cmdPump");
        s.click("cmdUpdate");
        settle();
        const ChartAdapter& adapter = s.window->pumpCurveChart();
        const QList<ChartText> shown = rowLabelsShown(adapter.chart(), adapter.rowAxis()->titleText());
        QCOMPARE(textsOf(shown), adapter.rowAxis()->categoriesLabels());
        verifyReadable(shown, s.find<QChartView>("MSChart2"));
        verifyTitleUnder(adapter.chart(), adapter.rowAxis()->titleText(), shown, s.find<QChartView>("MSChart2"));
    }

    void aPointOnTheAxisMaximumIsDrawnWhole() {
        Station& s = *m_station;
        showAtItsOwnSize();
        open(QStringLiteral("DieselTruckStop.txt"));
        settle();
        const ChartAdapter& adapter = s.window->flowChart();
        const QRectF plot = adapter.chart()->plotArea();
        const qreal maximum = s.app.flowChart.chart.yMaximum;
        bool onTheMaximum = false;
        for (int column = 0; column < ChartAdapter::columnCount; ++column) {
            const QScatterSeries* markers = adapter.markers(column);
            QVERIFY(markers != nullptr);
            for (const QRectF& marker : markerRects(adapter, column)) {
                QVERIFY2(
                    plot.contains(marker),
                    qPrintable(
                        QStringLiteral("marker at %1 outside the plot from %2").arg(marker.top()).arg(plot.top())));
            }
            for (const QPointF& point : markers->points()) {
                onTheMaximum = onTheMaximum || maximum - point.y() < 0.5;
            }
        }
        QVERIFY(onTheMaximum); // the site has a point just under the axis maximum
        // The axis still ends its labels at the maximum.
        const QValueAxis* axis = adapter.valueAxis();
        QVERIFY(axis->max() >= maximum);
        QVERIFY(axis->max() < maximum + axis->tickInterval());
    }

  private:
    // Shows the window at the size it takes itself and waits until it is up.
    void showAtItsOwnSize() {
        m_station->window->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_station->window.get()));
        settle();
    }
    void open(const QString& site) {
        Station& s = *m_station;
        s.ui.chosenFiles = {s.sitePath(site.toLatin1().constData())};
        s.trigger("mnuOpen");
        QVERIFY(s.ui.shown.empty());
        settle();
    }
    // Lets the layouts and the charts lay themselves out.
    static void settle() {
        for (int i = 0; i < 3; ++i) {
            QCoreApplication::sendPostedEvents();
            QCoreApplication::processEvents();
        }
    }

    std::unique_ptr<Station> m_station;
};

} // namespace vesk::gui::test

QTEST_MAIN(vesk::gui::test::WindowLayoutTest)

#include "window_layout_test.moc"
