// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The pump editor in metric units: opening it (the pump catalogue to metric) and Ok (back to US, the file written, the
// lists refilled).
#include "bench_support.h"
#include "editors/component_editor.h"
#include "workbench/startup.h"

#include <benchmark/benchmark.h>
#include <filesystem>
#include <fstream>
#include <memory>
#include <unistd.h>

namespace vesk::bench {

namespace {

// A copy of the shipped program folder, set to metric units, started up.
struct MetricStation {
    MetricStation() {
        folder = std::filesystem::temp_directory_path() / ("vesk-editor-bench-" + std::to_string(::getpid()));
        std::filesystem::remove_all(folder);
        std::filesystem::copy(shippedDataDir(), folder, std::filesystem::copy_options::recursive);
        std::ofstream(folder / "Vesk.ini", std::ios::binary) << "40\r\n4\r\nTrue\r\nFalse\r\nA\r\n";
        app.programFolder = folder;
        InitialiseMainWindow(app, ui);
    }
    ~MetricStation() { std::filesystem::remove_all(folder); }
    MetricStation(const MetricStation&) = delete;
    MetricStation& operator=(const MetricStation&) = delete;

    std::filesystem::path folder;
    ApplicationState app;
    SilentInteraction ui;
    EditorSession session;
};

const EditorForm& pumpEditor() {
    return EditorFormOf(ComponentKind::Pump);
}

void BM_OpenPumpEditorMetric(benchmark::State& state) {
    MetricStation station;
    for (auto _ : state) {
        auto editor = std::make_unique<ComponentEditor>(pumpEditor(), station.app, station.session, station.ui);
        benchmark::DoNotOptimize(editor.get());
        state.PauseTiming();
        editor->ok();
        editor.reset();
        state.ResumeTiming();
    }
}
BENCHMARK(BM_OpenPumpEditorMetric)->Unit(benchmark::kMicrosecond);

void BM_OkPumpEditorMetric(benchmark::State& state) {
    MetricStation station;
    for (auto _ : state) {
        state.PauseTiming();
        auto editor = std::make_unique<ComponentEditor>(pumpEditor(), station.app, station.session, station.ui);
        state.ResumeTiming();
        editor->ok();
        benchmark::DoNotOptimize(editor.get());
        state.PauseTiming();
        editor.reset();
        state.ResumeTiming();
    }
}
BENCHMARK(BM_OkPumpEditorMetric)->Unit(benchmark::kMicrosecond);

} // namespace

} // namespace vesk::bench
