#include "Placing.h"
#include "geometry/CArc2d.h"
#include "geometry/CLine2d.h"
#include "geometry/CLoopTreeNode.h"
#include "geometry/Curve2dlistToCoedgelists.h"
#include "geometry/plan/plan_distance.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <random>
#include <sstream>
#include <string>

using namespace hrx;
using testing::DoubleNear;
using testing::Pointwise;

namespace {

using outlines::kPi;
constexpr double kTolerance = 200.0;
using Point = CVec2<double>;
using Curves = std::vector<std::unique_ptr<CCurve2d>>;

/// Draws roads in a placing.
class Drawing {
public:
    explicit Drawing(const Placing& placing) : m_place(placing) {}

    void line(const Point& start, const Point& end) {
        curves.push_back(std::make_unique<CLine2d>(placed(start), placed(end)));
    }
    void arc(const Point& start, const Point& through, const Point& end) {
        curves.push_back(std::make_unique<CArc2d>(placed(start), placed(end), placed(through)));
    }
    void circle(const Point& centre, double radius) {
        curves.push_back(std::make_unique<CArc2d>(placed(centre), radius, 0.0, 2.0 * kPi));
    }
    /// In metres: "path x y x y ...", "rectangle x y x y", "arc start through end", "circle x y r".
    void draw(const std::string& text);

    Curves curves;

private:
    Point placed(const Point& point) const { return m_place(point.x, point.y); }

    Placing m_place;
};

void Drawing::draw(const std::string& text) {
    std::istringstream in(text);
    for (std::string word; in >> word;) {
        std::vector<double> n;
        for (double metres = 0.0; in >> metres;)
            n.push_back(metres * 1e3);
        in.clear();
        if (word == "rectangle")
            n = {n[0], n[1], n[2], n[1], n[2], n[3], n[0], n[3], n[0], n[1]};
        if (word == "arc") {
            arc({n[0], n[1]}, {n[2], n[3]}, {n[4], n[5]});
        } else if (word == "circle") {
            circle({n[0], n[1]}, n[2]);
        } else {
            for (std::size_t i = 3; i < n.size(); i += 2)
                line({n[i - 3], n[i - 2]}, {n[i - 1], n[i]});
        }
    }
}

/// Whether an edge is run both ways.
bool hasSpur(const CPolygon& polygon) {
    std::vector<Edge2d> edges;
    for (const CCoedgeList& loop : polygon.loops())
        edges.insert(edges.end(), loop.edges().begin(), loop.edges().end());
    return std::any_of(edges.begin(), edges.end(), [&](const Edge2d& edge) {
        return std::any_of(edges.begin(), edges.end(), [&](const Edge2d& other) {
            return edge.start == other.end && edge.end == other.start && edge.bulge == -other.bulge;
        });
    });
}

std::vector<PolygonRef> facesOf(const Curves& curves, double tolerance = kTolerance, bool joined = true) {
    std::vector<CCoedgeList> lists;
    std::vector<CPolygon*> polygons;
    EXPECT_EQ(Curve2dlistToCoedgelists(curves, lists, tolerance) == LoopsJoined, joined);
    const bool made = CLoopTreeNode::GenPolygonListByCoedgeList(lists, polygons);
    EXPECT_EQ(made, !polygons.empty());
    for (const CPolygon* polygon : polygons)
        EXPECT_TRUE(polygon->IsValid(0x1F, nullptr));
    return {polygons.begin(), polygons.end()};
}

/// In m2, smallest first, holes taken off.
std::vector<double> areasOf(const std::vector<PolygonRef>& faces) {
    std::vector<double> areas;
    for (const PolygonRef& face : faces) {
        areas.push_back(0.0);
        for (const CCoedgeList& loop : face->loops())
            areas.back() += loop.signedArea() * 1e-6;
    }
    std::sort(areas.begin(), areas.end());
    return areas;
}

struct LoopCase {
    const char* name;
    const char* roads;
    std::vector<double> areas; ///< in m2, smallest first
    double slack = 1e-3;       ///< m2, for ends that joining moves
};

void PrintTo(const LoopCase& loopCase, std::ostream* out) {
    *out << loopCase.name;
}

const LoopCase kLoopCases[] = {
    {"no roads", "", {}},
    {"three sides only", "path 0 0 9 0 9 9 0 9", {}},
    {"four roads", "rectangle 0 0 10 20", {200.0}},
    {"access road", "rectangle 0 0 10 10 path 5 -8 5 0", {100.0}},
    {"road across", "rectangle 0 0 10 10 path 3 0 3 10", {30.0, 70.0}},
    {"four roads as a #", "path -5 0 15 0 path 0 -5 0 15 path -5 10 15 10 path 10 -5 10 15", {100.0}},
    {"four roads bent by a micrometre as a #",
     "arc -5 0 5 1e-6 15 0 arc 0 -5 1e-6 5 0 15 arc -5 10 5 10.000001 15 10 arc 10 -5 10.000001 5 10 15",
     {100.0}},
    {"stadium", "path 0 0 10 0 arc 10 0 15 5 10 10 path 10 10 0 10 arc 0 10 -5 5 0 0", {100.0 + 25.0 * kPi}},
    {"lens of two arcs", "arc 0 0 5 2 10 0 arc 0 0 5 -2 10 0", {27.501465787875}},
    {"arc beyond a half circle and its chord",
     "arc 0 5 -3.535533905932738 -3.535533905932738 5 0 path 5 0 0 5",
     {25.0 * kPi * 0.75 + 12.5}},
    {"circle", "circle 1 2 5", {25.0 * kPi}},
    {"circle narrower than the tolerance", "circle 0 0 0.08", {0.0064 * kPi}},
    {"circle cut by a road", "circle 0 0 5 path -7 0 9 0", {12.5 * kPi, 12.5 * kPi}},
    {"circles touching", "circle 0 0 5 circle 8 0 3", {9.0 * kPi, 25.0 * kPi}},
    {"road touching a circle, and on to the circle",
     "circle 0 0 5 path -7 5 8 5 4 3",
     {8.0 - 12.5 * (std::acos(0.6) - 0.8), 25.0 * kPi}},
    {"arc whose ends nearly meet", "arc 5 0 -5 0 4.999 0.099995", {25.0 * kPi}, 0.6},
    {"gap of 199", "path 0 0.199 0 10 10 10 10 0 0 0", {100.0}, 1.1},
    {"gap of 200", "path 0 0.2 0 10 10 10 10 0 0 0", {}},
    {"ends 199 short of roads", "rectangle 0 0 10 10 path 3 0.199 3 9.801", {30.0, 70.0}},
    {"end 201 short of a road", "rectangle 0 0 10 10 path 3 0.201 3 10", {100.0}},
    {"ends short of one place from both sides",
     "rectangle 0 0 10 10 path 5 0 5 4.85 path 5 5.15 5 10 path 0 5 10 5",
     {25.0, 25.0, 25.0, 25.0}},
    {"rings sharing a side", "rectangle 0 0 10 10 path 10 0 15 0 15 10 10 10", {50.0, 100.0}},
    {"shared side drawn twice", "rectangle 0 0 10 10 rectangle 10 2 15 8", {30.0, 100.0}},
    {"dead ends within and without", "rectangle 0 0 10 10 path 5 0 5 4 7 6 path 10 10 14 14", {100.0}},
    {"figure of eight", "path 0 0 10 10 10 0 0 10 0 0", {25.0, 25.0}},
    {"ring in a ring", "rectangle 0 0 10 10 rectangle 3 3 5 5", {4.0, 96.0}},
    {"rings joined by a road", "rectangle 0 0 10 10 rectangle 3 3 5 5 path 5 4 10 4", {4.0, 96.0}},
    {"rings in rings in a ring",
     "rectangle 0 0 9 9 rectangle 1 1 4 4 rectangle 2 2 3 3 circle 6.5 6.5 1",
     {1.0, kPi, 8.0, 72.0 - kPi}},
    {"T junction drawn over", "rectangle 0 0 10 10 path 5 -3 5 0.15", {100.0}},
    {"slanting T junction drawn over", "rectangle 0 0 10 10 path -1 -0.14 9 0.15", {100.0}, 0.3},
    {"short road across another", "rectangle 0 0 10 10 path 5 -0.09 5 0.1", {100.0}},
    {"corners drawn over",
     "path -0.15 0 10.15 0 path 10 -0.15 10 10.15 path 10.15 10 -0.15 10 path 0 10.15 0 -0.15",
     {100.0}},
    {"three roads crossing in nearly one point", "path -5 0 5 0 path 0 -5 0 5 path -5 -4.9 5 5.1", {}},
    {"road drawn twice, in part", "path 0 0 10 0 path 8 0 2 0 path 5 0 13 0 path 0 0.05 10 0.05", {}},
    {"arc drawn twice, in part", "arc 5 0 0 5 -5 0 arc 3 4 0 5 -3 4 arc -3 4 -5 0 -3 -4", {}},
    {"arc leaving a road along it", "path 0 0 10 0 arc 0 0 3 1 5 5 path 5 5 5 0", {25.0 - 6.25 * kPi}},
    {"arc back over a road by its end", "path 0 0 10 0 arc 0 0 0.15 0 5 -3 path 5 -3 10 0", {12.2}, 0.5},
    {"arc that reaches a road by the joining of its ends",
     "arc 0 0 5 5 10 0 path 10.19 0 10.19 -3 path -0.19 0 -0.19 -3 rectangle -8 -3 18 5.05",
     {68.8, 68.8, 71.6},
     0.5},
    {"ring in pieces shorter than the tolerance",
     "path 0.35 0 0.303 0.175 0.175 0.303 0 0.35 -0.175 0.303 -0.303 0.175 -0.35 0 -0.303 -0.175 -0.175 "
     "-0.303 0 -0.35 0.175 -0.303 0.303 -0.175 0.35 0",
     {0.367368}},
};

class Loops : public testing::TestWithParam<LoopCase> {};

TEST_P(Loops, facesAreTheExpectedWhateverThePlacing) {
    for (const Placing& placing : kPlacings) {
        SCOPED_TRACE("turned by " + std::to_string(placing.degrees));
        Drawing drawing(placing);
        drawing.draw(GetParam().roads);
        const std::vector<PolygonRef> faces = facesOf(drawing.curves);
        EXPECT_THAT(areasOf(faces), Pointwise(DoubleNear(GetParam().slack), GetParam().areas));
        for (const PolygonRef& face : faces)
            EXPECT_FALSE(hasSpur(*face));
    }
}

INSTANTIATE_TEST_SUITE_P(Cases, Loops, testing::ValuesIn(kLoopCases));

TEST(LoopStates, curvesThatCannotBeTakenUp) {
    const double infinite = std::numeric_limits<double>::infinity();
    const Placing turned = kPlacings[1];
    Curves refused;
    refused.push_back(nullptr);
    for (const Point& end : {Point(5, 5), Point(infinite, 5), Point(5, std::nan("")), Point(1e300, 5)})
        refused.push_back(std::make_unique<CLine2d>(Point(5, 5), end));
    // On one slanting line between and beyond the ends, at an end, and back to the start.
    for (const Point& through : {turned(3000, 0), turned(9000, 0), turned(7000, 0), Point(3, -infinite)})
        refused.push_back(std::make_unique<CArc2d>(turned(0, 0), turned(7000, 0), through));
    refused.push_back(std::make_unique<CArc2d>(Point(0, 0), Point(0, 0), Point(7000, 0)));
    refused.push_back(std::make_unique<CArc2d>(Point(0, 0), 0.0, 0.0, 2.0 * kPi));
    refused.push_back(std::make_unique<CArc2d>(Point(0, 0), 5000.0, 1.0, 1.0));
    refused.push_back(std::make_unique<CArc2d>(Point(0, 0), 5000.0, 0.0, infinite));
    for (std::size_t i = 0; i < refused.size(); ++i) {
        Drawing drawing(kPlacings[0]);
        drawing.draw("rectangle 0 0 10 10");
        drawing.curves.push_back(std::move(refused[i]));
        EXPECT_TRUE(facesOf(drawing.curves, kTolerance, false).empty()) << i;
    }
}

/// Grids of roads, each drawn either way, in any order, its ends up to 140 off.
TEST(RandomLoops, gridHasItsCells) {
    outlines::Random random(7);
    const auto end = [&] { return random.between(-140, 140); };
    for (unsigned run = 0; run < 100; ++run) {
        const unsigned columns = 2 + run % 5;
        const unsigned rows = 2 + run % 7;
        Drawing drawing({random.between(0, 360), {random.between(0, 1e7), random.between(0, 1e7)}});
        const auto road = [&](const Point& a, const Point& b) {
            const bool isTurned = random.below(2) == 0;
            drawing.line(isTurned ? b : a, isTurned ? a : b);
        };
        for (unsigned i = 0; i < columns; ++i)
            road({i * 5e3, end()}, {i * 5e3, (rows - 1) * 4e3 + end()});
        for (unsigned j = 0; j < rows; ++j)
            road({end(), j * 4e3}, {(columns - 1) * 5e3 + end(), j * 4e3});
        std::shuffle(drawing.curves.begin(), drawing.curves.end(), std::mt19937(run));
        const std::vector<double> cells((columns - 1) * (rows - 1), 20.0);
        EXPECT_THAT(areasOf(facesOf(drawing.curves)), Pointwise(DoubleNear(2.5), cells));
    }
}

/// n lines of which every two cross, no three in one point, bound (n - 1) (n - 2) / 2 faces; n such circles
/// n n - n + 1.
TEST(RandomLoops, linesAndCirclesInGeneralPosition) {
    outlines::Random random(11);
    for (std::size_t n = 2; n < 14; ++n) {
        Drawing lines(kPlacings[n % 4]);
        Drawing circles(kPlacings[n % 4]);
        for (std::size_t i = 0; i < n; ++i) {
            const double angle =
                (static_cast<double>(i) + random.between(0.1, 0.9)) * kPi / static_cast<double>(n);
            const double aside = random.between(-3000, 3000);
            const Point along(1e6 * std::cos(angle), 1e6 * std::sin(angle));
            const Point foot(-aside * std::sin(angle), aside * std::cos(angle));
            lines.line(foot - along, foot + along);
            circles.circle({random.between(-2000, 2000), random.between(-2000, 2000)}, 5000);
        }
        EXPECT_EQ(facesOf(lines.curves, 1e-3).size(), (n - 1) * (n - 2) / 2) << n;
        EXPECT_EQ(facesOf(circles.curves, 1e-3).size(), n * n - n + 1) << n;
    }
}

/// Lines and arcs at random and on a grid, so that many meet, touch and run along each other: no place is in
/// two faces.
TEST(RandomLoops, facesNeverOverlap) {
    outlines::Random random(3);
    for (int run = 0; run < 2000; ++run) {
        const double step = run % 2 == 0 ? 500.0 : 1.7;
        const auto place = [&] { return Point(random.below(21) * step, random.below(21) * step); };
        Drawing drawing(kPlacings[run % 4]);
        for (int i = random.below(11); i >= 0; --i) {
            const Point start = place();
            const Point end = place();
            const Point through = place();
            if (start == end)
                continue;
            if (CArc2d(start, end, through).edges().empty() || i % 2 == 0)
                drawing.line(start, end);
            else
                drawing.arc(start, through, end);
        }
        SCOPED_TRACE("run " + std::to_string(run));
        const std::vector<PolygonRef> faces = facesOf(drawing.curves, run % 3 == 0 ? 1e-3 : step / 5.0);
        for (int i = 0; i < 50; ++i) {
            const Point probe =
                kPlacings[run % 4](random.between(0, 20) * step, random.between(0, 20) * step);
            EXPECT_LE(std::count_if(faces.begin(), faces.end(),
                                    [&](const PolygonRef& face) { return plan::contains(*face, probe); }),
                      1);
        }
    }
}

} // namespace
