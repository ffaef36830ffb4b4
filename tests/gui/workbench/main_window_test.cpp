// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// Tests of the main window: the areas and their checks, the graph, the grids, the pump curve and the ways out.
#include "gui/common/chart_adapter.h"
#include "gui/common/field_filters.h"
#include "gui/common/run_event.h"
#include "gui/common/text_codec.h"
#include "gui/support/station.h"
#include "gui/workbench/main_window.h"
#include "workbench/application_state.h"
#include "workbench/field_checks.h"
#include "workbench/flow_chart.h"
#include "workbench/startup.h"

#include "engine/numeric.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCategoryAxis>
#include <QChartView>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QGroupBox>
#include <QImage>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QLineSeries>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QScatterSeries>
#include <QTabBar>
#include <QTabWidget>
#include <QTableWidget>
#include <QTest>
#include <QTimer>
#include <QValueAxis>
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <functional>
#include <memory>
#include <sstream>

using vesk::ApplicationState;
using vesk::Single;
using vesk::gui::ChartAdapter;
using vesk::gui::FieldFilter;
using vesk::gui::fromWindows1252;
using vesk::gui::MainWindow;
using vesk::gui::test::sitePictureColour;
using vesk::gui::test::Station;
using vesk::gui::test::writeSitePictures;
using vesk::test::readBytes;
using vesk::test::RecordingInteraction;
using vesk::test::TempProgramFolder;

namespace {

QString q(const std::string& bytes) {
    return fromWindows1252(bytes);
}

// The points of a column of the flow graph, by row (from 1), from its line
// runs and its markers.
std::map<int, Single> chartPoints(const ChartAdapter& chart, int column) {
    std::map<int, Single> points;
    for (const QLineSeries* run : chart.lineRuns(column)) {
        for (const QPointF& point : run->points()) {
            points[static_cast<int>(std::lround(point.x()))] = static_cast<Single>(point.y());
        }
    }
    return points;
}

// The flows a column of the graph should show: the table's, with 0 as no point.
std::map<int, Single> expectedPoints(const std::vector<Single>& flows, int chartNozzles) {
    std::map<int, Single> points;
    for (int row = 1; row <= chartNozzles; ++row) {
        if (flows.at(static_cast<std::size_t>(row)) != 0) {
            points[row] = flows.at(static_cast<std::size_t>(row));
        }
    }
    return points;
}

QColor penOf(const ChartAdapter& chart, int column) {
    return chart.lineRuns(column).isEmpty() ? QColor() : chart.lineRuns(column).front()->pen().color();
}

void compareGrid(const QTableWidget* table, const vesk::ResultGrid& grid) {
    for (int row = 0; row < vesk::gridRowCount; ++row) {
        for (int column = 0; column < vesk::gridColumnCount; ++column) {
            const vesk::GridCell& cell = grid.Cell(row, column);
            const QTableWidgetItem* item = table->item(row, column);
            QCOMPARE(item->text(), q(cell.text));
            const auto colour = [](std::uint32_t bgr) {
                return QColor(static_cast<int>(bgr & 0xFF), static_cast<int>((bgr >> 8) & 0xFF),
                              static_cast<int>((bgr >> 16) & 0xFF));
            };
            QCOMPARE(item->foreground().color(), colour(cell.foreColour));
            QCOMPARE(item->background().color(), colour(cell.backColour));
        }
    }
}

} // namespace

class MainWindowTest : public QObject {
    Q_OBJECT

  private slots:
    void cleanup() {
        QVERIFY(QApplication::activeModalWidget() == nullptr);
        m_station.reset();
        QCoreApplication::processEvents();
        for (QWidget* widget : QApplication::topLevelWidgets()) {
            QVERIFY2(!widget->isVisible(), qPrintable(QStringLiteral("window left open: ") + widget->objectName()));
        }
    }

    // ------------------------------------------------------------ start-up

    void startupShowsTheFieldsOfTheState_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("maxLength");
        QTest::addColumn<QString>("toolTip");
        QTest::newRow("txtHoseLen") << "txtHoseLen"
                                    << "0" << 5 << "Enter the desired Hose Length ";
        QTest::newRow("txtNoOfNozzle") << "txtNoOfNozzle"
                                       << "8" << 2 << "Enter the No.of Nozzles required in Fuel Station";
        QTest::newRow("txtBranchLength") << "txtBranchLength"
                                         << "0" << 6 << "Enter the length of the Branch to be used in Fuel Station";
        QTest::newRow("txtTrunkLength") << "txtTrunkLength"
                                        << "0" << 6 << "Enter the length of the Trunk  to be used in Fuel Station";
        QTest::newRow("txtPipeLen") << "txtPipeLen"
                                    << "0" << 6 << "Enter the length of the the pipe to be used";
        QTest::newRow("txtBranchFitting(0)") << "txtBranchFitting(0)"
                                             << "0" << 2 << "Enter the number of 45 elbows required in Branch";
        QTest::newRow("txtBranchFitting(1)") << "txtBranchFitting(1)"
                                             << "0" << 2 << "Enter the number of 90 elbows required in Branch";
        QTest::newRow("txtBranchFitting(2)") << "txtBranchFitting(2)"
                                             << "0" << 2 << "Enter the number of Thru T required in Branch";
        QTest::newRow("txtBranchFitting(3)") << "txtBranchFitting(3)"
                                             << "0" << 2 << "Enter the number of Side T required in Branch";
        QTest::newRow("txtTrunkFitting(0)") << "txtTrunkFitting(0)"
                                            << "0" << 2 << "Enter the number of 45 elbows required in Trunk";
        QTest::newRow("txtTrunkFitting(3)") << "txtTrunkFitting(3)"
                                            << "0" << 2 << "Enter the number of Side T required in Trunk";
        QTest::newRow("txtTankDiameter") << "txtTankDiameter"
                                         << "96" << 7 << "Enter the diameter of the Tank to be used";
        QTest::newRow("txtBuryDepth") << "txtBuryDepth"
                                      << "3" << 7 << "Enter the Bury Depth";
        QTest::newRow("txtRise") << "txtRise"
                                 << "0" << 6 << "Enter the Rise value";
    }
    void startupShowsTheFieldsOfTheState() {
        QFETCH(QString, name);
        QFETCH(QString, text);
        QFETCH(int, maxLength);
        QFETCH(QString, toolTip);
        m_station = std::make_unique<Station>();
        QLineEdit* edit = m_station->window->findChild<QLineEdit*>(name);
        QVERIFY(edit != nullptr);
        QCOMPARE(edit->text(), text);
        QCOMPARE(edit->maxLength(), maxLength);
        QCOMPARE(edit->toolTip(), toolTip);
        QVERIFY(edit->isEnabled());
    }

    void startupShowsTheListsOfTheState_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("toolTip");
        QTest::newRow("cmbDispenser") << "cmbDispenser"
                                      << "Select the desired Dispenser from the combo box";
        QTest::newRow("cmbBreakAway") << "cmbBreakAway"
                                      << "Select the desired Breakaway from the combo box";
        QTest::newRow("cmbHoseSize") << "cmbHoseSize"
                                     << "Select the required hose size from the  combo box";
        QTest::newRow("cmbNozzle") << "cmbNozzle"
                                   << "Select the desired Nozzle from the combo box";
        QTest::newRow("cmbDispOthers") << "cmbDispOthers"
                                       << "Select the Others component from the combo box";
        QTest::newRow("cmbPiping") << "cmbPiping"
                                   << "Select piping material to be used in Fuel Station";
        QTest::newRow("cmbBranch") << "cmbBranch"
                                   << "Select the size of the Branch to be used in Fuel Station";
        QTest::newRow("cmbTrunk") << "cmbTrunk"
                                  << "Select the size of the Trunk to be used in Fuel Station";
        QTest::newRow("cmbPipeSize") << "cmbPipeSize"
                                     << "Select the size of the Pipe to be used in Fuel Station";
        QTest::newRow("cmbPumps") << "cmbPumps"
                                  << "Select the desired Pump from Available Pump combo box";
        QTest::newRow("cmbQuantity") << "cmbQuantity"
                                     << "Select the number of Pumps to be used";
        QTest::newRow("cmbLeak") << "cmbLeak"
                                 << "Select the desired Leak Detector from the combo box";
        QTest::newRow("cmbPumpOthers") << "cmbPumpOthers"
                                       << "Select the Other Pump related component";
        QTest::newRow("cmbNoOfBranches") << "cmbNoOfBranches"
                                         << "Select the number of branches to be used";
    }
    void startupShowsTheListsOfTheState() {
        QFETCH(QString, name);
        QFETCH(QString, toolTip);
        m_station = std::make_unique<Station>();
        const vesk::PanelState& panel = m_station->app.panel;
        const std::map<QString, const vesk::ComboList*> lists{
            {"cmbDispenser", &panel.cmbDispenser},   {"cmbBreakAway", &panel.cmbBreakAway},
            {"cmbHoseSize", &panel.cmbHoseSize},     {"cmbNozzle", &panel.cmbNozzle},
            {"cmbDispOthers", &panel.cmbDispOthers}, {"cmbPiping", &panel.cmbPiping},
            {"cmbBranch", &panel.cmbBranch},         {"cmbTrunk", &panel.cmbTrunk},
            {"cmbPipeSize", &panel.cmbPipeSize},     {"cmbPumps", &panel.cmbPumps},
            {"cmbQuantity", &panel.cmbQuantity},     {"cmbLeak", &panel.cmbLeak},
            {"cmbPumpOthers", &panel.cmbPumpOthers}, {"cmbNoOfBranches", &panel.cmbNoOfBranches}};
        const vesk::ComboList& list = *lists.at(name);
        auto* combo = m_station->window->findChild<QComboBox*>(name);
        QVERIFY(combo != nullptr);
        QCOMPARE(combo->count(), list.ListCount());
        for (int index = 0; index < combo->count(); ++index) {
            QCOMPARE(combo->itemText(index), q(list.List(index)));
        }
        QCOMPARE(combo->currentIndex(), list.ListIndex());
        QCOMPARE(combo->toolTip(), toolTip);
    }

    void startupShowsTheAreasAndTheirCaptions() {
        m_station = std::make_unique<Station>();
        const Station& s = *m_station;
        QCOMPARE(s.window->objectName(), QStringLiteral("frmMain"));
        QCOMPARE(s.window->windowTitle(), q(vesk::DefaultSiteFile(s.app.programFolder)));
        const std::pair<const char*, const char*> buttons[] = {{"cmdDispenser", "Dispensing Area"},
                                                               {"cmdPiping", "Piping Area"},
                                                               {"cmdPump", "Pump Area"},
                                                               {"cmdSite", "Site Layout"},
                                                               {"cmdCalculate", "Calculate"},
                                                               {"BaseLine", "Make Baseline"},
                                                               {"cmdBackToBaseLine", "Back To Baseline"},
                                                               {"cmdUpdate", "Update Graph"},
                                                               {"optBasic", "Basic"},
                                                               {"optAdvance", "Advance"},
                                                               {"opt50Hz", "50 Hz"},
                                                               {"opt60Hz", "60 Hz"},
                                                               {"chkBall", "Ball Valve"},
                                                               {"chkSwing", "Swing Check"}};
        for (const auto& [name, text] : buttons) {
            QCOMPARE(s.find<QAbstractButton>(name)->text(), QString::fromLatin1(text));
        }
        QVERIFY(s.find("cmdDetails") != nullptr);
        QVERIFY(s.find("cmdPrintPump") != nullptr);
        const std::pair<const char*, const char*> frames[] = {
            {"fraDispensing", "Dispensing Area"}, {"fraPiping", "Piping Area"}, {"fraPump", "Pumping Area"},
            {"fraSite", "Site Layout"},           {"fraTrunk", "Trunk Info"},   {"fraBranch", "Branch Info"},
            {"fraPipeInfo", "PipeInfo"}};
        for (const auto& [name, title] : frames) {
            QCOMPARE(s.find<QGroupBox>(name)->title(), QString::fromLatin1(title));
        }
        QCOMPARE(s.find<QTabWidget>("tabMain")->currentIndex(), 0);
        QVERIFY(s.find<QRadioButton>("optAdvance")->isChecked());
        QVERIFY(s.find<QRadioButton>("opt60Hz")->isChecked());
        QVERIFY(s.find("fraPipeInfo")->isHidden());
        QVERIFY(!s.find("fraTrunk")->isHidden());
        QVERIFY(!s.find("txtMaxNozz")->isEnabled());
        QCOMPARE(s.field("txtMaxNozz")->text(), QStringLiteral("40"));
        for (const char* inert :
             {"cmdDispRecom", "cmdPipingRecom", "cmdPumpRecom", "cmdSiteRec", "txtRecommendDisp", "txtRecommendPiping",
              "txtRecommendPump", "txtSiteRecommend", "lstDispensing", "lstPump"}) {
            QVERIFY2(!s.find(inert)->isEnabled(), inert);
        }
        QVERIFY(s.find<QLabel>("lblSiteHelp")->text().contains(QStringLiteral("Tank Diamenter")));
        QVERIFY(s.find<QLabel>("lblDispenserHelp")->text().startsWith(QStringLiteral("In Dispensing Area")));
        QVERIFY(s.find<QLabel>("lblPipingHelp")->text().endsWith(QStringLiteral("advance or basic option.")));
        QVERIFY(s.find<QLabel>("lblPumpHelp")->text().contains(QStringLiteral("'Update' button")));
        QCOMPARE(s.find<QLabel>("lblPumpCurve")->text(), QStringLiteral("Pump Performance Curve"));
        QCOMPARE(s.find<QChartView>("MSChart1")->chart()->title(), QStringLiteral("Dynamic Flow Graph"));
        auto* pages = s.find<QTabWidget>("tabCurrentBaseline");
        QCOMPARE(pages->tabText(0), QStringLiteral("Current "));
        QCOMPARE(pages->tabText(1), QStringLiteral("BaseLine "));
        QVERIFY(!s.find<QLabel>("PicSiteLayout")->pixmap().isNull());
    }

    void startupShowsTheUnitCaptions_data() {
        QTest::addColumn<bool>("metric");
        QTest::addColumn<QString>("hoseCaption");
        QTest::addColumn<QString>("tankCaption");
        QTest::addColumn<QString>("tankDiameter");
        QTest::addColumn<QString>("buryDepth");
        QTest::newRow("US") << false << "Hose length(ft)"
                            << "Tank Diameter(inch)"
                            << "96"
                            << "3";
        QTest::newRow("metric") << true << "Hose Length(m)"
                                << "Tank Diameter(cm)"
                                << "243.8"
                                << "0.9";
    }
    void startupShowsTheUnitCaptions() {
        QFETCH(bool, metric);
        QFETCH(QString, hoseCaption);
        QFETCH(QString, tankCaption);
        QFETCH(QString, tankDiameter);
        QFETCH(QString, buryDepth);
        m_station = std::make_unique<Station>([metric](const TempProgramFolder& folder) {
            if (metric) {
                folder.writeLines("Vesk.ini", {"40", "4", "True", "False", "A"});
            }
        });
        QCOMPARE(m_station->find<QLabel>("lblHoseLength")->text(), hoseCaption);
        QCOMPARE(m_station->find<QLabel>("lblTankDiameter")->text(), tankCaption);
        QCOMPARE(m_station->field("txtTankDiameter")->text(), tankDiameter);
        QCOMPARE(m_station->field("txtBuryDepth")->text(), buryDepth);
    }

    void startupDrawsBothLinesEqual() {
        m_station = std::make_unique<Station>();
        const Station& s = *m_station;
        const ChartAdapter& chart = s.window->flowChart();
        QCOMPARE(chartPoints(chart, 1), expectedPoints(s.app.results.Current.GpmPerNozzle, s.app.ChartNozzles));
        QCOMPARE(chartPoints(chart, 0), chartPoints(chart, 1));
        QCOMPARE(s.find<QLabel>("lblCurrentPump")->text(), q(s.app.flowChart.lblCurrentPump));
        QVERIFY(s.find<QLabel>("lblCurrentPump")->text().startsWith(QStringLiteral(" Dot Marker - Current(")));
        QVERIFY(s.find<QLabel>("lblBaselinePump")->text().startsWith(QStringLiteral(" Traingle Marker - Baseline(")));
        QVERIFY(s.app.flags.blnSaved);
    }

    // ------------------------------------------------------------ key filters and checks

    void keyFilterPassesOnlyItsKeys_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("keys");
        QTest::addColumn<QString>("text");
        QTest::newRow("decimal takes one point") << "txtHoseLen"
                                                 << "12.5.3"
                                                 << "12.53";
        QTest::newRow("decimal drops letters") << "txtRise"
                                               << "a1b2"
                                               << "12";
        QTest::newRow("digits drop the point") << "txtNoOfNozzle"
                                               << "1.2"
                                               << "12";
        QTest::newRow("digits in a fitting") << "txtTrunkFitting(2)"
                                             << "-3x"
                                             << "3";
        QTest::newRow("a character above 127 is dropped") << "txtTankDiameter" << QString::fromUtf8("9\u00e96") << "96";
        QTest::newRow("the length limit holds") << "txtHoseLen"
                                                << "1234567"
                                                << "12345";
    }
    void keyFilterPassesOnlyItsKeys() {
        QFETCH(QString, name);
        QFETCH(QString, keys);
        QFETCH(QString, text);
        m_station = std::make_unique<Station>();
        m_station->type(name.toLatin1().constData(), keys);
        QCOMPARE(m_station->field(name.toLatin1().constData())->text(), text);
    }

    void backspacePassesEveryFilter() {
        m_station = std::make_unique<Station>();
        QLineEdit* edit = m_station->field("txtNoOfNozzle");
        edit->setFocus();
        edit->end(false);
        QTest::keyClick(edit, Qt::Key_Backspace);
        QCOMPARE(edit->text(), QString());
        QCOMPARE(m_station->app.panel.txtNoOfNozzle, std::string());
    }

    void lengthCheckOnLeavingAField_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("metric");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("message");
        QTest::newRow("hose 999 US passes") << "txtHoseLen" << false << "999"
                                            << "999"
                                            << "";
        QTest::newRow("hose 999.1 US refused") << "txtHoseLen" << false << "999.1"
                                               << "999.1"
                                               << "Maximum Value can be entered is 999";
        QTest::newRow("tank 9999 US passes") << "txtTankDiameter" << false << "9999"
                                             << "9999"
                                             << "";
        QTest::newRow("tank 9999 metric passes") << "txtTankDiameter" << true << "9999"
                                                 << "9999"
                                                 << "";
        QTest::newRow("tank metric limit") << "txtTankDiameter" << true << "25397.6"
                                           << "25397.6"
                                           << "Maximum Value can be entered is 25397.5";
        QTest::newRow("rise metric limit") << "txtRise" << true << "3048"
                                           << "3048"
                                           << "Maximum Value can be entered is 3047.7";
        QTest::newRow("empty becomes 0") << "txtBuryDepth" << false << ""
                                         << "0"
                                         << "";
        QTest::newRow("a point alone becomes 0") << "txtPipeLen" << false << "."
                                                 << "0"
                                                 << "";
        QTest::newRow("written back as a number") << "txtBranchLength" << false << "007.50"
                                                  << "7.5"
                                                  << "";
    }
    void lengthCheckOnLeavingAField() {
        QFETCH(QString, name);
        QFETCH(bool, metric);
        QFETCH(QString, typed);
        QFETCH(QString, text);
        QFETCH(QString, message);
        m_station = std::make_unique<Station>([metric](const TempProgramFolder& folder) {
            if (metric) {
                folder.writeLines("Vesk.ini", {"40", "4", "True", "False", "A"});
            }
        });
        m_station->show();
        const QByteArray field = name.toLatin1();
        const bool back = m_station->enter(field.constData(), typed);
        QCOMPARE(m_station->field(field.constData())->text(), text);
        QCOMPARE(back, !message.isEmpty());
        QCOMPARE(m_station->app.flags.blnFieldValid, message.isEmpty());
        if (message.isEmpty()) {
            QVERIFY(m_station->ui.shown.empty());
        } else {
            QCOMPARE(m_station->ui.shown, std::vector<std::string>{message.toStdString()});
            QVERIFY(m_station->field(field.constData())->hasFocus());
        }
    }

    void tabbingOutOfARefusedFieldGivesTheFocusBack() {
        m_station = std::make_unique<Station>();
        m_station->show();
        m_station->type("txtHoseLen", QStringLiteral("1000"));
        QTest::keyClick(m_station->field("txtHoseLen"), Qt::Key_Tab);
        QCOMPARE(m_station->ui.shown, std::vector<std::string>{"Maximum Value can be entered is 999"});
        QVERIFY(m_station->field("txtHoseLen")->hasFocus());
        QCOMPARE(m_station->field("txtHoseLen")->text(), QStringLiteral("1000"));
    }

    void countCheckWritesTheNumberBack_data() {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("text");
        QTest::newRow("empty") << ""
                               << "0";
        QTest::newRow("leading zero") << "05"
                                      << "5";
        QTest::newRow("plain") << "12"
                               << "12";
    }
    void countCheckWritesTheNumberBack() {
        QFETCH(QString, typed);
        QFETCH(QString, text);
        m_station = std::make_unique<Station>();
        QVERIFY(!m_station->enter("txtBranchFitting(1)", typed));
        QCOMPARE(m_station->field("txtBranchFitting(1)")->text(), text);
        QCOMPARE(m_station->app.panel.txtBranchFitting[1], text.toStdString());
        QVERIFY(m_station->ui.shown.empty());
    }

    void nozzleCheckOnLeavingTheField_data() {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("message");
        QTest::addColumn<int>("noOfNozzles");
        QTest::addColumn<int>("chartNozzles");
        QTest::newRow("empty") << ""
                               << "Field cannot be empty" << 8 << 10;
        QTest::newRow("zero") << "0"
                              << "Number of nozzles can not be zero please enter other number" << 8 << 10;
        QTest::newRow("above the limit") << "41"
                                         << "Value should be less than or equal to 40" << 8 << 10;
        QTest::newRow("odd gives the next even") << "7"
                                                 << "" << 7 << 8;
        QTest::newRow("even gives two more") << "8"
                                             << "" << 8 << 10;
        QTest::newRow("leading zero") << "09"
                                      << "" << 9 << 10;
    }
    void nozzleCheckOnLeavingTheField() {
        QFETCH(QString, typed);
        QFETCH(QString, message);
        QFETCH(int, noOfNozzles);
        QFETCH(int, chartNozzles);
        m_station = std::make_unique<Station>();
        const bool back = m_station->enter("txtNoOfNozzle", typed);
        QCOMPARE(back, !message.isEmpty());
        QCOMPARE(static_cast<int>(m_station->app.NoOfNozzles), noOfNozzles);
        QCOMPARE(static_cast<int>(m_station->app.ChartNozzles), chartNozzles);
        if (message.isEmpty()) {
            QVERIFY(m_station->ui.shown.empty());
            QCOMPARE(m_station->field("txtNoOfNozzle")->text(), QString::number(noOfNozzles));
        } else {
            QCOMPARE(m_station->ui.shown, std::vector<std::string>{message.toStdString()});
        }
    }

    void openingATopMenuChecksQuietly_data() {
        QTest::addColumn<QString>("menu");
        QTest::newRow("File") << "mnuFile";
        QTest::newRow("Options") << "mnuOptions";
        QTest::newRow("Help") << "mnuHelp";
    }
    void openingATopMenuChecksQuietly() {
        QFETCH(QString, menu);
        m_station = std::make_unique<Station>();
        Station& s = *m_station;
        s.type("txtNoOfNozzle", QString());
        emit s.menu(menu.toLatin1().constData())->aboutToShow();
        QCOMPARE(s.field("txtNoOfNozzle")->text(), QStringLiteral("1"));
        QVERIFY(s.ui.shown.empty());
        QCOMPARE(static_cast<int>(s.app.NoOfNozzles), 8); // the corrected "1" does not reach it
        QVERIFY(!s.app.flags.blnQuietNozzleCheck);
    }

    void aTopMenuStillShowsARefusedLength() {
        m_station = std::make_unique<Station>();
        Station& s = *m_station;
        s.type("txtRise", QStringLiteral("10000"));
        emit s.menu("mnuFile")->aboutToShow();
        QCOMPARE(s.ui.shown, std::vector<std::string>{"Maximum Value can be entered is 9999"});
        // The quiet nozzle check cleared the flag at once; the refused length
        // leaves it so.
        QVERIFY(!s.app.flags.blnQuietNozzleCheck);
        QVERIFY(!s.app.flags.blnFieldValid);
    }

    // ------------------------------------------------------------ calculate and baseline

    void calculateDrawsTheCurrentLineAndClearsSaved() {
        m_station = std::make_unique<Station>();
        Station& s = *m_station;
        s.click("cmdCalculate");
        QVERIFY(!s.app.flags.blnSaved);
        QVERIFY(!s.app.flags.ChartNotDrawnYet);
        QVERIFY(!s.app.flags.NeedBaseline);
        const ChartAdapter& chart = s.window->flowChart();
        QCOMPARE(chartPoints(chart, 1), expectedPoints(s.app.results.Current.GpmPerNozzle, s.app.ChartNozzles));
        // Eight nozzles give ten rows; rows 9 and 10 have no point but a label.
        QCOMPARE(chart.rowAxis()->categoriesLabels().size(), 10);
        QCOMPARE(chart.rowAxis()->categoriesLabels().last(), QStringLiteral("10"));
        QVERIFY(!chartPoints(chart, 1).contains(9));
        QCOMPARE(chart.valueAxis()->max(), static_cast<qreal>(s.app.flowChart.chart.yMaximum));
        QCOMPARE(chart.valueAxis()->titleText(), QStringLiteral(" GPM per Nozzle "));
        QCOMPARE(chart.markers(1)->markerShape(), QScatterSeries::MarkerShapeCircle);
        QCOMPARE(chart.markers(0)->markerShape(), QScatterSeries::MarkerShapeTriangle);
        // Both lines coincide in every row: Calculate in GPM makes series 1 red
        // and series 2 green.
        QCOMPARE(penOf(chart, 0), QColor(255, 0, 0));
        QCOMPARE(penOf(chart, 1), QColor(0, 255, 0));
        compareGrid(s.find<QTableWidget>("flxCurrent"), s.app.flxCurrent);
    }

    void makeBaselineOfAChangedSiteGivesTwoLines() {
        m_station = std::make_unique<Station>();
        Station& s = *m_station;
        s.choose("cmbQuantity", 1);
        s.click("BaseLine");
        QVERIFY(!s.app.flags.NeedBaseline);
        QVERIFY(!s.app.flags.BaselineGridPending);
        const ChartAdapter& chart = s.window->flowChart();
        QCOMPARE(chartPoints(chart, 0), expectedPoints(s.app.results.Baseline.GpmPerNozzle, s.app.ChartNozzles));
        QVERIFY(chartPoints(chart, 0) != chartPoints(chart, 1));
        QCOMPARE(penOf(chart, 0), QColor(0, 255, 0));
        QCOMPARE(penOf(chart, 1), QColor(255, 0, 0));
        QCOMPARE(s.find<QTableWidget>("flxBaseLine")->item(26, 2)->text(), QStringLiteral("2"));
        QCOMPARE(s.find<QTableWidget>("flxCurrent")->item(26, 2)->text(), QStringLiteral("1"));
        compareGrid(s.find<QTableWidget>("flxBaseLine"), s.app.flxBaseLine);
        QVERIFY(s.app.flags.blnSaved); // Make Baseline alone is no change to the site

        // Calculate with no further change: two identical tables.
        s.click("cmdCalculate");
        QCOMPARE(chartPoints(chart, 1), chartPoints(chart, 0));
    }

    void aNewNumberOfNozzlesEmptiesTheBaselineLine() {
        m_station = std::make_unique<Station>();
        Station& s = *m_station;
        QVERIFY(!s.enter("txtNoOfNozzle", QStringLiteral("12")));
        s.click("cmdCalculate");
        const ChartAdapter& chart = s.window->flowChart();
        QCOMPARE(chart.rowAxis()->categoriesLabels().size(), 14);
        QCOMPARE(chartPoints(chart, 1).size(), std::size_t{12});
        QVERIFY(chartPoints(chart, 0).empty());
        QCOMPARE(s.find<QTableWidget>("flxBaseLine")->item(7, 2)->text(), QStringLiteral("8"));
        QCOMPARE(s.find<QTableWidget>("flxCurrent")->item(7, 2)->text(), QStringLiteral("12"));
    }

    void backToBaselineRestoresThePanels() {
        m_station = std::make_unique<Station>();
        Station& s = *m_station;
        QVERIFY(!s.enter("txtHoseLen", QStringLiteral("50")));
        s.choose("cmbQuantity", 2);
        s.click("cmdCalculate");
        s.click("cmdBackToBaseLine");
        QVERIFY(s.ui.shown.empty());
        QCOMPARE(s.field("txtHoseLen")->text(), QStringLiteral("0"));
        QCOMPARE(s.find<QComboBox>("cmbQuantity")->currentText(), QStringLiteral("1"));
        QVERIFY(!s.app.flags.NeedBaseline);
        QVERIFY(!s.app.flags.BaselineGridPending);
        // The Current line stays as the last Calculate drew it.
        QCOMPARE(chartPoints(s.window->flowChart(), 1),
                 expectedPoints(s.app.results.Current.GpmPerNozzle, s.app.ChartNozzles));
        QVERIFY(chartPoints(s.window->flowChart(), 0) != chartPoints(s.window->flowChart(), 1));
        compareGrid(s.find<QTableWidget>("flxBaseLine"), s.app.flxBaseLine);
    }

    void backToBaselineUnderOtherSettingsShowsTheMessage() {
        m_station = std::make_unique<Station>();
        Station& s = *m_station;
        s.click("opt50Hz");
        s.click("cmdBackToBaseLine");
        QCOMPARE(s.ui.shown, std::vector<std::string>{"System Settings has changed"});
        QVERIFY(s.find<QRadioButton>("opt50Hz")->isChecked());
        compareGrid(s.find<QTableWidget>("flxBaseLine"), s.app.flxBaseLine);
    }

    void gridsShowTheCoreTextsAndColours_data() {
        QTest::addColumn<bool>("basic");
        QTest::newRow("Advance") << false;
        QTest::newRow("Basic") << true;
    }
    void gridsShowTheCoreTextsAndColours() {
        QFETCH(bool, basic);
        m_station = std::make_unique<Station>();
        Station& s = *m_station;
        if (basic) {
            s.click("optBasic");
        }
        s.click("cmdCalculate");
        s.click("BaseLine");
        compareGrid(s.find<QTableWidget>("flxCurrent"), s.app.flxCurrent);
        compareGrid(s.find<QTableWidget>("flxBaseLine"), s.app.flxBaseLine);
        const QTableWidget* grid = s.find<QTableWidget>("flxCurrent");
        QCOMPARE(grid->item(0, 0)->background().color(), QColor(0xCC, 0xCC, 0xCC));
        QCOMPARE(grid->item(22, 1)->text(), basic ? QStringLiteral("Basic") : QStringLiteral("Advance"));
        QCOMPARE(grid->item(9, 1)->foreground().color(), basic ? QColor(0xCC, 0xCC, 0xCC) : QColor(Qt::black));
        QCOMPARE(grid->item(23, 0)->foreground().color(), basic ? QColor(Qt::black) : QColor(0xCC, 0xCC, 0xCC));
        QCOMPARE(grid->rowCount(), 36);
        QCOMPARE(grid->columnCount(), 3);
    }

    void gridColumnWidthsFollowTheDesignWidth() {
        m_station = std::make_unique<Station>();
        const QTableWidget* grid = m_station->find<QTableWidget>("flxCurrent");
        const auto widths = vesk::GridColumnWidths(9000);
        for (int column = 0; column < 3; ++column) {
            QCOMPARE(grid->columnWidth(column), static_cast<int>(std::lround(widths[column] / 15.0)));
        }
    }

    void aCellsToolTipIsItsText_data() {
        QTest::addColumn<int>("row");
        QTest::addColumn<int>("column");
        QTest::addColumn<QString>("toolTip");
        QTest::newRow("a caption") << 1 << 0 << "Dispenser ";
        QTest::newRow("one blank gives none") << 7 << 1 << "";
        QTest::newRow("a number") << 7 << 2 << "8";
    }
    void aCellsToolTipIsItsText() {
        QFETCH(int, row);
        QFETCH(int, column);
        QFETCH(QString, toolTip);
        m_station = std::make_unique<Station>();
        auto* grid = m_station->find<QTableWidget>("flxCurrent");
        grid->setCurrentCell(row, column);
        QCOMPARE(grid->toolTip(), toolTip);
    }

    void switchingPagesKeepsTheGridRow() {
        m_station = std::make_unique<Station>();
        Station& s = *m_station;
        s.show();
        auto* pages = s.find<QTabWidget>("tabCurrentBaseline");
        auto* current = s.find<QTableWidget>("flxCurrent");
        auto* baseline = s.find<QTableWidget>("flxBaseLine");
        current->setCurrentCell(25, 1);
        pages->setCurrentIndex(1);
        QCOMPARE(baseline->currentRow(), 25);
        QCOMPARE(baseline->currentColumn(), 1);
        QVERIFY(baseline->hasFocus());
        baseline->setCurrentCell(30, 2);
        pages->setCurrentIndex(0);
        QCOMPARE(current->currentRow(), 30);
        QCOMPARE(current->currentColumn(), 2);
        QVERIFY(current->hasFocus());
    }

    void tabbingOutOfTheCurrentGridGoesToTheFirstAreaButton() {
        m_station = std::make_unique<Station>();
        Station& s = *m_station;
        s.show();
        auto* grid = s.find<QTableWidget>("flxCurrent");
        grid->setFocus(Qt::MouseFocusReason);
        QTest::keyClick(grid, Qt::Key_Tab);
        QVERIFY(s.find("cmdDispenser")->hasFocus());
    }

    void backTabbingOutOfTheBaselineGridGoesToItsPages() {
        m_station = std::make_unique<Station>();
        Station& s = *m_station;
        s.show();
        s.find<QTabWidget>("tabCurrentBaseline")->setCurrentIndex(1);
        auto* grid = s.find<QTableWidget>("flxBaseLine");
        grid->setFocus(Qt::MouseFocusReason);
        QTest::keyClick(grid, Qt::Key_Backtab, Qt::ShiftModifier);
        QVERIFY(s.find<QTabWidget>("tabCurrentBaseline")->tabBar()->hasFocus());
    }

    void aPointsToolTipNamesItsFlow() {
        m_station = std::make_unique<Station>();
        Station& s = *m_station;
        const ChartAdapter& chart = s.window->flowChart();
        const QPointF third = chart.markers(1)->points().at(2);
        emit chart.markers(1)->hovered(third, true);
        const QString expected = q(
            vesk::PointToolTip(s.app.results.NozzleLabels, s.app.results.Current, s.app.results.Baseline, 2, 3, true));
        QCOMPARE(s.find("MSChart1")->toolTip(), expected);
        QVERIFY(expected.startsWith(QStringLiteral("3  ")));
    }

    void unitsChangeReplotsWithoutASweep() {
        m_station = std::make_unique<Station>();
        Station& s = *m_station;
        const std::vector<Single> lpm = s.app.results.Current.LpmPerNozzle;
        s.chooseUnits(true);
        QCOMPARE(s.app.results.Current.LpmPerNozzle, lpm);
        const ChartAdapter& chart = s.window->flowChart();
        QCOMPARE(chart.valueAxis()->titleText(), QStringLiteral("LPM per Nozzle"));
        QCOMPARE(chartPoints(chart, 1), expectedPoints(lpm, s.app.ChartNozzles));
        QCOMPARE(chartPoints(chart, 0), expectedPoints(s.app.results.Baseline.LpmPerNozzle, s.app.ChartNozzles));
        QCOMPARE(chart.valueAxis()->max(), static_cast<qreal>(s.app.flowChart.chart.yMaximum));
        QCOMPARE(s.field("txtTankDiameter")->text(), QStringLiteral("243.8"));
        QCOMPARE(s.find<QLabel>("lblRise")->text(), QStringLiteral("Rise(m)"));
        // The next Calculate draws in litres too.
        s.click("cmdCalculate");
        QCOMPARE(chart.valueAxis()->titleText(), QStringLiteral(" LPM per Nozzle "));
    }

    // ------------------------------------------------------------ the pump curve

    void updateGraphDrawsThePumpCurve_data() {
        QTest::addColumn<int>("quantity");
        QTest::addColumn<bool>("metric");
        for (int quantity = 1; quantity <= 4; ++quantity) {
            QTest::addRow("%d pump, US", quantity) << quantity << false;
            QTest::addRow("%d pump, metric", quantity) << quantity << true;
        }
    }
    void updateGraphDrawsThePumpCurve() {
        QFETCH(int, quantity);
        QFETCH(bool, metric);
        m_station = std::make_unique<Station>([metric](const TempProgramFolder& folder) {
            if (metric) {
                folder.writeLines("Vesk.ini", {"40", "4", "True", "False", "A"});
            }
        });
        Station& s = *m_station;
        s.choose("cmbQuantity", quantity - 1);
        s.click("cmdUpdate");
        const vesk::PumpCurveChart& curve = s.app.pumpCurve;
        const ChartAdapter& chart = s.window->pumpCurveChart();
        QCOMPARE(chart.chart()->title(), q(curve.title));
        QCOMPARE(chart.chart()->title(), q(s.app.panel.cmbPumps.Text()));
        QCOMPARE(chart.rowAxis()->titleText(), metric ? QStringLiteral("LPM") : QStringLiteral("GPM"));
        QCOMPARE(chart.valueAxis()->titleText(),
                 metric ? QStringLiteral("Meters of Head") : QStringLiteral("Feet of Head"));
        QCOMPARE(chart.rowAxis()->max(), static_cast<qreal>(curve.xMaximum));
        QCOMPARE(chart.valueAxis()->max(), static_cast<qreal>(curve.yMaximum));
        std::map<int, Single> expected;
        for (std::size_t row = 0; row < curve.points.size(); ++row) {
            if (curve.points[row] != -1) {
                expected[static_cast<int>(row)] = curve.points[row];
            }
        }
        QVERIFY(!expected.empty());
        std::map<int, Single> drawn;
        for (const QLineSeries* run : chart.lineRuns(0)) {
            for (const QPointF& point : run->points()) {
                drawn[static_cast<int>(std::lround(point.x()))] = static_cast<Single>(point.y());
            }
        }
        QCOMPARE(drawn, expected);
        QCOMPARE(chart.rowAxis()->categoriesLabels().first(), QStringLiteral("0"));
    }

    // ------------------------------------------------------------ the window's numbers against the core's

    void theWindowsFlowsAreTheCalculatorsFlows() {
        m_station = std::make_unique<Station>();
        Station& s = *m_station;
        std::ifstream golden(vesk::test::testsDir() / "cli" / "data" / "shipped_startup.csv");
        std::string line;
        std::getline(golden, line);
        QCOMPARE(line, std::string("nozzles,gpm_per_nozzle,lpm_per_nozzle"));
        const std::map<int, Single> drawn = chartPoints(s.window->flowChart(), 1);
        int rows = 0;
        while (std::getline(golden, line)) {
            if (!line.empty() && line.back() == '\r') {
                line.pop_back();
            }
            std::istringstream fields(line);
            std::string nozzles, gpm, lpm;
            std::getline(fields, nozzles, ',');
            std::getline(fields, gpm, ',');
            std::getline(fields, lpm, ',');
            const int n = std::stoi(nozzles);
            QCOMPARE(vesk::singleText(drawn.at(n)), gpm);
            QCOMPARE(vesk::singleText(s.app.results.Current.GpmPerNozzle.at(n)), gpm);
            QCOMPARE(vesk::singleText(s.app.results.Current.LpmPerNozzle.at(n)), lpm);
            ++rows;
        }
        QCOMPARE(rows, 8);
    }

    // ------------------------------------------------------------ the other controls

    void areaButtonsOpenTheirArea_data() {
        QTest::addColumn<QString>("button");
        QTest::addColumn<int>("tab");
        QTest::newRow("cmdDispenser") << "cmdDispenser" << 0;
        QTest::newRow("cmdPiping") << "cmdPiping" << 1;
        QTest::newRow("cmdPump") << "cmdPump" << 2;
        QTest::newRow("cmdSite") << "cmdSite" << 3;
    }
    void areaButtonsOpenTheirArea() {
        QFETCH(QString, button);
        QFETCH(int, tab);
        m_station = std::make_unique<Station>();
        m_station->find<QTabWidget>("tabMain")->setCurrentIndex(tab == 0 ? 3 : 0);
        m_station->click(button.toLatin1().constData());
        QCOMPARE(m_station->find<QTabWidget>("tabMain")->currentIndex(), tab);
    }

    void tabbingThroughAnAreaButtonOpensItsArea() {
        m_station = std::make_unique<Station>();
        Station& s = *m_station;
        s.show();
        s.find("cmdPiping")->setFocus(Qt::MouseFocusReason);
        QTest::keyClick(s.find("cmdPiping"), Qt::Key_Tab);
        QCOMPARE(s.find<QTabWidget>("tabMain")->currentIndex(), 1);
        s.find("cmdSite")->setFocus(Qt::MouseFocusReason);
        QTest::keyClick(s.find("cmdSite"), Qt::Key_Backtab);
        QCOMPARE(s.find<QTabWidget>("tabMain")->currentIndex(), 1); // a back tab opens nothing
    }

    void aFrequencyOptionRefillsThePumps() {
        m_station = std::make_unique<Station>();
        Station& s = *m_station;
        s.click("opt50Hz");
        QVERIFY(s.app.panel.opt50Hz);
        QVERIFY(!s.find<QRadioButton>("opt60Hz")->isChecked());
        auto* pumps = s.find<QComboBox>("cmbPumps");
        QCOMPARE(pumps->count(), s.app.panel.cmbPumps.ListCount());
        QCOMPARE(pumps->currentIndex(), 0);
        QCOMPARE(pumps->currentText(), q(s.app.panel.cmbPumps.Text()));
    }

    void thePipingModeSwitchesTheFrames() {
        m_station = std::make_unique<Station>();
        Station& s = *m_station;
        s.click("optBasic");
        QVERIFY(s.app.panel.optBasic && !s.app.panel.optAdvance);
        QVERIFY(!s.find("fraPipeInfo")->isHidden());
        QVERIFY(s.find("fraTrunk")->isHidden());
        QVERIFY(s.find("fraBranch")->isHidden());
        s.click("optAdvance");
        QVERIFY(s.find("fraPipeInfo")->isHidden());
        QVERIFY(!s.find("fraBranch")->isHidden());
    }

    void aChoiceBecomesTheListsToolTip() {
        m_station = std::make_unique<Station>();
        Station& s = *m_station;
        s.choose("cmbDispenser", 2);
        QCOMPARE(s.find("cmbDispenser")->toolTip(), q(s.app.panel.cmbDispenser.List(2)));
        QCOMPARE(s.app.panel.cmbDispenser.ListIndex(), 2);
        s.choose("cmbHoseSize", 1);
        QCOMPARE(s.find("cmbHoseSize")->toolTip(), QStringLiteral("Select the required hose size from the  combo box"));
    }

    void theValveBoxesReachThePanel() {
        m_station = std::make_unique<Station>();
        Station& s = *m_station;
        s.click("chkBall");
        s.click("chkSwing");
        QCOMPARE(static_cast<int>(s.app.panel.chkBall), 1);
        QCOMPARE(static_cast<int>(s.app.panel.chkSwing), 1);
        s.click("cmdCalculate");
        QCOMPARE(s.find<QTableWidget>("flxCurrent")->item(21, 1)->text(), QStringLiteral("BallValve and SwingCheck"));
    }

    void theSitePictureFollowsBranchesAndPumps() {
        m_station = std::make_unique<Station>();
        Station& s = *m_station;
        s.show();
        const auto pictureColourShown = [&s] {
            const QImage image = s.find<QLabel>("PicSiteLayout")->pixmap().toImage();
            return image.pixelColor(4, image.height() / 2);
        };
        const auto near = [](const QColor& a, const QColor& b) {
            return std::abs(a.red() - b.red()) < 24 && std::abs(a.green() - b.green()) < 24 &&
                   std::abs(a.blue() - b.blue()) < 24;
        };
        QVERIFY(near(pictureColourShown(), sitePictureColour(1, 1)));
        s.choose("cmbNoOfBranches", 2);
        QVERIFY(near(pictureColourShown(), sitePictureColour(1, 3)));
        // A new quantity shows once the focus leaves the list.
        auto* quantity = s.find<QComboBox>("cmbQuantity");
        s.click("cmdPump");
        quantity->setFocus(Qt::MouseFocusReason);
        s.choose("cmbQuantity", 3);
        QVERIFY(near(pictureColourShown(), sitePictureColour(1, 3)));
        s.find("cmbLeak")->setFocus(Qt::TabFocusReason);
        QVERIFY(near(pictureColourShown(), sitePictureColour(4, 3)));
    }

    void aMissingSitePictureEndsTheProgram() {
        m_station = std::make_unique<Station>();
        Station& s = *m_station;
        s.folder.remove("Image/1Pump2Branch.jpg");
        s.choose("cmbNoOfBranches", 1);
        QCOMPARE(s.ui.shown, std::vector<std::string>{"File not found"});
        QCOMPARE(s.programEnds, std::vector<int>{1});
        QCOMPARE(s.window->endStatus(), std::optional<int>(1));
    }

    void aMissingSitePictureAtStartUpFailsTheWindow() {
        const TempProgramFolder folder = TempProgramFolder::copyOfShipped();
        writeSitePictures(folder);
        folder.remove("Image/1Pump1Branch.jpg");
        ApplicationState app;
        RecordingInteraction ui;
        app.programFolder = folder.path();
        vesk::InitialiseMainWindow(app, ui);
        std::vector<int> ends;
        const bool ran = vesk::gui::RunEvent(
            ui, [&] { MainWindow window(app, ui); }, [&ends](int status) { ends.push_back(status); });
        QVERIFY(!ran);
        QCOMPARE(ui.shown, std::vector<std::string>{"File not found"});
        QCOMPARE(ends, std::vector<int>{1});
    }

    // ------------------------------------------------------------ the ways out

    void exitAsksAndCancelGoesOn() {
        m_station = std::make_unique<Station>();
        Station& s = *m_station;
        s.show();
        s.click("cmdCalculate");
        s.ui.answers = {vesk::Answer::Cancel};
        s.action("mnuExit")->trigger();
        QCOMPARE(s.ui.shown, std::vector<std::string>{vesk::unsavedQuestion});
        QVERIFY(s.window->isVisible());
    }

    void exitWithYesSavesAndEnds() {
        m_station = std::make_unique<Station>();
        Station& s = *m_station;
        s.show();
        s.click("cmdCalculate");
        s.folder.remove("Vesk.ini");
        s.ui.answers = {vesk::Answer::Yes};
        s.action("mnuExit")->trigger();
        QCOMPARE(s.ui.shown, std::vector<std::string>{vesk::unsavedQuestion});
        QVERIFY(!s.window->isVisible());
        QVERIFY(std::filesystem::exists(s.folder.path() / "Vesk.ini"));
        QVERIFY(std::filesystem::exists(s.folder.path() / "SaveSiteInfo" / "Default.txt"));
    }

    void exitWhenSavedAsksNothing() {
        m_station = std::make_unique<Station>();
        Station& s = *m_station;
        s.show();
        s.action("mnuExit")->trigger();
        QVERIFY(s.ui.shown.empty());
        QVERIFY(!s.window->isVisible());
        QVERIFY(!std::filesystem::exists(s.folder.path() / "SaveSiteInfo" / "Default.txt"));
    }

    void theCloseBoxWritesTheSettingsWithoutAsking() {
        m_station = std::make_unique<Station>();
        Station& s = *m_station;
        s.show();
        s.click("cmdCalculate");
        s.folder.remove("Vesk.ini");
        QVERIFY(s.window->close());
        QVERIFY(s.ui.shown.empty());
        QCOMPARE(readBytes(s.folder.path() / "Vesk.ini"), std::string("40\r\n4\r\nTrue\r\nTrue\r\nA\r\n"));
    }

  private:
    std::unique_ptr<Station> m_station;
};

QTEST_MAIN(MainWindowTest)

#include "main_window_test.moc"
