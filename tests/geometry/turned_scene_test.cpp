#include "sampled_solids.h"

#include <gtest/gtest.h>

using namespace outlines;
using sampled::Frame;
using sampled::Point;

namespace {

struct Upright {
    Outline outline;
    double low;
    double height;
};

Upright anySolid(Random& random, double grid) {
    Outline outline;
    switch (random.below(5)) {
    case 0:
    case 1:
        outline = {rectangle(1000 * (1 + random.below(12)), 1000 * (1 + random.below(12)))};
        break;
    case 2:
        outline = {star(random, 3 + random.below(8), 0)};
        break;
    case 3:
        outline = {arcStrip(5000, 9000, 0.5 * kPi * (1 + random.below(3)))};
        break;
    default:
        outline = {circle(500 * (1 + random.below(9)))};
    }
    outline = moved(outline, 0.5 * kPi * random.below(4), random.between(-16000, 16000),
                    random.between(-16000, 16000));
    if (grid > 0)
        outline = snapped(outline, grid);
    return {outline, 500.0 * random.below(20), 500.0 * (1 + random.below(8))};
}

Body placed(const Upright& solid, const Frame& scene) {
    Frame frame = scene;
    frame.origin = scene.toWorld({0, 0, solid.low});
    return raised(solid.outline, solid.height, frame);
}

} // namespace

/// A scene tipped over is measured by another method altogether, and must measure the same. Grids put faces
/// opposite each other, edges on edges and corners on corners, where iterations stall.
TEST(TurnedScene, measuresLikeTheUprightOne) {
    Random random(5);
    const Frame level;
    const Frame onItsSide({0, 0, 0}, {0, 1, 0}, {0, 0, 1}, {1, 0, 0});
    for (int i = 0; i < 4000 && !HasFailure(); ++i) {
        SCOPED_TRACE(i);
        const double grid = i % 4 == 0 ? 0 : 500;
        const Upright a = anySolid(random, grid);
        const Upright b = anySolid(random, grid);
        const double expected = measured(*placed(a, level), *placed(b, level));
        for (const Frame& scene : {onItsSide, sampled::randomFrame(random, {3000, 2000, 1000})})
            EXPECT_NEAR(measured(*placed(a, scene), *placed(b, scene)), expected, 2e-5);
    }
}
