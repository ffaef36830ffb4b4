// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The sweep: for each number of nozzles, the flow per nozzle that the pump set
// can deliver, found by stepping a trial flow by 0.1 GPM.
#pragma once

#include "engine/system_head.h"

#include <vector>

namespace vesk {

// The results of one sweep; index n is the number of nozzles running.
struct FlowTable {
    std::vector<Single> GpmPerNozzle; // 0 to ChartNozzles
    std::vector<Single> LpmPerNozzle; // 0 to ChartNozzles
    std::vector<Single> NozzleAxis;   // 0 to ChartNozzles, the value i at index i
    std::vector<Single> GpmList;      // 0 to the number of nozzles swept, after the first sweep
    std::vector<Single> LpmList;
};

// The size of the result tables for a number of nozzles: the next even number
// strictly above it (8 gives 10, 7 gives 8).
Integer NextEvenNozzles(Integer noOfNozzles);

// Creates all arrays of a table anew with indices 0 to `chartNozzles`, cleared;
// the two lists exist only after a sweep.
void CreateFlowTable(FlowTable& table, Integer chartNozzles);

// Fills NozzleAxis[i] with i for every index of the table.
void FillNozzleAxis(FlowTable& table);

// What the engine writes besides the table: the trial flow, left at its last
// value, and the breakdown of the latest head evaluation.
struct EngineScratch {
    Single TrialFlow = 0;
    HeadLossBreakdown Breakdown;
};

// The next trial flow: 0.1 GPM (the Double) added and the sum kept as a Single.
// Where a Single can no longer hold another 0.1 the stepping would repeat the
// same step forever; that ends with "Overflow".
Single NextTrialFlow(Single trialFlowGpm);

// The two buttons that sweep differ only in the table they fill and in this.
enum class SweepButton { Calculate, BaseLine };

// Fills `table` for n = 1 while the number of nozzles of the site, read as a
// Double before each n, is at least n. `nozzleLabels` is shared by both tables.
void Sweep(FlowTable& table, std::vector<Single>& nozzleLabels, SweepButton button, const HydraulicSite& hydraulics,
           EngineScratch& scratch);

// The stepping of the details dialog: one stepping at the number of nozzles
// read as an Integer, without taking the failing step back. Leaves the trial
// flow and the breakdown at that failing step; returns the pump head there.
Single DetailsStepping(const HydraulicSite& hydraulics, EngineScratch& scratch);

} // namespace vesk
