// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The main window, frmMain: the four areas, the flow graph, the grids and the menus.
#include "gui/workbench/main_window.h"

#include "gui/common/chart_adapter.h"
#include "gui/workbench/dialogs.h"
#include "gui/common/field_filters.h"
#include "gui/workbench/site_properties_dialog.h"
#include "gui/common/text_codec.h"

#include "workbench/field_checks.h"
#include "workbench/flow_chart.h"
#include "workbench/pump_curve.h"
#include "workbench/result_grid.h"
#include "workbench/startup.h"

#include <QApplication>
#include <QChart>
#include <QChartView>
#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QCoreApplication>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QPainter>
#include <QPixmap>
#include <QPushButton>
#include <QRadioButton>
#include <QResizeEvent>
#include <QTabBar>
#include <QTabWidget>
#include <QTableWidget>
#include <QVBoxLayout>
#include <filesystem>

namespace vesk::gui {

namespace {

// The screen's units of the system: 15 twips to a pixel.
constexpr qreal twipsPerPixel = 15;
// The grids' width at design, from which their column widths are set.
constexpr Double gridDesignWidthTwips = 9000;
// The platform's descriptions of a picture that cannot be loaded.
constexpr const char* fileNotFound = "File not found";
constexpr const char* invalidPicture = "Invalid picture";

constexpr int dispensingTab = 0;
constexpr int pipingTab = 1;
constexpr int pumpTab = 2;
constexpr int siteTab = 3;

enum class Check { Length, Count, Nozzle };

// A text field of the areas: its text in the panel, its limit, its key filter,
// its check on the loss of focus and its tool tip.
struct FieldDesign {
    const char* name;
    std::string& (*text)(PanelState&);
    int maxLength;
    KeyFilter keys;
    Check check;
    const char* toolTip;
};

template <std::size_t Index> std::string& branchFitting(PanelState& panel) {
    return panel.txtBranchFitting[Index];
}
template <std::size_t Index> std::string& trunkFitting(PanelState& panel) {
    return panel.txtTrunkFitting[Index];
}

const FieldDesign fieldDesigns[] = {
    {"txtHoseLen", [](PanelState& p) -> std::string& { return p.txtHoseLen; }, 5, KeyFilter::Decimal, Check::Length,
     "Enter the desired Hose Length "},
    {"txtNoOfNozzle", [](PanelState& p) -> std::string& { return p.txtNoOfNozzle; }, 2, KeyFilter::Digits,
     Check::Nozzle, "Enter the No.of Nozzles required in Fuel Station"},
    {"txtBranchLength", [](PanelState& p) -> std::string& { return p.txtBranchLength; }, 6, KeyFilter::Decimal,
     Check::Length, "Enter the length of the Branch to be used in Fuel Station"},
    {"txtTrunkLength", [](PanelState& p) -> std::string& { return p.txtTrunkLength; }, 6, KeyFilter::Decimal,
     Check::Length, "Enter the length of the Trunk  to be used in Fuel Station"},
    {"txtPipeLen", [](PanelState& p) -> std::string& { return p.txtPipeLen; }, 6, KeyFilter::Decimal, Check::Length,
     "Enter the length of the the pipe to be used"},
    {"txtBranchFitting(0)", branchFitting<0>, 2, KeyFilter::Digits, Check::Count,
     "Enter the number of 45 elbows required in Branch"},
    {"txtBranchFitting(1)", branchFitting<1>, 2, KeyFilter::Digits, Check::Count,
     "Enter the number of 90 elbows required in Branch"},
    {"txtBranchFitting(2)", branchFitting<2>, 2, KeyFilter::Digits, Check::Count,
     "Enter the number of Thru T required in Branch"},
    {"txtBranchFitting(3)", branchFitting<3>, 2, KeyFilter::Digits, Check::Count,
     "Enter the number of Side T required in Branch"},
    {"txtTrunkFitting(0)", trunkFitting<0>, 2, KeyFilter::Digits, Check::Count,
     "Enter the number of 45 elbows required in Trunk"},
    {"txtTrunkFitting(1)", trunkFitting<1>, 2, KeyFilter::Digits, Check::Count,
     "Enter the number of 90 elbows required in Trunk"},
    {"txtTrunkFitting(2)", trunkFitting<2>, 2, KeyFilter::Digits, Check::Count,
     "Enter the number of Thru T required in Trunk"},
    {"txtTrunkFitting(3)", trunkFitting<3>, 2, KeyFilter::Digits, Check::Count,
     "Enter the number of Side T required in Trunk"},
    {"txtTankDiameter", [](PanelState& p) -> std::string& { return p.txtTankDiameter; }, 7, KeyFilter::Decimal,
     Check::Length, "Enter the diameter of the Tank to be used"},
    {"txtBuryDepth", [](PanelState& p) -> std::string& { return p.txtBuryDepth; }, 7, KeyFilter::Decimal, Check::Length,
     "Enter the Bury Depth"},
    {"txtRise", [](PanelState& p) -> std::string& { return p.txtRise; }, 6, KeyFilter::Decimal, Check::Length,
     "Enter the Rise value"},
};

const FieldDesign& designOf(const char* name) {
    for (const FieldDesign& design : fieldDesigns) {
        if (std::string_view(design.name) == name) {
            return design;
        }
    }
    fail(failure::subscript);
}

constexpr const char* dispenserHelp =
    "In Dispensing Area user can select the Dispenser, Breakaway, Hose Size, Nozzle and Others components. User can "
    "enter the desired Hose Length and number of nozzles. Graph will be plotted on the basis of number of nozzle "
    "entered (next even number).";
constexpr const char* pipingHelp =
    "In Piping Area user can select the type of piping material, Branch Size, Trunk Size. User can also enter the "
    "number and value of different Pipe Fittings used. In this area user can select either the advance or basic "
    "option.";
constexpr const char* pumpHelp =
    "In Pump Area user can select the different components in the given fields. On click of 'Update' button, a "
    "pump curve will be shown in the graph for the selected pump.";
constexpr const char* siteHelp =
    "In Site Layout area user can enter the size of Tank Diamenter, Bury Depth and Rise. Apart from these user can "
    "select the number of branches to be used in Fuel Station. An image is shown here on the basis of Pump quantity "
    "selected in Pump Area and Number of Branches in Site Layout. This image will be changed dynamically if any of "
    "these selection is changed.";

QString qs(const std::string& bytes) {
    return fromWindows1252(bytes);
}

template <class Widget> Widget* named(Widget* widget, const char* name) {
    widget->setObjectName(QString::fromLatin1(name));
    return widget;
}

QLabel* caption(const QString& text, QWidget* parent = nullptr) {
    return new QLabel(text, parent);
}

QGroupBox* frame(const char* name, const char* title) {
    return named(new QGroupBox(QString::fromLatin1(title)), name);
}

QGroupBox* helpFrame(const char* labelName, const char* text) {
    auto* box = new QGroupBox(QStringLiteral("Help"));
    auto* label = named(new QLabel(QString::fromLatin1(text)), labelName);
    label->setWordWrap(true);
    label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    auto* layout = new QVBoxLayout(box);
    layout->addWidget(label);
    return box;
}

// The inert controls of the recommendation feature: a disabled button and a
// disabled, locked box, and, where the area has one, a disabled list.
QWidget* recommendation(const char* buttonName, const char* boxName, QListWidget* list) {
    auto* row = new QWidget;
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* button = named(new QPushButton(QStringLiteral("Recommend")), buttonName);
    button->setEnabled(false);
    auto* box = named(new QLineEdit, boxName);
    box->setReadOnly(true);
    box->setEnabled(false);
    layout->addWidget(button);
    layout->addWidget(box, 1);
    if (list != nullptr) {
        list->setEnabled(false);
        list->setMaximumHeight(list->fontMetrics().height() * 3);
        layout->addWidget(list, 1);
    }
    return row;
}

QColor gridColour(std::uint32_t colour) {
    // The grids hold colours as the platform does: blue in the high byte.
    return QColor(static_cast<int>(colour & 0xFF), static_cast<int>((colour >> 8) & 0xFF),
                  static_cast<int>((colour >> 16) & 0xFF));
}

QColor seriesColour(const std::optional<Rgb>& colour) {
    return colour ? toQColor(*colour) : QColor(Qt::darkGray);
}

QStringList labelsOf(const std::vector<std::string>& labels) {
    QStringList list;
    list.reserve(static_cast<qsizetype>(labels.size()));
    for (const std::string& label : labels) {
        list.append(qs(label));
    }
    return list;
}

// The picture box of the site layout: the picture fitted to the box, its
// proportions kept, whenever the box changes size.
class PictureBox : public QLabel {
  public:
    void setPicture(const QPixmap& picture) {
        m_picture = picture;
        fit();
    }

  protected:
    void resizeEvent(QResizeEvent* event) override {
        QLabel::resizeEvent(event);
        fit();
    }

  private:
    void fit() {
        if (!m_picture.isNull()) {
            // Scaled in device pixels, so a high-density screen shows it sharp.
            const qreal ratio = devicePixelRatioF();
            QPixmap fitted =
                m_picture.scaled(contentsRect().size() * ratio, Qt::KeepAspectRatio, Qt::SmoothTransformation);
            fitted.setDevicePixelRatio(ratio);
            setPixmap(fitted);
        }
    }
    QPixmap m_picture;
};

// The hourglass pointer while a button's work runs.
class HourGlass {
  public:
    HourGlass() { QApplication::setOverrideCursor(Qt::WaitCursor); }
    ~HourGlass() { QApplication::restoreOverrideCursor(); }
    HourGlass(const HourGlass&) = delete;
    HourGlass& operator=(const HourGlass&) = delete;
};

// An option button as the panel has it; both of a pair may be off.
void showOption(QRadioButton* option, bool on) {
    if (!on && option->isChecked()) {
        option->setAutoExclusive(false);
        option->setChecked(false);
        option->setAutoExclusive(true);
        return;
    }
    option->setChecked(on);
}

QChartView* chartView(const char* name, ChartAdapter*& adapter, QObject* owner) {
    auto* chart = new QChart;
    chart->setBackgroundRoundness(0);
    chart->setMargins(QMargins(4, 4, 4, 4));
    auto* view = named(new QChartView(chart), name);
    view->setRenderHint(QPainter::Antialiasing);
    adapter = new ChartAdapter(chart, owner);
    return view;
}

} // namespace

void QuitEventLoop(int status) {
    QCoreApplication::exit(status);
}

bool RunEvent(UserInteraction& ui, const std::function<void()>& work, const std::function<void(int)>& endProgram) {
    try {
        work();
        return true;
    } catch (const ProcessEnd&) {
        endProgram(failedExitStatus); // its box has been shown
    } catch (const RunTimeFailure& failure) {
        ui.showMessageBox(failure.what(), MessageIcon::Exclamation);
        endProgram(failedExitStatus);
    }
    return false;
}

MainWindow::MainWindow(ApplicationState& app, UserInteraction& ui, QWidget* parent)
    : QMainWindow(parent), m_app(app), m_ui(ui) {
    setObjectName(QStringLiteral("frmMain"));
    buildMenus();

    auto* central = new QWidget;
    auto* layout = new QHBoxLayout(central);
    layout->setContentsMargins(6, 6, 6, 6);
    layout->addWidget(buildLeftPart(), 0);
    layout->addWidget(buildRightPart(), 1);
    setCentralWidget(central);
    connectFocusEvents();

    refreshAll();
    // The selection of the number of branches at start-up loads the picture.
    loadSitePicture();
}

MainWindow::~MainWindow() = default;

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

    const auto fileAction = [file](const char* name) { return file->findChild<QAction*>(QString::fromLatin1(name)); };
    connect(fileAction("mnuNew"), &QAction::triggered, this,
            [this] { fileCommand([this] { return FileNew(m_app, m_ui); }); });
    connect(fileAction("mnuOpen"), &QAction::triggered, this,
            [this] { fileCommand([this] { return FileOpen(m_app, m_ui); }); });
    connect(fileAction("mnuSave"), &QAction::triggered, this,
            [this] { fileCommand([this] { return FileSave(m_app); }); });
    connect(fileAction("mnuSaveAs"), &QAction::triggered, this,
            [this] { fileCommand([this] { return FileSaveAs(m_app, m_ui); }); });
    connect(fileAction("mnuExit"), &QAction::triggered, this, &MainWindow::exitProgram);
    connect(options->findChild<QAction*>(QStringLiteral("mnuSiteProperties")), &QAction::triggered, this,
            &MainWindow::siteProperties);
    connect(options->findChild<QAction*>(QStringLiteral("mnuSystemSettings")), &QAction::triggered, this,
            &MainWindow::systemSettings);
    connect(help->findChild<QAction*>(QStringLiteral("mnuAbout")), &QAction::triggered, this,
            [this] { runEvent([this] { ShowAbout(this); }); });
}

QWidget* MainWindow::buildLeftPart() {
    auto* left = new QWidget;
    auto* layout = new QVBoxLayout(left);
    layout->setContentsMargins(0, 0, 0, 0);

    auto* buttons = new QHBoxLayout;
    const std::pair<const char*, const char*> areaButtons[] = {{"cmdDispenser", "Dispensing Area"},
                                                               {"cmdPiping", "Piping Area"},
                                                               {"cmdPump", "Pump Area"},
                                                               {"cmdSite", "Site Layout"}};
    for (int tab = 0; tab < 4; ++tab) {
        auto* button = named(new QPushButton(QString::fromLatin1(areaButtons[tab].second)), areaButtons[tab].first);
        buttons->addWidget(button);
        connect(button, &QPushButton::clicked, this, [this, tab] {
            showArea(tab);
            clearRecommendationLists();
        });
        // Tabbing through an area button opens its area; a back tab or a
        // click elsewhere does not.
        new FocusFilter(button, {{}, [this, tab](Qt::FocusReason reason) {
                                     if (reason == Qt::TabFocusReason) {
                                         showArea(tab);
                                     }
                                 }});
    }
    layout->addLayout(buttons);

    m_tabMain = named(new QTabWidget, "tabMain");
    m_tabMain->addTab(buildDispensingArea(), QStringLiteral("Dispensing Area"));
    m_tabMain->addTab(buildPipingArea(), QStringLiteral("Piping Area"));
    m_tabMain->addTab(buildPumpArea(), QStringLiteral("Pump Area"));
    m_tabMain->addTab(buildSiteLayout(), QStringLiteral("Site Layout"));
    // The area buttons are the way to the areas.
    m_tabMain->tabBar()->hide();
    m_tabMain->setCurrentIndex(dispensingTab);
    layout->addWidget(m_tabMain, 1);
    left->setFixedWidth(540);
    return left;
}

QLineEdit* MainWindow::addTextField(const char* name) {
    const FieldDesign& design = designOf(name);
    auto* edit = named(new QLineEdit, name);
    edit->setMaxLength(design.maxLength);
    edit->setToolTip(QString::fromLatin1(design.toolTip));
    m_textFields.push_back({m_areaBuilt, edit, design.text});
    const auto text = design.text;
    connect(edit, &QLineEdit::textEdited, this,
            [this, text](const QString& typed) { text(m_app.panel) = toWindows1252(typed); });

    const TextField field = m_textFields.back();
    std::function<bool()> check;
    switch (design.check) {
    case Check::Length:
        check = [this, field, name] {
            bool back = false;
            runEvent([&] { back = LengthCheck(m_app, LengthFieldNamed(name), m_ui); });
            showTextField(field);
            return back;
        };
        break;
    case Check::Count:
        check = [this, field] {
            runEvent([&] { CountCheck(field.text(m_app.panel)); });
            showTextField(field);
            return false;
        };
        break;
    case Check::Nozzle:
        check = [this, field] {
            bool back = false;
            runEvent([&] { back = NozzleCheck(m_app, m_ui); });
            showTextField(field);
            return back;
        };
        break;
    }
    new FieldFilter(edit, {design.keys, std::move(check)});
    return edit;
}

QComboBox* MainWindow::addList(const char* name, ComboList PanelState::*list, bool selectionToolTip) {
    auto* combo = named(new QComboBox, name);
    combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    combo->setMinimumContentsLength(10);
    m_lists.push_back({m_areaBuilt, combo, list});
    connect(combo, &QComboBox::activated, this, [this, combo, list, selectionToolTip](int index) {
        runEvent([&] { (m_app.panel.*list).SetListIndex(index); });
        if (selectionToolTip) {
            // A long name that the box cuts can be read in the tool tip.
            combo->setToolTip(combo->itemText(index));
        }
    });
    return combo;
}

QWidget* MainWindow::buildDispensingArea() {
    m_areaBuilt = dispensingTab;
    QGroupBox* area = frame("fraDispensing", "Dispensing Area");
    auto* grid = new QGridLayout;
    auto* cmbDispenser = addList("cmbDispenser", &PanelState::cmbDispenser, true);
    cmbDispenser->setToolTip(QStringLiteral("Select the desired Dispenser from the combo box"));
    auto* cmbBreakAway = addList("cmbBreakAway", &PanelState::cmbBreakAway, true);
    cmbBreakAway->setToolTip(QStringLiteral("Select the desired Breakaway from the combo box"));
    auto* cmbHoseSize = addList("cmbHoseSize", &PanelState::cmbHoseSize, false);
    cmbHoseSize->setToolTip(QStringLiteral("Select the required hose size from the  combo box"));
    auto* cmbNozzle = addList("cmbNozzle", &PanelState::cmbNozzle, true);
    cmbNozzle->setToolTip(QStringLiteral("Select the desired Nozzle from the combo box"));
    auto* cmbDispOthers = addList("cmbDispOthers", &PanelState::cmbDispOthers, true);
    cmbDispOthers->setToolTip(QStringLiteral("Select the Others component from the combo box"));
    m_lblHoseLength = named(new QLabel, "lblHoseLength");
    auto* txtMaxNozz = named(new QLineEdit, "txtMaxNozz");
    txtMaxNozz->setEnabled(false);
    m_textFields.push_back({m_areaBuilt, txtMaxNozz, [](PanelState& p) -> std::string& { return p.txtMaxNozz; }});

    grid->addWidget(caption(QStringLiteral("Dispenser")), 0, 0);
    grid->addWidget(cmbDispenser, 0, 1, 1, 3);
    grid->addWidget(caption(QStringLiteral("Breakaway")), 1, 0);
    grid->addWidget(cmbBreakAway, 1, 1, 1, 3);
    grid->addWidget(caption(QStringLiteral("Hose Size")), 2, 0);
    grid->addWidget(cmbHoseSize, 2, 1);
    grid->addWidget(m_lblHoseLength, 2, 2);
    grid->addWidget(addTextField("txtHoseLen"), 2, 3);
    grid->addWidget(caption(QStringLiteral("Nozzle")), 3, 0);
    grid->addWidget(cmbNozzle, 3, 1, 1, 3);
    grid->addWidget(caption(QStringLiteral("Others")), 4, 0);
    grid->addWidget(cmbDispOthers, 4, 1, 1, 3);
    grid->addWidget(caption(QStringLiteral("No. of Nozzles")), 5, 0);
    grid->addWidget(addTextField("txtNoOfNozzle"), 5, 1);
    grid->addWidget(caption(QStringLiteral("Max no. of nozzles")), 5, 2);
    grid->addWidget(txtMaxNozz, 5, 3);
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(3, 1);

    m_lstDispensing = named(new QListWidget, "lstDispensing");
    auto* layout = new QVBoxLayout(area);
    layout->addLayout(grid);
    layout->addWidget(recommendation("cmdDispRecom", "txtRecommendDisp", m_lstDispensing));
    layout->addStretch(1);
    layout->addWidget(helpFrame("lblDispenserHelp", dispenserHelp));
    return area;
}

QWidget* MainWindow::buildPipingArea() {
    m_areaBuilt = pipingTab;
    QGroupBox* area = frame("fraPiping", "Piping Area");
    auto* top = new QGridLayout;
    m_optBasic = named(new QRadioButton(QStringLiteral("Basic")), "optBasic");
    m_optAdvance = named(new QRadioButton(QStringLiteral("Advance")), "optAdvance");
    auto* modes = new QWidget;
    auto* modeLayout = new QHBoxLayout(modes);
    modeLayout->setContentsMargins(0, 0, 0, 0);
    modeLayout->addWidget(m_optBasic);
    modeLayout->addWidget(m_optAdvance);
    modeLayout->addStretch(1);
    auto* cmbPiping = addList("cmbPiping", &PanelState::cmbPiping, false);
    cmbPiping->setToolTip(QStringLiteral("Select piping material to be used in Fuel Station"));
    top->addWidget(modes, 0, 0, 1, 2);
    top->addWidget(caption(QStringLiteral("Piping Type")), 1, 0);
    top->addWidget(cmbPiping, 1, 1);
    top->setColumnStretch(1, 1);

    // The fittings of a branch or a trunk, with the size and the length.
    const auto pipeFrame = [this](QGroupBox* box, QComboBox* size, QLabel* lengthCaption, const char* lengthName,
                                  const char* fittingStem) {
        auto* grid = new QGridLayout(box);
        grid->addWidget(caption(QStringLiteral("Size")), 0, 0);
        grid->addWidget(size, 0, 1, 1, 3);
        grid->addWidget(lengthCaption, 1, 0);
        grid->addWidget(addTextField(lengthName), 1, 1, 1, 3);
        const char* fittingCaptions[] = {"45 Elbow", "90 Elbow", "Thru T", "Side T"};
        for (int index = 0; index < 4; ++index) {
            const std::string name = std::string(fittingStem) + "(" + std::to_string(index) + ")";
            grid->addWidget(caption(QString::fromLatin1(fittingCaptions[index])), 2 + index / 2, (index % 2) * 2);
            grid->addWidget(addTextField(designOf(name.c_str()).name), 2 + index / 2, (index % 2) * 2 + 1);
        }
        grid->setColumnStretch(1, 1);
        grid->setColumnStretch(3, 1);
        return grid;
    };

    m_fraBranch = frame("fraBranch", "Branch Info");
    auto* cmbBranch = addList("cmbBranch", &PanelState::cmbBranch, false);
    cmbBranch->setToolTip(QStringLiteral("Select the size of the Branch to be used in Fuel Station"));
    m_lblLength = named(new QLabel, "lblLength");
    pipeFrame(m_fraBranch, cmbBranch, m_lblLength, "txtBranchLength", "txtBranchFitting");

    m_fraTrunk = frame("fraTrunk", "Trunk Info");
    auto* cmbTrunk = addList("cmbTrunk", &PanelState::cmbTrunk, false);
    cmbTrunk->setToolTip(QStringLiteral("Select the size of the Trunk to be used in Fuel Station"));
    m_lblTrunkLength = named(new QLabel, "lblTrunkLength");
    QGridLayout* trunkGrid = pipeFrame(m_fraTrunk, cmbTrunk, m_lblTrunkLength, "txtTrunkLength", "txtTrunkFitting");
    m_chkBall = named(new QCheckBox(QStringLiteral("Ball Valve")), "chkBall");
    m_chkSwing = named(new QCheckBox(QStringLiteral("Swing Check")), "chkSwing");
    trunkGrid->addWidget(m_chkBall, 4, 0, 1, 2);
    trunkGrid->addWidget(m_chkSwing, 4, 2, 1, 2);

    m_fraPipeInfo = frame("fraPipeInfo", "PipeInfo");
    auto* pipeGrid = new QGridLayout(m_fraPipeInfo);
    auto* cmbPipeSize = addList("cmbPipeSize", &PanelState::cmbPipeSize, false);
    cmbPipeSize->setToolTip(QStringLiteral("Select the size of the Pipe to be used in Fuel Station"));
    m_lblPipeLen = named(new QLabel, "lblPipeLen");
    pipeGrid->addWidget(caption(QStringLiteral("Size")), 0, 0);
    pipeGrid->addWidget(cmbPipeSize, 0, 1);
    pipeGrid->addWidget(m_lblPipeLen, 1, 0);
    pipeGrid->addWidget(addTextField("txtPipeLen"), 1, 1);
    pipeGrid->setColumnStretch(1, 1);

    connect(m_optAdvance, &QRadioButton::clicked, this, [this] {
        m_app.panel.optAdvance = true;
        m_app.panel.optBasic = false;
        showPipingMode();
    });
    connect(m_optBasic, &QRadioButton::clicked, this, [this] {
        m_app.panel.optBasic = true;
        m_app.panel.optAdvance = false;
        showPipingMode();
    });
    // The click handlers of the valve boxes do nothing: the boxes are read at
    // calculation.
    connect(m_chkBall, &QCheckBox::stateChanged, this,
            [this](int state) { m_app.panel.chkBall = static_cast<Integer>(state == Qt::Checked ? 1 : 0); });
    connect(m_chkSwing, &QCheckBox::stateChanged, this,
            [this](int state) { m_app.panel.chkSwing = static_cast<Integer>(state == Qt::Checked ? 1 : 0); });

    auto* layout = new QVBoxLayout(area);
    layout->addLayout(top);
    layout->addWidget(m_fraBranch);
    layout->addWidget(m_fraTrunk);
    layout->addWidget(m_fraPipeInfo);
    layout->addWidget(recommendation("cmdPipingRecom", "txtRecommendPiping", nullptr));
    layout->addStretch(1);
    layout->addWidget(helpFrame("lblPipingHelp", pipingHelp));
    return area;
}

QWidget* MainWindow::buildPumpArea() {
    m_areaBuilt = pumpTab;
    QGroupBox* area = frame("fraPump", "Pumping Area");
    auto* grid = new QGridLayout;
    auto* cmbPumps = addList("cmbPumps", &PanelState::cmbPumps, true);
    cmbPumps->setToolTip(QStringLiteral("Select the desired Pump from Available Pump combo box"));
    auto* cmbQuantity = addList("cmbQuantity", &PanelState::cmbQuantity, false);
    cmbQuantity->setToolTip(QStringLiteral("Select the number of Pumps to be used"));
    cmbQuantity->setMinimumContentsLength(2);
    auto* cmbLeak = addList("cmbLeak", &PanelState::cmbLeak, true);
    cmbLeak->setToolTip(QStringLiteral("Select the desired Leak Detector from the combo box"));
    auto* cmbPumpOthers = addList("cmbPumpOthers", &PanelState::cmbPumpOthers, true);
    cmbPumpOthers->setToolTip(QStringLiteral("Select the Other Pump related component"));
    m_opt50Hz = named(new QRadioButton(QStringLiteral("50 Hz")), "opt50Hz");
    m_opt50Hz->setToolTip(QStringLiteral("50 Hz Pumps will be shown in the Available Pumps list"));
    m_opt60Hz = named(new QRadioButton(QStringLiteral("60 Hz")), "opt60Hz");
    m_opt60Hz->setToolTip(QStringLiteral("60 Hz Pumps will be shown in the Available Pumps list"));
    auto* frequencies = new QWidget;
    auto* frequencyLayout = new QHBoxLayout(frequencies);
    frequencyLayout->setContentsMargins(0, 0, 0, 0);
    frequencyLayout->addWidget(m_opt50Hz);
    frequencyLayout->addWidget(m_opt60Hz);
    frequencyLayout->addStretch(1);
    frequencyLayout->addWidget(caption(QStringLiteral("Qty")));
    frequencyLayout->addWidget(cmbQuantity);

    grid->addWidget(caption(QStringLiteral("Available Pumps")), 0, 0);
    grid->addWidget(cmbPumps, 0, 1);
    grid->addWidget(frequencies, 1, 1);
    grid->addWidget(caption(QStringLiteral("Leak Detector")), 2, 0);
    grid->addWidget(cmbLeak, 2, 1);
    grid->addWidget(caption(QStringLiteral("Others")), 3, 0);
    grid->addWidget(cmbPumpOthers, 3, 1);
    grid->setColumnStretch(1, 1);

    for (QRadioButton* option : {m_opt50Hz, m_opt60Hz}) {
        const bool fiftyHz = option == m_opt50Hz;
        connect(option, &QRadioButton::clicked, this, [this, option, fiftyHz] {
            if (!option->isChecked()) {
                return; // only an option that is on refills the list
            }
            m_app.panel.opt50Hz = fiftyHz;
            m_app.panel.opt60Hz = !fiftyHz;
            if (runEvent(
                    [this, fiftyHz] { ClickFrequencyOption(m_app.panel, m_app.catalogues, m_app.config, fiftyHz); })) {
                refreshPumpArea();
            }
        });
    }

    auto* lblPumpCurve = named(new QLabel(QString::fromLatin1(pumpCurveTitle)), "lblPumpCurve");
    m_msChart2 = chartView("MSChart2", m_pumpCurveChart, this);
    m_msChart2->setMinimumHeight(250);
    auto* cmdUpdate = named(new QPushButton(QStringLiteral("Update Graph")), "cmdUpdate");
    auto* cmdPrintPump = named(new QPushButton(QStringLiteral("Print")), "cmdPrintPump");
    connect(cmdUpdate, &QPushButton::clicked, this, &MainWindow::updatePumpCurve);
    auto* curveButtons = new QHBoxLayout;
    curveButtons->addWidget(lblPumpCurve, 1);
    curveButtons->addWidget(cmdUpdate);
    curveButtons->addWidget(cmdPrintPump);

    m_lstPump = named(new QListWidget, "lstPump");
    auto* layout = new QVBoxLayout(area);
    layout->addLayout(grid);
    layout->addLayout(curveButtons);
    layout->addWidget(m_msChart2, 1);
    layout->addWidget(recommendation("cmdPumpRecom", "txtRecommendPump", m_lstPump));
    layout->addWidget(helpFrame("lblPumpHelp", pumpHelp));
    return area;
}

QWidget* MainWindow::buildSiteLayout() {
    m_areaBuilt = siteTab;
    QGroupBox* area = frame("fraSite", "Site Layout");
    auto* grid = new QGridLayout;
    m_lblTankDiameter = named(new QLabel, "lblTankDiameter");
    m_lblBuryDepth = named(new QLabel, "lblBuryDepth");
    m_lblRise = named(new QLabel, "lblRise");
    auto* cmbNoOfBranches = addList("cmbNoOfBranches", &PanelState::cmbNoOfBranches, false);
    cmbNoOfBranches->setToolTip(QStringLiteral("Select the number of branches to be used"));
    cmbNoOfBranches->setMinimumContentsLength(3);
    grid->addWidget(m_lblTankDiameter, 0, 0);
    grid->addWidget(addTextField("txtTankDiameter"), 0, 1);
    grid->addWidget(m_lblBuryDepth, 1, 0);
    grid->addWidget(addTextField("txtBuryDepth"), 1, 1);
    grid->addWidget(m_lblRise, 2, 0);
    grid->addWidget(addTextField("txtRise"), 2, 1);
    grid->addWidget(caption(QStringLiteral("No. of Branches")), 3, 0);
    grid->addWidget(cmbNoOfBranches, 3, 1);
    grid->setColumnStretch(1, 1);
    connect(cmbNoOfBranches, &QComboBox::activated, this, [this] { runEvent([this] { loadSitePicture(); }); });

    m_picSiteLayout = named(new PictureBox, "PicSiteLayout");
    m_picSiteLayout->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    m_picSiteLayout->setAlignment(Qt::AlignCenter);
    m_picSiteLayout->setMinimumSize(320, 220);
    m_picSiteLayout->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);

    auto* layout = new QVBoxLayout(area);
    layout->addLayout(grid);
    layout->addWidget(m_picSiteLayout, 1);
    layout->addWidget(recommendation("cmdSiteRec", "txtSiteRecommend", nullptr));
    layout->addWidget(helpFrame("lblSiteHelp", siteHelp));
    m_txtSiteRecommend = area->findChild<QLineEdit*>(QStringLiteral("txtSiteRecommend"));
    return area;
}

QTableWidget* MainWindow::buildGrid(const char* name) {
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

QWidget* MainWindow::buildRightPart() {
    auto* right = new QWidget;
    auto* layout = new QVBoxLayout(right);
    layout->setContentsMargins(0, 0, 0, 0);

    m_msChart1 = chartView("MSChart1", m_flowChart, this);
    m_flowChart->setTitle(QString::fromLatin1(flowChartTitle));
    connect(m_flowChart, &ChartAdapter::pointHovered, this, &MainWindow::showPointToolTip);
    layout->addWidget(m_msChart1, 3);

    m_lblCurrentPump = named(new QLabel, "lblCurrentPump");
    m_lblBaselinePump = named(new QLabel, "lblBaselinePump");
    auto* legend = new QHBoxLayout;
    legend->addWidget(m_lblCurrentPump, 1);
    legend->addWidget(m_lblBaselinePump, 1);
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
    connect(cmdCalculate, &QPushButton::clicked, this, &MainWindow::calculate);
    connect(baseLine, &QPushButton::clicked, this, &MainWindow::makeBaseline);
    connect(cmdBackToBaseLine, &QPushButton::clicked, this, &MainWindow::backToBaseline);
    connect(cmdDetails, &QPushButton::clicked, this, [this] { runEvent([this] { ShowDetails(this, m_app); }); });

    m_tabCurrentBaseline = named(new QTabWidget, "tabCurrentBaseline");
    m_flxCurrent = buildGrid("flxCurrent");
    m_flxBaseLine = buildGrid("flxBaseLine");
    m_tabCurrentBaseline->addTab(m_flxCurrent, QStringLiteral("Current "));
    m_tabCurrentBaseline->addTab(m_flxBaseLine, QStringLiteral("BaseLine "));
    connect(m_tabCurrentBaseline, &QTabWidget::currentChanged, this, &MainWindow::followGridRow);
    layout->addWidget(m_tabCurrentBaseline, 2);
    return right;
}

void MainWindow::connectFocusEvents() {
    const auto onEnter = [this](const char* name, std::function<void()> entered) {
        auto* control = findChild<QWidget*>(QString::fromLatin1(name));
        new FocusFilter(control, {std::move(entered), {}});
    };
    const auto clearDispensing = [this] { m_lstDispensing->clear(); };
    const auto clearPump = [this] { m_lstPump->clear(); };
    for (const char* name : {"cmbDispenser", "cmbBreakAway", "cmbDispOthers", "txtHoseLen", "txtNoOfNozzle"}) {
        onEnter(name, clearDispensing);
    }
    for (const char* name : {"cmbPumpOthers", "cmbQuantity", "opt50Hz", "opt60Hz"}) {
        onEnter(name, clearPump);
    }
    onEnter("cmbNozzle", [this] {
        if (m_app.panel.cmbNozzle.ListIndex() != 0) {
            m_lstDispensing->clear();
            m_lstDispensing->setEnabled(true);
            m_lstDispensing->setVisible(true);
        }
    });
    onEnter("cmbHoseSize", [this] {
        if (m_app.panel.cmbHoseSize.ListIndex() != 0) {
            m_lstDispensing->clear();
            m_lstDispensing->setVisible(false);
        }
    });
    onEnter("cmbPumps", [this] {
        m_lstPump->clear();
        m_lstPump->setEnabled(true);
    });
    onEnter("cmbLeak", [this] {
        if (m_app.panel.cmbLeak.ListIndex() != 0) {
            m_lstPump->clear();
        }
        m_lstPump->setEnabled(true);
    });
    onEnter("txtTankDiameter", [this] { m_txtSiteRecommend->clear(); });
    // The Basic option merely getting the focus chooses the Basic mode.
    onEnter("optBasic", [this] {
        m_app.panel.optBasic = true;
        m_app.panel.optAdvance = false;
        showPipingMode();
    });

    // The pump quantity loads the site picture when the focus leaves it.
    new FocusFilter(findChild<QComboBox*>(QStringLiteral("cmbQuantity")),
                    {{}, [this](Qt::FocusReason reason) {
                         if (MovesToAnotherControl(reason)) {
                             runEvent([this] { loadSitePicture(); });
                         }
                     }});

    // The Tab key around the grids.
    new FocusFilter(m_tabCurrentBaseline->tabBar(),
                    {{}, [this](Qt::FocusReason reason) {
                         if (reason == Qt::TabFocusReason) {
                             (m_tabCurrentBaseline->currentIndex() == 0 ? m_flxCurrent : m_flxBaseLine)
                                 ->setFocus(Qt::OtherFocusReason);
                         }
                     }});
    new FocusFilter(m_flxCurrent,
                    {{}, [this](Qt::FocusReason reason) {
                         if (reason == Qt::TabFocusReason) {
                             findChild<QPushButton*>(QStringLiteral("cmdDispenser"))->setFocus(Qt::OtherFocusReason);
                         }
                     }});
    new FocusFilter(m_flxBaseLine, {{}, [this](Qt::FocusReason reason) {
                                        if (reason == Qt::BacktabFocusReason) {
                                            m_tabCurrentBaseline->setFocus(Qt::OtherFocusReason);
                                        }
                                    }});
}

// ---------------------------------------------------------------- showing the state

void MainWindow::refreshAll() {
    refreshCaption();
    refreshDispensingArea();
    refreshPipingArea();
    refreshPumpArea();
    refreshSiteLayout();
    refreshFlowChart();
    refreshLegend();
    refreshCurrentGrid();
    refreshBaselineGrid();
    refreshPumpCurve();
}

void MainWindow::refreshCaption() {
    setWindowTitle(qs(m_app.caption));
}

void MainWindow::showTextField(const TextField& field) {
    const QString text = qs(field.text(m_app.panel));
    if (field.edit->text() != text) {
        field.edit->setText(text);
    }
}

void MainWindow::showList(const ListField& field) {
    const ComboList& list = m_app.panel.*field.list;
    QComboBox* combo = field.combo;
    const QSignalBlocker blocker(combo);
    bool same = combo->count() == list.ListCount();
    for (Long index = 0; same && index < list.ListCount(); ++index) {
        same = combo->itemText(index) == qs(list.List(index));
    }
    if (!same) {
        combo->clear();
        for (const std::string& entry : list.Entries()) {
            combo->addItem(qs(entry));
        }
    }
    combo->setCurrentIndex(list.ListIndex());
}

void MainWindow::showAreaFields(int area) {
    for (const TextField& field : m_textFields) {
        if (field.area == area) {
            showTextField(field);
        }
    }
    for (const ListField& field : m_lists) {
        if (field.area == area) {
            showList(field);
        }
    }
}

void MainWindow::refreshDispensingArea() {
    showAreaFields(dispensingTab);
    m_lblHoseLength->setText(qs(m_app.panel.captions.lblHoseLength));
}

void MainWindow::refreshPipingArea() {
    showAreaFields(pipingTab);
    m_lblLength->setText(qs(m_app.panel.captions.lblLength));
    m_lblTrunkLength->setText(qs(m_app.panel.captions.lblTrunkLength));
    m_lblPipeLen->setText(qs(m_app.panel.captions.lblPipeLen));
    m_chkBall->setCheckState(m_app.panel.chkBall == 1   ? Qt::Checked
                             : m_app.panel.chkBall == 0 ? Qt::Unchecked
                                                        : Qt::PartiallyChecked);
    m_chkSwing->setCheckState(m_app.panel.chkSwing == 1   ? Qt::Checked
                              : m_app.panel.chkSwing == 0 ? Qt::Unchecked
                                                          : Qt::PartiallyChecked);
    showPipingMode();
}

void MainWindow::showPipingMode() {
    const PanelState& panel = m_app.panel;
    showOption(m_optBasic, panel.optBasic);
    showOption(m_optAdvance, panel.optAdvance);
    const bool basic = panel.optBasic && !panel.optAdvance;
    m_fraPipeInfo->setVisible(basic);
    m_fraBranch->setVisible(!basic);
    m_fraTrunk->setVisible(!basic);
}

void MainWindow::refreshPumpArea() {
    showOption(m_opt50Hz, m_app.panel.opt50Hz);
    showOption(m_opt60Hz, m_app.panel.opt60Hz);
    showAreaFields(pumpTab);
}

void MainWindow::refreshSiteLayout() {
    showAreaFields(siteTab);
    m_lblTankDiameter->setText(qs(m_app.panel.captions.lblTankDiameter));
    m_lblBuryDepth->setText(qs(m_app.panel.captions.lblBuryDepth));
    m_lblRise->setText(qs(m_app.panel.captions.lblRise));
}

void MainWindow::refreshFlowChart() {
    const FlowChart& chart = m_app.flowChart.chart;
    ChartRows rows;
    rows.title = QString::fromLatin1(flowChartXTitle);
    rows.labels = labelsOf(chart.rowLabels);
    rows.firstX = 1;
    rows.minimum = 0.5;
    rows.maximum = static_cast<qreal>(chart.rowLabels.size()) + 0.5;
    m_flowChart->setRows(rows);
    m_flowChart->setValueAxis({qs(chart.yTitle), chart.yMaximum, static_cast<qreal>(chart.yDivisionsPerLabel)});
    for (int column = 0; column < ChartAdapter::columnCount; ++column) {
        const SeriesLook& look = chart.series[static_cast<std::size_t>(column)];
        ChartColumn series;
        series.values = chart.cells[static_cast<std::size_t>(column)];
        series.marker = look.marker;
        series.markerSize = look.markerSize / twipsPerPixel;
        series.markerFill = toQColor(look.markerFill);
        series.colour = seriesColour(look.colour);
        m_flowChart->setColumn(column, series);
    }
}

void MainWindow::refreshLegend() {
    m_lblCurrentPump->setText(qs(m_app.flowChart.lblCurrentPump));
    m_lblBaselinePump->setText(qs(m_app.flowChart.lblBaselinePump));
}

void MainWindow::showGrid(QTableWidget* table, const ResultGrid& grid) {
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

void MainWindow::refreshCurrentGrid() {
    showGrid(m_flxCurrent, m_app.flxCurrent);
}

void MainWindow::refreshBaselineGrid() {
    showGrid(m_flxBaseLine, m_app.flxBaseLine);
}

void MainWindow::refreshPumpCurve() {
    const PumpCurveChart& curve = m_app.pumpCurve;
    m_pumpCurveChart->setTitle(qs(curve.title));
    ChartRows rows;
    rows.title = qs(curve.xTitle);
    rows.labels = labelsOf(curve.rowLabels);
    rows.firstX = 0;
    rows.labelEvery = curve.xDivisions;
    rows.minimum = curve.xMinimum.value_or(0);
    rows.maximum = curve.xMaximum;
    m_pumpCurveChart->setRows(rows);
    m_pumpCurveChart->setValueAxis({qs(curve.yTitle), curve.yMaximum, static_cast<qreal>(curve.yDivisions)});
    ChartColumn series;
    series.values.reserve(curve.points.size());
    for (const Single head : curve.points) {
        series.values.push_back(head == -1 ? std::nullopt : std::optional<Single>(head));
    }
    series.colour = QColor(0, 0, 160);
    m_pumpCurveChart->setColumn(0, series);
}

void MainWindow::showArea(int tab) {
    m_tabMain->setCurrentIndex(tab);
}

void MainWindow::clearRecommendationLists() {
    m_lstDispensing->clear();
    m_lstPump->clear();
}

void MainWindow::loadSitePicture() {
    const std::string file =
        m_app.panel.cmbQuantity.Text() + "Pump" + m_app.panel.cmbNoOfBranches.Text() + "Branch.jpg";
    const std::filesystem::path path = m_app.programFolder / "Image" / file;
    if (!std::filesystem::is_regular_file(path)) {
        fail(fileNotFound);
    }
    QPixmap picture;
    if (!picture.load(QString::fromStdU16String(path.u16string()))) {
        fail(invalidPicture);
    }
    static_cast<PictureBox*>(m_picSiteLayout)->setPicture(picture);
}

// ---------------------------------------------------------------- events

bool MainWindow::runEvent(const std::function<void()>& work) {
    return RunEvent(m_ui, work, [this](int status) {
        m_endStatus = status;
        m_endProgram(status);
    });
}

void MainWindow::calculate() {
    const HourGlass hourGlass;
    if (runEvent([this] { Calculate(m_app); })) {
        refreshFlowChart();
        refreshLegend();
        refreshCurrentGrid();
        refreshBaselineGrid();
    }
}

void MainWindow::makeBaseline() {
    const HourGlass hourGlass;
    if (runEvent([this] { MakeBaseline(m_app); })) {
        refreshFlowChart();
        refreshLegend();
        refreshBaselineGrid();
    }
}

void MainWindow::backToBaseline() {
    const HourGlass hourGlass;
    if (runEvent([this] { BackToBaseline(m_app, m_ui); })) {
        refreshAll();
    }
}

void MainWindow::updatePumpCurve() {
    if (runEvent([this] { UpdatePumpCurve(m_app.pumpCurve, m_app.panel, m_app.config, m_app.catalogues); })) {
        refreshPumpCurve();
    }
}

void MainWindow::showPointToolTip(int column, int row, bool state) {
    if (!state) {
        return;
    }
    runEvent([&] {
        m_msChart1->setToolTip(QString());
        const bool optUS = TouchFrmData(m_app.panel, m_app.config).optUS;
        m_msChart1->setToolTip(qs(PointToolTip(m_app.results.NozzleLabels, m_app.results.Current,
                                               m_app.results.Baseline, column + 1, row + 1, optUS)));
    });
}

void MainWindow::followGridRow(int page) {
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

void MainWindow::openTopMenu() {
    runEvent([this] {
        clearRecommendationLists();
        OpenTopMenu(m_app, m_ui);
    });
    for (const TextField& field : m_textFields) {
        showTextField(field);
    }
}

void MainWindow::exitProgram() {
    runEvent([this] {
        if (ExitProgram(m_app, m_ui)) {
            m_exiting = true;
            close();
        }
    });
}

void MainWindow::systemSettings() {
    // Ok converts the fields and re-plots the graph; Cancel changes nothing.
    if (runEvent([this] { ShowSystemSettings(this, m_app); })) {
        refreshAll();
    }
}

void MainWindow::siteProperties() {
    // The texts go to clsSiteProperties only; nothing on the window shows them.
    runEvent([this] { ShowSiteProperties(this, m_app, m_ui); });
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
        // The read stopped before the number of branches, so the picture stays.
        refreshAll();
        return;
    case FileCommandEnd::Opened:
        refreshAll();
        if (runEvent([this] { loadSitePicture(); })) {
            menuBar()->findChild<QMenu*>(QStringLiteral("mnuOptions"))->menuAction()->setEnabled(true);
            for (const char* name : {"mnuSave", "mnuSaveAs"}) {
                menuBar()->findChild<QAction*>(QString::fromLatin1(name))->setEnabled(true);
            }
            findChild<QLineEdit*>(QStringLiteral("txtNoOfNozzle"))->setFocus(Qt::OtherFocusReason);
        }
        return;
    case FileCommandEnd::StartedAgain:
        // The panels as the initialisation leaves them: the Dispensing Area,
        // the recommendation lists disabled, the picture of the branches.
        showArea(dispensingTab);
        m_lstDispensing->setEnabled(false);
        m_lstPump->setEnabled(false);
        refreshAll();
        runEvent([this] { loadSitePicture(); });
        return;
    }
}

void MainWindow::closeEvent(QCloseEvent* event) {
    if (!m_exiting && !m_endStatus) {
        runEvent([this] { CloseMainWindow(m_app); });
    }
    event->accept();
}

} // namespace vesk::gui
