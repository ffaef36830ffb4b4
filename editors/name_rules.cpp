// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// What may be typed into an editor's name, hose size and hose length boxes, and the tests of a hose size and length.
#include "editors/name_rules.h"

namespace vesk {

namespace {

constexpr int backspace = 8;
constexpr int firstCodeAboveAscii = 128;

bool isDigit(int code) {
    return code >= '0' && code <= '9';
}

bool holds(std::string_view text, char c) {
    return text.find(c) != std::string_view::npos;
}

} // namespace

bool NameKeyPasses(int code) {
    if (code >= firstCodeAboveAscii) {
        return false;
    }
    if (code == backspace) {
        return true;
    }
    return code != '$' && code != '#';
}

bool HoseSizeKeyPasses(int code, std::string_view text) {
    if (code >= firstCodeAboveAscii) {
        return false;
    }
    if (code == backspace || isDigit(code)) {
        return true;
    }
    if (code == '/') {
        return !holds(text, '/');
    }
    if (code == ' ') {
        return !holds(text, ' ');
    }
    return false;
}

bool HoseLengthKeyPasses(int code, std::string_view text) {
    if (code >= firstCodeAboveAscii) {
        return false;
    }
    if (code == backspace || isDigit(code)) {
        return true;
    }
    return code == '.' && !holds(text, '.');
}

bool IsValidHoseSize(std::string_view size) {
    if (size.ends_with("/0") || size.ends_with("/ 0") || size.starts_with("/") || size.ends_with("/") ||
        size.starts_with("0")) {
        return false;
    }
    const std::size_t blank = size.find(' ');
    if (blank == std::string_view::npos) {
        return true;
    }
    const std::size_t slash = size.find('/');
    if (slash == std::string_view::npos) {
        return false;
    }
    // The first "/" may not touch the blank on either side.
    return slash != blank + 1 && slash + 1 != blank;
}

std::string_view StandardHoseLength(bool usUnits) {
    return usUnits ? standardHoseLengthFeet : standardHoseLengthMetres;
}

HoseLengthCheck CheckHoseLength(std::string_view text, bool usUnits) {
    const std::string_view ceiling = StandardHoseLength(usUnits);
    if (leadingNumber(text) > (usUnits ? maxHoseLengthFeet : maxHoseLengthMetres)) {
        return {std::string(ceiling), usUnits ? std::string_view("Maximum Value can be entered is 100")
                                              : std::string_view("Maximum Value can be entered is 30.48")};
    }
    if (text.empty()) {
        return {std::string(ceiling), std::nullopt};
    }
    return {std::string(text), std::nullopt};
}

} // namespace vesk
