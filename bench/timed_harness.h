// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// What the timed harnesses of the windows share: a scratch program folder, and medians printed.
#pragma once

#include <QCoreApplication>
#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <string>
#include <vector>

namespace vesk::bench {

inline double milliseconds(qint64 nanoseconds) {
    return static_cast<double>(nanoseconds) / 1e6;
}

// A copy of the shipped program folder of the harness's own, so it writes into
// no tree; gone when the harness ends.
class ScratchProgramFolder {
  public:
    explicit ScratchProgramFolder(const std::string& harness)
        : m_path(std::filesystem::temp_directory_path() /
                 (harness + "-" + std::to_string(QCoreApplication::applicationPid()))) {
        std::filesystem::remove_all(m_path);
        std::filesystem::copy(VESK_SHIPPED_DATA_DIR, m_path, std::filesystem::copy_options::recursive);
    }
    ~ScratchProgramFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(m_path, ignored);
    }
    ScratchProgramFolder(const ScratchProgramFolder&) = delete;
    ScratchProgramFolder& operator=(const ScratchProgramFolder&) = delete;

    const std::filesystem::path& path() const { return m_path; }

  private:
    std::filesystem::path m_path;
};

// Prints the median and the worst of the times, in milliseconds.
inline void printMedianAndWorst(const char* what, std::vector<double> times) {
    std::sort(times.begin(), times.end());
    std::printf("%s: median %.2f ms, worst %.2f ms\n", what, times[times.size() / 2], times.back());
}

} // namespace vesk::bench
