#include "sampled_solids.h"

#include <gtest/gtest.h>

using namespace outlines;
using namespace sampled;

namespace {

Point randomPlace(Random& random, double reach, double height) {
    return {random.between(-reach, reach), random.between(-reach, reach), random.between(-height, height)};
}

/// Turned, and often with bulging edges.
Outline turnedOutline(Random& random) {
    for (;;) {
        const Outline outline =
            random.below(2) ? anyOutline(random, true) : Outline{star(random, 3 + random.below(9), 0.8)};
        if (hrx::PolygonRef(polygon(outline))->IsValid(0x1f, nullptr))
            return moved(outline, random.between(0, 6), 0, 0);
    }
}

Solid uprightPrism(Random& random) {
    return prism(turnedOutline(random), Frame(), random.between(1, 6000));
}
Solid turnedUprightPrism(Random& random) {
    const double angle = random.between(0, 6);
    const double mirror = random.below(2) ? 1 : -1;
    const Point x(std::cos(angle), std::sin(angle), 0);
    const Point z(0, 0, mirror);
    return prism(turnedOutline(random), Frame({100, 200, 300}, x, cross(z, x), z),
                 random.between(-6000, 6000));
}
Solid tiltedPrism(Random& random) {
    return prism(turnedOutline(random), randomFrame(random, {0, 0, 0}), random.between(-6000, 6000));
}
Solid uprightDisc(Random& random) {
    const Point foot = randomPlace(random, 20000, 8000);
    return cylinder(foot, foot + Point(0, 0, random.between(1, 6000)), random.between(100, 8000));
}
Solid leaningCylinder(Random& random) {
    return cylinder(randomPlace(random, 20000, 8000), randomPlace(random, 20000, 8000),
                    random.between(5, 3000));
}
Solid flatCylinder(Random& random) {
    const Point from = randomPlace(random, 20000, 8000);
    return cylinder(from, from + Point(random.between(-20000, 20000), random.between(0, 9), 0),
                    random.between(5, 3000));
}
Solid levelTube(Random& random) {
    const double radius = random.between(4000, 30000);
    Frame frame;
    frame.origin = randomPlace(random, 25000, 8000);
    return tube(frame, radius, random.between(0.1, 6), random.between(5, 1500));
}
Solid anyTube(Random& random) {
    const double radius = random.between(4000, 30000);
    return tube(randomFrame(random, randomPlace(random, 20000, 8000)), radius, random.between(0.1, 6),
                random.between(5, 1500));
}
Solid tiltedPlate(Random& random) {
    return plate(randomFrame(random, randomPlace(random, 20000, 8000)), random.between(1000, 9000),
                 random.between(1000, 9000), 1);
}
Solid standingPlate(Random& random) {
    const double angle = random.below(4) * 0.25 * kPi;
    const Point x(std::cos(angle), std::sin(angle), 0);
    const Point y(0, 0, 1);
    return plate(Frame(randomPlace(random, 20000, 8000), x, y, cross(x, y)), random.between(1000, 9000),
                 random.between(1000, 9000), 1);
}

using Maker = Solid (*)(Random&);
struct Kinds {
    const char* name;
    Maker first;
    Maker second;
};

void PrintTo(const Kinds& kinds, std::ostream* out) {
    *out << kinds.name;
}

class SampledDistance : public testing::TestWithParam<Kinds> {};

/// The nearest points must be points of the solids and as far apart as the distance says: it is not too
/// small.
void expectWitnessed(const Solid& a, const Solid& b, double distance, const Point& onA, const Point& onB) {
    EXPECT_LT(a.distanceTo(onA), 1e-5);
    EXPECT_LT(b.distanceTo(onB), 1e-5);
    EXPECT_NEAR(length(onA - onB), distance, 1e-5);
}

} // namespace

TEST_P(SampledDistance, isWitnessedAndNoSampleIsNearer) {
    constexpr int kPairs = 200;
    Random random(11);
    int apart = 0;
    for (int i = 0; i < kPairs && !HasFailure(); ++i) {
        SCOPED_TRACE(i);
        const Solid a = GetParam().first(random);
        const Solid b = GetParam().second(random);
        ASSERT_TRUE(a.body && b.body);
        Point onA;
        Point onB;
        const double distance = hrx::GeometryDistance(a.body.get(), b.body.get(), onA, onB, 0.1);
        expectWitnessed(a, b, distance, onA, onB);
        EXPECT_LE(distance, leastSampledDistance(a, b) + 1e-5);
        EXPECT_NEAR(measured(*b.body, *a.body), distance, 1.1e-5);
        apart += distance > 0;
    }
    EXPECT_GT(apart, kPairs * 15 / 100);
    EXPECT_LT(apart, kPairs * 99 / 100);
}

INSTANTIATE_TEST_SUITE_P(Solids, SampledDistance,
                         testing::Values(Kinds{"prismAndDisc", uprightPrism, uprightDisc},
                                         Kinds{"turnedPrismAndDisc", turnedUprightPrism, uprightDisc},
                                         Kinds{"prismAndCylinder", uprightPrism, leaningCylinder},
                                         Kinds{"prismAndFlatCylinder", uprightPrism, flatCylinder},
                                         Kinds{"prismAndLevelTube", uprightPrism, levelTube},
                                         Kinds{"prismAndTube", uprightPrism, anyTube},
                                         Kinds{"prismAndPlate", uprightPrism, tiltedPlate},
                                         Kinds{"prismAndStandingPlate", uprightPrism, standingPlate},
                                         Kinds{"tiltedPrismAndDisc", tiltedPrism, uprightDisc},
                                         Kinds{"tiltedPrismAndTube", tiltedPrism, anyTube},
                                         Kinds{"tiltedPrismAndPlate", tiltedPrism, tiltedPlate},
                                         Kinds{"cylinders", leaningCylinder, leaningCylinder},
                                         Kinds{"cylinderAndTube", leaningCylinder, anyTube},
                                         Kinds{"tubes", levelTube, anyTube}));
