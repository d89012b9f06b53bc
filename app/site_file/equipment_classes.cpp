#include "elements/NUX3dsObject.h"
#include "elements/NUXPosterObject.h"
#include "elements/NUXTowerCraneObject.h"
#include "site_file/site_classes.h"
#include "text/words.h"

namespace firecheck {

namespace {

SiteClass towerCrane() {
    using Params = NUXTowerCraneParams;
    return siteClass<NUXTowerCraneObject, Params>(
        "towerCrane", "NUX_EDO_TYPE_TOWERCRANE", "a tower crane: a mast and two jibs",
        {requiredField("position", &Params::position, point(),
                       QT_TRANSLATE_NOOP("Words", "middle of the mast's foot")),
         requiredField(
             "jibHeight", &Params::jibHeight, extent(),
             QT_TRANSLATE_NOOP("Words",
                               "height of the jibs' underside above the foot; 0 for a crane without mast")),
         requiredField("frontJibLength", &Params::frontJibLength, extent(),
                       QT_TRANSLATE_NOOP("Words", "from the mast's axis; 0 for none")),
         defaultedField("counterJibLength", &Params::counterJibLength, extent(), 0,
                        "from the mast's axis; 0 for none"),
         defaultedField("angle", &Params::angle, number(), 0, "direction of the front jib in degrees"),
         defaultedField("jibInclination", &Params::jibInclination, number(), 0,
                        "of the front jib above the horizontal, in degrees"),
         defaultedField("mastWidth", &Params::mastWidth, extent(), 1600, "width of the square mast"),
         defaultedField("jibWidth", &Params::jibWidth, extent(), 1200, "width of the jibs in plan"),
         defaultedField("jibDepth", &Params::jibDepth, extent(), 1200, "vertical depth of the jibs")});
}

SiteClass poster() {
    using Params = NUXPosterParams;
    return siteClass<NUXPosterObject, Params>(
        "poster", "NUX_ELEMENT_TYPE_POSTER", "a poster or banner between two points",
        {requiredField("start", &Params::firstPoint, planPoint(),
                       QT_TRANSLATE_NOOP("Words", "one end in plan")),
         requiredField("end", &Params::secondPoint, planPoint(),
                       QT_TRANSLATE_NOOP("Words", "the other end in plan")),
         requiredField("height", &Params::height, extent(),
                       QT_TRANSLATE_NOOP("Words", "height of the poster")),
         defaultedField("elevationMetres", &Params::elevation, number(), 0,
                        "height of its lower edge above the ground, in metres"),
         defaultedField("drawType", &Params::drawType, code<int>({{"plate", 1}, {"sheet", 2}}), "plate",
                        "how it is drawn: as a standing plate or a sheet")});
}

Fields<NUX3dsBaseParams> placeFields() {
    using Params = NUX3dsBaseParams;
    return {requiredField("position", &Params::position, point(),
                          QT_TRANSLATE_NOOP("Words", "middle of the footprint")),
            defaultedField("angle", &Params::angle, number(), 0, "angle in degrees, counter-clockwise")};
}

SiteClass model() {
    using Params = NUX3dsParams;
    return siteClass<NUX3dsObject, Params>(
        "model", "", "a 3-D model of known size",
        extended(
            placeFields(),
            Fields<Params>{requiredField("length", &Params::length, extent(),
                                         QT_TRANSLATE_NOOP("Words", "along its own x axis")),
                           requiredField("depth", &Params::depth, extent(),
                                         QT_TRANSLATE_NOOP("Words", "along its own y axis")),
                           defaultedField("height", &Params::height, extent(), 0, "height of the model")}));
}

SiteClass extinguisherBox() {
    using Params = NUX3dsParams;
    const Fields<Params> size = {
        defaultedField("length", &Params::length, extent(), 600, "along its own x axis"),
        defaultedField("depth", &Params::depth, extent(), 250, "along its own y axis"),
        defaultedField("height", &Params::height, extent(), 800, "height of the box")};
    return siteClass<NUX3dsObject, Params>("extinguisherBox", "NUX_EDO_TYPE_FIREEXTINGUISHERBOX",
                                           "a box of fire extinguishers, a 3-D model",
                                           extended(placeFields(), size));
}

} // namespace

std::vector<SiteClass> equipmentClasses() {
    return {
        towerCrane(),
        poster(),
        extinguisherBox(),
        model(),
        siteClass<NUX3dsBaseObject, NUX3dsBaseParams>("sizelessModel", "", "a 3-D model of unknown size",
                                                      placeFields()),
    };
}

} // namespace firecheck
