#include "Placing.h"
#include "geometry/CArc2d.h"
#include "geometry/CLine2d.h"
#include "geometry/CLoopTreeNode.h"
#include "geometry/Curve2dlistToCoedgelists.h"
#include "geometry/plan_distance.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>
#include <random>
#include <string>

using namespace hrx;

namespace {

constexpr double kPi = 3.14159265358979323846;
constexpr double kTolerance = 200.0;
using Point = CVec2<double>;
using Curves = std::vector<std::unique_ptr<CCurve2d>>;

/// Draws roads in a placing.
class Drawing {
public:
    explicit Drawing(const Placing& placing) : m_place(placing) {}

    Drawing& line(double x1, double y1, double x2, double y2) {
        curves.push_back(std::make_unique<CLine2d>(m_place(x1, y1), m_place(x2, y2)));
        return *this;
    }
    Drawing& arc(Point start, Point end, Point through) {
        curves.push_back(std::make_unique<CArc2d>(m_place(start.x, start.y), m_place(end.x, end.y),
                                                  m_place(through.x, through.y)));
        return *this;
    }
    Drawing& circle(Point centre, double radius) {
        curves.push_back(std::make_unique<CArc2d>(m_place(centre.x, centre.y), radius, 0.0, 2.0 * kPi));
        return *this;
    }
    Drawing& rectangle(double x1, double y1, double x2, double y2) {
        return line(x1, y1, x2, y1).line(x2, y1, x2, y2).line(x2, y2, x1, y2).line(x1, y2, x1, y1);
    }

    Curves curves;

private:
    Placing m_place;
};

struct Faces {
    EnLoopsState state = LoopsJoined;
    std::vector<double> areas; ///< in mm2, smallest first, holes taken off
    std::size_t invalid = 0;
    std::size_t withSpurs = 0; ///< those with an edge run both ways
};

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

Faces facesOf(const Curves& curves, double tolerance = kTolerance) {
    Faces faces;
    std::vector<CCoedgeList> lists;
    std::vector<CPolygon*> polygons;
    faces.state = Curve2dlistToCoedgelists(curves, lists, tolerance);
    const bool made = CLoopTreeNode::GenPolygonListByCoedgeList(lists, polygons);
    EXPECT_EQ(made, !polygons.empty());
    for (CPolygon* polygon : polygons) {
        double area = 0.0;
        for (const CCoedgeList& loop : polygon->loops())
            area += loop.signedArea();
        faces.areas.push_back(area);
        faces.invalid += polygon->IsValid(0x1F, nullptr) ? 0 : 1;
        faces.withSpurs += hasSpur(*polygon) ? 1 : 0;
        polygon->Free();
    }
    std::sort(faces.areas.begin(), faces.areas.end());
    return faces;
}

struct LoopCase {
    const char* name;
    std::function<void(Drawing&)> draw;
    std::vector<double> areas; ///< in m2, smallest first
    double slack = 1e-3;       ///< m2, for ends that joining moves
};

void PrintTo(const LoopCase& loopCase, std::ostream* out) {
    *out << loopCase.name;
}

void ringWithGap(Drawing& d, double gap) {
    d.line(0, 0, 10000 - gap, 0)
        .line(10000, 0, 10000, 10000)
        .line(10000, 10000, 0, 10000)
        .line(0, 10000, 0, 0);
}

void openRing(Drawing& d, double gap) {
    d.line(0, gap, 0, 10000).line(0, 10000, 10000, 10000).line(10000, 10000, 10000, 0).line(10000, 0, 0, 0);
}

const LoopCase kLoopCases[] = {
    {"ring of four roads", [](Drawing& d) { d.rectangle(0, 0, 10000, 20000); }, {200.0}},
    {"three sides only",
     [](Drawing& d) { d.line(0, 0, 9000, 0).line(9000, 0, 9000, 9000).line(9000, 9000, 0, 9000); },
     {}},
    {"no roads", [](Drawing&) {}, {}},
    {"ring with access road, the ring undivided",
     [](Drawing& d) { d.rectangle(0, 0, 10000, 10000).line(5000, -8000, 5000, 0); },
     {100.0}},
    {"road across a ring",
     [](Drawing& d) { d.rectangle(0, 0, 10000, 10000).line(3000, 0, 3000, 10000); },
     {30.0, 70.0}},
    {"four roads crossing in a #",
     [](Drawing& d) {
         d.line(-5000, 0, 15000, 0).line(-5000, 10000, 15000, 10000);
         d.line(0, -5000, 0, 15000).line(10000, -5000, 10000, 15000);
     },
     {100.0}},
    {"arcs closing a ring",
     [](Drawing& d) {
         d.line(0, 0, 10000, 0).arc({10000, 0}, {10000, 10000}, {15000, 5000});
         d.line(10000, 10000, 0, 10000).arc({0, 10000}, {0, 0}, {-5000, 5000});
     },
     {100.0 + 25.0 * kPi}},
    {"two arcs forming a lens",
     [](Drawing& d) {
         d.arc({0, 0}, {10000, 0}, {5000, 2000}).arc({0, 0}, {10000, 0}, {5000, -2000});
     },
     {27.501465787875}},
    {"arc beyond a half circle and its chord",
     [](Drawing& d) {
         d.arc({0, 5000}, {5000, 0}, {-3535.533905932738, -3535.533905932738}).line(5000, 0, 0, 5000);
     },
     {25.0 * kPi * 0.75 + 12.5}},
    {"full circle",
     [](Drawing& d) {
         d.circle({1000, 2000}, 5000);
     },
     {25.0 * kPi}},
    {"circle cut by a road",
     [](Drawing& d) {
         d.circle({0, 0}, 5000).line(-7000, 0, 9000, 0);
     },
     {12.5 * kPi, 12.5 * kPi}},
    {"road touching a circle",
     [](Drawing& d) {
         d.circle({0, 0}, 5000).line(-7000, 5000, 9000, 5000);
     },
     {25.0 * kPi}},
    {"arc whose ends nearly meet",
     [](Drawing& d) {
         d.arc({5000, 0}, {4999.0, 99.995}, {-5000, 0});
     },
     {25.0 * kPi},
     0.6},
    {"gap of 199", [](Drawing& d) { openRing(d, 199); }, {100.0}, 1.1},
    {"gap of 200", [](Drawing& d) { openRing(d, 200); }, {}},
    {"gap of 201", [](Drawing& d) { openRing(d, 201); }, {}},
    {"end 199 short of a road",
     [](Drawing& d) {
         ringWithGap(d, 199);
         d.line(10000, 0, 10000, -500);
     },
     {100.0},
     1.1},
    {"ends 199 short of the middle of roads",
     [](Drawing& d) { d.rectangle(0, 0, 10000, 10000).line(3000, 199, 3000, 9801); },
     {30.0, 70.0}},
    {"end 201 short of the middle of a road",
     [](Drawing& d) { d.rectangle(0, 0, 10000, 10000).line(3000, 201, 3000, 10000); },
     {100.0}},
    {"two rings sharing a side",
     [](Drawing& d) {
         d.rectangle(0, 0, 10000, 10000)
             .line(10000, 0, 15000, 0)
             .line(15000, 0, 15000, 10000)
             .line(15000, 10000, 10000, 10000);
     },
     {50.0, 100.0}},
    {"two rings, the shared side drawn twice",
     [](Drawing& d) { d.rectangle(0, 0, 10000, 10000).rectangle(10000, 2000, 15000, 8000); },
     {30.0, 100.0}},
    {"dead ends within and without",
     [](Drawing& d) {
         d.rectangle(0, 0, 10000, 10000)
             .line(5000, 0, 5000, 4000)
             .line(5000, 4000, 7000, 6000)
             .line(10000, 10000, 14000, 14000);
     },
     {100.0}},
    {"figure of eight of crossing roads",
     [](Drawing& d) {
         d.line(0, 0, 10000, 10000)
             .line(10000, 10000, 10000, 0)
             .line(10000, 0, 0, 10000)
             .line(0, 10000, 0, 0);
     },
     {25.0, 25.0}},
    {"two circles touching",
     [](Drawing& d) {
         d.circle({0, 0}, 5000).circle({8000, 0}, 3000);
     },
     {9.0 * kPi, 25.0 * kPi}},
    {"ring within a ring",
     [](Drawing& d) { d.rectangle(0, 0, 10000, 10000).rectangle(3000, 3000, 5000, 5000); },
     {4.0, 96.0}},
    {"rings joined by a road",
     [](Drawing& d) {
         d.rectangle(0, 0, 10000, 10000).rectangle(3000, 3000, 5000, 5000).line(5000, 4000, 10000, 4000);
     },
     {4.0, 96.0}},
    {"rings in rings in a ring",
     [](Drawing& d) {
         d.rectangle(0, 0, 9000, 9000)
             .rectangle(1000, 1000, 4000, 4000)
             .rectangle(2000, 2000, 3000, 3000)
             .circle({6500, 6500}, 1000);
     },
     {1.0, kPi, 8.0, 72.0 - kPi}},
    {"T junction drawn over by 150",
     [](Drawing& d) { d.rectangle(0, 0, 10000, 10000).line(5000, -3000, 5000, 150); },
     {100.0}},
    {"slanting T junction drawn over by 150",
     [](Drawing& d) { d.rectangle(0, 0, 10000, 10000).line(-1000, -140, 9000, 150); },
     {100.0},
     0.3},
    {"corner roads drawn over by 150",
     [](Drawing& d) {
         d.line(-150, 0, 10150, 0)
             .line(10000, -150, 10000, 10150)
             .line(10150, 10000, -150, 10000)
             .line(0, 10150, 0, -150);
     },
     {100.0}},
    {"three roads crossing in nearly one point",
     [](Drawing& d) { d.line(-5000, 0, 5000, 0).line(0, -5000, 0, 5000).line(-5000, -4900, 5000, 5100); },
     {}},
    {"straight road drawn twice, in part and the other way",
     [](Drawing& d) {
         d.line(0, 0, 10000, 0).line(8000, 0, 2000, 0).line(5000, 0, 13000, 0).line(0, 50, 10000, 50);
     },
     {}},
    {"arc road drawn twice, in part",
     [](Drawing& d) {
         const double s = std::sqrt(0.5) * 5000;
         d.arc({5000, 0}, {-5000, 0}, {0, 5000})
             .arc({s, s}, {-s, s}, {0, 5000})
             .arc({-s, s}, {-s, -s}, {-5000, 0});
     },
     {}},
    {"arc leaving a road along it, met again",
     [](Drawing& d) {
         d.line(0, 0, 10000, 0)
             .arc({0, 0}, {5000, 5000}, {5000 * std::sin(kPi / 4), 5000 - 5000 * std::cos(kPi / 4)})
             .line(5000, 5000, 5000, 0);
     },
     {25.0 - 6.25 * kPi}},
    {"ring in pieces shorter than the tolerance",
     [](Drawing& d) {
         for (int i = 0; i < 40; ++i) {
             const double from = i * kPi / 20.0;
             const double to = (i + 1) % 40 * kPi / 20.0;
             d.line(1000 * std::cos(from), 1000 * std::sin(from), 1000 * std::cos(to), 1000 * std::sin(to));
         }
     },
     {20.0 * std::sin(kPi / 20.0)}},
    {"two roads ending short of the same place from both sides",
     [](Drawing& d) {
         d.rectangle(0, 0, 10000, 10000)
             .line(5000, 0, 5000, 4850)
             .line(5000, 5150, 5000, 10000)
             .line(0, 5000, 10000, 5000);
     },
     {25.0, 25.0, 25.0, 25.0}},
    {"road touching a circle, and another from it to the circle",
     [](Drawing& d) {
         d.circle({0, 0}, 5000).line(-7000, 5000, 8000, 5000).line(8000, 5000, 4000, 3000);
     },
     {8.0 - 12.5 * (std::acos(0.6) - 0.8), 25.0 * kPi}},
    {"circle narrower than the tolerance",
     [](Drawing& d) {
         d.circle({0, 0}, 80);
     },
     {0.0064 * kPi}},
    {"arc that crosses a road again near their common end",
     [](Drawing& d) {
         d.line(0, 0, 10000, 0).arc({0, 0}, {5000, -3000}, {150, 0}).line(5000, -3000, 10000, 0);
     },
     {12.2},
     0.5},
    {"arc that reaches a road by the joining of its ends",
     [](Drawing& d) {
         d.arc({0, 0}, {10000, 0}, {5000, 5000}).line(10190, 0, 10190, -3000).line(-190, 0, -190, -3000);
         d.rectangle(-8000, -3000, 18000, 5050);
     },
     {68.8, 68.8, 71.6},
     0.5},
    {"short road across another, both ends near it",
     [](Drawing& d) { d.rectangle(0, 0, 10000, 10000).line(5000, -90, 5000, 100); },
     {100.0}},
};

/// Lends a curve to a list that owns its curves.
class Borrowed : public CCurve2d {
public:
    explicit Borrowed(const CCurve2d& curve) : m_curve(curve) {}
    std::vector<Edge2d> edges() const override { return m_curve.edges(); }

private:
    const CCurve2d& m_curve;
};

class Loops : public testing::TestWithParam<LoopCase> {};

TEST_P(Loops, facesAreTheExpectedWhateverThePlacing) {
    for (const Placing& placing : kPlacings) {
        SCOPED_TRACE("turned by " + std::to_string(placing.degrees));
        Drawing drawing(placing);
        GetParam().draw(drawing);
        const Faces faces = facesOf(drawing.curves);
        EXPECT_EQ(faces.state, LoopsJoined);
        EXPECT_EQ(faces.invalid, 0U);
        EXPECT_EQ(faces.withSpurs, 0U);
        ASSERT_EQ(faces.areas.size(), GetParam().areas.size());
        for (std::size_t i = 0; i < faces.areas.size(); ++i)
            EXPECT_NEAR(faces.areas[i] * 1e-6, GetParam().areas[i], GetParam().slack);
    }
}

INSTANTIATE_TEST_SUITE_P(Cases, Loops, testing::ValuesIn(kLoopCases));

TEST(LoopStates, curvesThatCannotBeTakenUp) {
    const double infinite = std::numeric_limits<double>::infinity();
    const double notANumber = std::numeric_limits<double>::quiet_NaN();
    const Placing turned = kPlacings[1];
    const struct {
        const char* name;
        std::shared_ptr<CCurve2d> curve;
    } cases[] = {
        {"no curve", nullptr},
        {"line without length", std::make_shared<CLine2d>(Point(5, 5), Point(5, 5))},
        {"line to infinity", std::make_shared<CLine2d>(Point(5, 5), Point(infinite, 5))},
        {"line from nowhere", std::make_shared<CLine2d>(Point(5, notANumber), Point(0, 0))},
        {"line too far away", std::make_shared<CLine2d>(Point(5, 5), Point(1e300, 5))},
        {"arc on a slanting line", std::make_shared<CArc2d>(turned(0, 0), turned(7000, 0), turned(3000, 0))},
        {"arc beyond its ends", std::make_shared<CArc2d>(turned(0, 0), turned(7000, 0), turned(9000, 0))},
        {"arc through its end", std::make_shared<CArc2d>(Point(0, 0), Point(7000, 0), Point(7000, 0))},
        {"arc back to its start", std::make_shared<CArc2d>(Point(0, 0), Point(0, 0), Point(7000, 0))},
        {"arc through infinity", std::make_shared<CArc2d>(Point(0, 0), Point(7, 0), Point(3, -infinite))},
        {"circle without radius", std::make_shared<CArc2d>(Point(0, 0), 0.0, 0.0, 2.0 * kPi)},
        {"arc that does not turn", std::make_shared<CArc2d>(Point(0, 0), 5000.0, 1.0, 1.0)},
        {"arc of endless turn", std::make_shared<CArc2d>(Point(0, 0), 5000.0, 0.0, infinite)},
    };
    for (const auto& row : cases) {
        SCOPED_TRACE(row.name);
        Drawing drawing(kPlacings[0]);
        drawing.rectangle(0, 0, 10000, 10000);
        drawing.curves.insert(drawing.curves.begin() + 2,
                              row.curve ? std::make_unique<Borrowed>(*row.curve) : nullptr);
        const Faces faces = facesOf(drawing.curves);
        EXPECT_NE(faces.state, LoopsJoined);
        EXPECT_TRUE(faces.areas.empty());
    }
}

/// Gaps join by their width alone, however the drawing lies.
TEST(LoopStates, gapAsWideAsTheToleranceStaysOpen) {
    for (int degrees = 0; degrees < 360; ++degrees) {
        for (const double gap : {199.9999, 200.0, 200.0001}) {
            Drawing drawing({degrees + 0.37, {degrees * 1e5, -4e6}});
            openRing(drawing, gap);
            EXPECT_EQ(facesOf(drawing.curves).areas.size(), gap < 200.0 ? 1U : 0U)
                << gap << " at " << degrees;
        }
    }
}

/// Grids of roads, each drawn either way, in any order, its ends up to 140 off.
TEST(RandomLoops, gridHasItsCells) {
    std::mt19937 random(7);
    const auto upTo = [&](double most) { return std::uniform_real_distribution<double>(0.0, most)(random); };
    for (int run = 0; run < 100; ++run) {
        const int columns = 2 + run % 5;
        const int rows = 2 + run % 7;
        Drawing drawing({upTo(360.0), {upTo(1e7), upTo(1e7)}});
        const auto road = [&](double x1, double y1, double x2, double y2) {
            if (upTo(1.0) < 0.5) {
                std::swap(x1, x2);
                std::swap(y1, y2);
            }
            drawing.line(x1, y1, x2, y2);
        };
        for (int i = 0; i < columns; ++i)
            road(i * 5000, upTo(280) - 140, i * 5000, (rows - 1) * 4000 + upTo(280) - 140);
        for (int j = 0; j < rows; ++j)
            road(upTo(280) - 140, j * 4000, (columns - 1) * 5000 + upTo(280) - 140, j * 4000);
        std::shuffle(drawing.curves.begin(), drawing.curves.end(), random);
        const Faces faces = facesOf(drawing.curves);
        EXPECT_EQ(faces.areas.size(), static_cast<std::size_t>((columns - 1) * (rows - 1)));
        EXPECT_EQ(faces.invalid, 0U);
        for (const double area : faces.areas)
            EXPECT_NEAR(area * 1e-6, 20.0, 2.5);
    }
}

/// n lines of which every two cross, no three in one point, bound (n - 1) (n - 2) / 2 faces; n such circles
/// n n - n + 1.
TEST(RandomLoops, linesAndCirclesInGeneralPosition) {
    std::mt19937 random(11);
    const auto between = [&](double least, double most) {
        return std::uniform_real_distribution<double>(least, most)(random);
    };
    for (std::size_t n = 2; n < 14; ++n) {
        Drawing lines(kPlacings[n % 4]);
        Drawing circles(kPlacings[n % 4]);
        for (std::size_t i = 0; i < n; ++i) {
            const double angle = (static_cast<double>(i) + between(0.1, 0.9)) * kPi / static_cast<double>(n);
            const double aside = between(-3000, 3000);
            const Point along(1e6 * std::cos(angle), 1e6 * std::sin(angle));
            const Point foot(-aside * std::sin(angle), aside * std::cos(angle));
            lines.line(foot.x - along.x, foot.y - along.y, foot.x + along.x, foot.y + along.y);
            circles.circle({between(-2000, 2000), between(-2000, 2000)}, 5000);
        }
        EXPECT_EQ(facesOf(lines.curves, 1e-3).areas.size(), (n - 1) * (n - 2) / 2) << n;
        EXPECT_EQ(facesOf(circles.curves, 1e-3).areas.size(), n * n - n + 1) << n;
    }
}

/// Lines and arcs at random and on a grid, so that many meet, touch and run along each other: no place is in
/// two faces.
TEST(RandomLoops, facesNeverOverlap) {
    std::mt19937 random(3);
    const auto upTo = [&](int most) { return std::uniform_int_distribution<int>(0, most)(random); };
    for (int run = 0; run < 2000; ++run) {
        const double step = run % 2 == 0 ? 500.0 : 1.7;
        const auto place = [&] { return Point(upTo(20) * step, upTo(20) * step); };
        Drawing drawing(kPlacings[run % 4]);
        for (int i = upTo(10); i >= 0; --i) {
            const Point start = place();
            const Point end = place();
            const Point through = place();
            if (start == end)
                continue;
            if (CArc2d(start, end, through).edges().empty() || i % 2 == 0)
                drawing.line(start.x, start.y, end.x, end.y);
            else
                drawing.arc(start, end, through);
        }
        std::vector<CCoedgeList> lists;
        std::vector<CPolygon*> polygons;
        ASSERT_EQ(Curve2dlistToCoedgelists(drawing.curves, lists, run % 3 == 0 ? 1e-3 : step / 5.0),
                  LoopsJoined);
        CLoopTreeNode::GenPolygonListByCoedgeList(lists, polygons);
        for (const CPolygon* polygon : polygons)
            EXPECT_TRUE(polygon->IsValid(0x1F, nullptr)) << "run " << run;
        for (int i = 0; i < 50; ++i) {
            const Point probe = kPlacings[run % 4](upTo(20000) * 1e-3 * step, upTo(20000) * 1e-3 * step);
            EXPECT_LE(std::count_if(polygons.begin(), polygons.end(),
                                    [&](const CPolygon* polygon) { return contains(*polygon, probe); }),
                      1)
                << "run " << run;
        }
        for (CPolygon* polygon : polygons)
            polygon->Free();
    }
}

} // namespace
