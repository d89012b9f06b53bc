#pragma once

#include "json/Json.h"

#include <cstddef>
#include <optional>
#include <utility>
#include <vector>

namespace firecheck {

/// An object of a site file with other values, or a new one.
struct ObjectChange {
    std::optional<std::size_t> index; ///< in the list of objects; nothing for a new object
    Json object;                      ///< the whole of it
};

/// What is done to a site at once: one element changed, or what is added together.
using Change = std::vector<ObjectChange>;

/// A move in plan, mm: people lay out in steps of kLayoutStep.
struct PlanMove {
    long dx = 0; ///< to the east
    long dy = 0; ///< to the north

    double length() const;
    friend bool operator<(const PlanMove& a, const PlanMove& b) {
        return std::pair(a.dx, a.dy) < std::pair(b.dx, b.dy);
    }
};

constexpr long kLayoutStep = 10; ///< mm

/// The object with every point of it moved in plan, that of its second view and its given extents included.
Json movedObject(Json object, const PlanMove& move);

/// The object turned by whole degrees counter-clockwise about the point at which it stands. Nothing for an
/// object that stands at none, as one given by a polyline.
std::optional<Json> turnedObject(Json object, int degrees);

/// The number with the rounding noise of a sum taken away; an integer stays one.
Json sumOf(const Json& number, double addend);

} // namespace firecheck
