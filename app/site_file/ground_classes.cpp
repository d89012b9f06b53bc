#include "elements/NUXCrossObject.h"
#include "elements/NUXWastePoolObject.h"
#include "elements/NUXYardOBJObject.h"
#include "elements/NUXYardObject.h"
#include "site_file/footprint_fields.h"
#include "site_file/site_classes.h"
#include "text/words.h"

namespace firecheck {

namespace {

SiteClass yardMesh() {
    using Params = NUXYardOBJParams;
    return footprintClass<NUXYardOBJObject, Params>(
        "yardMesh", "NUX_EDO_TYPE_STEELBARYARD", "a material yard drawn as a mesh",
        {defaultedField("parametersKnown", &Params::paramAnswer, flag(), true,
                        "whether the mesh says that its rectangle is right")});
}

SiteClass wastePool() {
    using Params = NUXWastePoolParams;
    return footprintClass<NUXWastePoolObject, Params>(
        "wastePool", "NUX_EDO_TYPE_WASTEPOOL", "a pool for waste",
        {requiredField("use", &Params::use, code<int>({{"building", 0}, {"household", 1}}),
                       QT_TRANSLATE_NOOP("Words", "the waste it takes"))});
}

} // namespace

std::vector<SiteClass> groundClasses() {
    const Fields<NUXBaseParams> none;
    return {
        footprintClass<NUXYardObject>("woodYard", "NUX_EDO_TYPE_WOODYARD", "a yard for timber", none),
        footprintClass<NUXYardObject>("templateYard", "NUX_EDO_TYPE_TEMPLATEYARD", "a yard for formwork",
                                      none),
        footprintClass<NUXYardObject>("electricalMechanicalYard", "NUX_EDO_TYPE_ELECTRICALMECHANICALYARD",
                                      "a yard for electrical and mechanical equipment", none),
        footprintClass<NUXYardObject>("yard", "", "any other material yard", none),
        yardMesh(),
        wastePool(),
        footprintClass<NUXCrossObject>("crossing", "NUX_EDO_TYPE_CROSS_ROAD", "a crossing of roads", none),
    };
}

} // namespace firecheck
