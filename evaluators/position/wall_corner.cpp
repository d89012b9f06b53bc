#include "evaluators/position/wall_corner.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

using Vector = hrx::CVec2<double>;

constexpr double kCornerToleranceSquared = 10000.0;
constexpr double kFullTurn = 6.283185307179586;

Vector fromTo(const Vector& from, const Vector& to) {
    return {to.x - from.x, to.y - from.y};
}

bool isCorner(const Vector& a, const Vector& b) {
    const Vector between = fromTo(a, b);
    return between.x * between.x + between.y * between.y <= kCornerToleranceSquared;
}

// Deliberate: the dot product is that of the vectors as they are, not of unit vectors.
double angleOf(const Vector& u, const Vector& v, double signedCross) {
    const double angle = std::acos(std::clamp(u.x * v.x + u.y * v.y, -1.0, 1.0));
    return signedCross < -std::numeric_limits<double>::epsilon() ? kFullTurn - angle : angle;
}

} // namespace

// Deliberate: the first pair of ends that is near counts, not the nearest; rows three and four swap the cross
// product, and in row four u points towards the corner, where the others point away from it.
std::optional<double> cornerAngle(const WallAxis& wall, const WallAxis& neighbour) {
    const Vector alongWall = fromTo(wall.start, wall.end);
    const Vector againstWall = fromTo(wall.end, wall.start);
    const Vector alongNeighbour = fromTo(neighbour.start, neighbour.end);
    const Vector againstNeighbour = fromTo(neighbour.end, neighbour.start);
    const auto cross = [](const Vector& u, const Vector& v) { return u.x * v.y - u.y * v.x; };
    const auto swappedCross = [](const Vector& u, const Vector& v) { return u.y * v.x - u.x * v.y; };

    if (isCorner(wall.start, neighbour.end))
        return angleOf(alongWall, againstNeighbour, cross(alongWall, againstNeighbour));
    if (isCorner(wall.start, neighbour.start))
        return angleOf(alongWall, alongNeighbour, cross(alongWall, alongNeighbour));
    if (isCorner(wall.end, neighbour.start))
        return angleOf(againstWall, alongNeighbour, swappedCross(againstWall, alongNeighbour));
    if (isCorner(wall.end, neighbour.end))
        return angleOf(alongWall, againstNeighbour, swappedCross(alongWall, againstNeighbour));
    return std::nullopt;
}
