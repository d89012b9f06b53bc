#pragma once

#include "drawing/DrawnShape.h"
#include "json/Json.h"
#include "site_file/SiteClass.h"

#include <string>
#include <vector>

namespace firecheck {

/// How objects of a class lie in plan.
enum class ElementPlan {
    Footprint, ///< by a rectangle, circle or closed polyline
    Route,     ///< from a start to an end, straight or along an arc
    Wall,      ///< from a start to an end, always straight
    Door,      ///< at a position, along its wall
    Crane,     ///< at a position, along its jib
    Box,       ///< at a position, with a length and a depth
    Spot,      ///< at a position
    Nowhere
};

ElementPlan elementPlan(const SiteClass& siteClass);

/// Which way a rectangle's length runs.
enum class LengthRuns {
    AlongLongerSide, ///< as people mean it; its angle is above -90 and up to 90
    AlongFirstEdge   ///< as exported
};

/// The keys of a site file that say where an element is, one object for each element that the shape stands
/// for: each segment of a polyline is a road of its own. Empty for a shape that such an element cannot have.
std::vector<Json> elementGeometry(ElementPlan plan, const DrawnShape& shape, LengthRuns lengthRuns);

/// The outline of a shape as a closed polyline, whatever else it is; empty for one without corners.
Json polylineGeometry(const DrawnShape& shape);

} // namespace firecheck
