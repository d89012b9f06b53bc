#pragma once

#include "geometry/Edge2d.h"
#include "geometry/PolyPt2d.h"

#include <boost/container/small_vector.hpp>

#include <cstddef>
#include <vector>

namespace hrx {

/// One loop of an outline: edges head to tail, the last ending where the first starts.
class CCoedgeList {
public:
    /// The edges of a rectangle need no storage of their own.
    using Edges = boost::container::small_vector<Edge2d, 4>;

    CCoedgeList() = default;
    explicit CCoedgeList(const std::vector<Edge2d>& edges) : m_edges(edges.begin(), edges.end()) {}
    /// Straight edges through the corners and back to the first; a repeated last corner is dropped.
    explicit CCoedgeList(const std::vector<CVec2<double>>& corners);
    CCoedgeList(const CVec2<double>* corners, std::size_t count);
    /// Edges through the points and back to the first, every point kept.
    explicit CCoedgeList(const std::vector<PolyPt2d>& points);

    const Edges& edges() const { return m_edges; }

    /// 1 counter-clockwise, -1 clockwise, 0 when the loop encloses no area: none above g_DistEpsilon times
    /// its girth.
    int ClockSign() const;
    /// Enclosed area, mm2, positive counter-clockwise; arcs counted exactly.
    double signedArea() const;
    /// The perimeter to within a factor of 2, quick to take: what widths are compared with.
    double girth() const;
    void Reverse();

private:
    Edges m_edges;
};

} // namespace hrx
