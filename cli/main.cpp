// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// vesk-calc: the flows per nozzle of a site, calculated without a window.
#include "cli/update_command.h"
#include "reports/compare_table.h"
#include "reports/design_comparison.h"
#include "workbench/calculate.h"
#include "workbench/site_file.h"
#include "workbench/startup.h"

#include "engine/numeric.h"
#include "messages/user_interaction.h"
#include "site/program_folder.h"

#ifdef VESK_CALC_REPORT
#include "gui/reports/report_pdf.h"
#endif

#include <CLI/CLI.hpp>
#include <charconv>
#include <cstdio>
#include <filesystem>
#include <iostream>
#include <optional>
#include <string>
#include <string_view>
#include <unistd.h>
#include <variant>
#include <vector>
#include <vesk_version.h>

namespace {

constexpr std::string_view usage = "usage: vesk-calc [--dir PROGRAM_FOLDER] [--baseline BASE_SITE] [--csv | --details "
                                   "| --compare | --report FILE.pdf] "
                                   "[SITE_FILE]\n"
                                   "       vesk-calc [--dir PROGRAM_FOLDER] --update NEW_DATA_FILE\n"
                                   "       vesk-calc --version | --help";

constexpr int exitFatalMessage = 1;
constexpr int exitUsage = 2;
constexpr int exitRunTimeFailure = 3;

// What is printed; the readable table when no output option is given.
enum class Output { Table, Csv, Details, Compare, Report };

struct Options {
    std::optional<std::filesystem::path> programFolder; // --dir; without it, the rule's folder
    Output output = Output::Table;
    std::string reportFile;
    std::optional<std::string> baseline;
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

// The help lists each option with its value's name; the usage line above it
// says which options go together.
class HelpFormatter : public CLI::Formatter {
  public:
    std::string make_usage(const CLI::App*, std::string) const override { return {}; }
    std::string make_option_opts(const CLI::Option* option) const override {
        return option->get_option_text().empty() ? std::string() : " " + option->get_option_text();
    }
};

// Every option of the command line, registered in one place. Only one
// output option may be given.
void addOptions(CLI::App& cli, Options& options) {
    cli.add_option("--dir", options.programFolder, "the program folder (default: the one vesk itself would use)")
        ->option_text("PROGRAM_FOLDER");
    CLI::Option* site = cli.add_option("SITE_FILE", options.siteFile, "the site file opened as File > Open does");
    cli.add_option("--baseline", options.baseline,
                   "compare two saved designs: the Baseline from BASE_SITE, the Current from SITE_FILE")
        ->option_text("BASE_SITE")
        ->needs(site);

    std::vector<CLI::Option*> outputs;
    const auto output = [&](CLI::Option* option, Output chosen) {
        option->each([&options, chosen](const std::string&) { options.output = chosen; });
        outputs.push_back(option);
    };
    output(cli.add_flag("--csv")->description("nozzles,gpm_per_nozzle,lpm_per_nozzle lines of the Current flows"),
           Output::Csv);
    output(cli.add_flag("--details")->description("the head-loss breakdown of the details dialog, in feet"),
           Output::Details);
    output(cli.add_flag("--compare")
               ->description("the compare table as the preview's second page shows it, TAB-separated"),
           Output::Compare);
    output(cli.add_option("--report", options.reportFile, "the printed report, written as a PDF file")
               ->option_text("FILE.pdf"),
           Output::Report);
    for (CLI::Option* one : outputs) {
        for (CLI::Option* other : outputs) {
            if (one != other) {
                one->excludes(other);
            }
        }
    }

    // Update takes no other option but --dir.
    CLI::Option* update = cli.add_option("--update", options.updateFile,
                                         "merge a maker's new component file into the program folder's, as Update does")
                              ->option_text("NEW_DATA_FILE");
    for (CLI::Option* other : outputs) {
        update->excludes(other);
    }
    update->excludes(site);
    update->excludes("--baseline");
}

// Parses the arguments; --help and --version print and give their exit code,
// bad usage prints the usage line and what was wrong.
std::variant<Options, int> parseArguments(int argc, char** argv) {
    Options options;
    CLI::App cli("vesk-calc: the flows per nozzle of a fuel station's site, calculated without a window.", "vesk-calc");
    cli.set_version_flag("--version", std::string("vesk-calc ") + VESK_VERSION_STRING);
    cli.formatter(std::make_shared<HelpFormatter>());
    addOptions(cli, options);
    try {
        cli.parse(argc, argv);
    } catch (const CLI::CallForHelp&) {
        std::cout << usage << "\n\n" << cli.help("", CLI::AppFormatMode::All);
        return 0;
    } catch (const CLI::CallForVersion& version) {
        std::cout << version.what() << '\n';
        return 0;
    } catch (const CLI::ParseError& error) {
        std::cerr << usage << '\n' << "vesk-calc: " << error.what() << '\n';
        return exitUsage;
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

// The compare table from its row of heads on, one line per row, the cells
// joined by one TAB, each text as the grid holds it.
void printCompare(vesk::ApplicationState& app) {
    const bool optUS = vesk::TouchFrmData(app.panel, app.config).optUS;
    const vesk::SheetGrid grid =
        vesk::LoadCompareGrid(app.results.Current, app.results.Baseline, app.NoOfNozzles, optUS);
    std::string text;
    for (long row = 2; row < grid.Rows(); ++row) {
        for (long column = 0; column < grid.Cols(); ++column) {
            text += (column == 0 ? "" : "\t") + grid.TextMatrix(row, column);
        }
        text += '\n';
    }
    std::cout << text; // composed whole first: a failure prints nothing
}

void writeReport([[maybe_unused]] vesk::ApplicationState& app, [[maybe_unused]] const std::string& file) {
#ifdef VESK_CALC_REPORT
    vesk::gui::WriteReportPdf(app, std::filesystem::absolute(file).string());
#else
    std::cerr << "vesk-calc: this build has no report writer (built without the desktop program)\n";
    throw vesk::ProcessEnd(0);
#endif
}

// The site File > Open loads; with a Baseline site, that one first and then
// the site kept beside it. A missing or damaged file has shown its message.
bool openSites(vesk::ApplicationState& app, const Options& options, vesk::UserInteraction& ui) {
    if (!options.siteFile) {
        return true;
    }
    const std::string site = std::filesystem::absolute(*options.siteFile).string();
    if (!options.baseline) {
        return vesk::OpenSiteFile(app, site, ui);
    }
    return vesk::OpenSiteFile(app, std::filesystem::absolute(*options.baseline).string(), ui) &&
           vesk::OpenSiteKeepingBaseline(app, site, ui);
}

int run(const Options& options) {
    StderrInteraction ui;
    vesk::ApplicationState app;
    try {
        app.programFolder = options.programFolder ? *options.programFolder : vesk::ProgramFolderFor(executableFolder());
        vesk::InitialiseMainWindow(app, ui);
        // The site File, Open would load; a missing or damaged file has shown
        // its message on stderr already.
        if (!openSites(app, options, ui)) {
            return exitFatalMessage;
        }
        switch (options.output) {
        case Output::Details:
            printDetails(app);
            break;
        case Output::Csv:
            printCsv(app.results.Current);
            break;
        case Output::Compare:
            printCompare(app);
            break;
        case Output::Report:
            writeReport(app, options.reportFile);
            break;
        case Output::Table:
            printTable(app);
            break;
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
    const std::variant<Options, int> parsed = parseArguments(argc, argv);
    if (const int* exitCode = std::get_if<int>(&parsed)) {
        return *exitCode;
    }
    const Options& options = std::get<Options>(parsed);
    if (options.updateFile) {
        const auto programFolder = [&options] {
            return options.programFolder ? *options.programFolder : vesk::ProgramFolderFor(executableFolder());
        };
        return vesk::cli::RunUpdateCommand(programFolder, *options.updateFile, std::cerr);
    }
    return run(options);
}
