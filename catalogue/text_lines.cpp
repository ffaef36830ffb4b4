// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// A text file read line by line, as the readers of the data files read it.
#include "catalogue/text_lines.h"

#include "engine/numeric.h"

#include <utility>

namespace vesk {

TextLineReader::TextLineReader(std::string text) : m_text(std::move(text)) {}

// True once the position has passed the last byte: a line end at the very end
// of the text leaves the stream at its end, so it starts no empty last line.
bool TextLineReader::atEndOfStream() const {
    return m_position >= m_text.size();
}

// The bytes up to the next LF, without the LF and without one CR in front of
// it; the last line of a text need not end in a line end. Reading at the end
// of the stream fails with "Input past end of file".
std::string TextLineReader::readLine() {
    if (atEndOfStream()) {
        fail("Input past end of file");
    }
    const std::size_t lineFeed = m_text.find('\n', m_position);
    const std::size_t end = lineFeed == std::string::npos ? m_text.size() : lineFeed;
    std::string line = m_text.substr(m_position, end - m_position);
    m_position = lineFeed == std::string::npos ? m_text.size() : lineFeed + 1;
    if (!line.empty() && line.back() == '\r') {
        line.pop_back();
    }
    return line;
}

void appendLine(std::string& text, std::string_view line) {
    text.append(line);
    text.append("\r\n");
}

} // namespace vesk
