#pragma once

#include "elements/NUXRectParam.h"
#include "geometry/CPolygon.h"

#include <array>
#include <bitset>
#include <memory>
#include <vector>

class NUXBaseObject;
class NUXDoorObject;
class NUXPrefabHouseObject;
class UdDbPolyLine;
class UdRxObject;

namespace firestandard {

struct OutlineRelease {
    void operator()(hrx::CPolygon* outline) const { outline->Free(); }
};

/// An outline that its holder releases. A body made of it keeps what it needs, so the holder may release it
/// or hand it over to the body for good.
using OutlinePtr = std::unique_ptr<hrx::CPolygon, OutlineRelease>;

/// The checks that make an outline, or a body, fit for measuring.
inline const std::bitset<16> kFiveValidityChecks(0x1F);

/// Points whose squared distance is at most this, the square of the double epsilon, coincide.
inline constexpr double kCoincidentSquared = 4.930380657631324e-32;

/// Turns the outline so that the clock sign of its first loop is 1: the outline itself, also one that the
/// host keeps, as a road's.
void normaliseOrientation(hrx::CPolygon& outline);

/// The corners of a rectangle turned about its centre by an angle in degrees: counter-clockwise from the one
/// at (-length/2, -depth/2) of its own frame.
std::array<hrx::CVec2<double>, 4> turnedRectangleCorners(const hrx::CVec2<double>& centre, double length,
                                                         double depth, double degrees);

} // namespace firestandard

/// The rectangle that a prefab house takes up including its gallery and stairs: length and depth in
/// millimetres, and its centre. An unknown stair code sets none of the three, but still shifts the centre
/// across the house.
void getHouseRectWithStair(const NUXPrefabHouseObject& house, double& length, double& depth,
                           hrx::CVec2<double>& centre);

/// Appends the corners of the rectangle (see turnedRectangleCorners).
void getRectParamCorners(const NUXRectParam& rect, std::vector<hrx::CVec2<double>>& corners);

firestandard::OutlinePtr buildRectParamPolygon(const NUXRectParam& rect);

/// The outline of a polyline without its repeated points; null when no point remains.
firestandard::OutlinePtr buildPolylinePolygon(const UdDbPolyLine& polyline);

/// The footprint of a yard mesh or of a 3-D model object; an object that is both has the model's. Any other
/// object leaves `outline` as it is.
void buildYardOr3dsPolygon(const UdRxObject* object, firestandard::OutlinePtr& outline);

namespace firestandard {

// Rectangles as elements report them.
NUXRectParam rectangleOf(const NUXBaseObject& element);
/// A door's leaf and posts.
NUXRectParam rectangleOf(const NUXDoorObject& door);
/// That of getHouseRectWithStair, turned as the house is.
NUXRectParam houseRectWithStair(const NUXPrefabHouseObject& house);

/// The footprint of an element of any kind, a rectangle or a polyline; a door without one of these has its
/// leaf and posts. Null for a circle and for what has none.
OutlinePtr footprintOutline(const UdRxObject* object);

} // namespace firestandard
