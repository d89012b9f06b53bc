#include "explain/element_noun.h"

#include "elements/NUX3dsBaseObject.h"
#include "elements/NUXOpenHouseObject.h"
#include "elements/NUXPrefabHouseObject.h"
#include "elements/NUXRoadObject.h"
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
        return "hot-work area";
    case 2:
        return "formwork workshop";
    case 3:
        return "woodworking workshop";
    case 4:
        return "electrical and mechanical workshop";
    default:
        return "open shed";
    }
}

const char* nounOfPrefabHouse(int use) {
    return use == 0 ? "office" : use == 1 ? "dormitory" : "prefab house";
}

const std::map<std::wstring_view, const char*>& nouns() {
    static const std::map<std::wstring_view, const char*> table = {
        {NUX_EDO_TYPE_CROSS_ROAD, "crossing"},
        {NUX_EDO_TYPE_DOOR, "gate"},
        {NUX_EDO_TYPE_ELECTRICALMECHANICALYARD, "electrical and mechanical yard"},
        {NUX_EDO_TYPE_FIREEXTINGUISHERBOX, "extinguisher box"},
        {NUX_EDO_TYPE_SERVICECABLE, "overhead cable"},
        {NUX_EDO_TYPE_STEELBARYARD, "reinforcement yard"},
        {NUX_EDO_TYPE_TEMPLATEYARD, "formwork yard"},
        {NUX_EDO_TYPE_TOWERCRANE, "tower crane"},
        {NUX_EDO_TYPE_WALL, "wall"},
        {NUX_EDO_TYPE_WASHINGPOOL, "washing pool"},
        {NUX_EDO_TYPE_WASTEPOOL, "waste pool"},
        {NUX_EDO_TYPE_WOODYARD, "wood yard"},
        {NUX_ELEMENT_TYPE_BOXHOUSE, "container house"},
        {NUX_ELEMENT_TYPE_CHAYANTING, "tea pavilion"},
        {NUX_ELEMENT_TYPE_CLOSEHOUSE, "closed house"},
        {NUX_ELEMENT_TYPE_FUTUREHOUSE, "future building"},
        {NUX_ELEMENT_TYPE_MIXSITE, "mixing station"},
        {NUX_ELEMENT_TYPE_OPENHALFHOUSE, "half-open house"},
        {NUX_ELEMENT_TYPE_POSTER, "poster"},
        {NUX_ELEMENT_TYPE_TOTALSTEPDOWNSUBSTATION, "total step-down substation"},
        {NUX_ELEMENT_TYPE_TRANSFORMERSUBSTATION, "transformer substation"},
        {NUX_ELEMENT_TYPE_BLOCKYARD, "block yard"},
        {NUX_ELEMENT_TYPE_WEIGHBRIDGE, "weighbridge"},
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
        return nounOfShed(shed->openHouseUse());
    if (const auto* house = NUXPrefabHouseObject::Cast(&object);
        house && identifier == NUX_ELEMENT_TYPE_PREFABHOUSE)
        return nounOfPrefabHouse(house->houseUse());
    if (const auto* road = NUXRoadObject::Cast(&object); road && identifier == NUX_EDO_TYPE_ROAD)
        return road->getIsFireRoad() ? "fire road" : "road";
    const auto known = nouns().find(identifier);
    if (known != nouns().end())
        return known->second;
    const QString end = QString::fromStdWString(identifier).section('_', -1).toLower();
    return end.isEmpty() ? "object" : end.toStdString();
}

} // namespace firestandard
