// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// What may be typed into an editor's name, hose size and hose length boxes, and the tests of a hose size and length.
#pragma once

#include "engine/numeric.h"

#include <optional>
#include <string>
#include <string_view>

namespace vesk {

// A key in a component's name box: codes of 128 and above are dropped,
// backspace passes, "$" and "#" (the files' delimiters) are dropped, every
// other key passes.
bool NameKeyPasses(int code);
// A key in txtHoseSize: backspace, digits, one "/" and one blank.
bool HoseSizeKeyPasses(int code, std::string_view text);
// A key in txtHoseLength: backspace, digits and one ".".
bool HoseLengthKeyPasses(int code, std::string_view text);

// Whether a hose size is written as a whole number or a number and a
// fraction ("3/4", "1 1/2", "12"); message 31 otherwise.
bool IsValidHoseSize(std::string_view size);

// The standard reference length of a hose, by units, as the length box shows it.
inline constexpr std::string_view standardHoseLengthFeet = "100";
inline constexpr std::string_view standardHoseLengthMetres = "30.48";
inline constexpr Double maxHoseLengthFeet = 100;
inline constexpr Double maxHoseLengthMetres = 30.48;

std::string_view StandardHoseLength(bool usUnits);

// The check of txtHoseLength as it loses the focus: the text it is to hold
// afterwards, and the box to show first, if any.
struct HoseLengthCheck {
    std::string text;
    std::optional<std::string_view> message;
};
HoseLengthCheck CheckHoseLength(std::string_view text, bool usUnits);

} // namespace vesk
