#include "geometry/plan/plan_distance.h"
#include "geos_distance.h"
#include "workloads.h"

#include <algorithm>
#include <cmath>

// The plans of the same pairs, measured with GEOS, building and freeing included; and how often and how far
// that is off by more than the step to which distances are reported.

using namespace workloads;

namespace {

constexpr double kStep = 1e-5;

double exactDistance(const Loop& first, const Loop& second) {
    const hrx::PolygonRef a(new hrx::CPolygon(first));
    const hrx::PolygonRef b(new hrx::CPolygon(second));
    return std::sqrt(hrx::plan::planContact(*a, *b).squared);
}

template <class First> void runGeos(benchmark::State& state, First first) {
    const auto firsts = made(first, 1);
    const auto seconds = made(house, 2);
    run(state, firsts, seconds, [](const Loop& a, const Loop& b) { return geosDistance(a, b); });
    double worst = 0.0;
    int wrong = 0;
    for (std::size_t i = 0; i < kPairs; ++i) {
        const double error =
            std::abs(geosDistance(firsts[i], seconds[i]) - exactDistance(firsts[i], seconds[i]));
        worst = std::max(worst, error);
        wrong += error > kStep ? 1 : 0;
    }
    state.counters["wrongPercent"] = 100.0 * wrong / kPairs;
    state.counters["worstMillimetres"] = worst;
}
Loop tankPlan(Random& random) {
    return circleOf(tank(random));
}

} // namespace

BENCHMARK_CAPTURE(runGeos, twoRectangles, house)->Name("geos/twoRectangles");
BENCHMARK_CAPTURE(runGeos, twentyGonAndRectangle, twentyGon)->Name("geos/twentyGonAndRectangle");
BENCHMARK_CAPTURE(runGeos, arcRoadAndRectangle, arcRoad)->Name("geos/arcRoadAndRectangle");
BENCHMARK_CAPTURE(runGeos, circleAndRectangle, tankPlan)->Name("geos/circleAndRectangle");
