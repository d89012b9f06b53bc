#include "site/bodies.h"

#include "elements/NUXBaseObject.h"
#include "elements/NUXCalcFunc.h"
#include "elements/NUXDoorObject.h"
#include "elements/NUXPrefabHouseObject.h"
#include "geometry/GBodyBuilder.h"
#include "site/element_type_identifiers.h"
#include "site/host_codes.h"
#include "site/outlines.h"

using namespace firestandard;

namespace {

// Of the five checks, the one that no two edges cross.
constexpr std::size_t kCrossingCheck = 4;

BodyPtr circleBody(const NUXBaseObject& element, double height) {
    const hrx::CVec3<double> bottom = element.getPtCircleCenter();
    const hrx::CVec3<double> top{bottom.x, bottom.y, bottom.z + height};
    return BodyPtr(hrx::GBodyBuilder(true, true).CylinderBody(bottom, top, element.getCircleRad()));
}

BodyPtr polylineBody(const NUXBaseObject& element, double height) {
    return firestandard::raisedOutline(buildPolylinePolygon(element).release(), height,
                                       element.getElevation());
}

BodyPtr doorBody(const NUXElementObject* element) {
    const auto* door = NUXDoorObject::Cast(element);
    if (!door)
        return nullptr;
    // Deliberate: a door's body is 1.0 high, whatever height was asked for; a gate across a fire road has
    // never stood in its headroom.
    return buildRectParamBody(firestandard::rectangleOf(*door), 1.0);
}

BodyPtr bodyByShape(const NUXElementObject* element, const NUXBaseObject& base, double height) {
    switch (base.m_shapeKind) {
    case shape::kRectangle:
        return buildRectParamBody(firestandard::rectangleOf(base), height);
    case shape::kCircle:
        return circleBody(base, height);
    case shape::kPolyline:
        return polylineBody(base, height);
    default:
        return element->getElementType() == NUX_EDO_TYPE_DOOR ? doorBody(element) : nullptr;
    }
}

firestandard::BodyList listOf(BodyPtr body) {
    firestandard::BodyList bodies;
    if (body)
        bodies.push_back(std::move(body));
    return bodies;
}

} // namespace

BodyPtr buildRectParamBody(const NUXRectParam& rect, double height) {
    const OutlinePtr outline = buildRectParamPolygon(rect);
    return firestandard::raisedOutline(outline.get(), height);
}

bool buildElementBody(const NUXElementObject* element, double height, BodyPtr& body) {
    const auto* base = NUXBaseObject::Cast(element);
    if (!base)
        return false;
    body = bodyByShape(element, *base, height);
    if (NUXCalcFunc::IsNuxStrictlyBodyValid(body.get()))
        return true;
    if (body)
        body.release()->Free();
    return false;
}

void buildYardOr3dsBody(const UdRxObject* object, BodyPtr& body) {
    OutlinePtr outline;
    buildYardOr3dsPolygon(object, outline);
    if (!NUXCalcFunc::IsNuxStrictlyValid(outline.get(), true))
        return;
    body = firestandard::raisedOutline(outline.release(), firestandard::kMeasuredHeight);
}

namespace firestandard {

std::unique_ptr<hrx::CExtrudedBody> raisedOutline(hrx::CPolygon* outline, double height, double elevation) {
    if (!outline)
        return nullptr;
    const hrx::CCoord3<double> frame({0.0, 0.0, elevation}, {1.0, 0.0, 0.0}, {0.0, 1.0, 0.0},
                                     {0.0, 0.0, 1.0});
    return std::make_unique<hrx::CExtrudedBody>(frame, height, outline, true);
}

BodyList elementBodies(const NUXElementObject* element) {
    BodyPtr body;
    buildElementBody(element, kMeasuredHeight, body);
    return listOf(std::move(body));
}

BodyList houseWithStairBodies(const NUXPrefabHouseObject& house) {
    return listOf(buildRectParamBody(houseRectWithStair(house), kMeasuredHeight));
}

BodyList yardOr3dsBodies(const UdRxObject* object) {
    BodyPtr body;
    buildYardOr3dsBody(object, body);
    return listOf(std::move(body));
}

BodyList outlineBodies(hrx::CPolygon* outline) {
    return listOf(raisedOutline(outline, kMeasuredHeight));
}

bool hasCrossingOutline(const NUXElementObject* element) {
    const auto* base = NUXBaseObject::Cast(element);
    const OutlinePtr outline =
        base && base->m_shapeKind == shape::kPolyline ? buildPolylinePolygon(*base) : nullptr;
    std::bitset<16> othersThanCrossing = kFiveValidityChecks;
    othersThanCrossing.reset(kCrossingCheck);
    return outline && outline->IsValid(othersThanCrossing, nullptr) &&
           !outline->IsValid(kFiveValidityChecks, nullptr);
}

} // namespace firestandard
