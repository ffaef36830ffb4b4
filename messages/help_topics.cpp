// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The help file, the topic of each form, and the one call that opens a topic.
#include "messages/help_topics.h"

#include <array>

namespace vesk {

namespace {

constexpr int helpFileMissing = 32;

struct FormTopic {
    std::string_view form;
    std::string_view topic;
};

constexpr std::array<FormTopic, 12> formTopics{{
    {"frmMain", "Main Functionality\\Dynamic Flow Graph.htm"},
    {"frmData", "Option Menu\\System Settings.htm"},
    {"frmPump", "Option Menu\\Pumps.htm"},
    {"frmHose", "Option Menu\\Hoses.htm"},
    {"frmBRK", "Option Menu\\Breakaways.htm"},
    {"frmDispenser", "Option Menu\\Dispensers.htm"},
    {"frmMLD", "Option Menu\\Leak Detectors.htm"},
    {"frmNozzle", "Option Menu\\Nozzles.htm"},
    {"frmUpdate", "Option Menu\\Update Data.htm"},
    {"frmDispOthers", "Option Menu\\Dispenser Others.htm"},
    {"frmPumpOthers", "Option Menu\\Pump Others.htm"},
    {"frmSiteProperties", "Option Menu\\Site Properties.htm"},
}};

} // namespace

std::optional<std::string_view> HelpTopicOf(std::string_view form) {
    for (const FormTopic& entry : formTopics) {
        if (entry.form == form) {
            return entry.topic;
        }
    }
    return std::nullopt;
}

void ShowHelpTopic(const std::filesystem::path& helpFile, std::string_view topic, UserInteraction& ui) {
    std::error_code error;
    if (!std::filesystem::exists(helpFile, error)) {
        ShowMessage(helpFileMissing, ui);
        return;
    }
    ui.showHelpTopic(helpFile.string(), topic);
}

} // namespace vesk
