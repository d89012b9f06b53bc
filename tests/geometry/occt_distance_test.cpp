// Distances of arcs and upright cylinders by a modelling kernel that knows nothing of this library. Built
// only where the kernel is installed.
#include "geometry/GBodyBuilder.h"
#include "measure.h"
#include "random_outlines.h"

#include <gtest/gtest.h>

#include <BRepBuilderAPI_MakeEdge.hxx>
#include <BRepBuilderAPI_MakeFace.hxx>
#include <BRepBuilderAPI_MakeWire.hxx>
#include <BRepExtrema_DistShapeShape.hxx>
#include <BRepPrimAPI_MakeCylinder.hxx>
#include <BRepPrimAPI_MakePrism.hxx>
#include <GC_MakeArcOfCircle.hxx>
#include <gp_Ax2.hxx>

using namespace outlines;

namespace {

gp_Pnt at(double x, double y) {
    return gp_Pnt(x, y, 0.0);
}

TopoDS_Edge edge(const hrx::PolyPt2d& start, const hrx::PolyPt2d& end) {
    if (start.bulge == 0.0)
        return BRepBuilderAPI_MakeEdge(at(start.x, start.y), at(end.x, end.y));
    // The middle of the arc lies off the chord by half its length times the bulge, to the right of a positive
    // one.
    const double x = 0.5 * (start.x + end.x) + 0.5 * start.bulge * (end.y - start.y);
    const double y = 0.5 * (start.y + end.y) - 0.5 * start.bulge * (end.x - start.x);
    return BRepBuilderAPI_MakeEdge(
        GC_MakeArcOfCircle(at(start.x, start.y), at(x, y), at(end.x, end.y)).Value());
}

TopoDS_Shape prism(const Loop& loop, double height) {
    BRepBuilderAPI_MakeWire wire;
    for (std::size_t i = 0; i < loop.size(); ++i)
        wire.Add(edge(loop[i], loop[(i + 1) % loop.size()]));
    return BRepPrimAPI_MakePrism(BRepBuilderAPI_MakeFace(wire.Wire(), true).Face(), gp_Vec(0.0, 0.0, height));
}

double distance(const TopoDS_Shape& a, const TopoDS_Shape& b) {
    const BRepExtrema_DistShapeShape result(a, b);
    return result.InnerSolution() ? 0.0 : result.Value();
}

Outline placed(Random& random, const Loop& loop) {
    return moved({loop}, random.between(0.0, 2 * kPi), random.between(-20000, 20000),
                 random.between(-20000, 20000));
}

Loop anyLoop(Random& random) {
    switch (random.below(3)) {
    case 0:
        return rectangle(random.between(500, 9000), random.between(500, 9000));
    case 1:
        return circle(random.between(300, 4000));
    default: {
        const double inner = random.between(2000, 20000);
        return arcStrip(inner, inner + random.between(500, 6000), random.between(0.3, 3.0));
    }
    }
}

} // namespace

TEST(ModellingKernel, agreesOnOutlinesWithArcs) {
    Random random(11);
    int apart = 0;
    for (int i = 0; i < 400; ++i) {
        const Outline a = placed(random, anyLoop(random));
        const Outline b = placed(random, anyLoop(random));
        const double expected = distance(prism(a[0], 1.0), prism(b[0], 1.0));
        EXPECT_NEAR(measured(a, b), expected, 1e-4) << "pair " << i;
        apart += expected > 0.0;
    }
    EXPECT_GT(apart, 200);
}

TEST(ModellingKernel, agreesOnUprightCylinders) {
    Random random(12);
    for (int i = 0; i < 400; ++i) {
        const Outline a = placed(random, rectangle(random.between(500, 9000), random.between(500, 9000)));
        const double x = random.between(-20000, 20000);
        const double y = random.between(-20000, 20000);
        const double z = random.between(-3000, 3000);
        const double radius = random.between(10, 3000);
        const double height = random.between(100, 5000);
        const Body cylinder(
            hrx::GBodyBuilder(true, true).CylinderBody({x, y, z}, {x, y, z + height}, radius));
        const TopoDS_Shape expected =
            BRepPrimAPI_MakeCylinder(gp_Ax2(gp_Pnt(x, y, z), gp::DZ()), radius, height).Shape();
        EXPECT_NEAR(measured(*raised(a, 1000.0), *cylinder), distance(prism(a[0], 1000.0), expected), 1e-4)
            << "pair " << i;
    }
}
