#pragma once

#include "cad/UdDbPolyLine.h"
#include "elements/NUXElementObject.h"
#include "geometry/CVec2.h"
#include "geometry/CVec3.h"

#include <cstdint>

/// How an element's footprint is given. Other codes mean that it has none of these.
enum NUXShapeKind : std::uint32_t {
    kNoShape = 0,
    kRectangleShape = 3,
    kPolylineShape = 4,
    kCircleShape = 5,
    kStraightShape = 9, ///< a straight road or cable
    kArcShape = 10,     ///< an arc road or cable
};

/// Footprint data; those that the shape kind does not select are reported all the same.
struct NUXBaseParams {
    std::uint32_t shapeKind = kRectangleShape;
    double elevation = 0.0;

    hrx::CVec3<double> rectCentre;
    double rectLength = 0.0; ///< along the rectangle's own x axis
    double rectDepth = 0.0;  ///< along its y axis
    double rectAngle = 0.0;  ///< degrees, counter-clockwise

    hrx::CVec3<double> circleCentre;
    hrx::CVec3<double> circleRadiusPoint; ///< a point on the circle
    double circleRadius = 0.0;

    std::vector<hrx::PolyPt2d> polyline;
};

/// A site element with a footprint.
class NUXBaseObject : public NUXElementObject, public UdDbPolyLine {
public:
    static constexpr ClassBits kClassBit = referencehost::kBaseObjectBit;
    static NUXBaseObject* Cast(const UdRxObject* object) { return UdRxCast<NUXBaseObject>(object); }

    NUXBaseObject(std::wstring typeIdentifier, const NUXBaseParams& params)
        : NUXBaseObject(0, std::move(typeIdentifier), params) {}

    hrx::CVec3<double> getPtRectCenter() const { return m_rectCentre; }
    double getRectWidthL() const { return m_rectLength; }
    double getRectHigh() const { return m_rectDepth; }
    double getRectAngle() const { return m_rectAngle; }
    hrx::CVec3<double> getPtCircleCenter() const { return m_circleCentre; }
    hrx::CVec3<double> getPtCircleRadir() const { return m_circleRadiusPoint; }
    double getCircleRad() const { return m_circleRadius; }
    double getElevation() const { return m_elevation; }

    /// A NUXShapeKind, or any other code; read directly.
    std::uint32_t m_shapeKind;

protected:
    NUXBaseObject(ClassBits classes, std::wstring typeIdentifier, const NUXBaseParams& params);

    /// The footprint at the element's elevation.
    std::optional<hrx::CExtents3> geometryExtents() const override;

private:
    double m_elevation;
    hrx::CVec3<double> m_rectCentre;
    double m_rectLength;
    double m_rectDepth;
    double m_rectAngle;
    hrx::CVec3<double> m_circleCentre;
    hrx::CVec3<double> m_circleRadiusPoint;
    double m_circleRadius;
};
