// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// What the benchmarks share: the shipped program folder and a silent seam.
#pragma once

#include "messages/user_interaction.h"

#include <filesystem>

namespace vesk::bench {

inline std::filesystem::path shippedDataDir() {
    return VESK_SHIPPED_DATA_DIR;
}

class SilentInteraction : public UserInteraction {
  public:
    void showMessageBox(std::string_view, MessageIcon) override {}
};

} // namespace vesk::bench
