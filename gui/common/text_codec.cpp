// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// Windows-1252 to QString and back, with the code page's own table for 0x80 to 0x9F.
#include "gui/common/text_codec.h"

#include <QList>
#include <array>

namespace vesk::gui {

namespace {

// The characters of the bytes 0x80 to 0x9F. The five bytes that Windows-1252
// leaves unassigned (0x81, 0x8D, 0x8F, 0x90, 0x9D) stand for the control
// character of the same number, so every byte reads back as itself.
constexpr std::array<char32_t, 32> upperControlRange = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, // 0x80
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F, // 0x88
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014, // 0x90
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178, // 0x98
};

constexpr unsigned char firstTableByte = 0x80;
constexpr unsigned char lastTableByte = 0x9F;

char32_t characterOfByte(unsigned char byte) {
    if (byte >= firstTableByte && byte <= lastTableByte) {
        return upperControlRange[byte - firstTableByte];
    }
    return byte; // ASCII and 0xA0 to 0xFF are Latin-1
}

// The byte of a character, or '?' where the code page has none.
char byteOfCharacter(char32_t character) {
    const bool outsideTable = character < firstTableByte || (character > lastTableByte && character <= 0xFF);
    if (outsideTable) {
        return static_cast<char>(character);
    }
    for (std::size_t i = 0; i < upperControlRange.size(); ++i) {
        if (upperControlRange[i] == character) {
            return static_cast<char>(firstTableByte + i);
        }
    }
    return '?';
}

} // namespace

QString fromWindows1252(std::string_view bytes) {
    QString text;
    text.reserve(static_cast<qsizetype>(bytes.size()));
    for (const char byte : bytes) {
        // Every character of the code page lies in the Basic Multilingual Plane.
        text.append(QChar(static_cast<char16_t>(characterOfByte(static_cast<unsigned char>(byte)))));
    }
    return text;
}

std::string toWindows1252(const QString& text) {
    std::string bytes;
    const QList<uint> characters = text.toUcs4();
    bytes.reserve(static_cast<std::size_t>(characters.size()));
    for (const uint character : characters) {
        bytes.push_back(byteOfCharacter(static_cast<char32_t>(character)));
    }
    return bytes;
}

} // namespace vesk::gui
