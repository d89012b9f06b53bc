#include "kernel_solids.h"

#include <BRepBuilderAPI_MakeEdge.hxx>
#include <BRepBuilderAPI_MakeFace.hxx>
#include <BRepBuilderAPI_MakePolygon.hxx>
#include <BRepBuilderAPI_MakeWire.hxx>
#include <BRepExtrema_DistShapeShape.hxx>
#include <BRepPrimAPI_MakeCylinder.hxx>
#include <BRepPrimAPI_MakePrism.hxx>
#include <GC_MakeArcOfCircle.hxx>
#include <gp_Ax2.hxx>

namespace {

gp_Pnt at(double x, double y) {
    return gp_Pnt(x, y, 0.0);
}
gp_Pnt at(const hrx::CVec3<double>& point) {
    return gp_Pnt(point.x, point.y, point.z);
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

} // namespace

namespace kernel {

TopoDS_Shape prism(const outlines::Loop& loop, double height) {
    BRepBuilderAPI_MakeWire wire;
    for (std::size_t i = 0; i < loop.size(); ++i)
        wire.Add(edge(loop[i], loop[(i + 1) % loop.size()]));
    return BRepPrimAPI_MakePrism(BRepBuilderAPI_MakeFace(wire.Wire(), true).Face(), gp_Vec(0.0, 0.0, height));
}

TopoDS_Shape cylinder(const hrx::CVec3<double>& bottom, const hrx::CVec3<double>& top, double radius) {
    const gp_Vec axis(at(bottom), at(top));
    return BRepPrimAPI_MakeCylinder(gp_Ax2(at(bottom), gp_Dir(axis)), radius, axis.Magnitude()).Shape();
}

TopoDS_Shape plate(const std::array<hrx::CVec3<double>, 4>& corners, double thickness) {
    BRepBuilderAPI_MakePolygon wire(at(corners[0]), at(corners[1]), at(corners[2]), at(corners[3]), true);
    const gp_Vec normal = gp_Vec(at(corners[0]), at(corners[1])) ^ gp_Vec(at(corners[0]), at(corners[3]));
    return BRepPrimAPI_MakePrism(BRepBuilderAPI_MakeFace(wire.Wire(), true).Face(),
                                 normal.Normalized() * thickness);
}

double distance(const TopoDS_Shape& a, const TopoDS_Shape& b) {
    const BRepExtrema_DistShapeShape result(a, b);
    return result.InnerSolution() ? 0.0 : result.Value();
}

} // namespace kernel
