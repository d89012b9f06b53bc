#include "geometry/Edge2d.h"

#include <cmath>

namespace hrx {

namespace {

/// Cosine and sine of half the sweep, from the half-angle formulas on the bulge.
CVec2<double> halfSweepDirection(double bulge) {
    const double squared = bulge * bulge;
    return {(1.0 - squared) / (1.0 + squared), 2.0 * bulge / (1.0 + squared)};
}

CVec2<double> unit(const CVec2<double>& v) {
    const double size = length(v);
    return size > 0.0 ? v * (1.0 / size) : CVec2<double>{};
}

} // namespace

CVec2<double> Edge2d::middle() const {
    const CVec2<double> chord = end - start;
    return start + chord * 0.5 - leftNormal(chord) * (0.5 * bulge);
}

CBox2d Edge2d::box() const {
    CBox2d box;
    box.add(start);
    box.add(end);
    if (!isArc())
        return box;
    const CBox2d loose = looseBox();
    const CVec2<double> middlePoint = centre();
    const double size = radius();
    const CVec2<double> extremes[] = {{size, 0.0}, {-size, 0.0}, {0.0, size}, {0.0, -size}};
    for (const CVec2<double>& extreme : extremes) {
        const CVec2<double> point = middlePoint + extreme;
        if (isLeftOf(*this, point) != (bulge > 0.0))
            box.add({std::clamp(point.x, loose.low.x, loose.high.x),
                     std::clamp(point.y, loose.low.y, loose.high.y)});
    }
    return box;
}

CBox2d Edge2d::looseBox() const {
    CBox2d box;
    box.add(start);
    box.add(end);
    if (bulge == 0.0)
        return box;
    const CVec2<double> rise = leftNormal(end - start) * (-0.5 * bulge);
    box.add(start + rise);
    box.add(end + rise);
    if (std::abs(bulge) > 1.0) {
        const CVec2<double> middlePoint = centre();
        const double size = radius();
        box.add(middlePoint + CVec2<double>(size, size));
        box.add(middlePoint - CVec2<double>(size, size));
    }
    return box;
}

CVec2<double> Edge2d::startDirection() const {
    const CVec2<double> along = unit(end - start);
    const CVec2<double> half = halfSweepDirection(bulge);
    return along * half.x - leftNormal(along) * half.y;
}

CVec2<double> Edge2d::endDirection() const {
    const CVec2<double> along = unit(end - start);
    const CVec2<double> half = halfSweepDirection(bulge);
    return along * half.x + leftNormal(along) * half.y;
}

std::pair<Edge2d, Edge2d> Edge2d::halves() const {
    // tan(x / 2) from tan(x)
    const double half = bulge / (1.0 + std::hypot(1.0, bulge));
    return {{start, middle(), half}, {middle(), end, half}};
}

CVec2<double> Edge2d::centre() const {
    const CVec2<double> chord = end - start;
    return start + chord * 0.5 + leftNormal(chord) * ((1.0 - bulge * bulge) / (4.0 * bulge));
}

double Edge2d::radius() const {
    return length(end - start) * (1.0 + bulge * bulge) / (4.0 * std::abs(bulge));
}

double Edge2d::sweep() const {
    return 4.0 * std::atan(bulge);
}

bool isLeftOf(const Edge2d& edge, const CVec2<double>& p) {
    const CVec2<double> along = edge.end - edge.start;
    const double side = cross(along, p - edge.start);
    if (side != 0.0)
        return side > 0.0;
    return along.y != 0.0 ? along.y < 0.0 : along.x > 0.0;
}

} // namespace hrx
