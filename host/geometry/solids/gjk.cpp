#include "geometry/solids/gjk.h"

#include "geometry/solids/Simplex.h"
#include "geometry/solids/cylinder_wall.h"

#include <algorithm>
#include <utility>

namespace hrx::solids {

namespace {

constexpr double kCertifiedGap = 1e-7;
constexpr int kMostSteps = 200;

SimplexVertex supportOfDifference(const ConvexPiece& a, const ConvexPiece& b,
                                  const CVec3<double>& direction) {
    const CVec3<double> onA = a.support(direction);
    const CVec3<double> onB = b.support(direction * -1.0);
    return {onA, onB, onA - onB};
}

/// The support against a unit direction; on walls level with it, where many points are as far, beside the
/// points that are nearest so far. An iteration that is given the other end of a wall instead walks up and
/// down it and stalls.
template <class Real>
SimplexVertex supportBeside(const Simplex<Real>& simplex, const ConvexPiece& a, const ConvexPiece& b,
                            const CVec3<double>& direction) {
    CVec3<double> onA = a.support(direction * -1.0);
    CVec3<double> onB = b.support(direction);
    if (a.isLevelWithWall(direction))
        onA = a.movedLevelWith(simplex.onA(), onA);
    if (b.isLevelWithWall(direction))
        onB = b.movedLevelWith(simplex.onB(), onB);
    return {onA, onB, onA - onB};
}

template <class Real> CVec3<double> unit(const CVec3<Real>& v, Real size) {
    return {static_cast<double>(v.x / size), static_cast<double>(v.y / size),
            static_cast<double>(v.z / size)};
}

template <class Real>
HullContact iterate(const ConvexPiece& a, const ConvexPiece& b, const SimplexVertex& from, double enough) {
    Simplex<Real> simplex(from);
    HullContact contact;
    for (int step = 0; step < kMostSteps; ++step) {
        const Real size = length(simplex.nearest());
        contact.upper = static_cast<double>(size);
        if (size <= kCertifiedGap)
            break;
        const CVec3<double> direction = unit(simplex.nearest(), size);
        const SimplexVertex vertex = supportBeside(simplex, a, b, direction);
        contact.lower = std::max(contact.lower, dot(direction, vertex.difference));
        if (contact.upper - contact.lower <= kCertifiedGap || contact.lower > enough)
            break;
        if (!simplex.improveWith(vertex))
            break;
    }
    contact.onA = simplex.onA();
    contact.onB = simplex.onB();
    // What the points say: the nearest point of a sliver is known better than its weights.
    if (contact.upper > 0.0)
        contact.upper = length(simplex.combinedDifference());
    contact.lower = std::min(contact.lower, contact.upper);
    return contact;
}

bool isSettled(const HullContact& contact, double enough) {
    return contact.upper - contact.lower <= kCertifiedGap || contact.lower > enough;
}

SimplexVertex difference(const CVec3<double>& onA, const CVec3<double>& onB) {
    return {onA, onB, onA - onB};
}

HullContact contactFrom(const SimplexVertex& start, const ConvexPiece& a, const ConvexPiece& b,
                        double enough) {
    HullContact best = iterate<double>(a, b, start, enough);
    // Slivers of simplices can stall the iteration: more digits help, and coming from elsewhere.
    for (const CVec3<double>& from : {CVec3<double>(1, 0, 0), CVec3<double>(0, 1, 0), CVec3<double>(0, 0, 1),
                                      CVec3<double>(-1, 2, 3), CVec3<double>(3, 1, -2)}) {
        if (isSettled(best, enough))
            break;
        HullContact other = iterate<long double>(a, b, supportOfDifference(a, b, from), enough);
        other.lower = std::max(other.lower, best.lower);
        if (other.upper < best.upper)
            best = other;
        best.lower = std::min(other.lower, best.upper);
    }
    return best;
}

/// The axis is a thing of two corners and quickly measured; most cylinders come nearest with their wall.
HullContact contactOfCylinder(const CylinderPiece& a, const ConvexPiece& b, double enough) {
    const HullContact axis =
        iterate<double>(CylinderAxis(a), b, difference(a.anyPoint(), b.anyPoint()), enough + a.radius());
    const HullContact wall = contactOfWall(a, axis);
    return isSettled(wall, enough) ? wall : contactFrom(difference(axis.onA, axis.onB), a, b, enough);
}

HullContact swapped(HullContact contact) {
    std::swap(contact.onA, contact.onB);
    return contact;
}

} // namespace

HullContact hullContact(const ConvexPiece& a, const ConvexPiece& b, double enough) {
    if (const CylinderPiece* cylinder = a.asCylinder())
        return contactOfCylinder(*cylinder, b, enough);
    if (const CylinderPiece* cylinder = b.asCylinder())
        return swapped(contactOfCylinder(*cylinder, a, enough));
    return contactFrom(difference(a.anyPoint(), b.anyPoint()), a, b, enough);
}

} // namespace hrx::solids
