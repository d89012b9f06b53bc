#include "site/polyline_outline.h"

#include "cad/UdDbPolyLine.h"

#include <algorithm>

namespace {

// The square of the double epsilon.
constexpr double kSamePlaceSquared = 4.930380657631324e-32;

// Deliberate: the second test has no absolute value. A point far above a kept one in its third component is
// dropped, one that lies below it by 0.001 or more is kept.
bool repeats(const hrx::PolyPt2d& point, const hrx::PolyPt2d& kept) {
    const double dx = kept.x - point.x;
    const double dy = kept.y - point.y;
    return dx * dx + dy * dy <= kSamePlaceSquared && kept.bulge - point.bulge < 0.001;
}

} // namespace

OutlinePtr buildPolylinePolygon(const UdDbPolyLine& polyline) {
    std::vector<hrx::PolyPt2d> points;
    polyline.GetPolyPts(points);
    std::vector<hrx::PolyPt2d> kept;
    kept.reserve(points.size());
    for (const hrx::PolyPt2d& point : points) {
        if (std::none_of(kept.begin(), kept.end(),
                         [&](const hrx::PolyPt2d& other) { return repeats(point, other); }))
            kept.push_back(point);
    }
    if (kept.empty())
        return nullptr;
    OutlinePtr outline(new hrx::CPolygon(kept));
    normaliseOrientation(*outline);
    return outline;
}
