#include "json/Json.h"
#include "suggest/mend.h"

#include <algorithm>
#include <cmath>

namespace firecheck {

namespace {

constexpr double kSquareMillimetresPerSquareMetre = 1e6;
constexpr double kStep = double(kLayoutStep);
constexpr double kDegree = 0.017453292519943295;

double downToStep(double value) {
    constexpr double noise = 1e-9;
    return std::floor(value / kStep + noise) * kStep;
}

/// Of a floor, for its area.
double depthOf(const Json& house) {
    return house.value("floorDepth", house.value("depth", 0.0));
}

/// Whole numbers as people write them.
Json numberOf(double value) {
    return value == std::floor(value) ? Json(static_cast<long long>(value)) : Json(value);
}

std::vector<double> positionsOf(const Json& house) {
    std::vector<double> positions;
    for (const Json& position : house.value("partitions", Json::array()))
        positions.push_back(position.is_array() ? position[0].get<double>() : position.get<double>());
    return positions;
}

void setPositions(Json& house, const std::vector<double>& positions) {
    Json list = Json::array();
    for (const double position : positions)
        list.push_back(numberOf(position));
    house["partitions"] = std::move(list);
}

/// Which of the house's ends stays where it is.
enum class Keep { Middle, Start, End };

/// A shorter house. Partitions beyond its new end are taken out, and the last one stands there.
Json shortenedHouse(Json house, double length, Keep keep) {
    const double less = house.at("length").get<double>() - length;
    house["length"] = numberOf(length);
    if (keep != Keep::Middle && house.contains("center")) {
        const double along = (keep == Keep::Start ? -0.5 : 0.5) * less;
        const double angle = house.value("angle", 0.0) * kDegree;
        house["center"][0] = sumOf(house["center"][0], along * std::cos(angle));
        house["center"][1] = sumOf(house["center"][1], along * std::sin(angle));
    }
    std::vector<double> positions = positionsOf(house);
    if (!positions.empty() && positions.back() > length) {
        while (!positions.empty() && positions.back() > length)
            positions.pop_back();
        if (positions.empty() || positions.back() < length)
            positions.push_back(length);
        setPositions(house, positions);
    }
    return house;
}

std::optional<std::size_t> houseOf(const Workbench& bench, const Targets& targets) {
    const auto index = bench.site().indexOf(targets.begin()->element);
    return index && bench.mayChange(*index) ? index : std::nullopt;
}

/// To a floor of that many square metres.
std::optional<Proposal> shortenedTo(Workbench& bench, const Targets& targets, std::size_t index,
                                    double area) {
    const Json& house = bench.site().object(index);
    const double depth = depthOf(house);
    if (!house.contains("length") || depth <= 0.0)
        return std::nullopt;
    Action action;
    action.kind = Action::Kind::Shorten;
    action.index = index;
    action.before = house.at("length").get<double>();
    action.value = downToStep(area * kSquareMillimetresPerSquareMetre / depth);
    if (action.value <= 0.0 || action.value >= action.before)
        return std::nullopt;
    for (const Keep keep : {Keep::Middle, Keep::Start, Keep::End})
        if (auto proposal =
                bench.verified({{index, shortenedHouse(house, action.value, keep)}}, action, targets))
            return proposal;
    return std::nullopt;
}

/// The partitions shifted towards the start of the house so that no room is wider than `widest`; nothing
/// where the last room is too wide then.
std::optional<std::vector<double>> shifted(std::vector<double> positions, double widest) {
    for (std::size_t i = 1; i + 1 < positions.size(); ++i)
        positions[i] = std::min(positions[i], positions[i - 1] + widest);
    const std::size_t last = positions.size() - 1;
    return positions[last] - positions[last - 1] <= widest ? std::optional(positions) : std::nullopt;
}

/// With further partitions, which divide each room that is too wide into equal ones.
std::vector<double> divided(const std::vector<double>& positions, double widest) {
    std::vector<double> result{positions.front()};
    for (std::size_t i = 1; i < positions.size(); ++i) {
        const double width = positions[i] - positions[i - 1];
        const double rooms = std::ceil(width / widest);
        for (double room = 1.0; room < rooms; room += 1.0)
            result.push_back(positions[i - 1] + std::round(width * room / rooms / kStep) * kStep);
        result.push_back(positions[i]);
    }
    return result;
}

std::optional<Proposal> withPartitions(Workbench& bench, const Targets& targets, std::size_t index,
                                       const std::vector<double>& positions) {
    Action action;
    action.kind = Action::Kind::Partitions;
    action.index = index;
    action.positions = positions;
    Json house = bench.site().object(index);
    setPositions(house, positions);
    return bench.verified({{index, std::move(house)}}, action, targets);
}

} // namespace

std::optional<Proposal> mendFloorArea(Workbench& bench, const Targets& targets) {
    const auto index = houseOf(bench, targets);
    const double limit = bench.site().judge().row(*targets.begin())->fixedLimits[0];
    return index ? shortenedTo(bench, targets, *index, limit) : std::nullopt;
}

std::optional<Proposal> mendRoomArea(Workbench& bench, const Targets& targets) {
    const auto index = houseOf(bench, targets);
    if (!index)
        return std::nullopt;
    const Json& house = bench.site().object(*index);
    const double depth = depthOf(house);
    const std::vector<double> positions = positionsOf(house);
    const bool isInOrder = std::is_sorted(positions.begin(), positions.end());
    if (depth <= 0.0 || positions.size() < 2 || !isInOrder)
        return std::nullopt;
    const double limit = bench.site().judge().row(*targets.begin())->fixedLimits[0];
    const double widest = downToStep(limit * kSquareMillimetresPerSquareMetre / depth);
    if (widest <= kStep)
        return std::nullopt;
    if (const auto moved = shifted(positions, widest))
        if (auto proposal = withPartitions(bench, targets, *index, *moved))
            return proposal;
    return withPartitions(bench, targets, *index, divided(positions, widest));
}

std::optional<Proposal> mendStairs(Workbench& bench, const Targets& targets) {
    const auto index = houseOf(bench, targets);
    if (!index)
        return std::nullopt;
    const Json& house = bench.site().object(*index);
    Action stairs;
    stairs.kind = Action::Kind::BothStairs;
    stairs.index = *index;
    Json withStairs = house;
    withStairs["stairs"] = "bothEnds";
    if (auto proposal = bench.verified({{*index, std::move(withStairs)}}, stairs, targets))
        return proposal;

    const auto& limits = bench.site().judge().row(*targets.begin())->fixedLimits;
    Action floors;
    floors.kind = Action::Kind::Floors;
    floors.index = *index;
    floors.value = limits[1] - 1.0;
    floors.before = house.value("floors", 1.0);
    Json lower = house;
    lower["floors"] = static_cast<int>(floors.value);
    if (floors.before > floors.value)
        if (auto proposal = bench.verified({{*index, std::move(lower)}}, floors, targets))
            return proposal;
    return shortenedTo(bench, targets, *index, limits[0]);
}

} // namespace firecheck
