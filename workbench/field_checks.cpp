// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// What the fields of the four areas accept, and how a bad entry is turned away.
#include "workbench/field_checks.h"

#include "workbench/calculate.h"

namespace vesk {

namespace {

constexpr int backspace = 8;
constexpr int firstWideKey = 128;

constexpr const char* emptyMessage = "Field cannot be empty";
constexpr const char* zeroNozzlesMessage = "Number of nozzles can not be zero please enter other number";
constexpr const char* tooManyNozzlesMessage = "Value should be less than or equal to ";
constexpr const char* maximumMessage = "Maximum Value can be entered is ";

bool isDigit(int keyCode) {
    return keyCode >= '0' && keyCode <= '9';
}

// The number at the front of a text, written back as a number.
std::string numberWrittenBack(const std::string& text) {
    return doubleText(leadingNumber(text));
}

} // namespace

bool KeyPasses(KeyFilter filter, int keyCode, const std::string& text) {
    if (keyCode >= firstWideKey) {
        return false;
    }
    if (keyCode == backspace || isDigit(keyCode)) {
        return true;
    }
    return filter == KeyFilter::Decimal && keyCode == '.' && text.find('.') == std::string::npos;
}

bool LengthCheck(ApplicationState& app, const PanelField& field, UserInteraction& ui) {
    std::string& text = TextOf(app.panel, field);
    if (text.empty()) {
        text = "0";
        app.flags.blnFieldValid = true;
        return false;
    }
    // The limit of the Units setting, compared strictly: the limit passes.
    const Double limit = app.config.Units ? field.unit.usLimit : field.unit.metricLimit;
    if (leadingNumber(text) > limit) {
        ui.showMessageBox(maximumMessage + doubleText(limit), MessageIcon::None);
        app.flags.blnFieldValid = false;
        return true;
    }
    text = numberWrittenBack(text);
    app.flags.blnFieldValid = true;
    return false;
}

void CountCheck(std::string& text) {
    text = text.empty() ? "0" : numberWrittenBack(text);
}

bool NozzleCheck(ApplicationState& app, UserInteraction& ui) {
    std::string& text = app.panel.txtNoOfNozzle;
    const Double maximum = leadingNumber(app.panel.txtMaxNozz);
    if (app.flags.blnQuietNozzleCheck) {
        app.flags.blnQuietNozzleCheck = false;
        if (text.empty() || leadingNumber(text) == 0 || leadingNumber(text) > maximum) {
            text = "1"; // silently, and nothing else is computed
        }
        return false;
    }
    const char* refusal = nullptr;
    std::string refusalText;
    if (text.empty()) {
        refusal = emptyMessage;
    } else if (leadingNumber(text) == 0) {
        refusal = zeroNozzlesMessage;
    } else if (leadingNumber(text) > maximum) {
        refusalText = tooManyNozzlesMessage + app.panel.txtMaxNozz;
        refusal = refusalText.c_str();
    }
    if (refusal != nullptr) {
        ui.showMessageBox(refusal, MessageIcon::None);
        return true;
    }
    text = numberWrittenBack(text);
    app.NoOfNozzles = parseInteger(text);
    app.LastChartNozzles = app.ChartNozzles;
    CreateResultTables(app);
    app.flags.blnQuietNozzleCheck = false;
    return false;
}

bool ValidateAllFields(ApplicationState& app, UserInteraction& ui) {
    NozzleCheck(app, ui);
    // The lengths in an order of their own: the flag that is given back
    // belongs to the rise alone.
    for (const char* name : {"txtHoseLen", "txtPipeLen", "txtBranchLength", "txtTrunkLength", "txtTankDiameter",
                             "txtBuryDepth", "txtRise"}) {
        LengthCheck(app, FieldNamed(name), ui);
    }
    return app.flags.blnFieldValid;
}

void OpenTopMenu(ApplicationState& app, UserInteraction& ui) {
    app.flags.blnQuietNozzleCheck = true;
    if (ValidateAllFields(app, ui)) {
        app.flags.blnQuietNozzleCheck = false;
    }
}

} // namespace vesk
