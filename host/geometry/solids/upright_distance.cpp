#include "geometry/solids/upright_distance.h"

#include "geometry/plan/plan_distance.h"

#include <algorithm>
#include <cmath>

namespace hrx::solids {

namespace {

struct PlanGap {
    double distance;
    CVec2<double> onA;
    CVec2<double> onB;
};

/// The gap between a disc and a point outside or inside it, as seen from the disc.
PlanGap discToPoint(const CVec2<double>& centre, double radius, const CVec2<double>& point, double distance) {
    if (distance <= radius)
        return {0.0, point, point};
    return {distance - radius, centre + (point - centre) * (radius / distance), point};
}

PlanGap discToOutline(const UprightSolid& disc, const CPolygon& outline) {
    const plan::PlanContact contact = plan::planContact(disc.centre, outline);
    return discToPoint(disc.centre, disc.radius, contact.onB, std::sqrt(contact.squared));
}

PlanGap discToDisc(const UprightSolid& a, const UprightSolid& b) {
    const CVec2<double> between = b.centre - a.centre;
    const double distance = length(between);
    if (distance <= b.radius)
        return {0.0, a.centre, a.centre};
    const CVec2<double> onB = b.centre - between * (b.radius / distance);
    return discToPoint(a.centre, a.radius, onB, distance - b.radius);
}

PlanGap planGap(const UprightSolid& a, const UprightSolid& b) {
    if (a.outline && b.outline) {
        const plan::PlanContact contact = plan::planContact(*a.outline, *b.outline);
        return {std::sqrt(contact.squared), contact.onA, contact.onB};
    }
    if (a.outline) {
        const PlanGap swapped = discToOutline(b, *a.outline);
        return {swapped.distance, swapped.onB, swapped.onA};
    }
    return b.outline ? discToOutline(a, *b.outline) : discToDisc(a, b);
}

} // namespace

SolidContact uprightContact(const UprightSolid& a, const UprightSolid& b) {
    const PlanGap plan = planGap(a, b);
    // Where the levels overlap, both points lie on the lowest common one.
    const double levelA = std::clamp(std::max(a.low, b.low), a.low, a.high);
    const double levelB = std::clamp(levelA, b.low, b.high);
    const double rise = levelB - levelA;
    const double distance =
        rise == 0.0 ? plan.distance : std::sqrt(plan.distance * plan.distance + rise * rise);
    return {distance, {plan.onA.x, plan.onA.y, levelA}, {plan.onB.x, plan.onB.y, levelB}};
}

} // namespace hrx::solids
