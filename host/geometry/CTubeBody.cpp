#include "geometry/CTubeBody.h"

#include "geometry/TubePiece.h"
#include "geometry/finite.h"

#include <cmath>

namespace hrx {

namespace {

constexpr double kWidestPiece = 1.6; // radians; a piece may span pi, smaller ones start nearer to their hulls

} // namespace

CExtents3 CTubeBody::GetExtents() const {
    CExtents3 extents;
    ConvexPieces pieces;
    appendPieces({}, pieces);
    for (const auto& piece : pieces)
        extents.add(piece->box());
    return extents;
}

bool CTubeBody::isMeasurable() const {
    return isWithinReach(m_path.frame().origin) && isWithinReach(m_path.radius() * m_path.sweep()) &&
           isWithinReach(m_radius);
}

void CTubeBody::appendPieces(const CVec3<double>& origin, ConvexPieces& pieces) const {
    CCoord3<double> frame = m_path.frame();
    frame.origin = frame.origin - origin;
    const int count = static_cast<int>(std::ceil(m_path.sweep() / kWidestPiece));
    const double step = m_path.sweep() / count;
    for (int i = 0; i < count; ++i)
        pieces.push_back(
            std::make_unique<TubePiece>(frame, m_path.radius(), m_radius, i * step, (i + 1) * step));
}

} // namespace hrx
