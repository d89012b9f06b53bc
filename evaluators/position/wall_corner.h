#pragma once

#include "geometry/CVec2.h"

#include <optional>

/// A wall's axis in plan.
struct WallAxis {
    hrx::CVec2<double> start;
    hrx::CVec2<double> end;
};

/// The angle, in radians from 0 to 2 pi, by which the door-to-door rule judges the corner between two walls;
/// nothing when no two of their ends are at most 100 apart.
///
/// It is the angle between unit vectors only for those: the vectors are taken at their full length and their
/// dot product is clamped, so long walls give 0, pi / 2 or pi, or 2 pi less these.
std::optional<double> cornerAngle(const WallAxis& wall, const WallAxis& neighbour);
