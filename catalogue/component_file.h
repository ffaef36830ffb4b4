// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The eight component data files: their reader, their writer and RemoveBlankLine.
#pragma once

#include "catalogue/component_files.h"
#include "catalogue/text_lines.h"
#include "engine/component_record.h"
#include "messages/user_interaction.h"

#include <filesystem>
#include <string>

namespace vesk {

// A line as it is when it is not the empty string; otherwise the next line of
// `stream` that is not empty. A line of blanks is not empty. Reading past the
// end of the stream fails.
std::string RemoveBlankLine(std::string line, TextLineReader& stream);

// How the flow of a point line is converted: to a Single, as the catalogue's
// reader does, or to a 16-bit Integer (half to even, "Overflow" outside
// -32768 to 32767) held in the Single, as the update of six kinds does.
enum class FlowConversion { ToSingle, ToInteger };

// Parses the text of a component file of `kind` into its catalogue. Fails with
// a RunTimeFailure on anything the grammar does not allow (see the reader).
Catalogue ParseComponentFile(ComponentKind kind, std::string text,
                             FlowConversion flowConversion = FlowConversion::ToSingle);

// The reader of a kind's file in `programFolder`\Components. A missing file
// shows the kind's "does not exist" message and ends the process; a damaged
// one shows its "Problem in reading" message and ends the process. Nothing
// read is kept on either path.
Catalogue GetComponentFileData(ComponentKind kind, const std::filesystem::path& programFolder, UserInteraction& ui);

// The whole text of a kind's file for a catalogue. Fails with "Overflow" for a
// record of 0 points, before anything is written.
std::string ComposeComponentFile(ComponentKind kind, const Catalogue& catalogue);

// The writer: composes the text, then replaces the file (the existing file under
// any spelling, otherwise the writer's spelling of the name).
void SetComponentFileData(ComponentKind kind, const Catalogue& catalogue, const std::filesystem::path& programFolder);

} // namespace vesk
