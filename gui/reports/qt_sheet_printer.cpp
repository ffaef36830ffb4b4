// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The printer of the printing sequences on a QPrinter: sheets painted as vectors and text.
#include "gui/reports/qt_sheet_printer.h"

#include "gui/reports/sheet_painter.h"
#include "reports/report_page.h"

#include <QApplication>
#include <QFile>
#include <QPageLayout>

namespace vesk::gui {

namespace {
constexpr Long formTopTwips = 720;
} // namespace

QtSheetPrinter::QtSheetPrinter() : m_printer(std::make_unique<QPrinter>(QPrinter::HighResolution)) {}

QtSheetPrinter::~QtSheetPrinter() {
    if (m_painter.isActive()) {
        m_painter.end();
    }
    showHourglass(false);
}

void QtSheetPrinter::showHourglass(bool on) {
    if (on == m_hourglass) {
        return;
    }
    m_hourglass = on;
    if (on) {
        QApplication::setOverrideCursor(Qt::WaitCursor);
    } else {
        QApplication::restoreOverrideCursor();
    }
}

void QtSheetPrinter::setScale(Long scaleLeft, Long scaleTop) {
    m_scaleLeft = scaleLeft;
    m_scaleTop = scaleTop;
}

void QtSheetPrinter::usePrinter(const PrinterChoice& choice) {
    m_outputFile = choice.outputFile;
    if (!choice.outputFile.empty()) {
        m_printer->setOutputFormat(QPrinter::PdfFormat);
        m_printer->setOutputFileName(QFile::decodeName(choice.outputFile.c_str()));
    } else {
        m_printer->setOutputFormat(QPrinter::NativeFormat);
        if (!choice.printerName.empty()) {
            m_printer->setPrinterName(QString::fromStdString(choice.printerName));
        }
    }
    m_printer->setCopyCount(std::max(choice.copies, 1));
    m_printer->setFullPage(true);
    m_printer->setPageMargins(QMarginsF(0, 0, 0, 0), QPageLayout::Point);
    m_printer->setCreator(QStringLiteral("Vesk"));
    m_printer->setDocName(QString::fromLatin1(reportTitle));
}

QPainter& QtSheetPrinter::sheet() {
    if (!m_painter.isActive()) {
        if (!m_painter.begin(m_printer.get())) {
            fail(fileAccessFailure);
        }
        m_sheets = 1;
    } else if (m_sheetEnded) {
        if (!m_printer->newPage()) {
            fail(fileAccessFailure);
        }
        ++m_sheets;
    }
    m_sheetEnded = false;
    m_painter.resetTransform();
    const qreal scale = m_printer->resolution() / static_cast<qreal>(twipsPerInch);
    m_painter.scale(scale, scale);
    return m_painter;
}

void QtSheetPrinter::printFormAt(Long formWidth, const std::function<void(QPainter&)>& paint) {
    QPainter& painter = sheet();
    const QRectF paper = m_printer->paperRect(QPrinter::Inch);
    const qreal paperWidth = paper.width() * twipsPerInch;
    painter.translate(std::max<qreal>(0, (paperWidth - formWidth) / 2), formTopTwips);
    paint(painter);
    m_sheetEnded = true; // the printing of a form ends its sheet
}

void QtSheetPrinter::printForm(const FlowGraphSheet& form) {
    printFormAt(reportFormLayout.width, [&](QPainter& painter) { PaintFlowGraphSheet(painter, form); });
}

void QtSheetPrinter::printForm(const PumpCurveSheet& form) {
    printFormAt(pumpCurveFormLayout.chart.width, [&](QPainter& painter) { PaintPumpCurveSheet(painter, form); });
}

void QtSheetPrinter::paintPicture(const SheetGrid& grid, Long x, Long y) {
    QPainter& painter = sheet();
    PaintSheetGrid(painter, grid, QPointF(x - m_scaleLeft, y - m_scaleTop));
}

void QtSheetPrinter::endDoc() {
    if (m_painter.isActive() && !m_painter.end()) {
        fail(fileAccessFailure);
    }
}

void QtSheetPrinter::abandon() {
    if (m_painter.isActive()) {
        m_printer->abort();
        m_painter.end();
        if (!m_outputFile.empty()) {
            QFile::remove(QFile::decodeName(m_outputFile.c_str())); // no half a report
        }
    }
}

} // namespace vesk::gui
