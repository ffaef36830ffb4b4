// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The numbered messages of the system, kept as data.
#pragma once

#include <string_view>

namespace vesk {

enum class MessageIcon { None, Exclamation };

struct NumberedMessage {
    int code;
    std::string_view text;
    MessageIcon icon;
};

// The text of a numbered message, or an empty text for a code outside 1 to 33:
// such a code shows nothing.
std::string_view MessageText(int code);

// The whole message of a code, or nullptr for a code outside 1 to 33.
const NumberedMessage* FindMessage(int code);

} // namespace vesk
