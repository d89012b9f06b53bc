#pragma once

#include "geometry/CBody.h"
#include "geometry/CPlaneCurve3d.h"
#include "geometry/CPolygon.h"

namespace hrx::solids {

/// A tube with flat ends along an arc that is not degenerate, with a positive radius no larger than the
/// arc's. Shares its section.
class CTubeBody : public CBody {
public:
    CTubeBody(const CPlaneCurve3d& path, CPolygon* section, double radius)
        : m_path(path), m_section(section), m_radius(radius) {}

    CExtents3 GetExtents() const override;
    bool isStrictlyValid() const override { return true; }
    bool isMeasurable() const override;
    Kind kind() const override { return Kind::Tube; }

    const CPlaneCurve3d& path() const { return m_path; }
    double radius() const { return m_radius; }

private:
    CPlaneCurve3d m_path;
    PolygonRef m_section;
    double m_radius;
};

} // namespace hrx::solids
