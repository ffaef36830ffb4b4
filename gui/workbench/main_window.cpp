// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The main window, frmMain: the shell around the four areas and the results, and its menus.
#include "gui/workbench/main_window.h"

#include "gui/common/field_filters.h"
#include "gui/common/help_keys.h"
#include "gui/common/run_event.h"
#include "gui/editors/editor_menu.h"
#include "gui/reports/preview_pages.h"
#include "gui/workbench/area_widgets.h"
#include "gui/workbench/areas.h"
#include "gui/workbench/dialogs.h"
#include "gui/workbench/panel_controls.h"
#include "gui/workbench/results_panel.h"
#include "gui/workbench/site_properties_dialog.h"
#include "gui/workbench/update_dialog.h"
#include "gui/workbench/window_size.h"
#include "workbench/field_checks.h"
#include "workbench/panel_events.h"

#include "messages/help_topics.h"

#include <QApplication>
#include <QCloseEvent>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QScreen>
#include <QTabBar>
#include <QTabWidget>
#include <QVBoxLayout>

namespace vesk::gui {

MainWindow::MainWindow(ApplicationState& app, UserInteraction& ui, QWidget* parent)
    : QMainWindow(parent), m_context{app, ui, [this](const std::function<void()>& work) { return runEvent(work); }},
      m_endProgram(QuitEventLoop), m_controls(new PanelControls(m_context, this)) {
    setObjectName(QStringLiteral("frmMain"));
    buildMenus();

    m_results = new ResultsPanel(m_context);
    auto* central = new QWidget;
    auto* layout = new QHBoxLayout(central);
    layout->setContentsMargins(6, 6, 6, 6);
    layout->addWidget(buildLeftPart(), 0);
    layout->addWidget(m_results, 1);
    setCentralWidget(central);
    resize(OpeningWindowSize(screen()->availableGeometry()));

    connect(m_controls, &PanelControls::controlEntered, this, [this](bool dispensing, bool pump) {
        clearRecommendationLists(dispensing, pump);
        applyWindowState();
        m_pipingArea->showPipingMode();
    });
    connect(m_controls, &PanelControls::sitePictureDue, this, [this] { runEvent([this] { loadDueSitePicture(); }); });
    connect(m_results, &ResultsPanel::panelsRestored, this, &MainWindow::refreshAll);
    connect(m_results, &ResultsPanel::tabbedPastTheGrids, this,
            [this] { findChild<QPushButton*>(QString::fromLatin1(areas[0].button))->setFocus(Qt::OtherFocusReason); });

    // As the window is made, a site picture that cannot be loaded fails out of
    // the constructor.
    refreshParts();
    loadDueSitePicture();
    applyFocusRequest();
}

// Hidden while all of the window still lives: hiding a shown window moves the
// focus, and the controls' focus filters call into the window's parts.
MainWindow::~MainWindow() {
    hide();
}

ChartAdapter& MainWindow::flowChart() const {
    return m_results->flowChart();
}

ChartAdapter& MainWindow::pumpCurveChart() const {
    return m_pumpArea->pumpCurveChart();
}

// ---------------------------------------------------------------- building

void MainWindow::buildMenus() {
    struct Entry {
        const char* name;
        const char* text;
    };
    const auto addMenu = [this](const char* name, const char* title, std::initializer_list<Entry> entries) {
        QMenu* menu = named(menuBar()->addMenu(QString::fromLatin1(title)), name);
        for (const Entry& entry : entries) {
            named(menu->addAction(QString::fromLatin1(entry.text)), entry.name);
        }
        connect(menu, &QMenu::aboutToShow, this, &MainWindow::openTopMenu);
        return menu;
    };
    QMenu* file = addMenu("mnuFile", "&File",
                          {{"mnuNew", "New"},
                           {"mnuOpen", "Open"},
                           {"mnuSave", "Save"},
                           {"mnuSaveAs", "Save As"},
                           {"mnuPrint", "Print"},
                           {"mnuPrintPreview", "Print Preview"},
                           {"mnuExit", "Exit"}});
    QMenu* options = addMenu("mnuOptions", "&Options",
                             {{"mnuSiteProperties", "Site Properties"},
                              {"mnuSystemSettings", "System Settings"},
                              {"mnuDispensers", "Dispensers"},
                              {"mnuDispenserOthers", "DispenserOthers"},
                              {"mnuNozzles", "Nozzles"},
                              {"mnuLeakDetectors", "Leak Detectors"},
                              {"mnuBreakaways", "Breakaways"},
                              {"mnuPumps", "Pumps"},
                              {"mnuPumpsOthers", "PumpsOthers"},
                              {"mnuHoses", "Hoses"},
                              {"mnuUpdate", "Update"}});
    QMenu* help = addMenu("mnuHelp", "&Help", {{"mnuF1", "Help F1"}, {"mnuAbout", "About Vesk"}});

    const auto onTriggered = [this](QMenu* menu, const char* name, auto handler) {
        connect(menu->findChild<QAction*>(QString::fromLatin1(name)), &QAction::triggered, this, handler);
    };
    onTriggered(file, "mnuNew", [this] { fileCommand([this] { return FileNew(m_context.app, m_context.ui); }); });
    onTriggered(file, "mnuOpen", [this] { fileCommand([this] { return FileOpen(m_context.app, m_context.ui); }); });
    onTriggered(file, "mnuSave", [this] { fileCommand([this] { return FileSave(m_context.app); }); });
    onTriggered(file, "mnuSaveAs", [this] { fileCommand([this] { return FileSaveAs(m_context.app, m_context.ui); }); });
    onTriggered(file, "mnuPrint", [this] { runEvent([this] { PrintReportCommand(m_context.app, m_context.ui); }); });
    onTriggered(file, "mnuPrintPreview", [this] {
        const QSize chartPixels = findChild<QWidget*>(QStringLiteral("MSChart1"))->size();
        runEvent([&] { ShowPrintPreview(this, m_context.app, m_context.ui, chartPixels); });
    });
    onTriggered(file, "mnuExit", [this] { exitProgram(); });
    onTriggered(options, "mnuSiteProperties", [this] { siteProperties(); });
    onTriggered(options, "mnuSystemSettings", [this] { systemSettings(); });
    onTriggered(help, "mnuAbout", [this] { runEvent([this] { ShowAbout(this); }); });
    // Update, Help F1 and the F1 key of this window and its dialogs.
    onTriggered(options, "mnuUpdate", [this] {
        if (ShowUpdate(this, m_context)) {
            refreshAll();
        }
    });
    // Dispensers … Hoses: the component editors; after an Ok the lists are refilled.
    new ComponentEditorMenu(*this, m_context.app, m_context.ui, m_context.runEvent, [this] { refreshAll(); });
    onTriggered(help, "mnuF1",
                [this] { ShowHelpTopic(m_context.app.programFolder / helpFileName, introductionTopic, m_context.ui); });
    new HelpKeys(*this, m_context.app.programFolder, m_context.ui);
}

QWidget* MainWindow::buildLeftPart() {
    auto* left = new QWidget;
    auto* layout = new QVBoxLayout(left);
    layout->setContentsMargins(0, 0, 0, 0);

    auto* buttons = new QHBoxLayout;
    for (const AreaInfo& area : areas) {
        auto* button = named(new QPushButton(QString::fromLatin1(area.buttonCaption)), area.button);
        buttons->addWidget(button);
        const Area shown = area.area;
        connect(button, &QPushButton::clicked, this, [this, shown] {
            const RecommendationClears clears = ClickAreaButton(m_context.app.window, shown);
            clearRecommendationLists(clears.lstDispensing, clears.lstPump);
            applyWindowState();
        });
        // Tabbing through an area button opens its area; a back tab or a
        // click elsewhere does not.
        new FocusFilter(button, {{}, [this, shown](Qt::FocusReason reason) {
                                     LeaveAreaButton(m_context.app.window, shown, reason == Qt::TabFocusReason);
                                     applyWindowState();
                                 }});
    }
    layout->addLayout(buttons);

    m_dispensingArea = new DispensingArea(m_context, *m_controls);
    m_pipingArea = new PipingArea(m_context, *m_controls);
    m_pumpArea = new PumpArea(m_context, *m_controls);
    m_siteLayoutArea = new SiteLayoutArea(m_context, *m_controls);
    m_tabMain = named(new QTabWidget, "tabMain");
    const std::array<QWidget*, areaCount> areaFrames{m_dispensingArea, m_pipingArea, m_pumpArea, m_siteLayoutArea};
    for (const AreaInfo& area : areas) {
        m_tabMain->addTab(areaFrames[static_cast<std::size_t>(area.area)], QString::fromLatin1(area.buttonCaption));
    }
    // The area buttons are the way to the areas.
    m_tabMain->tabBar()->hide();
    layout->addWidget(m_tabMain, 1);
    left->setFixedWidth(540);
    return left;
}

// ---------------------------------------------------------------- showing the state

void MainWindow::refreshAll() {
    refreshParts();
    if (runEvent([this] { loadDueSitePicture(); })) {
        applyFocusRequest();
    }
}

void MainWindow::refreshParts() {
    refreshCaption();
    refreshAreas();
    m_results->refreshAll();
    m_pumpArea->refreshPumpCurve();
    applyWindowState();
}

void MainWindow::refreshCaption() {
    setWindowTitle(qs(m_context.app.caption));
}

void MainWindow::refreshAreas() {
    m_dispensingArea->refresh();
    m_pipingArea->refresh();
    m_pumpArea->refresh();
    m_siteLayoutArea->refresh();
}

void MainWindow::applyWindowState() {
    WindowState& window = m_context.app.window;
    m_tabMain->setCurrentIndex(static_cast<int>(window.tabMain));
    const RecommendationLists& lists = window.recommendation;
    m_dispensingArea->lstDispensing()->setEnabled(lists.lstDispensingEnabled);
    m_dispensingArea->lstDispensing()->setVisible(lists.lstDispensingVisible);
    m_pumpArea->lstPump()->setEnabled(lists.lstPumpEnabled);
    m_siteLayoutArea->txtSiteRecommend()->setText(qs(lists.txtSiteRecommend));
    menuBar()->findChild<QMenu*>(QStringLiteral("mnuOptions"))->menuAction()->setEnabled(window.mnuOptionsEnabled);
    menuBar()->findChild<QAction*>(QStringLiteral("mnuSave"))->setEnabled(window.mnuSaveEnabled);
    menuBar()->findChild<QAction*>(QStringLiteral("mnuSaveAs"))->setEnabled(window.mnuSaveAsEnabled);
}

void MainWindow::loadDueSitePicture() {
    if (m_context.app.window.sitePictureDue) {
        m_siteLayoutArea->loadSitePicture();
    }
}

void MainWindow::applyFocusRequest() {
    std::optional<std::string>& request = m_context.app.window.focusRequest;
    if (request) {
        const QString name = QString::fromStdString(*request);
        request.reset();
        if (auto* control = findChild<QWidget*>(name)) {
            control->setFocus(Qt::OtherFocusReason);
        }
    }
}

void MainWindow::clearRecommendationLists(bool dispensing, bool pump) {
    if (dispensing) {
        m_dispensingArea->lstDispensing()->clear();
    }
    if (pump) {
        m_pumpArea->lstPump()->clear();
    }
}

// ---------------------------------------------------------------- events

bool MainWindow::runEvent(const std::function<void()>& work) {
    return RunEvent(m_context.ui, work, [this](int status) {
        m_endStatus = status;
        m_endProgram(status);
    });
}

void MainWindow::openTopMenu() {
    runEvent([this] {
        clearRecommendationLists(true, true);
        OpenTopMenu(m_context.app, m_context.ui);
    });
    m_controls->showTextFields();
}

void MainWindow::exitProgram() {
    runEvent([this] {
        if (ExitProgram(m_context.app, m_context.ui)) {
            m_exiting = true;
            close();
        }
    });
}

void MainWindow::systemSettings() {
    // Ok converts the fields and re-plots the graph; Cancel changes nothing.
    if (runEvent([this] { ShowSystemSettings(this, m_context.app); })) {
        refreshAll();
    }
}

void MainWindow::siteProperties() {
    // The texts go to clsSiteProperties only; nothing on the window shows them.
    runEvent([this] { ShowSiteProperties(this, m_context.app, m_context.ui); });
}

void MainWindow::fileCommand(const std::function<FileCommandEnd()>& command) {
    FileCommandEnd end = FileCommandEnd::Nothing;
    if (!runEvent([&] { end = command(); })) {
        return;
    }
    switch (end) {
    case FileCommandEnd::Nothing:
        return;
    case FileCommandEnd::CaptionChanged:
        refreshCaption();
        return;
    case FileCommandEnd::ReadFailed:
    case FileCommandEnd::Opened:
    case FileCommandEnd::StartedAgain:
        // The core says what else follows: the area, the site picture, the
        // menus, the focus.
        refreshAll();
        return;
    }
}

void MainWindow::closeEvent(QCloseEvent* event) {
    if (!m_exiting && !m_endStatus) {
        runEvent([this] { CloseMainWindow(m_context.app); });
    }
    event->accept();
}

} // namespace vesk::gui
