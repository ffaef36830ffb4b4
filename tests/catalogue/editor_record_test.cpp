// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// An editor's fields and table stored into a record.
#include "catalogue/editor_record.h"

#include <gtest/gtest.h>

namespace vesk {
namespace {

Catalogue catalogueOfTwo() {
    Catalogue catalogue;
    catalogue.Records.resize(2);
    for (ComponentRecord& record : catalogue.Records) {
        record.Name = "Standard nozzle";
        record.ListCodes = "AIC";
        record.IsGas = true;
        record.Origin = "#Standard#";
        record.Curve.Flow = {0, 10};
        record.Curve.Head = {0, 5};
        record.Curve.PointCount = 2;
    }
    return catalogue;
}

EditorFields editingFirst(std::vector<std::array<std::string, 2>> rows) {
    EditorFields editor;
    editor.editing = true;
    editor.selectedIndex = 0;
    editor.componentList = 1;
    editor.name = "Standard nozzle";
    editor.flagOption = true;
    editor.rows = std::move(rows);
    return editor;
}

TEST(SetComponentData, ListLettersBecomeTheActiveListsSingleLetterWhenStored) {
    Catalogue catalogue = catalogueOfTwo();
    EditorFields editor = editingFirst({{"0", "0"}, {"10", "5"}});
    SetComponentData(catalogue, editor);
    EXPECT_EQ(catalogue.Records[0].ListCodes, "I");
    EXPECT_EQ(catalogue.Records[0].Origin, "#Standard#");
    EXPECT_EQ(catalogue.Records[1].ListCodes, "AIC") << "only the edited record changes";
}

TEST(SetComponentData, TakesNameFlagAndOrigin) {
    Catalogue catalogue = catalogueOfTwo();
    EditorFields editor = editingFirst({{"0", "0"}, {"10", "5"}});
    editor.name = "My nozzle";
    editor.flagOption = false;
    editor.custom = true;
    editor.componentList = 2;
    SetComponentData(catalogue, editor);
    EXPECT_EQ(catalogue.Records[0].Name, "My nozzle");
    EXPECT_FALSE(catalogue.Records[0].IsGas);
    EXPECT_EQ(catalogue.Records[0].Origin, "#Custom#");
    EXPECT_EQ(catalogue.Records[0].ListCodes, "C");
}

TEST(SetComponentData, StoresThePointsAsTheyStandWithATrailingZeroElement) {
    Catalogue catalogue = catalogueOfTwo();
    EditorFields editor = editingFirst({{"0", "0.04"}, {"12.34", "5.678"}, {"20", "9"}});
    SetComponentData(catalogue, editor);
    const RateLossCurve& curve = catalogue.Records[0].Curve;
    EXPECT_EQ(curve.PointCount, 3);
    EXPECT_EQ(curve.Flow, (std::vector<Single>{0, 12.34F, 20, 0}));
    EXPECT_EQ(curve.Head, (std::vector<Single>{0.04F, 5.678F, 9, 0}));
}

struct RowsRow {
    std::vector<std::array<std::string, 2>> rows;
    Integer points;
};

class PointCountOfTheGrid : public ::testing::TestWithParam<RowsRow> {};

TEST_P(PointCountOfTheGrid, LeavesOutALastRowOfZeros) {
    Catalogue catalogue = catalogueOfTwo();
    EditorFields editor = editingFirst(GetParam().rows);
    SetComponentData(catalogue, editor);
    EXPECT_EQ(catalogue.Records[0].Curve.PointCount, GetParam().points);
}

INSTANTIATE_TEST_SUITE_P(Grids, PointCountOfTheGrid,
                         ::testing::Values(RowsRow{{{"5", "1"}}, 1}, RowsRow{{{"0", "0"}}, 1},
                                           RowsRow{{{"0", "1"}, {"10", "2"}}, 2}, RowsRow{{{"5", "1"}, {"0", "0"}}, 1},
                                           RowsRow{{{"0", "1"}, {"10", "2"}, {"0", "0"}}, 2},
                                           RowsRow{{{"0", "1"}, {"10", "2"}, {"0.0", "0"}}, 2},
                                           RowsRow{{{"0", "1"}, {"10", "2"}, {"0", "3"}}, 3}));

TEST(SetComponentData, AOnePointTableKeepsOneElement) {
    Catalogue catalogue = catalogueOfTwo();
    EditorFields editor = editingFirst({{"5", "1"}, {"0", "0"}});
    SetComponentData(catalogue, editor);
    EXPECT_EQ(catalogue.Records[0].Curve.Flow, std::vector<Single>{5});
    EXPECT_EQ(catalogue.Records[0].Curve.Head, std::vector<Single>{1});
}

TEST(SetComponentData, AddingStoresIntoTheLastRecordAndEndsTheAddingState) {
    Catalogue catalogue = catalogueOfTwo();
    EditorFields editor = editingFirst({{"0", "0"}, {"10", "7"}});
    editor.editing = false;
    editor.adding = true;
    editor.name = "New";
    SetComponentData(catalogue, editor);
    EXPECT_EQ(catalogue.Records[1].Name, "New");
    EXPECT_EQ(catalogue.Records[0].Name, "Standard nozzle");
    EXPECT_FALSE(editor.adding);
}

TEST(SetComponentData, AHoseTakesItsLengthBox) {
    Catalogue catalogue = catalogueOfTwo();
    EditorFields editor = editingFirst({{"0", "0"}, {"10", "7"}});
    editor.hoseLength = 12.5F;
    SetComponentData(catalogue, editor);
    EXPECT_EQ(catalogue.Records[0].HoseLength, 12.5F);
}

TEST(SetComponentData, ACellThatIsNotANumberFails) {
    Catalogue catalogue = catalogueOfTwo();
    EditorFields editor = editingFirst({{"0", "0"}, {"ten", "7"}});
    EXPECT_THROW(SetComponentData(catalogue, editor), RunTimeFailure);
}

} // namespace
} // namespace vesk
