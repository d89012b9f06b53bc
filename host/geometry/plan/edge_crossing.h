#pragma once

#include "geometry/Edge2d.h"

namespace hrx::plan {

/// True when two edges (line or arc) cross within both: each passes from
/// one side of the other to the other side by more than `g_touchDistance`. Edges that share an end, touch, or
/// run along each other do not cross there.
bool edgesCross(const Edge2d& first, const Edge2d& second);

} // namespace hrx::plan
