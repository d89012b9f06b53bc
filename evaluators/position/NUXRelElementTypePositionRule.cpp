#include "evaluators/position/NUXRelElementTypePositionRule.h"

#include "evaluators/position/door_to_door.h"
#include "evaluators/position/fire_extinguisher_box.h"
#include "evaluators/position/fire_road_headroom.h"
#include "evaluators/position/overhead_cable.h"
#include "evaluators/rule_catalogue.h"

using namespace firestandard;

// Deliberate: this evaluator sets no label and keeps the base's "RuleType", which hosts have always read.
NUXRelElementTypePositionRule::NUXRelElementTypePositionRule() = default;

bool NUXRelElementTypePositionRule::removeWithoutRules(NUXElementObject*, void*,
                                                       QMap<QString, std::vector<NuxStandardCheckRule>>&) {
    return true;
}

std::vector<NuxStandardCheckRule> NUXRelElementTypePositionRule::check(UdDbBlock* modelSpace,
                                                                       const NuxStandardCheckRule& rule) {
    const RuleRow* row = findRule(rule.name, QStringLiteral("position"));
    if (!modelSpace || !row)
        return {};
    switch (row->test) {
    case RuleTest::FireExtinguisherBox:
        return checkFireExtinguisherBoxes(*modelSpace, rule, *row);
    case RuleTest::OverheadCable:
        return checkOverheadCables(*modelSpace, rule, *row);
    case RuleTest::DoorToDoor:
        return checkDoorToDoor(*modelSpace, rule);
    case RuleTest::FireRoadHeadroom:
        return checkFireRoadHeadroom(*modelSpace, rule);
    default:
        return {};
    }
}
