// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// Where everything stands on the report's pages and sheets, in twips (1440 to the inch).
#pragma once

#include "engine/numeric.h"

#include <array>

namespace vesk {

inline constexpr Long twipsPerInch = 1440;

struct TwipsRect {
    Long x = 0;
    Long y = 0;
    Long width = 0;
    Long height = 0;
    constexpr Long right() const { return x + width; }
    constexpr Long bottom() const { return y + height; }
};

// The printer's scale for the report: the origin moved so that what is
// painted later has a left margin of 720 and a top margin of 1080 twips.
inline constexpr Long reportScaleLeft = -720;
inline constexpr Long reportScaleTop = -1080;

// The second sheet: where the pictures of the grids are painted.
struct SheetPlace {
    Long x;
    Long y;
};
inline constexpr SheetPlace printCompareAt{100, 30};
inline constexpr SheetPlace printNextCompareAt{100, 2000};
inline constexpr SheetPlace componentListBelowCompareAt{100, 4000};
inline constexpr SheetPlace componentListAloneAt{0, 0};

// The head that frmPrint and frmPrintFlowGraph share, and the table of
// frmPrintFlowGraph, on a form 10800 twips (7.5 inches) wide.
struct ReportFormLayout {
    Long width = 10800;
    TwipsRect Picture1{0, 0, 1100, 1100};
    TwipsRect Picture2{9700, 0, 1100, 1100};
    TwipsRect Label1{1300, 60, 8200, 640};
    TwipsRect Label4{1300, 720, 8200, 300};
    Long headRuleY = 1220;
    TwipsRect lblSiteInfoHeading{0, 1340, 5200, 320};
    TwipsRect lblReportHeading{5600, 1340, 5200, 320};
    Long fieldTop = 1700;
    Long fieldHeight = 300;
    Long fieldCaptionWidth = 1800;
    Long fieldWidth = 5200;
    Long blockRuleY = 3300;
    TwipsRect chart{0, 3420, 10800, 6700};
    TwipsRect lblCurrentPumpPrint{0, 10160, 5300, 300};
    TwipsRect lblBaselinePumpPrint{5500, 10160, 5300, 300};
    TwipsRect Label3{0, 10620, 10800, 360};
    Long tableTop = 11040;
    Long tableRowHeight = 330;
    Long tableCaptionWidth = 2400;
    Long tableNozzleWidth = 600;
    Long height = 12750;

    // The caption or value box of row i (0 to 4) of the site block (left) or
    // the report block (right).
    constexpr TwipsRect fieldCaption(bool reportBlock, Long i) const {
        return {blockX(reportBlock), fieldTop + i * fieldHeight, fieldCaptionWidth, fieldHeight};
    }
    constexpr TwipsRect fieldValue(bool reportBlock, Long i) const {
        return {blockX(reportBlock) + fieldCaptionWidth, fieldTop + i * fieldHeight, fieldWidth - fieldCaptionWidth,
                fieldHeight};
    }
    // The cells of the table: row 0 the nozzle numbers, rows 1 to 4 the
    // figures; column -1 the caption, 0 to 13 the nozzles.
    constexpr TwipsRect tableCell(Long row, Long column) const {
        const Long y = tableTop + row * tableRowHeight;
        if (column < 0) {
            return {0, y, tableCaptionWidth, tableRowHeight};
        }
        return {tableCaptionWidth + column * tableNozzleWidth, y, tableNozzleWidth, tableRowHeight};
    }
    static constexpr Long blockX(bool reportBlock) { return reportBlock ? 5600 : 0; }
};
inline constexpr ReportFormLayout reportFormLayout{};

// frmPrintPumpCurve: the pump's label above its chart, printed as it stands
// (no margins of its own).
struct PumpCurveFormLayout {
    TwipsRect lblPumpName{0, 0, 10800, 500};
    TwipsRect chart{0, 600, 10800, 8400};
};
inline constexpr PumpCurveFormLayout pumpCurveFormLayout{};

} // namespace vesk
