#include "geometry/solids/solid_parts.h"

#include "geometry/CExtrudedBody.h"
#include "geometry/plan/outline_shape.h"
#include "geometry/solids/CCylinderBody.h"
#include "geometry/solids/CTubeBody.h"
#include "geometry/solids/CellPiece.h"
#include "geometry/solids/CylinderPiece.h"
#include "geometry/solids/TubePiece.h"

#include <algorithm>
#include <cmath>

namespace hrx::solids {

namespace {

bool describeExtruded(const CExtrudedBody& body, UprightSolid& solid) {
    if (!body.planOutline())
        return false;
    solid.outline = body.planOutline();
    solid.low = body.low();
    solid.high = body.high();
    return true;
}

bool describeCylinder(const CCylinderBody& body, UprightSolid& solid) {
    const CVec3<double>& bottom = body.bottom();
    const CVec3<double>& top = body.top();
    if (bottom.x != top.x || bottom.y != top.y)
        return false;
    solid.centre = {bottom.x, bottom.y};
    solid.radius = body.radius();
    solid.low = std::min(bottom.z, top.z);
    solid.high = std::max(bottom.z, top.z);
    return true;
}

void appendExtruded(const CExtrudedBody& body, const CVec3<double>& origin, ConvexPieces& pieces) {
    // The outline moves to its first corner and the frame with it, so that the place of the site costs no
    // precision.
    const CPolygon& outline = *body.outline();
    const CCoord3<double>& frame = body.frame();
    const CVec2<double> corner = plan::firstCorner(outline);
    CCoord3<double> base = frame;
    base.origin = frame.origin - origin + frame.xAxis * corner.x + frame.yAxis * corner.y;
    if (plan::isConvex(outline)) {
        auto whole = std::make_unique<PrismPiece>(base, body.height());
        for (const Edge2d& edge : outline.GetLoop(0)->edges())
            whole->add({edge.start - corner, edge.end - corner, edge.bulge});
        pieces.push_back(std::move(whole));
        return;
    }
    for (const plan::OutlineCell& cell : plan::cellsOf(outline, corner))
        pieces.push_back(std::make_unique<CellPiece>(base, body.height(), cell));
}

void appendTube(const CTubeBody& body, const CVec3<double>& origin, ConvexPieces& pieces) {
    constexpr double kWidestPiece = 1.6; // radians; one may span pi, smaller ones start nearer to their hulls
    const CPlaneCurve3d& path = body.path();
    CCoord3<double> frame = path.frame();
    frame.origin = frame.origin - origin;
    const int count = static_cast<int>(std::ceil(path.sweep() / kWidestPiece));
    const double step = path.sweep() / count;
    for (int i = 0; i < count; ++i)
        pieces.push_back(
            std::make_unique<TubePiece>(frame, path.radius(), body.radius(), i * step, (i + 1) * step));
}

} // namespace

bool describeUpright(const CBody& body, UprightSolid& solid) {
    switch (body.kind()) {
    case CBody::Kind::Extruded:
        return describeExtruded(static_cast<const CExtrudedBody&>(body), solid);
    case CBody::Kind::Cylinder:
        return describeCylinder(static_cast<const CCylinderBody&>(body), solid);
    case CBody::Kind::Tube:
        break;
    }
    return false;
}

CVec3<double> anyPoint(const CBody& body) {
    switch (body.kind()) {
    case CBody::Kind::Extruded: {
        const auto& extruded = static_cast<const CExtrudedBody&>(body);
        const CVec2<double> corner = plan::firstCorner(*extruded.outline());
        return extruded.frame().toWorld({corner.x, corner.y, 0.0});
    }
    case CBody::Kind::Cylinder:
        return static_cast<const CCylinderBody&>(body).bottom();
    case CBody::Kind::Tube:
        break;
    }
    return static_cast<const CTubeBody&>(body).path().frame().origin;
}

void appendPieces(const CBody& body, const CVec3<double>& origin, ConvexPieces& pieces) {
    switch (body.kind()) {
    case CBody::Kind::Extruded:
        appendExtruded(static_cast<const CExtrudedBody&>(body), origin, pieces);
        break;
    case CBody::Kind::Cylinder: {
        const auto& cylinder = static_cast<const CCylinderBody&>(body);
        pieces.push_back(std::make_unique<CylinderPiece>(cylinder.bottom() - origin, cylinder.top() - origin,
                                                         cylinder.radius()));
        break;
    }
    case CBody::Kind::Tube:
        appendTube(static_cast<const CTubeBody&>(body), origin, pieces);
        break;
    }
}

} // namespace hrx::solids
