// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The total dynamic head that the pump set must deliver.
#include "engine/system_head.h"

#include "engine/pipe_friction.h"

namespace vesk {

namespace {

// Equivalent length in feet of one fitting type at one pipe size.
Single fittingLengthFt(const PipingTables& piping, int fittingType, long sizeIndex) {
    return at(at(piping.FittingLength, fittingType), sizeIndex);
}

// The rows of the fitting table that Basic mode puts on its one pipe.
constexpr int elbow90 = 1;
constexpr int thruTee = 2;
constexpr int sideTee = 3;

// Basic mode takes its roughness from the second material.
constexpr long basicMaterial = 1;
// Basic mode takes its diameters from the first pipe size, whatever size is chosen.
constexpr long basicDiameterIndex = 0;
constexpr Double basicTrunkShare = 0.75;
constexpr Double basicBranchShare = 0.25;

// A pipe length entered in metres, in feet rounded to one decimal.
Single metricPipeLengthFt(Single lengthM) {
    return toSingle(roundHalfEven(lengthM / units::metresPerFoot, 1));
}

// The pipe length plus the entered fittings of one run at its size, a Single
// sum at each fitting.
Single withFittings(Single lengthFt, const std::array<Integer, fittingTypeCount>& counts, const PipingTables& piping,
                    long sizeIndex) {
    for (int i = 0; i < fittingTypeCount; ++i) {
        lengthFt = toSingle(lengthFt + static_cast<Single>(counts[static_cast<std::size_t>(i)]) *
                                           Double{fittingLengthFt(piping, i, sizeIndex)});
    }
    return lengthFt;
}

// What the friction of trunk and branch is computed from.
struct PipeRuns {
    long trunkSize = 0;
    Single trunkLengthFt = 0;
    long branchSize = 0;
    Single branchLengthFt = 0;
    long material = 0;
};

PipeRuns advancePipeRuns(const SiteDescription& site, const PipingTables& piping, HeadLossBreakdown& breakdown) {
    PipeRuns runs;
    runs.trunkSize = site.TrunkIndex;
    runs.trunkLengthFt = site.IsMetric ? metricPipeLengthFt(site.TrunkLength) : site.TrunkLength;
    runs.trunkLengthFt = withFittings(runs.trunkLengthFt, site.TrunkFitting, piping, runs.trunkSize);
    breakdown.ValveLength = TrunkValveLength(site, piping);
    runs.trunkLengthFt = toSingle(Double{runs.trunkLengthFt} + breakdown.ValveLength);

    runs.branchSize = site.BranchIndex;
    runs.branchLengthFt = site.IsMetric ? metricPipeLengthFt(site.BranchLength) : site.BranchLength;
    runs.branchLengthFt = withFittings(runs.branchLengthFt, site.BranchFitting, piping, runs.branchSize); // no valves

    // The item tag of the material list, never assigned, so always 0.
    runs.material = site.PipingTag;
    return runs;
}

// Basic mode: one pipe length, a fixed set of fittings, no valves. The length
// enters as feet whatever the units, and only the fittings follow the chosen size.
PipeRuns basicPipeRuns(const SiteDescription& site, const PipingTables& piping) {
    const long size = site.PipeSizeIndex;
    PipeRuns runs;
    runs.trunkLengthFt = toSingle(site.PipeLen * basicTrunkShare);
    runs.trunkLengthFt = toSingle(runs.trunkLengthFt + 2 * Double{fittingLengthFt(piping, elbow90, size)});
    runs.trunkLengthFt = toSingle(Double{runs.trunkLengthFt} + fittingLengthFt(piping, thruTee, size));
    runs.trunkLengthFt = toSingle(Double{runs.trunkLengthFt} + fittingLengthFt(piping, sideTee, size));
    runs.branchLengthFt = toSingle(site.PipeLen * basicBranchShare + fittingLengthFt(piping, elbow90, size));
    runs.trunkSize = basicDiameterIndex;
    runs.branchSize = basicDiameterIndex;
    runs.material = basicMaterial;
    return runs;
}

// Height in feet from the tank to the dispenser: the whole tank diameter, the
// bury depth and the rise, a Single at each step.
Single totalRiseFt(const SiteDescription& site) {
    Single a = site.TankDiameter;
    if (site.IsMetric) {
        a = toSingle(a / units::centimetresPerInch);
    }
    Single rise = toSingle(Double{a} / units::inchesPerFoot);
    a = site.BuryDepth;
    if (site.IsMetric) {
        a = toSingle(a / units::metresPerFoot);
    }
    rise = toSingle(Double{rise} + a);
    a = site.Rise;
    if (site.IsMetric) {
        a = toSingle(a / units::metresPerFoot);
    }
    return toSingle(Double{rise} + a);
}

} // namespace

Single TrunkValveLength(const SiteDescription& site, const PipingTables& piping) {
    const long size = site.TrunkIndex;
    const ValveRecord& ballValve = piping.ValveTable[0];
    const ValveRecord& swingCheck = piping.ValveTable[1];
    if (site.BallValve == 1 && site.SwingCheck == 1) {
        return toSingle(Double{at(ballValve.Length, size)} + at(swingCheck.Length, size));
    }
    if (site.BallValve == 1) {
        return at(ballValve.Length, size);
    }
    if (site.SwingCheck == 1) {
        return at(swingCheck.Length, size);
    }
    return 0;
}

Single AddComponentLosses(const HydraulicSite& hydraulics, Single sum, Single totalGpm, Single flowPerNozzleGpm,
                          HeadLossBreakdown& breakdown) {
    const ResolvedComponents& c = hydraulics.components;
    const auto add = [&sum](Single& field, Single lossFt) {
        field = lossFt;
        sum = toSingle(Double{sum} + lossFt);
    };
    add(breakdown.LeakDetectorLoss, LookupLoss(c.leak, totalGpm)); // the only one at the total flow
    add(breakdown.DispenserLoss, LookupLoss(c.dispenser, flowPerNozzleGpm));
    add(breakdown.DispOthersLoss, LookupLoss(c.dispOthers, flowPerNozzleGpm));
    add(breakdown.BreakawayLoss, LookupLoss(c.breakaway, flowPerNozzleGpm));
    add(breakdown.NozzleLoss, LookupLoss(c.nozzle, flowPerNozzleGpm));
    // Though it stands at the pump, it is looked up at the flow of one nozzle.
    add(breakdown.PumpOthersLoss, LookupLoss(c.pumpOthers, flowPerNozzleGpm));
    breakdown.TotalHead = sum;
    add(breakdown.HoseLoss, HoseLoss(c.hose, c.hoseLengthFt, flowPerNozzleGpm));
    breakdown.TotalHead = sum;
    return sum;
}

Single SystemHead(const HydraulicSite& hydraulics, Single flowPerNozzleGpm, Integer nozzles,
                  HeadLossBreakdown& breakdown) {
    const SiteDescription& site = hydraulics.site;
    const PipingTables& piping = hydraulics.piping;
    const PipeRuns runs =
        site.Mode == PipingMode::Advance ? advancePipeRuns(site, piping, breakdown) : basicPipeRuns(site, piping);

    // The trunk carries all nozzles, a branch its share, the dispenser path one nozzle.
    const Single totalGpm = toSingle(static_cast<Single>(nozzles) * Double{flowPerNozzleGpm});
    const Single roughnessFt = at(piping.PipeRoughness, runs.material);
    breakdown.TrunkLoss =
        PipeFriction(at(piping.PipeDiameter, runs.trunkSize), runs.trunkLengthFt, totalGpm, roughnessFt);
    const Single branchGpm = toSingle(divide(totalGpm, static_cast<Single>(site.NoOfBranches)));
    breakdown.BranchLoss =
        PipeFriction(at(piping.PipeDiameter, runs.branchSize), runs.branchLengthFt, branchGpm, roughnessFt);
    breakdown.TotalRise = totalRiseFt(site);

    const Single sum = toSingle(Double{breakdown.BranchLoss} + breakdown.TrunkLoss + breakdown.TotalRise);
    return AddComponentLosses(hydraulics, sum, totalGpm, flowPerNozzleGpm, breakdown);
}

} // namespace vesk
