// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// What every fuzz target shares: the end of a run that broke a reader's contract.
#pragma once

#include "engine/numeric.h"
#include "messages/user_interaction.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace vesk::fuzz {

// Ends the run as a finding: libFuzzer keeps the input that led here.
[[noreturn]] void contractBroken(std::string_view what);

// The input of a run as the bytes of a text file.
inline std::string textOf(const std::uint8_t* data, std::size_t size) {
    return std::string(reinterpret_cast<const char*>(data), size);
}

// A run-time failure is one of the platform's own failures, never a text made
// up on the way: anything else is a finding.
void expectKnownFailure(const RunTimeFailure& failure);

// Runs `read` and holds it to the contract of a reader of a data file: it
// loads, or it ends in a run-time failure. Any other exception is a finding.
// Returns whether it loaded.
template <typename Read> bool loadsOrFails(Read&& read) {
    try {
        read();
        return true;
    } catch (const RunTimeFailure& failure) {
        expectKnownFailure(failure);
    } catch (const std::exception& other) {
        contractBroken(std::string("an exception other than a run-time failure: ") + other.what());
    } catch (...) {
        contractBroken("an exception of an unknown type");
    }
    return false;
}

// A folder of its own for the files a target writes, made once per process
// and removed at its end.
const std::filesystem::path& scratchFolder();

// Writes `bytes` exactly as given to the file, replacing it.
void writeBytes(const std::filesystem::path& file, std::string_view bytes);

// A user-interaction seam that keeps the texts of the boxes shown.
class RecordingInteraction : public UserInteraction {
  public:
    void showMessageBox(std::string_view text, MessageIcon icon) override;
    std::vector<std::string> shown;
};

// The text of a numbered message, which must exist.
std::string_view messageTextOf(int code);

} // namespace vesk::fuzz
