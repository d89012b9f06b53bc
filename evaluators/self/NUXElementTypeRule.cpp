#include "evaluators/self/NUXElementTypeRule.h"

#include "cad/UdDbBlock.h"
#include "elements/NUXDoorObject.h"
#include "elements/NUXPrefabHouseObject.h"
#include "elements/NUXRoadObject.h"
#include "evaluators/RuleOutcome.h"
#include "evaluators/rule_catalogue.h"
#include "evaluators/self/prefab_house.h"
#include "evaluators/self/road_network.h"
#include "site/model_space_walk.h"

using namespace firestandard;

namespace {

bool offends(RuleTest test, const NUXElementObject* element) {
    const auto* house = NUXPrefabHouseObject::Cast(element);
    const auto* road = NUXRoadObject::Cast(element);
    switch (test) {
    case RuleTest::PrefabHouseFloorArea:
        return house && floorArea(*house) > kMaximumFloorArea;
    case RuleTest::PrefabHouseRoomArea:
        return isRoomAreaExceeded(element);
    case RuleTest::PrefabHouseStairs:
        return isStairsMissing(element);
    case RuleTest::RoadMinWidth:
        return road && road->getIsFireRoad() && kMinimumFireRoadWidth > road->getWidth();
    default:
        return false;
    }
}

/// Up to the first room that is too large, which decides.
void tellOfRooms(CheckObserver& observer, const NUXPrefabHouseObject& house) {
    const std::vector<double> areas = roomAreas(house);
    if (areas.empty())
        observer.notJudged(house, NotJudged::NoRooms);
    for (const double area : areas) {
        const bool isTooLarge = area > kMaximumRoomArea;
        observer.compared({house, nullptr, isTooLarge, atMost(Quantity::Area, area, kMaximumRoomArea)});
        if (isTooLarge)
            return;
    }
}

/// What the test above looked at.
void tell(CheckObserver& observer, RuleTest test, const NUXElementObject* element, bool isOffending) {
    const auto* house = NUXPrefabHouseObject::Cast(element);
    const auto* road = NUXRoadObject::Cast(element);
    if (test == RuleTest::PrefabHouseFloorArea && house)
        observer.compared(
            {*house, nullptr, isOffending, atMost(Quantity::Area, floorArea(*house), kMaximumFloorArea)});
    else if (test == RuleTest::PrefabHouseRoomArea && house && isOffice(*house))
        tellOfRooms(observer, *house);
    else if (test == RuleTest::PrefabHouseStairs && house)
        observer.compared({*house, nullptr, isOffending});
    else if (test == RuleTest::RoadMinWidth && road && road->getIsFireRoad())
        observer.compared(
            {*road, nullptr, isOffending, atLeast(Quantity::Width, road->getWidth(), kMinimumFireRoadWidth)});
}

void tellOfFireRoads(CheckObserver& observer, const UdDbBlock& modelSpace, bool isLoopClosed) {
    for (const NUXRoadObject* road : identifiedFireRoads(modelSpace))
        observer.compared({*road, nullptr, !isLoopClosed});
}

void tellOfRoads(CheckObserver& observer, const UdDbBlock& modelSpace, bool isLoopClosed) {
    const Roads roads = identifiedRoads(modelSpace);
    Curves curves;
    for (const NUXRoadObject* road : roads)
        if (auto curve = centreLine(*road))
            curves.push_back(std::move(curve));
    const bool areJoined = loopStateOf(curves) != LoopState::NotJoined;
    for (const NUXRoadObject* road : roads) {
        if (areJoined && centreLine(*road))
            observer.compared({*road, nullptr, !isLoopClosed});
        else
            observer.notJudged(*road, NotJudged::NoCentreLine);
    }
}

} // namespace

NUXElementTypeRule::NUXElementTypeRule() {
    m_type = QStringLiteral("ElementTypeRule");
}

bool NUXElementTypeRule::removeWithoutRules(NUXElementObject*, void*,
                                            QMap<QString, std::vector<NuxStandardCheckRule>>&) {
    return true;
}

std::vector<NuxStandardCheckRule> NUXElementTypeRule::check(UdDbBlock* modelSpace,
                                                            const NuxStandardCheckRule& rule) {
    const RuleRow* row = findRule(rule.name, QStringLiteral("self"));
    if (!modelSpace || !row)
        return {};

    RuleOutcome outcome(rule);
    CheckObserver* const observer = outcome.observer();
    std::vector<const NUXDoorObject*> doors;
    walkModelSpace(*modelSpace, [&](const UdDbObject* object) {
        const auto* element = NUXElementObject::Cast(object);
        if (const auto* door = NUXDoorObject::Cast(object))
            doors.push_back(door);
        const bool isOffending = offends(row->test, element);
        if (isOffending)
            outcome.addViolation(*object);
        if (observer)
            tell(*observer, row->test, element, isOffending);
    });

    if (row->test == RuleTest::RoadLoop) {
        const bool isClosed = isFireRoadLoopClosed(*modelSpace);
        if (!isClosed)
            outcome.addViolation();
        if (observer)
            tellOfFireRoads(*observer, *modelSpace, isClosed);
    } else if (row->test == RuleTest::OneDoorToRoadLoop && doors.size() == 1) {
        const bool isClosed = isRoadLoopClosed(*modelSpace);
        if (!isClosed)
            relate(outcome.addViolation(), *doors.front());
        if (observer)
            tellOfRoads(*observer, *modelSpace, isClosed);
    }
    return outcome.takeViolations();
}
