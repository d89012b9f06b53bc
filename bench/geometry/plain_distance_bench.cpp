#include "plain_distance.h"
#include "workloads.h"

using namespace workloads;

namespace {

template <class First> void runPlain(benchmark::State& state, First first) {
    run(state, made(first, 1), made(house, 2), plainDistance);
}

} // namespace

BENCHMARK_CAPTURE(runPlain, twoRectangles, house)->Name("plain/twoRectangles");
BENCHMARK_CAPTURE(runPlain, twentyGonAndRectangle, twentyGon)->Name("plain/twentyGonAndRectangle");
BENCHMARK_CAPTURE(runPlain, arcRoadAndRectangle, arcRoad)->Name("plain/arcRoadAndRectangle");
