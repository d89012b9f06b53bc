#pragma once

#include "elements/NUXBaseObject.h"

struct NUXDoorParams : NUXBaseParams {
    NUXDoorParams() { shapeKind = kNoShape; }

    hrx::CVec3<double> position; ///< middle of the door
    int plankWidth = 1000;
    int postSectionWidth = 100;
    int postSectionHeight = 100; ///< of the post's section in plan, across the wall
    double angle = 0.0;          ///< degrees
};

/// A door or gate: a leaf between two posts.
class NUXDoorObject : public NUXBaseObject {
public:
    static constexpr ClassBits kClassBit = referencehost::kDoorBit;
    static NUXDoorObject* Cast(const UdRxObject* object) { return UdRxCast<NUXDoorObject>(object); }

    explicit NUXDoorObject(const NUXDoorParams& params, std::wstring typeIdentifier = L"NUX_EDO_TYPE_DOOR")
        : NUXBaseObject(kClassBit, std::move(typeIdentifier), params), m_position(params.position),
          m_plankWidth(params.plankWidth), m_postSectionWidth(params.postSectionWidth),
          m_postSectionHeight(params.postSectionHeight), m_angle(params.angle) {}

    hrx::CVec3<double> getPosition() const { return m_position; }
    int getPlankWidth() const { return m_plankWidth; }
    int getDoorPostSectionWidth() const { return m_postSectionWidth; }
    int getDoorPostSectionHeight() const { return m_postSectionHeight; }
    double getAngle() const { return m_angle; }

private:
    hrx::CVec3<double> m_position;
    int m_plankWidth;
    int m_postSectionWidth;
    int m_postSectionHeight;
    double m_angle;
};
