// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The piping data file: materials, sizes, valves and fittings of the buried pipe.
#pragma once

#include "engine/piping_tables.h"
#include "messages/user_interaction.h"

#include <filesystem>
#include <string>
#include <vector>

namespace vesk {

// What the piping reader fills: the tables of the engine, and the names of the
// lists of the Piping Area in file order (materials for cmbPiping, sizes for
// cmbBranch, cmbTrunk and cmbPipeSize).
struct PipingData {
    PipingTables tables;
    std::vector<std::string> materialNames;
    std::vector<std::string> sizeNames;
};

// Parses the text of a piping data file. Fails with a RunTimeFailure on
// anything the reader cannot take.
PipingData ParsePipingFile(std::string text);

// GetPipeHeadFileData: reads "\Components\PIPING.DAT" of `programFolder`. A missing
// file shows message 27 and ends the process; a damaged one message 33.
PipingData GetPipeHeadFileData(const std::filesystem::path& programFolder, UserInteraction& ui);

} // namespace vesk
