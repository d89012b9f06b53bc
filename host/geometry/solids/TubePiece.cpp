#include "geometry/solids/TubePiece.h"

#include "geometry/CVec2.h"

#include <algorithm>
#include <cmath>

namespace hrx::solids {

namespace {

/// A stretch that leaves its hull by less than this fills it.
constexpr double kLeastSagitta = 1e-7;
constexpr double kTurn = 6.283185307179586;

} // namespace

TubePiece::TubePiece(const CCoord3<double>& frame, double arcRadius, double tubeRadius, double first,
                     double last)
    : m_frame(frame), m_arcRadius(arcRadius), m_tubeRadius(tubeRadius), m_first(first), m_last(last) {}

CVec3<double> TubePiece::support(const CVec3<double>& direction) const {
    const CVec3<double> local = m_frame.directionToLocal(direction);
    // The reach of the disc at an angle grows with the cosine of its difference from the direction's angle,
    // so the nearest angle of the stretch has it.
    const double middle = 0.5 * (m_first + m_last);
    const double difference = std::remainder(std::atan2(local.y, local.x) - middle, kTurn);
    const double angle = std::clamp(middle + difference, m_first, m_last);
    const CVec2<double> outward(std::cos(angle), std::sin(angle));

    CVec2<double> across(local.x * outward.x + local.y * outward.y, local.z);
    const double size = length(across);
    across = size > 0.0 ? across * (m_tubeRadius / size) : CVec2<double>{};
    const double half = std::sin(0.5 * angle);
    const CVec2<double> onCentreLine(-2.0 * m_arcRadius * half * half, m_arcRadius * outward.y);
    return m_frame.toWorld(
        {onCentreLine.x + outward.x * across.x, onCentreLine.y + outward.y * across.x, across.y});
}

CVec3<double> TubePiece::anyPoint() const {
    const double half = std::sin(0.5 * m_first);
    return m_frame.toWorld({-2.0 * m_arcRadius * half * half, m_arcRadius * std::sin(m_first), 0.0});
}

CVec3<double> TubePiece::onPart(const CVec3<double>& hullPoint) const {
    const CVec3<double> local = m_frame.toLocal(hullPoint);
    const double fromAxis = std::hypot(m_arcRadius + local.x, local.y);
    // fromAxis - m_arcRadius, which cancels on flat arcs.
    const double outward =
        (local.x * (2.0 * m_arcRadius + local.x) + local.y * local.y) / (fromAxis + m_arcRadius);
    const CVec2<double> fromCentreLine(outward, local.z);
    const double size = length(fromCentreLine);
    if (size <= m_tubeRadius || !(fromAxis > 0.0))
        return hullPoint;
    const CVec2<double> onSkin = fromCentreLine * (m_tubeRadius / size);
    const double growth = (onSkin.x - outward) / fromAxis;
    return m_frame.toWorld({local.x + (m_arcRadius + local.x) * growth, local.y * (1.0 + growth), onSkin.y});
}

void TubePiece::split(ConvexPieces& halves) const {
    const double sweep = m_last - m_first;
    if (!((m_arcRadius + m_tubeRadius) * sweep * sweep > 8.0 * kLeastSagitta))
        return;
    const double middle = 0.5 * (m_first + m_last);
    halves.push_back(std::make_unique<TubePiece>(m_frame, m_arcRadius, m_tubeRadius, m_first, middle));
    halves.push_back(std::make_unique<TubePiece>(m_frame, m_arcRadius, m_tubeRadius, middle, m_last));
}

} // namespace hrx::solids
