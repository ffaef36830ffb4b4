// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The right part of the main window: the Dynamic Flow Graph, its legend, the buttons and the two grids.
#include "gui/workbench/results_panel.h"

#include "gui/common/chart_adapter.h"
#include "gui/common/field_filters.h"
#include "gui/common/hour_glass.h"
#include "gui/workbench/area_widgets.h"
#include "gui/workbench/dialogs.h"
#include "workbench/calculate.h"
#include "workbench/flow_chart.h"
#include "workbench/result_grid.h"

#include <QChartView>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>
#include <QTableWidget>
#include <QVBoxLayout>
#include <cmath>

namespace vesk::gui {

namespace {

// The grids' width at design, from which their column widths are set.
constexpr Double gridDesignWidthTwips = 9000;
// Between the two labels of the legend, in pixels.
constexpr int legendSpacing = 24;

QColor gridColour(std::uint32_t colour) {
    // The grids hold colours as the platform does: blue in the high byte.
    return QColor(static_cast<int>(colour & 0xFF), static_cast<int>((colour >> 8) & 0xFF),
                  static_cast<int>((colour >> 16) & 0xFF));
}

void showGrid(QTableWidget* table, const ResultGrid& grid) {
    for (int row = 0; row < gridRowCount; ++row) {
        for (int column = 0; column < gridColumnCount; ++column) {
            const GridCell& cell = grid.Cell(row, column);
            QTableWidgetItem* item = table->item(row, column);
            item->setText(qs(cell.text));
            item->setForeground(gridColour(cell.foreColour));
            item->setBackground(gridColour(cell.backColour));
        }
    }
}

} // namespace

ResultsPanel::ResultsPanel(WindowContext& context, QWidget* parent)
    : QWidget(parent), m_context(context), m_msChart1(MakeChartView("MSChart1", m_flowChart, this)),
      m_lblCurrentPump(named(new QLabel, "lblCurrentPump")), m_lblBaselinePump(named(new QLabel, "lblBaselinePump")),
      m_tabCurrentBaseline(named(new QTabWidget, "tabCurrentBaseline")), m_flxCurrent(buildGrid("flxCurrent")),
      m_flxBaseLine(buildGrid("flxBaseLine")) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);

    m_flowChart->setTitle(QString::fromLatin1(flowChartTitle));
    connect(m_flowChart, &ChartAdapter::pointHovered, this, &ResultsPanel::showPointToolTip);
    layout->addWidget(m_msChart1, 1);

    // The legend: the two labels side by side from the left, whatever their
    // texts; a long pump name is cut at the edge and never widens the window.
    auto* legend = new QHBoxLayout;
    legend->setSpacing(legendSpacing);
    for (QLabel* label : {m_lblCurrentPump, m_lblBaselinePump}) {
        label->setMinimumWidth(1);
        legend->addWidget(label);
    }
    legend->addStretch(1);
    layout->addLayout(legend);

    auto* buttons = new QHBoxLayout;
    auto* cmdCalculate = named(new QPushButton(QStringLiteral("Calculate")), "cmdCalculate");
    auto* baseLine = named(new QPushButton(QStringLiteral("Make Baseline")), "BaseLine");
    auto* cmdBackToBaseLine = named(new QPushButton(QStringLiteral("Back To Baseline")), "cmdBackToBaseLine");
    auto* cmdDetails = named(new QPushButton(QStringLiteral("Details")), "cmdDetails");
    for (QPushButton* button : {cmdCalculate, baseLine, cmdBackToBaseLine, cmdDetails}) {
        buttons->addWidget(button);
    }
    layout->addLayout(buttons);
    // Each of them sweeps, so none runs on text the checks have not seen.
    ConnectCheckedCommand(cmdCalculate, [this] { calculate(); });
    ConnectCheckedCommand(baseLine, [this] { makeBaseline(); });
    ConnectCheckedCommand(cmdBackToBaseLine, [this] { backToBaseline(); });
    ConnectCheckedCommand(cmdDetails, [this] { showDetails(); });

    m_tabCurrentBaseline->addTab(m_flxCurrent, QStringLiteral("Current "));
    m_tabCurrentBaseline->addTab(m_flxBaseLine, QStringLiteral("BaseLine "));
    connect(m_tabCurrentBaseline, &QTabWidget::currentChanged, this, &ResultsPanel::followGridRow);
    // The graph and the grids share the height alike.
    layout->addWidget(m_tabCurrentBaseline, 1);
    connectTabKeys();
}

QTableWidget* ResultsPanel::buildGrid(const char* name) {
    auto* table = named(new QTableWidget(gridRowCount, gridColumnCount), name);
    table->horizontalHeader()->hide();
    table->verticalHeader()->hide();
    table->verticalHeader()->setDefaultSectionSize(table->fontMetrics().height() + 6);
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setSelectionMode(QAbstractItemView::SingleSelection);
    table->setTabKeyNavigation(false); // Tab leaves the grid
    const std::array<Long, gridColumnCount> widths = GridColumnWidths(gridDesignWidthTwips);
    for (int column = 0; column < gridColumnCount; ++column) {
        table->setColumnWidth(column,
                              static_cast<int>(std::lround(widths[static_cast<std::size_t>(column)] / twipsPerPixel)));
        for (int row = 0; row < gridRowCount; ++row) {
            auto* item = new QTableWidgetItem;
            item->setTextAlignment(Qt::AlignLeft | Qt::AlignVCenter);
            table->setItem(row, column, item);
        }
    }
    // The cell tool tip: the text of the current cell, unless it is one blank.
    connect(table, &QTableWidget::currentCellChanged, this, [table](int row, int column) {
        table->setToolTip(QString());
        const QTableWidgetItem* item = table->item(row, column);
        if (item != nullptr && item->text() != QStringLiteral(" ")) {
            table->setToolTip(item->text());
        }
    });
    return table;
}

// The Tab key around the grids.
void ResultsPanel::connectTabKeys() {
    new FocusFilter(m_tabCurrentBaseline->tabBar(),
                    {{}, [this](Qt::FocusReason reason) {
                         if (reason == Qt::TabFocusReason) {
                             (m_tabCurrentBaseline->currentIndex() == 0 ? m_flxCurrent : m_flxBaseLine)
                                 ->setFocus(Qt::OtherFocusReason);
                         }
                     }});
    new FocusFilter(m_flxCurrent, {{}, [this](Qt::FocusReason reason) {
                                       if (reason == Qt::TabFocusReason) {
                                           emit tabbedPastTheGrids();
                                       }
                                   }});
    new FocusFilter(m_flxBaseLine, {{}, [this](Qt::FocusReason reason) {
                                        if (reason == Qt::BacktabFocusReason) {
                                            m_tabCurrentBaseline->setFocus(Qt::OtherFocusReason);
                                        }
                                    }});
}

void ResultsPanel::refreshFlowChart() {
    ShowFlowChart(*m_flowChart, m_context.app.flowChart.chart);
}

void ResultsPanel::refreshLegend() {
    m_lblCurrentPump->setText(qs(m_context.app.flowChart.lblCurrentPump));
    m_lblBaselinePump->setText(qs(m_context.app.flowChart.lblBaselinePump));
}

void ResultsPanel::refreshCurrentGrid() {
    showGrid(m_flxCurrent, m_context.app.flxCurrent);
}

void ResultsPanel::refreshBaselineGrid() {
    showGrid(m_flxBaseLine, m_context.app.flxBaseLine);
}

void ResultsPanel::refreshAll() {
    refreshFlowChart();
    refreshLegend();
    refreshCurrentGrid();
    refreshBaselineGrid();
}

void ResultsPanel::calculate() {
    const HourGlass hourGlass;
    if (m_context.runEvent([this] { Calculate(m_context.app); })) {
        refreshAll();
    }
}

void ResultsPanel::makeBaseline() {
    const HourGlass hourGlass;
    if (m_context.runEvent([this] { MakeBaseline(m_context.app); })) {
        refreshFlowChart();
        refreshLegend();
        refreshBaselineGrid();
    }
}

void ResultsPanel::backToBaseline() {
    const HourGlass hourGlass;
    if (m_context.runEvent([this] { BackToBaseline(m_context.app, m_context.ui); })) {
        refreshAll();
        emit panelsRestored();
    }
}

void ResultsPanel::showDetails() {
    m_context.runEvent([this] { ShowDetails(window(), m_context.app); });
}

void ResultsPanel::showPointToolTip(int column, int row, bool state) {
    if (!state) {
        return;
    }
    m_context.runEvent([&] {
        ApplicationState& app = m_context.app;
        m_msChart1->setToolTip(QString());
        const bool optUS = TouchFrmData(app.panel, app.config).optUS;
        m_msChart1->setToolTip(qs(PointToolTip(app.results.NozzleLabels, app.results.Current, app.results.Baseline,
                                               column + 1, row + 1, optUS)));
    });
}

void ResultsPanel::followGridRow(int page) {
    // The grid now on show takes the row and column of the other one, so the
    // same line of the two lists stays under the user's eye.
    QTableWidget* shown = page == 0 ? m_flxCurrent : m_flxBaseLine;
    const QTableWidget* other = page == 0 ? m_flxBaseLine : m_flxCurrent;
    const int row = std::max(other->currentRow(), 0);
    const int column = std::max(other->currentColumn(), 0);
    shown->setCurrentCell(row, column);
    shown->scrollToItem(shown->item(row, column), QAbstractItemView::PositionAtTop);
    shown->setFocus(Qt::OtherFocusReason);
}

} // namespace vesk::gui
