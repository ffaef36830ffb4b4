// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// A catalogue converted between US units and metric units for the editors.
#include "catalogue/catalogue_units.h"

#include "engine/site_description.h"

namespace vesk {

namespace {

enum class Direction { ToMetric, ToUS };

Double convert(Double value, Double factor, Direction direction) {
    return direction == Direction::ToMetric ? value * factor : value / factor;
}

// A value converted, held as a Single, then rounded to 1 decimal.
Single convertCurveValue(Single value, Double factor, Direction direction) {
    const Single product = toSingle(convert(value, factor, direction));
    return toSingle(roundHalfEven(product, 1));
}

// The body of a For loop from 0 to `upper` over a Byte counter: the bound must
// fit a Byte, and stepping past 255 overflows.
template <typename Body> void forEachByteIndex(Long upper, Body body) {
    const Byte bound = toByte(upper);
    for (int index = 0; index <= bound; ++index) {
        body(index);
        if (index == 255) {
            fail(failure::overflow);
        }
    }
}

void convertCatalogue(Integer kind, Catalogues& catalogues, Direction direction) {
    if (kind < 1 || kind > componentKindCount) {
        fail(failure::subscript);
    }
    const auto componentKind = static_cast<ComponentKind>(kind);
    Catalogue& catalogue = catalogues.of(componentKind);
    if (catalogue.Top() <= 0) {
        return;
    }
    forEachByteIndex(catalogue.Top(), [&](int r) {
        ComponentRecord& record = at(catalogue.Records, r);
        RateLossCurve& curve = record.Curve;
        forEachByteIndex(curve.PointCount - 1, [&](int p) {
            at(curve.Flow, p) = convertCurveValue(at(curve.Flow, p), units::lpmPerGpm, direction);
            at(curve.Head, p) = convertCurveValue(at(curve.Head, p), units::metresPerFoot, direction);
        });
        if (componentKind == ComponentKind::Hose) {
            record.HoseLength = toSingle(roundHalfEven(convert(record.HoseLength, units::metresPerFoot, direction), 1));
        }
    });
}

} // namespace

void ConvertCatalogueToMetric(Integer kind, Catalogues& catalogues) {
    convertCatalogue(kind, catalogues, Direction::ToMetric);
}

void ConvertCatalogueToUS(Integer kind, Catalogues& catalogues) {
    convertCatalogue(kind, catalogues, Direction::ToUS);
}

} // namespace vesk
