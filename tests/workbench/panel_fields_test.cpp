// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The table of the panels' fields and lists, and the table of the component lists.
#include "support/failure_of.h"
#include "workbench/panel_fields.h"
#include "workbench/result_grid.h"

#include "catalogue/component_lists.h"
#include "site/site_file_format.h"

#include <cmath>
#include <gtest/gtest.h>
#include <set>
#include <string>

namespace vesk {
namespace {

using test::failureOf;

TEST(PanelFields, EveryCellOfTheGridsHoldsAtMostOneInput) {
    std::set<std::pair<long, long>> cells;
    for (const PanelField& field : panelFields) {
        if (field.cell.row >= 0) {
            EXPECT_TRUE(cells.insert({field.cell.row, field.cell.column}).second) << field.controlName;
        }
    }
    for (const PanelList& list : panelLists) {
        EXPECT_TRUE(cells.insert({list.cell.row, list.cell.column}).second) << list.controlName;
    }
    for (long row : {valveRow, modeRow, frequencyRow, fuelRow, componentListRow}) {
        EXPECT_FALSE(cells.contains({row, 1})) << "row " << row << " holds a choice of its own";
    }
}

TEST(PanelFields, EveryLineOfTheFourAreasHoldsOneThing) {
    for (int line = 1; line <= lastAreaLine; ++line) {
        const int holders = (FieldOnLine(line) != nullptr) + (ListOnLine(line) != nullptr) + (line == valveLine) +
                            (line == modeLine) + (line == frequencyLine) + IsSectionKeyLine(line);
        EXPECT_EQ(holders, 1) << "line " << line;
    }
}

TEST(PanelFields, TheMetricLimitsAreTheUsOnesTimesTheFactorRoundedUp) {
    for (const PanelField* field : LengthFields()) {
        const LengthUnit& unit = field->unit;
        EXPECT_DOUBLE_EQ(unit.metricLimit, std::ceil(unit.usLimit * unit.metricPerUs * 10) / 10) << field->controlName;
    }
}

TEST(PanelFields, TheLengthsAreTheSevenFieldsWithAUnit) {
    std::set<std::string> names;
    for (const PanelField* field : LengthFields()) {
        names.insert(field->controlName);
        EXPECT_EQ(field->check, FieldCheck::Length);
        EXPECT_EQ(field->keys, KeyFilter::Decimal);
        EXPECT_NE(field->unit.snapshot, nullptr);
    }
    EXPECT_EQ(names, (std::set<std::string>{"txtHoseLen", "txtBranchLength", "txtTrunkLength", "txtPipeLen",
                                            "txtTankDiameter", "txtBuryDepth", "txtRise"}));
}

TEST(PanelFields, TheTankDiameterAloneIsInInchesAndCentimetres) {
    for (const PanelField* field : LengthFields()) {
        const bool tank = std::string(field->controlName) == "txtTankDiameter";
        EXPECT_EQ(field->unit.metricPerUs, tank ? units::centimetresPerInch : units::metresPerFoot)
            << field->controlName;
    }
}

TEST(PanelFields, AFittingCountIsOneOfItsRow) {
    PanelState panel;
    TextOf(panel, FieldNamed("txtTrunkFitting(2)")) = "5";
    TextOf(panel, FieldNamed("txtBranchFitting(0)")) = "7";
    EXPECT_EQ(panel.txtTrunkFitting[2], "5");
    EXPECT_EQ(panel.txtBranchFitting[0], "7");
    EXPECT_EQ(TextOf(panel, FieldNamed("txtTankDiameter")), "96");
}

TEST(PanelFields, AnUnknownControlNameIsOutOfRange) {
    EXPECT_EQ(failureOf([] { FieldNamed("txtNothing"); }), "Subscript out of range");
    EXPECT_EQ(failureOf([] { ListNamed("cmbNothing"); }), "Subscript out of range");
}

TEST(PanelFields, TheFourAreasStandInTheOrderOfTheirTabs) {
    for (std::size_t tab = 0; tab < areas.size(); ++tab) {
        EXPECT_EQ(static_cast<std::size_t>(areas[tab].area), tab);
    }
}

TEST(ComponentLists, CodesLettersAndNamesGoTogether) {
    ASSERT_EQ(componentListNames.size(), 3U);
    EXPECT_EQ(componentListNames[0].letter, "A");
    EXPECT_EQ(componentListNames[0].name, "American");
    EXPECT_EQ(componentListNames[1].letter, "I");
    EXPECT_EQ(componentListNames[1].name, "International");
    EXPECT_EQ(componentListNames[2].letter, "C");
    EXPECT_EQ(componentListNames[2].name, "Commercial");
    for (std::size_t code = 0; code < componentListNames.size(); ++code) {
        EXPECT_EQ(componentListNames[code].code, code);
    }
}

} // namespace
} // namespace vesk
