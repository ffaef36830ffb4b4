// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// Paints the report's sheets and grids with QPainter, in twips, as lines, shapes and text.
#include "gui/reports/sheet_painter.h"

#include "gui/common/text_codec.h"
#include "gui/reports/chart_picture.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>

namespace vesk::gui {

namespace {

constexpr qreal twipsPerPoint = 20;
constexpr qreal cellPadding = 40;
const QColor gridLine(150, 150, 150);
const QColor captionInk(90, 90, 90);

QString text(const std::string& bytes) {
    return fromWindows1252(bytes);
}

void drawText(QPainter& painter, const QRectF& box, int flags, const QString& value, const QFont& font,
              const QColor& ink = Qt::black) {
    painter.setFont(font);
    painter.setPen(ink);
    painter.drawText(box, flags, value);
}

void rule(QPainter& painter, qreal y, qreal width) {
    painter.setPen(QPen(reportInk, 20));
    painter.drawLine(QPointF(0, y), QPointF(width, y));
}

// One block of five captions and values under its heading.
void paintBlock(QPainter& painter, bool reportBlock, const char* heading, const std::array<const char*, 5>& captions,
                const std::array<std::string, 5>& values) {
    const ReportFormLayout& l = reportFormLayout;
    const QRectF headingBox = toQRect(reportBlock ? l.lblReportHeading : l.lblSiteInfoHeading);
    drawText(painter, headingBox, Qt::AlignLeft | Qt::AlignVCenter, QString::fromLatin1(heading), TwipsFont(11, true),
             reportInk);
    for (std::size_t i = 0; i < captions.size(); ++i) {
        const auto row = static_cast<Long>(i);
        const QRectF captionBox = toQRect(l.fieldCaption(reportBlock, row));
        const QRectF valueBox = toQRect(l.fieldValue(reportBlock, row));
        drawText(painter, captionBox, Qt::AlignLeft | Qt::AlignVCenter, QString::fromLatin1(captions[i]), TwipsFont(9),
                 captionInk);
        drawText(painter, valueBox, Qt::AlignLeft | Qt::AlignVCenter, text(values[i]), TwipsFont(9));
        painter.setPen(QPen(QColor(210, 210, 210), 10));
        painter.drawLine(valueBox.bottomLeft(), valueBox.bottomRight());
    }
}

void paintTable(QPainter& painter, const FlowGraphSheet& sheet) {
    const ReportFormLayout& l = reportFormLayout;
    drawText(painter, toQRect(l.Label3), Qt::AlignCenter, QString::fromLatin1(flowGraphTableTitle), TwipsFont(11, true),
             reportInk);
    const std::array<const std::array<std::string, flowGraphTableNozzles>*, 5> rows{
        &sheet.lblNozz, &sheet.lblCurrentFR, &sheet.lblBaselineFR, &sheet.lblChangeFR, &sheet.lblPerFR};
    for (Long row = 0; row < 5; ++row) {
        const bool numbers = row == 0;
        const QRectF captionBox = toQRect(l.tableCell(row, -1));
        painter.fillRect(captionBox, reportShade);
        painter.setPen(QPen(gridLine, 10));
        painter.drawRect(captionBox);
        drawText(painter, captionBox.adjusted(cellPadding, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter,
                 text(sheet.lblCaptions[static_cast<std::size_t>(row)]), TwipsFont(8, true));
        for (Long column = 0; column < flowGraphTableNozzles; ++column) {
            const QRectF cell = toQRect(l.tableCell(row, column));
            if (numbers) {
                painter.fillRect(cell, reportShade);
            }
            painter.setPen(QPen(gridLine, 10));
            painter.drawRect(cell);
            drawText(painter, cell, Qt::AlignCenter,
                     text((*rows[static_cast<std::size_t>(row)])[static_cast<std::size_t>(column)]),
                     TwipsFont(8, numbers));
        }
    }
}

// A chart of the core painted into a box of twips; it is laid out at the
// box's size on the screen, so its fonts keep their screen sizes.
template <typename Show> void paintChart(QPainter& painter, const TwipsRect& box, Show&& show) {
    const QSize pixels(static_cast<int>(box.width / twipsPerPixel), static_cast<int>(box.height / twipsPerPixel));
    ChartPicture picture(pixels);
    show(picture.adapter());
    picture.paint(painter, toQRect(box));
    painter.setPen(QPen(gridLine, 10));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(toQRect(box));
}

// The font made smaller, down to three quarters, until the text fits its cell.
QFont fittingFont(QFont font, const QString& value, qreal width) {
    const int full = font.pixelSize();
    while (font.pixelSize() > full * 3 / 4 && QFontMetricsF(font).horizontalAdvance(value.trimmed()) > width) {
        font.setPixelSize(font.pixelSize() - 5);
    }
    return font;
}

} // namespace

QFont TwipsFont(qreal points, bool bold) {
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(static_cast<int>(points * twipsPerPoint));
    font.setBold(bold);
    // Without ligatures the text of a PDF searches and copies letter by letter.
    font.setStyleStrategy(QFont::PreferNoShaping);
    return font;
}

QRectF toQRect(const TwipsRect& rect) {
    return QRectF(rect.x, rect.y, rect.width, rect.height);
}

void PaintLogo(QPainter& painter, const QRectF& box, int which) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(box.topLeft());
    painter.scale(box.width() / 256.0, box.height() / 256.0);
    painter.setPen(Qt::NoPen);
    painter.setBrush(reportInk);
    painter.drawRoundedRect(QRectF(16, 16, 224, 224), 40, 40);
    if (which == 0) {
        // A dispenser with its hose beside a rising flow curve.
        painter.setBrush(QColor(156, 195, 234));
        painter.drawRoundedRect(QRectF(32, 192, 192, 16), 8, 8);
        painter.setPen(QPen(QColor(143, 224, 90), 14, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        const QPointF curve[] = {{148, 164}, {168, 120}, {194, 90}, {220, 74}};
        painter.drawPolyline(curve, 4);
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(143, 224, 90));
        for (const QPointF& point : curve) {
            painter.drawEllipse(point, 13, 13);
        }
        painter.setBrush(QColor(255, 159, 28));
        painter.drawRoundedRect(QRectF(64, 72, 64, 128), 10, 10);
        painter.setBrush(reportInk);
        painter.drawRoundedRect(QRectF(80, 88, 32, 32), 4, 4);
        QPainterPath hose;
        hose.moveTo(64, 100);
        hose.lineTo(56, 100);
        hose.quadTo(44, 100, 44, 112);
        hose.lineTo(44, 152);
        painter.setPen(QPen(QColor(244, 247, 251), 8, Qt::SolidLine, Qt::RoundCap));
        painter.setBrush(Qt::NoBrush);
        painter.drawPath(hose);
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(244, 247, 251));
        painter.drawRoundedRect(QRectF(32, 144, 24, 32), 6, 6);
    } else {
        // The word mark: the name over a flow line.
        QFont mark(QStringLiteral("DejaVu Sans"));
        mark.setPixelSize(72);
        mark.setBold(true);
        painter.setFont(mark);
        painter.setPen(Qt::white);
        painter.drawText(QRectF(16, 60, 224, 100), Qt::AlignCenter, QStringLiteral("VESK"));
        painter.setPen(QPen(QColor(143, 224, 90), 12, Qt::SolidLine, Qt::RoundCap));
        painter.drawLine(QPointF(52, 180), QPointF(204, 180));
        painter.setPen(QPen(QColor(255, 159, 28), 12, Qt::SolidLine, Qt::RoundCap));
        painter.drawLine(QPointF(52, 206), QPointF(150, 206));
    }
    painter.restore();
}

void PaintReportHead(QPainter& painter, const ReportHeads& heads) {
    const ReportFormLayout& l = reportFormLayout;
    PaintLogo(painter, toQRect(l.Picture1), 0);
    PaintLogo(painter, toQRect(l.Picture2), 1);
    drawText(painter, toQRect(l.Label1), Qt::AlignCenter, QString::fromLatin1(reportTitle), TwipsFont(22, true),
             reportInk);
    drawText(painter, toQRect(l.Label4), Qt::AlignCenter, QString::fromLatin1(supportLine), TwipsFont(8), captionInk);
    rule(painter, l.headRuleY, l.width);
    paintBlock(painter, false, siteInfoHeading, siteInfoCaptions, heads.lblSiteData);
    paintBlock(painter, true, reportHeading, reportCaptions, heads.lblReportData);
    rule(painter, l.blockRuleY, l.width);
}

void PaintFlowGraphSheet(QPainter& painter, const FlowGraphSheet& sheet) {
    const ReportFormLayout& l = reportFormLayout;
    PaintReportHead(painter, sheet.heads);
    paintChart(painter, l.chart, [&](ChartAdapter& adapter) {
        adapter.setTitle(QString::fromLatin1(flowChartTitle));
        ShowFlowChart(adapter, sheet.msChartFlowGraph, chartDefaultColours);
    });
    drawText(painter, toQRect(l.lblCurrentPumpPrint), Qt::AlignLeft | Qt::AlignVCenter,
             text(sheet.heads.lblCurrentPumpPrint), TwipsFont(9));
    drawText(painter, toQRect(l.lblBaselinePumpPrint), Qt::AlignLeft | Qt::AlignVCenter,
             text(sheet.heads.lblBaselinePumpPrint), TwipsFont(9));
    paintTable(painter, sheet);
}

void PaintPumpCurveSheet(QPainter& painter, const PumpCurveSheet& sheet) {
    const PumpCurveFormLayout& l = pumpCurveFormLayout;
    drawText(painter, toQRect(l.lblPumpName), Qt::AlignLeft | Qt::AlignVCenter, text(sheet.lblPumpName),
             TwipsFont(14, true), reportInk);
    paintChart(painter, l.chart, [&](ChartAdapter& adapter) { ShowPumpCurve(adapter, sheet.chart); });
}

void PaintSheetGrid(QPainter& painter, const SheetGrid& grid, QPointF topLeft) {
    const QFont font = TwipsFont(8, grid.fontBold);
    qreal y = topLeft.y();
    for (long row = 0; row < grid.Rows(); ++row) {
        const qreal height = grid.RowHeight(row);
        qreal x = topLeft.x();
        std::vector<qreal> left;
        for (long column = 0; column <= grid.Cols(); ++column) {
            left.push_back(x);
            if (column < grid.Cols()) {
                x += grid.ColWidth(column);
            }
        }
        for (const MergedSpan& span : RowSpans(grid, row)) {
            const QRectF cell(
                left[static_cast<std::size_t>(span.first)], y,
                left[static_cast<std::size_t>(span.last + 1)] - left[static_cast<std::size_t>(span.first)], height);
            if (cell.width() <= hiddenSizeTwips || height <= hiddenSizeTwips) {
                continue; // a hidden row or column
            }
            if (grid.MergeRow(row) && span.last > span.first) {
                painter.fillRect(cell, reportShade); // a title across the grid
            }
            painter.setPen(QPen(gridLine, 10));
            painter.setBrush(Qt::NoBrush);
            painter.drawRect(cell);
            const int alignment = grid.ColAlignment(span.first) == CellAlignment::CenterCenter
                                      ? Qt::AlignCenter
                                      : int(Qt::AlignLeft | Qt::AlignVCenter);
            painter.save();
            painter.setClipRect(cell);
            const QRectF inside = cell.adjusted(cellPadding, 0, -cellPadding, 0);
            drawText(painter, inside, alignment, text(grid.TextMatrix(row, span.first)),
                     fittingFont(font, text(grid.TextMatrix(row, span.first)), inside.width()));
            painter.restore();
        }
        y += height;
    }
}

} // namespace vesk::gui
