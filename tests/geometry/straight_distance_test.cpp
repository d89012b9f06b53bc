#include "measure.h"
#include "random_outlines.h"

#include <geos_c.h>
#include <gtest/gtest.h>

#include <cstdarg>

using namespace outlines;

namespace {

/// Distances of straight outlines by a library that knows nothing of this one.
class Reference : public testing::Test {
protected:
    Reference() { initGEOS(nullptr, nullptr); }
    ~Reference() override { finishGEOS(); }

    static GEOSGeometry* ring(const Loop& loop) {
        GEOSCoordSequence* points = GEOSCoordSeq_create(static_cast<unsigned>(loop.size() + 1), 2);
        for (unsigned i = 0; i <= loop.size(); ++i)
            GEOSCoordSeq_setXY(points, i, loop[i % loop.size()].x, loop[i % loop.size()].y);
        return GEOSGeom_createLinearRing(points);
    }
    static GEOSGeometry* region(const Outline& outline) {
        std::vector<GEOSGeometry*> holes;
        for (std::size_t i = 1; i < outline.size(); ++i)
            holes.push_back(ring(outline[i]));
        return GEOSGeom_createPolygon(ring(outline[0]), holes.data(), static_cast<unsigned>(holes.size()));
    }
    static double distance(const Outline& a, const Outline& b) {
        GEOSGeometry* regionA = region(a);
        GEOSGeometry* regionB = region(b);
        double result = -1;
        GEOSDistance(regionA, regionB, &result);
        GEOSGeom_destroy(regionA);
        GEOSGeom_destroy(regionB);
        return result;
    }
};

Outline anyOutline(Random& random) {
    switch (random.below(4)) {
    case 0:
        return {rectangle(random.between(500, 20000), random.between(500, 20000))};
    case 1:
        return {star(random, 3 + random.below(18), 0)};
    case 2:
        return {rectangle(30000, 24000), rectangle(26000, 20000)};
    default:
        return {{{0, 0, 0}, {9000, 0, 0}, {9000, 3000, 0}, {3000, 3000, 0}, {3000, 8000, 0}, {0, 8000, 0}}};
    }
}

} // namespace

TEST_F(Reference, agreesOnRandomSnappedTurnedAndDistantOutlines) {
    struct Layout {
        const char* name;
        double grid, turn, away;
    };
    for (const Layout& layout : {Layout{"random", 0, 0, 0}, Layout{"on a grid", 500, 0, 0},
                                 Layout{"turned grid", 500, 36.87 * kPi / 180, 0},
                                 Layout{"far away", 0, 0, 4e9}, Layout{"far grid, turned", 500, 0.3, 4e9}}) {
        SCOPED_TRACE(layout.name);
        Random random(7);
        int apart = 0;
        for (int i = 0; i < 2000; ++i) {
            Outline a = anyOutline(random);
            Outline b = moved(anyOutline(random), random.between(0, 6), random.between(-25000, 25000),
                              random.between(-25000, 25000));
            if (layout.grid > 0) {
                a = snapped(a, layout.grid);
                b = snapped(b, layout.grid);
            }
            a = moved(a, layout.turn, layout.away, -layout.away);
            b = moved(b, layout.turn, layout.away, -layout.away);
            const double expected = distance(a, b);
            ASSERT_NEAR(measured(a, b), expected, 1e-5) << "pair " << i;
            ASSERT_EQ(measured(a, b), measured(b, a)) << "pair " << i;
            apart += expected > 0;
        }
        EXPECT_GT(apart, 500);
        EXPECT_LT(apart, 1900);
    }
}
