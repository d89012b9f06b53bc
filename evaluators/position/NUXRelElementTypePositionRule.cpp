#include "evaluators/position/NUXRelElementTypePositionRule.h"

#include "evaluators/position/door_to_door.h"
#include "evaluators/position/fire_extinguisher_box.h"
#include "evaluators/position/fire_road_headroom.h"
#include "evaluators/position/overhead_cable.h"

// Deliberate: this evaluator sets no label and keeps the base's "RuleType".
NUXRelElementTypePositionRule::NUXRelElementTypePositionRule() = default;

bool NUXRelElementTypePositionRule::removeWithoutRules(NUXElementObject*, void*,
                                                       QMap<QString, std::vector<NuxStandardCheckRule>>&) {
    return true;
}

std::vector<NuxStandardCheckRule> NUXRelElementTypePositionRule::check(UdDbBlock* modelSpace,
                                                                       const NuxStandardCheckRule& rule) {
    if (!modelSpace)
        return {};
    if (isFireExtinguisherBoxRule(rule.name))
        return checkFireExtinguisherBoxes(*modelSpace, rule);
    if (isOverheadCableRule(rule.name))
        return checkOverheadCables(*modelSpace, rule);
    if (rule.name == QLatin1String("Position_DoorToDoor"))
        return checkDoorToDoor(*modelSpace, rule);
    if (rule.name == QLatin1String("Position_FireRoad"))
        return checkFireRoadHeadroom(*modelSpace, rule);
    return {};
}
