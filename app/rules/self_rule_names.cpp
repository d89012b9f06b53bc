#include "rules/rule_families.h"

std::vector<RuleName> selfRuleNames() {
    const std::string type = "self";
    const std::string house = "NUX_ELEMENT_TYPE_PREFABHOUSE";
    const std::string road = "NUX_EDO_TYPE_ROAD";
    return {
        {"Self_RoadMinWidth",
         type,
         road,
         "",
         {},
         "Each fire road is wide enough.",
         "At least 4000 mm wide.",
         "Roads that are not fire roads are never judged."},
        {"Self_RoadLoop",
         type,
         road,
         "",
         {},
         "The fire roads of the site form a loop.",
         "At least as many pairs of fire roads with meeting outlines as there are fire roads.",
         "No fire road at all passes and a single one fails; a violation names no element."},
        {"Self_OneDoorToRoadLoop",
         type,
         "NUX_EDO_TYPE_DOOR",
         road,
         {},
         "The roads of a site with exactly one door enclose an area.",
         "Ends of centre lines join within 200 mm.",
         "With no door or with several, and without any road, nothing is judged; roads of every kind count; "
         "a "
         "violation names the door as related element only."},
        {"Self_PrefabHouseFloorArea",
         type,
         house,
         "",
         {},
         "The floor of each prefab house, length by depth, is not too large.",
         "At most 300 m².",
         "Stairs are not part of the floor."},
        {"Self_PrefabHouseRoomArea",
         type,
         house,
         "",
         {},
         "No room of an office, a prefab house of use 0, is too large.",
         "At most 100 m².",
         "Rooms are what lies between neighbouring partitions; a house without partitions has none."},
        {"Self_PrefabHouseStairs",
         type,
         house,
         "",
         {},
         "Each large or tall prefab house has a stair at both ends.",
         "Needed above 200 m² a floor, or from three floors on.",
         "Only the stair code for both ends passes; stairs given otherwise do not."},
    };
}
