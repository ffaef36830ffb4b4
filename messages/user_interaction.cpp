// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The one seam through which the system shows boxes and asks the user.
#include "messages/user_interaction.h"

namespace vesk {

void ShowMessage(int code, UserInteraction& ui) {
    if (const NumberedMessage* message = FindMessage(code)) {
        ui.showMessageBox(message->text, message->icon);
    }
}

void EndWithMessage(int code, UserInteraction& ui) {
    ShowMessage(code, ui);
    throw ProcessEnd(code);
}

} // namespace vesk
