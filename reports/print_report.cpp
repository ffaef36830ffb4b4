// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// Printing: the report's two sheets (File > Print) and the pump curve's sheet (the pump panel's Print).
#include "reports/print_report.h"

#include "reports/component_list.h"
#include "reports/sheet_layout.h"
#include "workbench/pump_curve.h"

#include <functional>

namespace vesk {

namespace {

// From the printer dialog on, an error ends the command silently: Cancel in
// the dialog counts as one. The pointer returns to the default either way.
void printSilently(UserInteraction& ui, SheetPrinter& printer, const std::function<void()>& sheets) {
    try {
        const std::optional<PrinterChoice> choice = ui.choosePrinter();
        if (!choice) {
            printer.showHourglass(false);
            return;
        }
        printer.usePrinter(*choice);
        sheets();
    } catch (const RunTimeFailure&) {
        printer.abandon();
    }
    printer.showHourglass(false);
}

} // namespace

PumpCurveSheet LoadPrintPumpCurve(PanelState& panel, const clsConfigureData& config, const Catalogues& catalogues) {
    PumpCurveSheet sheet;
    sheet.lblPumpName = pumpCurveSheetLabel;
    UpdatePumpCurve(sheet.chart, panel, config, catalogues);
    return sheet;
}

void PrintReportSheets(ApplicationState& app, SheetPrinter& printer) {
    printer.printForm(LoadPrintFlowGraph(app));
    const bool moreThanFourteen = app.NoOfNozzles > 14;
    if (moreThanFourteen) {
        const bool optUS = TouchFrmData(app.panel, app.config).optUS;
        const PrintCompareGrids grids = LoadPrintCompare(app.results.Current, app.results.Baseline, optUS);
        printer.paintPicture(grids.flxCompare, printCompareAt.x, printCompareAt.y);
        printer.paintPicture(grids.flxNextCompare, printNextCompareAt.x, printNextCompareAt.y);
    }
    const SheetGrid list = LoadComponentList(app.flxCurrent, app.flxBaseLine);
    const SheetPlace at = moreThanFourteen ? componentListBelowCompareAt : componentListAloneAt;
    printer.paintPicture(list, at.x, at.y);
    printer.endDoc();
}

void PrintReport(ApplicationState& app, UserInteraction& ui, SheetPrinter& printer) {
    if (ui.askYesNo(printReportQuestion) != Answer::Yes) {
        return;
    }
    printer.setScale(reportScaleLeft, reportScaleTop);
    printer.showHourglass(true);
    printSilently(ui, printer, [&] { PrintReportSheets(app, printer); });
}

void PrintPumpCurve(ApplicationState& app, UserInteraction& ui, SheetPrinter& printer) {
    if (ui.askYesNo(printPumpCurveQuestion) != Answer::Yes) {
        return;
    }
    printer.showHourglass(true);
    printSilently(ui, printer, [&] {
        printer.printForm(LoadPrintPumpCurve(app.panel, app.config, app.catalogues));
        printer.endDoc();
    });
}

} // namespace vesk
