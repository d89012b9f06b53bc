// Distances of straight outlines by a library that knows nothing of this one.
#include "geos_distance.h"
#include "measure.h"

#include <gtest/gtest.h>

using namespace outlines;

TEST(StraightDistance, agreesOnRandomSnappedTurnedAndDistantOutlines) {
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
            Outline a = anyOutline(random, false);
            Outline b = moved(anyOutline(random, false), random.between(0, 6), random.between(-25000, 25000),
                              random.between(-25000, 25000));
            if (layout.grid > 0) {
                a = snapped(a, layout.grid);
                b = snapped(b, layout.grid);
            }
            a = moved(a, layout.turn, layout.away, -layout.away);
            b = moved(b, layout.turn, layout.away, -layout.away);
            const double expected = geosDistance(a, b);
            ASSERT_NEAR(measured(a, b), expected, 1e-5) << "pair " << i;
            ASSERT_EQ(measured(a, b), measured(b, a)) << "pair " << i;
            apart += expected > 0;
        }
        EXPECT_GT(apart, 500);
        EXPECT_LT(apart, 1900);
    }
}
