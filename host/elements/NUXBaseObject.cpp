#include "elements/NUXBaseObject.h"

#include "elements/rectangle_corners.h"
#include "geometry/CExtrudedBody.h"

NUXBaseObject::NUXBaseObject(ClassBits classes, std::wstring typeIdentifier, const NUXBaseParams& params)
    : NUXElementObject(classes | kClassBit, std::move(typeIdentifier)), UdDbPolyLine(params.polyline),
      m_shapeKind(params.shapeKind), m_elevation(params.elevation), m_rectCentre(params.rectCentre),
      m_rectLength(params.rectLength), m_rectDepth(params.rectDepth), m_rectAngle(params.rectAngle),
      m_circleCentre(params.circleCentre), m_circleRadiusPoint(params.circleRadiusPoint),
      m_circleRadius(params.circleRadius) {}

std::optional<hrx::CExtents3> NUXBaseObject::geometryExtents() const {
    hrx::CExtents3 extents;
    if (m_shapeKind == kRectangleShape) {
        const NUXRectParam rect({m_rectCentre.x, m_rectCentre.y}, m_rectLength, m_rectDepth, m_rectAngle);
        for (const hrx::CVec2<double>& corner : referencehost::rectangleCorners(rect))
            extents.add({corner.x, corner.y, m_elevation});
    } else if (m_shapeKind == kCircleShape) {
        const double r = m_circleRadius;
        extents.add({m_circleCentre.x - r, m_circleCentre.y - r, m_circleCentre.z});
        extents.add({m_circleCentre.x + r, m_circleCentre.y + r, m_circleCentre.z});
    } else if (m_shapeKind == kPolylineShape) {
        std::vector<hrx::PolyPt2d> points;
        GetPolyPts(points);
        if (points.empty())
            return std::nullopt;
        hrx::CCoord3<double> frame;
        frame.origin.z = m_elevation;
        extents = hrx::CExtrudedBody(frame, 0.0, new hrx::CPolygon(points), true).GetExtents();
    } else {
        return std::nullopt;
    }
    return extents;
}
