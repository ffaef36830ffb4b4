// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The sweep of a typical 40-nozzle site on the shipped catalogue.
#include "bench_support.h"

#include "engine/flow_sweep.h"
#include "site/startup.h"

#include <benchmark/benchmark.h>
#include <cmath>

namespace {

// The shipped start-up site made a typical station: 40 nozzles on four
// branches fed by two 1-1/2 HP pumps, 150 ft of 2" trunk and 60 ft of branch
// with their fittings, 8 ft hoses.
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
    vesk::ComputeChartNozzles(app);
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
    state.counters["ns_per_step"] = benchmark::Counter(
        static_cast<double>(steps), benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}
BENCHMARK(BM_Sweep40)->Unit(benchmark::kMillisecond);

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
