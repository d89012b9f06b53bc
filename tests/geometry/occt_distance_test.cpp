// Distances of outlines with arcs by a modelling kernel that knows nothing of this library. Built only where
// the kernel is installed.
#include "kernel_solids.h"
#include "measure.h"

#include <gtest/gtest.h>

using namespace outlines;

TEST(ModellingKernel, agreesOnOutlinesWithArcs) {
    Random random(11);
    const auto placed = [&] {
        return moved({anyOutline(random, true)[0]}, random.between(0.0, 2 * kPi),
                     random.between(-20000, 20000), random.between(-20000, 20000));
    };
    int apart = 0;
    for (int i = 0; i < 400; ++i) {
        const Outline a = placed();
        const Outline b = placed();
        const double expected = kernel::distance(kernel::prism(a[0], 1.0), kernel::prism(b[0], 1.0));
        EXPECT_NEAR(measured(a, b), expected, 1e-4) << "pair " << i;
        apart += expected > 0.0;
    }
    EXPECT_GT(apart, 150);
}
