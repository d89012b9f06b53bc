#include "geometry/CPlaneCurve3d.h"
#include "geometry/GBodyBuilder.h"
#include "measure.h"

#include <gtest/gtest.h>

using namespace outlines;

namespace {

struct Pair {
    const char* name;
    Outline a;
    Outline b;
    double distance;
};

Outline at(Loop loop, double x, double y) {
    return moved({std::move(loop)}, 0, x, y);
}

/// A rectangle with a half circle added to its right side or taken off it.
Outline sided(double bulge) {
    return {{{0, 0, 0}, {8000, 0, bulge}, {8000, 6000, 0}, {0, 6000, 0}}};
}

const std::vector<Pair>& pairs() {
    static const Outline ring = {circle(10000), circle(6000)};
    static const Outline house = {rectangle(7000, 4000)};
    static const Outline frame = {rectangle(20000, 20000), rectangle(16000, 16000)};
    static const std::vector<Pair> table = {
        {"6 m apart", house, at(rectangle(5000, 3000), 12000, 500), 6000},
        {"edge on edge", house, at(rectangle(5000, 3000), 6000, 700), 0},
        {"corner on corner", house, at(rectangle(5000, 3000), 6000, 3500), 0},
        {"corner to corner", {rectangle(6000, 4000)}, at(rectangle(2000, 2000), 7000, 7000), 5000},
        {"inside", house, at(rectangle(500, 300), 100, 100), 0},
        {"crossed, no corner inside", {rectangle(7000, 1000)}, {rectangle(1000, 7000)}, 0},
        {"the same twice", house, house, 0},
        {"circle beside a wall", {circle(500)}, at(rectangle(1000, 9000), 7000, 1000), 6000},
        {"circle touching a wall", {circle(500)}, at(rectangle(1000, 9000), 1000, 1000), 0},
        {"circle inside", {circle(500)}, at(rectangle(4000, 9000), 1000, 1000), 0},
        {"circles apart", {circle(3000)}, at(circle(1000), 6000, 8000), 6000},
        {"circle in a circle", {circle(3000)}, at(circle(1000), 500, 0), 0},
        {"point-like", {rectangle(0, 0)}, at(rectangle(7000, 4000), 9500, 0), 6000},
        {"line touching a corner", {{{0, 0, 0}, {4000, 0, 0}}}, at(rectangle(2000, 2000), 5000, 1000), 0},
        {"circle in the hole of a ring", ring, at(circle(2000), 3000, 0), 1000},
        {"circle filling the hole", ring, {circle(6000)}, 0},
        {"ring in the hole of a frame", frame, {circle(7000), circle(6900)}, 1000},
        {"ring around the hole of a ring", ring, {circle(8000), circle(2000)}, 0},
        {"square in a square hole", frame, at(rectangle(4000, 4000), 5000, 0), 1000},
        {"inside a bend, outside the road", {arcStrip(8000, 12000, 1.5 * kPi)}, {circle(1000)}, 7000},
        {"on the chord of a bend", {arcStrip(8000, 12000, 1.5 * kPi)}, at(circle(1000), -9500, 0), 0},
        {"beside the centre of a bend", {arcStrip(38000, 42000, 1.5 * kPi)}, {rectangle(1e-7, 1e-7)}, 38000},
        {"half circle added", sided(1), at(circle(500), 8000, 3000), 0},
        {"half circle taken off", sided(-1), at(circle(500), 8000, 3000), 2500},
        {"three-quarter circle",
         {{{0, 0, std::tan(3 * kPi / 8)}, {4000, 0, 0}}},
         at(rectangle(1000, 1000), 2000, -7500 - std::sqrt(8e6)),
         5000},
    };
    return table;
}

} // namespace

TEST(ExactDistance, isTheSameAtEveryAngleAndPlace) {
    for (const Pair& pair : pairs()) {
        SCOPED_TRACE(pair.name);
        Random random(3);
        for (int i = 0; i < 300; ++i) {
            const double angle = i == 0 ? 0 : i == 1 ? 36.87 * kPi / 180 : random.between(0, 2 * kPi);
            const double reach = i % 3 == 0 ? 0 : i % 3 == 1 ? 1e6 : 1e8;
            const double dx = random.between(-reach, reach);
            const double dy = random.between(-reach, reach);
            const Outline a = moved(pair.a, angle, dx, dy);
            const Outline b = moved(pair.b, angle, dx, dy);
            ASSERT_EQ(measured(a, b), pair.distance) << "turn " << i;
            ASSERT_EQ(measured(b, a), pair.distance) << "turn " << i;
        }
    }
}

TEST(ExactDistance, isThatOfBentCablesHoweverFlat) {
    for (const double sagitta : {1e3, 1.0, 1e-2, 1e-4, 4e-6}) {
        const hrx::CPlaneCurve3d path({-1e4, 0, 4500}, {1e4, 0, 4500}, {0, sagitta, 4500});
        const Body cable(hrx::GBodyBuilder(true, true).SweepBody(polygon({circle(400)}), path));
        ASSERT_TRUE(cable) << sagitta;
        const Body below = raised({rectangle(4000, 9000)}, 4000);
        const Body beside = raised(at(rectangle(4000, 8000), 0, 5400 + sagitta), 9000);
        EXPECT_NEAR(measured(*cable, *below), 100, 1e-5) << sagitta;
        EXPECT_NEAR(measured(*cable, *beside), 1000, 1e-5) << sagitta;
    }
}

TEST(ExactDistance, ofSlopingCablesIsThatOfStraightOnesWhereTheyAreFlat) {
    const hrx::CVec3<double> start(7620, -13042, 4500);
    const hrx::CVec3<double> run(-14903, 19157, 4038);
    hrx::GBodyBuilder builder(true, true);
    const Body straight(builder.CylinderBody(start, start + run, 10));
    const Body below = raised(at(rectangle(30000, 9000), 0, 4216), 4000);
    for (const double sagitta : {1e-3, 1e-4, 1e-5, 4e-6}) {
        const hrx::CVec3<double> sideways =
            hrx::CVec3<double>(run.y, -run.x, 0) * (sagitta / std::hypot(run.x, run.y));
        const hrx::CPlaneCurve3d path(start, start + run, start + run * 0.5 + sideways);
        const Body bent(builder.SweepBody(polygon({circle(10)}), path));
        ASSERT_TRUE(bent) << sagitta;
        EXPECT_NEAR(measured(*bent, *below), measured(*straight, *below), sagitta + 1e-5) << sagitta;
    }
}
