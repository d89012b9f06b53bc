#pragma once

#include "geometry/CCurve2d.h"

namespace hrx {

/// A straight line from start to end (mm).
class CLine2d : public CCurve2d {
public:
    CLine2d(const CVec2<double>& start, const CVec2<double>& end) : m_start(start), m_end(end) {}

    std::vector<Edge2d> edges() const override;

private:
    CVec2<double> m_start;
    CVec2<double> m_end;
};

} // namespace hrx
