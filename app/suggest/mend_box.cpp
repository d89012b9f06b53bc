#include "suggest/mend.h"
#include "suggest/move_search.h"

#include <algorithm>
#include <cmath>

namespace firecheck {

namespace {

constexpr std::size_t kMostBoxes = 3; ///< that are tried to be moved
constexpr double kBoxDepth = 250.0;
constexpr double kClearOfElement = 500.0; ///< mm, between a new box and the element it is for
constexpr std::size_t kMostPlaces = 64;

double gapBetween(const hrx::CBox2d& a, const hrx::CBox2d& b) {
    const double dx = std::max({0.0, a.low.x - b.high.x, b.low.x - a.high.x});
    const double dy = std::max({0.0, a.low.y - b.high.y, b.low.y - a.high.y});
    return std::hypot(dx, dy);
}

bool isBox(const TrialElement& element) {
    return element.className == "extinguisherBox";
}

/// Boxes that may be moved, by how near their extents are.
std::vector<std::size_t> boxesNear(const Workbench& bench, const hrx::CBox2d& place) {
    std::vector<std::pair<double, std::size_t>> near;
    const TrialSite& site = bench.site();
    for (std::size_t index = 0; index < site.size(); ++index)
        if (isBox(site.element(index)) && bench.mayMove(index))
            near.emplace_back(gapBetween(site.element(index).shape.box, place), index);
    std::sort(near.begin(), near.end());
    near.resize(std::min(near.size(), kMostBoxes));
    std::vector<std::size_t> indices;
    for (const auto& [gap, index] : near)
        if (gap <= bench.options().reach + firestandard::kMaximumBoxDistance)
            indices.push_back(index);
    return indices;
}

std::optional<Proposal> moveOfBox(Workbench& bench, const Targets& targets, std::size_t element) {
    const Offence& target = *targets.begin();
    const JudgedValue* nearest = bench.value(target);
    std::optional<Proposal> best;
    for (const std::size_t box : boxesNear(bench, bench.site().element(element).shape.box)) {
        MoveGoal goal;
        goal.index = box;
        goal.targets = targets;
        if (nearest && nearest->contact && !target.isTouched) {
            // No other box is nearer.
            goal.atLeast = nearest->measurement.value - firestandard::kMaximumBoxDistance;
            const hrx::CVec2<double> way{nearest->contact->onFirst.x - nearest->contact->onSecond.x,
                                         nearest->contact->onFirst.y - nearest->contact->onSecond.y};
            const double length = std::hypot(way.x, way.y);
            if (nearest->other == bench.site().element(box).handle && length > 0.0)
                goal.directions.push_back(way * (1.0 / length));
        }
        const double shorterThan = best ? best->action.move.length() : bench.options().reach + kLayoutStep;
        if (auto proposal = shortestMove(bench, goal, shorterThan))
            best = std::move(proposal);
    }
    return best;
}

struct PlaceOfBox {
    double x;
    double y;
    int angle;
};

double laidOut(double coordinate) {
    return std::round(coordinate / double(kLayoutStep)) * double(kLayoutStep);
}

/// Along the sides of an element's extents, the middles first.
std::vector<PlaceOfBox> placesAround(const hrx::CBox2d& box) {
    const double away = kClearOfElement + kBoxDepth * 0.5;
    std::vector<PlaceOfBox> places;
    for (const double share : {0.5, 0.25, 0.75, 0.0, 1.0}) {
        const double x = laidOut(box.low.x + (box.high.x - box.low.x) * share);
        const double y = laidOut(box.low.y + (box.high.y - box.low.y) * share);
        places.push_back({x, laidOut(box.low.y - away), 0});
        places.push_back({x, laidOut(box.high.y + away), 0});
        places.push_back({laidOut(box.low.x - away), y, 90});
        places.push_back({laidOut(box.high.x + away), y, 90});
    }
    return places;
}

Json newBox(const Workbench& bench, const PlaceOfBox& place) {
    Json box = {{"class", "extinguisherBox"},
                {"handle", bench.site().freeHandle()},
                {"position", {static_cast<long long>(place.x), static_cast<long long>(place.y)}}};
    if (place.angle != 0)
        box["angle"] = place.angle;
    return box;
}

/// Elements that lack a box like that of the target, as near as one box may serve both.
std::vector<PlaceOfBox> placesFor(const Workbench& bench, std::size_t element) {
    const TrialSite& site = bench.site();
    const hrx::CBox2d& here = site.element(element).shape.box;
    std::vector<PlaceOfBox> places = placesAround(here);
    std::set<long long> others;
    for (const auto& entry : site.verdict().offences)
        if (site.judge().isBoxRule(entry.first.rule) && !entry.first.isTouched)
            others.insert(entry.first.element);
    others.erase(site.element(element).handle);
    for (const long long handle : others) {
        const auto index = site.indexOf(handle);
        if (!index || site.element(*index).shape.paths.empty() || places.size() >= kMostPlaces)
            continue;
        const hrx::CBox2d& there = site.element(*index).shape.box;
        const double gap = gapBetween(here, there);
        if (gap > 2.0 * firestandard::kMaximumBoxDistance)
            continue;
        for (const PlaceOfBox& place : placesAround(there))
            if (gapBetween({{place.x, place.y}, {place.x, place.y}}, here) <
                firestandard::kMaximumBoxDistance)
                places.push_back(place);
        // Half way between the two.
        const auto between = [](double aLow, double aHigh, double bLow, double bHigh) {
            return laidOut((std::max(aLow, bLow) + std::min(aHigh, bHigh)) * 0.5);
        };
        places.push_back({between(here.low.x, here.high.x, there.low.x, there.high.x),
                          between(here.low.y, here.high.y, there.low.y, there.high.y), 0});
    }
    return places;
}

/// A new box where it serves most of the elements that lack one.
std::optional<Proposal> addedBox(Workbench& bench, const Targets& targets, std::size_t element) {
    const TrialSite& site = bench.site();
    if (site.element(element).shape.paths.empty())
        return std::nullopt;
    const double wide = 3.0 * firestandard::kMaximumBoxDistance;
    hrx::CBox2d region = site.element(element).shape.box;
    region = {{region.low.x - wide, region.low.y - wide}, {region.high.x + wide, region.high.y + wide}};
    Neighbourhood neighbourhood(site, region, {site.element(element).handle});
    std::vector<std::pair<std::size_t, Change>> serving; // by how many are served
    for (const PlaceOfBox& place : placesFor(bench, element)) {
        const Change change{{std::nullopt, newBox(bench, place)}};
        if (const auto obstacle =
                bench.ground().obstacleOf(site.elementOf(change.front().object), std::nullopt)) {
            bench.noteObstacle(*obstacle);
            continue;
        }
        const OffenceDifference difference = neighbourhood.differenceWith(change);
        if (bench.meets(difference, targets))
            serving.emplace_back(difference.removed.size(), change);
    }
    std::stable_sort(serving.begin(), serving.end(),
                     [](const auto& a, const auto& b) { return a.first > b.first; });
    constexpr std::size_t mostVerified = 4;
    for (std::size_t i = 0; i < std::min(serving.size(), mostVerified); ++i) {
        Action action;
        action.kind = Action::Kind::Add;
        if (auto proposal = bench.verified(serving[i].second, action, targets))
            return proposal;
    }
    return std::nullopt;
}

} // namespace

std::optional<Proposal> mendBox(Workbench& bench, const Targets& targets) {
    const auto element = bench.site().indexOf(targets.begin()->element);
    if (!element)
        return std::nullopt;
    if (auto moved = moveOfBox(bench, targets, *element))
        return moved;
    if (!targets.begin()->isTouched)
        if (auto added = addedBox(bench, targets, *element))
            return added;
    if (!bench.mayMove(*element))
        return std::nullopt;
    MoveGoal goal;
    goal.index = *element;
    goal.targets = targets;
    return shortestMove(bench, goal);
}

} // namespace firecheck
