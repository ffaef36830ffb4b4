// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// vesk-calc: the flows per nozzle of a site, calculated without a window.
#include "cli/update_command.h"
#include "engine/numeric.h"
#include "messages/user_interaction.h"
#include "site/program_folder.h"
#include "workbench/site_file.h"
#include "workbench/calculate.h"
#include "workbench/startup.h"

#include <charconv>
#include <cstdio>
#include <filesystem>
#include <iostream>
#include <optional>
#include <string>
#include <string_view>
#include <unistd.h>

namespace {

constexpr std::string_view usage = "usage: vesk-calc [--dir PROGRAM_FOLDER] [--csv] [--details] [SITE_FILE]\n"
                                   "       vesk-calc [--dir PROGRAM_FOLDER] --update NEW_DATA_FILE";

constexpr int exitFatalMessage = 1;
constexpr int exitUsage = 2;
constexpr int exitRunTimeFailure = 3;

struct Options {
    std::optional<std::filesystem::path> programFolder; // --dir; without it, the rule's folder
    bool csv = false;
    bool details = false;
    std::optional<std::string> siteFile;
    std::optional<std::string> updateFile; // --update, which takes no other option but --dir
};

// Every box the system shows goes to stderr; nothing waits for an answer.
class StderrInteraction : public vesk::UserInteraction {
  public:
    void showMessageBox(std::string_view text, vesk::MessageIcon) override { std::cerr << text << '\n'; }
};

std::filesystem::path executableFolder() {
    std::error_code error;
    const auto executable = std::filesystem::read_symlink("/proc/self/exe", error);
    return error ? std::filesystem::current_path() : executable.parent_path();
}

std::optional<Options> parseArguments(int argc, char** argv) {
    Options options;
    for (int i = 1; i < argc; ++i) {
        const std::string_view argument = argv[i];
        if (argument == "--dir" && i + 1 < argc) {
            options.programFolder = argv[++i];
        } else if (argument == "--csv") {
            options.csv = true;
        } else if (argument == "--details") {
            options.details = true;
        } else if (argument == "--update" && i + 1 < argc && !options.updateFile) {
            options.updateFile = argv[++i];
        } else if (!argument.starts_with("-") && !options.siteFile) {
            options.siteFile = std::string(argument);
        } else {
            return std::nullopt;
        }
    }
    if (options.updateFile && (options.csv || options.details || options.siteFile)) {
        return std::nullopt;
    }
    return options;
}

// A Single with 9 significant digits, enough to read back the same Single.
std::string preciseText(vesk::Single value) {
    char buffer[32];
    const auto result =
        std::to_chars(buffer, buffer + sizeof buffer, static_cast<double>(value), std::chars_format::general, 9);
    return std::string(buffer, result.ptr);
}

// The number of nozzles swept is one less than the size of the lists.
long nozzlesSwept(const vesk::FlowTable& table) {
    return static_cast<long>(table.GpmList.size()) - 1;
}

void printCsv(const vesk::FlowTable& table) {
    std::cout << "nozzles,gpm_per_nozzle,lpm_per_nozzle\n";
    for (long n = 1; n <= nozzlesSwept(table); ++n) {
        std::cout << n << ',' << vesk::singleText(vesk::at(table.GpmPerNozzle, n)) << ','
                  << vesk::singleText(vesk::at(table.LpmPerNozzle, n)) << '\n';
    }
}

std::string padLeft(const std::string& text, std::size_t width) {
    return text.size() >= width ? text : std::string(width - text.size(), ' ') + text;
}

void printTable(const vesk::ApplicationState& app) {
    const vesk::FlowTable& table = app.results.Current;
    std::cout << "Site: " << app.strSiteFile << "\n\n";
    std::cout << "Nozzles running   GPM per nozzle   LPM per nozzle\n";
    for (long n = 1; n <= nozzlesSwept(table); ++n) {
        std::cout << padLeft(std::to_string(n), 15) << padLeft(vesk::singleText(vesk::at(table.GpmPerNozzle, n)), 17)
                  << padLeft(vesk::singleText(vesk::at(table.LpmPerNozzle, n)), 17) << '\n';
    }
}

void printDetails(vesk::ApplicationState& app) {
    const vesk::HeadLossBreakdown& b = vesk::RunDetails(app);
    const std::pair<const char*, vesk::Single> fields[] = {
        {"TotalRise", b.TotalRise},         {"LeakDetectorLoss", b.LeakDetectorLoss},
        {"TrunkLoss", b.TrunkLoss},         {"BranchLoss", b.BranchLoss},
        {"DispenserLoss", b.DispenserLoss}, {"DispOthersLoss", b.DispOthersLoss},
        {"BreakawayLoss", b.BreakawayLoss}, {"HoseLoss", b.HoseLoss},
        {"NozzleLoss", b.NozzleLoss},       {"PumpOthersLoss", b.PumpOthersLoss},
        {"TotalHead", b.TotalHead},         {"flow_gpm", app.results.engine.TrialFlow},
    };
    for (const auto& [name, value] : fields) {
        std::cout << name << ',' << preciseText(value) << '\n';
    }
}

int run(const Options& options) {
    StderrInteraction ui;
    vesk::ApplicationState app;
    try {
        app.programFolder = options.programFolder ? *options.programFolder : vesk::ProgramFolderFor(executableFolder());
        vesk::InitialiseMainWindow(app, ui);
        // The site File, Open would load; a missing or damaged file has shown
        // its message on stderr already.
        if (options.siteFile && !vesk::OpenSiteFile(app, std::filesystem::absolute(*options.siteFile).string(), ui)) {
            return exitFatalMessage;
        }
        if (options.details) {
            printDetails(app);
        } else if (options.csv) {
            printCsv(app.results.Current);
        } else {
            printTable(app);
        }
    } catch (const vesk::ProcessEnd&) {
        return exitFatalMessage; // its message is already on stderr
    } catch (const vesk::RunTimeFailure& failure) {
        std::cerr << "Run-time error: " << failure.what() << '\n';
        return exitRunTimeFailure;
    }
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    const std::optional<Options> options = parseArguments(argc, argv);
    if (!options) {
        std::cerr << usage << '\n';
        return exitUsage;
    }
    if (options->updateFile) {
        const auto programFolder = [&options] {
            return options->programFolder ? *options->programFolder : vesk::ProgramFolderFor(executableFolder());
        };
        return vesk::cli::RunUpdateCommand(programFolder, *options->updateFile, std::cerr);
    }
    return run(*options);
}
