#include "suggest/mend.h"
#include "suggest/move_search.h"

#include <cmath>

namespace firecheck {

namespace {

constexpr double kMillimetresPerMetre = firestandard::kMillimetresPerMetre;
constexpr double kBurialDepth = 700.0; ///< mm; what a cable beside a road is buried to at least

/// Both directions across a line, none for one without length.
std::vector<hrx::CVec2<double>> across(const PlanShape& line) {
    if (line.paths.empty() || line.paths.front().edges.empty())
        return {};
    const hrx::Edge2d& edge = line.paths.front().edges.front();
    const hrx::CVec2<double> along = edge.end - edge.start;
    const double length = std::hypot(along.x, along.y);
    if (length == 0.0)
        return {};
    const hrx::CVec2<double> left{-along.y / length, along.x / length};
    return {left, left * -1.0};
}

std::optional<Proposal> moveAcross(Workbench& bench, const Targets& targets, std::size_t index,
                                   const TrialElement& line) {
    if (!bench.mayMove(index))
        return std::nullopt;
    MoveGoal goal;
    goal.index = index;
    goal.targets = targets;
    goal.directions = across(line.shape);
    return shortestMove(bench, goal);
}

std::optional<Proposal> changed(Workbench& bench, const Targets& targets, std::size_t index, Json object,
                                Action::Kind kind, double value) {
    Action action;
    action.kind = kind;
    action.index = index;
    action.value = value;
    return bench.verified({{index, std::move(object)}}, action, targets);
}

std::optional<Proposal> buriedCable(Workbench& bench, const Targets& targets, std::size_t cable) {
    Json object = bench.site().object(cable);
    for (const char* key : {"startElevationMetres", "endElevationMetres"})
        if (object.contains(key))
            object[key] = -kBurialDepth / kMillimetresPerMetre;
    return changed(bench, targets, cable, std::move(object), Action::Kind::Bury, kBurialDepth);
}

/// The object with its heights raised; it is raisable.
Json raisedObject(Json object, const std::string& className, double millimetres) {
    const double metres = millimetres / kMillimetresPerMetre;
    if (className == "serviceCable") {
        object["startElevationMetres"] = sumOf(object.at("startElevationMetres"), metres);
        if (object.contains("endElevationMetres"))
            object["endElevationMetres"] = sumOf(object.at("endElevationMetres"), metres);
        return object;
    }
    if (className == "poster") {
        object["elevationMetres"] = sumOf(object.value("elevationMetres", Json(0)), metres);
        return object;
    }
    object["jibHeight"] = sumOf(object.at("jibHeight"), millimetres);
    return object;
}

/// The least raise in steps of kLayoutStep. What hangs high enough stays so when it hangs higher.
std::optional<Proposal> raised(Workbench& bench, const Targets& targets, std::size_t index) {
    const TrialSite& site = bench.site();
    const std::string& className = site.element(index).className;
    std::set<long long> handles{site.element(index).handle};
    for (const Offence& offence : targets)
        handles.insert(offence.element);
    std::optional<Neighbourhood> neighbourhood;
    const auto works = [&](long steps) {
        Json object = raisedObject(site.object(index), className, double(steps * kLayoutStep));
        if (!neighbourhood)
            neighbourhood.emplace(site, site.element(index).shape.box, handles);
        return bench.meets(neighbourhood->differenceWith({{index, std::move(object)}}), targets);
    };
    long high = static_cast<long>(bench.options().reach) / kLayoutStep;
    if (high < 1 || !works(high))
        return std::nullopt;
    for (long low = 0; high - low > 1;) {
        const long middle = (low + high) / 2;
        (works(middle) ? high : low) = middle;
    }
    const double rise = double(high * kLayoutStep);
    return changed(bench, targets, index, raisedObject(site.object(index), className, rise),
                   Action::Kind::Raise, rise);
}

} // namespace

bool isRaisable(const TrialElement& element) {
    return element.className == "serviceCable" || element.className == "poster" ||
           element.className == "towerCrane";
}

std::optional<Proposal> mendCable(Workbench& bench, const Targets& targets) {
    const auto cable = bench.site().indexOf(targets.begin()->element);
    const auto area = bench.site().indexOf(targets.begin()->other);
    if (!cable || !area)
        return std::nullopt;
    for (const std::size_t index : {*area, *cable})
        if (auto moved = moveAcross(bench, targets, index, bench.site().element(*cable)))
            return moved;
    return bench.mayChange(*cable) ? buriedCable(bench, targets, *cable) : std::nullopt;
}

std::optional<Proposal> mendHeadroom(Workbench& bench, const Targets& targets) {
    const auto road = bench.site().indexOf(targets.begin()->element);
    const auto object = bench.site().indexOf(targets.begin()->other);
    if (!road || !object)
        return std::nullopt;
    if (bench.mayChange(*object) && isRaisable(bench.site().element(*object)))
        if (auto higher = raised(bench, targets, *object))
            return higher;
    for (const std::size_t index : {*object, *road})
        if (auto moved = moveAcross(bench, targets, index, bench.site().element(*road)))
            return moved;
    return bench.mayMove(*object) ? leastTurn(bench, *object, targets) : std::nullopt;
}

} // namespace firecheck
