// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The report's speed: the first page of the preview, and the two sheets of 40 nozzles written to a PDF file.
#include "bench_support.h"
#include "gui/reports/preview_pages.h"
#include "gui/reports/report_pdf.h"
#include "workbench/calculate.h"
#include "workbench/field_checks.h"
#include "workbench/startup.h"

#include <QApplication>
#include <benchmark/benchmark.h>
#include <filesystem>

namespace vesk::bench {
namespace {

// Start-up on a copy of the shipped program folder (the preview writes its
// bitmap there), then 40 nozzles entered, calculated and made the Baseline.
struct FortyNozzles {
    std::filesystem::path folder = std::filesystem::temp_directory_path() / "vesk-report-bench";
    SilentInteraction ui;
    ApplicationState app;

    FortyNozzles() {
        std::filesystem::remove_all(folder);
        std::filesystem::copy(shippedDataDir(), folder, std::filesystem::copy_options::recursive);
        app.programFolder = folder;
        InitialiseMainWindow(app, ui);
        app.panel.txtNoOfNozzle = "40";
        NozzleCheck(app, ui);
        Calculate(app);
        MakeBaseline(app);
    }
    ~FortyNozzles() { std::filesystem::remove_all(folder); }
};

// The first page of the preview, loaded and shown: the chart rendered to its
// picture, "pic1.bmp" written and read back, the heads laid out and painted.
void BM_PreviewFirstPage(benchmark::State& state) {
    FortyNozzles station;
    for (auto _ : state) {
        gui::ReportPageDialog page(station.app, QSize(700, 420), nullptr);
        page.show();
        QApplication::processEvents();
        benchmark::DoNotOptimize(page.grab());
    }
}
BENCHMARK(BM_PreviewFirstPage)->Unit(benchmark::kMillisecond);

// File > Print to a PDF file: the flow graph sheet with its chart, the two
// compare grids and the component list, 40 nozzles.
void BM_ReportPdf40(benchmark::State& state) {
    FortyNozzles station;
    const std::string pdf = (station.folder / "report.pdf").string();
    for (auto _ : state) {
        gui::WriteReportPdf(station.app, pdf);
    }
    state.counters["bytes"] = static_cast<double>(std::filesystem::file_size(pdf));
}
BENCHMARK(BM_ReportPdf40)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace vesk::bench

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
