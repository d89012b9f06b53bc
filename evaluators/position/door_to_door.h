#pragma once

#include "geometry/CVec2.h"
#include "rules_config/NuxStandardCheckRule.h"

#include <optional>
#include <vector>

class UdDbBlock;

namespace firestandard {

/// A wall with two or more doors, and doors on two walls that meet in a wide corner. Each record names a door
/// and at most one other door.
std::vector<NuxStandardCheckRule> checkDoorToDoor(const UdDbBlock& modelSpace,
                                                  const NuxStandardCheckRule& rule);

/// A wall's axis in plan.
struct WallAxis {
    hrx::CVec2<double> start{0.0, 0.0};
    hrx::CVec2<double> end{0.0, 0.0};
};

/// The angle, in radians from 0 to 2 pi, by which the rule judges the corner between two walls; nothing when
/// no two of their ends are at most kCornerTolerance apart.
///
/// It is the angle between unit vectors only for those: the vectors are taken at their full length and their
/// dot product is clamped, so long walls give 0, pi / 2 or pi, or 2 pi less these.
std::optional<double> cornerAngle(const WallAxis& wall, const WallAxis& neighbour);

} // namespace firestandard
