#include "site/yard_or_3ds_body.h"

#include "elements/NUX3dsObject.h"
#include "elements/NUXCalcFunc.h"
#include "elements/NUXYardOBJObject.h"
#include "site/raised_outline.h"
#include "site/rectangle_outline.h"

namespace {

NUXRectParam yardRect(const NUXYardOBJObject& yard) {
    hrx::CVec2<double> centre;
    double length = 0.0;
    double depth = 0.0;
    double angle = 0.0;
    yard.calculateParam(centre, length, depth, angle);
    return NUXRectParam(centre, length, depth, angle);
}

NUXRectParam modelRect(const NUX3dsObject& model) {
    double length = 0.0;
    double depth = 0.0;
    model.calculateWidthAndHeight(length, depth);
    const hrx::CVec3<double> position = model.GetPosition();
    return NUXRectParam({position.x, position.y}, length, depth, model.getAngle());
}

} // namespace

void buildYardOr3dsPolygon(const UdRxObject* object, OutlinePtr& outline) {
    if (const auto* yard = NUXYardOBJObject::Cast(object))
        outline = buildRectParamPolygon(yardRect(*yard));
    // Deliberate: tried after the yard, so an object of both kinds ends with the model's footprint.
    if (const auto* model = NUX3dsObject::Cast(object))
        outline = buildRectParamPolygon(modelRect(*model));
}

void buildYardOr3dsBody(const UdRxObject* object, BodyPtr& body) {
    OutlinePtr outline;
    buildYardOr3dsPolygon(object, outline);
    if (!NUXCalcFunc::IsNuxStrictlyValid(outline.get(), true))
        return;
    body = raisedOutline(outline.release(), 1.0);
}
