// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// A compiled HTML help file read with chmlib: its pages by path, and its default topic.
#include "gui/common/chm_file.h"

#include "messages/help_topics.h"

#include <chm_lib.h>
#include <cstdint>

namespace vesk::gui {

namespace {

// Collects the path of every normal file of the archive.
int collectPath(chmFile* /*handle*/, chmUnitInfo* unit, void* context) {
    static_cast<std::vector<std::string>*>(context)->emplace_back(unit->path);
    return CHM_ENUMERATOR_CONTINUE;
}

constexpr std::uint16_t defaultTopicCode = 2; // the entry of #SYSTEM that names the default topic

std::uint32_t littleEndian(const std::string& bytes, std::size_t at, std::size_t size) {
    std::uint32_t value = 0;
    for (std::size_t i = 0; i < size; ++i) {
        value |= static_cast<std::uint32_t>(static_cast<unsigned char>(bytes[at + i])) << (8 * i);
    }
    return value;
}

} // namespace

std::unique_ptr<ChmFile> ChmFile::open(const std::filesystem::path& file) {
    chmFile* handle = chm_open(file.c_str());
    if (handle == nullptr) {
        return nullptr;
    }
    return std::unique_ptr<ChmFile>(new ChmFile(handle));
}

ChmFile::ChmFile(chmFile* handle) : m_handle(handle) {
    chm_enumerate(m_handle, CHM_ENUMERATE_NORMAL | CHM_ENUMERATE_FILES, collectPath, &m_paths);
}

ChmFile::~ChmFile() {
    chm_close(m_handle);
}

std::optional<std::string> ChmFile::readExact(const std::string& path) const {
    chmUnitInfo unit{};
    if (chm_resolve_object(m_handle, path.c_str(), &unit) != CHM_RESOLVE_SUCCESS) {
        return std::nullopt;
    }
    std::string bytes(static_cast<std::size_t>(unit.length), '\0');
    if (unit.length == 0) {
        return bytes;
    }
    const LONGINT64 read = chm_retrieve_object(m_handle, &unit, reinterpret_cast<unsigned char*>(bytes.data()), 0,
                                               static_cast<LONGINT64>(unit.length));
    if (read != static_cast<LONGINT64>(unit.length)) {
        return std::nullopt;
    }
    return bytes;
}

std::optional<std::string> ChmFile::read(std::string_view path) const {
    const std::optional<std::string> found = FindHelpPath(path, m_paths);
    if (!found) {
        return std::nullopt;
    }
    return readExact(*found);
}

// #SYSTEM holds a 4-byte version, then entries of a 2-byte code, a 2-byte
// length and that many bytes; the default topic's text ends in a zero byte.
std::string ChmFile::defaultTopic() const {
    const std::optional<std::string> system = readExact("/#SYSTEM");
    if (system) {
        std::size_t at = 4;
        while (at + 4 <= system->size()) {
            const std::uint32_t code = littleEndian(*system, at, 2);
            const std::uint32_t length = littleEndian(*system, at + 2, 2);
            at += 4;
            if (at + length > system->size()) {
                break;
            }
            if (code == defaultTopicCode) {
                std::string topic = system->substr(at, length);
                topic.erase(topic.find('\0') == std::string::npos ? topic.size() : topic.find('\0'));
                if (FindHelpPath(topic, m_paths)) {
                    return *FindHelpPath(topic, m_paths);
                }
            }
            at += length;
        }
    }
    for (const std::string& path : m_paths) {
        if (path.ends_with(".htm") || path.ends_with(".html")) {
            return path;
        }
    }
    return "/";
}

} // namespace vesk::gui
