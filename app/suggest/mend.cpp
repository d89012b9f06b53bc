#include "suggest/mend.h"

#include "explain/Words.h"
#include "suggest/action_text.h"

namespace firecheck {

using firestandard::Words;

namespace {

bool isDistance(const Workbench& bench, const Offence& offence) {
    return bench.site().judge().rule(offence).type == QLatin1String("distant");
}

/// A reason that no try tells; empty where there is none.
QString plainReason(const Workbench& bench, const Targets& targets) {
    using Test = firestandard::RuleTest;
    const Offence& first = *targets.begin();
    if (isDistance(bench, first)) {
        for (const Offence& offence : targets)
            if (const JudgedValue* value = bench.value(offence); !value || !value->contact)
                return Words::tr("the rule takes the distance for granted, so that no move changes it");
        return {};
    }
    const firestandard::RuleRow* row = bench.site().judge().row(first);
    if (!row)
        return {};
    switch (row->test) {
    case Test::DoorToDoor:
    case Test::OneDoorToRoadLoop:
        return Words::tr("gates, walls and roads stay where they are");
    case Test::RoadLoop:
        return Words::tr("no road of the site closes the loop as a further fire road");
    case Test::RequiredFacility:
        return row->use.of == firestandard::RequiredUse::Of::FireRoad
                   ? Words::tr("a fire road has to be added: an object of class road with \"fireRoad\": true")
                   : QString();
    default:
        return {};
    }
}

bool mayMoveAny(const Workbench& bench, const Targets& targets) {
    for (const Offence& offence : targets)
        for (const long long handle : {offence.element, offence.other})
            if (const auto index = bench.site().indexOf(handle); index && bench.mayMove(*index))
                return true;
    return false;
}

} // namespace

std::optional<Proposal> mend(Workbench& bench, const Targets& targets) {
    using Test = firestandard::RuleTest;
    const SiteJudge& judge = bench.site().judge();
    const Offence& first = *targets.begin();
    const firestandard::RuleRow* row = judge.row(first);
    if (isDistance(bench, first))
        return mendDistance(bench, targets);
    if (!row)
        return std::nullopt;
    switch (row->test) {
    case Test::Distance:
        return mendDistance(bench, targets);
    case Test::FireExtinguisherBox:
        return mendBox(bench, targets);
    case Test::OverheadCable:
        return mendCable(bench, targets);
    case Test::FireRoadHeadroom:
        return mendHeadroom(bench, targets);
    case Test::RoadMinWidth:
        return mendRoadWidth(bench, targets);
    case Test::RoadLoop:
        return mendRoadLoop(bench, targets);
    case Test::PrefabHouseFloorArea:
        return mendFloorArea(bench, targets);
    case Test::PrefabHouseRoomArea:
        return mendRoomArea(bench, targets);
    case Test::PrefabHouseStairs:
        return mendStairs(bench, targets);
    case Test::RequiredFacility:
        return mendMissing(bench, targets);
    case Test::DoorToDoor:
    case Test::OneDoorToRoadLoop:
        break; // gates, walls and roads stay where they are
    }
    return std::nullopt;
}

std::string whyNothingHelps(Workbench& bench, const Targets& targets) {
    const Obstacles obstacles = bench.takeObstacles();
    const QString plain = plainReason(bench, targets);
    if (!plain.isEmpty())
        return plain.toStdString();
    if (isDistance(bench, *targets.begin()) && !mayMoveAny(bench, targets))
        return Words::tr("neither of the elements may be moved").toStdString();
    return obstacleText(bench.site(), obstacles, bench.options().reach);
}

} // namespace firecheck
