// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// Taking the snapshots of the panels and putting the Baseline's back.
#include "workbench/snapshot_store.h"

#include "workbench/panel_fields.h"

namespace vesk {

namespace {

constexpr std::string_view settingsChanged = "System Settings has changed";

// A list's position, held in a Byte: nothing selected (-1) overflows.
Byte positionOf(const ComboList& list) {
    return toByte(list.ListIndex());
}

// A length on its way into a snapshot: read as a Single, and in metric
// divided by the factor and rounded to 1 decimal; the text of the Single.
std::string lengthIn(const std::string& text, Double metricPerUs, bool metric) {
    Single value = parseSingle(text);
    if (metric) {
        value = toSingle(roundHalfEven(value / metricPerUs, 1));
    }
    return singleText(value);
}

// The same on its way out to a field: multiplied and rounded in metric.
std::string lengthOut(const std::string& stored, Double metricPerUs, bool metric) {
    Single value = parseSingle(stored);
    if (metric) {
        value = toSingle(roundHalfEven(value * metricPerUs, 1));
    }
    return singleText(value);
}

bool metricOn(PanelState& panel, const clsConfigureData& config) {
    return TouchFrmData(panel, config).optMetric;
}

// Every length and the tank diameter, in feet and inches.
void storeLengths(PanelState& panel, const clsConfigureData& config, SiteSnapshot& snapshot) {
    const bool metric = metricOn(panel, config);
    for (const PanelField* field : LengthFields()) {
        snapshot.*field->unit.snapshot = lengthIn(TextOf(panel, *field), field->unit.metricPerUs, metric);
    }
}

void restoreLengths(PanelState& panel, const clsConfigureData& config, const SiteSnapshot& snapshot) {
    const bool metric = metricOn(panel, config);
    for (const PanelField* field : LengthFields()) {
        TextOf(panel, *field) = lengthOut(snapshot.*field->unit.snapshot, field->unit.metricPerUs, metric);
    }
}

// The positions of the lists that both kinds of snapshot take.
void storeCommonLists(const PanelState& panel, SiteSnapshot& snapshot) {
    snapshot.Dispenser = positionOf(panel.cmbDispenser);
    snapshot.BreakAway = positionOf(panel.cmbBreakAway);
    snapshot.HoseSize = positionOf(panel.cmbHoseSize);
    snapshot.Nozzle = positionOf(panel.cmbNozzle);
    snapshot.DispOthers = positionOf(panel.cmbDispOthers);
    snapshot.Piping = positionOf(panel.cmbPiping);
    snapshot.Branch = positionOf(panel.cmbBranch);
    snapshot.BranchFitting = panel.txtBranchFitting;
    snapshot.Trunk = positionOf(panel.cmbTrunk);
    snapshot.TrunkFitting = panel.txtTrunkFitting;
    snapshot.Leak = positionOf(panel.cmbLeak);
}

void markPipingMode(const PanelState& panel, SiteSnapshot& snapshot) {
    if (panel.optBasic) {
        snapshot.IsBasic = 1;
    } else {
        snapshot.IsAdvance = 1;
    }
}

} // namespace

void FillStartupSnapshots(PanelState& panel, const clsConfigureData& config, Snapshots& snapshots) {
    for (SiteSnapshot* snapshot : {&snapshots.StartupSnapshot, &snapshots.BaselineSnapshot, &snapshots.SpareSnapshot}) {
        storeCommonLists(panel, *snapshot);
        storeLengths(panel, config, *snapshot);
        snapshot->Pump = positionOf(panel.cmbPumps);
        snapshot->PipeSize = positionOf(panel.cmbPipeSize);
    }
    markPipingMode(panel, snapshots.StartupSnapshot);
    snapshots.StartupSnapshot.Is50Hz = panel.opt50Hz;
}

void StoreBaselineSnapshot(PanelState& panel, const clsConfigureData& config, Snapshots& snapshots) {
    SiteSnapshot& snapshot = snapshots.BaselineSnapshot;
    snapshot.Data = config.Data;
    snapshot.ComponentList = config.ComponentList;
    snapshot.Is50Hz = panel.opt50Hz;
    storeCommonLists(panel, snapshot);
    storeLengths(panel, config, snapshot);
    snapshot.ValveSlot = 0;
    markPipingMode(panel, snapshot);
    // Not read from the list: the pump of start-up, whatever is selected now.
    snapshot.Pump = snapshots.StartupSnapshot.Pump;
    snapshot.Quantity = positionOf(panel.cmbQuantity);
    snapshot.PumpOthersSlot = 0;
    snapshot.NoOfBranches = positionOf(panel.cmbNoOfBranches);
}

bool RestoreBaselineSnapshot(PanelState& panel, const clsConfigureData& config, SiteSnapshot& snapshot,
                             UserInteraction& ui) {
    // Units are not compared: the lengths are converted on their way out.
    if (snapshot.ComponentList != config.ComponentList || snapshot.Data != config.Data ||
        snapshot.Is50Hz != panel.opt50Hz) {
        ui.showMessageBox(settingsChanged, MessageIcon::None);
        return false;
    }
    panel.cmbDispenser.SetListIndex(snapshot.Dispenser);
    panel.cmbHoseSize.SetListIndex(snapshot.HoseSize);
    panel.cmbNozzle.SetListIndex(snapshot.Nozzle);
    panel.cmbDispOthers.SetListIndex(snapshot.DispOthers);
    panel.cmbBreakAway.SetListIndex(snapshot.BreakAway);
    panel.cmbPiping.SetListIndex(snapshot.Piping);
    panel.cmbBranch.SetListIndex(snapshot.Branch);
    panel.txtBranchFitting = snapshot.BranchFitting;
    panel.cmbTrunk.SetListIndex(snapshot.Trunk);
    panel.txtTrunkFitting = snapshot.TrunkFitting;
    // The piping mode is not restored, but the snapshot is marked once more.
    markPipingMode(panel, snapshot);
    panel.cmbPumps.SetListIndex(snapshot.Pump);
    panel.cmbQuantity.SetListIndex(snapshot.Quantity);
    panel.cmbLeak.SetListIndex(snapshot.Leak);
    panel.cmbNoOfBranches.SetListIndex(snapshot.NoOfBranches);
    restoreLengths(panel, config, snapshot);
    return true;
}

} // namespace vesk
