#pragma once

#include "geometry/CVec2.h"

#include <algorithm>
#include <cmath>

namespace hrx::network {

/// How near (mm) two places must be to count as one. Distances are taken to the nearest 1e-5 mm, so that a
/// gap exactly as wide as the tolerance stays open whatever way the drawing is turned.
class JoiningTolerance {
public:
    /// A tolerance below 1e-5 mm, or none (NaN), joins what measures 0.
    explicit JoiningTolerance(double tolerance)
        : m_tolerance(tolerance > kResolution ? tolerance : kResolution) {}

    bool joins(const CVec2<double>& a, const CVec2<double>& b) const {
        return std::round(length(a - b) / kResolution) * kResolution < m_tolerance;
    }

    /// No two places further apart than this are joined.
    double reach() const { return m_tolerance; }

private:
    static constexpr double kResolution = 1e-5;
    double m_tolerance;
};

} // namespace hrx::network
