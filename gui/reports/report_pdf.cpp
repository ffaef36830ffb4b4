// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The printed report written to a PDF file with no window: what vesk-calc --report calls. No Qt type shows here.
#include "gui/reports/report_pdf.h"

#include "gui/reports/qt_sheet_printer.h"
#include "reports/sheet_layout.h"

#include <QApplication>
#include <QLoggingCategory>
#include <memory>

namespace vesk::gui {

void WriteReportPdf(ApplicationState& app, const std::string& pdfFile) {
    std::unique_ptr<QApplication> own;
    if (QApplication::instance() == nullptr) {
        // No window is shown: the offscreen platform needs no display.
        qputenv("QT_QPA_PLATFORM", "offscreen");
        // Only the report reaches the user: not the platform's notes on its set-up.
        QLoggingCategory::setFilterRules(QStringLiteral("*.debug=false\n*.info=false\n*.warning=false"));
        static int argc = 1;
        static char name[] = "vesk-calc";
        static char* argv[] = {name, nullptr};
        own = std::make_unique<QApplication>(argc, argv);
    }
    QtSheetPrinter printer;
    printer.setScale(reportScaleLeft, reportScaleTop);
    printer.usePrinter(PrinterChoice{"", pdfFile, 1});
    try {
        PrintReportSheets(app, printer);
    } catch (const RunTimeFailure&) {
        printer.abandon();
        throw;
    }
}

} // namespace vesk::gui
