// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The first page of the report (frmPrint), the heads it shares with the printed sheet, and the chain of the preview.
#include "reports/report_page.h"

namespace vesk {

namespace {

struct LabelInfo {
    PreviewLabel label;
    const char* name;
    const char* caption;
};

constexpr std::array<LabelInfo, 4> labelInfos{{{PreviewLabel::lblPrint, "lblPrint", "Print"},
                                               {PreviewLabel::lblPrev, "lblPrev", "Prev"},
                                               {PreviewLabel::lblNExt, "lblNExt", "Next"},
                                               {PreviewLabel::lblClose, "lblClose", "Close"}}};

const LabelInfo& infoOf(PreviewLabel label) {
    for (const LabelInfo& info : labelInfos) {
        if (info.label == label) {
            return info;
        }
    }
    fail(failure::invalidProperty);
}

// The chain: which label of which page leads where.
struct ChainEntry {
    PreviewPage page;
    PreviewLabel label;
    PreviewStep step;
};

const std::array<ChainEntry, 8> previewChain{{
    {PreviewPage::frmPrint, PreviewLabel::lblPrint, {std::nullopt, true}},
    {PreviewPage::frmPrint, PreviewLabel::lblNExt, {PreviewPage::frmCompare, false}},
    {PreviewPage::frmPrint, PreviewLabel::lblClose, {std::nullopt, false}},
    {PreviewPage::frmCompare, PreviewLabel::lblPrev, {PreviewPage::frmPrint, false}},
    {PreviewPage::frmCompare, PreviewLabel::lblNExt, {PreviewPage::frmComponentList, false}},
    {PreviewPage::frmCompare, PreviewLabel::lblClose, {std::nullopt, false}},
    {PreviewPage::frmComponentList, PreviewLabel::lblPrev, {PreviewPage::frmCompare, false}},
    {PreviewPage::frmComponentList, PreviewLabel::lblClose, {std::nullopt, false}},
}};

} // namespace

ReportHeads LoadReportHeads(const FlowChartState& flowChart, const clsSiteProperties& properties) {
    ReportHeads heads;
    heads.lblCurrentPumpPrint = flowChart.lblCurrentPump;
    heads.lblBaselinePumpPrint = flowChart.lblBaselinePump;
    if (properties.blnPrintFields) {
        heads.lblSiteData = {properties.strCustomerName, properties.strCustomerContact, properties.strSiteDescription,
                             properties.strAddress1, properties.strAddress2};
        heads.lblReportData = {properties.strGeneratedBy, properties.strDate, properties.strContact,
                               properties.strEmail, properties.strPhone};
    }
    return heads;
}

PictureSize PicGraphSize(Long chartWidthTwips, Long chartHeightTwips) {
    return {chartWidthTwips, chartHeightTwips - 1000};
}

std::filesystem::path Pic1BmpPath(const std::filesystem::path& programFolder) {
    return programFolder / pic1FileName;
}

const char* PreviewLabelCaption(PreviewLabel label) {
    return infoOf(label).caption;
}

const char* PreviewLabelName(PreviewLabel label) {
    return infoOf(label).name;
}

std::vector<PreviewLabel> PreviewLabelsOf(PreviewPage page) {
    std::vector<PreviewLabel> labels;
    for (const ChainEntry& entry : previewChain) {
        if (entry.page == page) {
            labels.push_back(entry.label);
        }
    }
    return labels;
}

std::optional<PreviewStep> PreviewStepOf(PreviewPage page, PreviewLabel label) {
    for (const ChainEntry& entry : previewChain) {
        if (entry.page == page && entry.label == label) {
            return entry.step;
        }
    }
    return std::nullopt;
}

} // namespace vesk
