// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The eight component data files: their reader, their writer and RemoveBlankLine.
#include "catalogue/component_file.h"

#include "catalogue/data_file_path.h"
#include "catalogue/platform_text.h"
#include "engine/numeric.h"

#include <optional>
#include <string_view>
#include <system_error>
#include <utility>

namespace vesk {

namespace {

constexpr std::string_view rateLossEnd = "#RATELOSS_END#";
constexpr std::string_view trueLine = "#TRUE#";
constexpr std::string_view falseLine = "#FALSE#";
constexpr std::string_view rateLossBegin = "#RATELOSS_BEGIN#";

std::string componentsPath(std::string_view fileName) {
    return "Components/" + std::string(fileName);
}

// The next line of the record, blank lines skipped.
std::string nextLine(TextLineReader& stream) {
    return RemoveBlankLine(stream.readLine(), stream);
}

// Splits a header "$Name #Codes". With p the position of the first "#", the
// name is the first p - 2 characters without their first, so the "$" and the
// character in front of the "#" go by place, whatever they are; the codes are
// everything behind the "#". A "#" at position 1, or none at all, makes the
// length negative and fails; a "#" at position 2 gives an empty name.
void splitHeader(std::string_view header, ComponentRecord& record) {
    const long p = positionOf(header, '#');
    record.Name = std::string(midOf(leftOf(header, p - 2), 2));
    record.ListCodes = std::string(midOf(header, p + 1));
}

// Reads the point lines up to "#RATELOSS_END#" into `curve`. Each line splits
// at its first comma, flow in front and head behind, both converted strictly
// to Single (the flow to an Integer where the caller says so); a line without
// a comma fails. The counter is a Byte, so the 256th
// point overflows. The arrays grow by one element per point and are then cut
// to the last point, which fails for a table of no point at all.
void readRateLossPoints(TextLineReader& stream, RateLossCurve& curve, FlowConversion flowConversion) {
    std::string line = nextLine(stream);
    Byte counter = 0;
    curve.Flow.assign(1, 0);
    curve.Head.assign(1, 0);
    while (line != rateLossEnd) {
        const long comma = positionOf(line, ',');
        const std::string_view flowText = leftOf(line, comma - 1);
        at(curve.Flow, counter) =
            flowConversion == FlowConversion::ToInteger ? Single(parseInteger(flowText)) : parseSingle(flowText);
        at(curve.Head, counter) = parseSingle(midOf(line, comma + 1));
        counter = toByte(counter + 1.0);
        redimPreserve(curve.Flow, counter);
        redimPreserve(curve.Head, counter);
        line = nextLine(stream);
    }
    redimPreserve(curve.Flow, counter - 1L);
    redimPreserve(curve.Head, counter - 1L);
    curve.PointCount = counter;
}

// Reads one record from its header line to its "#RATELOSS_END#".
void readRecord(const ComponentKindTraits& traits, TextLineReader& stream, ComponentRecord& record,
                FlowConversion flowConversion) {
    splitHeader(nextLine(stream), record);
    record.IsGas = parseBoolean(nextLine(stream));
    record.Origin = nextLine(stream);
    if (traits.hasHoseLength) {
        record.HoseLength = parseSingle(nextLine(stream));
    }
    // The line that opens the table is read and not looked at: any text will do.
    nextLine(stream);
    readRateLossPoints(stream, record.Curve, flowConversion);
}

// The lines of one record, every line ended by CR LF. The last point index is
// held in a Byte, as is the loop index: a record of 0 points fails with
// "Overflow" here, and so would a loop that had to step beyond 255.
void composeRecord(const ComponentKindTraits& traits, const ComponentRecord& record, std::string& text) {
    appendLine(text, "$" + record.Name + " #" + record.ListCodes);
    appendLine(text, record.IsGas ? trueLine : falseLine);
    appendLine(text, record.Origin);
    if (traits.hasHoseLength) {
        // The text of a Single has no blanks to trim.
        appendLine(text, singleText(record.HoseLength));
    }
    appendLine(text, rateLossBegin);
    const Byte lastPoint = toByte(record.Curve.PointCount - 1.0);
    for (Long point = 0; point <= lastPoint; point = toByte(point + 1.0)) {
        appendLine(text, singleText(at(record.Curve.Flow, point)) + "," + singleText(at(record.Curve.Head, point)));
    }
    appendLine(text, rateLossEnd);
}

} // namespace

std::string RemoveBlankLine(std::string line, TextLineReader& stream) {
    while (line.empty()) {
        line = stream.readLine();
    }
    return line;
}

// Reads records while the stream is not at its end: a record starts at every
// line that is left, so anything behind the last "#RATELOSS_END#", one empty
// line included, starts a record that runs past the end and fails. The record
// cursor is a 16-bit Integer; at the end the catalogue is cut to cursor - 1,
// which fails for a text without any record.
Catalogue ParseComponentFile(ComponentKind kind, std::string text, FlowConversion flowConversion) {
    const ComponentKindTraits& traits = traitsOf(kind);
    TextLineReader stream(std::move(text));
    Catalogue catalogue;
    Integer cursor = 0;
    catalogue.Records.resize(1);
    while (!stream.atEndOfStream()) {
        readRecord(traits, stream, at(catalogue.Records, cursor), flowConversion);
        cursor = toInteger(cursor + 1.0);
        redimPreserve(catalogue.Records, cursor);
    }
    const Integer top = toInteger(cursor - 1.0);
    redimPreserve(catalogue.Records, top);
    return catalogue;
}

Catalogue GetComponentFileData(ComponentKind kind, const std::filesystem::path& programFolder, UserInteraction& ui) {
    const ComponentKindTraits& traits = traitsOf(kind);
    const std::optional<std::filesystem::path> file = FindDataFile(programFolder, componentsPath(traits.fileAsRead));
    std::error_code error;
    if (!file || !std::filesystem::is_regular_file(*file, error)) {
        EndWithMessage(traits.missingMessage, ui);
    }
    try {
        return ParseComponentFile(kind, ReadWholeFile(*file));
    } catch (const RunTimeFailure&) {
        EndWithMessage(traits.damagedMessage, ui);
    }
}

std::string ComposeComponentFile(ComponentKind kind, const Catalogue& catalogue) {
    const ComponentKindTraits& traits = traitsOf(kind);
    std::string text;
    for (const ComponentRecord& record : catalogue.Records) {
        composeRecord(traits, record, text);
    }
    return text;
}

void SetComponentFileData(ComponentKind kind, const Catalogue& catalogue, const std::filesystem::path& programFolder) {
    // The whole text first: a record that cannot be written fails before the
    // file is touched.
    const std::string text = ComposeComponentFile(kind, catalogue);
    WriteWholeFile(PathForWriting(programFolder, componentsPath(traitsOf(kind).fileAsWritten)), text);
}

} // namespace vesk
