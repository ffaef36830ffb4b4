// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// Round trips of random catalogues of every kind through the component files.
#include "support/recording_interaction.h"
#include "support/temp_program_folder.h"

#include "catalogue/catalogue_units.h"
#include "catalogue/component_file.h"
#include "catalogue/component_files.h"
#include "engine/numeric.h"

#include <cstdint>
#include <gtest/gtest.h>
#include <random>
#include <string>

namespace vesk {
namespace {

using test::TempProgramFolder;

// Random records that the grammar of the component files can hold:
// - a name of any printable characters of the code page but '#', blanks
//   anywhere (in front and behind too), '$' anywhere, or no name at all: the
//   header is cut by place up to its first '#';
// - list codes of any letters, or none;
// - an origin marker, "#TRUE#"/"#FALSE#" from the flag;
// - 1 to 255 points, each value a Single read from a text of at most seven
//   significant digits, which is what the text of a Single keeps; no negative
//   zero, which the text writes as "0".
class RandomCatalogues {
  public:
    // Values stay below 10 to the power `largestExponent` + 7.
    explicit RandomCatalogues(std::uint32_t seed, int largestExponent = 31)
        : m_random(seed), m_largestExponent(largestExponent) {}

    Catalogue catalogue(ComponentKind kind, int records) {
        Catalogue result;
        for (int i = 0; i < records; ++i) {
            result.Records.push_back(record(kind));
        }
        return result;
    }

    ComponentRecord record(ComponentKind kind) {
        ComponentRecord record;
        record.Name = name();
        record.ListCodes = listCodes();
        record.IsGas = chance(2);
        record.Origin = chance(2) ? "#Standard#" : "#Custom#";
        if (traitsOf(kind).hasHoseLength) {
            record.HoseLength = single();
        }
        const auto points = static_cast<Integer>(pointCount());
        record.Curve.PointCount = points;
        record.Curve.Flow.clear();
        record.Curve.Head.clear();
        for (Integer point = 0; point < points; ++point) {
            record.Curve.Flow.push_back(single());
            record.Curve.Head.push_back(single());
        }
        return record;
    }

  private:
    int between(int low, int high) { return std::uniform_int_distribution<int>(low, high)(m_random); }
    bool chance(int oneIn) { return between(1, oneIn) == 1; }

    // Mostly short curves; the limits 1 and 255 often.
    int pointCount() {
        switch (between(0, 9)) {
        case 0:
            return 1;
        case 1:
            return 255;
        case 2:
            return between(2, 255);
        default:
            return between(1, 20);
        }
    }

    std::string name() {
        // Printable ASCII and the letters and signs above 0xA0 of Windows-1252.
        static const std::string alphabet = [] {
            std::string characters;
            for (int c = 0x20; c <= 0x7E; ++c) {
                if (c != '#') {
                    characters += static_cast<char>(c);
                }
            }
            for (int c = 0xA0; c <= 0xFF; ++c) {
                characters += static_cast<char>(c);
            }
            characters += "    $$"; // blanks and dollars more often
            return characters;
        }();
        std::string text;
        const int length = chance(10) ? 0 : between(1, 30);
        for (int i = 0; i < length; ++i) {
            text += alphabet[static_cast<std::size_t>(between(0, static_cast<int>(alphabet.size()) - 1))];
        }
        return text;
    }

    std::string listCodes() {
        static const std::string letters = "AICAICAICabcxyzQ";
        std::string text;
        const int length = between(0, 4);
        for (int i = 0; i < length; ++i) {
            text += letters[static_cast<std::size_t>(between(0, static_cast<int>(letters.size()) - 1))];
        }
        return text;
    }

    // A Single of up to seven significant digits between about 1E-44 and 1E+38,
    // small integers and values of one decimal more often, as the files hold.
    Single single() {
        std::string text;
        switch (between(0, 3)) {
        case 0:
            text = std::to_string(between(0, 500));
            break;
        case 1:
            text = std::to_string(between(0, 99999)) + "." + std::to_string(between(0, 9));
            break;
        default:
            text = std::to_string(between(0, 9999999)) + "E" + std::to_string(between(-44, m_largestExponent));
            break;
        }
        const Single value = parseSingle(text);
        if (value == 0) {
            return 0; // never a negative zero
        }
        return chance(4) ? -value : value;
    }

    std::mt19937 m_random;
    int m_largestExponent;
};

// Compares Singles exactly. A negative zero, which a conversion to metric can
// leave, is written as "0" and so reads back as 0: the same number.
::testing::AssertionResult sameSingles(const std::vector<Single>& expected, const std::vector<Single>& actual) {
    if (expected.size() != actual.size()) {
        return ::testing::AssertionFailure() << "sizes " << expected.size() << " and " << actual.size();
    }
    for (std::size_t i = 0; i < expected.size(); ++i) {
        if (expected[i] != actual[i]) {
            return ::testing::AssertionFailure()
                   << "at " << i << ": " << singleText(expected[i]) << " and " << singleText(actual[i]);
        }
    }
    return ::testing::AssertionSuccess();
}

void expectSameCatalogue(const Catalogue& expected, const Catalogue& actual) {
    ASSERT_EQ(expected.Records.size(), actual.Records.size());
    for (std::size_t i = 0; i < expected.Records.size(); ++i) {
        SCOPED_TRACE("record " + std::to_string(i));
        const ComponentRecord& want = expected.Records[i];
        const ComponentRecord& got = actual.Records[i];
        EXPECT_EQ(want.Name, got.Name);
        EXPECT_EQ(want.ListCodes, got.ListCodes);
        EXPECT_EQ(want.IsGas, got.IsGas);
        EXPECT_EQ(want.Origin, got.Origin);
        EXPECT_EQ(want.HoseLength, got.HoseLength);
        EXPECT_EQ(want.Curve.PointCount, got.Curve.PointCount);
        EXPECT_TRUE(sameSingles(want.Curve.Flow, got.Curve.Flow));
        EXPECT_TRUE(sameSingles(want.Curve.Head, got.Curve.Head));
    }
}

} // namespace

// The kind of a test by its class name.
static void PrintTo(const ComponentKindTraits& traits, std::ostream* out) {
    *out << traits.className;
}

namespace {

class CatalogueRoundTrip : public ::testing::TestWithParam<ComponentKindTraits> {};

constexpr std::uint32_t seed = 20240611;
constexpr int cataloguesPerKind = 40;

TEST_P(CatalogueRoundTrip, ARandomCatalogueWrittenThenReadGivesTheSameRecords) {
    const ComponentKind kind = GetParam().kind;
    RandomCatalogues random(seed + static_cast<std::uint32_t>(kind));
    for (int i = 0; i < cataloguesPerKind; ++i) {
        SCOPED_TRACE("catalogue " + std::to_string(i));
        const Catalogue written = random.catalogue(kind, i == 0 ? 1 : 1 + i % 12);
        const std::string text = ComposeComponentFile(kind, written);
        const Catalogue read = ParseComponentFile(kind, text);
        expectSameCatalogue(written, read);
        // What was read is written to the very same text.
        EXPECT_EQ(ComposeComponentFile(kind, read), text);
    }
}

TEST_P(CatalogueRoundTrip, ARandomCatalogueSavedThenLoadedFromTheProgramFolderGivesTheSameRecords) {
    const ComponentKind kind = GetParam().kind;
    RandomCatalogues random(seed + 100 + static_cast<std::uint32_t>(kind));
    const TempProgramFolder folder;
    for (int i = 0; i < 5; ++i) {
        SCOPED_TRACE("catalogue " + std::to_string(i));
        const Catalogue written = random.catalogue(kind, 1 + 3 * i);
        SetComponentFileData(kind, written, folder.path());
        test::RecordingInteraction ui;
        expectSameCatalogue(written, GetComponentFileData(kind, folder.path(), ui));
        EXPECT_TRUE(ui.shown.empty());
    }
}

// The editors show a catalogue in metric figures: each value a Single rounded
// to one decimal. Figures below 100000, which keep at most seven significant
// digits with their decimal, written and read, come back the same.
TEST_P(CatalogueRoundTrip, ARandomCatalogueInMetricFiguresWrittenThenReadGivesTheSameRecords) {
    const ComponentKind kind = GetParam().kind;
    // US figures below 100000: their metric figures stay below 400000.
    RandomCatalogues random(seed + 200 + static_cast<std::uint32_t>(kind), -2);
    for (int i = 0; i < cataloguesPerKind; ++i) {
        SCOPED_TRACE("catalogue " + std::to_string(i));
        Catalogues catalogues;
        // Two records at least: a catalogue of one record is not converted.
        catalogues.of(kind) = random.catalogue(kind, 2 + i % 12);
        ConvertCatalogueToMetric(static_cast<Integer>(kind), catalogues);
        const Catalogue& metric = catalogues.of(kind);
        expectSameCatalogue(metric, ParseComponentFile(kind, ComposeComponentFile(kind, metric)));
    }
}

INSTANTIATE_TEST_SUITE_P(EveryKind, CatalogueRoundTrip, ::testing::ValuesIn(componentKinds),
                         [](const ::testing::TestParamInfo<ComponentKindTraits>& kindInfo) {
                             return std::string(kindInfo.param.className);
                         });

} // namespace
} // namespace vesk
