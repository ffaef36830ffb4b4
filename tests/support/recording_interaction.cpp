// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// A user-interaction seam that records every box instead of showing it.
#include "support/recording_interaction.h"

namespace vesk::test {

void RecordingInteraction::showMessageBox(std::string_view text, MessageIcon icon) {
    shown.emplace_back(text);
    icons.push_back(icon);
}

} // namespace vesk::test
