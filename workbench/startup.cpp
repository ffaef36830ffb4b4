// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The initialisation of the main window and the Calculate that ends it.
#include "workbench/startup.h"

#include "catalogue/component_file.h"
#include "catalogue/piping_file.h"
#include "workbench/snapshot_store.h"

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

// A field's text converted between units: read as a Double, multiplied or
// divided, rounded to 1 decimal, written back.
std::string convertFieldText(const std::string& text, Double factor, bool toMetric) {
    const Double value = parseNumber(text);
    const Double converted = toMetric ? value * factor : value / factor;
    return doubleText(roundHalfEven(converted, 1));
}

void convertFields(PanelState& panel, bool toMetric) {
    for (std::string* field : {&panel.txtHoseLen, &panel.txtBranchLength, &panel.txtTrunkLength, &panel.txtPipeLen,
                               &panel.txtBuryDepth, &panel.txtRise}) {
        *field = convertFieldText(*field, units::metresPerFoot, toMetric);
    }
    panel.txtTankDiameter = convertFieldText(panel.txtTankDiameter, units::centimetresPerInch, toMetric);
    panel.captions = toMetric ? MetricCaptions() : UsCaptions();
}

void sweepInto(ApplicationState& app, FlowTable& table, SweepButton button) {
    const SiteDescription site = BuildSiteDescription(app.panel, app.config);
    const HydraulicSite hydraulics(site, app.piping, app.catalogues);
    Sweep(table, app.results.NozzleLabels, button, hydraulics, app.results.engine);
}

void rebuildChartRows(ApplicationState& app, const FlowTable& ownTable) {
    app.LastChartNozzles = RebuildChartRows(app.flowChart, app.LastChartNozzles, app.ChartNozzles, ownTable);
}

} // namespace

bool ApplySystemSettings(ApplicationState& app) {
    PanelState& panel = app.panel;
    LoadAllLists(panel, app.catalogues, app.config);

    const FrmDataOptions& dialog = TouchFrmData(panel, app.config);
    app.config.Data = dialog.optGas;
    if (dialog.optAmerican) {
        app.config.ComponentList = 0;
    }
    if (dialog.optInternational) {
        app.config.ComponentList = 1;
    }
    if (dialog.optCommercial) {
        app.config.ComponentList = 2;
    }
    app.config.Units = dialog.optUS;

    if (dialog.optUS && app.flags.blnMetricActive) {
        convertFields(panel, false);
        app.flags.blnMetricActive = false;
        app.flags.blnUSActive = true;
    }
    if (dialog.optMetric && app.flags.blnUSActive) {
        convertFields(panel, true);
        app.flags.blnMetricActive = true;
        app.flags.blnUSActive = false;
    }
    const bool replot = !app.flags.ChartNotDrawnYet;
    if (replot) {
        ReplotForUnits(app.flowChart, app.results.Current, app.results.Baseline, app.ChartNozzles, app.config.Units);
    }
    panel.frmDataLoaded = false;
    return replot;
}

void CreateResultTables(ApplicationState& app) {
    app.ChartNozzles = NextEvenNozzles(parseInteger(app.panel.txtNoOfNozzle));
    CreateFlowTable(app.results.Current, app.ChartNozzles);
    CreateFlowTable(app.results.Baseline, app.ChartNozzles);
    CreateChartMatrix(app.flowChart, app.ChartNozzles);
}

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

    app.panel.optAdvance = true;
    app.panel.optBasic = false;
    app.panel.opt60Hz = true;
    app.panel.opt50Hz = false;

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
    app.panel.cmbNoOfBranches.SetListIndex(0);

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
    FillStartupSnapshots(app);

    Calculate(app);
    UpdatePumpCurve(app.pumpCurve, app.panel, app.config, app.catalogues);
    app.flags.blnSaved = true;
}

void Calculate(ApplicationState& app) {
    app.flags.ChartNotDrawnYet = false;
    app.flowChart.lblCurrentPump = LegendLabel(ChartSide::Current, app.panel.cmbPumps.Text());
    FillNozzleAxis(app.results.Current);
    rebuildChartRows(app, app.results.Current);
    sweepInto(app, app.results.Current, SweepButton::Calculate);
    DrawSeries(app.flowChart, ChartSide::Current, app.results.Current, app.results.Baseline, app.ChartNozzles,
               app.config.Units);
    if (app.flags.NeedBaseline) {
        MakeBaseline(app);
        app.flags.NeedBaseline = false;
    }
    FillGrid(app.flxCurrent, GridSide::Current, app.panel, app.config);
    app.flags.blnSaved = false;
}

void MakeBaseline(ApplicationState& app) {
    app.flags.NeedBaseline = false;
    app.flowChart.lblBaselinePump = LegendLabel(ChartSide::Baseline, app.panel.cmbPumps.Text());
    app.flags.BaselineGridPending = true;
    FillNozzleAxis(app.results.Baseline);
    rebuildChartRows(app, app.results.Baseline);
    sweepInto(app, app.results.Baseline, SweepButton::BaseLine);
    DrawSeries(app.flowChart, ChartSide::Baseline, app.results.Baseline, app.results.Current, app.ChartNozzles,
               app.config.Units);
    if (!app.flags.NeedBaseline) { // always so here
        StoreBaselineSnapshot(app);
    }
    if (!app.flags.NeedBaseline || app.flags.BaselineGridPending) {
        FillGrid(app.flxBaseLine, GridSide::Baseline, app.panel, app.config);
        app.flags.BaselineGridPending = false;
    }
}

void BackToBaseline(ApplicationState& app, UserInteraction& ui) {
    // The three steps run with no check between them: under other settings
    // the message shows, and a Baseline of the panels as they are is made.
    RestoreBaselineSnapshot(app, ui);
    FillGrid(app.flxBaseLine, GridSide::Baseline, app.panel, app.config);
    MakeBaseline(app);
}

} // namespace vesk
