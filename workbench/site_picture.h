// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The picture of the site layout that the pump quantity and the number of branches choose.
#pragma once

#include "workbench/panel_state.h"

#include <filesystem>

namespace vesk {

// The picture file for the quantity and the number of branches selected: the
// program folder + \Image\ + "2Pump3Branch.jpg" for 2 pumps and 3 branches.
// A file that is not there fails with "File not found".
std::filesystem::path SitePicture(const std::filesystem::path& programFolder, const PanelState& panel);

} // namespace vesk
