#pragma once

#include "report/plan/PlanShape.h"

namespace firecheck {

/// Where a pin or a name stands on an element, and how much of the element lies around it. Millimetres; a
/// line has nothing around it.
struct ElementSpot {
    hrx::CVec2<double> point;
    double halfWidth = 0.0;  ///< as far as the element reaches to both sides
    double halfHeight = 0.0; ///< as far as it reaches towards +y and -y
};

/// A point well inside what the element's closed outlines fill, arcs, holes and notches as they are. Of an
/// element that fills nothing it is the point half way along its longest path. The shape has paths.
ElementSpot elementSpot(const PlanShape& shape);

} // namespace firecheck
