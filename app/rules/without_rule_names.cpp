#include "rules/rule_families.h"

namespace {

/// One facility of each class of elements, by the names that stand for it.
struct Facility {
    std::vector<std::string> names; ///< after "Without_"
    std::string elementType;
    std::string text;
    std::string peculiarity;
};

const char* const kPrefabHouse = "NUX_ELEMENT_TYPE_PREFABHOUSE";
const char* const kCloseHouse = "NUX_ELEMENT_TYPE_CLOSEHOUSE";
const char* const kOpenHouse = "NUX_ELEMENT_TYPE_OPENHOUSE";
const char* const kWastePool = "NUX_EDO_TYPE_WASTEPOOL";

// "Smooking" and "Machanical" are deliberate.
const std::vector<Facility> kFacilities = {
    {{"FireRoad"}, "NUX_EDO_TYPE_ROAD", "fire road", ""},
    {{"Office_Country", "Office_Place", "Office_Pro"},
     kPrefabHouse,
     "prefab house of use 0, an office",
     "The three office names ask for the same."},
    {{"Dorm_Country", "Dorm_Place", "Dorm_Pro"},
     kPrefabHouse,
     "prefab house of use 1, a dormitory",
     "The three dormitory names ask for the same."},
    {{"Canteen"}, kCloseHouse, "closed house with the use 食堂, a canteen", ""},
    {{"Toilet"}, kCloseHouse, "closed house with the use 厕所, a toilet", ""},
    {{"Shower"}, kCloseHouse, "closed house with the use 淋浴间, a shower", ""},
    {{"BoilerRoom"}, kCloseHouse, "closed house with the use 开水房, a boiled-water room", ""},
    {{"SportsRoom"}, kCloseHouse, "closed house with the use 文体活动室, a recreation room", ""},
    {{"SmookingRoom"},
     kCloseHouse,
     "closed house with the use 吸烟室, a smoking room",
     "The name has \"Smooking\" for smoking."},
    {{"StoreHouse"},
     kCloseHouse,
     "closed house with the use 可燃材料库房, a store for combustible materials",
     ""},
    {{"WareHouse"},
     kCloseHouse,
     "closed house with the use 易燃易爆危险品库房, a store for flammable and explosive goods",
     ""},
    {{"TemplateFactory"},
     kOpenHouse,
     "open shed of use 2",
     "Distance and position rules call use 2 WoodFactory."},
    {{"WoodFactory"},
     kOpenHouse,
     "open shed of use 3",
     "Distance and position rules call use 3 WoodWorkingFactory, and use 2 by this name."},
    {{"FireFactory"}, kOpenHouse, "open shed of use 1, a hot-work area", ""},
    {{"MachanicalFactory"}, kOpenHouse, "open shed of use 4", "The name has \"Machanical\" for mechanical."},
    {{"LifeWastePool"}, kWastePool, "waste pool of use 1, for domestic waste", ""},
    {{"BuildWastePool"}, kWastePool, "waste pool of use 0, for construction waste", ""},
};

} // namespace

std::vector<RuleName> withoutRuleNames() {
    const std::string common =
        "With an empty PropertyType any element of the type will do; a 3-D model of the type "
        "always does.";
    std::vector<RuleName> rules;
    for (const Facility& facility : kFacilities) {
        for (const std::string& name : facility.names) {
            const std::string peculiarity =
                facility.peculiarity.empty() ? common : common + " " + facility.peculiarity;
            rules.push_back({"Without_" + name, "without", facility.elementType, "",
                             attributesRead("without"), "The site has at least one " + facility.text + ".",
                             "", peculiarity});
        }
    }
    return rules;
}
