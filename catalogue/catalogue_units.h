// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// A catalogue converted between US units and metric units for the editors.
#pragma once

#include "engine/catalogues.h"

namespace vesk {

// Converts the whole catalogue of a kind: flows from GPM to LPM (times 3.78564)
// and heads from feet to metres (times 0.3048), each product held as a Single
// and rounded to 1 decimal, half to even; for hoses also HoseLength. A
// catalogue of one record (Top of 0) is left alone. The loops run over 8-bit
// counters: a catalogue beyond index 254 fails with "Overflow".
void ConvertCatalogueToMetric(Integer kind, Catalogues& catalogues);

// The reverse: divides by the same factors, rounding again, so a round trip
// does not give back the same numbers (10 GPM becomes 37.9 LPM and then 10).
void ConvertCatalogueToUS(Integer kind, Catalogues& catalogues);

} // namespace vesk
