// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The sweep: for each number of nozzles, the flow per nozzle that the pump set
// can deliver, found by stepping a trial flow by 0.1 GPM.
#include "engine/flow_sweep.h"

namespace vesk {

namespace {

// The step of the trial flow, a Double: the Single sums drift from the tenths,
// and that drift is part of the results before their rounding.
constexpr Double trialFlowStepGpm = 0.1;

// A pump head of exactly this value would also end the stepping.
constexpr Single stopMarkerHeadFt = -1;

// Adds one to a 16-bit count, failing with "Overflow" past its range.
Integer nextCount(Integer n) {
    return toInteger(static_cast<Long>(n) + 1);
}

// Raises the trial flow per nozzle from 0 by 0.1 GPM until the pump head at
// the total flow is no longer above the system head. Leaves the trial flow
// at the step that ended the stepping, and the breakdown of that step.
Single stepUntilPumpFails(const HydraulicSite& hydraulics, Integer nozzles, EngineScratch& scratch) {
    scratch.TrialFlow = 0;
    Single pumpHeadFt = 0;
    Single systemHeadFt = 0;
    do {
        scratch.TrialFlow = NextTrialFlow(scratch.TrialFlow);
        const Single totalGpm = toSingle(static_cast<Single>(nozzles) * Double{scratch.TrialFlow});
        systemHeadFt = SystemHead(hydraulics, scratch.TrialFlow, nozzles, scratch.Breakdown);
        pumpHeadFt = PumpHead(hydraulics.components.pump, totalGpm);
        if (pumpHeadFt == stopMarkerHeadFt) {
            break;
        }
    } while (pumpHeadFt > systemHeadFt);
    return pumpHeadFt;
}

// Rounds the swept flows to one decimal, GPM first and litres from the rounded
// GPM, and copies both into the lists.
void roundResults(FlowTable& table, Integer swept) {
    redim(table.GpmList, static_cast<long>(swept) - 1);
    redim(table.LpmList, static_cast<long>(swept) - 1);
    for (long i = 0; i <= static_cast<long>(swept) - 1; ++i) {
        Single& gpm = at(table.GpmPerNozzle, i);
        gpm = toSingle(roundHalfEven(gpm, 1));
        at(table.GpmList, i) = gpm;
        Single& lpm = at(table.LpmPerNozzle, i);
        lpm = toSingle(gpm * units::lpmPerGpm);
        lpm = toSingle(roundHalfEven(lpm, 1));
        at(table.LpmList, i) = lpm;
    }
}

} // namespace

Single NextTrialFlow(Single trialFlowGpm) {
    const Single next = toSingle(trialFlowGpm + trialFlowStepGpm);
    if (next == trialFlowGpm) {
        fail(failure::overflow);
    }
    return next;
}

Integer NextEvenNozzles(Integer noOfNozzles) {
    const Long step = noOfNozzles % 2 == 0 ? 2 : 1;
    return toInteger(static_cast<Long>(noOfNozzles) + step);
}

void CreateFlowTable(FlowTable& table, Integer chartNozzles) {
    redim(table.GpmPerNozzle, chartNozzles);
    redim(table.LpmPerNozzle, chartNozzles);
    redim(table.NozzleAxis, chartNozzles);
}

void FillNozzleAxis(FlowTable& table) {
    for (std::size_t i = 0; i < table.NozzleAxis.size(); ++i) {
        table.NozzleAxis[i] = static_cast<Single>(i);
    }
}

void Sweep(FlowTable& table, std::vector<Single>& nozzleLabels, SweepButton button, const HydraulicSite& hydraulics,
           EngineScratch& scratch) {
    if (button == SweepButton::Calculate) {
        redim(nozzleLabels, 1);
    }
    Integer n = 1;
    // The number of nozzles is read anew before each pass.
    while (parseNumber(hydraulics.site.NoOfNozzle) >= n) {
        stepUntilPumpFails(hydraulics, n, scratch);
        // The step that failed is taken back.
        scratch.TrialFlow = toSingle(scratch.TrialFlow - trialFlowStepGpm);
        at(table.GpmPerNozzle, n) = scratch.TrialFlow;
        at(nozzleLabels, n) = static_cast<Single>(n);
        n = nextCount(n);
        redimPreserve(nozzleLabels, n);
    }
    FillNozzleAxis(table);
    roundResults(table, n);
}

Single DetailsStepping(const HydraulicSite& hydraulics, EngineScratch& scratch) {
    const Integer nozzles = parseInteger(hydraulics.site.NoOfNozzle);
    // No step back: the breakdown is that of the step where the pump first
    // failed to exceed the system.
    return stepUntilPumpFails(hydraulics, nozzles, scratch);
}

} // namespace vesk
