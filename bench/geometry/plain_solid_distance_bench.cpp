#include "geometry/solids/CylinderPiece.h"
#include "geometry/solids/PrismPiece.h"
#include "geometry/solids/gjk.h"
#include "plain_distance.h"
#include "workloads.h"

#include <algorithm>
#include <cmath>
#include <limits>

// Solids that lean or stand on an edge against boxes, as special code for just these would measure them.

using namespace workloads;

namespace {

using Vec3 = hrx::CVec3<double>;

constexpr double kBoxHeight = 4000.0;
constexpr double kPlateThickness = 1.0;

struct AxisContact {
    double distance = std::numeric_limits<double>::infinity();
    bool atEnd = true; ///< the nearest point of the axis is one of its ends
};

/// Least distance of the segments from p to p + u and from q to q + v, by clamping the feet of the common
/// perpendicular.
void nearestOfSegments(const Vec3& p, const Vec3& u, const Vec3& q, const Vec3& v, AxisContact& best) {
    const Vec3 between = p - q;
    const double uu = dot(u, u);
    const double vv = dot(v, v);
    const double uv = dot(u, v);
    const double ub = dot(u, between);
    const double vb = dot(v, between);
    const double area = uu * vv - uv * uv;
    double s = area > 0.0 ? std::clamp((uv * vb - ub * vv) / area, 0.0, 1.0) : 0.0;
    const double t = std::clamp((uv * s + vb) / vv, 0.0, 1.0);
    s = std::clamp((uv * t - ub) / uu, 0.0, 1.0);
    const double distance = length(between + u * s - v * t);
    if (distance < best.distance)
        best = {distance, s <= 0.0 || s >= 1.0};
}

/// The axis against the twelve edges of a box that stands on the ground; its ends against the walls and the
/// top.
AxisContact axisToBox(const Cable& cable, const Loop& loop) {
    const Vec3 axis = cable.end - cable.start;
    AxisContact best;
    double outside[2] = {0.0, 0.0};
    for (std::size_t i = 0; i < 4; ++i) {
        const Vec3 corner(loop[i].x, loop[i].y, 0.0);
        const Vec3 along(loop[(i + 1) % 4].x - corner.x, loop[(i + 1) % 4].y - corner.y, 0.0);
        const Vec3 up(0.0, 0.0, kBoxHeight);
        nearestOfSegments(cable.start, axis, corner, along, best);
        nearestOfSegments(cable.start, axis, corner + up, along, best);
        nearestOfSegments(cable.start, axis, corner, up, best);
        const double size = length(along);
        const Vec3 outwards(along.y / size, -along.x / size, 0.0);
        for (int end = 0; end < 2; ++end) {
            const Vec3 arm = (end == 0 ? cable.start : cable.end) - corner;
            const double before = dot(arm, outwards);
            const double beside = dot(arm, along) / size;
            outside[end] = std::max(outside[end], before);
            if (before >= 0.0 && beside >= 0.0 && beside <= size && arm.z >= 0.0 && arm.z <= kBoxHeight &&
                before < best.distance)
                best = {before, true};
        }
    }
    for (int end = 0; end < 2; ++end) {
        const double above = (end == 0 ? cable.start.z : cable.end.z) - kBoxHeight;
        if (outside[end] == 0.0 && above < best.distance)
            best = {above, true};
    }
    return best;
}

double endToBox(const Cable& cable, const Loop& loop) {
    const hrx::CVec2<double> corner(loop[0].x, loop[0].y);
    const Vec3 origin(corner.x, corner.y, 0.0);
    const hrx::solids::CylinderPiece cylinder(cable.start - origin, cable.end - origin, cable.radius);
    hrx::solids::PrismPiece box(hrx::CCoord3<double>(), kBoxHeight);
    for (std::size_t i = 0; i < 4; ++i) {
        const hrx::CVec2<double> from(loop[i].x, loop[i].y);
        const hrx::CVec2<double> to(loop[(i + 1) % 4].x, loop[(i + 1) % 4].y);
        box.add({from - corner, to - corner, 0.0});
    }
    return hrx::solids::hullContact(cylinder, box, std::numeric_limits<double>::infinity()).upper;
}

double leaningCylinderToBox(const Cable& cable, const Loop& loop) {
    const AxisContact axis = axisToBox(cable, loop);
    return axis.atEnd ? endToBox(cable, loop) : std::max(0.0, axis.distance - cable.radius);
}

/// As two outlines and the gap between their levels.
double standingPlateToBox(const Plate& plate, const Loop& loop) {
    const Vec3 along = plate[1] - plate[0];
    const Vec3 across =
        Vec3(along.y, -along.x, 0.0) * (kPlateThickness / std::sqrt(along.x * along.x + along.y * along.y));
    const Loop strip = {{plate[0].x, plate[0].y, 0},
                        {plate[0].x + across.x, plate[0].y + across.y, 0},
                        {plate[1].x + across.x, plate[1].y + across.y, 0},
                        {plate[1].x, plate[1].y, 0}};
    return std::hypot(plainDistance(strip, loop), std::max(0.0, plate[0].z - kBoxHeight));
}

void plainLeaningCylinderAndRectangle(benchmark::State& state) {
    run(state, made(leaningCable, 1), made(house, 2), leaningCylinderToBox);
}
void plainStandingPlateAndRectangle(benchmark::State& state) {
    run(state, made(standingPlate, 1), made(house, 2), standingPlateToBox);
}

} // namespace

BENCHMARK(plainLeaningCylinderAndRectangle)->Name("plain/leaningCylinderAndRectangle");
BENCHMARK(plainStandingPlateAndRectangle)->Name("plain/standingPlateAndRectangle");
