#include "geometry/gjk.h"

#include "geometry/Simplex.h"

#include <algorithm>

namespace hrx {

namespace {

constexpr double kCertifiedGap = 1e-7;
constexpr int kMostSteps = 200;

Simplex::Vertex supportOfDifference(const ConvexPiece& a, const ConvexPiece& b,
                                    const CVec3<double>& direction) {
    const CVec3<double> onA = a.support(direction);
    const CVec3<double> onB = b.support(direction * -1.0);
    return {onA, onB, onA - onB};
}

} // namespace

HullContact hullContact(const ConvexPiece& a, const ConvexPiece& b, double enough) {
    Simplex simplex(supportOfDifference(a, b, {1.0, 0.0, 0.0}));
    HullContact contact;
    for (int step = 0; step < kMostSteps; ++step) {
        const CVec3<double> nearest = simplex.nearest();
        const double size = length(nearest);
        contact.upper = size;
        if (size <= kCertifiedGap)
            break;
        const CVec3<double> unit = nearest * (1.0 / size);
        const Simplex::Vertex vertex = supportOfDifference(a, b, unit * -1.0);
        contact.lower = std::max(contact.lower, dot(unit, vertex.difference));
        if (size - contact.lower <= kCertifiedGap || contact.lower > enough)
            break;
        if (!simplex.improveWith(vertex))
            break;
    }
    contact.lower = std::min(contact.lower, contact.upper);
    contact.onA = simplex.onA();
    contact.onB = simplex.onB();
    return contact;
}

} // namespace hrx
