// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The numbered messages, each compared with its text.
#include "support/recording_interaction.h"

#include "messages/message_catalogue.h"
#include "messages/user_interaction.h"

#include <gtest/gtest.h>

namespace vesk {
namespace {

struct MessageRow {
    int code;
    const char* text;
};

class NumberedMessageText : public ::testing::TestWithParam<MessageRow> {};

TEST_P(NumberedMessageText, IsTheSystemsOwnText) {
    EXPECT_EQ(MessageText(GetParam().code), GetParam().text);
    test::RecordingInteraction ui;
    ShowMessage(GetParam().code, ui);
    ASSERT_EQ(ui.shown.size(), 1U);
    EXPECT_EQ(ui.shown[0], GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(
    AllCodes, NumberedMessageText,
    ::testing::Values(
        MessageRow{1, "Selected Component is Standard -- Cannot be Deleted"},
        MessageRow{2, "Component Name already exists - Please Enter Other name"},
        MessageRow{3, "Field cannot be empty"}, MessageRow{4, "First Character of Component Name cannot have space"},
        MessageRow{5, "Last Character of Component Name cannot have space"}, MessageRow{6, "Enter Component name"},
        MessageRow{7, "Error in Printer"}, MessageRow{8, "INI file does not exist"},
        MessageRow{9, "INI File Corrupted. Cannot Load Application"}, MessageRow{10, "Error in File Load"},
        MessageRow{11, "File doesn't exists"}, MessageRow{12, "Please select the default Data filename "},
        MessageRow{13, "Problem in reading Breakaway Data File"},
        MessageRow{14, "Problem in reading Dispenser Data file"},
        MessageRow{15, "Problem in reading DispenserOthers Data File"},
        MessageRow{16, "Problem in reading Hose Data File"},
        MessageRow{17, "Problem in reading LeakDetector Data File"},
        MessageRow{18, "Problem in reading Nozzle Data File"}, MessageRow{19, "Problem in reading Pump Data file"},
        MessageRow{20, "Problem in reading PumpOthers Data File"}, MessageRow{21, "Breakaway data file does not exist"},
        MessageRow{22, "Dispenser data file does not exist"},
        MessageRow{23, "Dispenser Others data file does not exist"}, MessageRow{24, "Hose data file does not exist"},
        MessageRow{25, "LeakDetector data file does not exist"}, MessageRow{26, "Nozzle data file does not exist"},
        MessageRow{27, "Piping data file does not exist"}, MessageRow{28, "Pump data file does not exist"},
        MessageRow{29, "Pump Others data file does not exist"}, MessageRow{30, "Component Name cannot be None"},
        MessageRow{31, "Enter Valid Hose Size"}, MessageRow{32, "Help File doesn't exist"},
        MessageRow{33, "Problem in reading Piping Data File"}));

TEST(ShowMessage, ACodeOutsideTheCatalogueShowsNothing) {
    test::RecordingInteraction ui;
    ShowMessage(0, ui);
    ShowMessage(34, ui);
    EXPECT_TRUE(ui.shown.empty());
    EXPECT_EQ(MessageText(0), "");
}

TEST(ShowMessage, OnlyErrorInFileLoadCarriesTheExclamationIcon) {
    for (int code = 1; code <= 33; ++code) {
        EXPECT_EQ(FindMessage(code)->icon, code == 10 ? MessageIcon::Exclamation : MessageIcon::None) << code;
    }
}

TEST(ShowMessage, MessageSevenStaysInTheCatalogue) {
    // It stays in the catalogue; nothing in the core raises it.
    EXPECT_EQ(MessageText(7), "Error in Printer");
}

TEST(EndWithMessage, ShowsTheMessageThenEndsTheProcess) {
    test::RecordingInteraction ui;
    try {
        EndWithMessage(27, ui);
        FAIL() << "the process should end";
    } catch (const ProcessEnd& end) {
        EXPECT_EQ(end.messageCode(), 27);
    }
    EXPECT_EQ(ui.shown, std::vector<std::string>{"Piping data file does not exist"});
}

} // namespace
} // namespace vesk
