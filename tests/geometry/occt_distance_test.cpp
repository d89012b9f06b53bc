// Distances of outlines with arcs and of cylinders by a modelling kernel that knows nothing of this library.
// Built only where the kernel is installed.
#include "geometry/GBodyBuilder.h"
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

TEST(ModellingKernel, agreesOnUprightAndLeaningCylinders) {
    Random random(12);
    for (int i = 0; i < 800; ++i) {
        const Loop plan = moved({rectangle(random.between(500, 9000), random.between(500, 9000))},
                                random.between(0, 2 * kPi), random.between(-20000, 20000), 0)[0];
        const hrx::CVec3<double> bottom(random.between(-20000, 20000), random.between(-20000, 20000),
                                        random.between(-3000, 3000));
        const double lean = i % 2 ? 8000.0 : 0.0;
        const hrx::CVec3<double> axis(random.between(-lean, lean), random.between(-lean, lean),
                                      random.between(100, 5000));
        const double radius = random.between(10, 3000);
        const Body cylinder(hrx::GBodyBuilder(true, true).CylinderBody(bottom, bottom + axis, radius));
        const double expected =
            kernel::distance(kernel::prism(plan, 1000.0), kernel::cylinder(bottom, bottom + axis, radius));
        EXPECT_NEAR(measured(*raised({plan}, 1000.0), *cylinder), expected, 1e-4) << "pair " << i;
    }
}
