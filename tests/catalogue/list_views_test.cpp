// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// Which records the lists of the main window offer.
#include "catalogue/list_views.h"

#include <gtest/gtest.h>

namespace vesk {
namespace {

ComponentRecord record(std::string name, std::string listCodes, bool isGas) {
    ComponentRecord r;
    r.Name = std::move(name);
    r.ListCodes = std::move(listCodes);
    r.IsGas = isGas;
    r.Origin = "#Standard#";
    return r;
}

ListOptions gasOptions(char market) {
    ListOptions options;
    options.optGas = true;
    options.optAmerican = market == 'A';
    options.optInternational = market == 'I';
    options.optCommercial = market == 'C';
    options.opt60Hz = true;
    return options;
}

struct SlotRow {
    const char* codes;
    bool american;
    bool international;
    bool commercial;
};

class ListCodeLetters : public ::testing::TestWithParam<SlotRow> {};

TEST_P(ListCodeLetters, DecideUnderWhichListsARecordAppears) {
    const SlotRow row = GetParam();
    const ComponentRecord r = record("X", row.codes, true);
    EXPECT_EQ(IsListed(r, LoaderFlag::Gas, gasOptions('A')), row.american);
    EXPECT_EQ(IsListed(r, LoaderFlag::Gas, gasOptions('I')), row.international);
    EXPECT_EQ(IsListed(r, LoaderFlag::Gas, gasOptions('C')), row.commercial);
}

INSTANTIATE_TEST_SUITE_P(Codes, ListCodeLetters,
                         ::testing::Values(SlotRow{"AIC", true, true, true}, SlotRow{"CIA", true, true, true},
                                           SlotRow{"AAA", true, false, false}, SlotRow{"AI", true, true, false},
                                           SlotRow{"IC", false, false, true}, SlotRow{"A", true, false, false},
                                           SlotRow{"I", false, true, false}, SlotRow{"C", false, false, true},
                                           SlotRow{"AC", false, false, false}, SlotRow{"IA", false, false, false},
                                           SlotRow{"", false, false, false}, SlotRow{"a", false, false, false}));

TEST(ListCodeLetters, IcFillsOnlyTheSecondSlotWithC) {
    const ListSlots slots = ListSlotsOf("IC");
    EXPECT_EQ(slots.FirstList, "");
    EXPECT_EQ(slots.SecondList, "C");
    EXPECT_EQ(slots.ThirdList, "");
}

TEST(ComponentKindLoader, GasLoaderTakesRecordsWhoseFlagEqualsOptGas) {
    ListOptions options = gasOptions('A');
    EXPECT_TRUE(IsListed(record("G", "A", true), LoaderFlag::Gas, options));
    EXPECT_FALSE(IsListed(record("D", "A", false), LoaderFlag::Gas, options));
}

TEST(ComponentKindLoader, DieselLoaderNeedsOptDieselAndADieselRecord) {
    ListOptions options = gasOptions('A');
    options.optGas = false;
    options.optDiesel = true;
    EXPECT_TRUE(IsListed(record("D", "A", false), LoaderFlag::Diesel, options));
    EXPECT_FALSE(IsListed(record("G", "A", true), LoaderFlag::Diesel, options));
    options.optDiesel = false;
    EXPECT_FALSE(IsListed(record("D", "A", false), LoaderFlag::Diesel, options));
}

TEST(ComponentKindLoader, PumpLoadersTestTheFrequencyFlag) {
    ListOptions options = gasOptions('A');
    options.opt60Hz = false;
    options.opt50Hz = true;
    EXPECT_TRUE(IsListed(record("P50", "A", true), LoaderFlag::Pump50Hz, options));
    EXPECT_FALSE(IsListed(record("P60", "A", false), LoaderFlag::Pump50Hz, options));
    options.opt50Hz = false;
    options.opt60Hz = true;
    EXPECT_TRUE(IsListed(record("P60", "A", false), LoaderFlag::Pump60Hz, options));
    EXPECT_FALSE(IsListed(record("P50", "A", true), LoaderFlag::Pump60Hz, options));
}

Catalogue catalogueOf(std::initializer_list<ComponentRecord> records) {
    Catalogue catalogue;
    catalogue.Records.assign(records.begin(), records.end());
    return catalogue;
}

TEST(FillComponentList, PutsNoneFirstThenTheListedRecordsWithTheirIndexAsTag) {
    const Catalogue catalogue = catalogueOf({record("One", "A", true), record("Diesel", "A", false),
                                             record("Two", "AI", true), record("Spare", "AC", true)});
    ComboList list;
    list.AddItem("left over");
    FillComponentList(list, catalogue, LoaderFlag::Gas, gasOptions('A'), true);
    EXPECT_EQ(list.Entries(), (std::vector<std::string>{"None", "One", "Two"}));
    EXPECT_EQ(list.ItemData(1), 0);
    EXPECT_EQ(list.ItemData(2), 2);
    EXPECT_EQ(list.ListIndex(), 0);
}

TEST(FillComponentList, ARecordListedAcIsInTheCatalogueButInNoList) {
    const Catalogue catalogue = catalogueOf({record("One", "A", true), record("Spare", "AC", true)});
    for (char market : {'A', 'I', 'C'}) {
        ComboList list;
        FillComponentList(list, catalogue, LoaderFlag::Gas, gasOptions(market), true);
        EXPECT_EQ(list.FindEntry("Spare"), -1) << market;
    }
}

TEST(FillComponentList, ACatalogueOfOneRecordOffersOnlyNone) {
    const Catalogue catalogue = catalogueOf({record("Only", "AIC", true)});
    ComboList list;
    FillComponentList(list, catalogue, LoaderFlag::Gas, gasOptions('A'), true);
    EXPECT_EQ(list.Entries(), std::vector<std::string>{"None"});
}

TEST(FillComponentList, TwoRecordsOfTheSameNameBothAppear) {
    const Catalogue catalogue = catalogueOf({record("Same", "A", true), record("Same", "A", true)});
    ComboList list;
    FillComponentList(list, catalogue, LoaderFlag::Gas, gasOptions('A'), true);
    EXPECT_EQ(list.Entries(), (std::vector<std::string>{"None", "Same", "Same"}));
}

TEST(FillComponentList, APumpListLeftEmptyFailsWhenItsFirstEntryIsSelected) {
    const Catalogue catalogue = catalogueOf({record("P50", "A", true), record("P50b", "A", true)});
    ComboList list;
    try {
        FillComponentList(list, catalogue, LoaderFlag::Pump60Hz, gasOptions('A'), false);
        FAIL() << "an empty pump list cannot select its first entry";
    } catch (const RunTimeFailure& failure) {
        EXPECT_STREQ(failure.what(), "Invalid property value");
    }
}

TEST(ComboList, SelectingOutsideTheListFails) {
    ComboList list;
    list.AddItem("None");
    EXPECT_THROW(list.SetListIndex(1), RunTimeFailure);
    list.SetListIndex(-1);
    EXPECT_EQ(list.Text(), "");
    list.SetListIndex(0);
    EXPECT_EQ(list.Text(), "None");
}

} // namespace
} // namespace vesk
