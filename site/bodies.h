#pragma once

#include "elements/NUXRectParam.h"
#include "geometry/CExtrudedBody.h"
#include "site/min_body_distance.h"

#include <memory>

class NUXElementObject;
class NUXPrefabHouseObject;
class UdRxObject;

namespace firestandard {

using BodyPtr = std::unique_ptr<hrx::CBody>;

/// Elements are measured against each other as solids this high, in millimetres.
inline constexpr double kMeasuredHeight = 1.0;

/// The solid over an outline, from `elevation` up by `height`, in millimetres. It shares the outline, which
/// its holder may release or hand over (see hrx::CPolygon). Null without one.
std::unique_ptr<hrx::CExtrudedBody> raisedOutline(hrx::CPolygon* outline, double height,
                                                  double elevation = 0.0);

// Body lists for a measure, of kMeasuredHeight: empty where the element has no body.
BodyList elementBodies(const NUXElementObject* element);
BodyList houseWithStairBodies(const NUXPrefabHouseObject& house);
BodyList yardOr3dsBodies(const UdRxObject* object);
BodyList outlineBodies(hrx::CPolygon* outline);

/// Whether the element has no body because two edges of its outline cross.
bool hasCrossingOutline(const NUXElementObject* element);

} // namespace firestandard

/// The rectangle raised from z = 0 to `height`.
firestandard::BodyPtr buildRectParamBody(const NUXRectParam& rect, double height);

/// The footprint raised by `height`: a rectangle from z = 0, a circle from its centre's z, a polyline from
/// the element's elevation. A door without one of these gets its leaf and posts, always 1.0 high. Answers
/// whether there is a body fit for measuring, and sets `body` to it or to null; an element of a class without
/// footprints leaves `body` as it is and answers false.
bool buildElementBody(const NUXElementObject* element, double height, firestandard::BodyPtr& body);

/// The footprint of a yard mesh or 3-D model object raised from z = 0 to 1.0. Without a footprint fit for
/// measuring `body` stays as it is.
void buildYardOr3dsBody(const UdRxObject* object, firestandard::BodyPtr& body);
