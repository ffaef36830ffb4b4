// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The reading of the nine data files of the shipped program folder.
#include "bench_support.h"
#include "workbench/startup.h"

#include "catalogue/component_file.h"
#include "catalogue/piping_file.h"

#include <benchmark/benchmark.h>

namespace {

void BM_ReadPipingFile(benchmark::State& state) {
    vesk::bench::SilentInteraction ui;
    for (auto _ : state) {
        benchmark::DoNotOptimize(vesk::GetPipeHeadFileData(vesk::bench::shippedDataDir(), ui));
    }
}
BENCHMARK(BM_ReadPipingFile)->Unit(benchmark::kMicrosecond);

void BM_ReadComponentFile(benchmark::State& state) {
    const auto kind = static_cast<vesk::ComponentKind>(state.range(0));
    state.SetLabel(std::string(vesk::traitsOf(kind).fileAsRead));
    vesk::bench::SilentInteraction ui;
    for (auto _ : state) {
        benchmark::DoNotOptimize(vesk::GetComponentFileData(kind, vesk::bench::shippedDataDir(), ui));
    }
}
BENCHMARK(BM_ReadComponentFile)->DenseRange(1, vesk::componentKindCount)->Unit(benchmark::kMicrosecond);

// The start-up read of every file, the lists, and the first Calculate.
void BM_Startup(benchmark::State& state) {
    vesk::bench::SilentInteraction ui;
    for (auto _ : state) {
        vesk::ApplicationState app;
        app.programFolder = vesk::bench::shippedDataDir();
        vesk::InitialiseMainWindow(app, ui);
        benchmark::DoNotOptimize(app.results.Current.GpmPerNozzle.data());
    }
}
BENCHMARK(BM_Startup)->Unit(benchmark::kMicrosecond);

} // namespace
