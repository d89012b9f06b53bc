// What the distance rules are made of: one visit of the pair walk, and one measure of a pair with its bodies.

#include "RandomSite.h"
#include "bare_walk.h"
#include "cad/UdDbBlock.h"
#include "elements/NUXElementObject.h"
#include "evaluators/distant/NUXRelElementTypeDistantRule.h"
#include "evaluators/distant/pair_distance.h"
#include "shipped_rules.h"

#include <benchmark/benchmark.h>

namespace {

using Append = void (*)(RandomSite& site);

/// Visits per second are the inverse of one visit's cost. The rule's first elements have no reference element
/// on this site, so nothing is measured.
void visitOfPairWalk(benchmark::State& state) {
    const auto document = randomSite(1000);
    UdDbBlock* modelSpace = document->GetModelSpace();
    NuxStandardCheckRule rule = shippedRule("Distant_PrefabHouseToWoodFactory");
    rule.referenceElementType = QStringLiteral("NUX_ELEMENT_TYPE_BOXHOUSE");
    const std::size_t visits = bareWalk(*modelSpace, rule);
    NUXRelElementTypeDistantRule evaluator;
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(evaluator.check(modelSpace, rule));
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(visits));
}

void bareVisit(benchmark::State& state) {
    const auto document = randomSite(1000);
    NuxStandardCheckRule rule = shippedRule("Distant_PrefabHouseToWoodFactory");
    rule.referenceElementType = QStringLiteral("NUX_ELEMENT_TYPE_BOXHOUSE");
    std::size_t visits = 0;
    for ([[maybe_unused]] auto _ : state)
        visits = bareWalk(*document->GetModelSpace(), rule);
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(visits));
}

void pairMeasure(benchmark::State& state, Append appendFirst) {
    constexpr int pairs = 100;
    RandomSite site(2 * pairs, 1);
    for (int i = 0; i < pairs; ++i) {
        appendFirst(site);
        site.appendYard();
    }
    const auto document = site.take();
    std::vector<const NUXElementObject*> elements;
    std::vector<std::wstring> types;
    for (const auto& object : document->GetModelSpace()->objects()) {
        elements.push_back(NUXElementObject::Cast(object.get()));
        types.push_back(elements.back()->getElementType());
    }
    for ([[maybe_unused]] auto _ : state)
        for (std::size_t i = 0; i < elements.size(); i += 2)
            benchmark::DoNotOptimize(
                pairDistance({elements[i], types[i]}, {elements[i + 1], types[i + 1]}, nullptr));
    state.SetItemsProcessed(state.iterations() * pairs);
}

BENCHMARK(visitOfPairWalk);
BENCHMARK(bareVisit);
BENCHMARK_CAPTURE(pairMeasure, prefabHouse, [](RandomSite& site) { site.appendPrefabHouse(); });
BENCHMARK_CAPTURE(pairMeasure, futureHouse, [](RandomSite& site) { site.appendFutureHouse(); });
BENCHMARK_CAPTURE(pairMeasure, substation, [](RandomSite& site) { site.appendSubstation(); });
BENCHMARK_CAPTURE(pairMeasure, fireRoad, [](RandomSite& site) { site.appendRoad(true); });

} // namespace
