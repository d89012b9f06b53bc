#include "suggest/mend.h"
#include "suggest/move_search.h"

#include <algorithm>
#include <cmath>

namespace firecheck {

namespace {

/// How a move of one of the two elements changes a distance most.
struct Pull {
    hrx::CVec2<double> ofElement; ///< unit vector; (0, 0) where nothing tells
    double missing;               ///< mm
};

/// Nothing for a distance that was taken for granted: no move changes it.
std::optional<Pull> pullOf(const JudgedValue* value) {
    if (!value || !value->contact)
        return std::nullopt;
    const auto& [quantity, distance, minimum, maximum] = value->measurement;
    const bool isTooNear = minimum && distance < *minimum;
    const hrx::CVec2<double> away{value->contact->onFirst.x - value->contact->onSecond.x,
                                  value->contact->onFirst.y - value->contact->onSecond.y};
    const double length = std::hypot(away.x, away.y) * (isTooNear ? 1.0 : -1.0);
    const double missing = isTooNear ? *minimum - distance : maximum ? distance - *maximum : 0.0;
    return Pull{length == 0.0 ? hrx::CVec2<double>{0.0, 0.0} : away * (1.0 / length), missing};
}

MoveGoal goalFor(std::size_t index, const Targets& targets, const std::vector<Pull>& pulls, double sign) {
    MoveGoal goal;
    goal.index = index;
    goal.targets = targets;
    for (const Pull& pull : pulls) {
        goal.atLeast = std::max(goal.atLeast, pull.missing);
        if (pull.ofElement.x != 0.0 || pull.ofElement.y != 0.0)
            goal.directions.push_back(pull.ofElement * sign);
    }
    return goal;
}

} // namespace

std::optional<Proposal> mendDistance(Workbench& bench, const Targets& targets) {
    std::vector<Pull> pulls;
    for (const Offence& offence : targets) {
        const auto pull = pullOf(bench.value(offence));
        if (!pull)
            return std::nullopt;
        pulls.push_back(*pull);
    }
    std::vector<MoveGoal> goals;
    const Offence& first = *targets.begin();
    if (const auto index = bench.site().indexOf(first.element); index && bench.mayMove(*index))
        goals.push_back(goalFor(*index, targets, pulls, 1.0));
    if (targets.size() == 1)
        if (const auto index = bench.site().indexOf(first.other); index && bench.mayMove(*index))
            goals.push_back(goalFor(*index, targets, pulls, -1.0));

    std::optional<Proposal> best;
    for (const MoveGoal& goal : goals) {
        const double shorterThan = best ? best->action.move.length() : bench.options().reach + kLayoutStep;
        if (auto proposal = shortestMove(bench, goal, shorterThan))
            best = std::move(proposal);
    }
    for (const MoveGoal& goal : goals)
        if (!best)
            best = leastTurn(bench, goal.index, targets);
    return best;
}

} // namespace firecheck
