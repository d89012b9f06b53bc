#include "plain_distance.h"

#include "geometry/plan/plan_distance.h"

#include <cmath>
#include <memory>

namespace {

struct Free {
    void operator()(hrx::CPolygon* polygon) const { polygon->Free(); }
};
using Outline = std::unique_ptr<hrx::CPolygon, Free>;

} // namespace

double plainDistance(const outlines::Loop& first, const outlines::Loop& second) {
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
