#pragma once

#include "elements/NUXBaseObject.h"

/// The shape kind decides on the cable in space (kStraightShape, kArcShape, or none), the flag on its plan
/// curve.
struct NUXServiceCableParams : NUXBaseParams {
    NUXServiceCableParams() { shapeKind = kStraightShape; }

    bool isStraight = true;
    hrx::CVec2<double> start;
    hrx::CVec2<double> end;
    hrx::CVec2<double> middle;   ///< on the arc between start and end
    double startElevation = 0.0; ///< metres
    double endElevation = 0.0;   ///< metres
    double radius = 0.0;         ///< millimetres
};

/// An overhead service cable.
class NUXServiceCableObject : public NUXBaseObject {
public:
    static constexpr ClassBits kClassBit = referencehost::kServiceCableBit;
    static NUXServiceCableObject* Cast(const UdRxObject* object) {
        return UdRxCast<NUXServiceCableObject>(object);
    }

    explicit NUXServiceCableObject(const NUXServiceCableParams& params,
                                   std::wstring typeIdentifier = L"NUX_EDO_TYPE_SERVICECABLE");

    bool getIsStraight() const { return m_isStraight; }
    hrx::CVec2<double> getStartPt() const { return m_start; }
    hrx::CVec2<double> getEndPt() const { return m_end; }
    hrx::CVec2<double> getMiddlePt() const { return m_middle; }

    /// Elevations are in metres, unlike every other length here.
    double getServiceCableStartElevation() const { return m_startElevation; }
    double getServiceCableEndElevation() const { return m_endElevation; }
    double getServiceCableRadius() const { return m_radius; }

protected:
    /// Those of the cable in space, radius included; where it has no body, those of its axis points widened
    /// by the radius on all sides.
    std::optional<hrx::CExtents3> geometryExtents() const override { return m_extents; }

private:
    bool m_isStraight;
    hrx::CVec2<double> m_start;
    hrx::CVec2<double> m_end;
    hrx::CVec2<double> m_middle;
    double m_startElevation;
    double m_endElevation;
    double m_radius;
    hrx::CExtents3 m_extents; ///< worked out once: rules ask for them again and again
};
