#include "evaluators/rule_catalogue.h"

#include "site/element_type_identifiers.h"

#include <algorithm>

namespace firestandard {

namespace {

using Of = RequiredUse::Of;
using Test = RuleTest;

constexpr std::array<double, 2> kNoLimits{};
constexpr std::array<double, 2> kBoxLimits{kMaximumBoxDistance};

// Names are spelt as rule files spell them: "Futureouse", "Eletrical", "Smooking" and "Machanical" are
// deliberate, and so is that names of yards have "Electrical". Existing rule files rely on each letter.

RuleRow selfRule(const char* name, Test test, std::wstring_view elementType,
                 const std::array<double, 2>& limits, std::wstring_view referenceElementType = {}) {
    return {name, "self", test, elementType, referenceElementType, {}, limits};
}

RuleRow shedDistance(const char* name, std::wstring_view elementType, const RequiredUse& use) {
    return {name, "distant", Test::Distance, elementType, NUX_ELEMENT_TYPE_OPENHOUSE, use, kNoLimits};
}

RuleRow cableRule(const char* name, std::wstring_view areaType, const RequiredUse& use = {}) {
    return {name, "position", Test::OverheadCable, NUX_EDO_TYPE_SERVICECABLE, areaType, use, kNoLimits};
}

RuleRow boxRule(const char* name, std::wstring_view elementType, const RequiredUse& use = {}) {
    return {name, "position", Test::FireExtinguisherBox, elementType, NUX_EDO_TYPE_FIREEXTINGUISHERBOX,
            use,  kBoxLimits};
}

RuleRow facility(const char* name, std::wstring_view elementType, const RequiredUse& use) {
    return {name, "without", Test::RequiredFacility, elementType, {}, use, kNoLimits};
}

std::vector<RuleRow> allRows() {
    return {
        selfRule("Self_RoadMinWidth", Test::RoadMinWidth, NUX_EDO_TYPE_ROAD, {kMinimumFireRoadWidth}),
        selfRule("Self_RoadLoop", Test::RoadLoop, NUX_EDO_TYPE_ROAD, kNoLimits),
        selfRule("Self_OneDoorToRoadLoop", Test::OneDoorToRoadLoop, NUX_EDO_TYPE_DOOR, {kJoiningTolerance},
                 NUX_EDO_TYPE_ROAD),
        selfRule("Self_PrefabHouseFloorArea", Test::PrefabHouseFloorArea, NUX_ELEMENT_TYPE_PREFABHOUSE,
                 {kMaximumFloorArea}),
        selfRule("Self_PrefabHouseRoomArea", Test::PrefabHouseRoomArea, NUX_ELEMENT_TYPE_PREFABHOUSE,
                 {kMaximumRoomArea}),
        selfRule("Self_PrefabHouseStairs", Test::PrefabHouseStairs, NUX_ELEMENT_TYPE_PREFABHOUSE,
                 {kLargestAreaWithoutStairs, kFewestFloorsWithStairs}),

        // The codes of open sheds are those of the distance and position rules. The absence rules below read
        // the same codes otherwise; both are deliberate, since existing drawings are judged by both.
        shedDistance("Distant_PrefabHouseToWoodFactory", NUX_ELEMENT_TYPE_PREFABHOUSE, {Of::OpenShed, 2}),
        shedDistance("Distant_PrefabHouseToWoodWorkingFactory", NUX_ELEMENT_TYPE_PREFABHOUSE,
                     {Of::OpenShed, 3}),
        shedDistance("Distant_PrefabHouseToEletricalMechanicalFactory", NUX_ELEMENT_TYPE_PREFABHOUSE,
                     {Of::OpenShed, 4}),
        shedDistance("Distant_FutureouseToWoodFactory", NUX_ELEMENT_TYPE_FUTUREHOUSE, {Of::OpenShed, 2}),
        shedDistance("Distant_FutureHouseToWoodWorkingFactory", NUX_ELEMENT_TYPE_FUTUREHOUSE,
                     {Of::OpenShed, 3}),
        shedDistance("Distant_FutureHouseToEletricalMechanicalFactory", NUX_ELEMENT_TYPE_FUTUREHOUSE,
                     {Of::OpenShed, 4}),
        shedDistance("Distant_FutureHouseToOpenHouse", NUX_ELEMENT_TYPE_FUTUREHOUSE, {Of::OtherOpenShed}),
        shedDistance("Distant_TransformerSubstationToWoodFactory", NUX_ELEMENT_TYPE_TRANSFORMERSUBSTATION,
                     {Of::OpenShed, 2}),
        shedDistance("Distant_TransformerSubstationToWoodWorkingFactory",
                     NUX_ELEMENT_TYPE_TRANSFORMERSUBSTATION, {Of::OpenShed, 3}),
        shedDistance("Distant_TransformerSubstationToEletricalMechanicalFactory",
                     NUX_ELEMENT_TYPE_TRANSFORMERSUBSTATION, {Of::OpenShed, 4}),
        shedDistance("Distant_FireExtinguisherBoxToWoodFactory", NUX_EDO_TYPE_FIREEXTINGUISHERBOX, {}),
        shedDistance("Distant_FireExtinguisherBoxToWoodWorkingFactory", NUX_EDO_TYPE_FIREEXTINGUISHERBOX, {}),
        shedDistance("Distant_FireExtinguisherBoxToEletricalMechanicalFactory",
                     NUX_EDO_TYPE_FIREEXTINGUISHERBOX, {}),

        {"Position_FireRoad", "position", Test::FireRoadHeadroom, NUX_EDO_TYPE_ROAD, {}, {}, {kHeadroom}},
        {"Position_DoorToDoor",
         "position",
         Test::DoorToDoor,
         NUX_EDO_TYPE_DOOR,
         NUX_EDO_TYPE_DOOR,
         {},
         {kCornerTolerance}},
        cableRule("Position_WireToWoodYard", NUX_EDO_TYPE_WOODYARD),
        cableRule("Position_WireToTemplateYard", NUX_EDO_TYPE_TEMPLATEYARD),
        cableRule("Position_WireToElectricalMechanicalYard", NUX_EDO_TYPE_ELECTRICALMECHANICALYARD),
        cableRule("Position_WireToWoodFactory", NUX_ELEMENT_TYPE_OPENHOUSE, {Of::OpenShed, 2}),
        cableRule("Position_WireToWoodWorkingFactory", NUX_ELEMENT_TYPE_OPENHOUSE, {Of::OpenShed, 3}),
        cableRule("Position_WireToEletricalMechanicalFactory", NUX_ELEMENT_TYPE_OPENHOUSE, {Of::OpenShed, 4}),
        boxRule("Position_FireExtinguisherBoxToPrefabHouse", NUX_ELEMENT_TYPE_PREFABHOUSE),
        boxRule("Position_FireExtinguisherBoxToCloseHouse", NUX_ELEMENT_TYPE_CLOSEHOUSE),
        boxRule("Position_FireExtinguisherBoxToTransformerSubstation",
                NUX_ELEMENT_TYPE_TRANSFORMERSUBSTATION),
        boxRule("Position_FireExtinguisherBoxToWoodYard", NUX_EDO_TYPE_WOODYARD),
        boxRule("Position_FireExtinguisherBoxToTemplateYard", NUX_EDO_TYPE_TEMPLATEYARD),
        boxRule("Position_FireExtinguisherBoxToElectricalMechanicalYard",
                NUX_EDO_TYPE_ELECTRICALMECHANICALYARD),
        boxRule("Position_FireExtinguisherBoxToWoodFactory", NUX_ELEMENT_TYPE_OPENHOUSE, {Of::OpenShed, 2}),
        boxRule("Position_FireExtinguisherBoxToWoodWorkingFactory", NUX_ELEMENT_TYPE_OPENHOUSE,
                {Of::OpenShed, 3}),
        boxRule("Position_FireExtinguisherBoxToEletricalMechanicalFactory", NUX_ELEMENT_TYPE_OPENHOUSE,
                {Of::OpenShed, 4}),

        facility("Without_FireRoad", NUX_EDO_TYPE_ROAD, {Of::FireRoad}),
        facility("Without_Office_Country", NUX_ELEMENT_TYPE_PREFABHOUSE, {Of::PrefabHouse, 0}),
        facility("Without_Office_Place", NUX_ELEMENT_TYPE_PREFABHOUSE, {Of::PrefabHouse, 0}),
        facility("Without_Office_Pro", NUX_ELEMENT_TYPE_PREFABHOUSE, {Of::PrefabHouse, 0}),
        facility("Without_Dorm_Country", NUX_ELEMENT_TYPE_PREFABHOUSE, {Of::PrefabHouse, 1}),
        facility("Without_Dorm_Place", NUX_ELEMENT_TYPE_PREFABHOUSE, {Of::PrefabHouse, 1}),
        facility("Without_Dorm_Pro", NUX_ELEMENT_TYPE_PREFABHOUSE, {Of::PrefabHouse, 1}),
        facility("Without_Canteen", NUX_ELEMENT_TYPE_CLOSEHOUSE, {Of::ClosedHouse, 0, L"食堂"}),
        facility("Without_Toilet", NUX_ELEMENT_TYPE_CLOSEHOUSE, {Of::ClosedHouse, 0, L"厕所"}),
        facility("Without_Shower", NUX_ELEMENT_TYPE_CLOSEHOUSE, {Of::ClosedHouse, 0, L"淋浴间"}),
        facility("Without_BoilerRoom", NUX_ELEMENT_TYPE_CLOSEHOUSE, {Of::ClosedHouse, 0, L"开水房"}),
        facility("Without_SportsRoom", NUX_ELEMENT_TYPE_CLOSEHOUSE, {Of::ClosedHouse, 0, L"文体活动室"}),
        facility("Without_SmookingRoom", NUX_ELEMENT_TYPE_CLOSEHOUSE, {Of::ClosedHouse, 0, L"吸烟室"}),
        facility("Without_StoreHouse", NUX_ELEMENT_TYPE_CLOSEHOUSE, {Of::ClosedHouse, 0, L"可燃材料库房"}),
        facility("Without_WareHouse", NUX_ELEMENT_TYPE_CLOSEHOUSE,
                 {Of::ClosedHouse, 0, L"易燃易爆危险品库房"}),
        facility("Without_TemplateFactory", NUX_ELEMENT_TYPE_OPENHOUSE, {Of::OpenShed, 2}),
        facility("Without_WoodFactory", NUX_ELEMENT_TYPE_OPENHOUSE, {Of::OpenShed, 3}),
        facility("Without_FireFactory", NUX_ELEMENT_TYPE_OPENHOUSE, {Of::OpenShed, 1}),
        facility("Without_MachanicalFactory", NUX_ELEMENT_TYPE_OPENHOUSE, {Of::OpenShed, 4}),
        facility("Without_LifeWastePool", NUX_EDO_TYPE_WASTEPOOL, {Of::WastePool, 1}),
        facility("Without_BuildWastePool", NUX_EDO_TYPE_WASTEPOOL, {Of::WastePool, 0}),
    };
}

} // namespace

AttributesRead RuleRow::reads() const {
    AttributesRead read = attributesRead(QLatin1String(type));
    read.elementType = read.elementType || test == RuleTest::FireExtinguisherBox;
    return read;
}

const std::vector<RuleRow>& ruleCatalogue() {
    static const std::vector<RuleRow> rows = allRows();
    return rows;
}

const RuleRow* findRule(const QString& name) {
    const std::vector<RuleRow>& rows = ruleCatalogue();
    const auto found = std::find_if(rows.begin(), rows.end(),
                                    [&](const RuleRow& row) { return name == QLatin1String(row.name); });
    return found == rows.end() ? nullptr : &*found;
}

const RuleRow* findRule(const QString& name, const QString& type) {
    const RuleRow* row = findRule(name);
    return row && type == QLatin1String(row->type) ? row : nullptr;
}

const std::vector<const char*>& ruleTypes() {
    static const std::vector<const char*> types = {"self", "distant", "position", "without"};
    return types;
}

AttributesRead attributesRead(const QString& type) {
    AttributesRead read;
    const bool isDistant = type == QLatin1String("distant");
    const bool isWithout = type == QLatin1String("without");
    read.elementType = isDistant || isWithout;
    read.referenceElementType = isDistant;
    read.constraintCondition = isDistant;
    read.distantValue = isDistant;
    read.propertyType = isWithout;
    return read;
}

bool isJudged(const NuxStandardCheckRule& rule) {
    return rule.type == QLatin1String("without") || rule.type == QLatin1String("distant") ||
           findRule(rule.name, rule.type) != nullptr;
}

bool DistanceRow::isMeasuredTo(std::wstring_view referenceElementType) const {
    return std::find(referenceElementTypes.begin(), referenceElementTypes.end(), referenceElementType) !=
           referenceElementTypes.end();
}

const std::vector<DistanceRow>& distanceCatalogue() {
    static const std::vector<DistanceRow> rows = {
        {NUX_ELEMENT_TYPE_PREFABHOUSE,
         {NUX_ELEMENT_TYPE_PREFABHOUSE, NUX_ELEMENT_TYPE_FUTUREHOUSE, NUX_ELEMENT_TYPE_TRANSFORMERSUBSTATION,
          NUX_ELEMENT_TYPE_OPENHOUSE, NUX_EDO_TYPE_WOODYARD, NUX_EDO_TYPE_TEMPLATEYARD,
          NUX_EDO_TYPE_ELECTRICALMECHANICALYARD, NUX_EDO_TYPE_ROAD}},
        {NUX_ELEMENT_TYPE_FUTUREHOUSE,
         {NUX_ELEMENT_TYPE_BOXHOUSE, NUX_ELEMENT_TYPE_CLOSEHOUSE, NUX_ELEMENT_TYPE_CHAYANTING,
          NUX_ELEMENT_TYPE_MIXSITE, NUX_ELEMENT_TYPE_OPENHALFHOUSE, NUX_ELEMENT_TYPE_OPENHOUSE,
          NUX_EDO_TYPE_ANQUANJT, NUX_EDO_TYPE_WOODYARD, NUX_EDO_TYPE_TEMPLATEYARD,
          NUX_EDO_TYPE_ELECTRICALMECHANICALYARD}},
        {NUX_ELEMENT_TYPE_TRANSFORMERSUBSTATION,
         {NUX_ELEMENT_TYPE_TRANSFORMERSUBSTATION, NUX_ELEMENT_TYPE_TOTALSTEPDOWNSUBSTATION,
          NUX_ELEMENT_TYPE_OPENHOUSE, NUX_EDO_TYPE_WOODYARD, NUX_EDO_TYPE_TEMPLATEYARD,
          NUX_EDO_TYPE_ELECTRICALMECHANICALYARD}},
        {NUX_EDO_TYPE_ROAD,
         {NUX_ELEMENT_TYPE_FUTUREHOUSE, NUX_EDO_TYPE_WOODYARD, NUX_EDO_TYPE_TEMPLATEYARD,
          NUX_EDO_TYPE_ELECTRICALMECHANICALYARD}},
    };
    return rows;
}

const DistanceRow* findDistances(std::wstring_view elementType) {
    const std::vector<DistanceRow>& rows = distanceCatalogue();
    const auto found = std::find_if(rows.begin(), rows.end(),
                                    [&](const DistanceRow& row) { return row.elementType == elementType; });
    return found == rows.end() ? nullptr : &*found;
}

} // namespace firestandard
