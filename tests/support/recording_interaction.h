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

    std::vector<std::string> shown;
    std::vector<MessageIcon> icons;
};

} // namespace vesk::test
