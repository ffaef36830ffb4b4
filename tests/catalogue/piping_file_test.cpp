// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// Tests of the piping data file reader.
#include "support/failure_of.h"
#include "support/recording_interaction.h"
#include "support/temp_program_folder.h"

#include "catalogue/piping_file.h"
#include "engine/numeric.h"
#include "messages/user_interaction.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace vesk {
namespace {

using test::failureOf;

using test::RecordingInteraction;
using test::TempProgramFolder;

using Lines = std::vector<std::string>;

std::string crlfText(const Lines& lines) {
    std::string text;
    for (const std::string& line : lines) {
        text += line + "\r\n";
    }
    return text;
}

Lines operator+(Lines first, const Lines& second) {
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

// The sections of a complete file, each to be put together as a test needs.
const Lines materials{"$PT", "Fibreglass,0.000016", "Steel Sch 40,0.00015", "Flexible,0.000005", "$PT"};
const Lines sizes{"$PD", "1-1/2\",0.13417", "2\",0.17225", "2-1/2\",0.20575", "3\",0.25567", "4\",0.3355", "$PD"};
const Lines valves{"$VA",       "#Ball Valve",  "1-1/2\",0.4",   "2\",0.52",  "2-1/2\",0.62",  "3\",0.77",
                   "4\",1.01",  "#Swing Check", "1-1/2\",13.42", "2\",17.23", "2-1/2\",20.58", "3\",25.57",
                   "4\",33.55", "$VA"};

Lines fittings(const std::string& key, const Lines& values) {
    Lines lines{key};
    const char* labels[] = {"1-1/2\"", "2\"", "2-1/2\"", "3\"", "4\""};
    for (std::size_t i = 0; i < values.size(); ++i) {
        lines.push_back(std::string(labels[i % 5]) + "," + values[i]);
    }
    lines.push_back(key);
    return lines;
}

const Lines allFittings = fittings("$L0", {"2.15", "2.76", "3.29", "4.09", "5.37"}) +
                          fittings("$L1", {"4.03", "5.17", "6.17", "7.67", "10.06"}) +
                          fittings("$L2", {"2.68", "3.45", "4.12", "5.11", "6.71"}) +
                          fittings("$L3", {"8.05", "10.34", "12.35", "15.34", "20.13"});

const Lines wholeFile = materials + sizes + valves + allFittings;

class PipingFile : public testing::Test {
  protected:
    PipingData read(const Lines& lines) {
        folder.write("Components/PIPING.DAT", crlfText(lines));
        PipingData data = GetPipeHeadFileData(folder.path(), ui);
        EXPECT_TRUE(ui.shown.empty());
        return data;
    }

    void expectReadEnds(const Lines& lines) {
        folder.write("Components/PIPING.DAT", crlfText(lines));
        try {
            GetPipeHeadFileData(folder.path(), ui);
            ADD_FAILURE() << "the read did not end the process";
        } catch (const ProcessEnd& end) {
            EXPECT_EQ(end.messageCode(), 33);
        }
        EXPECT_EQ(ui.shown, std::vector<std::string>{"Problem in reading Piping Data File"});
    }

    TempProgramFolder folder;
    RecordingInteraction ui;
};

TEST_F(PipingFile, FillsTheTablesExactly) {
    const PipingData data = read(wholeFile);
    const PipingTables& t = data.tables;
    EXPECT_EQ(t.PipeRoughness, (std::array<Single, 3>{0.000016F, 0.00015F, 0.000005F}));
    EXPECT_EQ(t.PipeDiameter, (std::array<Single, 5>{0.13417F, 0.17225F, 0.20575F, 0.25567F, 0.3355F}));
    EXPECT_EQ(t.ValveTable[0].Name, "Ball Valve");
    EXPECT_EQ(t.ValveTable[0].Length, (std::array<Single, 6>{0.4F, 0.52F, 0.62F, 0.77F, 1.01F, 0.0F}));
    EXPECT_EQ(t.ValveTable[1].Name, "Swing Check");
    EXPECT_EQ(t.ValveTable[1].Length, (std::array<Single, 6>{13.42F, 17.23F, 20.58F, 25.57F, 33.55F, 0.0F}));
    EXPECT_EQ(t.FittingLength[0], (std::array<Single, 5>{2.15F, 2.76F, 3.29F, 4.09F, 5.37F}));
    EXPECT_EQ(t.FittingLength[1], (std::array<Single, 5>{4.03F, 5.17F, 6.17F, 7.67F, 10.06F}));
    EXPECT_EQ(t.FittingLength[2], (std::array<Single, 5>{2.68F, 3.45F, 4.12F, 5.11F, 6.71F}));
    EXPECT_EQ(t.FittingLength[3], (std::array<Single, 5>{8.05F, 10.34F, 12.35F, 15.34F, 20.13F}));
}

TEST_F(PipingFile, ListsHoldTheNamesInFileOrder) {
    const PipingData data = read(wholeFile);
    EXPECT_EQ(data.materialNames, (std::vector<std::string>{"Fibreglass", "Steel Sch 40", "Flexible"}));
    EXPECT_EQ(data.sizeNames, (std::vector<std::string>{"1-1/2\"", "2\"", "2-1/2\"", "3\"", "4\""}));
}

TEST_F(PipingFile, FirstEntryOfEachListIsTheFirstOfTheFile) {
    const PipingData data = read(wholeFile);
    ASSERT_FALSE(data.materialNames.empty());
    ASSERT_FALSE(data.sizeNames.empty());
    EXPECT_EQ(data.materialNames.front(), "Fibreglass");
    EXPECT_EQ(data.sizeNames.front(), "1-1/2\"");
}

TEST_F(PipingFile, ShippedFileReadsWithoutMessage) {
    const PipingData data = GetPipeHeadFileData(test::shippedDataDir(), ui);
    EXPECT_TRUE(ui.shown.empty());
    EXPECT_EQ(data.materialNames.size(), 3U);
    EXPECT_EQ(data.sizeNames.size(), 5U);
    for (Single diameter : data.tables.PipeDiameter) {
        EXPECT_GT(diameter, 0.0F);
    }
}

TEST_F(PipingFile, ReadingLeavesTheFileUnchanged) {
    folder.write("Components/PIPING.DAT", crlfText(wholeFile));
    GetPipeHeadFileData(folder.path(), ui);
    EXPECT_EQ(folder.read("Components/PIPING.DAT"), crlfText(wholeFile));
}

TEST_F(PipingFile, MissingFileEndsWithMessage27) {
    try {
        GetPipeHeadFileData(folder.path(), ui);
        ADD_FAILURE() << "the read did not end the process";
    } catch (const ProcessEnd& end) {
        EXPECT_EQ(end.messageCode(), 27);
    }
    EXPECT_EQ(ui.shown, std::vector<std::string>{"Piping data file does not exist"});
}

TEST_F(PipingFile, FileIsFoundUnderAnotherSpelling) {
    folder.write("Components/Piping.dat", crlfText(wholeFile));
    EXPECT_EQ(GetPipeHeadFileData(folder.path(), ui).materialNames.size(), 3U);
    EXPECT_TRUE(ui.shown.empty());
}

TEST_F(PipingFile, FourthMaterialIsFatal) {
    Lines four = materials;
    four.insert(four.end() - 1, "Copper,0.000005");
    expectReadEnds(four + sizes + valves + allFittings);
}

TEST_F(PipingFile, SixthSizeIsFatal) {
    Lines six = sizes;
    six.insert(six.end() - 1, "6\",0.5");
    expectReadEnds(materials + six + valves + allFittings);
}

TEST_F(PipingFile, ThirdValveGroupIsFatal) {
    Lines three = valves;
    three.insert(three.end() - 1, {"#Gate", "a,1", "b,2", "c,3", "d,4", "e,5"});
    expectReadEnds(materials + sizes + three + allFittings);
}

TEST_F(PipingFile, FewerMaterialsAndSizesAreAcceptedWithZeros) {
    const Lines oneMaterial{"$PT", "Steel,0.00015", "$PT"};
    const Lines twoSizes{"$PD", "2\",0.17225", "3\",0.25567", "$PD"};
    const PipingData data = read(oneMaterial + twoSizes + valves + allFittings);
    EXPECT_EQ(data.materialNames, std::vector<std::string>{"Steel"});
    EXPECT_EQ(data.sizeNames, (std::vector<std::string>{"2\"", "3\""}));
    EXPECT_EQ(data.tables.PipeRoughness, (std::array<Single, 3>{0.00015F, 0.0F, 0.0F}));
    EXPECT_EQ(data.tables.PipeDiameter, (std::array<Single, 5>{0.17225F, 0.25567F, 0.0F, 0.0F, 0.0F}));
}

TEST_F(PipingFile, FewerValveGroupsAndFittingValuesLeaveZeros) {
    const Lines oneValve{"$VA", "#Ball Valve", "a,1", "b,2", "c,3", "d,4", "e,5", "$VA"};
    const Lines noFittingSection{"$L0", "$L0"};
    // An "$L" section always reads a group of five, so an empty one takes its
    // closing key for a value and fails: only missing opening keys leave zeros.
    const PipingData data = read(materials + sizes + oneValve + Lines{"no fittings", "here", "at", "all"});
    EXPECT_EQ(data.tables.ValveTable[0].Name, "Ball Valve");
    EXPECT_EQ(data.tables.ValveTable[1].Name, "");
    EXPECT_EQ(data.tables.ValveTable[1].Length, (std::array<Single, 6>{}));
    for (const auto& row : data.tables.FittingLength) {
        EXPECT_EQ(row, (std::array<Single, 5>{}));
    }
    expectReadEnds(materials + sizes + oneValve + noFittingSection);
}

TEST_F(PipingFile, BlankLineInASectionIsFatal) {
    Lines withBlank = materials;
    withBlank.insert(withBlank.begin() + 2, "");
    expectReadEnds(withBlank + sizes + valves + allFittings);
}

TEST_F(PipingFile, BlankLineBetweenSectionsLeavesTheNextOneUnread) {
    // The blank line is taken for the opening of "$PD", which then stays empty:
    // its list gets no first entry and the read fails.
    expectReadEnds(materials + Lines{""} + sizes + valves + allFittings);
}

TEST_F(PipingFile, NameLineWithoutCommaIsFatal) {
    Lines noComma = materials;
    noComma[1] = "Fibreglass 0.000016";
    expectReadEnds(noComma + sizes + valves + allFittings);
}

TEST_F(PipingFile, ValueThatIsNotANumberIsFatal) {
    Lines bad = sizes;
    bad[2] = "2\",0.17225x";
    expectReadEnds(materials + bad + valves + allFittings);
}

TEST_F(PipingFile, ValueIsTheTextBehindTheFirstComma) {
    // "a,b,1" has the value "b,1", which is not a number.
    Lines bad = materials;
    bad[1] = "a,b,0.000016";
    expectReadEnds(bad + sizes + valves + allFittings);
}

TEST_F(PipingFile, LabelledLineWithoutCommaIsTheValueItself) {
    Lines bare = fittings("$L0", {"2.15", "2.76", "3.29", "4.09", "5.37"});
    bare[3] = " 9.5 ";
    const Lines rest(allFittings.begin() + static_cast<long>(bare.size()), allFittings.end());
    const PipingData data = read(materials + sizes + valves + bare + rest);
    EXPECT_EQ(data.tables.FittingLength[0][2], 9.5F);
}

TEST_F(PipingFile, EmptyMaterialSectionIsFatal) {
    expectReadEnds(Lines{"$PT", "$PT"} + sizes + valves + allFittings);
}

TEST_F(PipingFile, EmptySizeSectionIsFatal) {
    expectReadEnds(materials + Lines{"$PD", "$PD"} + valves + allFittings);
}

TEST_F(PipingFile, FirstEntryOfAnEmptyListIsAnInvalidPropertyValue) {
    EXPECT_EQ(failureOf([] { ParsePipingFile(crlfText(Lines{"$PT", "$PT"} + sizes)); }), "Invalid property value");
}

TEST_F(PipingFile, MissingMaterialKeyLeavesTheListEmptyAndIsFatal) {
    // The first line is consumed; the material list gets no first entry.
    expectReadEnds(Lines{"Fibreglass,0.000016"} + sizes + valves + allFittings);
}

TEST_F(PipingFile, SectionWithoutItsOpeningKeyStaysEmpty) {
    // The line in place of "$VA" is consumed, and the "$L" sections follow.
    const PipingData data = read(materials + sizes + Lines{"no valves"} + allFittings);
    EXPECT_EQ(data.tables.ValveTable[0].Name, "");
    EXPECT_EQ(data.tables.ValveTable[0].Length, (std::array<Single, 6>{}));
    EXPECT_EQ(data.tables.ValveTable[1].Name, "");
    EXPECT_EQ(data.tables.FittingLength[3][4], 20.13F);
}

TEST_F(PipingFile, KeyIsKnownByItsFirstThreeCharacters) {
    Lines keyed = materials;
    keyed.front() = "$PT materials";
    keyed.back() = "$PTend";
    Lines keyedSizes = sizes;
    keyedSizes.front() = "$PD sizes of pipe";
    const PipingData data = read(keyed + keyedSizes + valves + allFittings);
    EXPECT_EQ(data.materialNames.size(), 3U);
    EXPECT_EQ(data.sizeNames.size(), 5U);
}

TEST_F(PipingFile, KeyInLowerCaseIsNotAKey) {
    Lines lower = materials;
    lower.back() = "$pt";
    expectReadEnds(lower + sizes + valves + allFittings);
}

TEST_F(PipingFile, ValveNameDropsItsFirstCharacterWhateverItIs) {
    Lines named = valves;
    named[1] = "XBall";
    named[7] = "S";
    const PipingData data = read(materials + sizes + named + allFittings);
    EXPECT_EQ(data.tables.ValveTable[0].Name, "Ball");
    EXPECT_EQ(data.tables.ValveTable[1].Name, "");
}

TEST_F(PipingFile, FurtherFittingGroupIsReadOverTheFirst) {
    // The line between the groups is passed over, whatever it holds.
    const Lines twoGroups{"$L0", "a,1", "b,2", "c,3", "d,4",  "e,5", "anything",
                          "a,6", "b,7", "c,8", "d,9", "e,10", "$L0"};
    const PipingData data =
        read(materials + sizes + valves + twoGroups + fittings("$L1", {"1", "2", "3", "4", "5"}) +
             fittings("$L2", {"1", "2", "3", "4", "5"}) + fittings("$L3", {"1", "2", "3", "4", "5"}));
    EXPECT_EQ(data.tables.FittingLength[0], (std::array<Single, 5>{6.0F, 7.0F, 8.0F, 9.0F, 10.0F}));
}

TEST_F(PipingFile, FittingSectionCutShortIsFatal) {
    Lines cut = wholeFile;
    cut.pop_back();
    expectReadEnds(cut);
}

TEST_F(PipingFile, ReadingPastTheEndIsFatal) {
    expectReadEnds(materials + sizes);
}

TEST_F(PipingFile, LinesBehindTheLastSectionAreNotRead) {
    const PipingData data = read(wholeFile + Lines{"", "anything"});
    EXPECT_EQ(data.tables.FittingLength[3][4], 20.13F);
}

TEST_F(PipingFile, LfLineEndsRead) {
    std::string text;
    for (const std::string& line : wholeFile) {
        text += line + "\n";
    }
    folder.write("Components/PIPING.DAT", text);
    const PipingData data = GetPipeHeadFileData(folder.path(), ui);
    EXPECT_TRUE(ui.shown.empty());
    EXPECT_EQ(data.tables.PipeDiameter[4], 0.3355F);
}

} // namespace
} // namespace vesk
