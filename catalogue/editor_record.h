// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// How an open component editor stores its fields and table into a record.
#pragma once

#include "engine/component_record.h"

#include <array>
#include <optional>
#include <string>
#include <vector>

namespace vesk {

// What SetXData copies from an open editor.
struct EditorFields {
    bool adding = false;  // the editor is adding a record: the one at Top
    bool editing = false; // the editor is changing the record at selectedIndex
    Long selectedIndex = -1;
    Byte componentList = 0;  // clsConfigureData.ComponentList
    std::string name;        // the name box
    bool flagOption = false; // the Gas option; for the pump editor its 50 Hz option
    bool custom = false;     // the Custom box
    // The grid of the rate-loss table: rows of flow and head cells, as text.
    std::vector<std::array<std::string, 2>> rows;
    // The hose editor's length box, converted by its caller; other kinds leave
    // the record's HoseLength alone.
    std::optional<Single> hoseLength;
};

// SetXData: stores the editor's fields into the record at Top when adding,
// and then into the record at the selected index when editing; the adding
// state is cleared. The list codes become the active list's single letter
// ("A", "I" or "C"), whatever stood there. The points are taken from the grid
// as they stand, converted to Single with no rounding; a last row of 0 and 0
// (as numbers) is left out, unless it is one of only two rows. A table of one
// point keeps one element in its arrays; a longer one keeps one more than its
// points, and that element is 0.
void SetComponentData(Catalogue& catalogue, EditorFields& editor);

} // namespace vesk
