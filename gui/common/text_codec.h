// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// Where the core's single-byte text meets Qt's: Windows-1252 both ways.
#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace vesk::gui {

// The core keeps the bytes of its files, in Windows-1252; Qt 6.4 has no
// decoder of its own for it.
QString fromWindows1252(std::string_view bytes);

// Characters that Windows-1252 cannot hold become "?".
std::string toWindows1252(const QString& text);

} // namespace vesk::gui
