// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The site properties and the checks of their dialog.
#include "support/recording_interaction.h"

#include "site/site_properties.h"

#include <gtest/gtest.h>

namespace vesk {
namespace {

using test::RecordingInteraction;

SitePropertiesForm formWithEmail(const std::string& email) {
    SitePropertiesForm form;
    LoadSitePropertiesForm(form, clsSiteProperties{});
    form.txtReport[3] = email;
    return form;
}

TEST(SiteProperties, ANewInstanceIsEmptyAndDoesNotPrint) {
    const clsSiteProperties properties;
    EXPECT_FALSE(properties.blnPrintFields);
    EXPECT_EQ(properties.strCustomerName, "");
    EXPECT_EQ(properties.strPhone, "");
}

TEST(SitePropertiesForm, LoadTakesEveryBoxFromItsProperty) {
    clsSiteProperties properties;
    properties.strCustomerName = "Northside Fuels";
    properties.strAddress2 = "Unit 4";
    properties.strGeneratedBy = "J. Designer";
    properties.strPhone = "(555) 0100";
    properties.blnPrintFields = true;
    SitePropertiesForm form;
    LoadSitePropertiesForm(form, properties);
    EXPECT_TRUE(form.loaded);
    EXPECT_EQ(form.txtSiteInfo[0], "Northside Fuels");
    EXPECT_EQ(form.txtSiteInfo[4], "Unit 4");
    EXPECT_EQ(form.txtReport[0], "J. Designer");
    EXPECT_EQ(form.txtReport[4], "(555) 0100");
    EXPECT_EQ(form.chkPrint, 1);
}

TEST(SitePropertiesForm, OkStoresTheTenTextsAndThePrintSwitch) {
    clsSiteProperties properties;
    SitePropertiesForm form;
    LoadSitePropertiesForm(form, properties);
    form.txtSiteInfo = {"Name", "Contact", "Description", "Address 1", "Address 2"};
    form.txtReport = {"Generated", "2026-11-21", "Report contact", "a@b.c", "555"};
    form.chkPrint = 1;
    AcceptSitePropertiesForm(form, properties);
    EXPECT_EQ(properties.strCustomerName, "Name");
    EXPECT_EQ(properties.strCustomerContact, "Contact");
    EXPECT_EQ(properties.strSiteDescription, "Description");
    EXPECT_EQ(properties.strAddress1, "Address 1");
    EXPECT_EQ(properties.strAddress2, "Address 2");
    EXPECT_EQ(properties.strGeneratedBy, "Generated");
    EXPECT_EQ(properties.strDate, "2026-11-21");
    EXPECT_EQ(properties.strContact, "Report contact");
    EXPECT_EQ(properties.strEmail, "a@b.c");
    EXPECT_EQ(properties.strPhone, "555");
    EXPECT_TRUE(properties.blnPrintFields);
    EXPECT_FALSE(form.loaded);
}

TEST(SitePropertiesForm, CancelStoresNothing) {
    clsSiteProperties properties;
    properties.strCustomerName = "Old";
    SitePropertiesForm form;
    LoadSitePropertiesForm(form, properties);
    form.txtSiteInfo[0] = "New";
    CancelSitePropertiesForm(form);
    EXPECT_EQ(properties.strCustomerName, "Old");
    EXPECT_FALSE(form.loaded);
}

TEST(SitePropertiesForm, ALoadedHiddenFormIsNotLoadedAgainOnShow) {
    clsSiteProperties properties;
    properties.strAddress1 = "From the class";
    SitePropertiesForm form;
    LoadSitePropertiesForm(form, properties);
    form.txtSiteInfo[3] = "From a site file";
    ShowSitePropertiesForm(form, properties);
    EXPECT_EQ(form.txtSiteInfo[3], "From a site file");
}

TEST(EmailCheck, AnEmptyBoxRaisesNothing) {
    RecordingInteraction ui;
    EXPECT_FALSE(ReportLostFocus(formWithEmail(""), 3, ui));
    EXPECT_TRUE(ui.shown.empty());
}

TEST(EmailCheck, AnAddressWithoutADotShowsTheMessage) {
    RecordingInteraction ui;
    EXPECT_TRUE(ReportLostFocus(formWithEmail("someone@example"), 3, ui));
    EXPECT_EQ(ui.shown, std::vector<std::string>{"E-mail Id should consist  of '@' and '.' symbols"});
}

TEST(EmailCheck, AnAddressWithoutAnAtShowsTheMessage) {
    RecordingInteraction ui;
    EXPECT_TRUE(ReportLostFocus(formWithEmail("someone.example.com"), 3, ui));
    EXPECT_EQ(ui.shown.size(), 1U);
}

TEST(EmailCheck, OnlyThePresenceOfEachSymbolIsTested) {
    RecordingInteraction ui;
    EXPECT_FALSE(ReportLostFocus(formWithEmail("first.last@example"), 3, ui));
    EXPECT_TRUE(ui.shown.empty());
}

TEST(EmailCheck, OnlyTheEmailBoxIsChecked) {
    RecordingInteraction ui;
    SitePropertiesForm form = formWithEmail("bad");
    EXPECT_FALSE(ReportLostFocus(form, 2, ui));
    EXPECT_TRUE(ui.shown.empty());
}

TEST(EmailCheck, AMousePressOnCancelSilencesTheCheck) {
    RecordingInteraction ui;
    SitePropertiesForm form = formWithEmail("bad");
    PressCancelWithMouse(form);
    EXPECT_FALSE(ReportLostFocus(form, 3, ui));
    EXPECT_TRUE(ui.shown.empty());
}

TEST(EmailCheck, ABadAddressIsStoredAsItStandsByOk) {
    RecordingInteraction ui;
    clsSiteProperties properties;
    SitePropertiesForm form = formWithEmail("bad");
    ReportLostFocus(form, 3, ui);
    AcceptSitePropertiesForm(form, properties);
    EXPECT_EQ(properties.strEmail, "bad");
}

TEST(KeyFilters, SiteInfoThrowsAwayWideKeysOnly) {
    EXPECT_TRUE(SiteInfoKeyPasses('a'));
    EXPECT_TRUE(SiteInfoKeyPasses('@'));
    EXPECT_FALSE(SiteInfoKeyPasses(128));
    EXPECT_FALSE(SiteInfoKeyPasses(233));
}

TEST(KeyFilters, ThePhoneTakesDigitsAndItsFiveSigns) {
    for (int key : std::initializer_list<int>{'0', '9', 'x', '-', ' ', '(', ')', 8}) {
        EXPECT_TRUE(ReportKeyPasses(4, key, "")) << key;
    }
    for (int key : std::initializer_list<int>{'a', 'X', '+', '.', 128}) {
        EXPECT_FALSE(ReportKeyPasses(4, key, "")) << key;
    }
}

TEST(KeyFilters, TheEmailTakesOneAtOnly) {
    EXPECT_TRUE(ReportKeyPasses(3, '@', "name"));
    EXPECT_FALSE(ReportKeyPasses(3, '@', "name@"));
    EXPECT_TRUE(ReportKeyPasses(3, '.', "name@"));
    EXPECT_TRUE(ReportKeyPasses(3, 8, "name@"));
}

TEST(KeyFilters, APastedSecondAtIsNotStopped) {
    // A key filter sees keys only; a pasted text reaches the box as it is.
    SitePropertiesForm form = formWithEmail("a@b@c.d");
    RecordingInteraction ui;
    EXPECT_FALSE(ReportLostFocus(form, 3, ui));
    EXPECT_EQ(form.txtReport[3], "a@b@c.d");
}

TEST(KeyFilters, OtherReportBoxesThrowAwayWideKeysOnly) {
    EXPECT_TRUE(ReportKeyPasses(0, 'Z', ""));
    EXPECT_TRUE(ReportKeyPasses(1, '/', ""));
    EXPECT_FALSE(ReportKeyPasses(2, 200, ""));
}

} // namespace
} // namespace vesk
