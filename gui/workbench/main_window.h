// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The main window, frmMain: the shell around the four areas and the results, and its menus.
#pragma once

#include "gui/workbench/window_context.h"
#include "workbench/file_commands.h"

#include <QMainWindow>
#include <array>
#include <functional>
#include <memory>
#include <optional>

class QTabWidget;

namespace vesk::gui {

class ChartAdapter;
class DispensingArea;
class PanelControls;
class PipingArea;
class PumpArea;
class ResultsPanel;
class SiteLayoutArea;

// The main window. It shows the state of the application and forwards each
// event to the core, then shows the state again, part by part. The state is
// initialised (InitialiseMainWindow) before the window is made; the window
// loads the site picture as it is made, and a missing picture throws the
// run-time failure "File not found" out of the constructor.
class MainWindow : public QMainWindow {
    Q_OBJECT

  public:
    MainWindow(ApplicationState& app, UserInteraction& ui, QWidget* parent = nullptr);
    ~MainWindow() override;

    // The whole window from the state.
    void refreshAll();

    ChartAdapter& flowChart() const;
    ChartAdapter& pumpCurveChart() const;

    // The status the program was ended with by a failure in an event, if any.
    std::optional<int> endStatus() const { return m_endStatus; }
    // What ends the program; by default the event loop is left with the status.
    void setProgramEnd(std::function<void(int)> endProgram) { m_endProgram = std::move(endProgram); }

  protected:
    void closeEvent(QCloseEvent* event) override;

  private:
    void buildMenus();
    QWidget* buildLeftPart();
    bool runEvent(const std::function<void()>& work);

    void refreshParts();
    void refreshCaption();
    void refreshAreas();
    // What the core asks of the window besides the inputs: the area on show,
    // the recommendation lists, the menus.
    void applyWindowState();
    // The site picture, when the core says it is due; a failure escapes.
    void loadDueSitePicture();
    // The focus, where the program itself moves it.
    void applyFocusRequest();
    void clearRecommendationLists(bool dispensing, bool pump);

    void openTopMenu();
    void exitProgram();
    void systemSettings();
    void siteProperties();
    // Runs a command of the File menu, then shows what it changed.
    void fileCommand(const std::function<FileCommandEnd()>& command);

    WindowContext m_context;
    std::function<void(int)> m_endProgram;
    std::optional<int> m_endStatus;
    bool m_exiting = false;

    PanelControls* m_controls;
    QTabWidget* m_tabMain = nullptr;
    DispensingArea* m_dispensingArea = nullptr;
    PipingArea* m_pipingArea = nullptr;
    PumpArea* m_pumpArea = nullptr;
    SiteLayoutArea* m_siteLayoutArea = nullptr;
    ResultsPanel* m_results = nullptr;
};

} // namespace vesk::gui
