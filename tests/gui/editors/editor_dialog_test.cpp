// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The component editors driven with keys and mouse over the main window, and a designer's custom components end to end.
#include "editor_driving.h"

#include "catalogue/component_file.h"
#include "engine/numeric.h"

#include <QAccessible>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QProcess>
#include <QRadioButton>

namespace vesk::gui::test {

namespace {

QString q(const std::string& text) {
    return QString::fromStdString(text);
}

QStringList flowTexts(const FlowTable& table) {
    QStringList texts;
    for (std::size_t n = 1; n < table.GpmList.size(); ++n) {
        texts.append(q(singleText(table.GpmPerNozzle.at(n))) + QLatin1Char(',') +
                     q(singleText(table.LpmPerNozzle.at(n))));
    }
    return texts;
}

bool offers(QComboBox* list, const QString& text) {
    return list != nullptr && list->findText(text) >= 0;
}

std::string componentFile(const Station& s, ComponentKind kind) {
    return vesk::test::readBytes(s.folder.path() / "Components" / std::string(traitsOf(kind).fileAsRead));
}

// The shipped program folder whose hose file lacks the 1 1/4 size, so a
// designer can add their own.
void removeHoseSize(const TempProgramFolder& folder) {
    const std::string text = folder.read("Components/HOSES.DAT");
    std::string kept;
    for (std::size_t start = 0; start < text.size();) {
        const std::size_t end = text.find("#RATELOSS_END#\r\n", start) + 16;
        if (!text.substr(start, end - start).starts_with("$1 1/4 #")) {
            kept += text.substr(start, end - start);
        }
        start = end;
    }
    folder.write("Components/HOSES.DAT", kept);
}

const Points fivePoints{{"2", "0.5"}, {"4", "1.8"}, {"6", "3.9"}, {"8", "7.1"}, {"10", "11.2"}};

} // namespace

class EditorDialogTest : public QObject {
    Q_OBJECT

  private slots:
    void init() { m_station = std::make_unique<Station>(); }
    void cleanup() { m_station.reset(); }

    // ------------------------------------------------------------ the dialog

    void everyControlCarriesTheSystemsNameAndCaption() {
        auto dialog = openEditor(*m_station, ComponentKind::Breakaway);
        QCOMPARE(dialog->objectName(), QStringLiteral("frmBRK"));
        QCOMPARE(dialog->windowTitle(), QStringLiteral("Breakaway"));
        for (const char* name :
             {"lstBRKNames",  "txtBRKName", "chkBRKCustom", "fraBRKFuel",  "optBRKGas",   "optBRKDiesel",
              "fraBRKHead",   "optBRKFeet", "optBRKPSI",    "flxBRK",      "lblBRKGPM",   "lblBRKTDH",
              "cmdBRKAdd",    "cmdBRKEdit", "cmdBRKDelete", "cmdBRKSave",  "cmdBRKClear", "cmdBRKOk",
              "cmdBRKCancel", "fraBRKHelp", "lblBRKHelp",   "lblBreakName"}) {
            QVERIFY2(dialog->findChild<QWidget*>(QString::fromLatin1(name)) != nullptr, name);
        }
        QCOMPARE(labelText(dialog.get(), "lblBRKTDH"), QStringLiteral("TDH - Feet"));
        QCOMPARE(labelText(dialog.get(), "lblBRKGPM"), QStringLiteral("GPM"));
        QCOMPARE(child<QRadioButton>(dialog.get(), "optBRKFeet")->text(), QStringLiteral("Feet"));
        QCOMPARE(child<QGroupBox>(dialog.get(), "fraBRKFuel")->title(), QStringLiteral("Fuel"));
        QVERIFY(!child<QCheckBox>(dialog.get(), "chkBRKCustom")->isEnabled());
        QCOMPARE(gridOf(dialog.get())->rowCount(), 13);
        QVERIFY(!child<QLineEdit>(dialog.get(), "txtBRKName")->isEnabled());
        QVERIFY(!child<QPushButton>(dialog.get(), "cmdBRKSave")->isEnabled());
        QVERIFY(dialog->isModal());
        QCOMPARE(dialog->parentWidget(), m_station->window.get());
    }

    void thePumpAndHoseEditorsHaveTheirOwnControls() {
        auto pump = openEditor(*m_station, ComponentKind::Pump);
        QCOMPARE(pump->windowTitle(), QStringLiteral("Pumps"));
        QCOMPARE(child<QRadioButton>(pump.get(), "optPump50")->text(), QStringLiteral("50Hz Pump"));
        QVERIFY(child<QRadioButton>(pump.get(), "optPump60")->isChecked());
        QVERIFY(pump->findChild<QWidget*>(QStringLiteral("optPumpPSI")) == nullptr);
        QCOMPARE(labelText(pump.get(), "lblPumpName"), QStringLiteral("Pump Name"));
        pump.reset();
        auto hose = openEditor(*m_station, ComponentKind::Hose);
        QCOMPARE(hose->windowTitle(), QStringLiteral("Hose Data"));
        for (const char* name : {"txtHoseSize", "txtHoseLength", "optHoseStandard", "optHoseCustomized", "flxHose"}) {
            QVERIFY2(hose->findChild<QWidget*>(QString::fromLatin1(name)) != nullptr, name);
        }
        QCOMPARE(labelText(hose.get(), "lblHoseLength"), QStringLiteral("Hose Length(ft)"));
    }

    void aBadNameIsRefusedWhenTheBoxIsLeft() {
        auto dialog = openEditor(*m_station, ComponentKind::Breakaway);
        press(dialog.get(), "cmdBRKAdd");
        auto* name = child<QLineEdit>(dialog.get(), "txtBRKName");
        QCOMPARE(QApplication::focusWidget(), name);
        QTest::keyClicks(name, QStringLiteral(" bad"));
        QTest::keyClick(name, Qt::Key_Tab);
        QCOMPARE(m_station->ui.shown, std::vector<std::string>{"First Character of Component Name cannot have space"});
        QCOMPARE(QApplication::focusWidget(), name);
    }

    void okWithABadNameShowsTheMessageAndStaysOpen() {
        auto dialog = openEditor(*m_station, ComponentKind::Breakaway);
        press(dialog.get(), "cmdBRKAdd");
        QTest::keyClicks(child<QLineEdit>(dialog.get(), "txtBRKName"), QStringLiteral("bad "));
        press(dialog.get(), "cmdBRKOk");
        QCOMPARE(m_station->ui.shown, std::vector<std::string>{"Last Character of Component Name cannot have space"});
        QVERIFY(dialog->isVisible());
    }

    void aPressOnClearNeverRaisesANameOrCellMessage() {
        auto dialog = openEditor(*m_station, ComponentKind::Breakaway);
        press(dialog.get(), "cmdBRKAdd");
        auto* name = child<QLineEdit>(dialog.get(), "txtBRKName");
        QTest::keyClicks(name, QStringLiteral(" bad "));
        QCOMPARE(QApplication::focusWidget(), name);
        press(dialog.get(), "cmdBRKClear");
        QVERIFY(m_station->ui.shown.empty());
        QVERIFY(name->text().isEmpty());
        QVERIFY(!dialog->editor().skipNameCheck());
        // Nor a cell message, with a refused number in the grid.
        press(dialog.get(), "cmdBRKAdd");
        QTest::keyClicks(name, QStringLiteral("Named"));
        QTableWidget* grid = gridOf(dialog.get());
        typeCell(grid, 0, 1, QStringLiteral("99999"));
        QCOMPARE(QApplication::focusWidget(), grid);
        press(dialog.get(), "cmdBRKClear");
        QVERIFY(m_station->ui.shown.empty());
        QCOMPARE(grid->rowCount(), 13);
        // The next check runs as always.
        press(dialog.get(), "cmdBRKAdd");
        QTest::keyClicks(name, QStringLiteral(" x"));
        QTest::keyClick(name, Qt::Key_Tab);
        QCOMPARE(m_station->ui.shown.size(), std::size_t{1});
    }

    void aPressOnCancelNeverRaisesANameOrCellMessage() {
        auto dialog = openEditor(*m_station, ComponentKind::Nozzle);
        press(dialog.get(), "cmdNozzleAdd");
        QTest::keyClicks(child<QLineEdit>(dialog.get(), "txtNozzleName"), QStringLiteral("Fine"));
        QTableWidget* grid = gridOf(dialog.get());
        typeCell(grid, 0, 0, QStringLiteral("1000"));
        QCOMPARE(QApplication::focusWidget(), grid);
        m_station->ui.answers = {Answer::Cancel};
        press(dialog.get(), "cmdNozzleCancel");
        QCOMPARE(m_station->ui.shown, std::vector<std::string>{"Do you want to Save changes?"});
        QVERIFY(dialog->isVisible());

        auto other = openEditor(*m_station, ComponentKind::Breakaway);
        press(other.get(), "cmdBRKAdd");
        QTest::keyClicks(child<QLineEdit>(other.get(), "txtBRKName"), QStringLiteral(" bad"));
        m_station->ui.shown.clear();
        m_station->ui.answers = {Answer::No};
        press(other.get(), "cmdBRKCancel");
        QCOMPARE(m_station->ui.shown, std::vector<std::string>{"Do you want to Save changes?"});
        QVERIFY(!other->isVisible());
    }

    void theGridTakesKeysWithNoEditBox() {
        auto dialog = openEditor(*m_station, ComponentKind::Breakaway);
        press(dialog.get(), "cmdBRKAdd");
        QTest::keyClicks(child<QLineEdit>(dialog.get(), "txtBRKName"), QStringLiteral("Typed"));
        QTableWidget* grid = gridOf(dialog.get());
        QCOMPARE(grid->rowCount(), 1);
        typeCell(grid, 0, 0, QStringLiteral("12.5.7x"));
        QCOMPARE(grid->item(0, 0)->text(), QStringLiteral("12.57"));
        QVERIFY(grid->findChild<QLineEdit*>() == nullptr);
        QTest::keyClicks(grid, QStringLiteral("9"));
        QCOMPARE(grid->item(0, 0)->text(), QStringLiteral("12.57")); // five characters at most
        QTest::keyClick(grid, Qt::Key_Backspace);
        QCOMPARE(grid->item(0, 0)->text(), QStringLiteral("12.5"));
        QTest::keyClick(grid, Qt::Key_Return);
        QCOMPARE(grid->rowCount(), 2);
        QCOMPARE(cellTexts(grid), (QStringList{"12.5,0", "0,0"}));
        // The current cell is the grid's own, as assistive technology reads it.
        QCOMPARE(grid->currentRow(), 0);
        QCOMPARE(grid->currentColumn(), 0);
        QTest::keyClick(grid, Qt::Key_Right);
        QCOMPARE(grid->currentColumn(), 1);
        // A screen reader reads the cells, their columns and the current cell.
        QAccessibleInterface* table = QAccessible::queryAccessibleInterface(grid);
        QVERIFY(table != nullptr && table->tableInterface() != nullptr);
        QCOMPARE(table->tableInterface()->rowCount(), 2);
        QCOMPARE(table->tableInterface()->cellAt(0, 0)->text(QAccessible::Name), QStringLiteral("12.5"));
        QCOMPARE(table->tableInterface()->columnDescription(1), QStringLiteral("TDH - Feet"));
        const QList<QAccessibleInterface*> selected = table->tableInterface()->selectedCells();
        QCOMPARE(selected.size(), 1);
        QCOMPARE(selected[0]->tableCellInterface()->columnIndex(), 1);
    }

    void aRefusedCellTakesTheCursorBack() {
        auto dialog = openEditor(*m_station, ComponentKind::Breakaway);
        press(dialog.get(), "cmdBRKAdd");
        QTest::keyClicks(child<QLineEdit>(dialog.get(), "txtBRKName"), QStringLiteral("Typed"));
        QTableWidget* grid = gridOf(dialog.get());
        typeCell(grid, 0, 0, QStringLiteral("1000"));
        clickCell(grid, 0, 1);
        QCOMPARE(m_station->ui.shown, std::vector<std::string>{"Maximum value is 999.9"});
        QCOMPARE(grid->currentColumn(), 0);
        QCOMPARE(grid->item(0, 0)->text(), QStringLiteral("1000"));
    }

    void thePsiViewRewritesTheTableAndSaveStoresItAsHead() {
        auto dialog = openEditor(*m_station, ComponentKind::Breakaway);
        press(dialog.get(), "cmdBRKAdd");
        QTest::keyClicks(child<QLineEdit>(dialog.get(), "txtBRKName"), QStringLiteral("Psi Table"));
        QTableWidget* grid = gridOf(dialog.get());
        typeTable(grid, {{"10", "100"}});
        clickOption(dialog.get(), "optBRKPSI");
        QCOMPARE(grid->item(0, 1)->text(), QStringLiteral("31.2"));
        QCOMPARE(labelText(dialog.get(), "lblBRKTDH"), QStringLiteral("PSI"));
        clickOption(dialog.get(), "optBRKDiesel");
        QCOMPARE(grid->item(0, 1)->text(), QStringLiteral("37.7"));
        press(dialog.get(), "cmdBRKSave");
        QVERIFY(m_station->ui.shown.empty());
        QCOMPARE(m_station->app.catalogues.of(ComponentKind::Breakaway).Records.back().Name, std::string("Psi Table"));
    }

    void f1InTheHosesEditorAsksForItsTopic() {
        const bool opened = m_station->driveDialog("mnuHoses", [this](QDialog* dialog) {
            QCOMPARE(dialog->objectName(), QStringLiteral("frmHose"));
            QTest::keyClick(dialog, Qt::Key_F1);
            closeWithoutSaving(*m_station, dialog);
        });
        QVERIFY(opened);
        QCOMPARE(m_station->ui.helpTopics.size(), std::size_t{1});
        QCOMPARE(q(m_station->ui.helpTopics[0].second), QStringLiteral("Option Menu\\Hoses.htm"));
    }

    void everyOptionsEntryOpensItsEditor() {
        for (const EditorForm& form : editorForms) {
            QString seen;
            QVERIFY(m_station->driveDialog(std::string(form.menuItem).c_str(), [this, &seen](QDialog* dialog) {
                seen = dialog->objectName();
                closeWithoutSaving(*m_station, dialog);
                QVERIFY(!dialog->isVisible());
            }));
            QCOMPARE(seen, QString::fromLatin1(form.form.data(), static_cast<qsizetype>(form.form.size())));
        }
    }

    // ------------------------------------------------------------ end to end

    void aCustomNozzleReachesTheFileTheListTheFlowsAndTheCalculator() {
        Station& s = *m_station;
        const QStringList before = flowTexts(s.app.results.Current);
        QVERIFY(s.driveDialog("mnuNozzles", [](QDialog* dialog) {
            press(dialog, "cmdNozzleAdd");
            QTest::keyClicks(child<QLineEdit>(dialog, "txtNozzleName"), QStringLiteral("Tight Nozzle"));
            typeTable(gridOf(dialog), fivePoints);
            press(dialog, "cmdNozzleOk");
        }));
        QVERIFY(s.ui.shown.empty());
        const std::string file = componentFile(s, ComponentKind::Nozzle);
        QVERIFY(
            file.ends_with("$Tight Nozzle #A\r\n#TRUE#\r\n#Custom#\r\n#RATELOSS_BEGIN#\r\n2,0.5\r\n4,1.8\r\n6,3.9\r\n"
                           "8,7.1\r\n10,11.2\r\n#RATELOSS_END#\r\n"));
        auto* nozzles = s.find<QComboBox>("cmbNozzle");
        QVERIFY(offers(nozzles, QStringLiteral("Tight Nozzle")));
        s.choose("cmbNozzle", nozzles->findText(QStringLiteral("Tight Nozzle")));
        s.click("cmdCalculate");
        const QStringList after = flowTexts(s.app.results.Current);
        QVERIFY(after != before);

        s.ui.chosenFiles = {s.sitePath("CustomNozzle.txt")};
        s.trigger("mnuSaveAs");
        QProcess calc;
        calc.start(QStringLiteral(VESK_CALC), {QStringLiteral("--dir"), q(s.folder.path().string()),
                                               QStringLiteral("--csv"), s.site("CustomNozzle.txt")});
        QVERIFY(calc.waitForFinished(60000));
        QCOMPARE(calc.exitCode(), 0);
        QStringList lines =
            QString::fromLatin1(calc.readAllStandardOutput()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
        lines.removeFirst();
        QStringList flows;
        for (const QString& line : lines) {
            flows.append(line.section(QLatin1Char(','), 1));
        }
        QCOMPARE(flows, after);
    }

    void aCustom50HzPumpIsOfferedOnlyUnder50Hz() {
        Station& s = *m_station;
        QVERIFY(s.driveDialog("mnuPumps", [](QDialog* dialog) {
            press(dialog, "cmdPumpAdd");
            QTest::keyClicks(child<QLineEdit>(dialog, "txtPumpName"), QStringLiteral("Fifty Hertz Custom"));
            clickOption(dialog, "optPump50");
            typeTable(gridOf(dialog), {{"0", "250"}, {"20", "200"}, {"40", "120"}, {"60", "20"}});
            press(dialog, "cmdPumpSave");
            press(dialog, "cmdPumpOk");
        }));
        QVERIFY(s.ui.shown.empty());
        QVERIFY(!offers(s.find<QComboBox>("cmbPumps"), QStringLiteral("Fifty Hertz Custom")));
        clickOption(s.window.get(), "opt50Hz");
        QVERIFY(offers(s.find<QComboBox>("cmbPumps"), QStringLiteral("Fifty Hertz Custom")));
        QVERIFY(componentFile(s, ComponentKind::Pump)
                    .ends_with("$Fifty Hertz Custom #A\r\n#TRUE#\r\n#Custom#\r\n"
                               "#RATELOSS_BEGIN#\r\n0,250\r\n20,200\r\n40,120\r\n"
                               "60,20\r\n#RATELOSS_END#\r\n"));
    }

    void aCustomHoseOfOneAndAQuarterAt50Feet() {
        m_station = std::make_unique<Station>(removeHoseSize);
        Station& s = *m_station;
        QVERIFY(s.driveDialog("mnuHoses", [](QDialog* dialog) {
            press(dialog, "cmdHoseAdd");
            QTest::keyClicks(child<QLineEdit>(dialog, "txtHoseSize"), QStringLiteral("1 1/4a/ "));
            QCOMPARE(child<QLineEdit>(dialog, "txtHoseSize")->text(), QStringLiteral("1 1/4"));
            clickOption(dialog, "optHoseCustomized");
            auto* length = child<QLineEdit>(dialog, "txtHoseLength");
            QVERIFY(length->isEnabled());
            length->selectAll();
            QTest::keyClicks(length, QStringLiteral("50"));
            typeTable(gridOf(dialog), {{"5", "2"}, {"10", "7.5"}, {"15", "16"}});
            press(dialog, "cmdHoseOk");
        }));
        QVERIFY(s.ui.shown.empty());
        QVERIFY(componentFile(s, ComponentKind::Hose)
                    .ends_with("$1 1/4 #A\r\n#TRUE#\r\n#Custom#\r\n50\r\n"
                               "#RATELOSS_BEGIN#\r\n5,2\r\n10,7.5\r\n15,16\r\n"
                               "#RATELOSS_END#\r\n"));
        QVERIFY(offers(s.find<QComboBox>("cmbHoseSize"), QStringLiteral("1 1/4")));
    }

    void aMetricTableComesBackInFeetAndGpm() {
        Station& s = *m_station;
        s.chooseUnits(true);
        QVERIFY(s.driveDialog("mnuNozzles", [](QDialog* dialog) {
            QCOMPARE(labelText(dialog, "lblNozzleGPM"), QStringLiteral("LPM"));
            QCOMPARE(labelText(dialog, "lblNozzleTDH"), QStringLiteral("TDH - Meter"));
            press(dialog, "cmdNozzleAdd");
            QTest::keyClicks(child<QLineEdit>(dialog, "txtNozzleName"), QStringLiteral("Metric Nozzle"));
            typeTable(gridOf(dialog), {{"37.9", "3"}, {"75.7", "10.5"}});
            press(dialog, "cmdNozzleOk");
        }));
        // 37.9 LPM is 10 GPM, 3 m is 9.8 ft; 75.7 LPM is 20 GPM, 10.5 m is 34.4 ft.
        QVERIFY(componentFile(s, ComponentKind::Nozzle)
                    .ends_with("$Metric Nozzle #A\r\n#TRUE#\r\n#Custom#\r\n#RATELOSS_BEGIN#\r\n10,9.8\r\n20,34.4\r\n"
                               "#RATELOSS_END#\r\n"));
    }

    void deletingTheCustomNozzleRemovesItFromTheFileAndTheList() {
        m_station = std::make_unique<Station>([](const TempProgramFolder& folder) {
            folder.write(
                "Components/NOZZLE.DAT",
                folder.read("Components/NOZZLE.DAT") +
                    "$Old Custom #A\r\n#TRUE#\r\n#Custom#\r\n#RATELOSS_BEGIN#\r\n0,0\r\n10,5\r\n#RATELOSS_END#\r\n");
        });
        Station& s = *m_station;
        QVERIFY(offers(s.find<QComboBox>("cmbNozzle"), QStringLiteral("Old Custom")));
        s.ui.answers = {Answer::Yes};
        QVERIFY(s.driveDialog("mnuNozzles", [](QDialog* dialog) {
            auto* list = child<QListWidget>(dialog, "lstNozzleNames");
            const auto found = list->findItems(QStringLiteral("Old Custom"), Qt::MatchExactly);
            QCOMPARE(found.size(), 1);
            QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(found[0]).center());
            press(dialog, "cmdNozzleDelete");
            press(dialog, "cmdNozzleOk");
        }));
        QCOMPARE(s.ui.shown, std::vector<std::string>{"Delete Nozzle - Old Custom"});
        QVERIFY(componentFile(s, ComponentKind::Nozzle).find("Old Custom") == std::string::npos);
        QVERIFY(!offers(s.find<QComboBox>("cmbNozzle"), QStringLiteral("Old Custom")));
    }

    void aStandardRecordCannotBeDeletedOrChanged() {
        Station& s = *m_station;
        const std::string before = componentFile(s, ComponentKind::Nozzle);
        QVERIFY(s.driveDialog("mnuNozzles", [&s](QDialog* dialog) {
            press(dialog, "cmdNozzleDelete");
            press(dialog, "cmdNozzleEdit");
            QVERIFY(!child<QLineEdit>(dialog, "txtNozzleName")->isEnabled());
            QVERIFY(!child<QRadioButton>(dialog, "optNozzlePSI")->isEnabled());
            QTableWidget* grid = gridOf(dialog);
            const QStringList cells = cellTexts(grid);
            clickCell(grid, 1, 1);
            QTest::keyClick(grid, Qt::Key_Delete);
            QTest::keyClicks(grid, QStringLiteral("9"));
            QTest::keyClick(grid, Qt::Key_Return);
            QCOMPARE(cellTexts(grid), cells);
            closeWithoutSaving(s, dialog);
        }));
        QCOMPARE(s.ui.shown.front(), std::string("Selected Component is Standard -- Cannot be Deleted"));
        QCOMPARE(componentFile(s, ComponentKind::Nozzle), before);
    }

  private:
    std::unique_ptr<Station> m_station;
};

} // namespace vesk::gui::test

QTEST_MAIN(vesk::gui::test::EditorDialogTest)
#include "editor_dialog_test.moc"
