#include "elements/NUXRoadObject.h"
#include "elements/NUXServiceCableObject.h"
#include "site_file/footprint_fields.h"
#include "site_file/site_classes.h"
#include "text/words.h"

namespace firecheck {

namespace {

Field<NUXRoadParams> outlineField() {
    const Codec<std::vector<hrx::PolyPt2d>> points = polyline();
    const auto schema = [points] { return Json{{"anyOf", {{{"enum", {"none"}}}, points.schema()}}}; };
    return {KeyShape{"outline",
                     "\"none\", or a closed polyline of [x, y] or [x, y, bulge]; from centre line and width "
                     "unless given",
                     false, schema},
            [points](NUXRoadParams& params, const Json& value, const JsonPlace& place) {
                if (value == "none") {
                    params.outline = NUXRoadOutline::None;
                    return;
                }
                if (!value.is_array())
                    refuseType(value, place, filled(Words::tr("\"none\" or a list of points")));
                params.outline = NUXRoadOutline::Given;
                params.givenOutline = points.read(value, place);
            }};
}

SiteClass road() {
    using Params = NUXRoadParams;
    Fields<Params> fields = {
        defaultedField("fireRoad", &Params::isFireRoad, flag(), false, "whether fire engines use it"),
        requiredField("start", &Params::start, planPoint(),
                      QT_TRANSLATE_NOOP("Words", "start of the centre line")),
        requiredField("end", &Params::end, planPoint(), QT_TRANSLATE_NOOP("Words", "end of the centre line")),
        optionalField("through", &Params::reference, planPoint(),
                      "a point between, which makes the centre line an arc"),
        defaultedField("width", &Params::width, integer<int>(0), 4000, "width of the road"),
        outlineField(),
    };
    return siteClass<NUXRoadObject, Params>(
        "road", "NUX_EDO_TYPE_ROAD", "a road, straight or along an arc",
        extended(unusedFootprintFields(), fields), [](Params& params, const Json& object, const JsonPlace&) {
            if (!object.contains("shapeKind") && object.contains("through"))
                params.shapeKind = kArcShape;
        });
}

SiteClass serviceCable() {
    using Params = NUXServiceCableParams;
    Fields<Params> fields = {
        requiredField("start", &Params::start, planPoint(), QT_TRANSLATE_NOOP("Words", "start in plan")),
        requiredField("end", &Params::end, planPoint(), QT_TRANSLATE_NOOP("Words", "end in plan")),
        optionalField("through", &Params::middle, planPoint(),
                      "a point between, which makes the cable an arc"),
        requiredField("startElevationMetres", &Params::startElevation, number(),
                      QT_TRANSLATE_NOOP("Words", "height of the cable's axis at its start, in metres")),
        optionalField("endElevationMetres", &Params::endElevation, number(),
                      "height of the cable's axis at its end, in metres; as at the start unless given"),
        defaultedField("radius", &Params::radius, extent(), 0, "radius of the cable"),
        optionalField("straight", &Params::isStraight, flag(),
                      "whether the plan curve is straight; follows from \"through\" unless given"),
    };
    return siteClass<NUXServiceCableObject, Params>(
        "serviceCable", "NUX_EDO_TYPE_SERVICECABLE", "an overhead cable",
        extended(unusedFootprintFields(), fields), [](Params& params, const Json& object, const JsonPlace&) {
            const bool isArc = object.contains("through");
            if (!object.contains("shapeKind"))
                params.shapeKind = isArc ? kArcShape : kStraightShape;
            if (!object.contains("straight"))
                params.isStraight = !isArc;
            if (!object.contains("endElevationMetres"))
                params.endElevation = params.startElevation;
        });
}

} // namespace

std::vector<SiteClass> routeClasses() {
    return {road(), serviceCable()};
}

} // namespace firecheck
