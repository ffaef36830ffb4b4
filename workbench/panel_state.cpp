// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The inputs of the main window and the System Settings dialog as plain data.
#include "workbench/panel_state.h"

#include "workbench/panel_fields.h"

#include "catalogue/component_lists.h"

namespace vesk {

bool FrmDataOptions::*ComponentListOption(Byte componentList) {
    static constexpr std::array<bool FrmDataOptions::*, 3> optionOf{
        &FrmDataOptions::optAmerican, &FrmDataOptions::optInternational, &FrmDataOptions::optCommercial};
    return at(optionOf, componentList);
}

FrmDataOptions LoadFrmDataOptions(const clsConfigureData& config) {
    FrmDataOptions options;
    options.optGas = config.Data;
    options.optDiesel = !config.Data;
    options.optUS = config.Units;
    options.optMetric = !config.Units;
    for (const ComponentListName& list : componentListNames) {
        options.*ComponentListOption(list.code) = config.ComponentList == list.code;
    }
    return options;
}

UnitCaptions UsCaptions() {
    UnitCaptions captions;
    for (const PanelField* field : LengthFields()) {
        captions.*field->unit.label = field->unit.usCaption;
    }
    return captions;
}

UnitCaptions MetricCaptions() {
    UnitCaptions captions;
    for (const PanelField* field : LengthFields()) {
        captions.*field->unit.label = field->unit.metricCaption;
    }
    return captions;
}

const FrmDataOptions& TouchFrmData(PanelState& panel, const clsConfigureData& config) {
    if (!panel.frmDataLoaded) {
        panel.frmData = LoadFrmDataOptions(config);
        panel.frmDataLoaded = true;
    }
    return panel.frmData;
}

ListOptions ListOptionsOf(PanelState& panel, const clsConfigureData& config) {
    const FrmDataOptions& dialog = TouchFrmData(panel, config);
    ListOptions options;
    options.optGas = dialog.optGas;
    options.optDiesel = dialog.optDiesel;
    options.optAmerican = dialog.optAmerican;
    options.optInternational = dialog.optInternational;
    options.optCommercial = dialog.optCommercial;
    options.opt50Hz = panel.opt50Hz;
    options.opt60Hz = panel.opt60Hz;
    return options;
}

namespace {

// The seven lists with "None", in the order they are filled, and their kinds.
struct ComponentListSlot {
    ComboList PanelState::*list;
    ComponentKind kind;
};

constexpr std::array<ComponentListSlot, 7> componentLists{{
    {&PanelState::cmbDispenser, ComponentKind::Dispenser},
    {&PanelState::cmbDispOthers, ComponentKind::DispenserOthers},
    {&PanelState::cmbNozzle, ComponentKind::Nozzle},
    {&PanelState::cmbHoseSize, ComponentKind::Hose},
    {&PanelState::cmbLeak, ComponentKind::LeakDetector},
    {&PanelState::cmbBreakAway, ComponentKind::Breakaway},
    {&PanelState::cmbPumpOthers, ComponentKind::PumpOthers},
}};

void fillSevenLists(PanelState& panel, const Catalogues& catalogues, const ListOptions& options, LoaderFlag flag) {
    for (const ComponentListSlot& slot : componentLists) {
        FillComponentList(panel.*slot.list, catalogues.of(slot.kind), flag, options, true);
    }
}

} // namespace

void FillPumpList(PanelState& panel, const Catalogues& catalogues, const ListOptions& options) {
    const Catalogue& pumps = catalogues.of(ComponentKind::Pump);
    if (options.opt50Hz) {
        FillComponentList(panel.cmbPumps, pumps, LoaderFlag::Pump50Hz, options, false);
    }
    if (options.opt60Hz) {
        FillComponentList(panel.cmbPumps, pumps, LoaderFlag::Pump60Hz, options, false);
    }
}

void ClickFrequencyOption(PanelState& panel, const Catalogues& catalogues, const clsConfigureData& config,
                          bool fiftyHz) {
    panel.opt50Hz = fiftyHz;
    panel.opt60Hz = !fiftyHz;
    const ListOptions options = ListOptionsOf(panel, config);
    panel.cmbPumps.Clear();
    AddListedRecords(panel.cmbPumps, catalogues.of(ComponentKind::Pump),
                     fiftyHz ? LoaderFlag::Pump50Hz : LoaderFlag::Pump60Hz, options);
    if (panel.cmbPumps.ListCount() > 0) {
        panel.cmbPumps.SetListIndex(0);
    }
    if (panel.cmbPumps.ListIndex() == -1) {
        panel.cmbPumps.AddItem("None");
    }
    panel.cmbPumps.SetListIndex(0);
}

void LoadAllLists(PanelState& panel, const Catalogues& catalogues, const clsConfigureData& config) {
    const ListOptions options = ListOptionsOf(panel, config);
    FillPumpList(panel, catalogues, options);
    if (options.optGas) {
        fillSevenLists(panel, catalogues, options, LoaderFlag::Gas);
    }
    if (options.optDiesel) {
        fillSevenLists(panel, catalogues, options, LoaderFlag::Diesel);
    }
}

void FillComponentLists(PanelState& panel, const Catalogues& catalogues, const ListOptions& options) {
    fillSevenLists(panel, catalogues, options, options.optGas ? LoaderFlag::Gas : LoaderFlag::Diesel);
}

namespace {

ComponentChoice choiceOf(const ComboList& list) {
    return {list.ListIndex(), list.Text()};
}

// The letter of the list option that is on; American when none is.
char marketOf(const FrmDataOptions& dialog) {
    for (const ComponentListName& list : componentListNames) {
        if (dialog.*ComponentListOption(list.code)) {
            return list.letter[0];
        }
    }
    return componentListNames[0].letter[0];
}

std::array<Integer, 4> fittingCounts(const std::array<std::string, 4>& texts) {
    std::array<Integer, 4> counts{};
    for (std::size_t i = 0; i < texts.size(); ++i) {
        counts[i] = parseInteger(texts[i]);
    }
    return counts;
}

} // namespace

SiteDescription BuildSiteDescription(PanelState& panel, const clsConfigureData& config) {
    SiteDescription site;
    site.TankDiameter = parseSingle(panel.txtTankDiameter);
    site.BuryDepth = parseSingle(panel.txtBuryDepth);
    site.Rise = parseSingle(panel.txtRise);
    site.NoOfBranches = toByte(parseNumber(panel.cmbNoOfBranches.Text()));

    site.Dispenser = choiceOf(panel.cmbDispenser);
    site.BreakAway = choiceOf(panel.cmbBreakAway);
    site.HoseSize = choiceOf(panel.cmbHoseSize);
    site.HoseLen = parseSingle(panel.txtHoseLen);
    site.Nozzle = choiceOf(panel.cmbNozzle);
    site.DispOthers = choiceOf(panel.cmbDispOthers);
    site.NoOfNozzle = panel.txtNoOfNozzle;

    if (panel.optBasic) {
        site.Mode = PipingMode::Basic;
        site.PipeSizeIndex = panel.cmbPipeSize.ListIndex();
        site.PipeLen = parseSingle(panel.txtPipeLen);
    } else {
        site.Mode = PipingMode::Advance;
        // The item tag of the material: nothing ever assigns one, so it is 0.
        site.PipingTag = static_cast<Integer>(panel.cmbPiping.ItemData(panel.cmbPiping.ListIndex()));
        site.TrunkIndex = panel.cmbTrunk.ListIndex();
        site.TrunkLength = parseSingle(panel.txtTrunkLength);
        site.TrunkFitting = fittingCounts(panel.txtTrunkFitting);
        site.BallValve = panel.chkBall;
        site.SwingCheck = panel.chkSwing;
        site.BranchIndex = panel.cmbBranch.ListIndex();
        site.BranchLength = parseSingle(panel.txtBranchLength);
        site.BranchFitting = fittingCounts(panel.txtBranchFitting);
    }

    site.Pump = choiceOf(panel.cmbPumps);
    site.Quantity = toByte(parseNumber(panel.cmbQuantity.Text()));
    site.Is50Hz = panel.opt50Hz;
    site.Leak = choiceOf(panel.cmbLeak);
    site.PumpOthers = choiceOf(panel.cmbPumpOthers);

    const FrmDataOptions& dialog = TouchFrmData(panel, config);
    site.IsGas = dialog.optGas;
    site.Market = marketOf(dialog);
    site.IsMetric = dialog.optMetric;
    return site;
}

} // namespace vesk
