// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// A compiled HTML help file read with chmlib: its pages by path, and its default topic.
#pragma once

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

struct chmFile;

namespace vesk::gui {

class ChmFile {
  public:
    // The file opened, or nothing when it is missing or no help file.
    static std::unique_ptr<ChmFile> open(const std::filesystem::path& file);
    ~ChmFile();
    ChmFile(const ChmFile&) = delete;
    ChmFile& operator=(const ChmFile&) = delete;

    // The path of every page, picture and stylesheet inside the file
    // ("/Option Menu/Pumps.htm"), as the file spells them.
    const std::vector<std::string>& paths() const { return m_paths; }
    // The bytes of the object at a path (found as FindHelpPath finds a
    // topic: "\" as "/", without regard to case); nothing when there is none.
    std::optional<std::string> read(std::string_view path) const;
    // The topic the file opens with, its contents page ("/Contents.htm"),
    // from the file's own settings; the first page when they name none.
    std::string defaultTopic() const;

  private:
    explicit ChmFile(chmFile* handle);
    std::optional<std::string> readExact(const std::string& path) const;

    chmFile* m_handle;
    std::vector<std::string> m_paths;
};

} // namespace vesk::gui
