// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The help file, the topic of each form, and the one call that opens a topic.
#pragma once

#include "messages/user_interaction.h"

#include <filesystem>
#include <optional>
#include <string_view>

namespace vesk {

// The compiled help file in the program folder.
inline constexpr std::string_view helpFileName = "VeskHelpFile.chm";

// The topic that F1 opens in a form; the forms without one (frmCompare,
// frmDetails, frmPrint, frmAbout …) have none.
std::optional<std::string_view> HelpTopicOf(std::string_view form);

// The topic of Help > Help F1 in the main window, which differs from F1 there.
inline constexpr std::string_view introductionTopic = "Introduction\\Introduction.htm";

// ShowHelpTopic: a help file that is not there shows message 32 and the form
// goes on; otherwise the viewer is asked for the topic and runs on by itself.
void ShowHelpTopic(const std::filesystem::path& helpFile, std::string_view topic, UserInteraction& ui);

} // namespace vesk
