#include "site/element_body.h"

#include "elements/NUXBaseObject.h"
#include "elements/NUXCalcFunc.h"
#include "elements/NUXDoorObject.h"
#include "elements/NUXPrefabHouseObject.h"
#include "geometry/GBodyBuilder.h"
#include "site/element_type_identifiers.h"
#include "site/house_footprint.h"
#include "site/polyline_outline.h"
#include "site/raised_outline.h"
#include "site/rectangle_outline.h"

namespace {

hrx::CVec2<double> inPlan(const hrx::CVec3<double>& point) {
    return {point.x, point.y};
}

BodyPtr rectangleBody(const NUXBaseObject& element, double height) {
    return buildRectParamBody(NUXRectParam(inPlan(element.getPtRectCenter()), element.getRectWidthL(),
                                           element.getRectHigh(), element.getRectAngle()),
                              height);
}

BodyPtr circleBody(const NUXBaseObject& element, double height) {
    const hrx::CVec3<double> bottom = element.getPtCircleCenter();
    const hrx::CVec3<double> top{bottom.x, bottom.y, bottom.z + height};
    return BodyPtr(hrx::GBodyBuilder(true, true).CylinderBody(bottom, top, element.getCircleRad()));
}

BodyPtr polylineBody(const NUXBaseObject& element, double height) {
    return raisedOutline(buildPolylinePolygon(element).release(), height, element.getElevation());
}

BodyPtr doorBody(const NUXElementObject* element) {
    const auto* door = NUXDoorObject::Cast(element);
    if (!door)
        return nullptr;
    const int width = door->getPlankWidth() + 2 * door->getDoorPostSectionWidth();
    // Deliberate: a door's body is 1.0 high, whatever height was asked for.
    return buildRectParamBody(
        NUXRectParam(inPlan(door->getPosition()), width, door->getDoorPostSectionHeight(), door->getAngle()),
        1.0);
}

BodyPtr bodyByShape(const NUXElementObject* element, const NUXBaseObject& base, double height) {
    switch (base.m_shapeKind) {
    case kRectangleShape:
        return rectangleBody(base, height);
    case kCircleShape:
        return circleBody(base, height);
    case kPolylineShape:
        return polylineBody(base, height);
    default:
        return element->getElementType() == NUX_EDO_TYPE_DOOR ? doorBody(element) : nullptr;
    }
}

} // namespace

BodyPtr buildRectParamBody(const NUXRectParam& rect, double height) {
    const OutlinePtr outline = buildRectParamPolygon(rect);
    return raisedOutline(outline.get(), height);
}

BodyPtr buildHouseWithStairBody(const NUXPrefabHouseObject& house, double height) {
    double length = 0.0;
    double depth = 0.0;
    hrx::CVec2<double> centre;
    getHouseRectWithStair(house, length, depth, centre);
    return buildRectParamBody(NUXRectParam(centre, length, depth, house.getRectAngle()), height);
}

bool buildElementBody(const NUXElementObject* element, double height, BodyPtr& body) {
    const auto* base = NUXBaseObject::Cast(element);
    if (!base)
        return false;
    body = bodyByShape(element, *base, height);
    if (NUXCalcFunc::IsNuxStrictlyBodyValid(body.get()))
        return true;
    body.reset();
    return false;
}
