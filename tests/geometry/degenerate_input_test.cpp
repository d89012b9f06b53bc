#include "geometry/BodyDistance.h"
#include "geometry/CPlaneCurve3d.h"
#include "geometry/GBodyBuilder.h"
#include "sampled_solids.h"

#include <gtest/gtest.h>

#include <limits>

using namespace outlines;

namespace {

/// Numbers that arithmetic stumbles over, among ordinary ones.
double oddNumber(Random& random) {
    static const double odd[] = {0,     -0.0,  1,     -1,           1e-300, 1e-12, 1e-7,  1e-5,
                                 0.5,   500,   6000,  6000.0000001, 1e6,    4e9,   1e12,  1e13,
                                 1e100, 1e300, -1e12, -4e9,         -500,   1e-3,  -1e-9, 1.0 / 3};
    return random.below(3) == 0 ? random.between(-1e4, 1e4)
                                : odd[random.below(static_cast<int>(std::size(odd)))];
}

sampled::Point oddPoint(Random& random) {
    return {oddNumber(random), oddNumber(random), oddNumber(random)};
}

Body oddBody(Random& random) {
    hrx::GBodyBuilder builder(true, true);
    switch (random.below(4)) {
    case 0:
        return Body(builder.CylinderBody(oddPoint(random), oddPoint(random), oddNumber(random)));
    case 1: {
        const Outline section = {circle(oddNumber(random))};
        const hrx::PolygonRef shape(polygon(section));
        return Body(builder.SweepBody(
            shape.get(), hrx::CPlaneCurve3d(oddPoint(random), oddPoint(random), oddPoint(random))));
    }
    default: {
        Outline outline(static_cast<std::size_t>(random.below(3)));
        for (Loop& loop : outline)
            for (int corner = random.below(6); corner > 0; --corner)
                loop.push_back(
                    {oddNumber(random), oddNumber(random), random.below(2) ? 0.0 : oddNumber(random)});
        const sampled::Frame upright({oddNumber(random), 0, 0}, {1, 0, 0}, {0, 1, 0}, {0, 0, 1});
        return raised(outline, oddNumber(random),
                      random.below(2) ? upright : sampled::randomFrame(random, {0, 0, 0}));
    }
    }
}

bool isNearby(const hrx::CBody& body) {
    const hrx::CExtents3 extents = body.GetExtents();
    return length(extents.low) < 1e7 && length(extents.high) < 1e7;
}

} // namespace

TEST(DegenerateInput, finiteBodiesMeasureANumberOrTheNoDistanceMark) {
    Random random(23);
    int measuredPairs = 0;
    for (int i = 0; i < 20000; ++i) {
        const Body a = oddBody(random);
        const Body b = oddBody(random);
        hrx::CVec3<double> onA(1, 2, 3);
        hrx::CVec3<double> onB(4, 5, 6);
        const double distance = hrx::GeometryDistance(a.get(), b.get(), onA, onB, 0.1);
        ASSERT_GE(distance, 0.0) << i;
        if (distance == 1e100) {
            ASSERT_EQ(onA, hrx::CVec3<double>(1, 2, 3)) << i;
            continue;
        }
        ++measuredPairs;
        ASSERT_LE(distance, 1e13) << i;
        // Where a double still resolves the place, the order of the arguments does not show.
        if (isNearby(*a) && isNearby(*b)) {
            ASSERT_NEAR(measured(*b, *a), distance, 1e-3) << i;
        }
    }
    EXPECT_GT(measuredPairs, 500);
}

TEST(DegenerateInput, whatHasNoPointsIsNotMeasured) {
    const Body house = raised({rectangle(1000, 1000)});
    const double nan = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(measured(*house, *raised({})), 1e100);
    EXPECT_EQ(measured(*raised({{}}), *house), 1e100);
    EXPECT_EQ(measured(*house, *raised({{{0, 0, 0}, {nan, 0, 0}, {0, 1, 0}}})), 1e100);
    EXPECT_EQ(measured(*house, *raised({rectangle(1, 1)}, nan)), 1e100);
    EXPECT_EQ(measured(*house, hrx::CExtrudedBody(hrx::CCoord3<double>(), 1.0, nullptr, true)), 1e100);
    hrx::CVec3<double> onA;
    hrx::CVec3<double> onB;
    EXPECT_EQ(hrx::BodyDistance(house.get(), nullptr, onA, onB, 0.1), 1e100);
}

TEST(DegenerateInput, sheetsAreSolidsWithoutThickness) {
    const Body poster = raised({{{0, 0, 0}, {3000, 4000, 0}}}, 2000);
    EXPECT_EQ(measured(*poster, *raised({moved({rectangle(2000, 2000)}, 0, 7000, 4000)[0]})), 3000.0);
    const Body slab = raised({rectangle(9000, 9000)}, 0.0);
    sampled::Frame above;
    above.origin.z = 5000;
    EXPECT_EQ(measured(*slab, *raised({rectangle(100, 100)}, -1000.0, above)), 4000.0);
    EXPECT_EQ(measured(*slab, *slab), 0.0);
}
