#pragma once

#include "elements/NUXBaseObject.h"
#include "geometry/CPolygon.h"

/// A road's outline comes from its centre line and width unless it is given or left out.
enum class NUXRoadOutline { FromCentreLine, Given, None };

/// The shape kind is kStraightShape or, for the arc from start to end through the reference point, any other.
struct NUXRoadParams : NUXBaseParams {
    NUXRoadParams() { shapeKind = kStraightShape; }

    bool isFireRoad = false;
    int width = 4000;
    hrx::CVec2<double> start;
    hrx::CVec2<double> end;
    hrx::CVec2<double> reference;
    NUXRoadOutline outline = NUXRoadOutline::FromCentreLine;
    std::vector<hrx::PolyPt2d> givenOutline;
};

class NUXRoadObject : public NUXBaseObject {
public:
    static constexpr ClassBits kClassBit = referencehost::kRoadBit;
    static NUXRoadObject* Cast(const UdRxObject* object) { return UdRxCast<NUXRoadObject>(object); }

    explicit NUXRoadObject(const NUXRoadParams& params, std::wstring typeIdentifier = L"NUX_EDO_TYPE_ROAD");

    bool getIsFireRoad() const { return m_isFireRoad; }
    int getWidth() const { return m_width; }
    hrx::CVec2<double> getOriginalStartPt() const { return m_start; }
    hrx::CVec2<double> getOriginalEndPt() const { return m_end; }
    hrx::CVec2<double> getOriginalRefPt() const { return m_reference; }

    /// The road's outline, counter-clockwise; null when it has none, without loops when its centre line fixes
    /// none. The road keeps it: bodies made of it share it.
    hrx::CPolygon* getRoadPoly() const { return m_outline.get(); }

protected:
    std::optional<hrx::CExtents3> geometryExtents() const override;

private:
    bool m_isFireRoad;
    int m_width;
    hrx::CVec2<double> m_start;
    hrx::CVec2<double> m_end;
    hrx::CVec2<double> m_reference;
    hrx::PolygonRef m_outline;
};
