// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// A catalogue converted to metric units and back.
#include "catalogue/catalogue_units.h"

#include <gtest/gtest.h>

namespace vesk {
namespace {

ComponentRecord recordWith(std::vector<Single> flow, std::vector<Single> head, Single hoseLength = 0) {
    ComponentRecord r;
    r.Name = "R";
    r.Curve.PointCount = static_cast<Integer>(flow.size());
    r.Curve.Flow = std::move(flow);
    r.Curve.Head = std::move(head);
    r.HoseLength = hoseLength;
    return r;
}

Catalogues twoRecordsOf(ComponentKind kind, const ComponentRecord& first, const ComponentRecord& second) {
    Catalogues catalogues;
    catalogues.of(kind).Records = {first, second};
    return catalogues;
}

TEST(CatalogueUnits, TenGpmBecomes37Point9LitresAndTenAgain) {
    Catalogues catalogues = twoRecordsOf(ComponentKind::Dispenser, recordWith({0, 10}, {0, 10}), recordWith({5}, {1}));
    ConvertCatalogueToMetric(static_cast<Integer>(ComponentKind::Dispenser), catalogues);
    const RateLossCurve& curve = catalogues.of(ComponentKind::Dispenser).Records[0].Curve;
    EXPECT_EQ(curve.Flow[1], 37.9F);
    EXPECT_EQ(curve.Head[1], 3.0F); // 10 ft x 0.3048 = 3.048, rounded
    ConvertCatalogueToUS(static_cast<Integer>(ComponentKind::Dispenser), catalogues);
    EXPECT_EQ(curve.Flow[1], 10.0F); // 37.9 / 3.78564 = 10.01...
    EXPECT_EQ(curve.Head[1], 9.8F);  // 3.0 / 0.3048 = 9.84...: the round trip loses
}

TEST(CatalogueUnits, EveryRecordAndPointIsConverted) {
    Catalogues catalogues =
        twoRecordsOf(ComponentKind::Nozzle, recordWith({1, 2}, {1, 2}), recordWith({3, 4, 5}, {3, 4, 5}));
    ConvertCatalogueToMetric(static_cast<Integer>(ComponentKind::Nozzle), catalogues);
    const ComponentRecord& second = catalogues.of(ComponentKind::Nozzle).Records[1];
    EXPECT_EQ(second.Curve.Flow[2], 18.9F); // 5 x 3.78564 = 18.9282
    EXPECT_EQ(second.Curve.Head[2], 1.5F);  // 5 x 0.3048 = 1.524
}

TEST(CatalogueUnits, HoseLengthIsConvertedForHosesOnly) {
    Catalogues catalogues =
        twoRecordsOf(ComponentKind::Hose, recordWith({0, 1}, {0, 1}, 100), recordWith({0, 1}, {0, 1}, 8));
    ConvertCatalogueToMetric(static_cast<Integer>(ComponentKind::Hose), catalogues);
    EXPECT_EQ(catalogues.of(ComponentKind::Hose).Records[0].HoseLength, 30.5F); // 30.48
    EXPECT_EQ(catalogues.of(ComponentKind::Hose).Records[1].HoseLength, 2.4F);  // 2.4384
    ConvertCatalogueToUS(static_cast<Integer>(ComponentKind::Hose), catalogues);
    EXPECT_EQ(catalogues.of(ComponentKind::Hose).Records[0].HoseLength, 100.1F); // 30.5 / 0.3048 = 100.06...

    Catalogues dispensers =
        twoRecordsOf(ComponentKind::Dispenser, recordWith({0, 1}, {0, 1}, 100), recordWith({0, 1}, {0, 1}, 8));
    ConvertCatalogueToMetric(static_cast<Integer>(ComponentKind::Dispenser), dispensers);
    EXPECT_EQ(dispensers.of(ComponentKind::Dispenser).Records[0].HoseLength, 100.0F);
}

TEST(CatalogueUnits, ACatalogueOfOneRecordIsLeftAlone) {
    Catalogues catalogues;
    catalogues.of(ComponentKind::Pump).Records = {recordWith({0, 10}, {100, 50})};
    ConvertCatalogueToMetric(static_cast<Integer>(ComponentKind::Pump), catalogues);
    EXPECT_EQ(catalogues.of(ComponentKind::Pump).Records[0].Curve.Flow[1], 10.0F);
}

TEST(CatalogueUnits, ACatalogueBeyondIndex254OverflowsTheByteCounter) {
    Catalogues catalogues;
    catalogues.of(ComponentKind::Breakaway).Records.assign(256, recordWith({0, 1}, {0, 1}));
    EXPECT_THROW(ConvertCatalogueToMetric(static_cast<Integer>(ComponentKind::Breakaway), catalogues), RunTimeFailure);
    catalogues.of(ComponentKind::Breakaway).Records.assign(255, recordWith({0, 1}, {0, 1}));
    EXPECT_NO_THROW(ConvertCatalogueToMetric(static_cast<Integer>(ComponentKind::Breakaway), catalogues));
}

} // namespace
} // namespace vesk
