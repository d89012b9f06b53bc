#include "explain/element_noun.h"

#include "elements/NUX3dsBaseObject.h"
#include "elements/NUXOpenHouseObject.h"
#include "elements/NUXPrefabHouseObject.h"
#include "elements/NUXRoadObject.h"
#include "explain/Words.h"
#include "site/element_type_identifiers.h"

#include <QString>

#include <map>
#include <string_view>

namespace firestandard {

namespace {

std::wstring identifierOf(const UdDbObject& object) {
    if (const auto* element = NUXElementObject::Cast(&object))
        return element->getElementType();
    if (const auto* model = NUX3dsBaseObject::Cast(&object))
        return model->getModelKind();
    return {};
}

const char* nounOfShed(int use) {
    switch (use) {
    case 1:
        return QT_TRANSLATE_NOOP("Words", "hot-work area");
    case 2:
        return QT_TRANSLATE_NOOP("Words", "formwork workshop");
    case 3:
        return QT_TRANSLATE_NOOP("Words", "woodworking workshop");
    case 4:
        return QT_TRANSLATE_NOOP("Words", "electrical and mechanical workshop");
    default:
        return QT_TRANSLATE_NOOP("Words", "open shed");
    }
}

const char* nounOfPrefabHouse(int use) {
    switch (use) {
    case 0:
        return QT_TRANSLATE_NOOP("Words", "office");
    case 1:
        return QT_TRANSLATE_NOOP("Words", "dormitory");
    default:
        return QT_TRANSLATE_NOOP("Words", "prefab house");
    }
}

const std::map<std::wstring_view, const char*>& nouns() {
    static const std::map<std::wstring_view, const char*> table = {
        {NUX_EDO_TYPE_ANQUANJT, QT_TRANSLATE_NOOP("Words", "safety lecture stand")},
        {NUX_ELEMENT_TYPE_ANQUANJT, QT_TRANSLATE_NOOP("Words", "safety lecture stand")},
        {NUX_ELEMENT_TYPE_ANQUANTD, QT_TRANSLATE_NOOP("Words", "safety walkway")},
        {NUX_EDO_TYPE_BENDINGMACHINE, QT_TRANSLATE_NOOP("Words", "bending machine")},
        {NUX_EDO_TYPE_BENGCHE, QT_TRANSLATE_NOOP("Words", "concrete pump truck")},
        {NUX_EDO_TYPE_CEMENTYARD, QT_TRANSLATE_NOOP("Words", "cement yard")},
        {NUX_EDO_TYPE_CIRCULARSAW, QT_TRANSLATE_NOOP("Words", "circular saw")},
        {NUX_EDO_TYPE_COLUMNWALL, QT_TRANSLATE_NOOP("Words", "column wall")},
        {NUX_EDO_TYPE_CROSS_ROAD, QT_TRANSLATE_NOOP("Words", "crossing")},
        {NUX_EDO_TYPE_CURTAINWALLYARD, QT_TRANSLATE_NOOP("Words", "curtain wall yard")},
        {NUX_EDO_TYPE_DECORATIONMATERIALSYARD, QT_TRANSLATE_NOOP("Words", "decoration materials yard")},
        {NUX_EDO_TYPE_DIBENG, QT_TRANSLATE_NOOP("Words", "concrete pump")},
        {NUX_EDO_TYPE_DOOR, QT_TRANSLATE_NOOP("Words", "gate")},
        {NUX_EDO_TYPE_DREGSYARD, QT_TRANSLATE_NOOP("Words", "spoil yard")},
        {NUX_EDO_TYPE_ELECTRICALMECHANICALYARD, QT_TRANSLATE_NOOP("Words", "electrical and mechanical yard")},
        {NUX_EDO_TYPE_FENCE, QT_TRANSLATE_NOOP("Words", "fence")},
        {NUX_EDO_TYPE_FIREEXTINGUISHERBOX, QT_TRANSLATE_NOOP("Words", "extinguisher box")},
        {NUX_EDO_TYPE_FIREHYDRANT, QT_TRANSLATE_NOOP("Words", "fire hydrant")},
        {NUX_EDO_TYPE_FLAGPOLE, QT_TRANSLATE_NOOP("Words", "flagpole")},
        {NUX_EDO_TYPE_GANTRY, QT_TRANSLATE_NOOP("Words", "gantry crane")},
        {NUX_EDO_TYPE_GRAVELYARD, QT_TRANSLATE_NOOP("Words", "gravel yard")},
        {NUX_EDO_TYPE_HARDENINGPAVEMENT, QT_TRANSLATE_NOOP("Words", "pavement")},
        {NUX_EDO_TYPE_HUNNITUGC, QT_TRANSLATE_NOOP("Words", "concrete mixer truck")},
        {NUX_EDO_TYPE_LAWN, QT_TRANSLATE_NOOP("Words", "lawn")},
        {NUX_EDO_TYPE_PARK, QT_TRANSLATE_NOOP("Words", "car park")},
        {NUX_EDO_TYPE_POWERDISTRIBUTIONBOX, QT_TRANSLATE_NOOP("Words", "power distribution box")},
        {NUX_EDO_TYPE_QICHEDIAO, QT_TRANSLATE_NOOP("Words", "mobile crane")},
        {NUX_EDO_TYPE_SANDYARD, QT_TRANSLATE_NOOP("Words", "sand yard")},
        {NUX_EDO_TYPE_SCAFFOLDINGYARD, QT_TRANSLATE_NOOP("Words", "scaffolding yard")},
        {NUX_EDO_TYPE_SECTIONSTEELYARD, QT_TRANSLATE_NOOP("Words", "section steel yard")},
        {NUX_EDO_TYPE_SEPTICPOOL, QT_TRANSLATE_NOOP("Words", "septic tank")},
        {NUX_EDO_TYPE_SERVICECABLE, QT_TRANSLATE_NOOP("Words", "overhead cable")},
        {NUX_EDO_TYPE_STEELBARYARD, QT_TRANSLATE_NOOP("Words", "reinforcement yard")},
        {NUX_EDO_TYPE_STEELPLATEWALLYARD, QT_TRANSLATE_NOOP("Words", "steel plate wall yard")},
        {NUX_EDO_TYPE_STOREPOOL, QT_TRANSLATE_NOOP("Words", "storage pool")},
        {NUX_EDO_TYPE_STRAIGHTENINGMACHINE, QT_TRANSLATE_NOOP("Words", "straightening machine")},
        {NUX_EDO_TYPE_TELEGRAPHPOLE, QT_TRANSLATE_NOOP("Words", "pole")},
        {NUX_EDO_TYPE_TEMPLATEYARD, QT_TRANSLATE_NOOP("Words", "formwork yard")},
        {NUX_EDO_TYPE_TEMPPOOL, QT_TRANSLATE_NOOP("Words", "temporary pool")},
        {NUX_EDO_TYPE_TOWERCRANE, QT_TRANSLATE_NOOP("Words", "tower crane")},
        {NUX_EDO_TYPE_TURNOVERMATERIALSYARD, QT_TRANSLATE_NOOP("Words", "reusable materials yard")},
        {NUX_EDO_TYPE_WAJUEJI, QT_TRANSLATE_NOOP("Words", "excavator")},
        {NUX_EDO_TYPE_WALL, QT_TRANSLATE_NOOP("Words", "wall")},
        {NUX_EDO_TYPE_WASHINGPOOL, QT_TRANSLATE_NOOP("Words", "washing pool")},
        {NUX_EDO_TYPE_WASTEPOOL, QT_TRANSLATE_NOOP("Words", "waste pool")},
        {NUX_EDO_TYPE_WASTEYARD, QT_TRANSLATE_NOOP("Words", "waste yard")},
        {NUX_EDO_TYPE_WATERPIPE, QT_TRANSLATE_NOOP("Words", "water pipe")},
        {NUX_EDO_TYPE_WATERWELL, QT_TRANSLATE_NOOP("Words", "water well")},
        {NUX_EDO_TYPE_WOODYARD, QT_TRANSLATE_NOOP("Words", "wood yard")},
        {NUX_EDO_TYPE_YALUJI, QT_TRANSLATE_NOOP("Words", "road roller")},
        {NUX_ELEMENT_TYPE_BENDINGMACHINE, QT_TRANSLATE_NOOP("Words", "bending machine")},
        {NUX_ELEMENT_TYPE_BENGCHE, QT_TRANSLATE_NOOP("Words", "concrete pump truck")},
        {NUX_ELEMENT_TYPE_BLOCKYARD, QT_TRANSLATE_NOOP("Words", "block yard")},
        {NUX_ELEMENT_TYPE_BOXHOUSE, QT_TRANSLATE_NOOP("Words", "container house")},
        {NUX_ELEMENT_TYPE_BRIDGE, QT_TRANSLATE_NOOP("Words", "bridge")},
        {NUX_ELEMENT_TYPE_CEMENTYARD, QT_TRANSLATE_NOOP("Words", "cement yard")},
        {NUX_ELEMENT_TYPE_CHAYANTING, QT_TRANSLATE_NOOP("Words", "tea pavilion")},
        {NUX_ELEMENT_TYPE_CIRCULARSAW, QT_TRANSLATE_NOOP("Words", "circular saw")},
        {NUX_ELEMENT_TYPE_CLOSEHOUSE, QT_TRANSLATE_NOOP("Words", "closed house")},
        {NUX_ELEMENT_TYPE_COLUMNWALL, QT_TRANSLATE_NOOP("Words", "column wall")},
        {NUX_ELEMENT_TYPE_CONSTRUCTIONELEVATOR, QT_TRANSLATE_NOOP("Words", "construction hoist")},
        {NUX_ELEMENT_TYPE_CONTAINER, QT_TRANSLATE_NOOP("Words", "container")},
        {NUX_ELEMENT_TYPE_CURTAINWALLYARD, QT_TRANSLATE_NOOP("Words", "curtain wall yard")},
        {NUX_ELEMENT_TYPE_DECORATIONMATERIALSYARD, QT_TRANSLATE_NOOP("Words", "decoration materials yard")},
        {NUX_ELEMENT_TYPE_DIBENG, QT_TRANSLATE_NOOP("Words", "concrete pump")},
        {NUX_ELEMENT_TYPE_DISPLAYBOARD, QT_TRANSLATE_NOOP("Words", "display board")},
        {NUX_ELEMENT_TYPE_DITCH, QT_TRANSLATE_NOOP("Words", "ditch")},
        {NUX_ELEMENT_TYPE_DREGSYARD, QT_TRANSLATE_NOOP("Words", "spoil yard")},
        {NUX_ELEMENT_TYPE_ELECTRICALROOM, QT_TRANSLATE_NOOP("Words", "electrical room")},
        {NUX_ELEMENT_TYPE_EXISTBUILD, QT_TRANSLATE_NOOP("Words", "existing building")},
        {NUX_ELEMENT_TYPE_FENCE, QT_TRANSLATE_NOOP("Words", "fence")},
        {NUX_ELEMENT_TYPE_FIREHYDRANT, QT_TRANSLATE_NOOP("Words", "fire hydrant")},
        {NUX_ELEMENT_TYPE_FLAGPOLE, QT_TRANSLATE_NOOP("Words", "flagpole")},
        {NUX_ELEMENT_TYPE_FOREST, QT_TRANSLATE_NOOP("Words", "trees")},
        {NUX_ELEMENT_TYPE_FUTUREHOUSE, QT_TRANSLATE_NOOP("Words", "future building")},
        {NUX_ELEMENT_TYPE_GANTRY, QT_TRANSLATE_NOOP("Words", "gantry crane")},
        {NUX_ELEMENT_TYPE_GRAVELYARD, QT_TRANSLATE_NOOP("Words", "gravel yard")},
        {NUX_ELEMENT_TYPE_HARDENINGPAVEMENT, QT_TRANSLATE_NOOP("Words", "pavement")},
        {NUX_ELEMENT_TYPE_HUNNITUGC, QT_TRANSLATE_NOOP("Words", "concrete mixer truck")},
        {NUX_ELEMENT_TYPE_LAWN, QT_TRANSLATE_NOOP("Words", "lawn")},
        {NUX_ELEMENT_TYPE_MIXSITE, QT_TRANSLATE_NOOP("Words", "mixing station")},
        {NUX_ELEMENT_TYPE_OPENHALFHOUSE, QT_TRANSLATE_NOOP("Words", "half-open house")},
        {NUX_ELEMENT_TYPE_PARK, QT_TRANSLATE_NOOP("Words", "car park")},
        {NUX_ELEMENT_TYPE_POSTER, QT_TRANSLATE_NOOP("Words", "poster")},
        {NUX_ELEMENT_TYPE_POWERDISTRIBUTIONBOX, QT_TRANSLATE_NOOP("Words", "power distribution box")},
        {NUX_ELEMENT_TYPE_QICHEDIAO, QT_TRANSLATE_NOOP("Words", "mobile crane")},
        {NUX_ELEMENT_TYPE_SANDYARD, QT_TRANSLATE_NOOP("Words", "sand yard")},
        {NUX_ELEMENT_TYPE_SCAFFOLDINGYARD, QT_TRANSLATE_NOOP("Words", "scaffolding yard")},
        {NUX_ELEMENT_TYPE_SECTIONSTEELYARD, QT_TRANSLATE_NOOP("Words", "section steel yard")},
        {NUX_ELEMENT_TYPE_SEPTICPOOL, QT_TRANSLATE_NOOP("Words", "septic tank")},
        {NUX_ELEMENT_TYPE_STEELPLATEWALLYARD, QT_TRANSLATE_NOOP("Words", "steel plate wall yard")},
        {NUX_ELEMENT_TYPE_STOREPOOL, QT_TRANSLATE_NOOP("Words", "storage pool")},
        {NUX_ELEMENT_TYPE_STRAIGHTENINGMACHINE, QT_TRANSLATE_NOOP("Words", "straightening machine")},
        {NUX_ELEMENT_TYPE_TELEGRAPHPOLE, QT_TRANSLATE_NOOP("Words", "pole")},
        {NUX_ELEMENT_TYPE_TEMPPOOL, QT_TRANSLATE_NOOP("Words", "temporary pool")},
        {NUX_ELEMENT_TYPE_TOTALSTEPDOWNSUBSTATION, QT_TRANSLATE_NOOP("Words", "total step-down substation")},
        {NUX_ELEMENT_TYPE_TRANSFORMERSUBSTATION, QT_TRANSLATE_NOOP("Words", "transformer substation")},
        {NUX_ELEMENT_TYPE_TURNOVERMATERIALSYARD, QT_TRANSLATE_NOOP("Words", "reusable materials yard")},
        {NUX_ELEMENT_TYPE_WAJUEJI, QT_TRANSLATE_NOOP("Words", "excavator")},
        {NUX_ELEMENT_TYPE_WASTEYARD, QT_TRANSLATE_NOOP("Words", "waste yard")},
        {NUX_ELEMENT_TYPE_WATERPIPE, QT_TRANSLATE_NOOP("Words", "water pipe")},
        {NUX_ELEMENT_TYPE_WATERWELL, QT_TRANSLATE_NOOP("Words", "water well")},
        {NUX_ELEMENT_TYPE_WEIGHBRIDGE, QT_TRANSLATE_NOOP("Words", "weighbridge")},
        {NUX_ELEMENT_TYPE_YALUJI, QT_TRANSLATE_NOOP("Words", "road roller")},
    };
    return table;
}

} // namespace

std::string elementIdentifier(const UdDbObject& object) {
    return QString::fromStdWString(identifierOf(object)).toStdString();
}

std::string elementNoun(const UdDbObject& object) {
    const std::wstring identifier = identifierOf(object);
    if (const auto* shed = NUXOpenHouseObject::Cast(&object);
        shed && identifier == NUX_ELEMENT_TYPE_OPENHOUSE)
        return filled(Words::tr(nounOfShed(shed->openHouseUse())));
    if (const auto* house = NUXPrefabHouseObject::Cast(&object);
        house && identifier == NUX_ELEMENT_TYPE_PREFABHOUSE)
        return filled(Words::tr(nounOfPrefabHouse(house->houseUse())));
    if (const auto* road = NUXRoadObject::Cast(&object); road && identifier == NUX_EDO_TYPE_ROAD)
        return filled(road->getIsFireRoad() ? Words::tr("fire road") : Words::tr("road"));
    const auto known = nouns().find(identifier);
    if (known != nouns().end())
        return filled(Words::tr(known->second));
    const QString end = QString::fromStdWString(identifier).section('_', -1).toLower();
    return filled(end.isEmpty() ? Words::tr("object") : end);
}

} // namespace firestandard
