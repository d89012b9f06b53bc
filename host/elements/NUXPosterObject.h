#pragma once

#include "elements/NUXElementObject.h"
#include "geometry/CVec2.h"

struct NUXPosterParams {
    int drawType =
        1; ///< 1 a standing plate, 2 a sheet raised from two plan points; other types are not drawn
    hrx::CVec2<double> firstPoint;
    hrx::CVec2<double> secondPoint;
    double height = 0.0;    ///< millimetres
    double elevation = 0.0; ///< metres
};

/// A poster or banner between two points.
class NUXPosterObject : public NUXElementObject {
public:
    static constexpr ClassBits kClassBit = referencehost::kPosterBit;
    static NUXPosterObject* Cast(const UdRxObject* object) { return UdRxCast<NUXPosterObject>(object); }

    explicit NUXPosterObject(const NUXPosterParams& params,
                             std::wstring typeIdentifier = L"NUX_ELEMENT_TYPE_POSTER")
        : NUXElementObject(kClassBit, std::move(typeIdentifier)), m_params(params) {}

    int getDrawType() const { return m_params.drawType; }
    hrx::CVec2<double> getFirstPoint() const { return m_params.firstPoint; }
    hrx::CVec2<double> getSecondPoint() const { return m_params.secondPoint; }
    double getHeight() const { return m_params.height; }

    /// In metres, unlike the height.
    double getElevation() const { return m_params.elevation; }

protected:
    std::optional<hrx::CExtents3> geometryExtents() const override;

private:
    NUXPosterParams m_params;
};
