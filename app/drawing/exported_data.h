#pragma once

#include "drawing/DrawnShape.h"
#include "json/Json.h"

#include <string>
#include <vector>

namespace firecheck {

// What an exported entity carries of its object in extended data: JSON with everything but what its shape
// says. Where a value that follows from the shape is rounded, the exact one stands there as well, and under
// kDrawnKey what the shape says where that is something else. Both hold as long as the shape is as it was:
// who edits the drawing means the shape.

inline const std::string kDrawnKey = "drawn";
inline const std::string kSiteDataKey = "site";

/// The data of an object whose entity reads as `geometry`.
Json exportedData(const Json& object, const Json& geometry);

/// The object without class and handle that data and geometry make. `asPolyline` is the geometry as a
/// polyline, for objects that were given as one.
Json importedObject(const Json& data, const Json& geometry, const Json& asPolyline);

/// The text of data as strings that DXF takes, and the other way round.
std::vector<std::string> dataStrings(const Json& data);

} // namespace firecheck
