#include "geos_distance.h"
#include "workloads.h"

// The plans of the same pairs, measured with GEOS, building and freeing included.

using namespace workloads;

namespace {

template <class First> void runGeos(benchmark::State& state, First first) {
    run(state, made(first, 1), made(house, 2),
        [](const Loop& a, const Loop& b) { return geosDistance(a, b); });
}
Loop tankPlan(Random& random) {
    return circleOf(tank(random));
}

} // namespace

BENCHMARK_CAPTURE(runGeos, twoRectangles, house)->Name("geos/twoRectangles");
BENCHMARK_CAPTURE(runGeos, twentyGonAndRectangle, twentyGon)->Name("geos/twentyGonAndRectangle");
BENCHMARK_CAPTURE(runGeos, arcRoadAndRectangle, arcRoad)->Name("geos/arcRoadAndRectangle");
BENCHMARK_CAPTURE(runGeos, circleAndRectangle, tankPlan)->Name("geos/circleAndRectangle");
