// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// Fuzz target of Update: arbitrary bytes as the maker's new file and as the
// existing component file, merged on a scratch program folder.
//
// Byte 0 picks the file name (and so the merge), byte 1 says whether the
// existing file is the shipped one (even) or made of the input too (odd),
// bytes 2 and 3 where the input splits into the existing and the new file.
#include "fuzz_contract.h"

#include "catalogue/component_file.h"
#include "catalogue/data_file_path.h"
#include "catalogue/standard_update.h"

#include <string>

namespace {

using namespace vesk;

// The user who answers Yes, and whose boxes are kept.
class AnsweringYes : public fuzz::RecordingInteraction {
  public:
    Answer askYesNo(std::string_view) override { return Answer::Yes; }
};

std::string shippedFile(ComponentKind kind) {
    return ReadWholeFile(std::filesystem::path(VESK_SHIPPED_DATA_DIR) / "Components" /
                         std::string(traitsOf(kind).fileAsRead));
}

// Either the file was written, and it reads back with the grammar of the
// component files as start-up reads it, holding the kept records and then
// every new one; or the existing file is byte for byte as it was, and the
// merge's own box was shown.
void checkContract(const UpdateFileName& name, const std::string& existing, const std::string& incoming) {
    const std::filesystem::path folder = fuzz::scratchFolder() / "program";
    std::filesystem::create_directories(folder / "Components");
    std::filesystem::create_directories(folder / "maker");
    const std::filesystem::path existingFile = folder / "Components" / std::string(traitsOf(name.kind).fileAsRead);
    const std::filesystem::path newFile = folder / "maker" / std::string(name.name.substr(1));
    fuzz::writeBytes(existingFile, existing);
    fuzz::writeBytes(newFile, incoming);

    AnsweringYes ui;
    UpdateEnd end = UpdateEnd::Stays;
    try {
        end = UpdateStandardData(folder, newFile.string(), ui);
    } catch (...) {
        fuzz::contractBroken("something escaped Update");
    }
    const std::string after = ReadWholeFile(existingFile);
    if (end == UpdateEnd::Merged) {
        if (!ui.shown.empty()) {
            fuzz::contractBroken("a box was shown by a merge that wrote its file");
        }
        try {
            const Catalogue written = ParseComponentFile(name.kind, after);
            const Catalogue fromNew = ParseComponentFile(name.kind, incoming, traitsOf(name.routine).flowConversion);
            if (written.Records.size() < fromNew.Records.size()) {
                fuzz::contractBroken("the written file lacks records of the new file");
            }
        } catch (const RunTimeFailure& failure) {
            fuzz::contractBroken(std::string("the written file does not read back: ") + failure.what());
        }
        return;
    }
    if (end != UpdateEnd::Closes) {
        fuzz::contractBroken("Update of a known name stayed in the dialog");
    }
    if (after != existing) {
        fuzz::contractBroken("a merge that failed changed the existing file");
    }
    if (ui.shown.size() != 1 || ui.shown[0] != traitsOf(name.routine).corruptedText) {
        fuzz::contractBroken("a merge that failed did not show its own box");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size < 4) {
        return 0;
    }
    const UpdateFileName& name = updateFileNames[data[0] % updateFileNames.size()];
    std::string rest = fuzz::textOf(data + 4, size - 4);
    if (data[1] % 2 == 0) {
        checkContract(name, shippedFile(name.kind), rest);
        return 0;
    }
    const std::size_t split =
        (static_cast<std::size_t>(data[2]) | static_cast<std::size_t>(data[3]) << 8) % (rest.size() + 1);
    checkContract(name, rest.substr(0, split), rest.substr(split));
    return 0;
}
