// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The numbered messages of the system, kept as data.
#include "messages/message_catalogue.h"

#include <array>

namespace vesk {

namespace {

// The spellings and the capitals of "file" and "File" are the system's own.
// Message 7 has no caller and stays in the catalogue.
constexpr std::array<NumberedMessage, 33> messages{{
    {1, "Selected Component is Standard -- Cannot be Deleted", MessageIcon::None},
    {2, "Component Name already exists - Please Enter Other name", MessageIcon::None},
    {3, "Field cannot be empty", MessageIcon::None},
    {4, "First Character of Component Name cannot have space", MessageIcon::None},
    {5, "Last Character of Component Name cannot have space", MessageIcon::None},
    {6, "Enter Component name", MessageIcon::None},
    {7, "Error in Printer", MessageIcon::None},
    {8, "INI file does not exist", MessageIcon::None},
    {9, "INI File Corrupted. Cannot Load Application", MessageIcon::None},
    {10, "Error in File Load", MessageIcon::Exclamation},
    {11, "File doesn't exists", MessageIcon::None},
    {12, "Please select the default Data filename ", MessageIcon::None},
    {13, "Problem in reading Breakaway Data File", MessageIcon::None},
    {14, "Problem in reading Dispenser Data file", MessageIcon::None},
    {15, "Problem in reading DispenserOthers Data File", MessageIcon::None},
    {16, "Problem in reading Hose Data File", MessageIcon::None},
    {17, "Problem in reading LeakDetector Data File", MessageIcon::None},
    {18, "Problem in reading Nozzle Data File", MessageIcon::None},
    {19, "Problem in reading Pump Data file", MessageIcon::None},
    {20, "Problem in reading PumpOthers Data File", MessageIcon::None},
    {21, "Breakaway data file does not exist", MessageIcon::None},
    {22, "Dispenser data file does not exist", MessageIcon::None},
    {23, "Dispenser Others data file does not exist", MessageIcon::None},
    {24, "Hose data file does not exist", MessageIcon::None},
    {25, "LeakDetector data file does not exist", MessageIcon::None},
    {26, "Nozzle data file does not exist", MessageIcon::None},
    {27, "Piping data file does not exist", MessageIcon::None},
    {28, "Pump data file does not exist", MessageIcon::None},
    {29, "Pump Others data file does not exist", MessageIcon::None},
    {30, "Component Name cannot be None", MessageIcon::None},
    {31, "Enter Valid Hose Size", MessageIcon::None},
    {32, "Help File doesn't exist", MessageIcon::None},
    {33, "Problem in reading Piping Data File", MessageIcon::None},
}};

} // namespace

const NumberedMessage* FindMessage(int code) {
    // Each number is compared in turn, and the first match is shown.
    for (const NumberedMessage& message : messages) {
        if (message.code == code) {
            return &message;
        }
    }
    return nullptr;
}

std::string_view MessageText(int code) {
    const NumberedMessage* message = FindMessage(code);
    return message != nullptr ? message->text : std::string_view{};
}

} // namespace vesk
