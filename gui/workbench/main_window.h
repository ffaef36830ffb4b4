// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The main window, frmMain: the four areas, the flow graph, the grids and the menus.
#pragma once

#include "messages/user_interaction.h"
#include "workbench/application_state.h"
#include "workbench/file_commands.h"

#include <QMainWindow>
#include <functional>
#include <optional>
#include <vector>

class QCheckBox;
class QChartView;
class QComboBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QMenu;
class QPushButton;
class QRadioButton;
class QTableWidget;
class QTabWidget;
class QGroupBox;

namespace vesk::gui {

class ChartAdapter;

// The exit status of a program that a fatal message or a run-time failure ends.
inline constexpr int failedExitStatus = 1;

// Runs the work of one event. A fatal message (ProcessEnd), whose box has
// already been shown, ends the program with status 1; a run-time failure that
// escapes the work ends it as a platform would: one box with its description,
// then status 1. `endProgram` receives the status. Returns whether the work
// ran to its end. Every event of the windows goes through this.
bool RunEvent(UserInteraction& ui, const std::function<void()>& work, const std::function<void(int)>& endProgram);

// Ends the event loop, and with it the program, with `status`.
void QuitEventLoop(int status);

// The main window. It shows the state of the application and forwards each
// event to the core, then shows the state again, area by area. The state is
// initialised (InitialiseMainWindow) before the window is made; the window
// loads the site picture as it is made, and a missing picture throws the
// run-time failure "File not found" out of the constructor.
class MainWindow : public QMainWindow {
    Q_OBJECT

  public:
    MainWindow(ApplicationState& app, UserInteraction& ui, QWidget* parent = nullptr);
    ~MainWindow() override;

    // The whole window from the state, one area, grid or chart at a time.
    void refreshAll();
    void refreshCaption();
    void refreshDispensingArea();
    void refreshPipingArea();
    void refreshPumpArea();
    void refreshSiteLayout();
    void refreshFlowChart();
    void refreshLegend();
    void refreshCurrentGrid();
    void refreshBaselineGrid();
    void refreshPumpCurve();

    ChartAdapter& flowChart() const { return *m_flowChart; }
    ChartAdapter& pumpCurveChart() const { return *m_pumpCurveChart; }

    // The status the program was ended with by a failure in an event, if any.
    std::optional<int> endStatus() const { return m_endStatus; }
    // What ends the program; by default the event loop is left with the status.
    void setProgramEnd(std::function<void(int)> endProgram) { m_endProgram = std::move(endProgram); }

  protected:
    void closeEvent(QCloseEvent* event) override;

  private:
    // A field and a list of an area (its tab of tabMain), and where the panel
    // keeps its text or its entries.
    struct TextField {
        int area;
        QLineEdit* edit;
        std::string& (*text)(PanelState&);
    };
    struct ListField {
        int area;
        QComboBox* combo;
        ComboList PanelState::*list;
    };

    void buildMenus();
    QWidget* buildLeftPart();
    QWidget* buildRightPart();
    QWidget* buildDispensingArea();
    QWidget* buildPipingArea();
    QWidget* buildPumpArea();
    QWidget* buildSiteLayout();
    QLineEdit* addTextField(const char* name);
    QComboBox* addList(const char* name, ComboList PanelState::*list, bool selectionToolTip);
    QTableWidget* buildGrid(const char* name);
    void connectFocusEvents();

    bool runEvent(const std::function<void()>& work);
    void showTextField(const TextField& field);
    void showList(const ListField& field);
    void showAreaFields(int area);
    void showGrid(QTableWidget* table, const ResultGrid& grid);
    void showPipingMode();
    void showArea(int tab);
    void clearRecommendationLists();
    void loadSitePicture();

    void calculate();
    void makeBaseline();
    void backToBaseline();
    void updatePumpCurve();
    void showPointToolTip(int column, int row, bool state);
    void followGridRow(int page);
    void openTopMenu();
    void exitProgram();
    void systemSettings();
    void siteProperties();
    // Runs a command of the File menu, then shows what it changed.
    void fileCommand(const std::function<FileCommandEnd()>& command);

    ApplicationState& m_app;
    UserInteraction& m_ui;
    std::function<void(int)> m_endProgram = QuitEventLoop;
    std::optional<int> m_endStatus;
    bool m_exiting = false;

    int m_areaBuilt = 0; // the area whose controls are being made
    std::vector<TextField> m_textFields;
    std::vector<ListField> m_lists;

    QTabWidget* m_tabMain = nullptr;
    QLabel* m_lblHoseLength = nullptr;
    QLabel* m_lblLength = nullptr;
    QLabel* m_lblTrunkLength = nullptr;
    QLabel* m_lblPipeLen = nullptr;
    QLabel* m_lblBuryDepth = nullptr;
    QLabel* m_lblRise = nullptr;
    QLabel* m_lblTankDiameter = nullptr;
    QRadioButton* m_optBasic = nullptr;
    QRadioButton* m_optAdvance = nullptr;
    QRadioButton* m_opt50Hz = nullptr;
    QRadioButton* m_opt60Hz = nullptr;
    QCheckBox* m_chkBall = nullptr;
    QCheckBox* m_chkSwing = nullptr;
    QGroupBox* m_fraBranch = nullptr;
    QGroupBox* m_fraTrunk = nullptr;
    QGroupBox* m_fraPipeInfo = nullptr;
    QListWidget* m_lstDispensing = nullptr;
    QListWidget* m_lstPump = nullptr;
    QLineEdit* m_txtSiteRecommend = nullptr;
    QLabel* m_picSiteLayout = nullptr;

    QChartView* m_msChart1 = nullptr;
    QChartView* m_msChart2 = nullptr;
    ChartAdapter* m_flowChart = nullptr;
    ChartAdapter* m_pumpCurveChart = nullptr;
    QLabel* m_lblCurrentPump = nullptr;
    QLabel* m_lblBaselinePump = nullptr;
    QTabWidget* m_tabCurrentBaseline = nullptr;
    QTableWidget* m_flxCurrent = nullptr;
    QTableWidget* m_flxBaseLine = nullptr;
};

} // namespace vesk::gui
