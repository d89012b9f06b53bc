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
        {NUX_EDO_TYPE_CROSS_ROAD, QT_TRANSLATE_NOOP("Words", "crossing")},
        {NUX_EDO_TYPE_DOOR, QT_TRANSLATE_NOOP("Words", "gate")},
        {NUX_EDO_TYPE_ELECTRICALMECHANICALYARD, QT_TRANSLATE_NOOP("Words", "electrical and mechanical yard")},
        {NUX_EDO_TYPE_FIREEXTINGUISHERBOX, QT_TRANSLATE_NOOP("Words", "extinguisher box")},
        {NUX_EDO_TYPE_SERVICECABLE, QT_TRANSLATE_NOOP("Words", "overhead cable")},
        {NUX_EDO_TYPE_STEELBARYARD, QT_TRANSLATE_NOOP("Words", "reinforcement yard")},
        {NUX_EDO_TYPE_TEMPLATEYARD, QT_TRANSLATE_NOOP("Words", "formwork yard")},
        {NUX_EDO_TYPE_TOWERCRANE, QT_TRANSLATE_NOOP("Words", "tower crane")},
        {NUX_EDO_TYPE_WALL, QT_TRANSLATE_NOOP("Words", "wall")},
        {NUX_EDO_TYPE_WASHINGPOOL, QT_TRANSLATE_NOOP("Words", "washing pool")},
        {NUX_EDO_TYPE_WASTEPOOL, QT_TRANSLATE_NOOP("Words", "waste pool")},
        {NUX_EDO_TYPE_WOODYARD, QT_TRANSLATE_NOOP("Words", "wood yard")},
        {NUX_ELEMENT_TYPE_BOXHOUSE, QT_TRANSLATE_NOOP("Words", "container house")},
        {NUX_ELEMENT_TYPE_CHAYANTING, QT_TRANSLATE_NOOP("Words", "tea pavilion")},
        {NUX_ELEMENT_TYPE_CLOSEHOUSE, QT_TRANSLATE_NOOP("Words", "closed house")},
        {NUX_ELEMENT_TYPE_FUTUREHOUSE, QT_TRANSLATE_NOOP("Words", "future building")},
        {NUX_ELEMENT_TYPE_MIXSITE, QT_TRANSLATE_NOOP("Words", "mixing station")},
        {NUX_ELEMENT_TYPE_OPENHALFHOUSE, QT_TRANSLATE_NOOP("Words", "half-open house")},
        {NUX_ELEMENT_TYPE_POSTER, QT_TRANSLATE_NOOP("Words", "poster")},
        {NUX_ELEMENT_TYPE_TOTALSTEPDOWNSUBSTATION, QT_TRANSLATE_NOOP("Words", "total step-down substation")},
        {NUX_ELEMENT_TYPE_TRANSFORMERSUBSTATION, QT_TRANSLATE_NOOP("Words", "transformer substation")},
        {NUX_ELEMENT_TYPE_BLOCKYARD, QT_TRANSLATE_NOOP("Words", "block yard")},
        {NUX_ELEMENT_TYPE_WEIGHBRIDGE, QT_TRANSLATE_NOOP("Words", "weighbridge")},
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
