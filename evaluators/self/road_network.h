#pragma once

#include "geometry/CCurve2d.h"

#include <memory>
#include <vector>

class NUXRoadObject;
class UdDbBlock;

namespace firestandard {

using Roads = std::vector<const NUXRoadObject*>;

/// The roads of the model space that carry a road's type identifier, in its order.
Roads identifiedRoads(const UdDbBlock& modelSpace);
/// Those of them that are for fire engines.
Roads identifiedFireRoads(const UdDbBlock& modelSpace);

using Curves = std::vector<std::unique_ptr<hrx::CCurve2d>>;

/// Null for an arc road whose three points coincide; a straight road always has a centre line.
std::unique_ptr<hrx::CCurve2d> centreLine(const NUXRoadObject& road);

enum class LoopState { Closed, Open, NotJoined };

/// Whether the centre lines hold a closed loop, ends within kJoiningTolerance joined.
LoopState loopStateOf(const Curves& curves);

} // namespace firestandard

/// Whether the fire roads form a loop; true for a site without any.
bool isFireRoadLoopClosed(const UdDbBlock& modelSpace);

/// Whether the roads of the site, for fire engines or not, enclose an area; true for a site without roads and
/// for roads that cannot be joined.
bool isRoadLoopClosed(const UdDbBlock& modelSpace);
