#pragma once

#include "geometry/CVec3.h"

namespace hrx {

class CPlane;
class CPolygon;

/// The outline through the points, dropped onto the plane, in the coordinates of the plane's frame. The
/// caller owns it. Null for fewer than three points and for an open outline, which bounds nothing.
CPolygon* CreatePolygon(const CVec3<double>* points, int count, bool closed, const CPlane& plane);

} // namespace hrx
