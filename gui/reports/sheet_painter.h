// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// Paints the report's sheets and grids with QPainter, in twips, as lines, shapes and text.
#pragma once

#include "reports/print_report.h"
#include "reports/sheet_grid.h"
#include "reports/sheet_layout.h"

#include <QColor>
#include <QFont>
#include <QRectF>

class QPainter;

namespace vesk::gui {

// The report's colours: the ink of the headings and rules, the shade of head cells.
inline const QColor reportInk(23, 74, 124);
inline const QColor reportShade(231, 238, 246);

// A font of `points` for a painter whose units are twips (20 to a point).
QFont TwipsFont(qreal points, bool bold = false);

QRectF toQRect(const TwipsRect& rect);

// The maker's two logos (0 the picture, 1 the word mark) in a box.
void PaintLogo(QPainter& painter, const QRectF& box, int which);

// All of these paint with the painter's units taken as twips.
// The head of the report: logos, title, support line, the site and report blocks.
void PaintReportHead(QPainter& painter, const ReportHeads& heads);
// frmPrintFlowGraph as a form: the head, the flow graph, the legends and the table.
void PaintFlowGraphSheet(QPainter& painter, const FlowGraphSheet& sheet);
// frmPrintPumpCurve as a form: its label and its chart.
void PaintPumpCurveSheet(QPainter& painter, const PumpCurveSheet& sheet);
// The picture of a whole grid with its top left corner at `topLeft`.
void PaintSheetGrid(QPainter& painter, const SheetGrid& grid, QPointF topLeft);

} // namespace vesk::gui
