// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The initialisation of the main window, at start-up and at File, New.
#include "workbench/startup.h"

#include "workbench/calculate.h"
#include "workbench/snapshot_store.h"
#include "workbench/system_settings.h"

#include "catalogue/component_file.h"
#include "catalogue/piping_file.h"

namespace vesk {

std::string DefaultSiteFile(const std::filesystem::path& programFolder) {
    return (programFolder / "SaveSiteInfo" / "Default.txt").string();
}

namespace {

void readCatalogueFiles(ApplicationState& app, UserInteraction& ui) {
    PipingData piping = GetPipeHeadFileData(app.programFolder, ui);
    app.piping = piping.tables;
    PanelState& panel = app.panel;
    panel.cmbPiping.Clear();
    panel.cmbBranch.Clear();
    panel.cmbTrunk.Clear();
    panel.cmbPipeSize.Clear();
    for (const std::string& material : piping.materialNames) {
        panel.cmbPiping.AddItem(material);
    }
    for (const std::string& size : piping.sizeNames) {
        panel.cmbBranch.AddItem(size);
        panel.cmbTrunk.AddItem(size);
        panel.cmbPipeSize.AddItem(size);
    }
    panel.cmbPiping.SetListIndex(0);
    panel.cmbTrunk.SetListIndex(0);
    panel.cmbBranch.SetListIndex(0);
    panel.cmbPipeSize.SetListIndex(0);

    for (ComponentKind kind : startupReadOrder) {
        app.catalogues.of(kind) = GetComponentFileData(kind, app.programFolder, ui);
    }
}

// Step 9 and 10 of the initialisation: the lists filled by hand for the
// 60 Hz pumps and the active fuel and list, and their first selections.
void fillAndSelectLists(ApplicationState& app) {
    PanelState& panel = app.panel;
    const ListOptions options = ListOptionsOf(panel, app.config);

    panel.cmbPumps.Clear();
    AddListedRecords(panel.cmbPumps, app.catalogues.of(ComponentKind::Pump), LoaderFlag::Pump60Hz, options);
    FillComponentLists(panel, app.catalogues, options);

    if (panel.cmbPumps.ListCount() == 0) {
        panel.cmbPumps.AddItem("None");
    }
    panel.cmbPumps.SetListIndex(0);
    // Index 1 is the first real component, behind "None"; a list that offers
    // nothing for the active fuel and list fails here.
    for (ComboList* list : {&panel.cmbDispenser, &panel.cmbDispOthers, &panel.cmbNozzle, &panel.cmbLeak,
                            &panel.cmbBreakAway, &panel.cmbPumpOthers}) {
        list->SetListIndex(1);
    }
    panel.cmbHoseSize.SetListIndex(0);
}

} // namespace

void InitialiseMainWindow(ApplicationState& app, UserInteraction& ui) {
    app.caption = DefaultSiteFile(app.programFolder);
    app.strSiteFile = app.caption;
    app.flags.blnUSActive = true;
    app.flags.blnMetricActive = false;
    app.flowChart.CurrentInLitres = false;
    app.flowChart.BaselineInLitres = false;
    app.flags.blnQuietNozzleCheck = false;

    // New, empty instances of the application's objects.
    app.catalogues = Catalogues{};
    app.piping = PipingTables{};
    app.config = clsConfigureData{};
    app.siteProperties = clsSiteProperties{};

    ReadIniFile(app.programFolder, ui, {app.config, app.panel.txtMaxNozz, app.panel.cmbNoOfBranches, app.iniRawLines});

    // The panels: the Dispensing Area on show, Advance and 60 Hz chosen, the
    // recommendation lists disabled.
    app.window.tabMain = Area::Dispensing;
    app.panel.optAdvance = true;
    app.panel.optBasic = false;
    app.panel.opt60Hz = true;
    app.panel.opt50Hz = false;
    app.window.recommendation.lstDispensingEnabled = false;
    app.window.recommendation.lstPumpEnabled = false;

    app.flags.BaselineGridPending = false;
    app.flags.NeedBaseline = true;
    app.flags.ChartNotDrawnYet = true;

    readCatalogueFiles(app, ui);

    // The System Settings Ok, unseen: the one place where a metric run gets
    // its metric numbers.
    TouchFrmData(app.panel, app.config);
    ApplySystemSettings(app);

    fillAndSelectLists(app);

    app.panel.txtHoseLen = "0";
    app.panel.cmbQuantity.Clear();
    for (const char* quantity : {"1", "2", "3", "4"}) {
        app.panel.cmbQuantity.AddItem(quantity);
    }
    app.panel.cmbQuantity.SetListIndex(0);
    // Choosing the first number of branches loads the site picture.
    app.panel.cmbNoOfBranches.SetListIndex(0);
    app.window.sitePictureDue = true;

    FormatGrid(app.flxCurrent);
    FormatGrid(app.flxBaseLine);

    app.NoOfNozzles = parseInteger(app.panel.txtNoOfNozzle);
    CreateResultTables(app);
    app.LastChartNozzles = app.ChartNozzles;

    // A number of nozzles above the limit is cut to it; the numbers of the
    // tables are not computed again here.
    if (leadingNumber(app.panel.txtNoOfNozzle) > leadingNumber(app.panel.txtMaxNozz)) {
        app.panel.txtNoOfNozzle = app.panel.txtMaxNozz;
    }

    FillGrid(app.flxCurrent, GridSide::Current, app.panel, app.config);
    FillGrid(app.flxBaseLine, GridSide::Baseline, app.panel, app.config);
    FillStartupSnapshots(app.panel, app.config, app.snapshots);

    Calculate(app);
    UpdatePumpCurve(app.pumpCurve, app.panel, app.config, app.catalogues);
    app.flags.blnSaved = true;
}

} // namespace vesk
