#include "suggest/mend.h"

namespace firecheck {

std::optional<Proposal> mend(Workbench& bench, const Targets& targets) {
    using Test = firestandard::RuleTest;
    const SiteJudge& judge = bench.site().judge();
    const Offence& first = *targets.begin();
    const firestandard::RuleRow* row = judge.row(first);
    if (judge.rule(first).type == QLatin1String("distant"))
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

} // namespace firecheck
