// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The ten texts that identify a site and its report, and their dialog as data.
#include "site/site_properties.h"

#include "messages/user_interaction.h"

#include <string_view>

namespace vesk {

namespace {

constexpr int backspace = 8;
constexpr int firstWideKey = 128;
constexpr int emailBox = 3;
constexpr int phoneBox = 4;

// The properties behind the boxes, in the order of the boxes.
struct BoxBinding {
    std::string clsSiteProperties::*property;
    bool siteInfo; // txtSiteInfo, else txtReport
    std::size_t index;
};

constexpr std::array<BoxBinding, 10> boxes{{
    {&clsSiteProperties::strCustomerName, true, 0},
    {&clsSiteProperties::strCustomerContact, true, 1},
    {&clsSiteProperties::strSiteDescription, true, 2},
    {&clsSiteProperties::strAddress1, true, 3},
    {&clsSiteProperties::strAddress2, true, 4},
    {&clsSiteProperties::strGeneratedBy, false, 0},
    {&clsSiteProperties::strDate, false, 1},
    {&clsSiteProperties::strContact, false, 2},
    {&clsSiteProperties::strEmail, false, 3},
    {&clsSiteProperties::strPhone, false, 4},
}};

std::string& boxOf(SitePropertiesForm& form, const BoxBinding& binding) {
    return binding.siteInfo ? form.txtSiteInfo[binding.index] : form.txtReport[binding.index];
}

bool isPhoneCharacter(int keyCode) {
    constexpr std::string_view extra = "x- ()";
    return (keyCode >= '0' && keyCode <= '9') || extra.find(static_cast<char>(keyCode)) != std::string_view::npos;
}

} // namespace

void LoadSitePropertiesForm(SitePropertiesForm& form, const clsSiteProperties& properties) {
    form.loaded = true;
    form.cancelling = false;
    for (const BoxBinding& binding : boxes) {
        boxOf(form, binding) = properties.*binding.property;
    }
    form.chkPrint = properties.blnPrintFields ? 1 : 0;
}

void ShowSitePropertiesForm(SitePropertiesForm& form, const clsSiteProperties& properties) {
    if (!form.loaded) {
        LoadSitePropertiesForm(form, properties);
    }
}

bool SiteInfoKeyPasses(int keyCode) {
    return keyCode < firstWideKey;
}

bool ReportKeyPasses(int index, int keyCode, const std::string& text) {
    if (keyCode >= firstWideKey) {
        return false;
    }
    if (keyCode == backspace) {
        return true;
    }
    if (index == phoneBox) {
        return isPhoneCharacter(keyCode);
    }
    if (index == emailBox && keyCode == '@') {
        return text.find('@') == std::string::npos;
    }
    return true;
}

bool ReportLostFocus(const SitePropertiesForm& form, int index, UserInteraction& ui) {
    if (index != emailBox) {
        return false;
    }
    const std::string& email = form.txtReport[emailBox];
    if (email.empty() || form.cancelling) {
        return false;
    }
    // Only the presence of each symbol is tested, not their order.
    if (email.find('@') == std::string::npos || email.find('.') == std::string::npos) {
        ui.showMessageBox(emailMessage, MessageIcon::None);
        return true;
    }
    return false;
}

void PressCancelWithMouse(SitePropertiesForm& form) {
    form.cancelling = true;
}

void CancelSitePropertiesForm(SitePropertiesForm& form) {
    form = SitePropertiesForm{};
}

void AcceptSitePropertiesForm(SitePropertiesForm& form, clsSiteProperties& properties) {
    for (const BoxBinding& binding : boxes) {
        properties.*binding.property = boxOf(form, binding);
    }
    properties.blnPrintFields = form.chkPrint == 1;
    form = SitePropertiesForm{};
}

} // namespace vesk
