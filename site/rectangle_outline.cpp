#include "site/rectangle_outline.h"

#include <cmath>

std::array<hrx::CVec2<double>, 4> turnedRectangleCorners(const hrx::CVec2<double>& centre, double length,
                                                         double depth, double degrees) {
    const double halfLength = 0.5 * length;
    const double halfDepth = 0.5 * depth;
    const double angle = degrees * 0.017453292519943295;
    const double cosine = std::cos(angle);
    const double sine = std::sin(angle);
    const auto turned = [&](double x, double y) {
        return hrx::CVec2<double>{centre.x + (x * cosine - y * sine), centre.y + (x * sine + y * cosine)};
    };
    return {turned(-halfLength, -halfDepth), turned(halfLength, -halfDepth), turned(halfLength, halfDepth),
            turned(-halfLength, halfDepth)};
}

void getRectParamCorners(const NUXRectParam& rect, std::vector<hrx::CVec2<double>>& corners) {
    const auto turned = turnedRectangleCorners(rect.centre(), rect.length(), rect.depth(), rect.angle());
    corners.insert(corners.end(), turned.begin(), turned.end());
}

OutlinePtr buildRectParamPolygon(const NUXRectParam& rect) {
    const auto [a, b, c, d] =
        turnedRectangleCorners(rect.centre(), rect.length(), rect.depth(), rect.angle());
    OutlinePtr outline(new hrx::CPolygon({a, b, c, d}));
    normaliseOrientation(*outline);
    return outline;
}
