#include "elements/NUXBuildPolygon.h"
#include "elements/NUXCalcFunc.h"
#include "geometry/CPlane.h"
#include "geometry/CreatePolygon.h"
#include "geometry/GBodyBuilder.h"
#include "measure.h"

#include <gtest/gtest.h>

#include <limits>
#include <sstream>

using namespace outlines;
using hrx::CPolygon;
using hrx::CVec2;
using hrx::PolygonRef;

namespace {

const double kNaN = std::numeric_limits<double>::quiet_NaN();
const double kInfinity = std::numeric_limits<double>::infinity();

} // namespace

TEST(StrictValidity, asksForAHeightAndARadius) {
    EXPECT_FALSE(raised({rectangle(400, 200)}, 0.0)->isStrictlyValid());
    EXPECT_FALSE(raised({rectangle(400, 200)}, kNaN)->isStrictlyValid());
    std::ostringstream log;
    EXPECT_FALSE(hrx::CExtrudedBody(hrx::CCoord3<double>(), 1.0, nullptr, true).IsValid(0x1f, &log));
    EXPECT_EQ(log.str(), "extrusion: no outline\n");
    hrx::GBodyBuilder builder(true, true);
    for (const double radius : {0.0, -5.0, kNaN, kInfinity})
        EXPECT_EQ(builder.CylinderBody({0, 0, 0}, {0, 0, 9}, radius), nullptr);
    EXPECT_EQ(builder.CylinderBody({1, 2, 3}, {1, 2, 3}, 5), nullptr);
}

TEST(ClockSign, tellsTheSenseOfALoopAndWhetherItHasArea) {
    struct Sense {
        Loop loop;
        int sign;
    };
    // The last two have the sense of their arcs, not of their chords.
    for (const Sense& sense : {Sense{rectangle(4, 2), 1}, Sense{{{0, 0, 0}, {3000, 4000, 0}}, 0},
                               Sense{{{0, 0, 0}, {3, 4, 0}, {6, 8, 0}}, 0}, Sense{{{0, 0, 1}, {5, 0, 0}}, 1},
                               Sense{{{0, 0, 0}, {9, 0, -4}, {8, 1, 0}}, -1}}) {
        const hrx::CCoedgeList list(moved({sense.loop}, 0.7, 1e5, -2e5)[0]);
        EXPECT_EQ(list.ClockSign(), sense.sign);
        hrx::CCoedgeList reversed = list;
        reversed.Reverse();
        EXPECT_EQ(reversed.ClockSign(), -sense.sign);
        EXPECT_NEAR(reversed.signedArea(), -list.signedArea(), 1e-3);
    }
    EXPECT_NEAR(hrx::CCoedgeList(circle(1000)).signedArea(), kPi * 1e6, 1e-6);
}

TEST(RoadOutline, isTheStripAroundItsCentreLine) {
    struct Road {
        const char* name;
        CVec2<double> start, end, through;
        double width, area;
    };
    const double diagonal = std::sqrt(0.5);
    const CVec2<double> bend(1e4 * diagonal, 1e4 * diagonal);
    const double quarter = kPi / 2 * 1e4 * 4000;
    for (const Road& road :
         {Road{"quarter left", {10000, 0}, {0, 10000}, bend, 4000, quarter},
          Road{"quarter right", {0, 10000}, {10000, 0}, bend, 4000, quarter},
          Road{"three quarters", {10000, 0}, {0, -10000}, {-10000, 0}, 4000, 3 * quarter},
          Road{"wider than its bend", {0, 1000}, {1000, 0}, bend * 0.1, 4000, kPi / 4 * 9e6},
          Road{"through on the line", {0, 0}, {10000, 0}, {5000, 0}, 4000, 0},
          Road{"through an end", {0, 0}, {10000, 0}, {10000, 0}, 4000, 0},
          Road{"no width", {10000, 0}, {0, 10000}, {7000, 7000}, 0, 0},
          Road{"not finite", {kNaN, 0}, {0, 1}, {}, 4000, 0}}) {
        SCOPED_TRACE(road.name);
        auto* outline = new CPolygon;
        const PolygonRef kept(outline);
        NUXBuildPolygon::buildArcPolygon(outline, road.start, road.end, road.through, road.width, 0.0);
        ASSERT_EQ(outline->LoopCount(), road.area > 0 ? 1u : 0u);
        if (road.area > 0) {
            EXPECT_TRUE(NUXCalcFunc::IsNuxStrictlyValid(outline, true));
            EXPECT_NEAR(outline->GetLoop(0)->signedArea(), road.area, 1e-2);
        }
    }
    auto* straight = new CPolygon;
    const PolygonRef kept(straight);
    NUXBuildPolygon::buildLinePolgonAsTwoPt(straight, {5, 5}, {5, 5}, 4000);
    EXPECT_EQ(straight->LoopCount(), 0u);
    NUXBuildPolygon::buildLinePolgonAsTwoPt(straight, {0, 0}, {3000, 4000}, 4000);
    EXPECT_NEAR(straight->GetLoop(0)->signedArea(), 5000 * 4000, 1e-6);
}

TEST(StandingPlate, isMadeThroughItsCornersAndNotThroughALine) {
    const hrx::CVec3<double> corners[] = {
        {1000, 2000, 3000}, {4000, 6000, 3000}, {4000, 6000, 5000}, {1000, 2000, 5000}};
    hrx::CPlane plane;
    ASSERT_TRUE(plane.CreateByPoints(corners, 4));
    CPolygon* const outline = hrx::CreatePolygon(corners, 4, true, plane);
    const hrx::CExtrudedBody body(plane.GetCoordinate(), 1.0, outline, true);
    EXPECT_TRUE(body.isStrictlyValid());
    const hrx::CExtents3 extents = body.GetExtents();
    EXPECT_NEAR(extents.low.z, 3000, 1e-9);
    EXPECT_NEAR(extents.high.z, 5000, 1e-9);
    EXPECT_NEAR(extents.high.x - extents.low.x, 3000.8, 1e-9);

    const hrx::CVec3<double> flat[] = {corners[0], corners[1], corners[1], corners[0]};
    EXPECT_FALSE(plane.CreateByPoints(flat, 4));
    EXPECT_EQ(hrx::CreatePolygon(corners, 4, false, plane), nullptr);
}
