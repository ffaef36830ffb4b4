// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The site file: 52 lines of text, one value a line, in sections by position.
#include "site/site_file_format.h"

#include "catalogue/data_file_path.h"
#include "catalogue/text_lines.h"

#include <algorithm>

namespace vesk {

bool IsSectionKeyLine(int line) {
    return std::any_of(sectionKeys.begin(), sectionKeys.end(),
                       [line](const SectionKey& key) { return key.line == line; });
}

SiteFileLines ReadSiteFileLines(const std::filesystem::path& fileName) {
    TextLineReader reader(ReadWholeFile(fileName));
    SiteFileLines lines;
    for (std::string& line : lines) {
        line = reader.readLine();
    }
    return lines;
}

std::string SiteFileText(const SiteFileLines& lines) {
    std::string text;
    for (const std::string& line : lines) {
        appendLine(text, line);
    }
    return text;
}

void WriteSiteFileLines(const std::filesystem::path& fileName, const SiteFileLines& lines) {
    WriteWholeFile(fileName, SiteFileText(lines));
}

} // namespace vesk
