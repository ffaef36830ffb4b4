// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The splash and the dialogs System Settings, System Headloss Details and About.
#include "gui/common/qt_user_interaction.h"
#include "gui/support/modal_driver.h"
#include "gui/support/widgets.h"
#include "gui/workbench/about_dialog.h"
#include "gui/workbench/details_dialog.h"
#include "gui/workbench/dialogs.h"
#include "gui/workbench/settings_dialog.h"
#include "gui/workbench/splash_window.h"
#include "support/started_app.h"
#include "workbench/details_view.h"
#include "workbench/startup.h"

#include "engine/numeric.h"

#include <QAbstractButton>
#include <QApplication>
#include <QElapsedTimer>
#include <QGroupBox>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>
#include <QtTest>
#include <cmath>
#include <functional>
#include <memory>

namespace vesk::gui::test {

namespace {

using vesk::test::shippedWithSettings;
using vesk::test::StartedApp;
using vesk::test::TempProgramFolder;

std::unique_ptr<StartedApp> startShipped() {
    return std::make_unique<StartedApp>(TempProgramFolder::copyOfShipped());
}

// The shipped folder with settings that say gas, metric, American.
std::unique_ptr<StartedApp> startShippedMetric() {
    return std::make_unique<StartedApp>(shippedWithSettings({"40", "4", "True", "False", "A"}));
}

// Half the spacing of Singles at the timer's present value: how far the
// Single target of the splash's wait may lie from the exact one.
double halfSingleStepAtTimer() {
    QElapsedTimer now;
    now.start();
    const float timer =
        static_cast<float>(static_cast<std::int32_t>(static_cast<std::uint32_t>(now.msecsSinceReference())));
    return (std::nextafter(std::fabs(timer), INFINITY) - std::fabs(timer)) / 2.0;
}

} // namespace

class DialogsTest : public QObject {
    Q_OBJECT

  private slots:
    void initTestCase();
    void cleanup();

    void settingsDialogShowsTheSystemsTexts();
    void settingsDialogLoadsItsOptionsFromTheSettings_data();
    void settingsDialogLoadsItsOptionsFromTheSettings();
    void settingsDialogLeftLoadedByASiteReadKeepsItsOptions();
    void settingsOkWithMetricConvertsTheFieldsOnce();
    void settingsOkWithDieselTellsTheSettingsAndLeavesTheFields();
    void settingsCancelChangesNothingAndUnloadsTheDialog();
    void settingsCloseBoxActsAsCancel();
    void showSystemSettingsReturnsWhetherOkWasPressed();

    void detailsInUsUnitsShowTheBreakdownOfTheFailingStep();
    void detailsInMetricUnitsShowMetricCaptionsAndMetres();
    void detailsOfAFullSiteShowEveryTermAsANumber();
    void detailsLeaveTheResultTablesAsTheyWere();
    void detailsWithANumberOfNozzlesThatDoesNotConvertFail();
    void detailsCloseButtonClosesTheDialog();

    void aboutShowsTheProgramsVersion();
    void aboutOkClosesTheDialog();

    void splashShowsTheProductNameAndVersion();
    void splashWaitsThenLoadsTheMainWindowAndCloses();
    void splashWaitLetsEventsRun();
};

void DialogsTest::initTestCase() {
    // The splash closes itself as the only window; that must not end the tests.
    QApplication::setQuitOnLastWindowClosed(false);
}

void DialogsTest::cleanup() {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    const QWidgetList leaked = QApplication::topLevelWidgets();
    for (QWidget* widget : leaked) {
        qWarning() << "leaked window" << widget->objectName() << widget->metaObject()->className();
    }
    QVERIFY(leaked.isEmpty());
}

// --- System Settings --------------------------------------------------------

void DialogsTest::settingsDialogShowsTheSystemsTexts() {
    ApplicationState app;
    SettingsDialog dialog(app);
    QCOMPARE(dialog.objectName(), QStringLiteral("frmData"));
    QCOMPARE(dialog.windowTitle(), QStringLiteral("System Settings"));
    const std::pair<const char*, const char*> frames[] = {
        {"fraComponent", "Component List"}, {"fraData", "Data"}, {"fraUnits", "Units"}, {"fraHelp", "Help"}};
    for (const auto& [name, title] : frames) {
        const QGroupBox* frame = child<QGroupBox>(&dialog, name);
        QVERIFY(frame != nullptr);
        QCOMPARE(frame->title(), QString::fromLatin1(title));
    }
    const std::pair<const char*, const char*> buttons[] = {
        {"optAmerican", "American"},     {"optInternational", "International"},
        {"optCommercial", "Commercial"}, {"optGas", "Gas"},
        {"optDiesel", "Diesel"},         {"optUS", "US"},
        {"optMetric", "Metric"},         {"cmdOk", "Ok"},
        {"cmdCancel", "Cancel"}};
    for (const auto& [name, caption] : buttons) {
        const QAbstractButton* button = child<QAbstractButton>(&dialog, name);
        QVERIFY(button != nullptr);
        QCOMPARE(button->text(), QString::fromLatin1(caption));
    }
    QCOMPARE(child<QRadioButton>(&dialog, "optGas")->parentWidget()->objectName(), QStringLiteral("fraData"));
    QCOMPARE(child<QRadioButton>(&dialog, "optMetric")->parentWidget()->objectName(), QStringLiteral("fraUnits"));
    QCOMPARE(child<QRadioButton>(&dialog, "optCommercial")->parentWidget()->objectName(),
             QStringLiteral("fraComponent"));
    QCOMPARE(labelText(&dialog, "lblDataLocalization"),
             QStringLiteral("Select the options for loading data in the site areas"));
    QCOMPARE(labelText(&dialog, "lblHelp"),
             QStringLiteral("All the operations of Vesk will be performed on the basis of the selection of "
                            "Component List, Data and Units. If user select American in Component List, Gas in "
                            "Data and US in Units, in all the site area the component which is having American "
                            "component list and Gas type will be shown"));
    QCOMPARE(child<QLabel>(&dialog, "lblHelp")->parentWidget()->objectName(), QStringLiteral("fraHelp"));
}

void DialogsTest::settingsDialogLoadsItsOptionsFromTheSettings_data() {
    QTest::addColumn<int>("componentList");
    QTest::addColumn<bool>("units");
    QTest::addColumn<bool>("data");
    QTest::addColumn<QStringList>("checked");
    QTest::newRow("gas, US, American") << 0 << true << true << QStringList{"optAmerican", "optGas", "optUS"};
    QTest::newRow("diesel, metric, International")
        << 1 << false << false << QStringList{"optInternational", "optDiesel", "optMetric"};
    QTest::newRow("gas, metric, Commercial")
        << 2 << false << true << QStringList{"optCommercial", "optGas", "optMetric"};
}

void DialogsTest::settingsDialogLoadsItsOptionsFromTheSettings() {
    QFETCH(int, componentList);
    QFETCH(bool, units);
    QFETCH(bool, data);
    QFETCH(QStringList, checked);
    ApplicationState app;
    app.config.ComponentList = static_cast<Byte>(componentList);
    app.config.Units = units;
    app.config.Data = data;
    SettingsDialog dialog(app);
    QStringList shown;
    for (const QRadioButton* button : dialog.findChildren<QRadioButton*>()) {
        if (button->isChecked()) {
            shown << button->objectName();
        }
    }
    shown.sort();
    checked.sort();
    QCOMPARE(shown, checked);
    QVERIFY(app.panel.frmDataLoaded);
}

void DialogsTest::settingsDialogLeftLoadedByASiteReadKeepsItsOptions() {
    ApplicationState app;
    app.config = {0, true, true}; // American, US, gas
    app.panel.frmDataLoaded = true;
    app.panel.frmData.optDiesel = true;
    app.panel.frmData.optCommercial = true;
    app.panel.frmData.optMetric = true;
    SettingsDialog dialog(app);
    QVERIFY(child<QRadioButton>(&dialog, "optDiesel")->isChecked());
    QVERIFY(!child<QRadioButton>(&dialog, "optGas")->isChecked());
    QVERIFY(child<QRadioButton>(&dialog, "optCommercial")->isChecked());
    QVERIFY(!child<QRadioButton>(&dialog, "optAmerican")->isChecked());
    QVERIFY(child<QRadioButton>(&dialog, "optMetric")->isChecked());
    QVERIFY(!child<QRadioButton>(&dialog, "optUS")->isChecked());
}

void DialogsTest::settingsOkWithMetricConvertsTheFieldsOnce() {
    const auto started = startShipped();
    ApplicationState& app = started->app;
    QCOMPARE(app.panel.txtTankDiameter, std::string("96"));
    {
        SettingsDialog dialog(app);
        click(&dialog, "optMetric");
        click(&dialog, "cmdOk");
        QCOMPARE(dialog.result(), static_cast<int>(QDialog::Accepted));
        QVERIFY(!dialog.isVisible());
        QVERIFY(dialog.replotRequested()); // start-up has calculated
    }
    QCOMPARE(app.panel.txtTankDiameter, std::string("243.8"));
    QCOMPARE(app.panel.txtBuryDepth, std::string("0.9"));
    QCOMPARE(app.panel.captions.lblTankDiameter, std::string("Tank Diameter(cm)"));
    QCOMPARE(app.panel.captions.lblHoseLength, std::string("Hose Length(m)"));
    QVERIFY(app.flags.blnMetricActive);
    QVERIFY(!app.flags.blnUSActive);
    QVERIFY(!app.config.Units);
    QVERIFY(!app.panel.frmDataLoaded);

    SettingsDialog again(app);
    QVERIFY(child<QRadioButton>(&again, "optMetric")->isChecked());
    click(&again, "cmdOk");
    QCOMPARE(app.panel.txtTankDiameter, std::string("243.8"));
    QCOMPARE(app.panel.txtBuryDepth, std::string("0.9"));
}

void DialogsTest::settingsOkWithDieselTellsTheSettingsAndLeavesTheFields() {
    const auto started = startShipped();
    ApplicationState& app = started->app;
    QVERIFY(app.config.Data);
    SettingsDialog dialog(app);
    click(&dialog, "optDiesel");
    click(&dialog, "cmdOk");
    QVERIFY(!app.config.Data);
    QVERIFY(app.config.Units);
    QCOMPARE(app.panel.txtTankDiameter, std::string("96"));
}

void DialogsTest::settingsCancelChangesNothingAndUnloadsTheDialog() {
    const auto started = startShipped();
    ApplicationState& app = started->app;
    const std::string tank = app.panel.txtTankDiameter;
    const std::string dispenser = app.panel.cmbDispenser.Text();
    const Long dispenserIndex = app.panel.cmbDispenser.ListIndex();
    SettingsDialog dialog(app);
    click(&dialog, "optMetric");
    click(&dialog, "optDiesel");
    click(&dialog, "optCommercial");
    click(&dialog, "cmdCancel");
    QCOMPARE(dialog.result(), static_cast<int>(QDialog::Rejected));
    QVERIFY(!dialog.replotRequested());
    QCOMPARE(app.panel.txtTankDiameter, tank);
    QCOMPARE(app.panel.cmbDispenser.Text(), dispenser);
    QCOMPARE(app.panel.cmbDispenser.ListIndex(), dispenserIndex);
    QVERIFY(app.config.Units);
    QVERIFY(app.config.Data);
    QCOMPARE(static_cast<int>(app.config.ComponentList), 0);
    QVERIFY(app.flags.blnUSActive);
    QCOMPARE(app.panel.captions.lblTankDiameter, std::string("Tank Diameter(inch)"));
    QVERIFY(!app.panel.frmDataLoaded);
    // Loaded again, it shows the settings, not the choice that was cancelled.
    SettingsDialog again(app);
    QVERIFY(child<QRadioButton>(&again, "optUS")->isChecked());
    QVERIFY(child<QRadioButton>(&again, "optGas")->isChecked());
}

void DialogsTest::settingsCloseBoxActsAsCancel() {
    ApplicationState app;
    app.panel.frmDataLoaded = true;
    app.panel.frmData.optMetric = true;
    SettingsDialog dialog(app);
    dialog.show();
    QVERIFY(dialog.close());
    QCOMPARE(dialog.result(), static_cast<int>(QDialog::Rejected));
    QVERIFY(!app.panel.frmDataLoaded);
}

void DialogsTest::showSystemSettingsReturnsWhetherOkWasPressed() {
    const auto started = startShipped();
    ApplicationState& app = started->app;
    const auto isSettings = [](QWidget* widget) { return widget->objectName() == QLatin1String("frmData"); };
    {
        const ModalDriver driver(isSettings, [](QWidget* dialog) { click(dialog, "cmdOk"); });
        QVERIFY(ShowSystemSettings(nullptr, app));
        QVERIFY(driver.answered());
    }
    {
        const ModalDriver driver(isSettings, [](QWidget* dialog) { click(dialog, "cmdCancel"); });
        QVERIFY(!ShowSystemSettings(nullptr, app));
        QVERIFY(driver.answered());
    }
}

// --- System Headloss Details ------------------------------------------------

void DialogsTest::detailsInUsUnitsShowTheBreakdownOfTheFailingStep() {
    const auto started = startShipped();
    ApplicationState& app = started->app;
    DetailsDialog dialog(app);
    QCOMPARE(dialog.objectName(), QStringLiteral("frmDetails"));
    QCOMPARE(dialog.windowTitle(), QStringLiteral("System Headloss Details"));
    QCOMPARE(labelText(&dialog, "Label1"), QStringLiteral("Total Rise (ft)"));
    QCOMPARE(labelText(&dialog, "Label12"), QStringLiteral("Dispenser Others Loss(ft)"));
    QCOMPARE(labelText(&dialog, "Label9"), QStringLiteral("TDH (ft)"));
    // Start-up leaves the hose at "None": its term is 0 and shows as out of range.
    QCOMPARE(labelText(&dialog, "Hose"), QStringLiteral("O/R"));
    bool isNumber = false;
    const double tdhFt = labelText(&dialog, "Total").toDouble(&isNumber);
    QVERIFY(isNumber);
    QVERIFY(tdhFt > 0);
    QVERIFY(app.results.engine.TrialFlow > 0);
    const auto lines = DetailsLines(app.results.engine.Breakdown, true);
    for (const DetailsLine& line : lines) {
        QCOMPARE(labelText(&dialog, line.captionControl.c_str()), QString::fromStdString(line.caption));
        QCOMPARE(labelText(&dialog, line.valueControl.c_str()), QString::fromStdString(line.value));
    }
}

void DialogsTest::detailsInMetricUnitsShowMetricCaptionsAndMetres() {
    const std::string usTotal = [] {
        const auto us = startShipped();
        DetailsDialog dialog(us->app);
        return labelText(&dialog, "Total").toStdString();
    }();
    const auto started = startShippedMetric();
    ApplicationState& app = started->app;
    QVERIFY(app.flags.blnMetricActive);
    DetailsDialog dialog(app);
    QCOMPARE(labelText(&dialog, "Label1"), QStringLiteral("Total Rise(m)"));
    QCOMPARE(labelText(&dialog, "Label12"), QStringLiteral("Disp Others Loss(m)"));
    QCOMPARE(labelText(&dialog, "Label7"), QStringLiteral("Hose Loss(m)"));
    QCOMPARE(labelText(&dialog, "Label9"), QStringLiteral("TDH(m)"));
    QCOMPARE(labelText(&dialog, "Hose"), QStringLiteral("O/R"));
    // 96 inches and 3 feet become 243.8 cm and 0.9 m: a rise of 10.95 feet.
    QCOMPARE(labelText(&dialog, "Rise"), QStringLiteral("3.3"));
    bool isNumber = false;
    const double tdhM = labelText(&dialog, "Total").toDouble(&isNumber);
    QVERIFY(isNumber);
    // The metric fields hold the same site to within their rounding.
    const double usTdhFt = std::stod(usTotal);
    QVERIFY2(std::fabs(tdhM - usTdhFt * 0.3048) < 0.1,
             qPrintable(QStringLiteral("%1 m against %2 ft").arg(tdhM).arg(usTdhFt)));
    const auto lines = DetailsLines(app.results.engine.Breakdown, false);
    for (const DetailsLine& line : lines) {
        QCOMPARE(labelText(&dialog, line.valueControl.c_str()), QString::fromStdString(line.value));
    }
}

void DialogsTest::detailsOfAFullSiteShowEveryTermAsANumber() {
    const auto started = startShipped();
    ApplicationState& app = started->app;
    app.panel.txtTrunkLength = "100";
    app.panel.txtBranchLength = "50";
    app.panel.cmbHoseSize.SetListIndex(1);
    app.panel.txtHoseLen = "10";
    DetailsDialog dialog(app);
    double sumFt = 0;
    for (const char* term :
         {"Rise", "MLD", "Trunk", "Branch", "Disp", "DispOthers", "Brk", "Hose", "Nozzle", "PumpOthers"}) {
        bool isNumber = false;
        sumFt += labelText(&dialog, term).toDouble(&isNumber);
        QVERIFY2(isNumber, term);
    }
    const double tdhFt = labelText(&dialog, "Total").toDouble();
    QVERIFY2(std::fabs(tdhFt - sumFt) <= 0.55, qPrintable(QStringLiteral("%1 against %2").arg(tdhFt).arg(sumFt)));
}

void DialogsTest::detailsLeaveTheResultTablesAsTheyWere() {
    const auto started = startShipped();
    ApplicationState& app = started->app;
    const std::vector<Single> current = app.results.Current.GpmPerNozzle;
    const std::vector<Single> baseline = app.results.Baseline.GpmPerNozzle;
    app.results.engine.TrialFlow = 0;
    DetailsDialog dialog(app);
    QVERIFY(app.results.Current.GpmPerNozzle == current);
    QVERIFY(app.results.Baseline.GpmPerNozzle == baseline);
    QVERIFY(app.results.engine.TrialFlow > 0);
}

void DialogsTest::detailsWithANumberOfNozzlesThatDoesNotConvertFail() {
    const auto started = startShipped();
    ApplicationState& app = started->app;
    app.panel.txtNoOfNozzle = "eight";
    QVERIFY_THROWS_EXCEPTION(RunTimeFailure, DetailsDialog dialog(app));
}

void DialogsTest::detailsCloseButtonClosesTheDialog() {
    const auto started = startShipped();
    DetailsDialog dialog(started->app);
    dialog.show();
    click(&dialog, "cmdClose");
    QVERIFY(!dialog.isVisible());
    const auto isDetails = [](QWidget* widget) { return widget->objectName() == QLatin1String("frmDetails"); };
    const ModalDriver driver(isDetails, [](QWidget* shown) { click(shown, "cmdClose"); });
    ShowDetails(nullptr, started->app);
    QVERIFY(driver.answered());
}

// --- About --------------------------------------------------------------------

void DialogsTest::aboutShowsTheProgramsVersion() {
    AboutDialog dialog;
    QCOMPARE(dialog.objectName(), QStringLiteral("frmAbout"));
    QCOMPARE(labelText(&dialog, "lblVersion"), QStringLiteral("Vesk Version 1.0"));
}

void DialogsTest::aboutOkClosesTheDialog() {
    AboutDialog dialog;
    dialog.show();
    click(&dialog, "cmdAboutOK");
    QVERIFY(!dialog.isVisible());
    const auto isAbout = [](QWidget* widget) { return widget->objectName() == QLatin1String("frmAbout"); };
    const ModalDriver driver(isAbout, [](QWidget* shown) { click(shown, "cmdAboutOK"); });
    ShowAbout(nullptr);
    QVERIFY(driver.answered());
}

// --- The splash -----------------------------------------------------------------

void DialogsTest::splashShowsTheProductNameAndVersion() {
    SplashWindow splash;
    QCOMPARE(splash.objectName(), QStringLiteral("frmSplash"));
    QVERIFY(splash.windowTitle().isEmpty());
    QCOMPARE(labelText(&splash, "lblProductName"), QStringLiteral("Vesk"));
    QCOMPARE(labelText(&splash, "lblVersion"), QStringLiteral("Version 1.0"));
}

void DialogsTest::splashWaitsThenLoadsTheMainWindowAndCloses() {
    constexpr int waitMs = 120;
    SplashWindow splash;
    QElapsedTimer clock;
    qint64 loadedAfterMs = -1;
    bool visibleWhileLoading = false;
    clock.start();
    splash.runThen(
        [&] {
            loadedAfterMs = clock.elapsed();
            visibleWhileLoading = splash.isVisible();
        },
        waitMs);
    QVERIFY(splash.isVisible());
    QCOMPARE(loadedAfterMs, -1); // not before the window is on the screen and the wait is over
    QTRY_VERIFY_WITH_TIMEOUT(loadedAfterMs >= 0, 5000);
    QVERIFY2(loadedAfterMs >= waitMs - halfSingleStepAtTimer() - 1, qPrintable(QString::number(loadedAfterMs)));
    QVERIFY(visibleWhileLoading); // the splash stays on the screen while the main window loads
    QTRY_VERIFY(!splash.isVisible());
}

void DialogsTest::splashWaitLetsEventsRun() {
    SplashWindow splash;
    bool eventRan = false;
    bool eventRanBeforeLoading = false;
    QTimer::singleShot(20, [&eventRan] { eventRan = true; });
    bool loaded = false;
    splash.runThen(
        [&] {
            eventRanBeforeLoading = eventRan;
            loaded = true;
        },
        200);
    QTRY_VERIFY_WITH_TIMEOUT(loaded, 5000);
    QVERIFY(eventRanBeforeLoading);
}

} // namespace vesk::gui::test

QTEST_MAIN(vesk::gui::test::DialogsTest)
#include "dialogs_test.moc"
