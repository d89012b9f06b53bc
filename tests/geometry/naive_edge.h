#pragma once

#include "random_outlines.h"

#include <algorithm>
#include <cmath>

namespace sampled {

using hrx::CVec2;
using outlines::kPi;

inline double distanceToSegment(const CVec2<double>& p, const CVec2<double>& a, const CVec2<double>& b) {
    const CVec2<double> ab = b - a;
    const double t = std::clamp(dot(p - a, ab) / std::max(dot(ab, ab), 1e-300), 0.0, 1.0);
    return length(p - (a + ab * t));
}

/// An edge by angles about its centre; the code under test avoids both.
struct NaiveEdge {
    CVec2<double> a, b, centre;
    double bulge, radius;

    NaiveEdge(const hrx::PolyPt2d& from, const hrx::PolyPt2d& to)
        : a(from.x, from.y), b(to.x, to.y), bulge(a == b ? 0 : from.bulge) {
        const double chord = length(b - a);
        radius = bulge == 0 ? 0 : chord / (2 * std::sin(2 * std::atan(bulge)));
        const double apothem = bulge == 0 ? 0 : radius * std::cos(2 * std::atan(bulge));
        centre = (a + b) * 0.5 + leftNormal(b - a) * (apothem / chord);
        radius = std::abs(radius);
    }
    double distanceTo(const CVec2<double>& p) const {
        if (bulge == 0)
            return distanceToSegment(p, a, b);
        const double fromStart = std::atan2(cross(a - centre, p - centre), dot(a - centre, p - centre));
        const double along = std::fmod((bulge > 0 ? fromStart : -fromStart) + 2 * kPi, 2 * kPi);
        return along <= std::abs(4 * std::atan(bulge)) ? std::abs(length(p - centre) - radius)
                                                       : std::min(length(p - a), length(p - b));
    }
    CVec2<double> at(double share) const {
        const double angle = share * 4 * std::atan(bulge);
        const CVec2<double> spoke = a - centre;
        return bulge == 0 ? a + (b - a) * share
                          : centre + spoke * std::cos(angle) + leftNormal(spoke) * std::sin(angle);
    }
    double turnsAround(const CVec2<double>& p) const {
        // One sign for both terms, or a point on the chord is counted on either side of it. No negative zero.
        const double side = cross(b - a, p - a) + 0.0;
        const bool inSegment = (bulge > 0 ? side < 0 : bulge < 0 && side >= 0) && length(p - centre) < radius;
        return std::atan2(side, dot(a - p, b - p)) / (2 * kPi) + (inSegment ? (bulge > 0 ? 1 : -1) : 0);
    }
};

inline std::vector<NaiveEdge> naiveEdges(const outlines::Loop& loop) {
    std::vector<NaiveEdge> edges;
    for (std::size_t i = 0; i < loop.size(); ++i)
        edges.emplace_back(loop[i], loop[(i + 1) % loop.size()]);
    return edges;
}

} // namespace sampled
