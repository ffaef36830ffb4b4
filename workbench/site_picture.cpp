// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The picture of the site layout that the pump quantity and the number of branches choose.
#include "workbench/site_picture.h"

namespace vesk {

namespace {
// The platform's description of a picture file that is not there.
constexpr const char* fileNotFound = "File not found";
} // namespace

std::filesystem::path SitePicture(const std::filesystem::path& programFolder, const PanelState& panel) {
    const std::string file = panel.cmbQuantity.Text() + "Pump" + panel.cmbNoOfBranches.Text() + "Branch.jpg";
    const std::filesystem::path path = programFolder / "Image" / file;
    std::error_code error;
    if (!std::filesystem::is_regular_file(path, error)) {
        fail(fileNotFound);
    }
    return path;
}

} // namespace vesk
