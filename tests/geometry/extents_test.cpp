#include "sampled_solids.h"

#include <gtest/gtest.h>

using namespace outlines;
using namespace sampled;

namespace {

/// The box holds every sample, and every side of it comes within the sampling step of one.
void expectTight(const hrx::CBody& body, const std::function<Point(double, double, double)>& pointAt,
                 double slack) {
    hrx::CExtents3 samples;
    for (int i = 0; i <= 200; ++i)
        for (int j = 0; j <= 1; ++j)
            for (int k = 0; k <= 200; ++k)
                samples.add(pointAt(i / 200.0, j, k / 200.0));
    const hrx::CExtents3 extents = body.GetExtents();
    for (double Point::*axis : {&Point::x, &Point::y, &Point::z}) {
        EXPECT_LE(extents.low.*axis, samples.low.*axis + 1e-6);
        EXPECT_GE(extents.high.*axis, samples.high.*axis - 1e-6);
        EXPECT_NEAR(extents.low.*axis, samples.low.*axis, slack);
        EXPECT_NEAR(extents.high.*axis, samples.high.*axis, slack);
    }
}

} // namespace

TEST(Extents, areThoseOfTheGeometry) {
    Random random(17);
    for (int i = 0; i < 21 && !HasFailure(); ++i) {
        SCOPED_TRACE(i);
        const Frame frame = i % 3 == 0 ? Frame() : randomFrame(random, {1e6, -2e6, 3000});
        const double radius = random.between(500, 3000);
        const double sweep = random.between(0.2, 6.2);
        const Solid bent = tube(frame, 8000, sweep, radius);
        expectTight(*bent.body, bent.pointAt, 5);
        const Solid leaning = cylinder(frame.toWorld({0, 0, 0}), frame.toWorld({4000, 300, 5000}), radius);
        expectTight(*leaning.body, leaning.pointAt, 5);
        const Body bend = raised({arcStrip(6000, 9000, sweep)}, -2000, frame);
        expectTight(
            *bend,
            [&](double u, double v, double w) {
                const double outward = v > 0 ? 9000 : 6000;
                return frame.toWorld(
                    {outward * std::cos(u * sweep), outward * std::sin(u * sweep), w > 0.5 ? -2000.0 : 0.0});
            },
            5);
    }
}

TEST(Extents, areExactOnTheAxes) {
    const hrx::CExtents3 road = raised({arcStrip(6000, 9000, kPi)}, 4000)->GetExtents();
    EXPECT_NEAR(road.low.x, -9000, 1e-9);
    EXPECT_NEAR(road.high.y, 9000, 1e-9);
    EXPECT_EQ(road.low.z, 0.0);
    EXPECT_EQ(road.high.z, 4000.0);
    const hrx::CExtents3 cable = cylinder({0, 0, 5000}, {8000, 0, 5000}, 20).body->GetExtents();
    EXPECT_NEAR(cable.low.z, 4980, 1e-9);
    EXPECT_NEAR(cable.high.y, 20, 1e-9);
    EXPECT_NEAR(cable.high.x, 8000, 1e-9);
    EXPECT_TRUE(raised({})->GetExtents().isEmpty());
}
