#include "Placing.h"
#include "geometry/CArc2d.h"
#include "geometry/CLine2d.h"
#include "geometry/CPositionJudge.h"

#include <gtest/gtest.h>

#include <limits>
#include <memory>
#include <random>

using namespace hrx;

namespace {

constexpr double kPi = 3.14159265358979323846;
using Point = CVec2<double>;
using Loop = std::vector<PolyPt2d>;
using Outline = std::vector<Loop>;

Loop rectangle(double x1, double y1, double x2, double y2) {
    return {{x1, y1, 0.0}, {x2, y1, 0.0}, {x2, y2, 0.0}, {x1, y2, 0.0}};
}
Loop circle(double x, double y, double radius) {
    return {{x + radius, y, 1.0}, {x - radius, y, 1.0}};
}
/// A road along an arc about the origin: inner and outer radius, from angle 0 to a half circle.
Loop arcRoad(double inner, double outer) {
    return {{inner, 0.0, 0.0}, {outer, 0.0, 1.0}, {-outer, 0.0, 0.0}, {-inner, 0.0, -1.0}};
}

PolygonRef placed(const Outline& outline, const Placing& placing, bool reversed = false) {
    std::vector<CCoedgeList> loops;
    for (Loop loop : outline) {
        for (PolyPt2d& corner : loop) {
            const Point point = placing(corner.x, corner.y);
            corner = {point.x, point.y, corner.bulge};
        }
        loops.emplace_back(loop);
    }
    PolygonRef polygon(new CPolygon(loops));
    if (reversed)
        polygon->Reverse();
    return polygon;
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
    {"crossing", {rectangle(0, 0, 10, 10)}, {rectangle(5, 5, 15, 15)}, PolygonsShareBoundary},
    {"a cross", {rectangle(0, 4, 10, 6)}, {rectangle(4, 0, 6, 10)}, PolygonsShareBoundary},
    {"roads end to end",
     {rectangle(0, 0, 6000, 4000)},
     {rectangle(6000, 0, 9000, 4000)},
     PolygonsShareBoundary},
    {"touching at a corner", {rectangle(0, 0, 10, 10)}, {rectangle(10, 10, 20, 20)}, PolygonsShareBoundary},
    {"corner on edge",
     {rectangle(0, 0, 10, 10)},
     {{{10, 3, 0}, {14, 1, 0}, {14, 6, 0}}},
     PolygonsShareBoundary},
    {"the same", {rectangle(0, 0, 10, 10)}, {rectangle(0, 0, 10, 10)}, PolygonsShareBoundary},
    {"inside, touching an edge", {rectangle(0, 0, 10, 10)}, {rectangle(0, 3, 5, 6)}, PolygonsShareBoundary},
    {"a hair apart", {rectangle(0, 0, 10, 10)}, {rectangle(10.0001, 0, 20, 10)}, PolygonsApart},
    {"apart", {rectangle(0, 0, 10, 10)}, {rectangle(5000, 0, 6000, 10)}, PolygonsApart},
    {"boxes overlap, outlines apart",
     {{{0, 0, 0}, {10, 0, 0}, {0, 10, 0}}},
     {{{10, 10, 0}, {6, 10, 0}, {10, 6, 0}}},
     PolygonsApart},
    {"inside", {rectangle(3, 3, 5, 5)}, {rectangle(0, 0, 10, 10)}, FirstInsideSecond},
    {"inside by a hair",
     {rectangle(0.0001, 0.0001, 9.9999, 9.9999)},
     {rectangle(0, 0, 10, 10)},
     FirstInsideSecond},
    {"circle in its square", {circle(5, 5, 5)}, {rectangle(0, 0, 10, 10)}, PolygonsShareBoundary},
    {"smaller circle in the square", {circle(5, 5, 4.999)}, {rectangle(0, 0, 10, 10)}, FirstInsideSecond},
    {"circles touching", {circle(0, 0, 5000)}, {circle(8000, 0, 3000)}, PolygonsShareBoundary},
    {"circles touching from within", {circle(0, 0, 5000)}, {circle(2000, 0, 3000)}, PolygonsShareBoundary},
    {"circle in circle", {circle(1000, 0, 3000)}, {circle(0, 0, 5000)}, FirstInsideSecond},
    {"circle by the corner of a square",
     {circle(-0.708, -0.708, 1)},
     {rectangle(0, 0, 10, 10)},
     PolygonsApart},
    {"circle on the corner of a square",
     {circle(-0.6, -0.8, 1)},
     {rectangle(0, 0, 10, 10)},
     PolygonsShareBoundary},
    {"square in the bend of an arc road", {rectangle(-2, 1, 2, 4)}, {arcRoad(8, 10)}, PolygonsApart},
    {"square on an arc road", {rectangle(-0.5, 8.5, 0.5, 9.5)}, {arcRoad(8, 10)}, FirstInsideSecond},
    {"arc roads side by side", {arcRoad(8, 10)}, {arcRoad(10, 12)}, PolygonsShareBoundary},
    {"arc road continued by a straight one",
     {arcRoad(8000, 12000)},
     {rectangle(8000, -9000, 12000, 0)},
     PolygonsShareBoundary},
    {"in a hole", {rectangle(4, 4, 6, 6)}, {rectangle(0, 0, 10, 10), rectangle(2, 2, 8, 8)}, PolygonsApart},
    {"touching the hole's edge",
     {rectangle(2, 4, 6, 6)},
     {rectangle(0, 0, 10, 10), rectangle(2, 2, 8, 8)},
     PolygonsShareBoundary},
    {"beside a hole",
     {rectangle(0.5, 0.5, 1.5, 1.5)},
     {rectangle(0, 0, 10, 10), rectangle(2, 2, 8, 8)},
     FirstInsideSecond},
    {"no points", {}, {rectangle(0, 0, 10, 10)}, PolygonsApart},
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
            const PolygonRef reversed = placed(row.second, placing, true);
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
    const Outline square = {rectangle(0, 0, 10, 10)};
    const Outline frame = {rectangle(0, 0, 10, 10), rectangle(2, 2, 8, 8)};
    const struct {
        const char* name;
        Cable cable;
        Outline area;
        EnCurvePolygonPosition position;
    } cases[] = {
        {"across", {{-5, 5}, {15, 5}}, square, CurveSharesBoundary},
        {"ending inside", {{-5, 5}, {5, 5}}, square, CurveSharesBoundary},
        {"ending on the edge", {{-5, 5}, {0, 5}}, square, CurveSharesBoundary},
        {"along an edge and on", {{-5, 10}, {5, 10}}, square, CurveSharesBoundary},
        {"past a corner", {{-5, 5}, {5, 15}}, square, CurveSharesBoundary},
        {"inside", {{1, 1}, {9, 8}}, square, CurveInside},
        {"outside", {{-5, 20}, {15, 20}}, square, CurveOutside},
        {"in a hole", {{3, 3}, {7, 7}}, frame, CurveOutside},
        {"between hole and outline", {{1, 1}, {1, 9}}, frame, CurveInside},
        {"arc over an edge", {{-5, 12}, {15, 12}, false, {5, 9}}, square, CurveSharesBoundary},
        {"arc touching an edge", {{-5, 15}, {15, 15}, false, {5, 10}}, square, CurveSharesBoundary},
        {"arc around", {{-5, -1}, {15, -1}, false, {5, 20}}, square, CurveOutside},
        {"arc inside, beyond a half circle",
         {{5, 2}, {2, 5}, false, {7.1213203435596424, 7.1213203435596424}},
         square,
         CurveInside},
        {"arc in a circle along it",
         {{3, 4}, {-3, 4}, false, {0, 5}},
         {circle(0, 0, 5)},
         CurveSharesBoundary},
        {"arc in a circle", {{3, 4}, {-3, 4}, false, {0, 5}}, {circle(0, 0, 5.001)}, CurveInside},
        {"area without points", {{1, 1}, {9, 8}}, {}, CurveOutside},
        {"line without length", {{5, 5}, {5, 5}}, square, CurveOutside},
        {"arc that its points do not fix", {{1, 1}, {9, 9}, false, {5, 5}}, square, CurveOutside},
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
    const PolygonRef square = placed({rectangle(0, 0, 10, 10)}, kPlacings[0]);
    const PolygonRef endless = placed({rectangle(-infinite, 2, infinite, 8)}, kPlacings[0]);
    const PolygonRef nowhere = placed({rectangle(5, std::nan(""), 6, 6)}, kPlacings[0]);
    const PolygonRef beyond = placed({rectangle(1e200, 2, 1e300, 8)}, kPlacings[0]);
    const CLine2d line(Point(-5, 5), Point(15, 5));
    for (const CPolygon* other :
         {static_cast<CPolygon*>(nullptr), endless.get(), nowhere.get(), beyond.get()}) {
        EXPECT_EQ(judge.GetPolygonPosition(square.get(), other), PolygonsApart);
        EXPECT_EQ(judge.GetPolygonPosition(other, square.get()), PolygonsApart);
        EXPECT_EQ(judge.GetCurvePolygonPosition(&line, other), CurveOutside);
    }
    EXPECT_EQ(judge.GetCurvePolygonPosition(nullptr, square.get()), CurveOutside);
}

/// A slow judge on outlines walked in small steps. Where the steps cannot tell, it has no answer.
class SteppingJudge {
public:
    explicit SteppingJudge(const CPolygon& polygon) {
        for (const Edge2d& edge : polygon.GetLoop(0)->edges()) {
            for (int i = 0; i < kSteps; ++i)
                m_points.push_back(pointOf(edge, static_cast<double>(i) / kSteps));
        }
    }

    /// -1 when the steps cannot tell.
    static int position(const SteppingJudge& first, const SteppingJudge& second) {
        const auto firstInside = first.countInside(second);
        const auto secondInside = second.countInside(first);
        const bool crossing = (firstInside > 0 && firstInside < first.m_points.size()) ||
                              (secondInside > 0 && secondInside < second.m_points.size());
        if (first.leastDistance(second) < 0.5)
            return -1;
        if (crossing)
            return PolygonsShareBoundary;
        return firstInside > 0 ? FirstInsideSecond : secondInside > 0 ? SecondInsideFirst : PolygonsApart;
    }

private:
    static constexpr int kSteps = 40;

    /// By the rational form of an arc, which knows no angle.
    static Point pointOf(const Edge2d& edge, double t) {
        const double cosine = (1.0 - edge.bulge * edge.bulge) / (1.0 + edge.bulge * edge.bulge);
        const Point chord = edge.end - edge.start;
        const Point toCorner =
            chord * 0.5 - leftNormal(chord) * (edge.bulge / (1.0 - edge.bulge * edge.bulge));
        const double weight = 2.0 * t * (1.0 - t) * cosine;
        const double sum = (1.0 - t) * (1.0 - t) + weight + t * t;
        return edge.start + toCorner * (weight / sum) + chord * (t * t / sum);
    }

    std::size_t countInside(const SteppingJudge& region) const {
        std::size_t count = 0;
        for (const Point& p : m_points) {
            bool inside = false;
            for (std::size_t i = 0; i < region.m_points.size(); ++i) {
                const Point& a = region.m_points[i];
                const Point& b = region.m_points[(i + 1) % region.m_points.size()];
                if ((a.y <= p.y) != (b.y <= p.y) && p.x < a.x + (p.y - a.y) / (b.y - a.y) * (b.x - a.x))
                    inside = !inside;
            }
            count += inside ? 1 : 0;
        }
        return count;
    }

    double leastDistance(const SteppingJudge& other) const {
        double least = std::numeric_limits<double>::infinity();
        for (const Point& a : m_points) {
            for (const Point& b : other.m_points)
                least = std::min(least, length(a - b));
        }
        return least;
    }

    std::vector<Point> m_points;
};

TEST(Positions, agreeWithTheSlowJudge) {
    std::mt19937 random(5);
    const auto between = [&](double least, double most) {
        return std::uniform_real_distribution<double>(least, most)(random);
    };
    const auto star = [&](Point centre, double size) {
        Loop loop;
        const int corners = 3 + static_cast<int>(between(0, 5));
        for (int i = 0; i < corners; ++i) {
            const double angle = 2.0 * kPi * i / corners;
            const double radius = size * between(0.6, 1.0);
            loop.push_back({centre.x + radius * std::cos(angle), centre.y + radius * std::sin(angle),
                            between(0.0, 1.0) < 0.4 ? 0.0 : between(-0.1, 0.6)});
        }
        return loop;
    };
    int judged[4] = {};
    for (int run = 0; run < 1500; ++run) {
        const PolygonRef first = placed({star({0, 0}, between(20, 200))}, kPlacings[0]);
        const PolygonRef second =
            placed({star({between(-200, 200), between(-200, 200)}, between(20, 200))}, kPlacings[0]);
        const int expected = SteppingJudge::position(SteppingJudge(*first), SteppingJudge(*second));
        if (expected < 0)
            continue;
        ++judged[expected];
        EXPECT_EQ(CPositionJudge().GetPolygonPosition(first.get(), second.get()), expected) << "run " << run;
    }
    for (const int count : judged)
        EXPECT_GT(count, 30);
}

} // namespace
