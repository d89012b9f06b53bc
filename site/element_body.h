#pragma once

#include "elements/NUXRectParam.h"
#include "geometry/CBody.h"

#include <memory>

class NUXElementObject;
class NUXPrefabHouseObject;

using BodyPtr = std::unique_ptr<hrx::CBody>;

/// The rectangle raised from z = 0 to `height`.
BodyPtr buildRectParamBody(const NUXRectParam& rect, double height);

/// The rectangle that a prefab house takes up with its stairs, turned as the house is and raised to `height`.
BodyPtr buildHouseWithStairBody(const NUXPrefabHouseObject& house, double height);

/// The footprint raised by `height`: a rectangle from z = 0, a circle from its centre's z, a polyline from
/// the element's elevation. A door without one of these gets its leaf and posts, always 1.0 high. Answers
/// whether there is a body fit for measuring, and sets `body` to it or to null; an element of a class without
/// footprints leaves `body` as it is and answers false.
bool buildElementBody(const NUXElementObject* element, double height, BodyPtr& body);
