#pragma once

#include "report/plan/PlanShape.h"

class UdDbObject;

namespace firecheck {

/// The object's outline in plan, arcs as arcs: a road's from its centre line and width, a house's with its
/// stairs, a door's with its posts, and the extents of what has no outline. Without title and label. No paths
/// for an object without any geometry.
PlanShape planShapeOf(const UdDbObject& object);

} // namespace firecheck
