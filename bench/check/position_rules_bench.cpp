// Each family of position rules by the number of what it looks for, among a fixed number of the rest.

#include "RandomSite.h"
#include "evaluators/position/NUXRelElementTypePositionRule.h"
#include "shipped_rules.h"

#include <benchmark/benchmark.h>

namespace {

using Append = void (*)(RandomSite& site);

constexpr int kOthers = 30;

/// `counted` is appended as often as the benchmark's argument says, before a fixed number of `others`.
void positionRule(benchmark::State& state, const char* ruleName, Append counted, Append others) {
    const auto count = static_cast<int>(state.range(0));
    RandomSite site(static_cast<std::size_t>(count + kOthers), 1);
    for (int i = 0; i < count; ++i)
        counted(site);
    for (int i = 0; i < kOthers; ++i)
        others(site);
    const auto document = site.take();
    const NuxStandardCheckRule& rule = shippedRule(ruleName);
    NUXRelElementTypePositionRule evaluator;
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(evaluator.check(document->GetModelSpace(), rule));
}

void counts(benchmark::internal::Benchmark* bench) {
    bench->RangeMultiplier(4)->Range(16, 1024)->Unit(benchmark::kMicrosecond);
}

const Append boxes = [](RandomSite& site) { site.appendBox(); };
const Append houses = [](RandomSite& site) { site.appendPrefabHouse(); };
const Append cables = [](RandomSite& site) { site.appendCable(); };
const Append yards = [](RandomSite& site) { site.appendYard(); };
const Append walls = [](RandomSite& site) { site.appendWall(); };
const Append roads = [](RandomSite& site) { site.appendRoad(true); };
const Append posters = [](RandomSite& site) { site.appendPoster(); };
const Append cranes = [](RandomSite& site) { site.appendCrane(); };

BENCHMARK_CAPTURE(positionRule, boxes, "Position_FireExtinguisherBoxToPrefabHouse", boxes, houses)
    ->Apply(counts);
BENCHMARK_CAPTURE(positionRule, cables, "Position_WireToWoodYard", cables, yards)->Apply(counts);
BENCHMARK_CAPTURE(positionRule, walls, "Position_DoorToDoor", walls, yards)->Apply(counts);
BENCHMARK_CAPTURE(positionRule, roadsBelowPoster, "Position_FireRoad", roads, posters)->Apply(counts);
BENCHMARK_CAPTURE(positionRule, roadsBelowCable, "Position_FireRoad", roads, cables)->Apply(counts);
BENCHMARK_CAPTURE(positionRule, roadsBelowCrane, "Position_FireRoad", roads, cranes)->Apply(counts);
BENCHMARK_CAPTURE(positionRule, roadsBesideHouse, "Position_FireRoad", roads, houses)->Apply(counts);

} // namespace
