// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The help file, the topic of each form, and the one call that opens a topic.
#pragma once

#include "messages/user_interaction.h"

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

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

// The path inside the help file of a topic of the table: every "\" read as
// "/", and a "/" in front ("Option Menu\Pumps.htm" is "/Option Menu/Pumps.htm").
std::string HelpFilePath(std::string_view topic);

// The path among `paths` (the help file's own, "/Option Menu/Pumps.htm") that
// a topic names, with "\" read as "/" and without regard to ASCII letter case;
// a path of exactly that spelling wins. Nothing when no path matches.
std::optional<std::string> FindHelpPath(std::string_view topic, const std::vector<std::string>& paths);

// The topic of every form that has one, in the order of the table, for
// whoever has to check them all.
std::vector<std::string_view> AllFormTopics();

} // namespace vesk
