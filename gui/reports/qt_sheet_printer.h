// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The printer of the printing sequences on a QPrinter: sheets painted as vectors and text.
#pragma once

#include "reports/print_report.h"

#include <QPainter>
#include <QPrinter>
#include <memory>

namespace vesk::gui {

// Paints each sheet in twips on a QPrinter, which is a printer of the system
// or a PDF file as the printer dialog chose. A form printed as it stands
// (PrintForm) is centred across the page, 720 twips from its top, and ends
// its sheet; a grid's picture stands where the printer's scale puts it. A
// device that cannot be opened fails with "Path/File access error".
class QtSheetPrinter : public SheetPrinter {
  public:
    QtSheetPrinter();
    ~QtSheetPrinter() override;

    void showHourglass(bool on) override;
    void setScale(Long scaleLeft, Long scaleTop) override;
    void usePrinter(const PrinterChoice& choice) override;
    void printForm(const FlowGraphSheet& sheet) override;
    void printForm(const PumpCurveSheet& sheet) override;
    void paintPicture(const SheetGrid& grid, Long x, Long y) override;
    void endDoc() override;
    void abandon() override;

    // The number of sheets that went out, after endDoc.
    int sheetCount() const { return m_sheets; }

  private:
    // The painter on the sheet to paint on, in twips from the paper's corner.
    QPainter& sheet();
    void printFormAt(Long formWidth, const std::function<void(QPainter&)>& paint);

    std::unique_ptr<QPrinter> m_printer;
    QPainter m_painter;
    std::string m_outputFile;
    Long m_scaleLeft = 0;
    Long m_scaleTop = 0;
    bool m_sheetEnded = false;
    int m_sheets = 0;
    bool m_hourglass = false;
};

} // namespace vesk::gui
