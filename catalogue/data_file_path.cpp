// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// Paths below the program folder, found without regard to letter case.
#include "catalogue/data_file_path.h"

#include "engine/ascii_case.h"
#include "engine/numeric.h"

#include <fstream>
#include <sstream>
#include <string>
#include <system_error>
#include <vector>

namespace vesk {

namespace fs = std::filesystem;

namespace {

constexpr const char* fileAccessError = "Path/File access error";

// The components of a relative path. Both "/" and "\" separate them, so the
// system's own "\Components\PUMP.DAT" is understood; empty components are
// dropped.
std::vector<std::string> pathComponents(std::string_view relative) {
    std::vector<std::string> components;
    std::string current;
    for (char c : relative) {
        if (c == '/' || c == '\\') {
            if (!current.empty()) {
                components.push_back(current);
            }
            current.clear();
        } else {
            current.push_back(c);
        }
    }
    if (!current.empty()) {
        components.push_back(current);
    }
    return components;
}

// The entry `name` of `folder`: the exact spelling when it exists, otherwise
// the first entry, in the order of their names, that differs only in ASCII
// letter case. Empty when there is none.
std::optional<fs::path> findEntry(const fs::path& folder, const std::string& name) {
    std::error_code error;
    const fs::path exact = folder / name;
    if (fs::exists(exact, error)) {
        return exact;
    }
    std::optional<std::string> match;
    for (fs::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error)) {
        const std::string candidate = entry->path().filename().string();
        if (EqualIgnoringCase(candidate, name) && (!match || candidate < *match)) {
            match = candidate;
        }
    }
    if (!match) {
        return std::nullopt;
    }
    return folder / *match;
}

} // namespace

std::optional<fs::path> FindDataFile(const fs::path& programFolder, std::string_view relative) {
    fs::path current = programFolder;
    for (const std::string& component : pathComponents(relative)) {
        const std::optional<fs::path> found = findEntry(current, component);
        if (!found) {
            return std::nullopt;
        }
        current = *found;
    }
    return current;
}

fs::path PathForWriting(const fs::path& programFolder, std::string_view relative) {
    if (std::optional<fs::path> existing = FindDataFile(programFolder, relative)) {
        return *existing;
    }
    // The folders are taken as they exist under any spelling, as far as they
    // exist; the rest of the path, and always the name, in the writer's spelling.
    const std::vector<std::string> components = pathComponents(relative);
    fs::path current = programFolder;
    bool folderFound = true;
    for (std::size_t i = 0; i < components.size(); ++i) {
        const bool isName = i + 1 == components.size();
        std::optional<fs::path> found;
        if (folderFound && !isName) {
            found = findEntry(current, components[i]);
        }
        if (found) {
            current = *found;
        } else {
            folderFound = false;
            current /= components[i];
        }
    }
    return current;
}

std::string ReadWholeFile(const fs::path& file) {
    std::ifstream in(file, std::ios::binary);
    if (!in) {
        fail(fileAccessError);
    }
    std::ostringstream bytes;
    bytes << in.rdbuf();
    if (in.bad()) {
        fail(fileAccessError);
    }
    return bytes.str();
}

void WriteWholeFile(const fs::path& file, std::string_view bytes) {
    std::ofstream out(file, std::ios::binary | std::ios::trunc);
    if (!out) {
        fail(fileAccessError);
    }
    out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    out.flush();
    if (!out) {
        fail(fileAccessError);
    }
}

} // namespace vesk
