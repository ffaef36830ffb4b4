// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The three component lists: their code in the settings, their letter in the files, their name on the screen.
#pragma once

#include "engine/numeric.h"

#include <array>
#include <string_view>

namespace vesk {

struct ComponentListName {
    Byte code;               // clsConfigureData.ComponentList
    std::string_view letter; // of a record's list codes, Vesk.ini and the site file
    std::string_view name;   // the option of the System Settings dialog and the grids
};

inline constexpr std::array<ComponentListName, 3> componentListNames{{
    {0, "A", "American"},
    {1, "I", "International"},
    {2, "C", "Commercial"},
}};

} // namespace vesk
