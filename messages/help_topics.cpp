// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The help file, the topic of each form, and the one call that opens a topic.
#include "messages/help_topics.h"

#include <algorithm>
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

char lowerAscii(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

bool equalIgnoringCase(std::string_view a, std::string_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](char x, char y) { return lowerAscii(x) == lowerAscii(y); });
}

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

std::string HelpFilePath(std::string_view topic) {
    std::string path(topic);
    std::replace(path.begin(), path.end(), '\\', '/');
    if (!path.starts_with('/')) {
        path.insert(path.begin(), '/');
    }
    return path;
}

std::optional<std::string> FindHelpPath(std::string_view topic, const std::vector<std::string>& paths) {
    const std::string wanted = HelpFilePath(topic);
    if (std::find(paths.begin(), paths.end(), wanted) != paths.end()) {
        return wanted;
    }
    const auto found = std::find_if(paths.begin(), paths.end(),
                                    [&wanted](const std::string& path) { return equalIgnoringCase(path, wanted); });
    if (found == paths.end()) {
        return std::nullopt;
    }
    return *found;
}

std::vector<std::string_view> AllFormTopics() {
    std::vector<std::string_view> topics;
    for (const FormTopic& entry : formTopics) {
        topics.push_back(entry.topic);
    }
    return topics;
}

} // namespace vesk
