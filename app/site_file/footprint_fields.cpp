#include "site_file/footprint_fields.h"

#include "text/words.h"

namespace firecheck {

namespace {

/// A circle's radius point: to the right of its centre unless given.
void completeCircle(NUXBaseParams& params, const Json& circle) {
    if (circle.contains("radiusPoint"))
        return;
    params.circleRadiusPoint = params.circleCentre;
    params.circleRadiusPoint.x += params.circleRadius;
}

Field<NUXBaseParams> circleField() {
    Field<NUXBaseParams> field = nestedField<NUXBaseParams>(
        "circle",
        {requiredField("center", &NUXBaseParams::circleCentre, point(),
                       QT_TRANSLATE_NOOP("Words", "centre of the circle")),
         requiredField("radius", &NUXBaseParams::circleRadius, extent(),
                       QT_TRANSLATE_NOOP("Words", "radius of the circle")),
         optionalField("radiusPoint", &NUXBaseParams::circleRadiusPoint, point(),
                       "a point on the circle; to the right of the centre unless given")},
        "a footprint given as a circle");
    field.read = [readKeys = field.read](NUXBaseParams& params, const Json& circle, const JsonPlace& place) {
        readKeys(params, circle, place);
        completeCircle(params, circle);
    };
    return field;
}

Fields<NUXBaseParams> shapeFields() {
    return {
        optionalField("center", &NUXBaseParams::rectCentre, point(), "centre of the rectangle"),
        optionalField("length", &NUXBaseParams::rectLength, extent(),
                      "length of the rectangle, along its own x axis"),
        optionalField("depth", &NUXBaseParams::rectDepth, extent(),
                      "depth of the rectangle, along its own y axis"),
        defaultedField("angle", &NUXBaseParams::rectAngle, number(), 0,
                       "angle of the rectangle in degrees, counter-clockwise"),
        circleField(),
        optionalField("polyline", &NUXBaseParams::polyline, polyline(),
                      "a footprint given as a closed polyline of [x, y] or [x, y, bulge]"),
    };
}

bool hasRectangle(const Json& object) {
    return object.contains("center") && object.contains("length") && object.contains("depth");
}

} // namespace

Field<NUXBaseParams> elevationField() {
    return defaultedField("elevation", &NUXBaseParams::elevation, number(), 0,
                          "height of the element's foot above the ground");
}

Field<NUXBaseParams> shapeKindField() {
    return optionalField("shapeKind", &NUXBaseParams::shapeKind,
                         code<std::uint32_t>({{"none", kNoShape},
                                              {"rectangle", kRectangleShape},
                                              {"polyline", kPolylineShape},
                                              {"circle", kCircleShape},
                                              {"straight", kStraightShape},
                                              {"arc", kArcShape}}),
                         "how the element says that its place is given; follows from the keys unless given");
}

Fields<NUXBaseParams> footprintFields() {
    Fields<NUXBaseParams> fields = shapeFields();
    fields.push_back(elevationField());
    fields.push_back(shapeKindField());
    return fields;
}

void completeFootprint(NUXBaseParams& params, const Json& object, const JsonPlace& place) {
    if (object.contains("shapeKind"))
        return;
    const int given =
        int(hasRectangle(object)) + int(object.contains("circle")) + int(object.contains("polyline"));
    if (given == 0)
        refuse(
            place,
            filled(Words::tr(
                "expected a footprint: \"center\", \"length\" and \"depth\", or \"circle\", or \"polyline\"")));
    if (given > 1)
        refuse(place, filled(Words::tr("expected \"shapeKind\" to say which of the footprints counts")));
    params.shapeKind = hasRectangle(object)        ? kRectangleShape
                       : object.contains("circle") ? kCircleShape
                                                   : kPolylineShape;
}

Json footprintSchema() {
    const auto required = [](const std::vector<std::string>& keys) { return Json{{"required", keys}}; };
    const Json oneFootprint = {
        {"oneOf", {required({"center", "length", "depth"}), required({"circle"}), required({"polyline"})}}};
    return {{"anyOf", {required({"shapeKind"}), oneFootprint}}};
}

Fields<NUXBaseParams> unusedFootprintFields() {
    return {elevationField(), shapeKindField(),
            nestedField("footprint", shapeFields(), "footprint that the element reports beside its place")};
}

} // namespace firecheck
