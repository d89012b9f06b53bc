#pragma once

#include "geometry/CBody.h"
#include "geometry/CCoord3.h"
#include "geometry/CPolygon.h"

#include <bitset>
#include <iosfwd>

namespace hrx {

/// An outline in the XY plane of a frame, raised along the frame's z axis; a negative height sinks it. A
/// height of 0 and an outline without area make a sheet: a solid of no thickness.
class CExtrudedBody : public CBody {
public:
    /// Shares the outline (see CPolygon). A null outline makes a body that is not valid and has no points.
    /// The flag is part of the platform's signature and changes nothing.
    CExtrudedBody(const CCoord3<double>& frame, double height, CPolygon* outline, bool flag);

    CExtents3 GetExtents() const override;
    bool isStrictlyValid() const override;

    /// The checks of the outline (see CPolygon::IsValid), and a finite frame and height.
    bool IsValid(const std::bitset<16>& checks, std::ostream* log) const;

    bool isMeasurable() const override;
    Kind kind() const override { return Kind::Extruded; }
    const CPolygon* planOutline() const override { return m_plan.get(); }
    // The levels between which a solid with a plan outline stands.
    double low() const { return m_low; }
    double high() const { return m_high; }

    const CCoord3<double>& frame() const { return m_frame; }
    double height() const { return m_height; }
    /// In the frame's own coordinates; null for a body without one.
    const CPolygon* outline() const { return m_outline.get(); }

private:
    CCoord3<double> m_frame;
    double m_height;
    PolygonRef m_outline;
    PolygonRef m_plan; ///< in world coordinates, when the solid stands upright
    double m_low = 0.0;
    double m_high = 0.0;
};

} // namespace hrx
