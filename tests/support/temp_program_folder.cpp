// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// A program folder made for one test, removed when the test ends.
#include "support/temp_program_folder.h"

#include <atomic>
#include <fstream>
#include <sstream>
#include <unistd.h>

namespace vesk::test {

namespace fs = std::filesystem;

fs::path shippedDataDir() {
    return VESK_SHIPPED_DATA_DIR;
}
fs::path testsDir() {
    return VESK_TESTS_DIR;
}

namespace {
fs::path freshFolder() {
    static std::atomic<int> counter{0};
    const fs::path folder =
        fs::temp_directory_path() / ("vesk-test-" + std::to_string(::getpid()) + "-" + std::to_string(counter++));
    fs::remove_all(folder);
    fs::create_directories(folder / "Components");
    return folder;
}
} // namespace

TempProgramFolder::TempProgramFolder() : m_path(freshFolder()) {}

TempProgramFolder TempProgramFolder::copyOfShipped() {
    TempProgramFolder folder;
    fs::copy(shippedDataDir(), folder.m_path, fs::copy_options::recursive | fs::copy_options::overwrite_existing);
    return folder;
}

TempProgramFolder::TempProgramFolder(TempProgramFolder&& other) noexcept : m_path(std::move(other.m_path)) {
    other.m_path.clear();
}

TempProgramFolder::~TempProgramFolder() {
    if (!m_path.empty()) {
        std::error_code ignored;
        fs::remove_all(m_path, ignored);
    }
}

void TempProgramFolder::write(std::string_view relative, std::string_view bytes) const {
    const fs::path file = m_path / relative;
    fs::create_directories(file.parent_path());
    std::ofstream out(file, std::ios::binary | std::ios::trunc);
    out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

void TempProgramFolder::writeLines(std::string_view relative, std::initializer_list<std::string_view> lines) const {
    write(relative, crlfLines(lines));
}

std::string TempProgramFolder::read(std::string_view relative) const {
    return readBytes(m_path / relative);
}

std::string readBytes(const fs::path& file) {
    std::ifstream in(file, std::ios::binary);
    std::ostringstream bytes;
    bytes << in.rdbuf();
    return bytes.str();
}

std::map<std::string, std::string> filesIn(const fs::path& folder) {
    std::map<std::string, std::string> files;
    for (const auto& entry : fs::directory_iterator(folder)) {
        files[entry.path().filename().string()] = readBytes(entry.path());
    }
    return files;
}

void TempProgramFolder::remove(std::string_view relative) const {
    fs::remove(m_path / relative);
}

std::string crlfLines(std::initializer_list<std::string_view> lines) {
    std::string text;
    for (std::string_view line : lines) {
        text.append(line);
        text.append("\r\n");
    }
    return text;
}

} // namespace vesk::test
