#include "geometry/GeometryDistance.h"

#include "geometry/BodyDistance.h"
#include "geometry/CBody.h"
#include "geometry/solids/piece_distance.h"
#include "geometry/solids/solid_parts.h"
#include "geometry/solids/upright_distance.h"

#include <cmath>

namespace hrx {

namespace {

constexpr double kNotMeasurable = 1e100;
constexpr double kStepsPerMillimetre = 1e5;

double roundedToStep(double distance) {
    const double steps = distance * kStepsPerMillimetre;
    // Beyond 2^52 steps a double is coarser than a step anyway.
    return steps < 4503599627370496.0 ? std::floor(steps + 0.5) / kStepsPerMillimetre : distance;
}

/// Both solids by their pieces, about an origin near both so that the place of the site costs no precision.
solids::SolidContact contactByPieces(const CBody& a, const CBody& b) {
    const CVec3<double> origin = solids::anyPoint(a);
    solids::ConvexPieces piecesA;
    solids::ConvexPieces piecesB;
    solids::appendPieces(a, origin, piecesA);
    solids::appendPieces(b, origin, piecesB);
    solids::SolidContact contact = solids::pieceContact(std::move(piecesA), std::move(piecesB));
    contact.onA = contact.onA + origin;
    contact.onB = contact.onB + origin;
    return contact;
}

solids::SolidContact contactOf(const CBody& a, const CBody& b) {
    solids::UprightSolid uprightA;
    solids::UprightSolid uprightB;
    if (solids::describeUpright(a, uprightA) && solids::describeUpright(b, uprightB))
        return solids::uprightContact(uprightA, uprightB);
    return contactByPieces(a, b);
}

} // namespace

double GeometryDistance(const CBody* a, const CBody* b, CVec3<double>& onA, CVec3<double>& onB, double) {
    if (!a || !b || !a->isMeasurable() || !b->isMeasurable())
        return kNotMeasurable;
    const solids::SolidContact contact = contactOf(*a, *b);
    onA = contact.onA;
    onB = contact.onB;
    return roundedToStep(contact.distance);
}

double BodyDistance(const CBody* a, const CBody* b, CVec3<double>& onA, CVec3<double>& onB,
                    double tolerance) {
    return GeometryDistance(a, b, onA, onB, tolerance);
}

} // namespace hrx
