#include "geometry/CExtrudedBody.h"
#include "geometry/CPlane.h"
#include "geometry/CreatePolygon.h"
#include "geometry/GBodyBuilder.h"
#include "geometry/GeometryDistance.h"
#include "reference_distance.h"

#include <benchmark/benchmark.h>

#include <array>
#include <memory>

// One distance between two solids, the building and freeing of both included, over 1000 random pairs that lie
// as elements on a site do. "reference" runs measure the same plans with GEOS, building included, arcs
// stroked to 0.1 mm.

using namespace outlines;

namespace {

constexpr std::size_t kPairs = 1000;

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

Loop placed(Random& random, const Loop& loop) {
    return moved({loop}, random.between(0, 2 * kPi), random.between(0, 60000), random.between(0, 60000))[0];
}
Loop house(Random& random) {
    return placed(random, rectangle(random.between(3000, 15000), random.between(3000, 8000)));
}
Loop twentyGon(Random& random) {
    return placed(random, star(random, 20, 0));
}
Loop arcRoad(Random& random) {
    const double radius = random.between(8000, 30000);
    return placed(random, arcStrip(radius - 2000, radius + 2000, random.between(0.5, 3)));
}

template <class Maker> auto made(Maker maker, unsigned seed) {
    Random random(seed);
    std::vector<decltype(maker(random))> all;
    for (std::size_t i = 0; i < kPairs; ++i)
        all.push_back(maker(random));
    return all;
}

template <class First, class Second, class Measure>
void run(benchmark::State& state, const First& firsts, const Second& seconds, Measure measure) {
    std::size_t i = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(measure(firsts[i], seconds[i]));
        i = i + 1 < kPairs ? i + 1 : 0;
    }
}

/// Straight outlines come as corners, others as points with bulges.
auto cornersOf(Loop (*maker)(Random&)) {
    return [maker](Random& random) { return corners(maker(random)); };
}

struct Cable {
    hrx::CVec3<double> start, end;
    double radius;
};

Cable leaningCable(Random& random) {
    return {{random.between(0, 60000), random.between(0, 60000), random.between(4000, 9000)},
            {random.between(0, 60000), random.between(0, 60000), random.between(4000, 9000)},
            random.between(10, 60)};
}
Cable tank(Random& random) {
    const hrx::CVec3<double> foot(random.between(0, 60000), random.between(0, 60000), 0);
    return {foot, foot + hrx::CVec3<double>(0, 0, 1), random.between(500, 5000)};
}
Body cylinder(const Cable& cable) {
    return Body(hrx::GBodyBuilder(true, true).CylinderBody(cable.start, cable.end, cable.radius));
}
Loop circleOf(const Cable& cable) {
    return moved({circle(cable.radius)}, 0, cable.start.x, cable.start.y)[0];
}

using Plate = std::array<hrx::CVec3<double>, 4>;

Plate standingPlate(Random& random) {
    const hrx::CVec3<double> foot(random.between(0, 60000), random.between(0, 60000),
                                  random.between(2000, 5000));
    const hrx::CVec3<double> along(random.between(-4000, 4000), random.between(-4000, 4000), 0);
    const hrx::CVec3<double> up(0, 0, random.between(1000, 4000));
    return {foot, foot + along, foot + along + up, foot + up};
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

template <class First> void runReference(benchmark::State& state, First first) {
    run(state, made(first, 1), made(house, 2), referenceDistance);
}
void referenceTwoRectangles(benchmark::State& state) {
    runReference(state, house);
}
void referenceTwentyGonAndRectangle(benchmark::State& state) {
    runReference(state, twentyGon);
}
void referenceArcRoadAndRectangle(benchmark::State& state) {
    runReference(state, arcRoad);
}
void referenceCircleAndRectangle(benchmark::State& state) {
    runReference(state, [](Random& random) { return circleOf(tank(random)); });
}

} // namespace

BENCHMARK(twoRectangles);
BENCHMARK(referenceTwoRectangles);
BENCHMARK(twentyGonAndRectangle);
BENCHMARK(referenceTwentyGonAndRectangle);
BENCHMARK(arcRoadAndRectangle);
BENCHMARK(referenceArcRoadAndRectangle);
BENCHMARK(circleAndRectangle);
BENCHMARK(referenceCircleAndRectangle);
BENCHMARK(leaningCylinderAndRectangle);
BENCHMARK(leaningCylinderAndArcRoad);
BENCHMARK(standingPlateAndRectangle);
