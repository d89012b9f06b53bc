#include "site/rectangle_outline.h"

#include <cmath>

void getRectParamCorners(const NUXRectParam& rect, std::vector<hrx::CVec2<double>>& corners) {
    const hrx::CVec2<double> centre = rect.centre();
    const double halfLength = 0.5 * rect.length();
    const double halfDepth = 0.5 * rect.depth();
    const double angle = rect.angle() * 0.017453292519943295;
    const double cosine = std::cos(angle);
    const double sine = std::sin(angle);
    const auto append = [&](double x, double y) {
        corners.push_back({centre.x + (x * cosine - y * sine), centre.y + (x * sine + y * cosine)});
    };
    append(-halfLength, -halfDepth);
    append(halfLength, -halfDepth);
    append(halfLength, halfDepth);
    append(-halfLength, halfDepth);
}

OutlinePtr buildRectParamPolygon(const NUXRectParam& rect) {
    std::vector<hrx::CVec2<double>> corners;
    corners.reserve(4);
    getRectParamCorners(rect, corners);
    OutlinePtr outline(new hrx::CPolygon(corners));
    normaliseOrientation(*outline);
    return outline;
}
