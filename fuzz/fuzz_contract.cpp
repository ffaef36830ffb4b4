// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// What every fuzz target shares: the end of a run that broke a reader's contract.
#include "fuzz_contract.h"

#include "messages/message_catalogue.h"

#include <array>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <unistd.h>

namespace vesk::fuzz {

namespace {

// Every description a run-time failure of the core can carry.
constexpr std::array<std::string_view, 9> knownFailures{
    failure::overflow,        failure::subscript,       failure::typeMismatch,
    failure::divisionByZero,  failure::invalidCall,     failure::invalidProperty,
    "Input past end of file", "Path/File access error", "Invalid property array index",
};

class ScratchFolder {
  public:
    ScratchFolder() {
        std::string pattern = (std::filesystem::temp_directory_path() / "vesk-fuzz-XXXXXX").string();
        if (mkdtemp(pattern.data()) == nullptr) {
            contractBroken("cannot make the scratch folder");
        }
        m_path = pattern;
    }
    ~ScratchFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(m_path, ignored);
    }
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;

    const std::filesystem::path& path() const { return m_path; }

  private:
    std::filesystem::path m_path;
};

} // namespace

void contractBroken(std::string_view what) {
    std::fprintf(stderr, "\n== Contract broken: %.*s\n", static_cast<int>(what.size()), what.data());
    std::abort();
}

void expectKnownFailure(const RunTimeFailure& failure) {
    for (std::string_view known : knownFailures) {
        if (known == failure.what()) {
            return;
        }
    }
    contractBroken(std::string("a run-time failure of unknown description: ") + failure.what());
}

const std::filesystem::path& scratchFolder() {
    static const ScratchFolder folder;
    return folder.path();
}

void writeBytes(const std::filesystem::path& file, std::string_view bytes) {
    std::ofstream out(file, std::ios::binary | std::ios::trunc);
    out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    if (!out) {
        contractBroken("cannot write the input file");
    }
}

void RecordingInteraction::showMessageBox(std::string_view text, MessageIcon) {
    shown.emplace_back(text);
}

std::string_view messageTextOf(int code) {
    const NumberedMessage* message = FindMessage(code);
    if (message == nullptr) {
        contractBroken("a message code outside the catalogue");
    }
    return message->text;
}

} // namespace vesk::fuzz
