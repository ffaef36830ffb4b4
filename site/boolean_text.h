// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// How the settings file and the site file write a yes or no.
#pragma once

#include <string_view>

namespace vesk {

// Compared exactly when read: "true" is neither.
inline constexpr std::string_view trueText = "True";
inline constexpr std::string_view falseText = "False";

constexpr std::string_view BooleanText(bool value) {
    return value ? trueText : falseText;
}

} // namespace vesk
