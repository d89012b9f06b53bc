#include "suggest/mend.h"

namespace firecheck {

std::optional<Proposal> mend(Workbench& bench, const Targets& targets) {
    using Test = firestandard::RuleTest;
    const auto test = bench.site().judge().test(*targets.begin());
    if (!test)
        return std::nullopt;
    switch (*test) {
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
        break; // the places of gates are not searched
    }
    return std::nullopt;
}

} // namespace firecheck
