// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// A user-interaction seam that records every box instead of showing it.
#include "support/recording_interaction.h"

namespace vesk::test {

void RecordingInteraction::showMessageBox(std::string_view text, MessageIcon icon) {
    shown.emplace_back(text);
    icons.push_back(icon);
}

namespace {
Answer nextAnswer(std::vector<Answer>& answers, Answer whenNone) {
    if (answers.empty()) {
        return whenNone;
    }
    const Answer answer = answers.front();
    answers.erase(answers.begin());
    return answer;
}
} // namespace

Answer RecordingInteraction::askYesNoCancel(std::string_view text) {
    shown.emplace_back(text);
    icons.push_back(MessageIcon::None);
    return nextAnswer(answers, Answer::Cancel);
}

Answer RecordingInteraction::askYesNo(std::string_view text) {
    shown.emplace_back(text);
    icons.push_back(MessageIcon::None);
    return nextAnswer(answers, Answer::No);
}

bool RecordingInteraction::askOkCancel(std::string_view text) {
    shown.emplace_back(text);
    icons.push_back(MessageIcon::None);
    return nextAnswer(answers, Answer::Cancel) == Answer::Yes;
}

std::optional<std::string> RecordingInteraction::chooseFile(const FileDialogRequest& request) {
    fileDialogs.push_back(request);
    if (chosenFiles.empty()) {
        return std::nullopt;
    }
    std::optional<std::string> chosen = chosenFiles.front();
    chosenFiles.erase(chosenFiles.begin());
    return chosen;
}

std::optional<PrinterChoice> RecordingInteraction::choosePrinter() {
    ++printerDialogs;
    if (chosenPrinters.empty()) {
        return std::nullopt;
    }
    std::optional<PrinterChoice> chosen = chosenPrinters.front();
    chosenPrinters.erase(chosenPrinters.begin());
    return chosen;
}

void RecordingInteraction::showHelpTopic(const std::string& helpFile, std::string_view topic) {
    helpTopics.emplace_back(helpFile, topic);
}

} // namespace vesk::test
