// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The text functions the data file readers cut their lines with.
#pragma once

#include "engine/numeric.h"

#include <string_view>

namespace vesk {

// The first `length` characters of a text, the whole text when it is shorter.
// A negative length is an invalid call.
inline std::string_view leftOf(std::string_view text, long length) {
    if (length < 0) {
        fail(failure::invalidCall);
    }
    return text.substr(0, static_cast<std::size_t>(length));
}

// The text from the 1-based position `start` on; empty when `start` lies
// beyond the text. A start below 1 is an invalid call.
inline std::string_view midOf(std::string_view text, long start) {
    if (start < 1) {
        fail(failure::invalidCall);
    }
    const auto from = static_cast<std::size_t>(start - 1);
    return from >= text.size() ? std::string_view{} : text.substr(from);
}

// The 1-based position of the first `c` in a text, 0 when there is none.
inline long positionOf(std::string_view text, char c) {
    const std::size_t index = text.find(c);
    return index == std::string_view::npos ? 0 : static_cast<long>(index) + 1;
}

} // namespace vesk
