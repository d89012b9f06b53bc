#include "suggest/mend.h"

#include <algorithm>
#include <cmath>

namespace firecheck {

namespace {

constexpr std::size_t kMostRoads = 40; ///< that are tried as a further fire road

} // namespace

std::optional<Proposal> mendRoadWidth(Workbench& bench, const Targets& targets) {
    const auto road = bench.site().indexOf(targets.begin()->element);
    if (!road || !bench.mayChange(*road))
        return std::nullopt;
    const double limit = bench.site().judge().row(*targets.begin())->fixedLimits[0];
    Action action;
    action.kind = Action::Kind::Widen;
    action.index = *road;
    action.value = std::ceil(limit / double(kLayoutStep)) * double(kLayoutStep);
    Json object = bench.site().object(*road);
    object["width"] = static_cast<long>(action.value);
    return bench.verified({{*road, std::move(object)}}, action, targets);
}

std::optional<Proposal> mendRoadLoop(Workbench& bench, const Targets& targets) {
    const TrialSite& site = bench.site();
    std::vector<std::pair<double, std::size_t>> roads; // by length
    for (std::size_t index = 0; index < site.size(); ++index) {
        const TrialElement& element = site.element(index);
        if (element.className != "road" || element.shape.kind != PlanKind::Road || !bench.mayChange(index))
            continue;
        const hrx::CBox2d& box = element.shape.box;
        roads.emplace_back(std::hypot(box.high.x - box.low.x, box.high.y - box.low.y), index);
    }
    std::sort(roads.begin(), roads.end());
    roads.resize(std::min(roads.size(), kMostRoads));
    for (const auto& [length, index] : roads) {
        Action action;
        action.kind = Action::Kind::MakeFireRoad;
        action.index = index;
        Json object = site.object(index);
        object["fireRoad"] = true;
        if (auto proposal = bench.verified({{index, std::move(object)}}, action, targets))
            return proposal;
    }
    return std::nullopt;
}

} // namespace firecheck
