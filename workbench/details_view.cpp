// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// What the System Headloss Details dialog shows of a breakdown.
#include "workbench/details_view.h"

#include "workbench/calculate.h"

#include "engine/number_format.h"
#include "engine/site_description.h"

namespace vesk {

namespace {

struct DetailsRow {
    const char* captionControl;
    const char* usCaption;
    const char* metricCaption;
    const char* valueControl;
    Single HeadLossBreakdown::*field;
    int maxDecimals; // "##0.0" or, for the hose, "##0.0#"
};

// In the order of the dialog; the captions are the system's, blanks included.
constexpr std::array<DetailsRow, detailsLineCount> detailsRows{{
    {"Label1", "Total Rise (ft)", "Total Rise(m)", "Rise", &HeadLossBreakdown::TotalRise, 1},
    {"Label2", "Leak Detector Loss (ft)", "Leak Detector Loss(m)", "MLD", &HeadLossBreakdown::LeakDetectorLoss, 1},
    {"Label3", "Trunk Loss (ft)", "Trunk Loss(m)", "Trunk", &HeadLossBreakdown::TrunkLoss, 1},
    {"Label4", "Branch Loss (ft)", "Branch Loss(m)", "Branch", &HeadLossBreakdown::BranchLoss, 1},
    {"Label5", "Dispenser Loss (ft)", "Dispenser Loss(m)", "Disp", &HeadLossBreakdown::DispenserLoss, 1},
    {"Label12", "Dispenser Others Loss(ft)", "Disp Others Loss(m)", "DispOthers", &HeadLossBreakdown::DispOthersLoss,
     1},
    {"Label6", "Breakaway Loss (ft)", "Breakaway Loss(m)", "Brk", &HeadLossBreakdown::BreakawayLoss, 1},
    {"Label7", "Hose Loss (ft)", "Hose Loss(m)", "Hose", &HeadLossBreakdown::HoseLoss, 2},
    {"Label8", "Nozzle Loss (ft)", "Nozzle Loss(m)", "Nozzle", &HeadLossBreakdown::NozzleLoss, 1},
    {"Label10", "Pump Others Loss(ft)", "Pump Others Loss(m)", "PumpOthers", &HeadLossBreakdown::PumpOthersLoss, 1},
    {"Label9", "TDH (ft)", "TDH(m)", "Total", &HeadLossBreakdown::TotalHead, 1},
}};

} // namespace

std::array<DetailsLine, detailsLineCount> LoadDetails(ApplicationState& app) {
    const HeadLossBreakdown& breakdown = RunDetails(app);
    return DetailsLines(breakdown, TouchFrmData(app.panel, app.config).optUS);
}

std::array<DetailsLine, detailsLineCount> DetailsLines(const HeadLossBreakdown& breakdown, bool optUS) {
    std::array<DetailsLine, detailsLineCount> lines;
    for (std::size_t i = 0; i < detailsRows.size(); ++i) {
        const DetailsRow& row = detailsRows[i];
        const Single feet = breakdown.*row.field;
        const Double shown = optUS ? Double{feet} : feet * units::metresPerFoot;
        lines[i] = DetailsLine{row.captionControl, optUS ? row.usCaption : row.metricCaption, row.valueControl,
                               feet == 0 ? notInRange : FormatFixed(shown, 1, row.maxDecimals)};
    }
    return lines;
}

} // namespace vesk
