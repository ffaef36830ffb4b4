// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// Options > Update as a designer uses it, F1 in the forms and Help > Help F1, and the inert recommendation controls.
#include "gui/support/modal_driver.h"
#include "gui/support/station.h"
#include "gui/workbench/main_window.h"
#include "gui/workbench/update_dialog.h"
#include "support/recording_interaction.h"
#include "support/temp_program_folder.h"
#include "workbench/recommendation.h"
#include "workbench/startup.h"

#include "catalogue/standard_update.h"
#include "messages/help_topics.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QElapsedTimer>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenuBar>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <functional>
#include <memory>

using vesk::gui::test::TempProgramFolder;

namespace {

using Window = vesk::gui::test::Station;

// The window shown and active, as a designer has it.
void showWindow(const Window& station) {
    station.show();
}

QWidget* visibleWindowNamed(const char* name) {
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (widget->isVisible() && widget->objectName() == QLatin1String(name)) {
            return widget;
        }
    }
    return nullptr;
}

// Runs `open`, which shows a modal dialog named `name` and waits for it; when
// the dialog shows, `drive` works it (the shared driver rejects a dialog left
// open, so a test fails instead of hanging).
bool whileModal(const char* name, const std::function<void()>& open, const std::function<void(QWidget*)>& drive) {
    return vesk::gui::test::driveModalDialog(open, [&](QDialog* dialog) {
        QVERIFY2(dialog->objectName() == QLatin1String(name), name);
        drive(dialog);
    });
}

void click(QWidget* parent, const char* name) {
    auto* button = parent->findChild<QAbstractButton*>(QString::fromLatin1(name));
    QVERIFY2(button != nullptr, name);
    button->click();
}

void pressF1(QWidget* widget) {
    QTest::keyClick(widget, Qt::Key_F1);
}

const std::string customNozzle = vesk::test::crlfLines(
    {"$My nozzle #AIC", "#TRUE#", "#Custom#", "#RATELOSS_BEGIN#", "0,0", "10,15.5", "20,60", "#RATELOSS_END#"});

// The maker's nozzle file: the first two standard records of the shipped file
// changed (other curves), and one new standard record.
std::string makersNozzleFile() {
    return vesk::test::crlfLines({
        "$Nozzle standard 3/4in #AIC",
        "#TRUE#",
        "#Standard#",
        "#RATELOSS_BEGIN#",
        "0,0",
        "10,11.5",
        "20.5,45",
        "#RATELOSS_END#",
        "$Nozzle standard 3/4in #AIC",
        "#FALSE#",
        "#Standard#",
        "#RATELOSS_BEGIN#",
        "0,0",
        "10,11",
        "20,44",
        "#RATELOSS_END#",
        "$Nozzle low-loss 3/4in #AIC",
        "#TRUE#",
        "#Standard#",
        "#RATELOSS_BEGIN#",
        "0,0",
        "12.5,10",
        "25,40",
        "#RATELOSS_END#",
    });
}

QStringList entriesOf(QComboBox* list) {
    QStringList entries;
    for (int i = 0; i < list->count(); ++i) {
        entries.append(list->itemText(i));
    }
    return entries;
}

} // namespace

class UpdateAndHelpTest : public QObject {
    Q_OBJECT

  private slots:
    void cleanup();

    void theUpdateDialogHasItsControlsAndHelpText();
    void mergingAMakersNozzleFileKeepsTheCustomNozzlesAndListsTheNewOnes();
    void aSuccessfulUpdatePutsTheListsOfTheWindowBackOnTheirFirstEntries();
    void updateWithoutAPathShowsMessage12AndTheDialogStays();
    void browseOffersTheDataFilesAndShowsTheChosenPath();

    void f1InTheMainWindowAndHelpF1OpenDifferentTopics();
    void f1InTheMainWindowsAreasOpensTheMainWindowsTopic();
    void f1InEachDialogOfTheMainWindowOpensItsOwnTopic_data();
    void f1InEachDialogOfTheMainWindowOpensItsOwnTopic();
    void formsWithoutATopicGetNothingFromF1_data();
    void formsWithoutATopicGetNothingFromF1();
    void aMissingHelpFileShowsMessage32AndTheFormGoesOn();

    void theRecommendationControlsAreInert();
    void noneOfThe43RecommendationTextsIsShown();
};

void UpdateAndHelpTest::cleanup() {
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (auto* dialog = qobject_cast<QDialog*>(widget); dialog != nullptr && dialog->isVisible()) {
            dialog->reject();
        }
    }
}

void UpdateAndHelpTest::theUpdateDialogHasItsControlsAndHelpText() {
    Window station;
    showWindow(station);
    vesk::gui::WindowContext context{station.app, station.ui, [](const std::function<void()>& work) {
                                         work();
                                         return true;
                                     }};
    vesk::gui::UpdateDialog dialog(context, station.window.get());
    QCOMPARE(dialog.objectName(), QStringLiteral("frmUpdate"));
    QCOMPARE(dialog.windowTitle(), QStringLiteral("Update"));
    QVERIFY(dialog.isModal());
    QVERIFY(dialog.findChild<QLineEdit*>(QStringLiteral("txtFilePath")) != nullptr);
    QCOMPARE(dialog.findChild<QPushButton*>(QStringLiteral("cmdBrowse"))->text(), QStringLiteral("&Browse"));
    QCOMPARE(dialog.findChild<QPushButton*>(QStringLiteral("cmdUpdate"))->text(), QStringLiteral("Update"));
    QCOMPARE(dialog.findChild<QGroupBox*>(QStringLiteral("fraUpdateHelp"))->title(), QStringLiteral("Help"));
    QCOMPARE(dialog.findChild<QLabel*>(QStringLiteral("lblUpdateHelp"))->text(),
             QString::fromLatin1(vesk::updateHelpText.data(), vesk::updateHelpText.size()));
    bool labelled = false;
    for (const QLabel* label : dialog.findChildren<QLabel*>()) {
        labelled = labelled || label->text() == QStringLiteral("Selected File to Update Existing File");
    }
    QVERIFY(labelled);
}

void UpdateAndHelpTest::mergingAMakersNozzleFileKeepsTheCustomNozzlesAndListsTheNewOnes() {
    Window station([](const TempProgramFolder& folder) {
        folder.write("Components/NOZZLE.DAT", folder.read("Components/NOZZLE.DAT") + customNozzle);
        folder.write("maker/Nozzle.dat", makersNozzleFile());
    });
    showWindow(station);
    const std::string before = station.folder.read("Components/NOZZLE.DAT");
    const std::string maker = (station.folder.path() / "maker" / "Nozzle.dat").string();
    station.ui.chosenFiles = {maker};
    station.ui.answers = {vesk::Answer::Yes};
    QVERIFY(entriesOf(station.find<QComboBox>("cmbNozzle")).contains(QStringLiteral("My nozzle")));

    const bool driven = whileModal(
        "frmUpdate", [&] { station.action("mnuUpdate")->trigger(); },
        [](QWidget* dialog) {
            click(dialog, "cmdBrowse");
            click(dialog, "cmdUpdate");
        });
    QVERIFY(driven);
    QVERIFY(visibleWindowNamed("frmUpdate") == nullptr);
    QCOMPARE(station.ui.shown, std::vector<std::string>{std::string(vesk::updateQuestion)});

    // The file on disk: the custom record first, then the maker's records,
    // every flow of a nozzle a whole number.
    QCOMPARE(
        station.folder.read("Components/NOZZLE.DAT"),
        vesk::ComposeMergedFile(vesk::MergeRoutine::Standard, vesk::ComponentKind::Nozzle, before, makersNozzleFile()));
    QVERIFY(station.folder.read("Components/NOZZLE.DAT").starts_with(customNozzle));
    QVERIFY(station.folder.read("Components/NOZZLE.DAT").find("\r\n12,10\r\n") != std::string::npos);
    QVERIFY(station.folder.read("Components/NOZZLE.DAT").find("Nozzle high-flow") == std::string::npos);

    // The window's list: the custom nozzle stays, the new standard one appears.
    const QStringList nozzles = entriesOf(station.find<QComboBox>("cmbNozzle"));
    QCOMPARE(nozzles, (QStringList{QStringLiteral("None"), QStringLiteral("My nozzle"),
                                   QStringLiteral("Nozzle standard 3/4in"), QStringLiteral("Nozzle low-loss 3/4in")}));
    QVERIFY(station.programEnds.empty());
}

void UpdateAndHelpTest::aSuccessfulUpdatePutsTheListsOfTheWindowBackOnTheirFirstEntries() {
    Window station([](const TempProgramFolder& folder) { folder.write("maker/Nozzle.dat", makersNozzleFile()); });
    showWindow(station);
    station.find<QComboBox>("cmbDispenser")->setCurrentIndex(2);
    station.app.panel.cmbDispenser.SetListIndex(2);
    station.app.panel.cmbHoseSize.SetListIndex(1);
    station.app.panel.cmbQuantity.SetListIndex(3);
    station.window->refreshAll();
    QCOMPARE(station.find<QComboBox>("cmbQuantity")->currentIndex(), 3);

    station.ui.chosenFiles = {(station.folder.path() / "maker" / "Nozzle.dat").string()};
    station.ui.answers = {vesk::Answer::Yes};
    QVERIFY(whileModal(
        "frmUpdate", [&] { station.action("mnuUpdate")->trigger(); },
        [](QWidget* dialog) {
            click(dialog, "cmdBrowse");
            click(dialog, "cmdUpdate");
        }));
    QCOMPARE(station.find<QComboBox>("cmbDispenser")->currentIndex(), 1);
    QCOMPARE(station.find<QComboBox>("cmbNozzle")->currentIndex(), 1);
    QCOMPARE(station.find<QComboBox>("cmbHoseSize")->currentIndex(), 0);
    QCOMPARE(station.find<QComboBox>("cmbQuantity")->currentIndex(), 0);
}

void UpdateAndHelpTest::updateWithoutAPathShowsMessage12AndTheDialogStays() {
    Window station;
    showWindow(station);
    bool stayed = false;
    QVERIFY(whileModal(
        "frmUpdate", [&] { station.action("mnuUpdate")->trigger(); },
        [&](QWidget* dialog) {
            click(dialog, "cmdUpdate");
            stayed = dialog->isVisible();
            static_cast<QDialog*>(dialog)->reject();
        }));
    QVERIFY(stayed);
    QCOMPARE(station.ui.shown, std::vector<std::string>{"Please select the default Data filename "});
}

void UpdateAndHelpTest::browseOffersTheDataFilesAndShowsTheChosenPath() {
    Window station;
    showWindow(station);
    const std::string missing = (station.folder.path() / "maker" / "Hoses.dat").string();
    station.ui.chosenFiles = {missing};
    QString shown;
    QVERIFY(whileModal(
        "frmUpdate", [&] { station.action("mnuUpdate")->trigger(); },
        [&](QWidget* dialog) {
            click(dialog, "cmdBrowse");
            shown = dialog->findChild<QLineEdit*>(QStringLiteral("txtFilePath"))->text();
            static_cast<QDialog*>(dialog)->reject();
        }));
    QCOMPARE(shown, QString::fromStdString(missing));
    QCOMPARE(station.ui.shown, std::vector<std::string>{"File doesn't exists"});
    QCOMPARE(station.ui.fileDialogs.size(), std::size_t{1});
    QCOMPARE(station.ui.fileDialogs[0].filter, std::string("Vesk Files(*.dat)|*.dat"));
}

// ---------------------------------------------------------------- F1

void UpdateAndHelpTest::f1InTheMainWindowAndHelpF1OpenDifferentTopics() {
    Window station;
    showWindow(station);
    pressF1(station.find("cmbDispenser"));
    station.action("mnuF1")->trigger();
    const std::string helpFile = (station.folder.path() / "VeskHelpFile.chm").string();
    QCOMPARE(station.ui.helpTopics.size(), std::size_t{2});
    QCOMPARE(station.ui.helpTopics[0],
             std::make_pair(helpFile, std::string("Main Functionality\\Dynamic Flow Graph.htm")));
    QCOMPARE(station.ui.helpTopics[1], std::make_pair(helpFile, std::string("Introduction\\Introduction.htm")));
}

void UpdateAndHelpTest::f1InTheMainWindowsAreasOpensTheMainWindowsTopic() {
    Window station;
    showWindow(station);
    for (const char* control : {"cmbPumps", "txtTankDiameter", "cmbTrunk", "txtNoOfNozzle", "cmdCalculate"}) {
        station.ui.helpTopics.clear();
        pressF1(station.find(control));
        QCOMPARE(station.ui.helpTopics.size(), std::size_t{1});
        QCOMPARE(station.ui.helpTopics[0].second, std::string("Main Functionality\\Dynamic Flow Graph.htm"));
    }
}

void UpdateAndHelpTest::f1InEachDialogOfTheMainWindowOpensItsOwnTopic_data() {
    QTest::addColumn<QString>("menu");
    QTest::addColumn<QString>("form");
    QTest::addColumn<QString>("topic");
    QTest::newRow("Update") << "mnuUpdate"
                            << "frmUpdate"
                            << "Option Menu\\Update Data.htm";
    QTest::newRow("System Settings") << "mnuSystemSettings"
                                     << "frmData"
                                     << "Option Menu\\System Settings.htm";
    QTest::newRow("Site Properties") << "mnuSiteProperties"
                                     << "frmSiteProperties"
                                     << "Option Menu\\Site Properties.htm";
}

void UpdateAndHelpTest::f1InEachDialogOfTheMainWindowOpensItsOwnTopic() {
    QFETCH(QString, menu);
    QFETCH(QString, form);
    QFETCH(QString, topic);
    Window station;
    showWindow(station);
    const QByteArray formName = form.toLatin1();
    QVERIFY(whileModal(
        formName.constData(), [&] { station.action(menu.toLatin1().constData())->trigger(); },
        [](QWidget* dialog) {
            QWidget* target = dialog->focusWidget() != nullptr ? dialog->focusWidget() : dialog;
            pressF1(target);
            static_cast<QDialog*>(dialog)->reject();
        }));
    QCOMPARE(station.ui.helpTopics.size(), std::size_t{1});
    QCOMPARE(QString::fromStdString(station.ui.helpTopics[0].second), topic);
}

void UpdateAndHelpTest::formsWithoutATopicGetNothingFromF1_data() {
    QTest::addColumn<QString>("form");
    QTest::newRow("About") << "frmAbout";
    QTest::newRow("Details") << "frmDetails";
}

void UpdateAndHelpTest::formsWithoutATopicGetNothingFromF1() {
    QFETCH(QString, form);
    Window station;
    showWindow(station);
    const QByteArray formName = form.toLatin1();
    QVERIFY(whileModal(
        formName.constData(),
        [&] {
            if (form == QLatin1String("frmAbout")) {
                station.action("mnuAbout")->trigger();
            } else {
                station.find<QPushButton>("cmdDetails")->click();
            }
        },
        [](QWidget* dialog) {
            pressF1(dialog->focusWidget() != nullptr ? dialog->focusWidget() : dialog);
            static_cast<QDialog*>(dialog)->reject();
        }));
    QVERIFY(station.ui.helpTopics.empty());
    QVERIFY(station.ui.shown.empty());
}

void UpdateAndHelpTest::aMissingHelpFileShowsMessage32AndTheFormGoesOn() {
    Window station([](const TempProgramFolder& folder) { folder.remove("VeskHelpFile.chm"); });
    showWindow(station);
    pressF1(station.find("cmbNozzle"));
    station.action("mnuF1")->trigger();
    QCOMPARE(station.ui.shown, (std::vector<std::string>{"Help File doesn't exist", "Help File doesn't exist"}));
    QVERIFY(station.ui.helpTopics.empty());
    QVERIFY(station.programEnds.empty());
    QVERIFY(station.window->isVisible());
}

// ---------------------------------------------------------------- the inert controls

void UpdateAndHelpTest::theRecommendationControlsAreInert() {
    Window station;
    showWindow(station);
    for (const char* button : {"cmdDispRecom", "cmdPipingRecom", "cmdPumpRecom", "cmdSiteRec"}) {
        auto* recommend = station.find<QPushButton>(button);
        QVERIFY2(recommend != nullptr, button);
        QVERIFY2(!recommend->isEnabled(), button);
        QCOMPARE(recommend->text(), QStringLiteral("Recommend"));
    }
    for (const char* boxName : {"txtRecommendDisp", "txtRecommendPiping", "txtRecommendPump", "txtSiteRecommend"}) {
        auto* box = station.find<QLineEdit>(boxName);
        QVERIFY2(box != nullptr, boxName);
        QVERIFY2(!box->isEnabled() && box->isReadOnly() && box->text().isEmpty(), boxName);
    }
    auto* lstDispensing = station.find<QListWidget>("lstDispensing");
    auto* lstPump = station.find<QListWidget>("lstPump");
    QVERIFY(!lstDispensing->isEnabled());
    QVERIFY(!lstPump->isEnabled());

    // The focus of the nozzle and pump lists enables them; nothing fills them,
    // and a click or double click in them changes nothing.
    station.find<QComboBox>("cmbNozzle")->setFocus(Qt::TabFocusReason);
    station.app.window.tabMain = vesk::Area::Pump;
    station.window->refreshAll();
    station.find<QComboBox>("cmbLeak")->setFocus(Qt::TabFocusReason);
    QApplication::processEvents();
    QVERIFY(lstPump->isEnabled());
    const int nozzle = station.find<QComboBox>("cmbNozzle")->currentIndex();
    QTest::mouseClick(lstPump->viewport(), Qt::LeftButton);
    QTest::mouseDClick(lstPump->viewport(), Qt::LeftButton);
    QCOMPARE(lstPump->count(), 0);
    QCOMPARE(lstDispensing->count(), 0);
    QVERIFY(lstPump->toolTip().isEmpty());
    QCOMPARE(station.find<QComboBox>("cmbNozzle")->currentIndex(), nozzle);
    QVERIFY(station.app.window.recommendationFocus.leak);
    QVERIFY(station.ui.shown.empty());
}

void UpdateAndHelpTest::noneOfThe43RecommendationTextsIsShown() {
    Window station;
    showWindow(station);
    QCOMPARE(vesk::recommendationTexts.size(), std::size_t{43});
    for (QWidget* widget : station.window->findChildren<QWidget*>()) {
        QStringList texts{widget->toolTip()};
        if (auto* label = qobject_cast<QLabel*>(widget)) {
            texts.append(label->text());
        } else if (auto* edit = qobject_cast<QLineEdit*>(widget)) {
            texts.append(edit->text());
        } else if (auto* list = qobject_cast<QListWidget*>(widget)) {
            for (int i = 0; i < list->count(); ++i) {
                texts.append(list->item(i)->text());
            }
        }
        for (const vesk::RecommendationText& entry : vesk::recommendationTexts) {
            const QString text = QString::fromLatin1(entry.text.data(), static_cast<qsizetype>(entry.text.size()));
            // The two short pieces (" yields ", "% increase in Flow") could
            // stand inside ordinary words; look for the long ones whole.
            if (text.size() < 20) {
                continue;
            }
            for (const QString& shown : texts) {
                QVERIFY2(!shown.contains(text), qPrintable(widget->objectName()));
            }
        }
    }
}

QTEST_MAIN(UpdateAndHelpTest)
#include "update_and_help_test.moc"
