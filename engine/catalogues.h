// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The eight catalogues of the application, one per kind.
#pragma once

#include "engine/component_kind.h"
#include "engine/component_record.h"

#include <array>

namespace vesk {

struct Catalogues {
    std::array<Catalogue, componentKindCount> byKind;

    Catalogue& of(ComponentKind kind) { return byKind[static_cast<std::size_t>(static_cast<int>(kind) - 1)]; }
    const Catalogue& of(ComponentKind kind) const {
        return byKind[static_cast<std::size_t>(static_cast<int>(kind) - 1)];
    }
};

} // namespace vesk
