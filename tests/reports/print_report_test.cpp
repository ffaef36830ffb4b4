// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// File > Print and the pump panel's Print: the question, the printer dialog and the sheets in their order.
#include "report_fixture.h"
#include "reports/print_report.h"
#include "reports/sheet_layout.h"

namespace vesk {
namespace {

// A printer that writes down what reaches it.
class RecordingPrinter : public SheetPrinter {
  public:
    void showHourglass(bool on) override {
        hourglass = on;
        events.push_back(on ? "hourglass" : "pointer");
    }
    void setScale(Long left, Long top) override {
        events.push_back("scale " + std::to_string(left) + " " + std::to_string(top));
    }
    void usePrinter(const PrinterChoice& choice) override { events.push_back("printer " + choice.outputFile); }
    void printForm(const FlowGraphSheet& sheet) override {
        events.push_back("flow graph sheet");
        flowGraph = sheet;
    }
    void printForm(const PumpCurveSheet& sheet) override {
        events.push_back("pump curve sheet");
        pumpCurve = sheet;
    }
    void paintPicture(const SheetGrid& grid, Long x, Long y) override {
        events.push_back("grid " + std::to_string(grid.Rows()) + "x" + std::to_string(grid.Cols()) + " at " +
                         std::to_string(x) + "," + std::to_string(y));
    }
    void endDoc() override { events.push_back("end"); }
    void abandon() override { events.push_back("abandon"); }

    bool hourglass = false;
    std::vector<std::string> events;
    std::optional<FlowGraphSheet> flowGraph;
    std::optional<PumpCurveSheet> pumpCurve;
};

class Printing : public test::ReportTest {
  protected:
    void answerYesAndChoosePdf() {
        ui().answers.push_back(Answer::Yes);
        ui().chosenPrinters.push_back(PrinterChoice{"", "/tmp/report.pdf", 1});
    }
    RecordingPrinter printer;
};

TEST_F(Printing, NoToTheQuestionPrintsNothingAndShowsNoDialog) {
    ui().answers.push_back(Answer::No);
    PrintReport(app(), ui(), printer);
    EXPECT_EQ(ui().shown, (std::vector<std::string>{"Do you want to Print the Report?"}));
    EXPECT_EQ(ui().printerDialogs, 0);
    EXPECT_TRUE(printer.events.empty());
}

TEST_F(Printing, CancelInThePrinterDialogPrintsNothingAndThePointerReturns) {
    ui().answers.push_back(Answer::Yes);
    ui().chosenPrinters.push_back(std::nullopt);
    PrintReport(app(), ui(), printer);
    EXPECT_EQ(ui().printerDialogs, 1);
    EXPECT_EQ(printer.events, (std::vector<std::string>{"scale -720 -1080", "hourglass", "pointer"}));
    EXPECT_FALSE(printer.hourglass);
    EXPECT_EQ(ui().shown.size(), 1U) << "no message";
}

TEST_F(Printing, FourteenNozzlesPutTheComponentListAloneAtTheTopOfTheSecondSheet) {
    enterNozzles(14);
    Calculate(app());
    answerYesAndChoosePdf();
    PrintReport(app(), ui(), printer);
    EXPECT_EQ(printer.events, (std::vector<std::string>{"scale -720 -1080", "hourglass", "printer /tmp/report.pdf",
                                                        "flow graph sheet", "grid 39x6 at 0,0", "end", "pointer"}));
}

TEST_F(Printing, FifteenNozzlesPutTheCompareGridsFirstAndTheComponentListUnderThem) {
    enterNozzles(15);
    Calculate(app());
    answerYesAndChoosePdf();
    PrintReport(app(), ui(), printer);
    EXPECT_EQ(printer.events,
              (std::vector<std::string>{"scale -720 -1080", "hourglass", "printer /tmp/report.pdf", "flow graph sheet",
                                        "grid 8x15 at 100,30", "grid 6x15 at 100,2000", "grid 39x6 at 100,4000", "end",
                                        "pointer"}));
}

TEST_F(Printing, AFailureWhileLoadingTheSheetsEndsSilently) {
    ASSERT_TRUE(OpenSiteFile(app(), (folder.path() / "SaveSiteInfo" / "BasicModeSite.txt").string(), ui()));
    answerYesAndChoosePdf();
    PrintReport(app(), ui(), printer);
    EXPECT_EQ(printer.events, (std::vector<std::string>{"scale -720 -1080", "hourglass", "printer /tmp/report.pdf",
                                                        "abandon", "pointer"}));
    EXPECT_EQ(ui().shown.back(), "Do you want to Print the Report?") << "no message";
}

TEST_F(Printing, ThePumpCurveSheetAsksItsOwnQuestionAndSetsNoMargins) {
    ui().answers.push_back(Answer::Yes);
    ui().chosenPrinters.push_back(PrinterChoice{"", "/tmp/pump.pdf", 1});
    PrintPumpCurve(app(), ui(), printer);
    EXPECT_EQ(ui().shown, (std::vector<std::string>{"Do you want to Print Pump Performance Curve?"}));
    EXPECT_EQ(printer.events,
              (std::vector<std::string>{"hourglass", "printer /tmp/pump.pdf", "pump curve sheet", "end", "pointer"}));
    ASSERT_TRUE(printer.pumpCurve);
    EXPECT_EQ(printer.pumpCurve->lblPumpName, "Pump Performance Curve");
    EXPECT_EQ(printer.pumpCurve->chart.title, app().panel.cmbPumps.Text());
    EXPECT_EQ(printer.pumpCurve->chart.points, app().pumpCurve.points);
}

TEST_F(Printing, CancelInThePumpCurvePrinterDialogPrintsNothing) {
    ui().answers.push_back(Answer::Yes);
    PrintPumpCurve(app(), ui(), printer);
    EXPECT_EQ(printer.events, (std::vector<std::string>{"hourglass", "pointer"}));
}

TEST_F(Printing, AFiftyHertzOnlyPumpUnderSixtyHertzPrintsTheUndrawnChart) {
    // A pump made for 50 Hz alone (for a pump the field IsGas is Is50Hz),
    // chosen on the list while 60 Hz is on: no record matches.
    std::vector<ComponentRecord>& pumps = app().catalogues.of(ComponentKind::Pump).Records;
    ComponentRecord export50Hz = pumps.front();
    export50Hz.Name = "STP 7 HP export";
    export50Hz.IsGas = true;
    pumps.push_back(export50Hz);
    const std::string fiftyHzOnly = export50Hz.Name;
    ASSERT_FALSE(fiftyHzOnly.empty());
    app().panel.cmbPumps.Clear();
    app().panel.cmbPumps.AddItem(fiftyHzOnly);
    app().panel.cmbPumps.SetListIndex(0);
    ASSERT_TRUE(app().panel.opt60Hz);
    const PumpCurveSheet sheet = LoadPrintPumpCurve(app().panel, app().config, app().catalogues);
    EXPECT_EQ(sheet.chart.title, "Pump Performance Curve");
    EXPECT_TRUE(sheet.chart.points.empty());
}

TEST_F(Printing, AfterAChangeOfQuantityWithoutUpdateGraphPaperAndScreenDiffer) {
    const PumpCurveChart screen = app().pumpCurve;
    app().panel.cmbQuantity.SetListIndex(1); // two pumps, Update Graph not pressed
    const PumpCurveSheet sheet = LoadPrintPumpCurve(app().panel, app().config, app().catalogues);
    EXPECT_EQ(app().pumpCurve.points, screen.points) << "the screen keeps its curve";
    EXPECT_NE(sheet.chart.xMaximum, screen.xMaximum);
    EXPECT_NE(sheet.chart.points, screen.points);
}

} // namespace
} // namespace vesk
