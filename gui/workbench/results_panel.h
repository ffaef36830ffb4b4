// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The right part of the main window: the Dynamic Flow Graph, its legend, the buttons and the two grids.
#pragma once

#include "gui/workbench/window_context.h"

#include <QWidget>

class QChartView;
class QLabel;
class QTabWidget;
class QTableWidget;

namespace vesk::gui {

class ChartAdapter;

class ResultsPanel : public QWidget {
    Q_OBJECT

  public:
    explicit ResultsPanel(WindowContext& context, QWidget* parent = nullptr);

    void refreshFlowChart();
    void refreshLegend();
    void refreshCurrentGrid();
    void refreshBaselineGrid();
    void refreshAll();

    ChartAdapter& flowChart() const { return *m_flowChart; }

  signals:
    // Back To Baseline put inputs back on the panels.
    void panelsRestored();
    // Tab was pressed in flxCurrent: the focus goes round to the first area button.
    void tabbedPastTheGrids();

  private:
    QTableWidget* buildGrid(const char* name);
    void connectTabKeys();
    void calculate();
    void makeBaseline();
    void backToBaseline();
    void showDetails();
    void showPointToolTip(int column, int row, bool state);
    void followGridRow(int page);

    WindowContext& m_context;
    QChartView* m_msChart1;
    ChartAdapter* m_flowChart;
    QLabel* m_lblCurrentPump;
    QLabel* m_lblBaselinePump;
    QTabWidget* m_tabCurrentBaseline;
    QTableWidget* m_flxCurrent;
    QTableWidget* m_flxBaseLine;
};

} // namespace vesk::gui
