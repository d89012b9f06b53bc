#include "geometry/CExtrudedBody.h"
#include "geometry/CPlane.h"
#include "geometry/CreatePolygon.h"
#include "geometry/GBodyBuilder.h"
#include "geometry/GeometryDistance.h"
#include "workloads.h"

#include <memory>

// One distance between two solids, the building and freeing of both included.

using namespace workloads;

namespace {

using Body = std::unique_ptr<hrx::CBody>;

double distance(const Body& a, const Body& b) {
    hrx::CVec3<double> onA;
    hrx::CVec3<double> onB;
    return hrx::GeometryDistance(a.get(), b.get(), onA, onB, 0.1);
}

template <class Points> Body upright(const Points& points, double height = 1.0) {
    auto* const outline = new hrx::CPolygon(points);
    Body body = std::make_unique<hrx::CExtrudedBody>(hrx::CCoord3<double>(), height, outline, true);
    outline->Free();
    return body;
}

std::vector<hrx::CVec2<double>> corners(const Loop& loop) {
    std::vector<hrx::CVec2<double>> points;
    for (const hrx::PolyPt2d& point : loop)
        points.emplace_back(point.x, point.y);
    return points;
}

/// Straight outlines come as corners, others as points with bulges.
auto cornersOf(Loop (*maker)(Random&)) {
    return [maker](Random& random) { return corners(maker(random)); };
}

Body cylinder(const Cable& cable) {
    return Body(hrx::GBodyBuilder(true, true).CylinderBody(cable.start, cable.end, cable.radius));
}
Body plate(const Plate& points) {
    hrx::CPlane plane;
    plane.CreateByPoints(points.data(), 4);
    auto* const outline = hrx::CreatePolygon(points.data(), 4, true, plane);
    return std::make_unique<hrx::CExtrudedBody>(plane.GetCoordinate(), 1.0, outline, true);
}

void twoRectangles(benchmark::State& state) {
    run(state, made(cornersOf(house), 1), made(cornersOf(house), 2),
        [](const auto& a, const auto& b) { return distance(upright(a), upright(b)); });
}
void twentyGonAndRectangle(benchmark::State& state) {
    run(state, made(cornersOf(twentyGon), 1), made(cornersOf(house), 2),
        [](const auto& a, const auto& b) { return distance(upright(a), upright(b)); });
}
void arcRoadAndRectangle(benchmark::State& state) {
    run(state, made(arcRoad, 1), made(cornersOf(house), 2),
        [](const auto& a, const auto& b) { return distance(upright(a), upright(b)); });
}
void circleAndRectangle(benchmark::State& state) {
    run(state, made(tank, 1), made(cornersOf(house), 2),
        [](const auto& a, const auto& b) { return distance(cylinder(a), upright(b)); });
}
void leaningCylinderAndRectangle(benchmark::State& state) {
    run(state, made(leaningCable, 1), made(cornersOf(house), 2),
        [](const auto& a, const auto& b) { return distance(cylinder(a), upright(b, 4000.0)); });
}
void leaningCylinderAndArcRoad(benchmark::State& state) {
    run(state, made(leaningCable, 1), made(arcRoad, 2),
        [](const auto& a, const auto& b) { return distance(cylinder(a), upright(b, 4000.0)); });
}
void standingPlateAndRectangle(benchmark::State& state) {
    run(state, made(standingPlate, 1), made(cornersOf(house), 2),
        [](const auto& a, const auto& b) { return distance(plate(a), upright(b, 4000.0)); });
}

} // namespace

BENCHMARK(twoRectangles);
BENCHMARK(twentyGonAndRectangle);
BENCHMARK(arcRoadAndRectangle);
BENCHMARK(circleAndRectangle);
BENCHMARK(leaningCylinderAndRectangle);
BENCHMARK(leaningCylinderAndArcRoad);
BENCHMARK(standingPlateAndRectangle);
