// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// Tests of where the focus goes and which checks run on the way: after Open, on the grids' pages, and for every way of
// pressing the buttons that sweep.
#include "gui/support/modal_driver.h"
#include "gui/support/station.h"
#include "workbench/application_state.h"
#include "workbench/site_file.h"
#include "workbench/startup.h"

#include <QAccessible>
#include <QAccessibleActionInterface>
#include <QApplication>
#include <QGroupBox>
#include <QPushButton>
#include <QRadioButton>
#include <QTabBar>
#include <QTabWidget>
#include <QTableWidget>
#include <QTest>
#include <memory>

using vesk::ApplicationState;
using vesk::gui::test::ModalDriver;
using vesk::gui::test::Station;
using vesk::test::RecordingInteraction;

namespace {

// The Current flows per nozzle that the core gives for a site opened after start-up.
std::vector<vesk::Single> flowsOfSite(const Station& s, const char* site) {
    ApplicationState app;
    RecordingInteraction ui;
    app.programFolder = s.folder.path();
    vesk::InitialiseMainWindow(app, ui);
    if (!vesk::OpenSiteFile(app, s.sitePath(site), ui)) {
        return {};
    }
    return app.results.Current.GpmPerNozzle;
}

// Presses a button as a screen reader does: its press action, which moves no focus.
void pressByAssistiveTechnology(QWidget* button) {
    QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(button);
    QVERIFY(accessible != nullptr && accessible->actionInterface() != nullptr);
    accessible->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QTest::qWait(300); // the press is animated
}

// Moves the focus as a screen reader does: the set-focus action of the control.
void focusByAssistiveTechnology(QWidget* control) {
    QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(control);
    QVERIFY(accessible != nullptr && accessible->actionInterface() != nullptr);
    accessible->actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
}

// The window deactivated and activated again, as when a dialog over it
// closes: the window system gives the focus back.
void giveTheWindowBack(const Station& s) {
    QWidget other;
    other.setWindowTitle(QStringLiteral("another window"));
    other.show();
    other.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&other));
    other.close();
    s.window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(s.window.get()));
}

void clickPage(QTabWidget* tabs, int page) {
    QTabBar* bar = tabs->tabBar();
    QTest::mouseClick(bar, Qt::LeftButton, {}, bar->tabRect(page).center());
}

} // namespace

class WindowFocusTest : public QObject {
    Q_OBJECT

    std::unique_ptr<Station> m_station;

    Station& shownStation() {
        m_station = std::make_unique<Station>();
        m_station->show();
        return *m_station;
    }

    // Types into a field and leaves the focus in it, the check not yet run.
    static void typeAndStay(const Station& s, const char* name, const QString& keys) {
        s.type(name, keys);
        QCOMPARE(QApplication::focusWidget(), s.field(name));
    }

    // Whether the window lives on: no program end, and no run-time box.
    static bool livesOn(const Station& s) { return s.programEnds.empty() && s.window->endStatus() == std::nullopt; }

  private slots:
    void cleanup() { m_station.reset(); }

    // ------------------------------------------------------------ after Open

    void openingASiteKeepsItsPipingModeFromEveryArea_data() {
        QTest::addColumn<QString>("areaButton");
        QTest::addColumn<QString>("site");
        for (const char* site : {"SmallGasStation.txt", "MetricStation.txt"}) {
            for (const char* button : {"cmdDispenser", "cmdPiping", "cmdPump", "cmdSite"}) {
                QTest::addRow("%s from %s", site, button) << button << site;
            }
        }
    }
    void openingASiteKeepsItsPipingModeFromEveryArea() {
        QFETCH(QString, areaButton);
        QFETCH(QString, site);
        Station& s = shownStation();
        QTest::mouseClick(s.find(areaButton.toLatin1().constData()), Qt::LeftButton);
        s.ui.chosenFiles = {s.sitePath(site.toLatin1().constData())};
        s.trigger("mnuOpen");
        giveTheWindowBack(s);
        // Both sites say "False" on their line 23: Advance.
        QVERIFY(s.find<QRadioButton>("optAdvance")->isChecked());
        QVERIFY(!s.find<QRadioButton>("optBasic")->isChecked());
        QVERIFY(s.app.panel.optAdvance);
        QVERIFY(s.find<QGroupBox>("fraPipeInfo")->isHidden());
        QCOMPARE(s.find<QTableWidget>("flxCurrent")->item(22, 1)->text(), QStringLiteral("Advance"));
        const std::vector<vesk::Single> opened = flowsOfSite(s, site.toLatin1().constData());
        QVERIFY(!opened.empty());
        QCOMPARE(s.app.results.Current.GpmPerNozzle, opened);
        s.click("cmdCalculate");
        QCOMPARE(s.app.results.Current.GpmPerNozzle, opened);
    }

    void digitsTypedAfterOpenReachTheNozzleField_data() {
        QTest::addColumn<QString>("areaButton");
        for (const char* button : {"cmdDispenser", "cmdPiping", "cmdPump", "cmdSite"}) {
            QTest::newRow(button) << button;
        }
    }
    void digitsTypedAfterOpenReachTheNozzleField() {
        QFETCH(QString, areaButton);
        Station& s = shownStation();
        QTest::mouseClick(s.find(areaButton.toLatin1().constData()), Qt::LeftButton);
        s.ui.chosenFiles = {s.sitePath("SmallGasStation.txt")};
        s.trigger("mnuOpen");
        QCOMPARE(QApplication::focusWidget(), s.field("txtNoOfNozzle"));
        QVERIFY(s.field("txtNoOfNozzle")->isVisible());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_End);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backspace);
        QTest::keyClicks(QApplication::focusWidget(), "12");
        QCOMPARE(s.field("txtNoOfNozzle")->text().right(2), QStringLiteral("12"));
    }

    void aFocusTheProgramMovesNeverSelectsBasic_data() {
        QTest::addColumn<int>("reason");
        QTest::newRow("program") << static_cast<int>(Qt::OtherFocusReason);
        QTest::newRow("window activated") << static_cast<int>(Qt::ActiveWindowFocusReason);
        QTest::newRow("pop-up closed") << static_cast<int>(Qt::PopupFocusReason);
    }
    void aFocusTheProgramMovesNeverSelectsBasic() {
        QFETCH(int, reason);
        Station& s = shownStation();
        s.click("cmdPiping");
        QVERIFY(s.app.panel.optAdvance);
        s.find("optBasic")->setFocus(static_cast<Qt::FocusReason>(reason));
        QCOMPARE(QApplication::focusWidget(), s.find("optBasic"));
        QVERIFY(s.app.panel.optAdvance);
        QVERIFY(s.find<QRadioButton>("optAdvance")->isChecked());
    }

    void theUserGivingBasicTheFocusSelectsIt_data() {
        QTest::addColumn<int>("reason");
        QTest::newRow("Tab") << static_cast<int>(Qt::TabFocusReason);
        QTest::newRow("Shift+Tab") << static_cast<int>(Qt::BacktabFocusReason);
        QTest::newRow("mouse") << static_cast<int>(Qt::MouseFocusReason);
    }
    void theUserGivingBasicTheFocusSelectsIt() {
        QFETCH(int, reason);
        Station& s = shownStation();
        s.click("cmdPiping");
        s.find("cmbPiping")->setFocus(Qt::MouseFocusReason); // from a control of the area
        s.find("optBasic")->setFocus(static_cast<Qt::FocusReason>(reason));
        QVERIFY(s.app.panel.optBasic);
        QVERIFY(s.find<QRadioButton>("optBasic")->isChecked());
        QVERIFY(!s.find<QGroupBox>("fraPipeInfo")->isHidden());
    }

    // ------------------------------------------------------------ checks before a sweep

    void aPageOfTheGridsRunsTheCheckOfTheFieldLeft() {
        Station& s = shownStation();
        typeAndStay(s, "txtNoOfNozzle", QStringLiteral("20"));
        clickPage(s.find<QTabWidget>("tabCurrentBaseline"), 1);
        QCOMPARE(s.app.ChartNozzles, 22);
        QTest::mouseClick(s.find("cmdCalculate"), Qt::LeftButton);
        QVERIFY(livesOn(s));
        QCOMPARE(s.app.results.Current.GpmPerNozzle.size(), std::size_t{23});
    }

    void anAreaButtonRunsTheCheckOfTheFieldItHides_data() {
        QTest::addColumn<bool>("byScreenReader");
        QTest::newRow("mouse") << false;
        QTest::newRow("screen reader") << true;
    }
    void anAreaButtonRunsTheCheckOfTheFieldItHides() {
        QFETCH(bool, byScreenReader);
        Station& s = shownStation();
        typeAndStay(s, "txtNoOfNozzle", QStringLiteral("20"));
        if (byScreenReader) {
            pressByAssistiveTechnology(s.find("cmdPump"));
        } else {
            QTest::mouseClick(s.find("cmdPump"), Qt::LeftButton);
        }
        QCOMPARE(s.app.ChartNozzles, 22);
        pressByAssistiveTechnology(s.find("cmdCalculate"));
        QVERIFY(livesOn(s));
        QCOMPARE(s.app.results.Current.GpmPerNozzle.size(), std::size_t{23});
    }

    void anEmptyLengthLeftForAPageOfTheGridsBecomesZero() {
        Station& s = shownStation();
        typeAndStay(s, "txtHoseLen", QString());
        clickPage(s.find<QTabWidget>("tabCurrentBaseline"), 1);
        QCOMPARE(s.field("txtHoseLen")->text(), QStringLiteral("0"));
        QTest::mouseClick(s.find("cmdCalculate"), Qt::LeftButton);
        QVERIFY(livesOn(s));
    }

    void aRefusedNozzleCountLeftForAPageOfTheGridsIsRefusedAgainByBackToBaseline() {
        Station& s = shownStation();
        typeAndStay(s, "txtNoOfNozzle", QStringLiteral("95"));
        clickPage(s.find<QTabWidget>("tabCurrentBaseline"), 1);
        QCOMPARE(s.ui.shown, std::vector<std::string>{"Value should be less than or equal to 40"});
        QCOMPARE(QApplication::focusWidget(), s.field("txtNoOfNozzle"));
        QTest::mouseClick(s.find("cmdBackToBaseLine"), Qt::LeftButton);
        QVERIFY(livesOn(s));
        QCOMPARE(s.ui.shown.size(), std::size_t{2});
        QCOMPARE(s.ui.shown.back(), std::string("Value should be less than or equal to 40"));
    }

    void aScreenReadersPressRunsTheCheckOfTheFocusedField_data() {
        QTest::addColumn<QString>("field");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("button");
        QTest::addColumn<QString>("checked");
        QTest::newRow("20 nozzles, Calculate") << "txtNoOfNozzle"
                                               << "20"
                                               << "cmdCalculate"
                                               << "20";
        QTest::newRow("a point as hose length, Calculate") << "txtHoseLen"
                                                           << "."
                                                           << "cmdCalculate"
                                                           << "0";
        QTest::newRow("empty hose length, Calculate") << "txtHoseLen"
                                                      << ""
                                                      << "cmdCalculate"
                                                      << "0";
        QTest::newRow("empty tank diameter, Make Baseline") << "txtTankDiameter"
                                                            << ""
                                                            << "BaseLine"
                                                            << "0";
        QTest::newRow("20 nozzles, Back To Baseline") << "txtNoOfNozzle"
                                                      << "20"
                                                      << "cmdBackToBaseLine"
                                                      << "20";
    }
    void aScreenReadersPressRunsTheCheckOfTheFocusedField() {
        QFETCH(QString, field);
        QFETCH(QString, typed);
        QFETCH(QString, button);
        QFETCH(QString, checked);
        Station& s = shownStation();
        typeAndStay(s, field.toLatin1().constData(), typed);
        pressByAssistiveTechnology(s.find(button.toLatin1().constData()));
        QVERIFY(livesOn(s));
        QCOMPARE(s.field(field.toLatin1().constData())->text(), checked);
    }

    void lettersDroppedFromAFieldLeftByAScreenReaderAreChecked() {
        Station& s = shownStation();
        typeAndStay(s, "txtTankDiameter", QStringLiteral("abc"));
        QCOMPARE(s.field("txtTankDiameter")->text(), QString());
        s.click("cmdDispenser");
        focusByAssistiveTechnology(s.field("txtHoseLen"));
        QCOMPARE(s.field("txtTankDiameter")->text(), QStringLiteral("0"));
        pressByAssistiveTechnology(s.find("BaseLine"));
        QVERIFY(livesOn(s));
    }

    void aRefusedCountStopsTheCommandAScreenReaderPressed() {
        Station& s = shownStation();
        typeAndStay(s, "txtNoOfNozzle", QString());
        bool detailsShown = false;
        ModalDriver details([](QWidget* w) { return w->objectName() == QLatin1String("frmDetails"); },
                            [&detailsShown](QWidget* w) {
                                detailsShown = true;
                                w->close();
                            },
                            1500);
        pressByAssistiveTechnology(s.find("cmdDetails"));
        QVERIFY(livesOn(s));
        QVERIFY(!detailsShown);
        QCOMPARE(s.ui.shown, std::vector<std::string>{"Field cannot be empty"});
        QCOMPARE(QApplication::focusWidget(), s.field("txtNoOfNozzle"));
    }

    void aMouseClickOnCalculateRunsTheCheckFirst() {
        Station& s = shownStation();
        typeAndStay(s, "txtNoOfNozzle", QStringLiteral("20"));
        QTest::mouseClick(s.find("cmdCalculate"), Qt::LeftButton);
        QVERIFY(livesOn(s));
        QCOMPARE(s.app.ChartNozzles, 22);
        QCOMPARE(s.app.results.Current.GpmPerNozzle.size(), std::size_t{23});
    }

    void aCheckedFieldIsNotCheckedAgainWhenTheFocusMovesOnFromTheButton() {
        Station& s = shownStation();
        typeAndStay(s, "txtNoOfNozzle", QStringLiteral("6"));
        pressByAssistiveTechnology(s.find("cmdCalculate"));
        pressByAssistiveTechnology(s.find("BaseLine"));
        const std::vector<vesk::Single> baseline = s.app.results.Baseline.GpmPerNozzle;
        QCOMPARE(baseline.size(), std::size_t{9});
        // Leaving the nozzle field again would create the tables anew and
        // lose the Baseline: the press took the focus from it.
        s.find("cmdDetails")->setFocus(Qt::TabFocusReason);
        QCOMPARE(s.app.results.Baseline.GpmPerNozzle, baseline);
    }
};

QTEST_MAIN(WindowFocusTest)
#include "window_focus_test.moc"
