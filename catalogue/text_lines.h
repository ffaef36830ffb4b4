// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// A text file read line by line, as the readers of the data files read it.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace vesk {

// The lines of a text held in memory. Lines end in CR LF or LF; a last line
// with no line end is a line, and a line end at the very end of the text starts
// no further line. Bytes are kept as they are (a single-byte code page).
class TextLineReader {
  public:
    explicit TextLineReader(std::string text);

    // True once every line has been read.
    bool atEndOfStream() const;
    // The next line without its line end. Reading past the end fails with a
    // RunTimeFailure ("Input past end of file").
    std::string readLine();

  private:
    std::string m_text;
    std::size_t m_position = 0;
};

// Lines joined, each ended by CR LF: how every writer ends its lines.
void appendLine(std::string& text, std::string_view line);

} // namespace vesk
