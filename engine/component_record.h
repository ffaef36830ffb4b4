// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// One catalogue entry, its rate-loss curve, and the catalogue of one kind.
#pragma once

#include "engine/numeric.h"

#include <string>
#include <vector>

namespace vesk {

// A table of flow against head: head loss for every kind but the pump, the
// head delivered for a pump. Flows in GPM, heads in feet, whatever the units
// shown. The arrays hold at least PointCount elements; nothing sorts them.
struct RateLossCurve {
    std::vector<Single> Flow{0};
    std::vector<Single> Head{0};
    Integer PointCount = 0;
};

struct ComponentRecord {
    std::string Name;      // the text of the lists; for a hose, its size
    std::string ListCodes; // letters A, I, C of the component lists
    bool IsGas = false;    // for a pump this same field is Is50Hz
    std::string Origin;    // "#Standard#" or "#Custom#", markers included
    Single HoseLength = 0; // hoses only: the length the curve was measured on, feet
    RateLossCurve Curve;
};

// The records of one kind in file order, indexed 0 to Top.
struct Catalogue {
    std::vector<ComponentRecord> Records;

    // The highest valid index; -1 for a catalogue with no record.
    Integer Top() const { return static_cast<Integer>(static_cast<long>(Records.size()) - 1); }
};

} // namespace vesk
