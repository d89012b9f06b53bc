#pragma once

#include "geometry/CCoord3.h"
#include "geometry/solids/ConvexPiece.h"

namespace hrx::solids {

/// A stretch of a tube along an arc: the discs across the arc at the angles from first to last (radians, at
/// most pi apart), in the frame of CPlaneCurve3d. The tube must be no thicker than the arc's own circle.
class TubePiece : public ConvexPiece {
public:
    TubePiece(const CCoord3<double>& frame, double arcRadius, double tubeRadius, double first, double last);
    CVec3<double> support(const CVec3<double>& direction) const override;
    CVec3<double> anyPoint() const override;
    CVec3<double> onPart(const CVec3<double>& hullPoint) const override;
    void split(ConvexPieces& halves) const override;

private:
    CCoord3<double> m_frame;
    double m_arcRadius;
    double m_tubeRadius;
    double m_first;
    double m_last;
};

} // namespace hrx::solids
