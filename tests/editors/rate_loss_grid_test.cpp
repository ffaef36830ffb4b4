// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The rate-loss grid: typing into cells, growing the table, the cell checks and the return to a refused cell.
#include "editors/rate_loss_grid.h"
#include "support/recording_interaction.h"

#include <gtest/gtest.h>

namespace vesk {
namespace {

using test::RecordingInteraction;

const GridKeyRules editable{false, true};

void typeInto(RateLossGrid& grid, std::string_view keys, const GridKeyRules& rules = editable) {
    for (const char key : keys) {
        grid.keyPress(static_cast<unsigned char>(key), rules);
    }
}

RateLossGrid gridOf(GridRows rows) {
    RateLossGrid grid;
    grid.setRows(std::move(rows));
    return grid;
}

TEST(RateLossGrid, ASixthCharacterIsIgnoredWithNoSoundButBackspaceStillWorks) {
    RateLossGrid grid = gridOf({{"", ""}});
    typeInto(grid, "12345");
    EXPECT_FALSE(grid.keyPress('6', editable));
    EXPECT_FALSE(grid.keyPress('x', editable)); // stopped before the beep
    EXPECT_EQ(grid.currentCell(), "12345");
    EXPECT_FALSE(grid.keyPress(grid_key::backspace, editable));
    EXPECT_EQ(grid.currentCell(), "1234");
}

TEST(RateLossGrid, ASecondPointIsIgnoredWithNoSoundALetterBeeps) {
    RateLossGrid grid = gridOf({{"", ""}});
    typeInto(grid, "1.");
    EXPECT_FALSE(grid.keyPress('.', editable));
    EXPECT_EQ(grid.currentCell(), "1.");
    EXPECT_TRUE(grid.keyPress('a', editable));
    EXPECT_EQ(grid.currentCell(), "1.");
}

TEST(RateLossGrid, KeysAppendToTheCellTextWithNoEditBox) {
    RateLossGrid grid = gridOf({{"0", "0"}});
    typeInto(grid, "5");
    EXPECT_EQ(grid.currentCell(), "05");
    grid.keyDown(grid_key::point, editable); // the Delete key
    EXPECT_EQ(grid.currentCell(), "");
    typeInto(grid, "7.5");
    EXPECT_EQ(grid.currentCell(), "7.5");
}

TEST(RateLossGrid, InAStandardRecordEveryKeyBeepsAndTheDeleteKeyDoesNothing) {
    const GridKeyRules standard{true, true};
    RateLossGrid grid = gridOf({{"10", "2"}});
    for (const int key :
         {int{'1'}, int{'.'}, grid_key::backspace, grid_key::enter, grid_key::deleteCharacter, int{'a'}}) {
        EXPECT_TRUE(grid.keyPress(key, standard)) << key;
    }
    grid.keyDown(grid_key::point, standard);
    EXPECT_EQ(grid.currentCell(), "10");
    EXPECT_EQ(grid.rowCount(), 1U);
}

TEST(RateLossGrid, KeyCode127EmptiesTheCellOnlyWhereTheFormHasTheBranch) {
    RateLossGrid grid = gridOf({{"10", "2"}});
    EXPECT_TRUE(grid.keyPress(grid_key::deleteCharacter, GridKeyRules{false, false}));
    EXPECT_EQ(grid.currentCell(), "10");
    EXPECT_FALSE(grid.keyPress(grid_key::deleteCharacter, editable));
    EXPECT_EQ(grid.currentCell(), "");
}

TEST(RateLossGrid, EnterInTheLastRowWithAValueAddsAZeroRow) {
    RateLossGrid grid = gridOf({{"0", "0"}, {"5", "0"}});
    grid.setCurrent(1, 1);
    grid.keyPress(grid_key::enter, editable);
    ASSERT_EQ(grid.rowCount(), 3U);
    EXPECT_EQ(grid.rows()[2], (std::array<std::string, 2>{"0", "0"}));
}

TEST(RateLossGrid, EnterInALastRowOfZerosAddsNothingUnlessTheGridHasOneRow) {
    RateLossGrid grid = gridOf({{"5", "1"}, {"0", "0"}});
    grid.setCurrent(1, 0);
    grid.keyPress(grid_key::enter, editable);
    EXPECT_EQ(grid.rowCount(), 2U);

    RateLossGrid single = gridOf({{"0", "0"}});
    single.keyPress(grid_key::enter, editable);
    EXPECT_EQ(single.rowCount(), 2U);
}

TEST(RateLossGrid, ClickOnAnEmptyCellWritesZero) {
    RateLossGrid grid = gridOf({{"5", "1"}, {"", "0"}});
    grid.setCurrent(1, 0);
    grid.click();
    EXPECT_EQ(grid.currentCell(), "0");
    EXPECT_EQ(grid.rowCount(), 2U);
}

TEST(RateLossGrid, ClickInARowAboveTheLastAddsNothing) {
    RateLossGrid grid = gridOf({{"5", "1"}, {"6", "2"}});
    grid.click();
    EXPECT_EQ(grid.rowCount(), 2U);
}

struct LimitCase {
    const char* name;
    int column;
    HeadShown shown;
    const char* text;
    const char* message; // nullptr: accepted
};

class CellLimits : public testing::TestWithParam<LimitCase> {};

TEST_P(CellLimits, AValueAboveItsLimitIsRefusedAndOneEqualToItPasses) {
    const LimitCase& c = GetParam();
    RateLossGrid grid = gridOf({{"0", "0"}});
    grid.setCurrent(0, c.column);
    grid.rows()[0][static_cast<std::size_t>(c.column)] = c.text;
    RecordingInteraction ui;
    const bool refused = grid.leaveCell(true, familyCellLimits, c.shown, ui);
    if (c.message == nullptr) {
        EXPECT_FALSE(refused);
        EXPECT_TRUE(ui.shown.empty());
    } else {
        EXPECT_TRUE(refused);
        ASSERT_EQ(ui.shown.size(), 1U);
        EXPECT_EQ(ui.shown[0], c.message);
        EXPECT_TRUE(grid.restorePending());
    }
}

const HeadShown usFeetGas{false, true, false, true, false};
const HeadShown usPsiGas{false, false, true, true, false};
const HeadShown usPsiDiesel{false, false, true, false, true};
const HeadShown metricFeetGas{true, true, false, true, false};
const HeadShown metricPsiDiesel{true, false, true, false, true};

INSTANTIATE_TEST_SUITE_P(
    RateLossGrid, CellLimits,
    testing::Values(LimitCase{"Flow999Point9Passes", 0, usFeetGas, "999.9", nullptr},
                    LimitCase{"Flow1000IsRefused", 0, usFeetGas, "1000", "Maximum value is 999.9"},
                    LimitCase{"EmptyFlowIsRefused", 0, usFeetGas, "", "Field cannot be empty"},
                    LimitCase{"UsFeet999Point1Passes", 1, usFeetGas, "999.1", nullptr},
                    LimitCase{"UsFeet999Point2IsRefused", 1, usFeetGas, "999.2", "Maximum value is 999.1"},
                    LimitCase{"UsPsiGas311Point4Passes", 1, usPsiGas, "311.4", nullptr},
                    LimitCase{"UsPsiGas311Point5IsRefused", 1, usPsiGas, "311.5", "Maximum value is 311.4"},
                    LimitCase{"UsPsiDiesel376Point3Passes", 1, usPsiDiesel, "376.3", nullptr},
                    LimitCase{"UsPsiDiesel376Point4IsRefused", 1, usPsiDiesel, "376.4", "Maximum value is 376.3"},
                    LimitCase{"Metric304Point5Passes", 1, metricFeetGas, "304.5", nullptr},
                    LimitCase{"Metric304Point6IsRefused", 1, metricFeetGas, "304.6", "Maximum value is 304.5"},
                    LimitCase{"MetricPsiIsHeldTo304Point5First", 1, metricPsiDiesel, "310", "Maximum value is 304.5"},
                    LimitCase{"EmptyHeadIsRefused", 1, metricFeetGas, "", "Field cannot be empty"}),
    [](const testing::TestParamInfo<LimitCase>& param) { return std::string(param.param.name); });

TEST(RateLossGrid, ARefusedCellIsCurrentAgainAfterTheMove) {
    RateLossGrid grid = gridOf({{"1000", "0"}, {"0", "0"}});
    RecordingInteraction ui;
    EXPECT_TRUE(grid.leaveCell(true, familyCellLimits, usFeetGas, ui));
    grid.setCurrent(1, 1);
    grid.enterCell();
    EXPECT_EQ(grid.row(), 0);
    EXPECT_EQ(grid.col(), 0);
    EXPECT_FALSE(grid.restorePending());
    EXPECT_EQ(grid.currentCell(), "1000"); // the text stays for the user to mend
}

TEST(RateLossGrid, AnAcceptedCellIsWrittenAsItsNumber) {
    RateLossGrid grid = gridOf({{"007.50", "0"}});
    RecordingInteraction ui;
    EXPECT_FALSE(grid.leaveCell(true, familyCellLimits, usFeetGas, ui));
    EXPECT_EQ(grid.currentCell(), "7.5");
}

TEST(RateLossGrid, WithoutChecksAnEmptyCellBecomesZeroAndNothingIsShown) {
    RateLossGrid grid = gridOf({{"", "0"}});
    RecordingInteraction ui;
    EXPECT_FALSE(grid.leaveCell(false, familyCellLimits, usFeetGas, ui));
    EXPECT_EQ(grid.currentCell(), "0");
    EXPECT_TRUE(ui.shown.empty());
}

TEST(RateLossGrid, PumpHeadsHaveOnlyTheUnitLimits) {
    RateLossGrid grid = gridOf({{"0", "999.1"}});
    grid.setCurrent(0, 1);
    RecordingInteraction ui;
    EXPECT_FALSE(grid.leaveCell(true, pumpCellLimits, HeadShown{false, false, false, false, false}, ui));
    grid.rows()[0][1] = "999.2";
    EXPECT_TRUE(grid.leaveCell(true, pumpCellLimits, HeadShown{false, false, false, false, false}, ui));
    grid.rows()[0][1] = "304.6";
    EXPECT_TRUE(grid.leaveCell(true, pumpCellLimits, HeadShown{true, false, false, false, false}, ui));
    EXPECT_EQ(ui.shown, (std::vector<std::string>{"Maximum value is 999.1", "Maximum value is 304.5"}));
}

} // namespace
} // namespace vesk
