#include "explain/rule_wording.h"

#include "explain/Words.h"

#include <algorithm>
#include <cstring>
#include <iterator>

namespace firestandard {

namespace {

constexpr const char* kBoxes =
    "Boxes are 3-D models and count as 0 m away: a positive minimum reports every box against "
    "every open shed, a minimum of 0 none.";
constexpr const char* kInPlan =
    QT_TRANSLATE_NOOP("Words", "In plan; a cable that reaches down to the ground is not judged.");
constexpr const char* kOverYards =
    "No overhead cable runs over a wood, formwork, or electrical and mechanical yard.";
constexpr const char* kAllYards = "All three kinds of yard are judged, whichever the name says.";
constexpr const char* kYardsAsWell =
    "Wood, formwork, and electrical and mechanical yards are judged as well.";
constexpr const char* kBoxReach =
    QT_TRANSLATE_NOOP("Words", "The nearest box more than 0 and at most {limit} mm away.");
constexpr const char* kEarlyEnd =
    "With boxes on the site, the first element without a body that can be measured ends the "
    "rule, and those after it are not looked at.";
constexpr const char* kEarlyEndOfSheds =
    "With boxes on the site, the first element without a body that can be measured ends the "
    "rule, and those after it are not looked at; a shed of another use is such an element.";

constexpr RuleWording kWordings[] = {
    {"Self_RoadMinWidth", "Each fire road is wide enough.",
     QT_TRANSLATE_NOOP("Words", "At least {limit} mm wide."),
     "Roads that are not fire roads are never judged."},
    {"Self_RoadLoop", "The fire roads of the site form a loop.",
     QT_TRANSLATE_NOOP("Words",
                       "At least as many pairs of fire roads with meeting outlines as there are fire roads."),
     "No fire road at all passes and a single one fails; a violation names no element."},
    {"Self_OneDoorToRoadLoop", "The roads of a site with exactly one door enclose an area.",
     QT_TRANSLATE_NOOP("Words", "Ends of centre lines join within {limit} mm."),
     "With no door or with several, and without any road, nothing is judged; roads of every "
     "kind count; a violation names the door as related element only."},
    {"Self_PrefabHouseFloorArea", "The floor of each prefab house, length by depth, is not too large.",
     QT_TRANSLATE_NOOP("Words", "At most {limit} m²."), "Stairs are not part of the floor."},
    {"Self_PrefabHouseRoomArea", "No room of an office, a prefab house of use 0, is too large.",
     QT_TRANSLATE_NOOP("Words", "At most {limit} m²."),
     "Rooms are what lies between neighbouring partitions; a house without partitions has none."},
    {"Self_PrefabHouseStairs", "Each large or tall prefab house has a stair at both ends.",
     QT_TRANSLATE_NOOP("Words", "Needed above {limit} m² a floor, or from {floors} floors on."),
     "Only the stair code for both ends passes; stairs given otherwise do not."},
    {"Distant_PrefabHouseToWoodFactory",
     "Each prefab house, stairs included, keeps its distance from open sheds of use {use}.", "",
     "Sheds of another use are passed over; absence rules call use {use} TemplateFactory."},
    {"Distant_PrefabHouseToWoodWorkingFactory",
     "Each prefab house, stairs included, keeps its distance from open sheds of use {use}.", "",
     "Sheds of another use are passed over; absence rules call use {use} WoodFactory."},
    {"Distant_PrefabHouseToEletricalMechanicalFactory",
     "Each prefab house, stairs included, keeps its distance from open sheds of use {use}.", "",
     "Sheds of another use are passed over; the name has \"Eletrical\" for electrical."},
    {"Distant_FutureouseToWoodFactory",
     "Each building under construction keeps its distance from open sheds of use {use}.", "",
     "Sheds of another use are passed over; absence rules call use {use} TemplateFactory."},
    {"Distant_FutureHouseToWoodWorkingFactory",
     "Each building under construction keeps its distance from open sheds of use {use}.", "",
     "Sheds of another use are passed over; absence rules call use {use} WoodFactory."},
    {"Distant_FutureHouseToEletricalMechanicalFactory",
     "Each building under construction keeps its distance from open sheds of use {use}.", "",
     "Sheds of another use are passed over; the name has \"Eletrical\" for electrical."},
    {"Distant_FutureHouseToOpenHouse",
     "Each building under construction keeps its distance from open sheds of any use but 2, 3 "
     "and 4.",
     "", "Sheds of the uses 2, 3 and 4 have names of their own."},
    {"Distant_TransformerSubstationToWoodFactory",
     "Each transformer substation keeps its distance from open sheds of use {use}.", "",
     "Sheds of another use are passed over; absence rules call use {use} TemplateFactory."},
    {"Distant_TransformerSubstationToWoodWorkingFactory",
     "Each transformer substation keeps its distance from open sheds of use {use}.", "",
     "Sheds of another use are passed over; absence rules call use {use} WoodFactory."},
    {"Distant_TransformerSubstationToEletricalMechanicalFactory",
     "Each transformer substation keeps its distance from open sheds of use {use}.", "",
     "Sheds of another use are passed over; the name has \"Eletrical\" for electrical."},
    {"Distant_FireExtinguisherBoxToWoodFactory",
     "Each fire extinguisher box keeps its distance from open sheds of any use.", "", kBoxes},
    {"Distant_FireExtinguisherBoxToWoodWorkingFactory",
     "Each fire extinguisher box keeps its distance from open sheds of any use.", "", kBoxes},
    {"Distant_FireExtinguisherBoxToEletricalMechanicalFactory",
     "Each fire extinguisher box keeps its distance from open sheds of any use.", "", kBoxes},
    {"Position_FireRoad", "Nothing reaches into the space above a fire road.",
     QT_TRANSLATE_NOOP("Words", "{limit} mm high; touching counts."),
     "Only what the last object of the model space does is reported; roads, doors, washing "
     "pools, vehicles, construction machines and weighbridges are allowed.",
     QT_TRANSLATE_NOOP("Words", "looks at the last object of the drawing only")},
    {"Position_DoorToDoor",
     "No wall has two doors, and no two walls with a door each meet at more than a right angle.",
     QT_TRANSLATE_NOOP("Words", "Wall ends at most {limit} mm apart meet."),
     "Walls that meet at less than a right angle are reported as well when they turn to one "
     "side; of two doors or more on one wall the first two are named."},
    {"Position_WireToWoodYard", kOverYards, kInPlan, kAllYards},
    {"Position_WireToTemplateYard", kOverYards, kInPlan, kAllYards},
    {"Position_WireToElectricalMechanicalYard", kOverYards, kInPlan, kAllYards},
    {"Position_WireToWoodFactory", "No overhead cable runs over an open shed of use {use}, nor over a yard.",
     kInPlan, kYardsAsWell},
    {"Position_WireToWoodWorkingFactory",
     "No overhead cable runs over an open shed of use {use}, nor over a yard.", kInPlan, kYardsAsWell},
    {"Position_WireToEletricalMechanicalFactory",
     "No overhead cable runs over an open shed of use {use}, nor over a yard.", kInPlan, kYardsAsWell},
    {"Position_FireExtinguisherBoxToPrefabHouse",
     "Each prefab house, stairs included, has a fire extinguisher box close by.", kBoxReach, kEarlyEnd},
    {"Position_FireExtinguisherBoxToCloseHouse", "Each closed house has a fire extinguisher box close by.",
     kBoxReach, kEarlyEnd},
    {"Position_FireExtinguisherBoxToTransformerSubstation",
     "Each transformer substation has a fire extinguisher box close by.", kBoxReach, kEarlyEnd},
    {"Position_FireExtinguisherBoxToWoodYard", "Each wood yard has a fire extinguisher box close by.",
     kBoxReach, kEarlyEnd},
    {"Position_FireExtinguisherBoxToTemplateYard", "Each formwork yard has a fire extinguisher box close by.",
     kBoxReach, kEarlyEnd},
    {"Position_FireExtinguisherBoxToElectricalMechanicalYard",
     "Each electrical and mechanical yard has a fire extinguisher box close by.", kBoxReach, kEarlyEnd},
    {"Position_FireExtinguisherBoxToWoodFactory",
     "Each open shed of use {use} has a fire extinguisher box close by.", kBoxReach, kEarlyEndOfSheds},
    {"Position_FireExtinguisherBoxToWoodWorkingFactory",
     "Each open shed of use {use} has a fire extinguisher box close by.", kBoxReach, kEarlyEndOfSheds},
    {"Position_FireExtinguisherBoxToEletricalMechanicalFactory",
     "Each open shed of use {use} has a fire extinguisher box close by.", kBoxReach, kEarlyEndOfSheds},
    {"Without_FireRoad", "The site has at least one fire road.", "", ""},
    {"Without_Office_Country", "The site has at least one prefab house of use {use}, an office.", "",
     "The three office names ask for the same."},
    {"Without_Office_Place", "The site has at least one prefab house of use {use}, an office.", "",
     "The three office names ask for the same."},
    {"Without_Office_Pro", "The site has at least one prefab house of use {use}, an office.", "",
     "The three office names ask for the same."},
    {"Without_Dorm_Country", "The site has at least one prefab house of use {use}, a dormitory.", "",
     "The three dormitory names ask for the same."},
    {"Without_Dorm_Place", "The site has at least one prefab house of use {use}, a dormitory.", "",
     "The three dormitory names ask for the same."},
    {"Without_Dorm_Pro", "The site has at least one prefab house of use {use}, a dormitory.", "",
     "The three dormitory names ask for the same."},
    {"Without_Canteen", "The site has at least one closed house with the use {use}, a canteen.", "", ""},
    {"Without_Toilet", "The site has at least one closed house with the use {use}, a toilet.", "", ""},
    {"Without_Shower", "The site has at least one closed house with the use {use}, a shower.", "", ""},
    {"Without_BoilerRoom", "The site has at least one closed house with the use {use}, a boiled-water room.",
     "", ""},
    {"Without_SportsRoom", "The site has at least one closed house with the use {use}, a recreation room.",
     "", ""},
    {"Without_SmookingRoom", "The site has at least one closed house with the use {use}, a smoking room.", "",
     "The name has \"Smooking\" for smoking."},
    {"Without_StoreHouse",
     "The site has at least one closed house with the use {use}, a store for combustible "
     "materials.",
     "", ""},
    {"Without_WareHouse",
     "The site has at least one closed house with the use {use}, a store for flammable and "
     "explosive goods.",
     "", ""},
    {"Without_TemplateFactory", "The site has at least one open shed of use {use}.", "",
     "Distance and position rules call use {use} WoodFactory."},
    {"Without_WoodFactory", "The site has at least one open shed of use {use}.", "",
     "Distance and position rules call use {use} WoodWorkingFactory, and use 2 by this name."},
    {"Without_FireFactory", "The site has at least one open shed of use {use}, a hot-work area.", "", ""},
    {"Without_MachanicalFactory", "The site has at least one open shed of use {use}.", "",
     "The name has \"Machanical\" for mechanical."},
    {"Without_LifeWastePool", "The site has at least one waste pool of use {use}, for domestic waste.", "",
     ""},
    {"Without_BuildWastePool", "The site has at least one waste pool of use {use}, for construction waste.",
     "", ""},
};

} // namespace

const RuleWording* findRuleWording(const char* name) {
    const RuleWording* found =
        std::find_if(std::begin(kWordings), std::end(kWordings),
                     [name](const RuleWording& wording) { return std::strcmp(wording.name, name) == 0; });
    return found == std::end(kWordings) ? nullptr : found;
}

} // namespace firestandard
