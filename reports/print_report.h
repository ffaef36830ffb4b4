// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// Printing: the report's two sheets (File > Print) and the pump curve's sheet (the pump panel's Print).
#pragma once

#include "reports/compare_table.h"
#include "reports/printed_flow_graph.h"
#include "workbench/application_state.h"

#include "messages/user_interaction.h"

namespace vesk {

inline constexpr const char* printReportQuestion = "Do you want to Print the Report?";
inline constexpr const char* printPumpCurveQuestion = "Do you want to Print Pump Performance Curve?";
inline constexpr const char* pumpCurveSheetLabel = "Pump Performance Curve";

// frmPrintPumpCurve as loaded: its label and its own chart, drawn by the steps
// of Update Graph from the panels of the moment. A pump that has no record for
// the frequency on leaves the chart undrawn, titled "Pump Performance Curve".
struct PumpCurveSheet {
    std::string lblPumpName;
    PumpCurveChart chart;
};
PumpCurveSheet LoadPrintPumpCurve(PanelState& panel, const clsConfigureData& config, const Catalogues& catalogues);

// The printer as the printing sequences use it. A failure of the device is a
// RunTimeFailure.
class SheetPrinter {
  public:
    virtual ~SheetPrinter() = default;
    // The mouse pointer: the hourglass while the sheets are made, or the default.
    virtual void showHourglass(bool on) = 0;
    // ScaleLeft and ScaleTop, with CurrentX and CurrentY at 0.
    virtual void setScale(Long scaleLeft, Long scaleTop) = 0;
    // The printer the dialog chose.
    virtual void usePrinter(const PrinterChoice& choice) = 0;
    // A form printed as it stands, as one sheet (PrintForm).
    virtual void printForm(const FlowGraphSheet& sheet) = 0;
    virtual void printForm(const PumpCurveSheet& sheet) = 0;
    // The picture of a whole grid painted at (x, y) twips of the printer's scale.
    virtual void paintPicture(const SheetGrid& grid, Long x, Long y) = 0;
    // The end of the document: the sheet painted last goes out.
    virtual void endDoc() = 0;
    // An error ended the printing: nothing more goes out.
    virtual void abandon() = 0;
};

// mnuPrint_Click: "Do you want to Print the Report?" with Yes and No (No ends);
// the report's margins; the hourglass; the printer dialog (Cancel ends
// silently); then the two sheets. Any failure from the dialog on, Cancel
// included, ends silently with the pointer back to the default.
void PrintReport(ApplicationState& app, UserInteraction& ui, SheetPrinter& printer);

// The sheets of the report on a printer already chosen: the flow graph sheet;
// then, with more than 14 nozzles, the two compare grids at the top of the
// second sheet and the component list under them, otherwise the component
// list alone at its top; then the end of the document. Failures escape.
void PrintReportSheets(ApplicationState& app, SheetPrinter& printer);

// cmdPrintPump: "Do you want to Print Pump Performance Curve?" with Yes and No
// (No ends); the hourglass; the printer dialog (Cancel ends silently); the
// pump curve sheet with no margins set. Any failure from the dialog on ends
// silently with the pointer back to the default.
void PrintPumpCurve(ApplicationState& app, UserInteraction& ui, SheetPrinter& printer);

} // namespace vesk
