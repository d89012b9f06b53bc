#include "Placing.h"
#include "geometry/CPolygon.h"
#include "geometry/edge_crossing.h"
#include "random_outlines.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace hrx;

namespace {

using Loop = std::vector<PolyPt2d>;

Loop square(double low, double high) {
    return {{low, low, 0}, {high, low, 0}, {high, high, 0}, {low, high, 0}};
}

PolygonRef placed(const std::vector<Loop>& outline, const Placing& placing) {
    std::vector<CCoedgeList> loops;
    for (Loop loop : outline) {
        for (PolyPt2d& corner : loop) {
            const CVec2<double> point = placing(corner.x, corner.y);
            corner = {point.x, point.y, corner.bulge};
        }
        loops.emplace_back(loop);
    }
    return PolygonRef(new CPolygon(loops));
}

TEST(OutlineValidity, crossingEdgesAsFoundPairByPair) {
    outlines::Random random(5);
    int crossing = 0;
    for (int i = 0; i < 2000; ++i) {
        outlines::Loop loop = outlines::star(random, 3 + random.below(30), random.below(2) ? 0.4 : 0.0);
        if (random.below(2))
            std::swap(loop[0], loop[static_cast<std::size_t>(random.below(static_cast<int>(loop.size())))]);
        const PolygonRef polygon(outlines::polygon({loop}));
        bool expected = false;
        for (const Edge2d& a : polygon->GetLoop(0)->edges())
            for (const Edge2d& b : polygon->GetLoop(0)->edges())
                expected |= &a < &b && edgesCross(a, b);
        EXPECT_EQ(polygon->IsValid(0x10, nullptr), !expected) << "outline " << i;
        crossing += expected;
    }
    EXPECT_GT(crossing, 200);
    EXPECT_LT(crossing, 1800);
}

TEST(OutlineValidity, crossingEdgesHoweverPlaced) {
    const struct {
        const char* name;
        std::vector<Loop> outline;
        bool valid;
    } cases[] = {
        {"square", {square(0, 10)}, true},
        {"bow tie", {{{0, 0, 0}, {10, 10, 0}, {10, 0, 0}, {0, 10, 0}}}, false},
        {"crossing by a hair", {{{0, 0, 0}, {10, 0, 0}, {10, 10, 0}, {5, -0.0001, 0}, {0, 10, 0}}}, false},
        {"corner on an edge", {{{0, 0, 0}, {10, 0, 0}, {10, 10, 0}, {5, 0, 0}, {0, 10, 0}}}, true},
        {"there and back", {{{0, 0, 0}, {3000, 1000, 0}}}, true},
        {"there and back along an arc", {{{0, 0, 0.3}, {3000, 1000, -0.3}}}, true},
        {"circle", {{{5, 0, 1}, {-5, 0, 1}}}, true},
        {"arc across the edge opposite", {{{0, 0, 0}, {10, 0, 0}, {10, 4, 1}, {0, 4, 0}}}, true},
        {"arc through the edge opposite", {{{0, 0, 0}, {10, 0, 0}, {10, 4, -1}, {0, 4, 0}}}, false},
        {"arc touching the edge opposite", {{{0, 0, 0}, {10, 0, 0}, {10, 5, -1}, {0, 5, 0}}}, true},
        {"arc running into a line",
         {{{0, 0, 0}, {9000, 0, 0.4142135623730951}, {12000, 3000, 0}, {0, 3000, 0}}},
         true},
        {"arcs crossing", {{{0, 0, 1}, {10, 0, 0}, {6, -1, -1}, {-4, -1, 0}}}, false},
        {"hole", {square(0, 10), square(3, 7)}, true},
        {"hole across the outline", {square(0, 10), square(5, 15)}, false},
    };
    for (const auto& row : cases) {
        for (const Placing& placing : kPlacings) {
            EXPECT_EQ(placed(row.outline, placing)->IsValid(0x1F, nullptr), row.valid)
                << row.name << " turned by " << placing.degrees;
        }
    }
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
