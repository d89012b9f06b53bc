#include "geometry/solids/standing_plate.h"

#include <algorithm>

namespace hrx::solids {

namespace {

/// The sides of a rectangle along the axes; nothing for any other outline.
std::optional<CBox2d> sidesOf(const CPolygon& outline) {
    if (outline.LoopCount() != 1 || outline.GetLoop(0)->edges().size() != 4)
        return std::nullopt;
    const CCoedgeList::Edges& edges = outline.GetLoop(0)->edges();
    CBox2d sides;
    for (std::size_t i = 0; i < 4; ++i) {
        const CVec2<double> along = edges[i].end - edges[i].start;
        const CVec2<double> before = edges[(i + 3) % 4].end - edges[(i + 3) % 4].start;
        const bool isAlongX = along.y == 0.0 && along.x != 0.0 && before.x == 0.0;
        const bool isAlongY = along.x == 0.0 && along.y != 0.0 && before.y == 0.0;
        if (edges[i].bulge != 0.0 || edges[i].start != edges[(i + 3) % 4].end || !(isAlongX || isAlongY))
            return std::nullopt;
        sides.add(edges[i].start);
    }
    return sides;
}

bool isVertical(const CVec3<double>& axis) {
    return axis.x == 0.0 && axis.y == 0.0;
}

} // namespace

std::optional<StandingPlate> standingPlate(const CCoord3<double>& frame, double height,
                                           const CPolygon& outline) {
    const bool isYVertical = isVertical(frame.yAxis) && frame.xAxis.z == 0.0;
    const bool isXVertical = isVertical(frame.xAxis) && frame.yAxis.z == 0.0;
    if (frame.zAxis.z != 0.0 || !(isYVertical || isXVertical))
        return std::nullopt;
    const auto sides = sidesOf(outline);
    if (!sides)
        return std::nullopt;
    const auto corner = [&](double x, double y, double z) {
        const CVec3<double> world = frame.toWorld({x, y, z});
        return CVec2<double>(world.x, world.y);
    };
    const auto& [low, high] = *sides;
    const CVec2<double> otherEnd = isYVertical ? CVec2<double>(high.x, low.y) : CVec2<double>(low.x, high.y);
    const double bottom = frame.toWorld({low.x, low.y, 0.0}).z;
    const double top = frame.toWorld({high.x, high.y, 0.0}).z;
    return StandingPlate{
        PolygonRef(new CPolygon({corner(low.x, low.y, 0.0), corner(otherEnd.x, otherEnd.y, 0.0),
                                 corner(otherEnd.x, otherEnd.y, height), corner(low.x, low.y, height)})),
        std::min(bottom, top), std::max(bottom, top)};
}

} // namespace hrx::solids
