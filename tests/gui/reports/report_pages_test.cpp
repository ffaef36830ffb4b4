// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The report's pages, their label buttons and chain, and the sheets printed to PDF files read back as text and
// pictures.
#include "gui/common/text_codec.h"
#include "gui/reports/label_button.h"
#include "gui/reports/preview_pages.h"
#include "gui/workbench/main_window.h"
#include "reports/design_comparison.h"
#include "reports/print_report.h"
#include "support/recording_interaction.h"
#include "support/temp_program_folder.h"
#include "workbench/calculate.h"
#include "workbench/field_checks.h"
#include "workbench/site_file.h"
#include "workbench/startup.h"

#include <QAccessible>
#include <QAccessibleActionInterface>
#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QLabel>
#include <QMenuBar>
#include <QPainter>
#include <QProcess>
#include <QRegularExpression>
#include <QTableWidget>
#include <QTest>
#include <QTimer>
#include <filesystem>
#include <functional>
#include <memory>

using vesk::Answer;
using vesk::ApplicationState;
using vesk::PrinterChoice;
using vesk::gui::LabelButton;
using vesk::test::RecordingInteraction;
using vesk::test::TempProgramFolder;

namespace {

// The texts of a PDF, page by page (pdftotext of poppler-utils).
QString pdfText(const QString& pdf, int page = 0) {
    QProcess tool;
    QStringList arguments{QStringLiteral("-layout")};
    if (page > 0) {
        arguments << QStringLiteral("-f") << QString::number(page) << QStringLiteral("-l") << QString::number(page);
    }
    arguments << pdf << QStringLiteral("-");
    tool.start(QStringLiteral("pdftotext"), arguments);
    if (!tool.waitForFinished(20000) || tool.exitCode() != 0) {
        return QStringLiteral("<pdftotext failed>");
    }
    return QString::fromUtf8(tool.readAllStandardOutput());
}

// The pages of a PDF as pictures (pdftoppm), written next to the screenshots.
QList<QImage> pdfPages(const QString& pdf, const QString& name) {
    QDir().mkpath(QStringLiteral(VESK_PDF_PAGES_DIR));
    const QString prefix = QStringLiteral(VESK_PDF_PAGES_DIR) + "/" + name;
    QProcess tool;
    tool.start(QStringLiteral("pdftoppm"),
               {QStringLiteral("-png"), QStringLiteral("-r"), QStringLiteral("60"), pdf, prefix});
    QList<QImage> pages;
    if (!tool.waitForFinished(20000) || tool.exitCode() != 0) {
        return pages;
    }
    for (int page = 1; page <= 9; ++page) {
        QImage image(prefix + QStringLiteral("-%1.png").arg(page));
        if (!image.isNull()) {
            pages.append(image);
        }
    }
    return pages;
}

// The share of a page's pixels that are not white.
double inkOf(const QImage& page) {
    long ink = 0;
    for (int y = 0; y < page.height(); ++y) {
        for (int x = 0; x < page.width(); ++x) {
            ink += page.pixelColor(x, y).lightness() < 230 ? 1 : 0;
        }
    }
    return static_cast<double>(ink) / (page.width() * page.height());
}

// A seam that also notes, at each question, whether a preview page was on show.
class WatchingInteraction : public RecordingInteraction {
  public:
    Answer askYesNo(std::string_view text) override {
        pageOnShowAtQuestion = QApplication::activeModalWidget() != nullptr;
        return RecordingInteraction::askYesNo(text);
    }
    bool pageOnShowAtQuestion = true;
};

// Start-up on a copy of the shipped program folder (with site pictures for the window).
struct Started {
    TempProgramFolder folder = TempProgramFolder::copyOfShipped();
    ApplicationState app;
    WatchingInteraction ui;

    Started() {
        app.programFolder = folder.path();
        vesk::InitialiseMainWindow(app, ui);
    }
    QString pdf(const char* name) const { return QString::fromStdString((folder.path() / name).string()); }
    void chooseYesAndPdf(const QString& file) {
        ui.answers.push_back(Answer::Yes);
        ui.chosenPrinters.push_back(PrinterChoice{"", file.toStdString(), 1});
    }
    void enterNozzles(int count) {
        app.panel.txtNoOfNozzle = std::to_string(count);
        vesk::NozzleCheck(app, ui);
        vesk::Calculate(app);
        vesk::MakeBaseline(app);
    }
    void open(const char* example) {
        QVERIFY(vesk::OpenSiteFile(app, (folder.path() / "SaveSiteInfo" / example).string(), ui));
    }
};

// Presses the labels of the pages that come up, one label per page, and
// notes each page's name; a page that does not come up ends the run.
struct PageDriver {
    QStringList pagesSeen;
    int mostPagesAtOnce = 0;

    void press(const QStringList& labels, const std::function<void()>& run) {
        auto remaining = std::make_shared<QStringList>(labels);
        std::function<void()> step;
        step = [this, remaining, &step] {
            auto* page = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (page == nullptr) {
                QTimer::singleShot(10, step);
                return;
            }
            int onShow = 0;
            for (QWidget* widget : QApplication::topLevelWidgets()) {
                onShow += qobject_cast<QDialog*>(widget) != nullptr && widget->isVisible() ? 1 : 0;
            }
            mostPagesAtOnce = std::max(mostPagesAtOnce, onShow);
            pagesSeen.append(page->objectName());
            if (remaining->isEmpty()) {
                page->reject();
                return;
            }
            auto* label = page->findChild<LabelButton*>(remaining->takeFirst());
            if (label == nullptr) {
                page->reject();
                return;
            }
            label->click();
            if (!remaining->isEmpty()) {
                QTimer::singleShot(10, step);
            }
        };
        QTimer::singleShot(0, step);
        QTimer watchdog;
        watchdog.setSingleShot(true);
        QObject::connect(&watchdog, &QTimer::timeout, [] {
            if (auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
                dialog->reject();
            }
        });
        watchdog.start(10000);
        run();
    }
};

} // namespace

class ReportPagesTest : public QObject {
    Q_OBJECT

  private slots:
    void cleanup() {
        QVERIFY(QApplication::topLevelWidgets().isEmpty() ||
                std::none_of(QApplication::topLevelWidgets().begin(), QApplication::topLevelWidgets().end(),
                             [](QWidget* widget) { return widget->isVisible(); }));
        QCOMPARE(QApplication::overrideCursor(), nullptr);
    }

    void theFirstPageShowsTheHeadsAndTheGraphThroughPic1Bmp() {
        Started started;
        started.app.siteProperties.blnPrintFields = true;
        started.app.siteProperties.strCustomerName = "Harbour Fuels";
        started.app.siteProperties.strPhone = "555-0100";
        vesk::gui::ReportPageDialog page(started.app, QSize(600, 400), nullptr);
        QCOMPARE(page.findChild<QLabel*>("Label1")->text(), QStringLiteral("Vesk Report"));
        QCOMPARE(page.findChild<QLabel*>("lblSiteData(0)")->text(), QStringLiteral("Harbour Fuels"));
        QCOMPARE(page.findChild<QLabel*>("lblReportData(4)")->text(), QStringLiteral("555-0100"));
        QCOMPARE(page.findChild<QLabel*>("lblSiteInfo(0)")->text(), QStringLiteral("Customer Name"));
        QCOMPARE(page.findChild<QLabel*>("lblCurrentPumpPrint")->text(),
                 vesk::gui::fromWindows1252(started.app.flowChart.lblCurrentPump));
        const QPixmap graph = page.findChild<QLabel*>("picGraph")->pixmap();
        QCOMPARE(graph.width(), 600);
        QCOMPARE(graph.height(), (400 * 15 - 1000) / 15); // the chart less 1000 twips
        const QImage written(QString::fromStdString((started.folder.path() / "pic1.bmp").string()));
        QCOMPARE(written.size(), graph.size()); // the bitmap stays in the program folder
    }

    void printFieldsFalseShowsTheCaptionsWithBlankValues() {
        Started started;
        started.app.siteProperties.strCustomerName = "Harbour Fuels";
        started.app.siteProperties.blnPrintFields = false;
        vesk::gui::ReportPageDialog page(started.app, QSize(600, 400), nullptr);
        QCOMPARE(page.findChild<QLabel*>("lblSiteInfo(0)")->text(), QStringLiteral("Customer Name"));
        for (int i = 0; i < 5; ++i) {
            QCOMPARE(page.findChild<QLabel*>(QStringLiteral("lblSiteData(%1)").arg(i))->text(), QString());
            QCOMPARE(page.findChild<QLabel*>(QStringLiteral("lblReportData(%1)").arg(i))->text(), QString());
        }
    }

    void aReadOnlyProgramFolderCannotTakePic1Bmp() {
        Started started;
        const auto folder = started.folder.path();
        std::filesystem::permissions(folder, std::filesystem::perms::owner_read | std::filesystem::perms::owner_exec);
        QFile probe(QString::fromStdString((folder / "probe").string()));
        if (probe.open(QIODevice::WriteOnly)) { // the super-user writes anywhere: a folder in the file's place
            probe.close();
            probe.remove();
            std::filesystem::create_directory(folder / "pic1.bmp");
        }
        QString failure;
        try {
            vesk::gui::ReportPageDialog page(started.app, QSize(600, 400), nullptr);
        } catch (const vesk::RunTimeFailure& error) {
            failure = QString::fromLatin1(error.what());
        }
        std::filesystem::permissions(folder, std::filesystem::perms::owner_all);
        QCOMPARE(failure, QStringLiteral("Path/File access error"));
    }

    void theLabelsTakeABorderWhilePressedAndActOnTheClick() {
        LabelButton label(QStringLiteral("Next"));
        label.show();
        int clicks = 0;
        connect(&label, &LabelButton::clicked, [&clicks] { ++clicks; });
        QTest::mousePress(&label, Qt::LeftButton);
        QCOMPARE(label.borderStyle(), 1);
        QCOMPARE(clicks, 0);
        QTest::mouseRelease(&label, Qt::LeftButton);
        QCOMPARE(label.borderStyle(), 0);
        QCOMPARE(clicks, 1);
    }

    void theLabelsArePressedFromTheKeyboardAndByAssistiveTechnology() {
        LabelButton label(QStringLiteral("Close"));
        label.show();
        int clicks = 0;
        connect(&label, &LabelButton::clicked, [&clicks] { ++clicks; });
        QCOMPARE(label.focusPolicy(), Qt::StrongFocus);
        QTest::keyClick(&label, Qt::Key_Space);
        QCOMPARE(clicks, 1);
        QTest::keyClick(&label, Qt::Key_Return);
        QTRY_COMPARE(clicks, 2);
        QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(&label);
        QVERIFY(accessible != nullptr);
        QCOMPARE(accessible->role(), QAccessible::Button);
        QCOMPARE(accessible->text(QAccessible::Name), QStringLiteral("Close"));
        QAccessibleActionInterface* actions = accessible->actionInterface();
        QVERIFY(actions != nullptr);
        QVERIFY(actions->actionNames().contains(QAccessibleActionInterface::pressAction()));
        actions->doAction(QAccessibleActionInterface::pressAction());
        QTRY_COMPARE(clicks, 3);
    }

    void thePreviewChainShowsOnePageAtATime() {
        Started started;
        PageDriver driver;
        driver.press({"lblNExt", "lblNExt", "lblPrev", "lblPrev", "lblClose"},
                     [&] { vesk::gui::ShowPrintPreview(nullptr, started.app, started.ui, QSize(600, 400)); });
        QCOMPARE(driver.pagesSeen,
                 (QStringList{"frmPrint", "frmCompare", "frmComponentList", "frmCompare", "frmPrint"}));
        QCOMPARE(driver.mostPagesAtOnce, 1);
    }

    void theComponentListPageGivesNoToolTipForOneBlank() {
        Started started;
        vesk::gui::ComponentListDialog page(started.app, nullptr);
        auto* grid = page.findChild<QTableWidget*>("flxComponentPrint");
        QVERIFY(grid != nullptr);
        QCOMPARE(grid->rowCount(), 39);
        grid->setCurrentCell(7 + 3, 2); // NoOfNozzles: one blank in the unit column
        QCOMPARE(grid->toolTip(), QString());
        grid->setCurrentCell(7 + 3, 3);
        QCOMPARE(grid->toolTip(), QStringLiteral("8"));
    }

    void theComparePageOfAFourNozzleSiteOpenedAfterStartUpReadsPastItsTables() {
        Started started;
        started.open("BasicModeSite.txt");
        QString failure;
        try {
            vesk::gui::CompareDialog page(started.app, nullptr);
        } catch (const vesk::RunTimeFailure& error) {
            failure = QString::fromLatin1(error.what());
        }
        QCOMPARE(failure, QStringLiteral("Subscript out of range"));
        started.enterNozzles(4); // the number of nozzles entered again
        vesk::gui::CompareDialog page(started.app, nullptr);
        QCOMPARE(page.findChild<QTableWidget*>("flxCompare")->rowCount(), 4 + 3);
    }

    void printFromTheFirstPageClosesThePageThenAsks() {
        Started started;
        started.ui.answers.push_back(Answer::No);
        PageDriver driver;
        driver.press({"lblPrint"},
                     [&] { vesk::gui::ShowPrintPreview(nullptr, started.app, started.ui, QSize(600, 400)); });
        QCOMPARE(started.ui.shown, (std::vector<std::string>{"Do you want to Print the Report?"}));
        QVERIFY(!started.ui.pageOnShowAtQuestion);
    }

    void cancelInThePrinterDialogWritesNothing() {
        Started started;
        started.ui.answers.push_back(Answer::Yes);
        started.ui.chosenPrinters.push_back(std::nullopt);
        vesk::gui::PrintReportCommand(started.app, started.ui);
        QCOMPARE(started.ui.printerDialogs, 1);
        QCOMPARE(started.ui.shown.size(), std::size_t{1});
        QCOMPARE(QApplication::overrideCursor(), nullptr);
        QVERIFY(!std::filesystem::exists(started.folder.path() / "report.pdf"));
    }

    void fourteenNozzlesGiveTheComponentListAloneOnTheSecondSheet() {
        Started started;
        started.enterNozzles(14);
        started.chooseYesAndPdf(started.pdf("report.pdf"));
        vesk::gui::PrintReportCommand(started.app, started.ui);
        const QString first = pdfText(started.pdf("report.pdf"), 1);
        const QString second = pdfText(started.pdf("report.pdf"), 2);
        QVERIFY2(first.contains("Vesk Report") && first.contains("Site Information"), qPrintable(first));
        QVERIFY(first.contains("Flow Improvement Baseline Vs Current"));
        QVERIFY(first.contains(QRegularExpression("\\b14\\b")));
        QVERIFY(!second.contains("FlowRate Improvement"));
        QVERIFY(second.contains("Current And Baseline Components List"));
        const QList<QImage> pages = pdfPages(started.pdf("report.pdf"), QStringLiteral("report-14"));
        QCOMPARE(pages.size(), 2);
        QVERIFY(inkOf(pages[0]) > 0.03);
        QVERIFY(inkOf(pages[1]) > 0.02);
    }

    void fifteenNozzlesPutTheCompareGridsFirstOnTheSecondSheet() {
        Started started;
        started.enterNozzles(15);
        started.chooseYesAndPdf(started.pdf("report.pdf"));
        vesk::gui::PrintReportCommand(started.app, started.ui);
        const QString second = pdfText(started.pdf("report.pdf"), 2);
        QVERIFY2(second.indexOf("FlowRate Improvement") >= 0, qPrintable(second));
        QVERIFY(second.indexOf("FlowRate Improvement") < second.indexOf("Current And Baseline Components List"));
        QVERIFY(second.contains("%ChangeInFlow(GPM)"));
        QVERIFY(second.contains(QRegularExpression("\\b27\\b")) && second.contains(QRegularExpression("\\b40\\b")));
        QCOMPARE(pdfPages(started.pdf("report.pdf"), QStringLiteral("report-15")).size(), 2);
    }

    void fortyNozzlesOnPaperReachTheirLastColumn() {
        Started started;
        started.enterNozzles(40);
        started.chooseYesAndPdf(started.pdf("report.pdf"));
        vesk::gui::PrintReportCommand(started.app, started.ui);
        const QString second = pdfText(started.pdf("report.pdf"), 2);
        const QString nozzle40 =
            vesk::gui::fromWindows1252(vesk::CompareFiguresOf(started.app.results.Current.GpmPerNozzle,
                                                              started.app.results.Baseline.GpmPerNozzle, 40)
                                           .current);
        QVERIFY2(second.contains(QRegularExpression("\\b40\\s*$", QRegularExpression::MultilineOption)),
                 qPrintable(second));
        QVERIFY(second.contains(nozzle40));
        QVERIFY(!second.contains(QRegularExpression("\\b41\\b")));
        pdfPages(started.pdf("report.pdf"), QStringLiteral("report-40"));
    }

    void thePumpCurveSheetShowsThePumpsName() {
        Started started;
        started.chooseYesAndPdf(started.pdf("pump.pdf"));
        vesk::gui::PrintPumpCurveCommand(started.app, started.ui);
        QCOMPARE(started.ui.shown, (std::vector<std::string>{"Do you want to Print Pump Performance Curve?"}));
        const QString text = pdfText(started.pdf("pump.pdf"));
        QVERIFY2(text.contains(vesk::gui::fromWindows1252(started.app.panel.cmbPumps.Text())), qPrintable(text));
        QVERIFY(text.contains("Feet of Head"));
        QCOMPARE(pdfPages(started.pdf("pump.pdf"), QStringLiteral("pump-curve")).size(), 1);
    }

    void aFiftyHertzOnlyPumpUnderSixtyHertzPrintsTheUndrawnChart() {
        Started started;
        auto& pumps = started.app.catalogues.of(vesk::ComponentKind::Pump).Records;
        vesk::ComponentRecord export50Hz = pumps.front();
        export50Hz.Name = "STP 7 HP export";
        export50Hz.IsGas = true; // Is50Hz
        pumps.push_back(export50Hz);
        started.app.panel.cmbPumps.Clear();
        started.app.panel.cmbPumps.AddItem(export50Hz.Name);
        started.app.panel.cmbPumps.SetListIndex(0);
        started.chooseYesAndPdf(started.pdf("pump.pdf"));
        vesk::gui::PrintPumpCurveCommand(started.app, started.ui);
        const QString text = pdfText(started.pdf("pump.pdf"));
        QVERIFY(!text.contains("STP 7 HP export"));
        QCOMPARE(text.count("Pump Performance Curve"), 2); // the label and the undrawn chart's title
        QVERIFY(!text.contains("Feet of Head"));
    }

    // A designer's round trip: open a site of six nozzles, Make Baseline,
    // change the trunk size and Calculate, print to PDF; then the command
    // line on the two saved sites prints the same compare figures.
    void aDesignersRoundTrip() {
        Started started;
        started.open("SmallGasStation.txt");
        started.app.siteProperties.blnPrintFields = true;
        started.app.siteProperties.strCustomerName = "Harbour Fuels";
        started.app.siteProperties.strSiteDescription = "Six nozzles on two islands";
        vesk::MakeBaseline(started.app);
        const std::string baseSite = (started.folder.path() / "SaveSiteInfo" / "Base.txt").string();
        vesk::WriteSiteFile(started.app, baseSite);
        const std::string trunkBefore = started.app.panel.cmbTrunk.Text();
        started.app.panel.cmbTrunk.SetListIndex(started.app.panel.cmbTrunk.ListIndex() + 1);
        const std::string trunkAfter = started.app.panel.cmbTrunk.Text();
        QVERIFY(trunkAfter != trunkBefore);
        vesk::Calculate(started.app);
        const std::string currentSite = (started.folder.path() / "SaveSiteInfo" / "Current.txt").string();
        vesk::WriteSiteFile(started.app, currentSite);

        started.chooseYesAndPdf(started.pdf("roundtrip.pdf"));
        vesk::gui::PrintReportCommand(started.app, started.ui);
        const QString text = pdfText(started.pdf("roundtrip.pdf"));
        QVERIFY2(text.contains("Harbour Fuels") && text.contains("Six nozzles on two islands"), qPrintable(text));
        QVERIFY(text.contains(vesk::gui::fromWindows1252(started.app.flowChart.lblCurrentPump).trimmed()));
        QVERIFY(text.contains(vesk::gui::fromWindows1252(started.app.flowChart.lblBaselinePump).trimmed()));
        QVERIFY(text.contains(vesk::gui::fromWindows1252(trunkBefore)));
        QVERIFY(text.contains(vesk::gui::fromWindows1252(trunkAfter)));

        QProcess calc;
        calc.start(QStringLiteral(VESK_CALC),
                   {QStringLiteral("--dir"), QString::fromStdString(started.folder.path().string()),
                    QStringLiteral("--baseline"), QString::fromStdString(baseSite), QStringLiteral("--compare"),
                    QString::fromStdString(currentSite)});
        QVERIFY(calc.waitForFinished(20000));
        QCOMPARE(calc.exitCode(), 0);
        const QStringList lines = QString::fromUtf8(calc.readAllStandardOutput()).split('\n', Qt::SkipEmptyParts);
        QCOMPARE(lines.size(), 1 + started.app.NoOfNozzles);
        const QStringList firstSheet = pdfText(started.pdf("roundtrip.pdf"), 1).split('\n');
        // The table of the first sheet holds, row by row, what the command line prints column by column.
        for (int column = 1; column <= 4; ++column) {
            QStringList figures;
            for (int k = 1; k <= std::min<int>(14, started.app.NoOfNozzles); ++k) {
                figures.append(lines[k].split('\t')[column]);
            }
            QString row = figures.join(QStringLiteral("\\s+"));
            const QRegularExpression inTable(QStringLiteral("\\s") +
                                             row.replace(QStringLiteral("."), QStringLiteral("\\.")));
            QVERIFY2(std::any_of(firstSheet.begin(), firstSheet.end(),
                                 [&](const QString& line) { return line.contains(inTable); }),
                     qPrintable(figures.join(' ')));
        }
        pdfPages(started.pdf("roundtrip.pdf"), QStringLiteral("roundtrip"));
    }

    void theFileMenuAndThePumpPanelReachThePrinting() {
        TempProgramFolder folder = TempProgramFolder::copyOfShipped();
        ApplicationState app;
        RecordingInteraction ui;
        app.programFolder = folder.path();
        vesk::InitialiseMainWindow(app, ui);
        std::unique_ptr<vesk::gui::MainWindow> window;
        try {
            window = std::make_unique<vesk::gui::MainWindow>(app, ui);
        } catch (const vesk::RunTimeFailure&) {
            QSKIP("the shipped folder has no site picture for the start-up site");
        }
        window->resize(1280, 800);
        window->show();
        QVERIFY(QTest::qWaitForWindowExposed(window.get()));
        ui.answers = {Answer::No, Answer::No};
        window->menuBar()->findChild<QAction*>("mnuPrint")->trigger();
        window->findChild<QAbstractButton*>("cmdPrintPump")->click();
        QCOMPARE(ui.shown, (std::vector<std::string>{"Do you want to Print the Report?",
                                                     "Do you want to Print Pump Performance Curve?"}));
        PageDriver driver;
        driver.press({"lblClose"}, [&] { window->menuBar()->findChild<QAction*>("mnuPrintPreview")->trigger(); });
        QCOMPARE(driver.pagesSeen, QStringList{"frmPrint"});
        window->hide();
    }
};

QTEST_MAIN(ReportPagesTest)
#include "report_pages_test.moc"
