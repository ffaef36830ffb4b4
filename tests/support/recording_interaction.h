// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// A user-interaction seam that records every box instead of showing it.
#pragma once

#include "messages/user_interaction.h"

#include <string>
#include <vector>

namespace vesk::test {

class RecordingInteraction : public UserInteraction {
  public:
    void showMessageBox(std::string_view text, MessageIcon icon) override;
    // Questions are recorded among the texts shown, and answered from the
    // script in order; with the script used up, Cancel (or No).
    Answer askYesNoCancel(std::string_view text) override;
    Answer askYesNo(std::string_view text) override;
    // An Ok and Cancel question takes its answer from the same script: Yes
    // stands for Ok, anything else for Cancel.
    bool askOkCancel(std::string_view text) override;
    // File dialogs are recorded, and answered from their own script in order
    // (nullopt is Cancel); with the script used up, Cancel.
    std::optional<std::string> chooseFile(const FileDialogRequest& request) override;
    // Printer dialogs are counted, and answered from their own script in
    // order (nullopt is Cancel); with the script used up, Cancel.
    std::optional<PrinterChoice> choosePrinter() override;
    // Help topics are recorded as the help file and the topic.
    void showHelpTopic(const std::string& helpFile, std::string_view topic) override;

    std::vector<std::string> shown;
    std::vector<MessageIcon> icons;
    std::vector<Answer> answers;
    std::vector<FileDialogRequest> fileDialogs;
    std::vector<std::optional<std::string>> chosenFiles;
    std::vector<std::pair<std::string, std::string>> helpTopics;
    int printerDialogs = 0;
    std::vector<std::optional<PrinterChoice>> chosenPrinters;
};

} // namespace vesk::test
