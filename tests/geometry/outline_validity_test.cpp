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

struct Case {
    const char* name;
    std::vector<std::vector<hrx::Edge2d>> loops;
    int failingCheck; ///< -1: passes all five
    bool strictlyValid;
};

std::vector<hrx::Edge2d> loop(const Loop& points) {
    const hrx::CCoedgeList list(points);
    return {list.edges().begin(), list.edges().end()};
}

const std::vector<Case>& cases() {
    static const std::vector<Case> table = {
        {"rectangle", {loop(rectangle(400, 200))}, -1, true},
        {"clockwise", {loop({{0, 0, 0}, {0, 10, 0}, {10, 0, 0}})}, -1, true},
        {"circle", {loop(circle(5))}, -1, true},
        {"ring", {loop(circle(5)), loop({{-3, 0, -1}, {3, 0, -1}})}, -1, true},
        {"there and back", {loop({{0, 0, 0}, {3000, 4000, 0}})}, -1, false},
        {"spike along an edge", {loop({{0, 0, 0}, {10, 0, 0}, {5, 0, 0}, {5, 8, 0}})}, -1, true},
        {"corner on an edge", {loop({{0, 0, 0}, {10, 0, 0}, {10, 9, 0}, {5, 0, 0}, {0, 9, 0}})}, -1, true},
        {"no loop", {}, 0, false},
        {"loop without edges", {loop(rectangle(400, 200)), {}}, 0, false},
        {"one edge", {{{{0, 0}, {0, 0}, 0}}}, 0, false},
        {"not a number", {loop({{0, 0, 0}, {kNaN, 0, 0}, {0, 9, 0}})}, 1, false},
        {"endless bulge", {loop({{0, 0, 0}, {9, 0, kInfinity}, {0, 9, 0}})}, 1, false},
        {"open", {{{{0, 0}, {9, 0}, 0}, {{9, 0}, {9, 9}, 0}, {{9, 9}, {0, 1}, 0}}}, 2, false},
        {"backwards edge", {{{{0, 0}, {9, 0}, 0}, {{9, 9}, {9, 0}, 0}, {{9, 9}, {0, 0}, 0}}}, 2, false},
        {"point twice", {loop({{0, 0, 0}, {9, 0, 0}, {9, 0, 0.5}, {0, 9, 0}})}, 3, false},
        {"bow tie", {loop({{0, 0, 0}, {9, 9, 0}, {9, 0, 0}, {0, 9, 0}})}, 4, false},
        {"arc through an edge", {loop({{0, 0, 0}, {20, 0, 0}, {20, 3, 1}, {0, 3, 0}})}, -1, true},
        {"arc bulging inwards through an edge",
         {loop({{0, 0, 0}, {20, 0, 0}, {20, 3, -1}, {0, 3, 0}})},
         4,
         false},
        {"three-quarter arc through an edge", {loop({{0, 0, 2.5}, {4, 0, 0}, {2, -9, 0}})}, 4, false},
        {"hole across the boundary", {loop(rectangle(400, 200)), loop(circle(150))}, 4, false},
    };
    return table;
}

PolygonRef built(const std::vector<std::vector<hrx::Edge2d>>& loops, double angle, double away) {
    PolygonRef outline(new CPolygon);
    const auto moved = [&](const CVec2<double>& p) {
        return CVec2<double>(p.x * std::cos(angle) - p.y * std::sin(angle) + away,
                             p.x * std::sin(angle) + p.y * std::cos(angle));
    };
    for (const auto& edges : loops) {
        std::vector<hrx::Edge2d> movedEdges;
        for (const hrx::Edge2d& edge : edges)
            movedEdges.push_back({moved(edge.start), moved(edge.end), edge.bulge});
        outline->addLoop(hrx::CCoedgeList(movedEdges));
    }
    return outline;
}

} // namespace

TEST(OutlineValidity, failsTheOneCheckThatIsViolated) {
    for (const Case& outline : cases())
        for (const double angle : {0.0, 36.87 * kPi / 180, 4.0}) {
            SCOPED_TRACE(outline.name);
            const PolygonRef polygon = built(outline.loops, angle, angle * 1e5);
            for (int check = 0; check < 5; ++check) {
                std::ostringstream log;
                const bool passes = polygon->IsValid(1u << check, &log);
                if (check <= outline.failingCheck || outline.failingCheck < 0) {
                    EXPECT_EQ(passes, check != outline.failingCheck) << "check " << check;
                    EXPECT_EQ(log.str().empty(), passes);
                }
            }
            EXPECT_EQ(NUXCalcFunc::IsNuxStrictlyValid(polygon.get(), true), outline.strictlyValid);
            EXPECT_EQ(
                NUXCalcFunc::IsNuxStrictlyBodyValid(
                    std::make_unique<hrx::CExtrudedBody>(hrx::CCoord3<double>(), -2.0, polygon.get(), true)
                        .get()),
                outline.strictlyValid);
        }
    EXPECT_FALSE(NUXCalcFunc::IsNuxStrictlyValid(nullptr, true));
    EXPECT_FALSE(NUXCalcFunc::IsNuxStrictlyBodyValid(nullptr));
}

TEST(BodyValidity, needsAPositiveHeightAndRadius) {
    EXPECT_FALSE(raised({rectangle(400, 200)}, 0.0)->isStrictlyValid());
    EXPECT_FALSE(raised({rectangle(400, 200)}, kNaN)->isStrictlyValid());
    EXPECT_FALSE(hrx::CExtrudedBody(hrx::CCoord3<double>(), 1.0, nullptr, true).IsValid(0x1f, nullptr));
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
    const CVec2<double> nowhere;
    for (const Road& road :
         {Road{"quarter left",
               {10000, 0},
               {0, 10000},
               {7071.067811865475, 7071.067811865475},
               4000,
               kPi / 2 * 1e4 * 4000},
          Road{"quarter right",
               {0, 10000},
               {10000, 0},
               {7071.067811865475, 7071.067811865475},
               4000,
               kPi / 2 * 1e4 * 4000},
          Road{"three quarters", {10000, 0}, {0, -10000}, {-10000, 0}, 4000, 1.5 * kPi * 1e4 * 4000},
          Road{"wider than its bend",
               {0, 1000},
               {1000, 0},
               {707.1067811865476, 707.1067811865476},
               4000,
               kPi / 4 * 9e6},
          Road{"through on the line", {0, 0}, {10000, 0}, {5000, 0}, 4000, 0},
          Road{"through an end", {0, 0}, {10000, 0}, {10000, 0}, 4000, 0},
          Road{"no width", {10000, 0}, {0, 10000}, {7000, 7000}, 0, 0},
          Road{"not finite", {kNaN, 0}, {0, 1}, nowhere, 4000, 0}}) {
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
