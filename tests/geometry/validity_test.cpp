#include "Placing.h"
#include "elements/NUXCalcFunc.h"
#include "geometry/CExtrudedBody.h"
#include "geometry/CPolygon.h"
#include "geometry/plan/edge_crossing.h"

#include <gtest/gtest.h>

#include <cmath>
#include <map>

using namespace hrx;
using namespace outlines;

namespace {

Loop square(double low, double high) {
    return {{low, low, 0}, {high, low, 0}, {high, high, 0}, {low, high, 0}};
}

bool crossesPairByPair(const CPolygon& outline) {
    for (const Edge2d& a : outline.GetLoop(0)->edges())
        for (const Edge2d& b : outline.GetLoop(0)->edges())
            if (plan::edgesCross(a, b))
                return true;
    return false;
}

/// In any order near a slanting line, off it by at most so much.
Loop alongLine(Random& random, double off) {
    const double angle = random.between(0.0, 4.0);
    const double slant = random.below(2) ? angle : angle * 1e-6;
    Loop loop;
    for (int i = 0; i < 30; ++i) {
        const double along = random.below(3) ? random.between(-1e5, 1e5) : random.between(-1e-5, 1e-5);
        const double aside = random.between(-off, off);
        loop.push_back({along * std::cos(slant) - aside * std::sin(slant),
                        along * std::sin(slant) + aside * std::cos(slant), 0.0});
    }
    return loop;
}

TEST(OutlineValidity, crossingEdgesAsFoundPairByPair) {
    Random random(5);
    std::map<bool, int> crossing[2];
    for (int i = 0; i < 4000; ++i) {
        const double mostBulge[] = {0.0, 0.4, 1e-5};
        const bool isFlat = i % 2 != 0;
        Loop loop = isFlat ? alongLine(random, std::pow(10.0, random.between(-9.0, -4.0)))
                           : star(random, 3 + random.below(30), mostBulge[random.below(3)]);
        if (random.below(2))
            std::swap(loop[0], loop[static_cast<std::size_t>(random.below(static_cast<int>(loop.size())))]);
        const PolygonRef outline(polygon({loop}));
        const bool expected = crossesPairByPair(*outline);
        EXPECT_EQ(outline->IsValid(0x10, nullptr), !expected) << "outline " << i;
        ++crossing[isFlat][expected];
    }
    for (auto& found : crossing)
        EXPECT_GT(std::min(found[false], found[true]), 200);
}

/// Strictly valid is what encloses an area as well.
TEST(OutlineValidity, crossingEdgesAndAreaHoweverPlaced) {
    const struct {
        const char* name;
        Outline outline;
        bool valid;
        bool strictly;
    } cases[] = {
        {"square", {square(0, 10)}, true, true},
        {"clockwise", {{{0, 0, 0}, {0, 10, 0}, {10, 0, 0}}}, true, true},
        {"bow tie", {{{0, 0, 0}, {10, 10, 0}, {10, 0, 0}, {0, 10, 0}}}, false, false},
        {"bow tie with area left", {{{0, 0, 0}, {9, 9, 0}, {9, 0, 0}, {0, 5, 0}}}, false, false},
        {"crossing by a hair",
         {{{0, 0, 0}, {10, 0, 0}, {10, 10, 0}, {5, -0.0001, 0}, {0, 10, 0}}},
         false,
         false},
        {"corner on an edge", {{{0, 0, 0}, {10, 0, 0}, {10, 10, 0}, {5, 0, 0}, {0, 10, 0}}}, true, true},
        {"there and back", {{{0, 0, 0}, {3000, 1000, 0}}}, true, false},
        {"there and back along an arc", {{{0, 0, 0.3}, {3000, 1000, -0.3}}}, true, false},
        {"circle", {circle(5)}, true, true},
        {"arc across the edge opposite", {{{0, 0, 0}, {10, 0, 0}, {10, 4, 1}, {0, 4, 0}}}, true, true},
        {"arc through the edge opposite", {{{0, 0, 0}, {10, 0, 0}, {10, 4, -1}, {0, 4, 0}}}, false, false},
        {"arc touching the edge opposite", {{{0, 0, 0}, {10, 0, 0}, {10, 5, -1}, {0, 5, 0}}}, true, true},
        {"three-quarter arc beside an edge", {{{0, 0, 2.5}, {4, 0, 0}, {2, -3, 0}}}, true, true},
        {"three-quarter arc through an edge", {{{0, 0, 2.5}, {4, 0, 0}, {2, -9, 0}}}, false, false},
        {"arc running into a line",
         {{{0, 0, 0}, {9e3, 0, 0.41421356}, {12e3, 3e3, 0}, {0, 3e3, 0}}},
         true,
         true},
        {"arcs crossing", {{{0, 0, 1}, {10, 0, 0}, {6, -1, -1}, {-4, -1, 0}}}, false, false},
        {"arc through an edge that begins beside its end by a hair",
         {{{0, 0, 0}, {9000, 0, 0}, {3500, -500, 6.03}, {1e-5, 0, 0}}},
         false,
         false},
        {"hole", {square(0, 10), square(3, 7)}, true, true},
        {"hole as large as the outline", {circle(3), {{-3, 0, -1}, {3, 0, -1}}}, true, false},
        {"hole across the outline", {square(0, 10), square(5, 15)}, false, false},
    };
    for (const auto& row : cases) {
        for (const Placing& placing : kPlacings) {
            SCOPED_TRACE(row.name + std::string(" turned by ") + std::to_string(placing.degrees));
            const PolygonRef outline = placed(row.outline, placing);
            EXPECT_EQ(outline->IsValid(0x1F, nullptr), row.valid);
            EXPECT_EQ(NUXCalcFunc::IsNuxStrictlyValid(outline.get(), true), row.strictly);
            const CExtrudedBody sunk(CCoord3<double>(), -2.0, outline.get(), true);
            EXPECT_EQ(NUXCalcFunc::IsNuxStrictlyBodyValid(&sunk), row.strictly);
        }
    }
    EXPECT_FALSE(NUXCalcFunc::IsNuxStrictlyValid(nullptr, true));
    EXPECT_FALSE(NUXCalcFunc::IsNuxStrictlyBodyValid(nullptr));
}

TEST(OutlineValidity, eachCheckFindsItsFaultAlone) {
    const CVec2<double> origin;
    const CVec2<double> right(10, 0);
    const CVec2<double> top(0, 10);
    const std::vector<CCoedgeList> faulty[] = {
        {CCoedgeList(std::vector<Edge2d>{{origin, origin, 0}})},
        {CCoedgeList(std::vector<Edge2d>{{origin, right, std::nan("")}, {right, origin, 0}})},
        {CCoedgeList(std::vector<Edge2d>{{origin, right, 0}, {top, origin, 0}})},
        {CCoedgeList(std::vector<Edge2d>{{origin, right, 0}, {right, right, 0}, {right, origin, 0}})},
        {CCoedgeList(Loop{{0, 0, 0}, {10, 10, 0}, {10, 0, 0}, {0, 10, 0}})},
    };
    for (std::size_t bit = 0; bit < std::size(faulty); ++bit) {
        const PolygonRef polygon(new CPolygon(faulty[bit]));
        EXPECT_FALSE(polygon->IsValid(1U << bit, nullptr)) << bit;
        EXPECT_TRUE(polygon->IsValid(0, nullptr)) << bit;
        // A loop of one edge without length fails two checks.
        if (bit > 0) {
            EXPECT_TRUE(polygon->IsValid(0x1FU & ~(1U << bit), nullptr)) << bit;
        }
    }
}

} // namespace
