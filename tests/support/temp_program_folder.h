// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// A program folder made for one test, removed when the test ends.
#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <string_view>

namespace vesk::test {

// The shipped program folder of the source tree.
std::filesystem::path shippedDataDir();
// The folder of the tests' own data files.
std::filesystem::path testsDir();

class TempProgramFolder {
  public:
    // An empty folder with an empty Components folder.
    TempProgramFolder();
    // A copy of the shipped program folder.
    static TempProgramFolder copyOfShipped();
    ~TempProgramFolder();
    TempProgramFolder(const TempProgramFolder&) = delete;
    TempProgramFolder& operator=(const TempProgramFolder&) = delete;
    TempProgramFolder(TempProgramFolder&& other) noexcept;
    TempProgramFolder& operator=(TempProgramFolder&&) = delete;

    const std::filesystem::path& path() const { return m_path; }
    // Writes `bytes` exactly as given to the file at `relative`.
    void write(std::string_view relative, std::string_view bytes) const;
    // Writes lines, each ended by CR LF.
    void writeLines(std::string_view relative, std::initializer_list<std::string_view> lines) const;
    std::string read(std::string_view relative) const;
    void remove(std::string_view relative) const;

  private:
    std::filesystem::path m_path;
};

// The bytes of a file, exactly as stored.
std::string readBytes(const std::filesystem::path& file);
// Every file of a folder with its bytes, by name: what a command may have written.
std::map<std::string, std::string> filesIn(const std::filesystem::path& folder);

// Joins lines, each ended by CR LF.
std::string crlfLines(std::initializer_list<std::string_view> lines);

} // namespace vesk::test
