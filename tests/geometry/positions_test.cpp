#include "Placing.h"
#include "geometry/CArc2d.h"
#include "geometry/CLine2d.h"
#include "geometry/CPositionJudge.h"
#include "measure.h"

#include <gtest/gtest.h>

#include <limits>
#include <memory>

using namespace hrx;
using namespace outlines;

namespace {

using Point = CVec2<double>;

constexpr auto kShare = PolygonsShareBoundary;
constexpr auto kApart = PolygonsApart;
constexpr auto kInside = FirstInsideSecond;
constexpr auto kCrosses = CurveSharesBoundary;
constexpr auto kWithin = CurveInside;
constexpr auto kOutside = CurveOutside;

Loop box(double x1, double y1, double x2, double y2) {
    return {{x1, y1, 0.0}, {x2, y1, 0.0}, {x2, y2, 0.0}, {x1, y2, 0.0}};
}
Loop disc(double x, double y, double radius) {
    return moved({circle(radius)}, 0.0, x, y)[0];
}

/// The usual placings, and a turn by every 7 degrees at several distances.
std::vector<Placing> manyPlacings() {
    std::vector<Placing> placings(std::begin(kPlacings), std::end(kPlacings));
    for (int degrees = 0; degrees < 360; degrees += 7)
        placings.push_back({degrees + 0.13, {degrees * 1e4, -degrees * 3e5}});
    return placings;
}

const struct {
    const char* name;
    Outline first;
    Outline second;
    EnPolygonPolygonPosition position;
} kPolygonCases[] = {
    {"crossing", {box(0, 0, 10, 10)}, {box(5, 5, 15, 15)}, kShare},
    {"a cross", {box(0, 4, 10, 6)}, {box(4, 0, 6, 10)}, kShare},
    {"roads end to end", {box(0, 0, 6000, 4000)}, {box(6000, 0, 9000, 4000)}, kShare},
    {"touching at a corner", {box(0, 0, 10, 10)}, {box(10, 10, 20, 20)}, kShare},
    {"corner on edge", {box(0, 0, 10, 10)}, {{{10, 3, 0}, {14, 1, 0}, {14, 6, 0}}}, kShare},
    {"the same", {box(0, 0, 10, 10)}, {box(0, 0, 10, 10)}, kShare},
    {"inside, touching an edge", {box(0, 0, 10, 10)}, {box(0, 3, 5, 6)}, kShare},
    {"apart by less than is measured", {box(0, 0, 10, 10)}, {box(10.000002, 0, 20, 10)}, kShare},
    {"a hair apart", {box(0, 0, 10, 10)}, {box(10.0001, 0, 20, 10)}, kApart},
    {"apart", {box(0, 0, 10, 10)}, {box(5000, 0, 6000, 10)}, kApart},
    {"boxes overlap", {{{0, 0, 0}, {10, 0, 0}, {0, 10, 0}}}, {{{10, 10, 0}, {6, 10, 0}, {10, 6, 0}}}, kApart},
    {"inside", {box(3, 3, 5, 5)}, {box(0, 0, 10, 10)}, kInside},
    {"inside by a hair", {box(0.0001, 0.0001, 9.9999, 9.9999)}, {box(0, 0, 10, 10)}, kInside},
    {"circle in its square", {disc(5, 5, 5)}, {box(0, 0, 10, 10)}, kShare},
    {"smaller circle in the square", {disc(5, 5, 4.999)}, {box(0, 0, 10, 10)}, kInside},
    {"circles touching", {disc(0, 0, 5000)}, {disc(8000, 0, 3000)}, kShare},
    {"circles touching from within", {disc(0, 0, 5000)}, {disc(2000, 0, 3000)}, kShare},
    {"circle in circle", {disc(1000, 0, 3000)}, {disc(0, 0, 5000)}, kInside},
    {"circle by the corner of a square", {disc(-0.708, -0.708, 1)}, {box(0, 0, 10, 10)}, kApart},
    {"circle on the corner of a square", {disc(-0.6, -0.8, 1)}, {box(0, 0, 10, 10)}, kShare},
    {"square in the bend of an arc road", {box(-2, 1, 2, 4)}, {arcStrip(8, 10, kPi)}, kApart},
    {"square on an arc road", {box(-0.5, 8.5, 0.5, 9.5)}, {arcStrip(8, 10, kPi)}, kInside},
    {"arc roads side by side", {arcStrip(8, 10, kPi)}, {arcStrip(10, 12, kPi)}, kShare},
    {"arc road continued", {arcStrip(8000, 12000, kPi)}, {box(8000, -9000, 12000, 0)}, kShare},
    {"in a hole", {box(4, 4, 6, 6)}, {box(0, 0, 10, 10), box(2, 2, 8, 8)}, kApart},
    {"touching the hole's edge", {box(2, 4, 6, 6)}, {box(0, 0, 10, 10), box(2, 2, 8, 8)}, kShare},
    {"beside a hole", {box(0.5, 0.5, 1.5, 1.5)}, {box(0, 0, 10, 10), box(2, 2, 8, 8)}, kInside},
    {"no points", {}, {box(0, 0, 10, 10)}, kApart},
};

EnPolygonPolygonPosition swapped(EnPolygonPolygonPosition position) {
    if (position == FirstInsideSecond)
        return SecondInsideFirst;
    return position == SecondInsideFirst ? FirstInsideSecond : position;
}

TEST(PolygonPosition, isTheSameHoweverPlacedAndInEitherOrder) {
    const CPositionJudge judge;
    for (const auto& row : kPolygonCases) {
        for (const Placing& placing : manyPlacings()) {
            SCOPED_TRACE(std::string(row.name) + " turned by " + std::to_string(placing.degrees));
            const PolygonRef first = placed(row.first, placing);
            const PolygonRef second = placed(row.second, placing);
            const PolygonRef reversed = placed(row.second, placing);
            reversed->Reverse();
            EXPECT_EQ(judge.GetPolygonPosition(first.get(), second.get()), row.position);
            EXPECT_EQ(judge.GetPolygonPosition(second.get(), first.get()), swapped(row.position));
            EXPECT_EQ(judge.GetPolygonPosition(first.get(), reversed.get()), row.position);
        }
    }
}

/// A straight cable from start to end, or one along the arc through the third point.
struct Cable {
    Point start;
    Point end;
    bool straight = true;
    Point through = {};
};

std::unique_ptr<CCurve2d> placed(const Cable& cable, const Placing& placing) {
    const Point start = placing(cable.start.x, cable.start.y);
    const Point end = placing(cable.end.x, cable.end.y);
    if (cable.straight)
        return std::make_unique<CLine2d>(start, end);
    return std::make_unique<CArc2d>(start, end, placing(cable.through.x, cable.through.y));
}

TEST(CurvePosition, isTheSameHoweverPlacedAndFromEitherEnd) {
    const Outline square = {box(0, 0, 10, 10)};
    const Outline frame = {box(0, 0, 10, 10), box(2, 2, 8, 8)};
    const struct {
        const char* name;
        Cable cable;
        Outline area;
        EnCurvePolygonPosition position;
    } cases[] = {
        {"across", {{-5, 5}, {15, 5}}, square, kCrosses},
        {"ending inside", {{-5, 5}, {5, 5}}, square, kCrosses},
        {"ending on the edge", {{-5, 5}, {0, 5}}, square, kCrosses},
        {"along an edge and on", {{-5, 10}, {5, 10}}, square, kCrosses},
        {"past a corner", {{-5, 5}, {5, 15}}, square, kCrosses},
        {"inside", {{1, 1}, {9, 8}}, square, kWithin},
        {"outside", {{-5, 20}, {15, 20}}, square, kOutside},
        {"in a hole", {{3, 3}, {7, 7}}, frame, kOutside},
        {"between hole and outline", {{1, 1}, {1, 9}}, frame, kWithin},
        {"arc over an edge", {{-5, 12}, {15, 12}, false, {5, 9}}, square, kCrosses},
        {"arc touching an edge", {{-5, 15}, {15, 15}, false, {5, 10}}, square, kCrosses},
        {"arc around", {{-5, -1}, {15, -1}, false, {5, 20}}, square, kOutside},
        {"arc inside, over a half circle", {{5, 2}, {2, 5}, false, {7.12132, 7.12132}}, square, kWithin},
        {"arc in a circle along it", {{3, 4}, {-3, 4}, false, {0, 5}}, {disc(0, 0, 5)}, kCrosses},
        {"arc in a circle", {{3, 4}, {-3, 4}, false, {0, 5}}, {disc(0, 0, 5.001)}, kWithin},
        {"area without points", {{1, 1}, {9, 8}}, {}, kOutside},
        {"line without length", {{5, 5}, {5, 5}}, square, kOutside},
        {"arc that its points do not fix", {{1, 1}, {9, 9}, false, {5, 5}}, square, kOutside},
    };
    const CPositionJudge judge;
    for (const auto& row : cases) {
        for (const Placing& placing : manyPlacings()) {
            SCOPED_TRACE(std::string(row.name) + " turned by " + std::to_string(placing.degrees));
            const Cable back{row.cable.end, row.cable.start, row.cable.straight, row.cable.through};
            const PolygonRef area = placed(row.area, placing);
            EXPECT_EQ(judge.GetCurvePolygonPosition(placed(row.cable, placing).get(), area.get()),
                      row.position);
            EXPECT_EQ(judge.GetCurvePolygonPosition(placed(back, placing).get(), area.get()), row.position);
        }
    }
}

TEST(Positions, nothingToJudgeIsApart) {
    const CPositionJudge judge;
    const double infinite = std::numeric_limits<double>::infinity();
    const PolygonRef square = placed({box(0, 0, 10, 10)}, kPlacings[0]);
    const PolygonRef endless = placed({box(-infinite, 2, infinite, 8)}, kPlacings[0]);
    const PolygonRef nowhere = placed({box(5, std::nan(""), 6, 6)}, kPlacings[0]);
    const PolygonRef beyond = placed({box(1e200, 2, 1e300, 8)}, kPlacings[0]);
    const CLine2d line(Point(-5, 5), Point(15, 5));
    for (const CPolygon* other :
         {static_cast<CPolygon*>(nullptr), endless.get(), nowhere.get(), beyond.get()}) {
        EXPECT_EQ(judge.GetPolygonPosition(square.get(), other), PolygonsApart);
        EXPECT_EQ(judge.GetPolygonPosition(other, square.get()), PolygonsApart);
        EXPECT_EQ(judge.GetCurvePolygonPosition(&line, other), kOutside);
    }
    EXPECT_EQ(judge.GetCurvePolygonPosition(nullptr, square.get()), kOutside);
}

/// Told by distances: from the other outline, and from all that lies around it.
EnPolygonPolygonPosition positionByDistance(const Outline& first, const Outline& second) {
    const Loop world = rectangle(1e6, 1e6);
    if (measured(first, second) > 0.0)
        return PolygonsApart;
    if (measured(first, {world, second[0]}) > 0.0)
        return FirstInsideSecond;
    return measured({world, first[0]}, second) > 0.0 ? SecondInsideFirst : PolygonsShareBoundary;
}

TEST(Positions, agreeWithDistances) {
    Random random(5);
    int judged[4] = {};
    for (int run = 0; run < 1500; ++run) {
        const Outline first = {star(random, 3 + random.below(5), random.below(2) ? 0.3 : 0.0)};
        Outline second = {star(random, 3 + random.below(5), random.below(2) ? 0.3 : 0.0)};
        const double size = random.between(0.1, 1.0);
        for (PolyPt2d& corner : second[0])
            corner = {corner.x * size, corner.y * size, corner.bulge};
        second = moved(second, 0.0, random.between(-9000, 9000), random.between(-9000, 9000));
        const PolygonRef a(polygon(first));
        const PolygonRef b(polygon(second));
        if (!a->IsValid(0x1f, nullptr) || !b->IsValid(0x1f, nullptr))
            continue;
        const int expected = positionByDistance(first, second);
        EXPECT_EQ(CPositionJudge().GetPolygonPosition(a.get(), b.get()), expected) << run;
        EXPECT_EQ(CPositionJudge().GetPolygonPosition(b.get(), a.get()), positionByDistance(second, first))
            << run;
        ++judged[expected];
    }
    for (const int count : {judged[PolygonsShareBoundary], judged[PolygonsApart], judged[SecondInsideFirst]})
        EXPECT_GT(count, 30);
}

} // namespace
