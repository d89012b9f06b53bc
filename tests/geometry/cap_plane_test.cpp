// Solids whose lower edge lies in the plane of a clearance's cap, beside an arc of its outline: posters, jibs
// and cables that come down to just the headroom of a road.

#include "geometry/CExtrudedBody.h"
#include "geometry/CPlaneCurve3d.h"
#include "geometry/GBodyBuilder.h"
#include "measure.h"
#include "random_outlines.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

using Point = hrx::CVec3<double>;
using PlanPoint = hrx::CVec2<double>;
using outlines::Random;

constexpr double kCap = 4000.0;

/// A road along an arc, and a place near its outer or inner edge: off the arc by the gap, outwards.
struct Scene {
    Body clearance;
    PlanPoint place;
    PlanPoint outward;
};

Body raised(const std::vector<hrx::PolyPt2d>& points, double from, double height) {
    hrx::CCoord3<double> frame;
    frame.origin.z = from;
    return Body(new hrx::CExtrudedBody(frame, height, new hrx::CPolygon(points), true));
}

PlanPoint atAngle(const PlanPoint& centre, double radius, double angle) {
    return {centre.x + radius * std::cos(angle), centre.y + radius * std::sin(angle)};
}

Scene randomScene(Random& random, double gap) {
    const PlanPoint centre{random.between(-30000, 30000), random.between(-30000, 30000)};
    const double inner = random.between(4000, 40000);
    const double outer = inner + random.between(2000, 8000);
    const double start = random.between(-3, 3);
    const double sweep = random.between(0.3, 2.8);
    const double bulge = std::tan(0.25 * sweep);
    const auto corner = [&](double radius, double angle, double edgeBulge) {
        const PlanPoint point = atAngle(centre, radius, angle);
        return hrx::PolyPt2d{point.x, point.y, edgeBulge};
    };
    Scene scene;
    scene.clearance = raised({corner(outer, start, bulge), corner(outer, start + sweep, 0.0),
                              corner(inner, start + sweep, -bulge), corner(inner, start, 0.0)},
                             0.0, kCap);
    const bool isOuter = random.below(2) == 0;
    const double angle = start + random.between(0.1, 0.9) * sweep;
    scene.place = atAngle(centre, isOuter ? outer + gap : inner - gap, angle);
    const double sign = isOuter ? 1.0 : -1.0;
    scene.outward = {sign * std::cos(angle), sign * std::sin(angle)};
    return scene;
}

/// How a plate rises from its lower edge: the cosine and sine of its inclination.
struct Rise {
    double level;
    double up;
};
constexpr Rise kRises[] = {{0.96, 0.28}, {0.6, 0.8}, {0.0, 1.0}};

/// A plate 1 mm thick over an edge of its lower side, which starts at the place and leads away from the road.
Body plateOverEdge(const PlanPoint& from, const PlanPoint& along, double size, const Rise& rise) {
    const Point x(along.x, along.y, 0.0);
    const Point y(-along.y * rise.level, along.x * rise.level, rise.up);
    const Point z(along.y * rise.up, -along.x * rise.up, rise.level);
    const hrx::CCoord3<double> frame({from.x, from.y, kCap}, x, y, z);
    const std::vector<PlanPoint> corners{{0, 0}, {size, 0}, {size, 2000}, {0, 2000}};
    return Body(new hrx::CExtrudedBody(frame, 1.0, new hrx::CPolygon(corners), true));
}

/// A cable that leans away from the road, the lowest point of its lower end at the place; straight, or
/// bending sideways as it rises.
Body cableOverPoint(const PlanPoint& place, const PlanPoint& outward, double radius, double lean,
                    bool bends) {
    const Point axis(outward.x * std::sin(lean), outward.y * std::sin(lean), std::cos(lean));
    const Point toLowest(outward.x * std::cos(lean), outward.y * std::cos(lean), -std::sin(lean));
    const Point bottom = Point(place.x, place.y, kCap) - toLowest * radius;
    hrx::GBodyBuilder builder(true, true);
    if (!bends)
        return Body(builder.CylinderBody(bottom, bottom + axis * 5000.0, radius));
    const auto onBend = [&](double angle) {
        const Point aside(-outward.y, outward.x, 0.0);
        return bottom + axis * (8000.0 * std::sin(angle)) + aside * (8000.0 * (1.0 - std::cos(angle)));
    };
    const hrx::PolygonRef section(outlines::polygon({outlines::circle(radius)}));
    return Body(builder.SweepBody(section.get(), {bottom, onBend(0.6), onBend(0.3)}));
}

TEST(SolidsOnTheCap, AreNoFartherThanTheirLowerEdgeIsFromTheArc) {
    Random random(5);
    for (int i = 0; i < 1500; ++i) {
        SCOPED_TRACE(i);
        const double gap = random.below(3) == 0 ? 0.0 : random.between(0.0, 0.004);
        const Scene scene = randomScene(random, gap);
        // The lowest edge runs straight away from the arc's centre, so that its start is nearest.
        const PlanPoint& away = scene.outward;
        const PlanPoint end{scene.place.x + 3000.0 * away.x, scene.place.y + 3000.0 * away.y};
        const Body edge = raised({{scene.place.x, scene.place.y, 0.0}, {end.x, end.y, 0.0}}, kCap, 2000.0);
        const double exact = measured(*scene.clearance, *edge);
        EXPECT_NEAR(exact, gap, 1.1e-5);
        for (const Rise& rise : kRises) {
            const Body plate = plateOverEdge(scene.place, away, 3000.0, rise);
            EXPECT_LE(measured(*scene.clearance, *plate), exact + 1e-5) << rise.up;
            EXPECT_LE(measured(*plate, *scene.clearance), exact + 1e-5) << rise.up;
        }
        for (const bool bends : {false, true}) {
            const Body cable =
                cableOverPoint(scene.place, away, random.between(10, 500), random.between(0.1, 1.2), bends);
            EXPECT_LE(measured(*scene.clearance, *cable), gap + 1e-5) << bends;
        }
    }
}

} // namespace
