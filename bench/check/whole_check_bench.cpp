// A whole check under the shipped rule file beside the bare walk, all rules together and by rule family.

#include "RandomSite.h"
#include "bare_walk.h"
#include "cad/UdApDocManager.h"
#include "engine/NUXCheck.h"
#include "engine/NuxFireStandardCheck.h"
#include "evaluators/distant/NUXRelElementTypeDistantRule.h"
#include "evaluators/position/NUXRelElementTypePositionRule.h"
#include "evaluators/self/NUXElementTypeRule.h"
#include "evaluators/without/NUXWithoutElementTypeRule.h"
#include "explain/CheckRecorder.h"
#include "shipped_rules.h"

#include <benchmark/benchmark.h>

namespace {

std::size_t sizeOf(const benchmark::State& state) {
    return static_cast<std::size_t>(state.range(0));
}

void wholeCheck(benchmark::State& state) {
    shippedRules();
    UdApDocument* document = UdDocManagerPtr()->open(randomSite(sizeOf(state)));
    NuxFireStandardCheck& engine = *NUXCheck::instance();
    for ([[maybe_unused]] auto _ : state)
        engine.DoCheck();
    std::size_t records = 0;
    for (const auto& filed : engine.getMapRules())
        records += filed.size();
    state.counters["records"] = static_cast<double>(records);
    UdDocManagerPtr()->close(document);
}

/// The same check with the checker's recorder told of it.
void recordedCheck(benchmark::State& state) {
    shippedRules();
    UdApDocument* document = UdDocManagerPtr()->open(randomSite(sizeOf(state)));
    for ([[maybe_unused]] auto _ : state) {
        firestandard::CheckRecorder recorder;
        NUXCheck::instance()->DoCheck();
        benchmark::DoNotOptimize(recorder.takeRuns());
    }
    UdDocManagerPtr()->close(document);
}

void bareWalkOfAllRules(benchmark::State& state) {
    const auto document = randomSite(sizeOf(state));
    std::size_t visits = 0;
    for ([[maybe_unused]] auto _ : state) {
        visits = 0;
        for (const auto& sharingKey : shippedRules())
            for (const NuxStandardCheckRule& rule : sharingKey)
                visits += bareWalk(*document->GetModelSpace(), rule);
        benchmark::DoNotOptimize(visits);
    }
    state.counters["visits"] = static_cast<double>(visits);
}

std::unique_ptr<NUXRule> evaluatorOf(const QString& type) {
    if (type == "self")
        return std::make_unique<NUXElementTypeRule>();
    if (type == "without")
        return std::make_unique<NUXWithoutElementTypeRule>();
    if (type == "distant")
        return std::make_unique<NUXRelElementTypeDistantRule>();
    return std::make_unique<NUXRelElementTypePositionRule>();
}

void ruleFamily(benchmark::State& state, const char* type) {
    const auto document = randomSite(sizeOf(state));
    const auto evaluator = evaluatorOf(type);
    for ([[maybe_unused]] auto _ : state)
        for (const auto& sharingKey : shippedRules())
            for (const NuxStandardCheckRule& rule : sharingKey)
                if (rule.type == QLatin1String(type))
                    benchmark::DoNotOptimize(evaluator->check(document->GetModelSpace(), rule));
}

void bareWalkOfFamily(benchmark::State& state, const char* type) {
    const auto document = randomSite(sizeOf(state));
    for ([[maybe_unused]] auto _ : state)
        for (const auto& sharingKey : shippedRules())
            for (const NuxStandardCheckRule& rule : sharingKey)
                if (rule.type == QLatin1String(type))
                    benchmark::DoNotOptimize(bareWalk(*document->GetModelSpace(), rule));
}

void sizes(benchmark::internal::Benchmark* bench) {
    for (const int size : {100, 300, 1000, 3000, 10000})
        bench->Arg(size);
    bench->Unit(benchmark::kMillisecond);
}

void oneSize(benchmark::internal::Benchmark* bench) {
    bench->Arg(1000)->Unit(benchmark::kMicrosecond);
}

BENCHMARK(wholeCheck)->Apply(sizes);
BENCHMARK(recordedCheck)->Apply(sizes);
BENCHMARK(bareWalkOfAllRules)->Apply(sizes);
BENCHMARK_CAPTURE(ruleFamily, self, "self")->Apply(oneSize);
BENCHMARK_CAPTURE(bareWalkOfFamily, self, "self")->Apply(oneSize);
BENCHMARK_CAPTURE(ruleFamily, without, "without")->Apply(oneSize);
BENCHMARK_CAPTURE(bareWalkOfFamily, without, "without")->Apply(oneSize);
BENCHMARK_CAPTURE(ruleFamily, distant, "distant")->Apply(oneSize);
BENCHMARK_CAPTURE(bareWalkOfFamily, distant, "distant")->Apply(oneSize);
BENCHMARK_CAPTURE(ruleFamily, position, "position")->Apply(oneSize);
BENCHMARK_CAPTURE(bareWalkOfFamily, position, "position")->Apply(oneSize);

} // namespace
