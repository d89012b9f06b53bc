#include "geometry/gjk.h"

#include "geometry/Simplex.h"

#include <algorithm>

namespace hrx {

namespace {

constexpr double kCertifiedGap = 1e-7;
constexpr int kMostSteps = 200;

SimplexVertex supportOfDifference(const ConvexPiece& a, const ConvexPiece& b,
                                  const CVec3<double>& direction) {
    const CVec3<double> onA = a.support(direction);
    const CVec3<double> onB = b.support(direction * -1.0);
    return {onA, onB, onA - onB};
}

template <class Real> CVec3<double> unit(const CVec3<Real>& v, Real size) {
    return {static_cast<double>(v.x / size), static_cast<double>(v.y / size),
            static_cast<double>(v.z / size)};
}

template <class Real> HullContact iterate(const ConvexPiece& a, const ConvexPiece& b, double enough) {
    Simplex<Real> simplex(supportOfDifference(a, b, {1.0, 0.0, 0.0}));
    HullContact contact;
    for (int step = 0; step < kMostSteps; ++step) {
        const Real size = length(simplex.nearest());
        contact.upper = static_cast<double>(size);
        if (size <= kCertifiedGap)
            break;
        const CVec3<double> direction = unit(simplex.nearest(), size);
        const SimplexVertex vertex = supportOfDifference(a, b, direction * -1.0);
        contact.lower = std::max(contact.lower, dot(direction, vertex.difference));
        if (contact.upper - contact.lower <= kCertifiedGap || contact.lower > enough)
            break;
        if (!simplex.improveWith(vertex))
            break;
    }
    contact.lower = std::min(contact.lower, contact.upper);
    contact.onA = simplex.onA();
    contact.onB = simplex.onB();
    return contact;
}

} // namespace

HullContact hullContact(const ConvexPiece& a, const ConvexPiece& b, double enough) {
    const HullContact contact = iterate<double>(a, b, enough);
    const bool settled = contact.upper - contact.lower <= kCertifiedGap || contact.lower > enough;
    return settled ? contact : iterate<long double>(a, b, enough);
}

} // namespace hrx
