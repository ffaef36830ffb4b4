// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// Tests of the site files in the window: New, Open, Save, Save As, their questions, and Site Properties.
#include "gui/common/field_filters.h"
#include "gui/common/qt_user_interaction.h"
#include "gui/common/text_codec.h"
#include "gui/support/screenshot.h"
#include "gui/support/station.h"
#include "gui/workbench/main_window.h"
#include "workbench/application_state.h"
#include "workbench/field_checks.h"
#include "workbench/startup.h"

#include "engine/numeric.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QFileInfo>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QProcess>
#include <QPushButton>
#include <QTabWidget>
#include <QTableWidget>
#include <QTest>
#include <QTimer>
#include <filesystem>
#include <fstream>
#include <functional>
#include <map>
#include <memory>
#include <sstream>

using vesk::Answer;
using vesk::ApplicationState;
using vesk::gui::FieldFilter;
using vesk::gui::fromWindows1252;
using vesk::gui::MainWindow;
using vesk::gui::test::Station;
using vesk::gui::test::typeKeys;
using vesk::test::filesIn;
using vesk::test::readBytes;
using vesk::test::TempProgramFolder;

namespace fs = std::filesystem;

namespace {

constexpr const char* notSaved = "Current Values are not saved. Do you want to save now?";
constexpr const char* emailText = "E-mail Id should consist  of '@' and '.' symbols";

QString q(const std::string& bytes) {
    return fromWindows1252(bytes);
}

// What a person sees of the site: every field and list of the four areas.
std::map<QString, QString> fieldsShown(const MainWindow& window) {
    std::map<QString, QString> shown;
    for (const QLineEdit* edit : window.findChildren<QLineEdit*>()) {
        if (edit->objectName().startsWith(QLatin1String("txt"))) {
            shown[edit->objectName()] = edit->text();
        }
    }
    for (const QComboBox* combo : window.findChildren<QComboBox*>()) {
        shown[combo->objectName()] = combo->currentText();
    }
    return shown;
}

QStringList gridTexts(const QTableWidget* table) {
    QStringList texts;
    for (int row = 0; row < table->rowCount(); ++row) {
        for (int column = 0; column < table->columnCount(); ++column) {
            const QTableWidgetItem* item = table->item(row, column);
            texts.append(item == nullptr ? QString() : item->text());
        }
    }
    return texts;
}

QStringList flowTexts(const vesk::FlowTable& table) {
    QStringList texts;
    for (std::size_t n = 1; n < table.GpmList.size(); ++n) {
        texts.append(q(vesk::singleText(table.GpmPerNozzle.at(n))) + QLatin1Char(',') +
                     q(vesk::singleText(table.LpmPerNozzle.at(n))));
    }
    return texts;
}

} // namespace

namespace vesk::gui::test {

class SiteFilesTest : public QObject {
    Q_OBJECT

  private slots:
    void init() {
        m_folder = std::make_unique<TempProgramFolder>(TempProgramFolder::copyOfShipped());
        m_station = std::make_unique<Station>(*m_folder);
    }

    void cleanup() {
        QVERIFY(QApplication::activeModalWidget() == nullptr);
        QVERIFY(m_station->programEnds.empty());
        m_station.reset();
        m_other.reset();
        m_folder.reset();
        QCoreApplication::processEvents();
        for (QWidget* widget : QApplication::topLevelWidgets()) {
            QVERIFY2(!widget->isVisible(), qPrintable(QStringLiteral("window left open: ") + widget->objectName()));
        }
    }

    // ------------------------------------------------------------ the dialogs

    void eachCommandAsksItsDialog_data() {
        QTest::addColumn<QString>("command");
        QTest::addColumn<QString>("title");
        QTest::addColumn<bool>("save");
        QTest::newRow("mnuNew") << "mnuNew"
                                << "New" << false;
        QTest::newRow("mnuOpen") << "mnuOpen"
                                 << "Open" << false;
        QTest::newRow("mnuSaveAs") << "mnuSaveAs"
                                   << "Save As" << true;
    }
    void eachCommandAsksItsDialog() {
        QFETCH(QString, command);
        QFETCH(QString, title);
        QFETCH(bool, save);
        Station& s = *m_station;
        s.ui.chosenFiles = {std::nullopt};
        const QString caption = s.window->windowTitle();
        const auto shown = fieldsShown(*s.window);
        const auto files = filesIn(s.app.programFolder / "SaveSiteInfo");
        s.trigger(command.toLatin1().constData());
        QCOMPARE(s.ui.fileDialogs.size(), std::size_t{1});
        const FileDialogRequest& request = s.ui.fileDialogs.front();
        QCOMPARE(q(request.title), title);
        QCOMPARE(request.save, save);
        QCOMPARE(q(request.filter), QStringLiteral("Vesk Files(*.txt)|*.txt"));
        QCOMPARE(fs::path(request.startFolder), s.app.programFolder / "SaveSiteInfo");
        QCOMPARE(q(request.fileName), QString());
        // Cancel ends the command silently.
        QVERIFY(s.ui.shown.empty());
        QCOMPARE(s.window->windowTitle(), caption);
        QVERIFY(fieldsShown(*s.window) == shown);
        QVERIFY(filesIn(s.app.programFolder / "SaveSiteInfo") == files);
    }

    // ------------------------------------------------------------ the question

    void theQuestionComesExactlyWhenDue_data() {
        QTest::addColumn<QString>("command");
        QTest::addColumn<bool>("calculated");
        QTest::addColumn<bool>("siteFile");
        QTest::addColumn<bool>("asks");
        for (const char* command : {"mnuNew", "mnuOpen", "mnuExit", "mnuSave", "mnuSaveAs"}) {
            const bool asking = std::string_view(command) == "mnuNew" || std::string_view(command) == "mnuOpen" ||
                                std::string_view(command) == "mnuExit";
            QTest::addRow("%s after Calculate", command) << command << true << true << asking;
            QTest::addRow("%s without Calculate", command) << command << false << true << false;
            if (std::string_view(command) != "mnuSave") { // Save to no file is a file error
                QTest::addRow("%s without a site file", command) << command << true << false << false;
            }
        }
    }
    void theQuestionComesExactlyWhenDue() {
        QFETCH(QString, command);
        QFETCH(bool, calculated);
        QFETCH(bool, siteFile);
        QFETCH(bool, asks);
        Station& s = *m_station;
        if (!siteFile) {
            s.ui.chosenFiles = {s.sitePath("Nowhere.txt")};
            s.trigger("mnuOpen");
            QCOMPARE(s.ui.shown, std::vector<std::string>{"File doesn't exists"});
            s.ui.shown.clear();
        }
        if (calculated) {
            s.click("cmdCalculate");
        }
        s.ui.answers = {Answer::Cancel};
        s.ui.chosenFiles = {std::nullopt};
        s.trigger(command.toLatin1().constData());
        const std::vector<std::string> expected =
            asks ? std::vector<std::string>{notSaved} : std::vector<std::string>{};
        QCOMPARE(s.ui.shown, expected);
    }

    void yesSavesToTheOldSiteFileAndTheCommandGoesOn() {
        Station& s = *m_station;
        s.click("cmdCalculate");
        s.ui.answers = {Answer::Yes};
        s.ui.chosenFiles = {std::nullopt};
        s.trigger("mnuOpen");
        QVERIFY(fs::exists(s.sitePath("Default.txt")));
        QCOMPARE(s.ui.fileDialogs.size(), std::size_t{1});
        QVERIFY(!s.app.flags.blnSaved);
    }

    void exitCancelKeepsTheWindowAndYesSaves() {
        Station& s = *m_station;
        s.show();
        s.click("cmdCalculate");
        s.ui.answers = {Answer::Cancel};
        s.trigger("mnuExit");
        QVERIFY(s.window->isVisible());
        s.ui.answers = {Answer::Yes};
        s.trigger("mnuExit");
        QVERIFY(!s.window->isVisible());
        QVERIFY(fs::exists(s.sitePath("Default.txt")));
        QCOMPARE(s.ui.shown, (std::vector<std::string>{notSaved, notSaved}));
    }

    // ------------------------------------------------------------ Save and Save As

    void saveNeverAsksAndWritesTheSiteFile() {
        Station& s = *m_station;
        s.click("cmdCalculate");
        s.trigger("mnuSave");
        QVERIFY(s.ui.shown.empty());
        QVERIFY(s.ui.fileDialogs.empty());
        QVERIFY(fs::exists(s.sitePath("Default.txt")));
        QVERIFY(s.app.flags.blnSaved);
    }

    void saveAsOverAnExistingFileAsksAndNoEnds() {
        Station& s = *m_station;
        const auto files = filesIn(s.app.programFolder / "SaveSiteInfo");
        s.ui.chosenFiles = {s.sitePath("SmallGasStation.txt")};
        s.ui.answers = {Answer::No};
        s.trigger("mnuSaveAs");
        QCOMPARE(s.ui.shown, std::vector<std::string>{"File Already exists! Do you want to overwrite"});
        QVERIFY(filesIn(s.app.programFolder / "SaveSiteInfo") == files);
        QCOMPARE(s.window->windowTitle(), s.site("Default.txt"));
    }

    void saveAsTakesTheNewNameIntoTheCaption() {
        Station& s = *m_station;
        s.ui.chosenFiles = {s.sitePath("Mine.txt")};
        s.trigger("mnuSaveAs");
        QVERIFY(s.ui.shown.empty());
        QVERIFY(fs::exists(s.sitePath("Mine.txt")));
        QCOMPARE(s.window->windowTitle(), s.site("Mine.txt"));
    }

    // ------------------------------------------------------------ the designer's round trip

    void aSiteSavedUnderANewNameOpensTheSameInAFreshRun() {
        Station& s = *m_station;
        s.show();
        s.choose("cmbHoseSize", 2);
        s.enter("txtHoseLen", QStringLiteral("14"));
        s.enter("txtNoOfNozzle", QStringLiteral("6"));
        s.enter("txtBranchLength", QStringLiteral("35"));
        s.enter("txtTrunkLength", QStringLiteral("120"));
        s.enter("txtBranchFitting(1)", QStringLiteral("3"));
        s.enter("txtRise", QStringLiteral("4"));
        s.choose("cmbQuantity", 1);
        s.click("cmdCalculate");
        s.click("BaseLine");
        QVERIFY(s.siteProperties([](QDialog* dialog) {
            dialog->findChild<QLineEdit*>(QStringLiteral("txtSiteInfo(0)"))->setText(QStringLiteral("Harbour Fuel"));
            dialog->findChild<QLineEdit*>(QStringLiteral("txtReport(0)"))->setText(QStringLiteral("Design office"));
            dialog->findChild<QPushButton*>(QStringLiteral("cmdOk"))->click();
        }));
        s.ui.chosenFiles = {s.sitePath("Harbour.txt")};
        s.trigger("mnuSaveAs");
        QVERIFY(s.ui.shown.empty());
        const auto shown = fieldsShown(*s.window);
        const QStringList current = gridTexts(s.find<QTableWidget>("flxCurrent"));
        const QStringList baseline = gridTexts(s.find<QTableWidget>("flxBaseLine"));
        const QStringList currentFlows = flowTexts(s.app.results.Current);
        const QStringList baselineFlows = flowTexts(s.app.results.Baseline);
        const QString caption = s.window->windowTitle();
        QCOMPARE(caption, s.site("Harbour.txt"));
        s.ui.answers = {};
        s.trigger("mnuExit");
        QVERIFY(s.ui.shown.empty()); // saved, so nothing asks
        QVERIFY(!s.window->isVisible());

        m_other = std::make_unique<Station>(*m_folder);
        Station& again = *m_other;
        again.show();
        again.ui.chosenFiles = {again.sitePath("Harbour.txt")};
        again.trigger("mnuOpen");
        QVERIFY(again.ui.shown.empty());
        QCOMPARE(again.window->windowTitle(), caption);
        QVERIFY(fieldsShown(*again.window) == shown);
        QCOMPARE(gridTexts(again.find<QTableWidget>("flxCurrent")), current);
        QCOMPARE(gridTexts(again.find<QTableWidget>("flxBaseLine")), baseline);
        QCOMPARE(flowTexts(again.app.results.Current), currentFlows);
        QCOMPARE(flowTexts(again.app.results.Baseline), baselineFlows);
        QCOMPARE(again.window->focusWidget(), again.find<QWidget>("txtNoOfNozzle"));
        QCOMPARE(q(again.app.siteProperties.strCustomerName), QStringLiteral("Harbour Fuel"));
        again.window->close();
    }

    void theExampleSitesOpenAndCalculate_data() {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("nozzles");
        QTest::newRow("SmallGasStation") << "SmallGasStation.txt"
                                         << "6";
        QTest::newRow("DieselTruckStop") << "DieselTruckStop.txt"
                                         << "4";
        QTest::newRow("MetricStation") << "MetricStation.txt" << QString();
        QTest::newRow("BasicModeSite") << "BasicModeSite.txt" << QString();
    }
    void theExampleSitesOpenAndCalculate() {
        QFETCH(QString, file);
        QFETCH(QString, nozzles);
        Station& s = *m_station;
        s.ui.chosenFiles = {s.sitePath(file.toLatin1().constData())};
        s.trigger("mnuOpen");
        QVERIFY(s.ui.shown.empty());
        QCOMPARE(s.window->windowTitle(), s.site(file.toLatin1().constData()));
        if (!nozzles.isEmpty()) {
            QCOMPARE(s.find<QLineEdit>("txtNoOfNozzle")->text(), nozzles);
        }
        const vesk::FlowTable& current = s.app.results.Current;
        QVERIFY(current.GpmList.size() > 1);
        for (std::size_t n = 1; n < current.GpmList.size(); ++n) {
            QVERIFY2(current.GpmPerNozzle.at(n) > 0, qPrintable(QString::number(n)));
        }
        QCOMPARE(flowTexts(s.app.results.Baseline), flowTexts(current));
        QCOMPARE(s.find<QTableWidget>("flxCurrent")->item(1, 1)->text(), q(s.app.panel.cmbDispenser.Text()));
        QCOMPARE(s.find<QComboBox>("cmbDispenser")->currentText(), q(s.app.panel.cmbDispenser.Text()));
    }

    // ------------------------------------------------------------ failed opens

    void aMissingFileShowsMessage11AndKeepsTheCaption() {
        Station& s = *m_station;
        const auto shown = fieldsShown(*s.window);
        const auto files = filesIn(s.app.programFolder / "SaveSiteInfo");
        s.ui.chosenFiles = {s.sitePath("Nowhere.txt")};
        s.trigger("mnuOpen");
        QCOMPARE(s.ui.shown, std::vector<std::string>{"File doesn't exists"});
        QCOMPARE(s.window->windowTitle(), s.site("Default.txt"));
        QCOMPARE(s.app.strSiteFile, std::string());
        QVERIFY(fieldsShown(*s.window) == shown);
        QVERIFY(filesIn(s.app.programFolder / "SaveSiteInfo") == files);
    }

    void aBadFileShowsMessage10AndKeepsTheCaption_data() {
        QTest::addColumn<int>("lines");
        QTest::addColumn<int>("badLine");
        QTest::addColumn<bool>("controlsKept");
        QTest::newRow("51 lines") << 51 << -1 << true;
        QTest::newRow("an unknown name") << 52 << 5 << false;
    }
    void aBadFileShowsMessage10AndKeepsTheCaption() {
        QFETCH(int, lines);
        QFETCH(int, badLine);
        QFETCH(bool, controlsKept);
        Station& s = *m_station;
        std::istringstream example(readBytes(s.app.programFolder / "SaveSiteInfo" / "SmallGasStation.txt"));
        std::string bytes;
        std::string line;
        for (int index = 0; index < lines && std::getline(example, line); ++index) {
            bytes += (index == badLine ? std::string("Nozzle of no maker\r") : line) + "\n";
        }
        std::ofstream(s.sitePath("Bad.txt"), std::ios::binary) << bytes;
        const auto shown = fieldsShown(*s.window);
        const auto files = filesIn(s.app.programFolder / "SaveSiteInfo");
        const bool saved = s.app.flags.blnSaved;
        s.ui.chosenFiles = {s.sitePath("Bad.txt")};
        s.trigger("mnuOpen");
        QCOMPARE(s.ui.shown, std::vector<std::string>{"Error in File Load"});
        QCOMPARE(s.ui.icons, std::vector<MessageIcon>{MessageIcon::Exclamation});
        QCOMPARE(s.window->windowTitle(), s.site("Default.txt"));
        QCOMPARE(q(s.app.strSiteFile), s.site("Bad.txt"));
        QCOMPARE(s.app.flags.blnSaved, saved);
        QVERIFY(filesIn(s.app.programFolder / "SaveSiteInfo") == files);
        if (controlsKept) {
            QVERIFY(fieldsShown(*s.window) == shown);
        } else { // the lines before the bad one are shown
            QCOMPARE(s.find<QLineEdit>("txtHoseLen")->text(), QStringLiteral("12"));
        }
    }

    void openCutsTheNozzlesToTheLimitWithoutAMessage() {
        Station& s = *m_station;
        std::string bytes = readBytes(s.app.programFolder / "SaveSiteInfo" / "SmallGasStation.txt");
        const std::string nozzleLine = "\r\n6\r\n$PIA";
        bytes.replace(bytes.find(nozzleLine), nozzleLine.size(), "\r\n45\r\n$PIA");
        std::ofstream(s.sitePath("Many.txt"), std::ios::binary) << bytes;
        s.ui.chosenFiles = {s.sitePath("Many.txt")};
        s.trigger("mnuOpen");
        QVERIFY(s.ui.shown.empty());
        QCOMPARE(s.find<QLineEdit>("txtNoOfNozzle")->text(), QStringLiteral("40"));
    }

    // ------------------------------------------------------------ New

    void newWithAnExistingNameChangesNothing() {
        Station& s = *m_station;
        s.enter("txtRise", QStringLiteral("5"));
        const auto shown = fieldsShown(*s.window);
        s.ui.chosenFiles = {s.sitePath("SmallGasStation.txt")};
        s.trigger("mnuNew");
        QCOMPARE(s.ui.shown, std::vector<std::string>{"File already exists. Please enter a new filename"});
        QVERIFY(fieldsShown(*s.window) == shown);
        QCOMPARE(s.window->windowTitle(), s.site("Default.txt"));
    }

    void newStartsAgainUnderTheNewName() {
        Station& s = *m_station;
        s.find<QTabWidget>("tabMain")->setCurrentIndex(3);
        s.enter("txtHoseLen", QStringLiteral("20"));
        s.enter("txtRise", QStringLiteral("5"));
        s.ui.chosenFiles = {s.sitePath("Fresh.txt")};
        s.trigger("mnuNew");
        QVERIFY(s.ui.shown.empty());
        QCOMPARE(s.window->windowTitle(), s.site("Fresh.txt"));
        QCOMPARE(s.find<QTabWidget>("tabMain")->currentIndex(), 0);
        QCOMPARE(s.find<QLineEdit>("txtHoseLen")->text(), QStringLiteral("0"));
        QCOMPARE(s.find<QLineEdit>("txtRise")->text(), QStringLiteral("5"));
        QVERIFY(!fs::exists(s.sitePath("Fresh.txt")));
        s.trigger("mnuSave");
        QVERIFY(fs::exists(s.sitePath("Fresh.txt")));
    }

    // ------------------------------------------------------------ Site Properties

    void sitePropertiesHasItsFramesBoxesAndButtons() {
        Station& s = *m_station;
        QVERIFY(s.siteProperties([](QDialog* dialog) {
            QCOMPARE(dialog->objectName(), QStringLiteral("frmSiteProperties"));
            QCOMPARE(dialog->windowTitle(), QStringLiteral("Site Properties"));
            auto* fraSiteInfo = dialog->findChild<QGroupBox*>(QStringLiteral("fraSiteInfo"));
            auto* fraReport = dialog->findChild<QGroupBox*>(QStringLiteral("fraReport"));
            QVERIFY(fraSiteInfo != nullptr && fraReport != nullptr);
            QCOMPARE(fraSiteInfo->title(), QStringLiteral("Site Information"));
            QCOMPARE(fraReport->title(), QStringLiteral("Report"));
            const QStringList siteInfo = {"Customer Name", "Customer Contact", "Site Description", "Address 1",
                                          "Address 2"};
            const QStringList report = {"Generated By", "Date", "Contact", "E-mail", "Phone"};
            for (int index = 0; index < 5; ++index) {
                for (const auto& [frame, name, captions] :
                     {std::tuple{fraSiteInfo, QStringLiteral("txtSiteInfo(%1)"), siteInfo},
                      std::tuple{fraReport, QStringLiteral("txtReport(%1)"), report}}) {
                    auto* box = frame->findChild<QLineEdit*>(name.arg(index));
                    QVERIFY2(box != nullptr, qPrintable(name.arg(index)));
                    QCOMPARE(box->maxLength(), 35);
                    QCOMPARE(box->text(), QString());
                    bool captioned = false;
                    for (const QLabel* label : frame->findChildren<QLabel*>()) {
                        captioned = captioned || (label->text() == captions.at(index) && label->buddy() == box);
                    }
                    QVERIFY2(captioned, qPrintable(captions.at(index)));
                }
            }
            // The boxes of each frame stand from top to bottom by index.
            for (const QString name : {QStringLiteral("txtSiteInfo(%1)"), QStringLiteral("txtReport(%1)")}) {
                for (int index = 1; index < 5; ++index) {
                    QVERIFY(dialog->findChild<QLineEdit*>(name.arg(index))->y() >
                            dialog->findChild<QLineEdit*>(name.arg(index - 1))->y());
                }
            }
            auto* chkPrint = dialog->findChild<QCheckBox*>(QStringLiteral("chkPrint"));
            QCOMPARE(chkPrint->text(), QStringLiteral("Print fields on report"));
            QVERIFY(!chkPrint->isChecked());
            QCOMPARE(dialog->findChild<QPushButton*>(QStringLiteral("cmdOk"))->text(), QStringLiteral("Ok"));
            QCOMPARE(dialog->findChild<QPushButton*>(QStringLiteral("cmdCancel"))->text(), QStringLiteral("Cancel"));
            auto* box = dialog->findChild<QLineEdit*>(QStringLiteral("txtSiteInfo(0)"));
            box->setText(QStringLiteral("Harbour Fuel Station on the Quay Road"));
            QCOMPARE(box->text(), QStringLiteral("Harbour Fuel Station on the Quay Ro"));
            box->setText(QStringLiteral("Harbour Fuel"));
            dialog->findChild<QLineEdit*>(QStringLiteral("txtReport(3)"))
                ->setText(QStringLiteral("ops@harbour.example"));
            dialog->findChild<QLineEdit*>(QStringLiteral("txtReport(4)"))->setText(QStringLiteral("(555) 010-7788"));
            chkPrint->setChecked(true);
        }));
    }

    void theKeyFiltersThrowAwayWhatTheBoxesRefuse_data() {
        QTest::addColumn<QString>("box");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("kept");
        QTest::newRow("site info takes plain keys") << "txtSiteInfo(2)"
                                                    << "Quay 7, lot #3"
                                                    << "Quay 7, lot #3";
        QTest::newRow("site info throws away wide keys")
            << "txtSiteInfo(0)" << QStringLiteral("Caf\u00e9 \u00a3") << "Caf ";
        QTest::newRow("phone") << "txtReport(4)"
                               << "(555) 010-22x9 ext"
                               << "(555) 010-22x9 x";
        QTest::newRow("e-mail takes one at") << "txtReport(3)"
                                             << "ops@@harbour@example.com"
                                             << "ops@harbourexample.com";
        QTest::newRow("date is free text") << "txtReport(1)"
                                           << "12 March 2024"
                                           << "12 March 2024";
        QTest::newRow("report throws away wide keys") << "txtReport(0)" << QStringLiteral("R\u00e9sum\u00e9") << "Rsum";
    }
    void theKeyFiltersThrowAwayWhatTheBoxesRefuse() {
        QFETCH(QString, box);
        QFETCH(QString, typed);
        QFETCH(QString, kept);
        Station& s = *m_station;
        s.show();
        QVERIFY(s.siteProperties([&](QDialog* dialog) {
            auto* edit = dialog->findChild<QLineEdit*>(box);
            edit->setFocus(Qt::OtherFocusReason);
            typeKeys(edit, typed);
            QCOMPARE(edit->text(), kept);
            QTest::keyClick(edit, Qt::Key_Backspace);
            QCOMPARE(edit->text(), kept.chopped(1));
            // Pasting a second "@" is not stopped.
            if (box == QLatin1String("txtReport(3)")) {
                edit->insert(QStringLiteral("@"));
                QCOMPARE(edit->text().count(QLatin1Char('@')), 2);
            }
            dialog->findChild<QPushButton*>(QStringLiteral("cmdCancel"))->click();
        }));
        QVERIFY(s.ui.shown.empty());
    }

    void leavingTheEmailBoxChecksIt_data() {
        QTest::addColumn<QString>("email");
        QTest::addColumn<bool>("message");
        QTest::newRow("empty") << QString() << false;
        QTest::newRow("at and dot") << "ops@harbour.example" << false;
        QTest::newRow("at without dot") << "ops@harbour" << true;
        QTest::newRow("dot without at") << "ops.harbour" << true;
        QTest::newRow("dot before at only") << "a.b@c" << false;
    }
    void leavingTheEmailBoxChecksIt() {
        QFETCH(QString, email);
        QFETCH(bool, message);
        Station& s = *m_station;
        s.show();
        QVERIFY(s.siteProperties([&](QDialog* dialog) {
            auto* edit = dialog->findChild<QLineEdit*>(QStringLiteral("txtReport(3)"));
            edit->setFocus(Qt::OtherFocusReason);
            edit->setText(email);
            QTest::keyClick(edit, Qt::Key_Tab);
            QCOMPARE(dialog->focusWidget() == edit, message);
            dialog->findChild<QPushButton*>(QStringLiteral("cmdOk"))->click();
        }));
        const std::vector<std::string> expected =
            message ? std::vector<std::string>{emailText} : std::vector<std::string>{};
        QCOMPARE(s.ui.shown, expected);
        // The check does not block the store: a bad address is stored as it stands.
        QCOMPARE(q(s.app.siteProperties.strEmail), email);
    }

    void aMousePressOnCancelLeavesTheEmailBoxSilently() {
        Station& s = *m_station;
        s.show();
        s.app.siteProperties.strEmail = "old@harbour.example";
        QVERIFY(s.siteProperties([](QDialog* dialog) {
            auto* edit = dialog->findChild<QLineEdit*>(QStringLiteral("txtReport(3)"));
            edit->setFocus(Qt::OtherFocusReason);
            edit->setText(QStringLiteral("not an address"));
            QTest::mouseClick(dialog->findChild<QPushButton*>(QStringLiteral("cmdCancel")), Qt::LeftButton);
            QVERIFY(!dialog->isVisible());
        }));
        QVERIFY(s.ui.shown.empty());
        QCOMPARE(s.app.siteProperties.strEmail, std::string("old@harbour.example"));
        QVERIFY(!s.app.frmSiteProperties.loaded);
    }

    void cancelReachedByTheKeyboardChecksTheEmailBox() {
        Station& s = *m_station;
        s.show();
        QVERIFY(s.siteProperties([](QDialog* dialog) {
            auto* edit = dialog->findChild<QLineEdit*>(QStringLiteral("txtReport(3)"));
            auto* cancel = dialog->findChild<QPushButton*>(QStringLiteral("cmdCancel"));
            edit->setFocus(Qt::OtherFocusReason);
            edit->setText(QStringLiteral("not an address"));
            cancel->setFocus(Qt::TabFocusReason);
            QCOMPARE(dialog->focusWidget(), edit);
            QTest::keyClick(cancel, Qt::Key_Space);
            QVERIFY(!dialog->isVisible());
        }));
        QCOMPARE(s.ui.shown, std::vector<std::string>{emailText});
        QCOMPARE(s.app.siteProperties.strEmail, std::string());
    }

    void okStoresTheTextsAndThePrintSwitch() {
        Station& s = *m_station;
        QVERIFY(s.siteProperties([](QDialog* dialog) {
            for (int index = 0; index < 5; ++index) {
                dialog->findChild<QLineEdit*>(QStringLiteral("txtSiteInfo(%1)").arg(index))
                    ->setText(QStringLiteral("info %1").arg(index));
                dialog->findChild<QLineEdit*>(QStringLiteral("txtReport(%1)").arg(index))
                    ->setText(QStringLiteral("report %1").arg(index));
            }
            dialog->findChild<QLineEdit*>(QStringLiteral("txtReport(3)"))->setText(QStringLiteral("a@b.c"));
            dialog->findChild<QCheckBox*>(QStringLiteral("chkPrint"))->setChecked(true);
            dialog->findChild<QPushButton*>(QStringLiteral("cmdOk"))->click();
        }));
        const vesk::clsSiteProperties& p = s.app.siteProperties;
        QCOMPARE(p.strCustomerName, std::string("info 0"));
        QCOMPARE(p.strCustomerContact, std::string("info 1"));
        QCOMPARE(p.strSiteDescription, std::string("info 2"));
        QCOMPARE(p.strAddress1, std::string("info 3"));
        QCOMPARE(p.strAddress2, std::string("info 4"));
        QCOMPARE(p.strGeneratedBy, std::string("report 0"));
        QCOMPARE(p.strDate, std::string("report 1"));
        QCOMPARE(p.strContact, std::string("report 2"));
        QCOMPARE(p.strEmail, std::string("a@b.c"));
        QCOMPARE(p.strPhone, std::string("report 4"));
        QVERIFY(p.blnPrintFields);
        // The next show loads the dialog from the class again.
        QVERIFY(s.siteProperties([](QDialog* dialog) {
            QCOMPARE(dialog->findChild<QLineEdit*>(QStringLiteral("txtReport(2)"))->text(), QStringLiteral("report 2"));
            QVERIFY(dialog->findChild<QCheckBox*>(QStringLiteral("chkPrint"))->isChecked());
        }));
    }

    void aSiteReadLeavesTheDialogLoadedWithTheFilesTexts_data() {
        QTest::addColumn<bool>("ok");
        QTest::newRow("Ok stores them") << true;
        QTest::newRow("Cancel drops them") << false;
    }
    void aSiteReadLeavesTheDialogLoadedWithTheFilesTexts() {
        QFETCH(bool, ok);
        Station& s = *m_station;
        s.app.siteProperties.strGeneratedBy = "earlier author";
        s.ui.chosenFiles = {s.sitePath("SmallGasStation.txt")};
        s.trigger("mnuOpen");
        QVERIFY(s.app.frmSiteProperties.loaded);
        QCOMPARE(s.app.siteProperties.strCustomerName, std::string("Maple Street Fuel"));
        QCOMPARE(s.app.siteProperties.strGeneratedBy, std::string("earlier author"));
        QVERIFY(s.siteProperties([ok](QDialog* dialog) {
            const auto text = [dialog](const char* name) {
                return dialog->findChild<QLineEdit*>(QString::fromLatin1(name))->text();
            };
            QCOMPARE(text("txtSiteInfo(0)"), QStringLiteral("Maple Street Fuel"));
            QCOMPARE(text("txtSiteInfo(2)"), QStringLiteral("Six-nozzle gas forecourt"));
            QCOMPARE(text("txtReport(0)"), QStringLiteral("Site design office"));
            QCOMPARE(text("txtReport(3)"), QStringLiteral("design@example.com"));
            QCOMPARE(text("txtReport(4)"), QStringLiteral("(555) 010-2030"));
            dialog->findChild<QPushButton*>(QString::fromLatin1(ok ? "cmdOk" : "cmdCancel"))->click();
        }));
        QCOMPARE(s.app.siteProperties.strGeneratedBy, std::string(ok ? "Site design office" : "earlier author"));
        QCOMPARE(s.app.siteProperties.strCustomerName, std::string("Maple Street Fuel"));
        QVERIFY(!s.app.frmSiteProperties.loaded);
    }

    void thePrintSwitchStartsOffAfterNew() {
        Station& s = *m_station;
        s.app.siteProperties.blnPrintFields = true;
        s.ui.chosenFiles = {s.sitePath("Fresh.txt")};
        s.trigger("mnuNew");
        QVERIFY(!s.app.siteProperties.blnPrintFields);
    }

    // ------------------------------------------------------------ end to end

    void theCommandLineCalculatorComputesTheSameFlowsFromASavedSite() {
        Station& s = *m_station;
        s.choose("cmbHoseSize", 1);
        s.enter("txtHoseLen", QStringLiteral("16"));
        s.enter("txtNoOfNozzle", QStringLiteral("10"));
        s.enter("txtTrunkLength", QStringLiteral("150"));
        s.enter("txtBranchLength", QStringLiteral("40"));
        s.enter("txtRise", QStringLiteral("6"));
        s.click("cmdCalculate");
        s.ui.chosenFiles = {s.sitePath("EndToEnd.txt")};
        s.trigger("mnuSaveAs");
        QVERIFY(s.ui.shown.empty());

        QProcess calc;
        calc.start(QStringLiteral(VESK_CALC),
                   {QStringLiteral("--dir"), QString::fromStdString(m_folder->path().string()), QStringLiteral("--csv"),
                    s.site("EndToEnd.txt")});
        QVERIFY(calc.waitForFinished(60000));
        QCOMPARE(calc.exitCode(), 0);
        QStringList lines =
            QString::fromLatin1(calc.readAllStandardOutput()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
        QCOMPARE(lines.takeFirst(), QStringLiteral("nozzles,gpm_per_nozzle,lpm_per_nozzle"));
        QStringList flows;
        for (const QString& line : lines) {
            flows.append(line.section(QLatin1Char(','), 1));
        }
        QCOMPARE(flows, flowTexts(s.app.results.Current));
        QCOMPARE(flows.size(), 10); // one line per nozzle swept
    }

  private:
    std::unique_ptr<TempProgramFolder> m_folder;
    std::unique_ptr<Station> m_station;
    std::unique_ptr<Station> m_other;
};

} // namespace vesk::gui::test

QTEST_MAIN(vesk::gui::test::SiteFilesTest)
#include "site_files_test.moc"
