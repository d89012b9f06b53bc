#include "geometry/GBodyBuilder.h"

#include "geometry/DistEpsilon.h"
#include "geometry/plan/outline_shape.h"
#include "geometry/solids/CCylinderBody.h"
#include "geometry/solids/CTubeBody.h"

#include <cmath>
#include <memory>

namespace hrx {

namespace {

constexpr double kTurn = 6.283185307179586;
constexpr double kSameCircle = 1e-9; ///< relative

/// Radius of the circle about the origin that the section consists of; 0 when it is no such circle.
double discRadius(const CPolygon& section) {
    if (section.LoopCount() != 1 || section.GetLoop(0)->edges().empty())
        return 0.0;
    const CCoedgeList::Edges& edges = section.GetLoop(0)->edges();
    const double radius = length(edges.front().start);
    double sweep = 0.0;
    for (const Edge2d& edge : edges) {
        if (!edge.isArc() || !(length(edge.centre()) <= kSameCircle * radius) ||
            !(std::abs(edge.radius() - radius) <= kSameCircle * radius))
            return 0.0;
        sweep += edge.sweep();
    }
    return std::abs(std::abs(sweep) - kTurn) <= kSameCircle ? radius : 0.0;
}

} // namespace

CBody* GBodyBuilder::CylinderBody(const CVec3<double>& bottom, const CVec3<double>& top, double radius) {
    auto body = std::make_unique<solids::CCylinderBody>(bottom, top, radius);
    return body->isStrictlyValid() ? body.release() : nullptr;
}

CBody* GBodyBuilder::SweepBody(CPolygon* section, const CPlaneCurve3d& path) {
    if (!section || path.isDegenerate())
        return nullptr;
    // A section that ends in no body must stay with the caller, so no body may hold it before all is known.
    const double radius = discRadius(*section);
    if (!(radius > g_DistEpsilon) || radius > path.radius())
        return nullptr;
    return new solids::CTubeBody(path, section, radius);
}

} // namespace hrx
