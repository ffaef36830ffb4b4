// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// Tests of the component data files: the reader, the writer and RemoveBlankLine.
#include "support/failure_of.h"
#include "support/recording_interaction.h"
#include "support/temp_program_folder.h"

#include "catalogue/component_file.h"
#include "catalogue/component_files.h"
#include "engine/numeric.h"
#include "messages/user_interaction.h"

#include <cctype>
#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace vesk {
namespace {

using test::failureOf;

namespace fs = std::filesystem;
using test::crlfLines;
using test::RecordingInteraction;
using test::TempProgramFolder;

// Joins lines, each ended by LF alone.
std::string lfLines(const std::vector<std::string>& lines) {
    std::string text;
    for (const std::string& line : lines) {
        text += line + "\n";
    }
    return text;
}

std::string crlfText(const std::vector<std::string>& lines) {
    std::string text;
    for (const std::string& line : lines) {
        text += line + "\r\n";
    }
    return text;
}

// The lines of a dispenser record of two points.
const std::vector<std::string> sampleRecord{
    "$Sample 123 #AI", "#TRUE#", "#Custom#", "#RATELOSS_BEGIN#", "10,3.5", "20,7", "#RATELOSS_END#",
};

// The lines of a record of `points` points: flow i, head i / 10.
std::vector<std::string> recordOfPoints(int points) {
    std::vector<std::string> lines{"$Many #A", "#FALSE#", "#Standard#", "#RATELOSS_BEGIN#"};
    for (int i = 0; i < points; ++i) {
        lines.push_back(std::to_string(i) + "," + std::to_string(i) + ".5");
    }
    lines.push_back("#RATELOSS_END#");
    return lines;
}

std::vector<std::string> joined(std::vector<std::string> first, const std::vector<std::string>& second) {
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

void expectSameRecords(const Catalogue& actual, const Catalogue& expected) {
    ASSERT_EQ(actual.Records.size(), expected.Records.size());
    for (std::size_t i = 0; i < actual.Records.size(); ++i) {
        const ComponentRecord& a = actual.Records[i];
        const ComponentRecord& e = expected.Records[i];
        EXPECT_EQ(a.Name, e.Name) << "record " << i;
        EXPECT_EQ(a.ListCodes, e.ListCodes) << "record " << i;
        EXPECT_EQ(a.IsGas, e.IsGas) << "record " << i;
        EXPECT_EQ(a.Origin, e.Origin) << "record " << i;
        EXPECT_EQ(a.HoseLength, e.HoseLength) << "record " << i;
        EXPECT_EQ(a.Curve.Flow, e.Curve.Flow) << "record " << i;
        EXPECT_EQ(a.Curve.Head, e.Curve.Head) << "record " << i;
        EXPECT_EQ(a.Curve.PointCount, e.Curve.PointCount) << "record " << i;
    }
}

class ComponentFile : public testing::Test {
  protected:
    void writeFile(ComponentKind kind, const std::string& text) {
        folder.write("Components/" + std::string(traitsOf(kind).fileAsRead), text);
    }

    Catalogue read(ComponentKind kind) { return GetComponentFileData(kind, folder.path(), ui); }

    // Reads `text` as the file of `kind` and expects the process to end with
    // the message `code` showing `text`.
    void expectReadEnds(ComponentKind kind, const std::string& text, int code, const std::string& message) {
        writeFile(kind, text);
        ui.shown.clear();
        try {
            read(kind);
            ADD_FAILURE() << "the read did not end the process";
        } catch (const ProcessEnd& end) {
            EXPECT_EQ(end.messageCode(), code);
        }
        EXPECT_EQ(ui.shown, std::vector<std::string>{message});
    }

    void expectDispenserReadEnds(const std::vector<std::string>& lines) {
        expectReadEnds(ComponentKind::Dispenser, crlfText(lines), 14, "Problem in reading Dispenser Data file");
    }

    Catalogue readDispenser(const std::vector<std::string>& lines) {
        writeFile(ComponentKind::Dispenser, crlfText(lines));
        Catalogue catalogue = read(ComponentKind::Dispenser);
        EXPECT_TRUE(ui.shown.empty());
        return catalogue;
    }

    TempProgramFolder folder;
    RecordingInteraction ui;
};

TEST_F(ComponentFile, ReadsEveryFieldOfARecord) {
    const Catalogue catalogue = readDispenser(sampleRecord);
    ASSERT_EQ(catalogue.Top(), 0);
    const ComponentRecord& record = catalogue.Records[0];
    EXPECT_EQ(record.Name, "Sample 123");
    EXPECT_EQ(record.ListCodes, "AI");
    EXPECT_TRUE(record.IsGas);
    EXPECT_EQ(record.Origin, "#Custom#");
    EXPECT_EQ(record.HoseLength, 0.0F);
    EXPECT_EQ(record.Curve.PointCount, 2);
    // The arrays hold exactly the points read, nothing more.
    EXPECT_EQ(record.Curve.Flow, (std::vector<Single>{10.0F, 20.0F}));
    EXPECT_EQ(record.Curve.Head, (std::vector<Single>{3.5F, 7.0F}));
}

TEST_F(ComponentFile, ReadsRecordsInFileOrder) {
    std::vector<std::string> second = sampleRecord;
    second[0] = "$Second #C";
    second[1] = "#FALSE#";
    const Catalogue catalogue = readDispenser(joined(sampleRecord, second));
    ASSERT_EQ(catalogue.Top(), 1);
    EXPECT_EQ(catalogue.Records[0].Name, "Sample 123");
    EXPECT_EQ(catalogue.Records[1].Name, "Second");
    EXPECT_EQ(catalogue.Records[1].ListCodes, "C");
    EXPECT_FALSE(catalogue.Records[1].IsGas);
}

TEST_F(ComponentFile, BlankLineInsideRecordIsSkipped) {
    const Catalogue expected = ParseComponentFile(ComponentKind::Dispenser, crlfText(sampleRecord));
    // Every place but the end: a blank line there is fatal (see below).
    for (std::size_t at = 0; at < sampleRecord.size(); ++at) {
        std::vector<std::string> lines = sampleRecord;
        lines.insert(lines.begin() + static_cast<long>(at), "");
        SCOPED_TRACE("blank line in front of line " + std::to_string(at + 1));
        expectSameRecords(readDispenser(lines), expected);
    }
}

TEST_F(ComponentFile, SeveralBlankLinesInARowAreSkipped) {
    std::vector<std::string> lines = sampleRecord;
    lines.insert(lines.begin() + 4, {"", "", ""});
    expectSameRecords(readDispenser(lines), ParseComponentFile(ComponentKind::Dispenser, crlfText(sampleRecord)));
}

TEST_F(ComponentFile, BlankLineBetweenRecordsIsSkipped) {
    const std::vector<std::string> two = joined(sampleRecord, sampleRecord);
    std::vector<std::string> withBlank = sampleRecord;
    withBlank.push_back("");
    withBlank = joined(withBlank, sampleRecord);
    expectSameRecords(readDispenser(withBlank), ParseComponentFile(ComponentKind::Dispenser, crlfText(two)));
}

TEST_F(ComponentFile, BlankLineBehindTheLastRecordIsFatal) {
    std::vector<std::string> lines = sampleRecord;
    lines.push_back("");
    expectDispenserReadEnds(lines);
}

TEST_F(ComponentFile, BlankLineBehindTheLastRecordRunsPastTheEnd) {
    std::vector<std::string> lines = sampleRecord;
    lines.push_back("");
    EXPECT_EQ(failureOf([&] { ParseComponentFile(ComponentKind::Dispenser, crlfText(lines)); }),
              "Input past end of file");
}

TEST_F(ComponentFile, LineOfBlanksIsNotSkippedAnywhere) {
    // In front of the header or behind the last record it is a header without
    // "#"; in front of the flag it does not convert; in place of the origin it
    // pushes the table one line on; among the points it has no comma.
    for (std::size_t at = 0; at <= sampleRecord.size(); ++at) {
        std::vector<std::string> lines = sampleRecord;
        lines.insert(lines.begin() + static_cast<long>(at), "   ");
        SCOPED_TRACE("line of blanks in front of line " + std::to_string(at + 1));
        expectDispenserReadEnds(lines);
    }
}

TEST_F(ComponentFile, CompletelyEmptyFileIsFatal) {
    expectDispenserReadEnds({});
    EXPECT_EQ(failureOf([] { ParseComponentFile(ComponentKind::Dispenser, ""); }), "Subscript out of range");
}

TEST_F(ComponentFile, RecordWithoutPointsIsFatal) {
    const std::vector<std::string> lines{"$Empty #A", "#TRUE#", "#Custom#", "#RATELOSS_BEGIN#", "#RATELOSS_END#"};
    expectDispenserReadEnds(lines);
    EXPECT_EQ(failureOf([&] { ParseComponentFile(ComponentKind::Dispenser, crlfText(lines)); }),
              "Subscript out of range");
}

TEST_F(ComponentFile, RecordOf255PointsReadsCorrectly) {
    const Catalogue catalogue = readDispenser(recordOfPoints(255));
    ASSERT_EQ(catalogue.Top(), 0);
    const RateLossCurve& curve = catalogue.Records[0].Curve;
    EXPECT_EQ(curve.PointCount, 255);
    ASSERT_EQ(curve.Flow.size(), 255U);
    ASSERT_EQ(curve.Head.size(), 255U);
    EXPECT_EQ(curve.Flow[254], 254.0F);
    EXPECT_EQ(curve.Head[254], 254.5F);
}

TEST_F(ComponentFile, The256thPointOverflowsTheCounter) {
    expectDispenserReadEnds(recordOfPoints(256));
    EXPECT_EQ(failureOf([] { ParseComponentFile(ComponentKind::Dispenser, crlfText(recordOfPoints(256))); }),
              "Overflow");
}

struct HeaderCase {
    const char* name;
    const char* header;
    const char* expectedName;
    const char* expectedCodes;
};

class ComponentFileHeader : public testing::TestWithParam<HeaderCase> {};

TEST_P(ComponentFileHeader, SplitsNameAndListCodesByPlace) {
    std::vector<std::string> lines = sampleRecord;
    lines[0] = GetParam().header;
    const Catalogue catalogue = ParseComponentFile(ComponentKind::Dispenser, crlfText(lines));
    EXPECT_EQ(catalogue.Records.at(0).Name, GetParam().expectedName);
    EXPECT_EQ(catalogue.Records.at(0).ListCodes, GetParam().expectedCodes);
}

INSTANTIATE_TEST_SUITE_P(ComponentFile, ComponentFileHeader,
                         testing::Values(HeaderCase{"NameWithBlanksInside", "$A B #C", "A B", "C"},
                                         HeaderCase{"ThreeListCodes", "$Sample 123 #AIC", "Sample 123", "AIC"},
                                         HeaderCase{"CharacterInFrontOfHashGoesWhateverItIs", "$AB#C", "A", "C"},
                                         HeaderCase{"FirstCharacterGoesWhateverItIs", "XName #I", "Name", "I"},
                                         HeaderCase{"HashAtPositionTwoGivesAnEmptyName", "$#AI", "", "AI"},
                                         HeaderCase{"EverythingBehindTheFirstHashIsListCodes", "$A #A#I ", "A", "A#I "},
                                         HeaderCase{"NothingBehindTheHashGivesNoListCodes", "$A #", "A", ""}),
                         [](const testing::TestParamInfo<HeaderCase>& row) { return std::string(row.param.name); });

TEST_F(ComponentFile, HeaderWithoutHashIsFatal) {
    std::vector<std::string> lines = sampleRecord;
    lines[0] = "$Sample 123 AI";
    expectDispenserReadEnds(lines);
}

TEST_F(ComponentFile, HeaderWithHashAtPositionOneIsFatal) {
    std::vector<std::string> lines = sampleRecord;
    lines[0] = "#Sample";
    expectDispenserReadEnds(lines);
}

TEST_F(ComponentFile, FlagLineConvertsToBoolean) {
    std::vector<std::string> lines = sampleRecord;
    lines[1] = "#FALSE#";
    EXPECT_FALSE(readDispenser(lines).Records.at(0).IsGas);
    lines[1] = "#TRUE#";
    EXPECT_TRUE(readDispenser(lines).Records.at(0).IsGas);
}

TEST_F(ComponentFile, FlagLineThatDoesNotConvertIsFatal) {
    std::vector<std::string> lines = sampleRecord;
    lines[1] = "#MAYBE#";
    expectDispenserReadEnds(lines);
}

TEST_F(ComponentFile, OriginIsKeptAsTheWholeLine) {
    std::vector<std::string> lines = sampleRecord;
    lines[2] = " #Custom# by hand ";
    EXPECT_EQ(readDispenser(lines).Records.at(0).Origin, " #Custom# by hand ");
}

TEST_F(ComponentFile, MisspelledRateLossBeginIsAccepted) {
    for (const char* begin : {"#RATELOSS_BEGN#", "anything at all", "#RATELOSS_END#"}) {
        std::vector<std::string> lines = sampleRecord;
        lines[3] = begin;
        SCOPED_TRACE(begin);
        EXPECT_EQ(readDispenser(lines).Records.at(0).Curve.PointCount, 2);
    }
}

TEST_F(ComponentFile, PointLineWithoutCommaIsFatal) {
    std::vector<std::string> lines = sampleRecord;
    lines[4] = "10 3.5";
    expectDispenserReadEnds(lines);
}

TEST_F(ComponentFile, PointLineSplitsAtTheFirstCommaOnly) {
    // The head "3.5,1" is not a number.
    std::vector<std::string> lines = sampleRecord;
    lines[4] = "10,3.5,1";
    expectDispenserReadEnds(lines);
}

TEST_F(ComponentFile, PointTextThatIsNotANumberIsFatal) {
    for (const char* point : {"ten,3.5", "10,", ",3.5", "10,3.5x", "10,3,5"}) {
        std::vector<std::string> lines = sampleRecord;
        lines[4] = point;
        SCOPED_TRACE(point);
        expectDispenserReadEnds(lines);
    }
}

TEST_F(ComponentFile, BlanksAroundThePointNumbersAreAccepted) {
    std::vector<std::string> lines = sampleRecord;
    lines[4] = " 10 , 3.5 ";
    lines[5] = ".5,-1E1";
    const RateLossCurve curve = readDispenser(lines).Records.at(0).Curve;
    EXPECT_EQ(curve.Flow, (std::vector<Single>{10.0F, 0.5F}));
    EXPECT_EQ(curve.Head, (std::vector<Single>{3.5F, -10.0F}));
}

TEST_F(ComponentFile, EndLineIsComparedExactly) {
    // "#RATELOSS_END# " is not the end: it is taken as a point and has no comma.
    std::vector<std::string> lines = sampleRecord;
    lines[6] = "#RATELOSS_END# ";
    expectDispenserReadEnds(lines);
    lines[6] = "#rateloss_end#";
    expectDispenserReadEnds(lines);
}

TEST_F(ComponentFile, RecordCutShortIsFatal) {
    std::vector<std::string> lines = sampleRecord;
    lines.pop_back();
    expectDispenserReadEnds(lines);
}

TEST_F(ComponentFile, CrLfAndLfLineEndsReadAlike) {
    writeFile(ComponentKind::Dispenser, lfLines(joined(sampleRecord, sampleRecord)));
    const Catalogue fromLf = read(ComponentKind::Dispenser);
    EXPECT_TRUE(ui.shown.empty());
    expectSameRecords(fromLf, readDispenser(joined(sampleRecord, sampleRecord)));
}

TEST_F(ComponentFile, LastLineWithoutLineEndReads) {
    std::string text = crlfText(sampleRecord);
    text.resize(text.size() - 2);
    writeFile(ComponentKind::Dispenser, text);
    const Catalogue catalogue = read(ComponentKind::Dispenser);
    EXPECT_TRUE(ui.shown.empty());
    EXPECT_EQ(catalogue.Top(), 0);
}

TEST_F(ComponentFile, NameKeepsTheBytesOfTheCodePage) {
    std::vector<std::string> lines = sampleRecord;
    lines[0] = "$Caf\xE9 \xB0 #A";
    EXPECT_EQ(readDispenser(lines).Records.at(0).Name, "Caf\xE9 \xB0");
}

TEST_F(ComponentFile, HoseRecordReadsItsLength) {
    writeFile(ComponentKind::Hose, crlfLines({"$3/4 #AIC", "#TRUE#", "#Standard#", "12.5", "#RATELOSS_BEGIN#", "0,0",
                                              "2,1.5", "#RATELOSS_END#"}));
    const Catalogue catalogue = read(ComponentKind::Hose);
    EXPECT_TRUE(ui.shown.empty());
    EXPECT_EQ(catalogue.Records.at(0).HoseLength, 12.5F);
    EXPECT_EQ(catalogue.Records.at(0).Curve.Flow, (std::vector<Single>{0.0F, 2.0F}));
}

TEST_F(ComponentFile, HoseRecordWithoutItsLengthIsFatal) {
    // The "#RATELOSS_BEGIN#" line is then taken for the length.
    expectReadEnds(ComponentKind::Hose, crlfText(sampleRecord), 16, "Problem in reading Hose Data File");
}

TEST_F(ComponentFile, ReaderFindsTheFileUnderAnotherSpelling) {
    folder.write("Components/Pump.DAT", crlfText(sampleRecord));
    const Catalogue catalogue = read(ComponentKind::Pump);
    EXPECT_TRUE(ui.shown.empty());
    EXPECT_EQ(catalogue.Records.at(0).Name, "Sample 123");
}

TEST_F(ComponentFile, RecordCursorHoldsAtMost32767Records) {
    const std::string record = crlfLines({"$R #A", "#TRUE#", "#Custom#", "#RATELOSS_BEGIN#", "1,2", "#RATELOSS_END#"});
    std::string text;
    for (int i = 0; i < 32767; ++i) {
        text += record;
    }
    EXPECT_EQ(ParseComponentFile(ComponentKind::Dispenser, text).Top(), 32766);
    text += record;
    EXPECT_EQ(failureOf([&] { ParseComponentFile(ComponentKind::Dispenser, text); }), "Overflow");
}

TEST(RemoveBlankLine, ReturnsALineThatIsNotEmptyAsItIs) {
    TextLineReader stream("next\r\n");
    EXPECT_EQ(RemoveBlankLine("line", stream), "line");
    EXPECT_EQ(stream.readLine(), "next");
}

TEST(RemoveBlankLine, ReadsOnUntilALineIsNotEmpty) {
    TextLineReader stream("\r\n\r\nnext\r\nlast\r\n");
    EXPECT_EQ(RemoveBlankLine("", stream), "next");
    EXPECT_EQ(stream.readLine(), "last");
}

TEST(RemoveBlankLine, LineOfBlanksIsNotEmpty) {
    TextLineReader stream("next\r\n");
    EXPECT_EQ(RemoveBlankLine("  ", stream), "  ");
}

TEST(RemoveBlankLine, RunningPastTheEndFails) {
    TextLineReader stream("\r\n");
    EXPECT_EQ(failureOf([&] { RemoveBlankLine("", stream); }), "Input past end of file");
}

// What tells the kinds apart, with the messages written out.
struct KindCase {
    const char* name;
    ComponentKind kind;
    int missingCode;
    const char* missingText;
    int damagedCode;
    const char* damagedText;
    const char* writtenName;
};

const KindCase kindCases[] = {
    {"Dispenser", ComponentKind::Dispenser, 22, "Dispenser data file does not exist", 14,
     "Problem in reading Dispenser Data file", "DISP.DAT"},
    {"DispenserOthers", ComponentKind::DispenserOthers, 23, "Dispenser Others data file does not exist", 15,
     "Problem in reading DispenserOthers Data File", "DISPOTHERS.DAT"},
    {"Nozzle", ComponentKind::Nozzle, 26, "Nozzle data file does not exist", 18, "Problem in reading Nozzle Data File",
     "NOZZLE.DAT"},
    {"LeakDetector", ComponentKind::LeakDetector, 25, "LeakDetector data file does not exist", 17,
     "Problem in reading LeakDetector Data File", "MLD.DAT"},
    {"Breakaway", ComponentKind::Breakaway, 21, "Breakaway data file does not exist", 13,
     "Problem in reading Breakaway Data File", "BRK.DAT"},
    {"Pump", ComponentKind::Pump, 28, "Pump data file does not exist", 19, "Problem in reading Pump Data file",
     "Pump.DAT"},
    {"PumpOthers", ComponentKind::PumpOthers, 29, "Pump Others data file does not exist", 20,
     "Problem in reading PumpOthers Data File", "PumpOthers.DAT"},
    {"Hose", ComponentKind::Hose, 24, "Hose data file does not exist", 16, "Problem in reading Hose Data File",
     "Hoses.DAT"},
};

// Two records of the kind, with numbers of at most seven digits.
Catalogue sampleCatalogue(ComponentKind kind) {
    Catalogue catalogue;
    ComponentRecord first;
    first.Name = "Sample 123";
    first.ListCodes = "AIC";
    first.IsGas = true;
    first.Origin = "#Standard#";
    first.Curve.Flow = {0.0F, 2.5F, 10.0F, 12.3F};
    first.Curve.Head = {0.0F, 0.5F, 46.6F, 123.4567F};
    first.Curve.PointCount = 4;
    ComponentRecord second;
    second.Name = "3/4";
    second.ListCodes = "C";
    second.IsGas = false;
    second.Origin = "#Custom#";
    second.Curve.Flow = {7.0F};
    second.Curve.Head = {0.125F};
    second.Curve.PointCount = 1;
    if (traitsOf(kind).hasHoseLength) {
        first.HoseLength = 12.5F;
        second.HoseLength = 0.3F;
    }
    catalogue.Records = {first, second};
    return catalogue;
}

class ComponentFileOfKind : public ComponentFile, public testing::WithParamInterface<KindCase> {};

TEST_P(ComponentFileOfKind, MissingFileEndsWithItsMessage) {
    try {
        read(GetParam().kind);
        ADD_FAILURE() << "the read did not end the process";
    } catch (const ProcessEnd& end) {
        EXPECT_EQ(end.messageCode(), GetParam().missingCode);
    }
    EXPECT_EQ(ui.shown, std::vector<std::string>{GetParam().missingText});
}

TEST_P(ComponentFileOfKind, DamagedFileEndsWithItsMessage) {
    expectReadEnds(GetParam().kind, crlfLines({"$Broken", "#TRUE#"}), GetParam().damagedCode, GetParam().damagedText);
}

TEST_P(ComponentFileOfKind, WrittenFileReadsBackTheSameRecords) {
    const Catalogue written = sampleCatalogue(GetParam().kind);
    SetComponentFileData(GetParam().kind, written, folder.path());
    const Catalogue readBack = read(GetParam().kind);
    EXPECT_TRUE(ui.shown.empty());
    expectSameRecords(readBack, written);
}

TEST_P(ComponentFileOfKind, WriterCreatesItsOwnSpellingWhenNoFileExists) {
    SetComponentFileData(GetParam().kind, sampleCatalogue(GetParam().kind), folder.path());
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder.path() / "Components")) {
        names.push_back(entry.path().filename().string());
    }
    EXPECT_EQ(names, std::vector<std::string>{GetParam().writtenName});
}

TEST_P(ComponentFileOfKind, WriterWritesToTheFileUnderItsExistingSpelling) {
    std::string lower = GetParam().writtenName;
    for (char& c : lower) {
        c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    }
    folder.write("Components/" + lower, "old\r\n");
    const Catalogue catalogue = sampleCatalogue(GetParam().kind);
    SetComponentFileData(GetParam().kind, catalogue, folder.path());
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder.path() / "Components")) {
        names.push_back(entry.path().filename().string());
    }
    EXPECT_EQ(names, std::vector<std::string>{lower});
    EXPECT_EQ(folder.read("Components/" + lower), ComposeComponentFile(GetParam().kind, catalogue));
}

TEST_P(ComponentFileOfKind, ShippedFileReadsWithoutMessage) {
    const Catalogue catalogue = GetComponentFileData(GetParam().kind, test::shippedDataDir(), ui);
    EXPECT_TRUE(ui.shown.empty());
    EXPECT_GE(catalogue.Top(), 0);
    for (const ComponentRecord& record : catalogue.Records) {
        EXPECT_GE(record.Curve.PointCount, 1) << record.Name;
        EXPECT_EQ(record.Curve.Flow.size(), static_cast<std::size_t>(record.Curve.PointCount)) << record.Name;
        EXPECT_EQ(record.Curve.Head.size(), static_cast<std::size_t>(record.Curve.PointCount)) << record.Name;
    }
}

INSTANTIATE_TEST_SUITE_P(AllKinds, ComponentFileOfKind, testing::ValuesIn(kindCases),
                         [](const testing::TestParamInfo<KindCase>& row) { return std::string(row.param.name); });

TEST(ComposeComponentFile, WritesTheRecordLinesWithCrLf) {
    EXPECT_EQ(ComposeComponentFile(ComponentKind::Nozzle, sampleCatalogue(ComponentKind::Nozzle)),
              crlfLines({"$Sample 123 #AIC", "#TRUE#", "#Standard#", "#RATELOSS_BEGIN#", "0,0", "2.5,0.5", "10,46.6",
                         "12.3,123.4567", "#RATELOSS_END#", "$3/4 #C", "#FALSE#", "#Custom#", "#RATELOSS_BEGIN#",
                         "7,0.125", "#RATELOSS_END#"}));
}

TEST(ComposeComponentFile, HoseRecordCarriesItsLengthBehindTheOrigin) {
    EXPECT_EQ(ComposeComponentFile(ComponentKind::Hose, sampleCatalogue(ComponentKind::Hose)),
              crlfLines({"$Sample 123 #AIC", "#TRUE#", "#Standard#", "12.5", "#RATELOSS_BEGIN#", "0,0", "2.5,0.5",
                         "10,46.6", "12.3,123.4567", "#RATELOSS_END#", "$3/4 #C", "#FALSE#", "#Custom#", "0.3",
                         "#RATELOSS_BEGIN#", "7,0.125", "#RATELOSS_END#"}));
}

TEST(ComposeComponentFile, WritesOnlyPointCountPoints) {
    // After an editor stores its table the arrays hold one element more.
    Catalogue catalogue = sampleCatalogue(ComponentKind::Dispenser);
    catalogue.Records.resize(1);
    catalogue.Records[0].Curve.Flow.push_back(0.0F);
    catalogue.Records[0].Curve.Head.push_back(0.0F);
    catalogue.Records[0].Curve.PointCount = 2;
    EXPECT_EQ(ComposeComponentFile(ComponentKind::Dispenser, catalogue),
              crlfLines({"$Sample 123 #AIC", "#TRUE#", "#Standard#", "#RATELOSS_BEGIN#", "0,0", "2.5,0.5",
                         "#RATELOSS_END#"}));
}

TEST(ComposeComponentFile, NumbersKeepAtMostSevenDigits) {
    Catalogue catalogue = sampleCatalogue(ComponentKind::Dispenser);
    catalogue.Records.resize(1);
    catalogue.Records[0].Curve.Flow = {1.0F / 3.0F};
    catalogue.Records[0].Curve.Head = {-2.0F / 3.0F};
    catalogue.Records[0].Curve.PointCount = 1;
    EXPECT_EQ(ComposeComponentFile(ComponentKind::Dispenser, catalogue),
              crlfLines({"$Sample 123 #AIC", "#TRUE#", "#Standard#", "#RATELOSS_BEGIN#", "0.3333333,-0.6666667",
                         "#RATELOSS_END#"}));
}

TEST(ComposeComponentFile, EmptyCatalogueGivesEmptyText) {
    EXPECT_EQ(ComposeComponentFile(ComponentKind::Pump, Catalogue{}), "");
}

TEST(ComposeComponentFile, RecordOfNoPointsOverflowsTheLoopBound) {
    Catalogue catalogue = sampleCatalogue(ComponentKind::Pump);
    catalogue.Records[1].Curve.PointCount = 0;
    EXPECT_EQ(failureOf([&] { ComposeComponentFile(ComponentKind::Pump, catalogue); }), "Overflow");
}

TEST(ComposeComponentFile, PointCountBeyondTheArraysIsOutOfRange) {
    Catalogue catalogue = sampleCatalogue(ComponentKind::Pump);
    catalogue.Records[1].Curve.PointCount = 2;
    EXPECT_EQ(failureOf([&] { ComposeComponentFile(ComponentKind::Pump, catalogue); }), "Subscript out of range");
}

TEST_F(ComponentFile, FailedWriteLeavesTheOldFileByteIdentical) {
    const std::string old = crlfText(sampleRecord) + "\r\n  odd tail without a record";
    folder.write("Components/PUMP.DAT", old);
    Catalogue catalogue = sampleCatalogue(ComponentKind::Pump);
    catalogue.Records[1].Curve.PointCount = 0;
    EXPECT_EQ(failureOf([&] { SetComponentFileData(ComponentKind::Pump, catalogue, folder.path()); }), "Overflow");
    EXPECT_EQ(folder.read("Components/PUMP.DAT"), old);
}

TEST_F(ComponentFile, WriterReplacesTheWholeOldText) {
    folder.write("Components/DISP.DAT", crlfText(joined(sampleRecord, sampleRecord)) + "a longer old text");
    Catalogue catalogue = sampleCatalogue(ComponentKind::Dispenser);
    catalogue.Records.resize(1);
    SetComponentFileData(ComponentKind::Dispenser, catalogue, folder.path());
    EXPECT_EQ(folder.read("Components/DISP.DAT"), ComposeComponentFile(ComponentKind::Dispenser, catalogue));
}

TEST_F(ComponentFile, ShippedFileWrittenAgainReadsTheSame) {
    for (const KindCase& kindCase : kindCases) {
        SCOPED_TRACE(kindCase.name);
        const Catalogue shipped = GetComponentFileData(kindCase.kind, test::shippedDataDir(), ui);
        SetComponentFileData(kindCase.kind, shipped, folder.path());
        expectSameRecords(read(kindCase.kind), shipped);
    }
    EXPECT_TRUE(ui.shown.empty());
}

} // namespace
} // namespace vesk
