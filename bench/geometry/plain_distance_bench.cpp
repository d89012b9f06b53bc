#include "geometry/plan/plan_distance.h"
#include "workloads.h"

#include <memory>

// The same plans by the closed forms over every pair of edges, without the boxes and bounds that spare most.

using namespace workloads;

namespace {

struct Free {
    void operator()(hrx::CPolygon* polygon) const { polygon->Free(); }
};
using Outline = std::unique_ptr<hrx::CPolygon, Free>;

double plainDistance(const Loop& first, const Loop& second) {
    const Outline a(new hrx::CPolygon(first));
    const Outline b(new hrx::CPolygon(second));
    if (hrx::plan::contains(*a, {second[0].x, second[0].y}) ||
        hrx::plan::contains(*b, {first[0].x, first[0].y}))
        return 0.0;
    hrx::plan::PlanContact best;
    for (const hrx::Edge2d& edgeA : a->GetLoop(0)->edges())
        for (const hrx::Edge2d& edgeB : b->GetLoop(0)->edges())
            hrx::plan::nearestOfEdges(edgeA, edgeB, best);
    return std::sqrt(best.squared);
}

template <class First> void runPlain(benchmark::State& state, First first) {
    run(state, made(first, 1), made(house, 2), plainDistance);
}

} // namespace

BENCHMARK_CAPTURE(runPlain, twoRectangles, house)->Name("plain/twoRectangles");
BENCHMARK_CAPTURE(runPlain, twentyGonAndRectangle, twentyGon)->Name("plain/twentyGonAndRectangle");
BENCHMARK_CAPTURE(runPlain, arcRoadAndRectangle, arcRoad)->Name("plain/arcRoadAndRectangle");
