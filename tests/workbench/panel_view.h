// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The panels as a person sees them, for comparing two states of the program.
#pragma once

#include "workbench/panel_state.h"
#include "workbench/result_grid.h"

#include <map>
#include <string>
#include <vector>

namespace vesk::test {

inline std::string join(const std::vector<std::string>& texts) {
    std::string joinedText;
    for (const std::string& text : texts) {
        joinedText += text + "|";
    }
    return joinedText;
}

// What the user sees of the four areas and the System Settings dialog: every
// field, every list (entries and selection) and every option, by control name.
inline std::map<std::string, std::string> panelState(const PanelState& panel) {
    std::map<std::string, std::string> state;
    const std::pair<const char*, const ComboList*> lists[] = {
        {"cmbNoOfBranches", &panel.cmbNoOfBranches},
        {"cmbDispenser", &panel.cmbDispenser},
        {"cmbBreakAway", &panel.cmbBreakAway},
        {"cmbHoseSize", &panel.cmbHoseSize},
        {"cmbNozzle", &panel.cmbNozzle},
        {"cmbDispOthers", &panel.cmbDispOthers},
        {"cmbPiping", &panel.cmbPiping},
        {"cmbPipeSize", &panel.cmbPipeSize},
        {"cmbTrunk", &panel.cmbTrunk},
        {"cmbBranch", &panel.cmbBranch},
        {"cmbPumps", &panel.cmbPumps},
        {"cmbQuantity", &panel.cmbQuantity},
        {"cmbLeak", &panel.cmbLeak},
        {"cmbPumpOthers", &panel.cmbPumpOthers},
    };
    for (const auto& [name, list] : lists) {
        state[std::string(name) + ".Text"] = list->Text();
        state[std::string(name) + ".ListIndex"] = std::to_string(list->ListIndex());
        state[std::string(name) + ".List"] = join(list->Entries());
    }
    const std::pair<const char*, const std::string*> texts[] = {
        {"txtTankDiameter", &panel.txtTankDiameter},
        {"txtBuryDepth", &panel.txtBuryDepth},
        {"txtRise", &panel.txtRise},
        {"txtHoseLen", &panel.txtHoseLen},
        {"txtNoOfNozzle", &panel.txtNoOfNozzle},
        {"txtMaxNozz", &panel.txtMaxNozz},
        {"txtPipeLen", &panel.txtPipeLen},
        {"txtTrunkLength", &panel.txtTrunkLength},
        {"txtBranchLength", &panel.txtBranchLength},
    };
    for (const auto& [name, text] : texts) {
        state[name] = *text;
    }
    for (std::size_t i = 0; i < 4; ++i) {
        state["txtTrunkFitting" + std::to_string(i)] = panel.txtTrunkFitting[i];
        state["txtBranchFitting" + std::to_string(i)] = panel.txtBranchFitting[i];
    }
    state["optBasic"] = std::to_string(panel.optBasic);
    state["optAdvance"] = std::to_string(panel.optAdvance);
    state["opt50Hz"] = std::to_string(panel.opt50Hz);
    state["opt60Hz"] = std::to_string(panel.opt60Hz);
    state["chkBall"] = std::to_string(panel.chkBall);
    state["chkSwing"] = std::to_string(panel.chkSwing);
    state["captions"] = join({panel.captions.lblHoseLength, panel.captions.lblLength, panel.captions.lblTrunkLength,
                              panel.captions.lblPipeLen, panel.captions.lblBuryDepth, panel.captions.lblRise,
                              panel.captions.lblTankDiameter});
    const FrmDataOptions& d = panel.frmData;
    state["frmData"] = std::to_string(panel.frmDataLoaded) + ":" +
                       join({std::to_string(d.optGas), std::to_string(d.optDiesel), std::to_string(d.optAmerican),
                             std::to_string(d.optInternational), std::to_string(d.optCommercial),
                             std::to_string(d.optUS), std::to_string(d.optMetric)});
    return state;
}

// The texts of a grid, row by row.
inline std::string gridText(const ResultGrid& grid) {
    std::string text;
    for (long row = 0; row < gridRowCount; ++row) {
        for (long column = 0; column < gridColumnCount; ++column) {
            text += grid.TextMatrix(row, column) + "|";
        }
        text += "\n";
    }
    return text;
}

// The names of the entries that differ between two states.
inline std::vector<std::string> changed(const std::map<std::string, std::string>& before,
                                        const std::map<std::string, std::string>& after) {
    std::vector<std::string> names;
    for (const auto& [name, value] : before) {
        if (after.at(name) != value) {
            names.push_back(name);
        }
    }
    return names;
}

} // namespace vesk::test
