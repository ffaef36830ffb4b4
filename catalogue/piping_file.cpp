// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The piping data file: materials, sizes, valves and fittings of the buried pipe.
#include "catalogue/piping_file.h"

#include "catalogue/data_file_path.h"
#include "catalogue/platform_text.h"
#include "catalogue/text_lines.h"
#include "engine/numeric.h"

#include <array>
#include <fstream>
#include <optional>
#include <string_view>
#include <system_error>
#include <utility>

namespace vesk {

namespace {

constexpr const char* pipingFile = "Components/PIPING.DAT";
constexpr int pipingMissingMessage = 27;
constexpr int pipingDamagedMessage = 33;
constexpr std::array<std::string_view, fittingTypeCount> fittingKeys{"$L0", "$L1", "$L2", "$L3"};

// A key line is known by its first three characters; whatever follows them is
// free text.
bool opensWith(std::string_view line, std::string_view key) {
    return line.substr(0, 3) == key;
}

// The name of a "name, comma, value" line: the text before the first comma. A
// line without a comma asks for a negative length, which fails.
std::string nameBeforeComma(std::string_view line) {
    return std::string(leftOf(line, positionOf(line, ',') - 1));
}

// The value of a "name, comma, value" or "label, comma, value" line: the text
// behind the first comma, or the whole line when it has no comma, converted
// strictly to Single.
Single valueBehindComma(std::string_view line) {
    return parseSingle(midOf(line, positionOf(line, ',') + 1));
}

// Setting a list to its first entry: a list without entries has none, and the
// platform refuses the index with "Invalid property value".
void selectFirstEntry(const std::vector<std::string>& list) {
    if (list.empty()) {
        fail(failure::invalidProperty);
    }
}

// A section of "name, comma, value" lines between two `key` lines. Each name
// goes to `names` and each value to the next index of `values`, which fails
// beyond its last index. An opening line without its key leaves the section
// empty; that line is consumed all the same.
template <std::size_t N>
void readNamedValues(TextLineReader& stream, std::string_view key, std::vector<std::string>& names,
                     std::array<Single, N>& values) {
    if (!opensWith(stream.readLine(), key)) {
        return;
    }
    long index = 0;
    for (std::string line = stream.readLine(); !opensWith(line, key); line = stream.readLine()) {
        names.push_back(nameBeforeComma(line));
        at(values, index) = valueBehindComma(line);
        ++index;
    }
}

// The "$VA" section: groups of a name line, whose first character is dropped,
// and five "label, comma, value" lines for the five pipe sizes. A third group
// fails.
void readValves(TextLineReader& stream, std::array<ValveRecord, valveCount>& valves) {
    if (!opensWith(stream.readLine(), "$VA")) {
        return;
    }
    long row = 0;
    for (std::string line = stream.readLine(); !opensWith(line, "$VA"); line = stream.readLine()) {
        ValveRecord& valve = at(valves, row);
        valve.Name = line.size() > 1 ? line.substr(1) : std::string();
        for (long size = 0; size < pipeSizeCount; ++size) {
            at(valve.Length, size) = valueBehindComma(stream.readLine());
        }
        ++row;
    }
}

// A "$L" section: a group of five "label, comma, value" lines, then one more
// line; the section ends when that line opens with the key, otherwise that line
// is passed over and a further group of five is read over the first.
std::array<Single, pipeSizeCount> readFittingSection(TextLineReader& stream, std::string_view key) {
    std::array<Single, pipeSizeCount> lengths{};
    if (!opensWith(stream.readLine(), key)) {
        return lengths;
    }
    do {
        for (long size = 0; size < pipeSizeCount; ++size) {
            at(lengths, size) = valueBehindComma(stream.readLine());
        }
    } while (!opensWith(stream.readLine(), key));
    return lengths;
}

// The file is opened for appending and closed at once before it is read, as
// the system has always done; a file that cannot be opened so fails here.
void openForAppendingAndClose(const std::filesystem::path& file) {
    std::ofstream touch(file, std::ios::binary | std::ios::app);
    if (!touch) {
        fail("Path/File access error");
    }
}

} // namespace

// Reads the sections in their fixed order: "$PT" materials, "$PD" sizes, "$VA"
// valves, "$L0" to "$L3" fittings. There is no skipping of blank lines, so a
// blank line inside a section fails, and reading past the end fails. After
// "$PT" the material list, and after "$PD" the size lists, are set to their
// first entries, which fails for a section that gave no entry.
PipingData ParsePipingFile(std::string text) {
    TextLineReader stream(std::move(text));
    PipingData data;
    readNamedValues(stream, "$PT", data.materialNames, data.tables.PipeRoughness);
    selectFirstEntry(data.materialNames);
    readNamedValues(stream, "$PD", data.sizeNames, data.tables.PipeDiameter);
    selectFirstEntry(data.sizeNames);
    readValves(stream, data.tables.ValveTable);
    std::array<std::array<Single, pipeSizeCount>, fittingTypeCount> working{};
    for (std::size_t type = 0; type < fittingKeys.size(); ++type) {
        working[type] = readFittingSection(stream, fittingKeys[type]);
    }
    for (std::size_t size = 0; size < pipeSizeCount; ++size) {
        for (std::size_t type = 0; type < fittingTypeCount; ++type) {
            data.tables.FittingLength[type][size] = working[type][size];
        }
    }
    return data;
}

PipingData GetPipeHeadFileData(const std::filesystem::path& programFolder, UserInteraction& ui) {
    const std::optional<std::filesystem::path> file = FindDataFile(programFolder, pipingFile);
    std::error_code error;
    if (!file || !std::filesystem::is_regular_file(*file, error)) {
        EndWithMessage(pipingMissingMessage, ui);
    }
    try {
        openForAppendingAndClose(*file);
        return ParsePipingFile(ReadWholeFile(*file));
    } catch (const RunTimeFailure&) {
        EndWithMessage(pipingDamagedMessage, ui);
    }
}

} // namespace vesk
