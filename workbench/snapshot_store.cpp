// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// Taking the snapshots of the panels and putting the Baseline's back.
#include "workbench/snapshot_store.h"

#include "engine/site_description.h"

namespace vesk {

namespace {

constexpr std::string_view settingsChanged = "System Settings has changed";

// A list's position, held in a Byte: nothing selected (-1) overflows.
Byte positionOf(const ComboList& list) {
    return toByte(list.ListIndex());
}

bool metricOn(ApplicationState& app) {
    return TouchFrmData(app.panel, app.config).optMetric;
}

// A length on its way into a snapshot: read as a Single, and in metric
// divided by the factor and rounded to 1 decimal; the text of the Single.
std::string lengthIn(ApplicationState& app, const std::string& field, Double factor) {
    Single value = parseSingle(field);
    if (metricOn(app)) {
        value = toSingle(roundHalfEven(value / factor, 1));
    }
    return singleText(value);
}

// The same on its way out to a field: multiplied and rounded in metric.
std::string lengthOut(ApplicationState& app, const std::string& stored, Double factor) {
    Single value = parseSingle(stored);
    if (metricOn(app)) {
        value = toSingle(roundHalfEven(value * factor, 1));
    }
    return singleText(value);
}

void storeDispensingArea(ApplicationState& app, SiteSnapshot& snapshot) {
    const PanelState& panel = app.panel;
    snapshot.Dispenser = positionOf(panel.cmbDispenser);
    snapshot.BreakAway = positionOf(panel.cmbBreakAway);
    snapshot.HoseSize = positionOf(panel.cmbHoseSize);
    snapshot.HoseLen = lengthIn(app, panel.txtHoseLen, units::metresPerFoot);
    snapshot.Nozzle = positionOf(panel.cmbNozzle);
    snapshot.DispOthers = positionOf(panel.cmbDispOthers);
}

void storePipingArea(ApplicationState& app, SiteSnapshot& snapshot) {
    const PanelState& panel = app.panel;
    snapshot.Piping = positionOf(panel.cmbPiping);
    snapshot.Branch = positionOf(panel.cmbBranch);
    snapshot.BranchLength = lengthIn(app, panel.txtBranchLength, units::metresPerFoot);
    snapshot.BranchFitting = panel.txtBranchFitting;
    snapshot.Trunk = positionOf(panel.cmbTrunk);
    snapshot.TrunkLength = lengthIn(app, panel.txtTrunkLength, units::metresPerFoot);
    snapshot.TrunkFitting = panel.txtTrunkFitting;
}

void markPipingMode(const PanelState& panel, SiteSnapshot& snapshot) {
    if (panel.optBasic) {
        snapshot.IsBasic = 1;
    } else {
        snapshot.IsAdvance = 1;
    }
}

void storeSiteLayout(ApplicationState& app, SiteSnapshot& snapshot) {
    snapshot.TankDiameter = lengthIn(app, app.panel.txtTankDiameter, units::centimetresPerInch);
    snapshot.BuryDepth = lengthIn(app, app.panel.txtBuryDepth, units::metresPerFoot);
    snapshot.Rise = lengthIn(app, app.panel.txtRise, units::metresPerFoot);
}

// What start-up writes to each of the three snapshots.
void storeStartupFields(ApplicationState& app, SiteSnapshot& snapshot) {
    storeDispensingArea(app, snapshot);
    storePipingArea(app, snapshot);
    snapshot.Pump = positionOf(app.panel.cmbPumps);
    snapshot.Leak = positionOf(app.panel.cmbLeak);
    storeSiteLayout(app, snapshot);
    snapshot.PipeSize = positionOf(app.panel.cmbPipeSize);
    snapshot.PipeLen = lengthIn(app, app.panel.txtPipeLen, units::metresPerFoot);
}

} // namespace

void FillStartupSnapshots(ApplicationState& app) {
    Snapshots& snapshots = app.snapshots;
    for (SiteSnapshot* snapshot : {&snapshots.StartupSnapshot, &snapshots.BaselineSnapshot, &snapshots.SpareSnapshot}) {
        storeStartupFields(app, *snapshot);
    }
    markPipingMode(app.panel, snapshots.StartupSnapshot);
    snapshots.StartupSnapshot.Is50Hz = app.panel.opt50Hz;
}

void StoreBaselineSnapshot(ApplicationState& app) {
    SiteSnapshot& snapshot = app.snapshots.BaselineSnapshot;
    snapshot.Data = app.config.Data;
    snapshot.ComponentList = app.config.ComponentList;
    snapshot.Is50Hz = app.panel.opt50Hz;
    storeDispensingArea(app, snapshot);
    storePipingArea(app, snapshot);
    snapshot.ValveSlot = 0;
    markPipingMode(app.panel, snapshot);
    // Not read from the list: the pump of start-up, whatever is selected now.
    snapshot.Pump = app.snapshots.StartupSnapshot.Pump;
    snapshot.Quantity = positionOf(app.panel.cmbQuantity);
    snapshot.Leak = positionOf(app.panel.cmbLeak);
    snapshot.PumpOthersSlot = 0;
    storeSiteLayout(app, snapshot);
    snapshot.NoOfBranches = positionOf(app.panel.cmbNoOfBranches);
    snapshot.PipeLen = lengthIn(app, app.panel.txtPipeLen, units::metresPerFoot);
}

bool RestoreBaselineSnapshot(ApplicationState& app, UserInteraction& ui) {
    SiteSnapshot& snapshot = app.snapshots.BaselineSnapshot;
    PanelState& panel = app.panel;
    // Units are not compared: the lengths are converted on their way out.
    if (snapshot.ComponentList != app.config.ComponentList || snapshot.Data != app.config.Data ||
        snapshot.Is50Hz != panel.opt50Hz) {
        ui.showMessageBox(settingsChanged, MessageIcon::None);
        return false;
    }
    panel.cmbDispenser.SetListIndex(snapshot.Dispenser);
    panel.cmbHoseSize.SetListIndex(snapshot.HoseSize);
    panel.txtHoseLen = lengthOut(app, snapshot.HoseLen, units::metresPerFoot);
    panel.cmbNozzle.SetListIndex(snapshot.Nozzle);
    panel.cmbDispOthers.SetListIndex(snapshot.DispOthers);
    panel.cmbBreakAway.SetListIndex(snapshot.BreakAway);
    panel.cmbPiping.SetListIndex(snapshot.Piping);
    panel.cmbBranch.SetListIndex(snapshot.Branch);
    panel.txtBranchLength = lengthOut(app, snapshot.BranchLength, units::metresPerFoot);
    panel.txtBranchFitting = snapshot.BranchFitting;
    panel.cmbTrunk.SetListIndex(snapshot.Trunk);
    panel.txtTrunkLength = lengthOut(app, snapshot.TrunkLength, units::metresPerFoot);
    panel.txtTrunkFitting = snapshot.TrunkFitting;
    // The piping mode is not restored, but the snapshot is marked once more.
    markPipingMode(panel, snapshot);
    panel.cmbPumps.SetListIndex(snapshot.Pump);
    panel.cmbQuantity.SetListIndex(snapshot.Quantity);
    panel.cmbLeak.SetListIndex(snapshot.Leak);
    panel.cmbNoOfBranches.SetListIndex(snapshot.NoOfBranches);
    panel.txtTankDiameter = lengthOut(app, snapshot.TankDiameter, units::centimetresPerInch);
    panel.txtBuryDepth = lengthOut(app, snapshot.BuryDepth, units::metresPerFoot);
    panel.txtRise = lengthOut(app, snapshot.Rise, units::metresPerFoot);
    panel.txtPipeLen = lengthOut(app, snapshot.PipeLen, units::metresPerFoot);
    return true;
}

} // namespace vesk
