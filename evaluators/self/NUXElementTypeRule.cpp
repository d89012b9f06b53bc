#include "evaluators/self/NUXElementTypeRule.h"

#include "cad/UdDbBlock.h"
#include "elements/NUXDoorObject.h"
#include "evaluators/violation_record.h"
#include "site/model_space_walk.h"

NUXElementTypeRule::NUXElementTypeRule() {
    m_type = QStringLiteral("ElementTypeRule");
}

bool NUXElementTypeRule::removeWithoutRules(NUXElementObject*, void*,
                                            QMap<QString, std::vector<NuxStandardCheckRule>>&) {
    return true;
}

NUXElementTypeRule::ElementTest NUXElementTypeRule::elementTest(const QString& ruleName) {
    if (ruleName == QLatin1String("Self_PrefabHouseFloorArea"))
        return isFloorAreaExceeded;
    if (ruleName == QLatin1String("Self_PrefabHouseRoomArea"))
        return isRoomAreaExceeded;
    if (ruleName == QLatin1String("Self_PrefabHouseStairs"))
        return isStairsMissing;
    if (ruleName == QLatin1String("Self_RoadMinWidth"))
        return isFireRoadTooNarrow;
    return nullptr;
}

std::vector<NuxStandardCheckRule> NUXElementTypeRule::check(UdDbBlock* modelSpace,
                                                            const NuxStandardCheckRule& rule) {
    std::vector<NuxStandardCheckRule> violations;
    if (!modelSpace)
        return violations;

    const ElementTest isOffended = elementTest(rule.name);
    std::vector<const NUXDoorObject*> doors;
    walkModelSpace(*modelSpace, [&](const UdDbObject* object) {
        const auto* element = NUXElementObject::Cast(object);
        if (const auto* door = NUXDoorObject::Cast(object))
            doors.push_back(door);
        if (isOffended && isOffended(element))
            violations.push_back(violationOf(rule, *object));
    });

    if (rule.name == QLatin1String("Self_RoadLoop")) {
        if (!isFireRoadLoopClosed(*modelSpace))
            violations.push_back(rule);
    } else if (rule.name == QLatin1String("Self_OneDoorToRoadLoop") && doors.size() == 1) {
        if (!isRoadLoopClosed(*modelSpace)) {
            violations.push_back(rule);
            relate(violations.back(), *doors.front());
        }
    }
    return violations;
}
