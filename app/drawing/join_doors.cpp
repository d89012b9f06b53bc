#include "drawing/BoxGrid.h"
#include "drawing/DrawnElement.h"
#include "drawing/json_number.h"
#include "drawing/sound_geometry.h"

#include <algorithm>
#include <cmath>
#include <set>

namespace firecheck {

namespace {

using Point = hrx::CVec2<double>;

constexpr double kCellOfWalls = 20000.0;
constexpr double kReach = 1000.0;     // mm between a door and the axis of its wall
constexpr double kMostReach = 5000.0; // of one whose symbol, with its swing, stands beside the axis

Point pointOf(const Json& point) {
    return {point[0].get<double>(), point[1].get<double>()};
}

/// A wall's axis.
struct Axis {
    std::size_t wall;
    Point start;
    Point direction;
    double length;

    double along(const Point& p) const { return hrx::dot(p - start, direction); }
    double beside(const Point& p) const { return std::abs(hrx::cross(direction, p - start)); }
    /// How far the point is from the axis, its ends included.
    double distance(const Point& p) const {
        return std::hypot(beside(p), std::max({0.0, -along(p), along(p) - length}));
    }
};

std::vector<Axis> axesOf(const std::vector<DrawnElement>& elements, BoxGrid& grid) {
    std::vector<Axis> axes;
    for (std::size_t i = 0; i < elements.size(); ++i) {
        const Json& object = elements[i].object;
        const bool isWall = object["class"] == "wall" && object.contains("start") && object.contains("end");
        if (!isWall || !hasSoundGeometry(object))
            continue;
        const Point start = pointOf(object["start"]);
        const Point end = pointOf(object["end"]);
        const double length = hrx::length(end - start);
        if (!(length > 0.0))
            continue;
        const Point margin{kMostReach, kMostReach};
        hrx::CBox2d box;
        for (const Point& p : {start, end}) {
            box.add(p - margin);
            box.add(p + margin);
        }
        grid.add(box, axes.size());
        axes.push_back({i, start, (end - start) * (1.0 / length), length});
    }
    return axes;
}

/// Walls that exported data give doors already.
std::set<std::int64_t> joinedDoors(const std::vector<DrawnElement>& elements) {
    std::set<std::int64_t> doors;
    for (const DrawnElement& element : elements) {
        const auto entries = element.object.find("doors");
        if (entries == element.object.end() || !entries->is_array())
            continue;
        for (const Json& entry : *entries)
            if (entry.is_object() && entry.contains("door") && entry["door"].is_number_integer())
                doors.insert(entry["door"].get<std::int64_t>());
    }
    return doors;
}

void alignWithWall(Json& door, const Axis& axis) {
    const Point foot =
        axis.start + axis.direction * std::clamp(axis.along(pointOf(door["position"])), 0.0, axis.length);
    door["position"] = {jsonNumber(tidy(foot.x)), jsonNumber(tidy(foot.y))};
    const double angle = tidyAngle(std::atan2(axis.direction.y, axis.direction.x) * 180.0 / std::acos(-1.0));
    if (angle == 0.0)
        door.erase("angle");
    else
        door["angle"] = jsonNumber(angle);
}

void enter(const DrawnElement& door, const Axis& axis, Json& wall) {
    if (!wall.contains("doors"))
        wall["doors"] = Json::array();
    Json entry = {{"distance", jsonNumber(tidy(axis.along(pointOf(door.object["position"]))))},
                  {"door", door.handle}};
    const auto width = door.object.find("leafWidth");
    if (width != door.object.end() && width->is_number())
        entry["width"] = *width;
    wall["doors"].push_back(std::move(entry));
}

/// A wall lists its doors along its axis, each under a key of its own: its distance unless another has that.
void order(Json& doors) {
    const auto distance = [](const Json& entry) { return entry["distance"].get<double>(); };
    std::stable_sort(doors.begin(), doors.end(),
                     [&](const Json& a, const Json& b) { return distance(a) < distance(b); });
    std::set<double> taken;
    for (const Json& entry : doors)
        if (entry.contains("key") && entry["key"].is_number())
            taken.insert(entry["key"].get<double>());
    for (Json& entry : doors) {
        if (entry.contains("key"))
            continue;
        double key = distance(entry);
        while (!taken.insert(key).second)
            key = std::max(key + 1e-3, std::nextafter(key, HUGE_VAL));
        if (key != distance(entry))
            entry["key"] = key;
    }
}

} // namespace

std::vector<std::size_t> joinDoors(std::vector<DrawnElement>& elements) {
    BoxGrid grid(kCellOfWalls);
    const std::vector<Axis> axes = axesOf(elements, grid);
    const std::set<std::int64_t> joined = joinedDoors(elements);
    std::vector<std::size_t> alone;
    std::set<std::size_t> walls;
    for (std::size_t i = 0; i < elements.size(); ++i) {
        Json& door = elements[i].object;
        const bool isJoined = elements[i].isExported || joined.count(elements[i].handle) != 0;
        if (door["class"] != "door" || isJoined || !hasSoundGeometry(door))
            continue;
        const Point position = pointOf(door["position"]);
        const double reach = std::min(kReach + 0.5 * elements[i].symbolDepth, kMostReach);
        const Axis* nearest = nullptr;
        grid.near(position, [&](std::size_t number) {
            const double distance = axes[number].distance(position);
            if (distance <= reach && (!nearest || distance < nearest->distance(position)))
                nearest = &axes[number];
        });
        if (!nearest) {
            alone.push_back(i);
            continue;
        }
        if (elements[i].isAtSymbol)
            alignWithWall(door, *nearest);
        enter(elements[i], *nearest, elements[nearest->wall].object);
        walls.insert(nearest->wall);
    }
    for (const std::size_t wall : walls)
        order(elements[wall].object["doors"]);
    return alone;
}

} // namespace firecheck
