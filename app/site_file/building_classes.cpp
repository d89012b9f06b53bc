#include "elements/NUXCloseHouseObject.h"
#include "elements/NUXOpenHouseObject.h"
#include "elements/NUXPrefabHouseObject.h"
#include "elements/NUXTotalStepDownSubstationObject.h"
#include "site_file/footprint_fields.h"
#include "site_file/site_classes.h"
#include "text/words.h"

namespace firecheck {

namespace {

SiteClass prefabHouse() {
    using Params = NUXPrefabHouseParams;
    const CodeNames stairs = {{"leftEnd", kStairAtLeftEnd},
                              {"rightEnd", kStairAtRightEnd},
                              {"none", kNoStair},
                              {"bothEnds", kStairAtBothEnds},
                              {"alongSide", kStairAlongSide}};
    const Fields<Params> fields = {
        requiredField("use", &Params::houseUse, code<int>({{"office", 0}, {"dormitory", 1}}),
                      QT_TRANSLATE_NOOP("Words", "what the house is used for")),
        defaultedField("floors", &Params::floorCount, integer<int>(), 1, "number of floors"),
        defaultedField("stairs", &Params::stairPosition, code<StairPt, int>(stairs), "none",
                       "where the outside stairs are"),
        defaultedField("gallerySide", &Params::isFB, code<int>({{"front", 0}, {"rear", 1}}), "front",
                       "side of the gallery and its stairs"),
        optionalField("floorDepth", &Params::depth, extent(),
                      "depth of a floor, for its area; that of the footprint unless given"),
        optionalField(
            "partitions", &Params::partitions, axisPositions(),
            "positions of the end walls and partitions along the house; without them no room is known"),
    };
    return footprintClass<NUXPrefabHouseObject, Params>(
        "prefabHouse", "NUX_ELEMENT_TYPE_PREFABHOUSE", "a prefabricated house: offices or dormitories",
        fields, [](Params& params, const Json& object, const JsonPlace&) {
            if (!object.contains("floorDepth"))
                params.depth = params.rectDepth;
        });
}

SiteClass openShed() {
    using Params = NUXOpenHouseParams;
    const CodeNames uses = {
        {"general", 0}, {"hotWork", 1}, {"formwork", 2}, {"woodworking", 3}, {"mechanical", 4}};
    return footprintClass<NUXOpenHouseObject, Params>(
        "openShed", "NUX_ELEMENT_TYPE_OPENHOUSE", "an open shed, mostly a workshop",
        {requiredField("use", &Params::use, code<int>(uses),
                       QT_TRANSLATE_NOOP("Words", "what the shed is used for"))});
}

SiteClass closedHouse() {
    using Params = NUXCloseHouseParams;
    return footprintClass<NUXCloseHouseObject, Params>(
        "closedHouse", "NUX_ELEMENT_TYPE_CLOSEHOUSE", "a closed house: canteen, toilet, store and the like",
        {requiredField("use", &Params::use, text(),
                       QT_TRANSLATE_NOOP("Words", "what the house is used for, in the words of the rules"))});
}

} // namespace

std::vector<SiteClass> buildingClasses() {
    const Fields<NUXBaseParams> none;
    return {
        prefabHouse(),
        closedHouse(),
        openShed(),
        footprintClass<NUXBaseObject>("futureHouse", "NUX_ELEMENT_TYPE_FUTUREHOUSE",
                                      "a building under construction", none),
        footprintClass<NUXBaseObject>("transformerSubstation", "NUX_ELEMENT_TYPE_TRANSFORMERSUBSTATION",
                                      "a transformer substation", none),
        footprintClass<NUXTotalStepDownSubstationObject>("totalStepDownSubstation",
                                                         "NUX_ELEMENT_TYPE_TOTALSTEPDOWNSUBSTATION",
                                                         "the substation that feeds the whole site", none),
        footprintClass<NUXBaseObject>("building", "", "any other element with a footprint", none),
    };
}

} // namespace firecheck
