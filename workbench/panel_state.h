// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The inputs of the main window and the System Settings dialog as plain data.
#pragma once

#include "catalogue/list_views.h"
#include "engine/catalogues.h"
#include "engine/site_description.h"
#include "site/configure_data.h"

#include <array>
#include <string>

namespace vesk {

// The option buttons of the System Settings dialog, frmData.
struct FrmDataOptions {
    bool optGas = false;
    bool optDiesel = false;
    bool optAmerican = false;
    bool optInternational = false;
    bool optCommercial = false;
    bool optUS = false;
    bool optMetric = false;
};

// The option of a component list by its code (0 American, 1 International,
// 2 Commercial).
bool FrmDataOptions::*ComponentListOption(Byte componentList);

// What the dialog's load sets from clsConfigureData.
FrmDataOptions LoadFrmDataOptions(const clsConfigureData& config);

// The captions of the labels of the fields that carry a unit.
struct UnitCaptions {
    std::string lblHoseLength;
    std::string lblLength;
    std::string lblTrunkLength;
    std::string lblPipeLen;
    std::string lblBuryDepth;
    std::string lblRise;
    std::string lblTankDiameter;
};

UnitCaptions UsCaptions();
UnitCaptions MetricCaptions();

// Every input of the four areas under its control's name, with the texts the
// fields hold at design, and the System Settings dialog while it is loaded.
struct PanelState {
    // Site Layout
    std::string txtTankDiameter = "96";
    std::string txtBuryDepth = "3";
    std::string txtRise = "0";
    ComboList cmbNoOfBranches;

    // Dispensing Area
    ComboList cmbDispenser;
    ComboList cmbBreakAway;
    ComboList cmbHoseSize;
    std::string txtHoseLen = "0";
    ComboList cmbNozzle;
    ComboList cmbDispOthers;
    std::string txtNoOfNozzle = "8";
    std::string txtMaxNozz = "40";

    // Piping Area
    bool optBasic = false;
    bool optAdvance = true;
    ComboList cmbPiping;
    ComboList cmbPipeSize;
    std::string txtPipeLen = "0";
    ComboList cmbTrunk;
    std::string txtTrunkLength = "0";
    std::array<std::string, 4> txtTrunkFitting{"0", "0", "0", "0"};
    Integer chkBall = 0;
    Integer chkSwing = 0;
    ComboList cmbBranch;
    std::string txtBranchLength = "0";
    std::array<std::string, 4> txtBranchFitting{"0", "0", "0", "0"};

    // Pump Area
    ComboList cmbPumps;
    ComboList cmbQuantity;
    bool opt50Hz = false;
    bool opt60Hz = true;
    ComboList cmbLeak;
    ComboList cmbPumpOthers;

    UnitCaptions captions = UsCaptions();

    // The System Settings dialog: its options exist while it is loaded; reading
    // them when it is not loads it from clsConfigureData.
    bool frmDataLoaded = false;
    FrmDataOptions frmData;
};

// The dialog's options, loading it first when it is not loaded.
const FrmDataOptions& TouchFrmData(PanelState& panel, const clsConfigureData& config);

// The options the list loaders read: fuel and list from the dialog (loading it
// when needed), frequency from the Pump Area.
ListOptions ListOptionsOf(PanelState& panel, const clsConfigureData& config);

// Fills the pump list through the 50 Hz loader when opt50Hz is on, then through
// the 60 Hz loader when opt60Hz is on (no "None" entry).
void FillPumpList(PanelState& panel, const Catalogues& catalogues, const ListOptions& options);

// The click of opt50Hz or opt60Hz, which runs only when the option is on: the
// pump list refilled through the 50 Hz or the 60 Hz view, its first entry
// selected, and "None" added when the list stays empty.
void ClickFrequencyOption(PanelState& panel, const Catalogues& catalogues, const clsConfigureData& config,
                          bool fiftyHz);

// LoadAllLists: refills the component lists of the main window: the pumps,
// then, when optGas is on, the seven lists through their gas loaders, and when
// optDiesel is on through their diesel loaders. The earlier selections are not
// kept. With both fuel options off the seven lists stay as they were.
void LoadAllLists(PanelState& panel, const Catalogues& catalogues, const clsConfigureData& config);

// The same seven lists filled for the active fuel, whatever the options say
// of the other one: the second filling at start-up.
void FillComponentLists(PanelState& panel, const Catalogues& catalogues, const ListOptions& options);

// The SiteDescription of a Calculate: the texts of the fields converted by the
// ordinary numeric conversion, the fitting counts rounded half to even, the
// selections by index and text, the settings from the System Settings dialog.
// Fields of the other piping mode are not read.
SiteDescription BuildSiteDescription(PanelState& panel, const clsConfigureData& config);

} // namespace vesk
