// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The first page of the report, its heads, and the chain of the three preview pages.
#include "reports/report_page.h"

#include <gtest/gtest.h>

namespace vesk {
namespace {

clsSiteProperties filledProperties(bool printFields) {
    clsSiteProperties properties;
    properties.blnPrintFields = printFields;
    properties.strCustomerName = "Harbour Fuels";
    properties.strCustomerContact = "J. Smith";
    properties.strSiteDescription = "Six nozzles";
    properties.strAddress1 = "1 Quay Road";
    properties.strAddress2 = "Portside";
    properties.strGeneratedBy = "A. Designer";
    properties.strDate = "2024-05-02";
    properties.strContact = "Design office";
    properties.strEmail = "design@example.com";
    properties.strPhone = "555-0100";
    return properties;
}

TEST(ReportHeads, TakeTheTenPropertiesAndBothPumpLegends) {
    FlowChartState chart;
    chart.lblCurrentPump = " Dot Marker - Current(P1)";
    chart.lblBaselinePump = " Traingle Marker - Baseline(P0)";
    const ReportHeads heads = LoadReportHeads(chart, filledProperties(true));
    EXPECT_EQ(heads.lblCurrentPumpPrint, " Dot Marker - Current(P1)");
    EXPECT_EQ(heads.lblBaselinePumpPrint, " Traingle Marker - Baseline(P0)");
    EXPECT_EQ(heads.lblSiteData,
              (std::array<std::string, 5>{"Harbour Fuels", "J. Smith", "Six nozzles", "1 Quay Road", "Portside"}));
    EXPECT_EQ(heads.lblReportData, (std::array<std::string, 5>{"A. Designer", "2024-05-02", "Design office",
                                                               "design@example.com", "555-0100"}));
}

TEST(ReportHeads, PrintFieldsFalseLeavesTheTenValuesBlank) {
    const ReportHeads heads = LoadReportHeads(FlowChartState{}, filledProperties(false));
    for (const std::string& text : heads.lblSiteData) {
        EXPECT_EQ(text, "");
    }
    for (const std::string& text : heads.lblReportData) {
        EXPECT_EQ(text, "");
    }
}

TEST(ReportHeads, TheCaptionsOfBothBlocksAreFixed) {
    EXPECT_STREQ(reportTitle, "Vesk Report");
    EXPECT_STREQ(siteInfoHeading, "Site Information");
    EXPECT_STREQ(reportHeading, "Report");
    EXPECT_STREQ(siteInfoCaptions[2], "Site Description");
    EXPECT_STREQ(reportCaptions[3], "E-mail");
}

TEST(PicGraph, IsAsWideAsTheChartAndThousandTwipsLower) {
    const PictureSize size = PicGraphSize(9000, 6000);
    EXPECT_EQ(size.widthTwips, 9000);
    EXPECT_EQ(size.heightTwips, 5000);
}

TEST(PicGraph, TheBitmapStandsInTheProgramFolder) {
    EXPECT_EQ(Pic1BmpPath("/opt/vesk"), std::filesystem::path("/opt/vesk/pic1.bmp"));
}

struct ChainRow {
    PreviewPage page;
    PreviewLabel label;
    std::optional<PreviewPage> next;
    bool print;
};

class PreviewChain : public testing::TestWithParam<ChainRow> {};

TEST_P(PreviewChain, EachLabelUnloadsItsPageThenLeadsOn) {
    const ChainRow& row = GetParam();
    const std::optional<PreviewStep> step = PreviewStepOf(row.page, row.label);
    ASSERT_TRUE(step);
    EXPECT_EQ(step->next, row.next);
    EXPECT_EQ(step->print, row.print);
}

INSTANTIATE_TEST_SUITE_P(
    Labels, PreviewChain,
    testing::Values(ChainRow{PreviewPage::frmPrint, PreviewLabel::lblNExt, PreviewPage::frmCompare, false},
                    ChainRow{PreviewPage::frmPrint, PreviewLabel::lblPrint, std::nullopt, true},
                    ChainRow{PreviewPage::frmPrint, PreviewLabel::lblClose, std::nullopt, false},
                    ChainRow{PreviewPage::frmCompare, PreviewLabel::lblNExt, PreviewPage::frmComponentList, false},
                    ChainRow{PreviewPage::frmCompare, PreviewLabel::lblPrev, PreviewPage::frmPrint, false},
                    ChainRow{PreviewPage::frmCompare, PreviewLabel::lblClose, std::nullopt, false},
                    ChainRow{PreviewPage::frmComponentList, PreviewLabel::lblPrev, PreviewPage::frmCompare, false},
                    ChainRow{PreviewPage::frmComponentList, PreviewLabel::lblClose, std::nullopt, false}));

TEST(PreviewChain, TheLastPageHasNoNextAndOnlyTheFirstPrints) {
    EXPECT_FALSE(PreviewStepOf(PreviewPage::frmComponentList, PreviewLabel::lblNExt));
    EXPECT_FALSE(PreviewStepOf(PreviewPage::frmPrint, PreviewLabel::lblPrev));
    EXPECT_FALSE(PreviewStepOf(PreviewPage::frmCompare, PreviewLabel::lblPrint));
    EXPECT_EQ(PreviewLabelsOf(PreviewPage::frmComponentList),
              (std::vector<PreviewLabel>{PreviewLabel::lblPrev, PreviewLabel::lblClose}));
    EXPECT_STREQ(PreviewLabelCaption(PreviewLabel::lblNExt), "Next");
    EXPECT_STREQ(PreviewLabelName(PreviewLabel::lblNExt), "lblNExt");
}

} // namespace
} // namespace vesk
