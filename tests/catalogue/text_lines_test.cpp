// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// Tests of the line reader and the line writer of the data files.
#include "catalogue/text_lines.h"
#include "engine/numeric.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace vesk {
namespace {

std::vector<std::string> allLines(std::string text) {
    TextLineReader stream(std::move(text));
    std::vector<std::string> lines;
    while (!stream.atEndOfStream()) {
        lines.push_back(stream.readLine());
    }
    return lines;
}

struct LinesCase {
    const char* name;
    std::string text;
    std::vector<std::string> lines;
};

class TextLineReaderLines : public testing::TestWithParam<LinesCase> {};

TEST_P(TextLineReaderLines, SplitsTheTextIntoItsLines) {
    EXPECT_EQ(allLines(GetParam().text), GetParam().lines);
}

INSTANTIATE_TEST_SUITE_P(TextLineReader, TextLineReaderLines,
                         testing::Values(LinesCase{"CrLfEndsLines", "a\r\nb\r\n", {"a", "b"}},
                                         LinesCase{"LfEndsLines", "a\nb\n", {"a", "b"}},
                                         LinesCase{"MixedLineEnds", "a\r\nb\nc\r\n", {"a", "b", "c"}},
                                         LinesCase{"FinalLineEndStartsNoFurtherLine", "a\r\n", {"a"}},
                                         LinesCase{"LastLineWithoutLineEndIsALine", "a\r\nb", {"a", "b"}},
                                         LinesCase{"EmptyLineInsideIsAnEmptyText", "a\r\n\r\nb\r\n", {"a", "", "b"}},
                                         LinesCase{"EmptyLineBehindTheLastIsALine", "a\r\n\r\n", {"a", ""}},
                                         LinesCase{"OnlyOneCarriageReturnIsStripped", "a\r\r\n", {"a\r"}},
                                         LinesCase{"BlanksAreKept", "  \r\n a \r\n", {"  ", " a "}},
                                         LinesCase{"BytesOfTheCodePageAreKept", "Caf\xE9\r\n", {"Caf\xE9"}},
                                         LinesCase{"EmptyTextHasNoLine", "", {}}),
                         [](const testing::TestParamInfo<LinesCase>& row) { return std::string(row.param.name); });

TEST(TextLineReader, EmptyTextIsAtItsEndAtOnce) {
    TextLineReader stream("");
    EXPECT_TRUE(stream.atEndOfStream());
}

TEST(TextLineReader, ReadingPastTheEndFails) {
    TextLineReader stream("a\r\n");
    EXPECT_EQ(stream.readLine(), "a");
    EXPECT_TRUE(stream.atEndOfStream());
    try {
        stream.readLine();
        FAIL() << "no failure";
    } catch (const RunTimeFailure& failure) {
        EXPECT_STREQ(failure.what(), "Input past end of file");
    }
}

TEST(AppendLine, EndsEveryLineWithCrLf) {
    std::string text;
    appendLine(text, "$A #AI");
    appendLine(text, "");
    appendLine(text, "10,3.5");
    EXPECT_EQ(text, "$A #AI\r\n\r\n10,3.5\r\n");
}

} // namespace
} // namespace vesk
