#include "evaluators/without/required_use.h"

#include "elements/NUXCloseHouseObject.h"
#include "elements/NUXOpenHouseObject.h"
#include "elements/NUXPrefabHouseObject.h"
#include "elements/NUXRoadObject.h"
#include "elements/NUXWastePoolObject.h"

#include <algorithm>
#include <iterator>

namespace {

template <int use> bool isPrefabHouseFor(const NUXElementObject* element) {
    const auto* house = NUXPrefabHouseObject::Cast(element);
    return house && house->houseUse() == use;
}

template <int use> bool isOpenHouseFor(const NUXElementObject* element) {
    const auto* shed = NUXOpenHouseObject::Cast(element);
    return shed && shed->openHouseUse() == use;
}

template <int use> bool isWastePoolFor(const NUXElementObject* element) {
    const auto* pool = NUXWastePoolObject::Cast(element);
    return pool && pool->getObjectUse() == use;
}

bool isFireRoad(const NUXElementObject* element) {
    const auto* road = NUXRoadObject::Cast(element);
    return road && road->getIsFireRoad();
}

bool isCloseHouseFor(const NUXElementObject* element, const wchar_t* use) {
    const auto* house = NUXCloseHouseObject::Cast(element);
    return house && house->closeHouseUse() == use;
}

struct UseTest {
    const char* ruleName;
    bool (*hasUse)(const NUXElementObject* element);
};

struct CloseHouseUse {
    const char* ruleName;
    const wchar_t* use;
};

// The codes of open houses are not those of the distance and position rules; the tables are kept apart
// deliberately. "Smooking" and "Machanical" are spelt as rule files spell them.
constexpr UseTest kUseTests[] = {
    {"Without_FireRoad", isFireRoad},
    {"Without_Office_Country", isPrefabHouseFor<0>},
    {"Without_Office_Place", isPrefabHouseFor<0>},
    {"Without_Office_Pro", isPrefabHouseFor<0>},
    {"Without_Dorm_Country", isPrefabHouseFor<1>},
    {"Without_Dorm_Place", isPrefabHouseFor<1>},
    {"Without_Dorm_Pro", isPrefabHouseFor<1>},
    {"Without_TemplateFactory", isOpenHouseFor<2>},
    {"Without_WoodFactory", isOpenHouseFor<3>},
    {"Without_FireFactory", isOpenHouseFor<1>},
    {"Without_MachanicalFactory", isOpenHouseFor<4>},
    {"Without_LifeWastePool", isWastePoolFor<1>},
    {"Without_BuildWastePool", isWastePoolFor<0>},
};

constexpr CloseHouseUse kCloseHouseUses[] = {
    {"Without_Canteen", L"食堂"},
    {"Without_Toilet", L"厕所"},
    {"Without_Shower", L"淋浴间"},
    {"Without_BoilerRoom", L"开水房"},
    {"Without_SportsRoom", L"文体活动室"},
    {"Without_SmookingRoom", L"吸烟室"},
    {"Without_StoreHouse", L"可燃材料库房"},
    {"Without_WareHouse", L"易燃易爆危险品库房"},
};

template <class Row, std::size_t count> const Row* rowOf(const Row (&table)[count], const QString& ruleName) {
    const Row* row = std::find_if(std::begin(table), std::end(table), [&ruleName](const Row& r) {
        return ruleName == QLatin1String(r.ruleName);
    });
    return row != std::end(table) ? row : nullptr;
}

} // namespace

bool hasRequiredUse(const NUXElementObject* element, const QString& ruleName) {
    if (const UseTest* row = rowOf(kUseTests, ruleName))
        return row->hasUse(element);
    if (const CloseHouseUse* row = rowOf(kCloseHouseUses, ruleName))
        return isCloseHouseFor(element, row->use);
    return false;
}
