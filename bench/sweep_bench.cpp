// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The sweep of a typical 40-nozzle site on the shipped catalogue.
#include "bench_support.h"
#include "workbench/calculate.h"
#include "workbench/startup.h"

#include "engine/flow_sweep.h"
#include "engine/pipe_friction.h"

#include <benchmark/benchmark.h>
#include <cmath>

namespace {

// The shipped start-up site made a typical 40-nozzle station: four branches
// fed by two 1-1/2 HP pumps, 150 ft of 2" trunk and 60 ft of branch with
// their fittings, 8 ft hoses.
vesk::ApplicationState typicalSite() {
    vesk::bench::SilentInteraction ui;
    vesk::ApplicationState app;
    app.programFolder = vesk::bench::shippedDataDir();
    vesk::InitialiseMainWindow(app, ui);
    vesk::PanelState& panel = app.panel;
    panel.txtNoOfNozzle = "40";
    panel.cmbPumps.SetListIndex(panel.cmbPumps.FindEntry("STP 1-1/2 HP"));
    panel.cmbQuantity.SetListIndex(1);
    panel.cmbNoOfBranches.SetListIndex(3);
    panel.cmbTrunk.SetListIndex(1);
    panel.cmbBranch.SetListIndex(0);
    panel.txtTrunkLength = "150";
    panel.txtBranchLength = "60";
    panel.txtTrunkFitting = {"2", "4", "3", "1"};
    panel.txtBranchFitting = {"0", "3", "1", "1"};
    panel.cmbHoseSize.SetListIndex(1);
    panel.txtHoseLen = "8";
    vesk::CreateResultTables(app);
    return app;
}

// A sweep steps from 0.1 GPM up to one step above each answer: the steps of
// n nozzles are the answer in tenths plus the failing step.
long stepsOf(const vesk::FlowTable& table) {
    long steps = 0;
    for (std::size_t n = 1; n < table.GpmList.size(); ++n) {
        steps += std::lround(table.GpmPerNozzle[n] * 10.0) + 1;
    }
    return steps;
}

void BM_Sweep40(benchmark::State& state) {
    vesk::ApplicationState app = typicalSite();
    const vesk::SiteDescription site = vesk::BuildSiteDescription(app.panel, app.config);
    for (auto _ : state) {
        const vesk::HydraulicSite hydraulics(site, app.piping, app.catalogues);
        vesk::Sweep(app.results.Current, app.results.NozzleLabels, vesk::SweepButton::Calculate, hydraulics,
                    app.results.engine);
        benchmark::DoNotOptimize(app.results.Current.GpmPerNozzle.data());
    }
    const long steps = stepsOf(app.results.Current);
    state.counters["steps"] = static_cast<double>(steps);
    const auto perIterationTime = benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert;
    state.counters["time_per_step"] = benchmark::Counter(static_cast<double>(steps), perIterationTime);
    // The target: a table of 3,800 steps within 2 ms.
    state.counters["time_per_3800_steps"] = benchmark::Counter(static_cast<double>(steps) / 3800.0, perIterationTime);
}
BENCHMARK(BM_Sweep40)->Unit(benchmark::kMillisecond);

// The floor the sweep is measured against: the arithmetic of 3,800 steps
// alone, two pipe frictions a step (a dozen logarithms) at the flows a sweep
// passes through, with no lookup, no table and no bookkeeping.
void BM_FrictionArithmetic3800Steps(benchmark::State& state) {
    const vesk::Single trunkDiameterFt = 0.1723F;
    const vesk::Single branchDiameterFt = 0.1342F;
    const vesk::Single roughnessFt = 1.7E-05F;
    for (auto _ : state) {
        vesk::Single sum = 0;
        for (int step = 1; step <= 3800; ++step) {
            const auto flowPerNozzleGpm = static_cast<vesk::Single>((step % 100) * 0.1 + 0.1);
            const vesk::Single totalGpm = flowPerNozzleGpm * static_cast<vesk::Single>(1 + step / 100);
            sum += vesk::PipeFriction(trunkDiameterFt, 200, totalGpm, roughnessFt);
            sum += vesk::PipeFriction(branchDiameterFt, 80, totalGpm / 4, roughnessFt);
        }
        benchmark::DoNotOptimize(sum);
    }
}
BENCHMARK(BM_FrictionArithmetic3800Steps)->Unit(benchmark::kMillisecond);

// The whole Calculate of the start-up site as the program runs it: the site
// read from the panels, resolved, and swept into the Current table.
void BM_CalculateStartupSite(benchmark::State& state) {
    vesk::bench::SilentInteraction ui;
    vesk::ApplicationState app;
    app.programFolder = vesk::bench::shippedDataDir();
    vesk::InitialiseMainWindow(app, ui);
    for (auto _ : state) {
        vesk::Calculate(app);
        benchmark::DoNotOptimize(app.results.Current.GpmPerNozzle.data());
    }
}
BENCHMARK(BM_CalculateStartupSite)->Unit(benchmark::kMicrosecond);

} // namespace
