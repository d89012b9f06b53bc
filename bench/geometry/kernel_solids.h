#pragma once

#include "geometry/CVec3.h"
#include "random_outlines.h"

#include <TopoDS_Shape.hxx>
#include <array>

/// Solids and their distances by a modelling kernel that knows nothing of this library.
namespace kernel {

TopoDS_Shape prism(const outlines::Loop& loop, double height);
TopoDS_Shape cylinder(const hrx::CVec3<double>& bottom, const hrx::CVec3<double>& top, double radius);
/// Four corners in counter-clockwise order, raised along their normal.
TopoDS_Shape plate(const std::array<hrx::CVec3<double>, 4>& corners, double thickness);
double distance(const TopoDS_Shape& a, const TopoDS_Shape& b);

} // namespace kernel
