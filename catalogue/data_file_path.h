// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// Paths below the program folder, found without regard to letter case.
#pragma once

#include <filesystem>
#include <optional>
#include <string_view>

namespace vesk {

// The existing file or folder at `relative` below `programFolder` (components
// separated by "/"), each component matched without regard to ASCII letter
// case, so "Components/PUMP.DAT" finds "components/Pump.dat". An exact match
// wins over one that differs in case. Empty when nothing matches.
std::optional<std::filesystem::path> FindDataFile(const std::filesystem::path& programFolder,
                                                  std::string_view relative);

// Where a writer writes `relative`: the file that already exists under any
// spelling, otherwise the path with the writer's own spelling (inside a folder
// found without regard to case where one exists).
std::filesystem::path PathForWriting(const std::filesystem::path& programFolder, std::string_view relative);

// Reads a whole file as bytes; fails with a RunTimeFailure ("Path/File access
// error") when it cannot be read.
std::string ReadWholeFile(const std::filesystem::path& file);

// Replaces a file with `bytes`, written in place; fails with a RunTimeFailure
// ("Path/File access error") when it cannot be written.
void WriteWholeFile(const std::filesystem::path& file, std::string_view bytes);

} // namespace vesk
