#pragma once

#include "geometry/CVec3.h"

namespace hrx::solids {

/// A point of the difference of two sets, with the points of the sets that it comes from.
struct SimplexVertex {
    CVec3<double> onA;
    CVec3<double> onB;
    CVec3<double> difference;
};

/// Up to four points of the difference of two convex sets, with the point of their hull nearest to the
/// origin. Only points with a weight in it are kept.
/// Real is the type that the nearest point is computed in.
template <class Real> class Simplex {
public:
    using Vertex = SimplexVertex;

    explicit Simplex(const Vertex& vertex);

    /// Takes the vertex in. False, and the simplex unchanged, when that brings the hull no nearer to the
    /// origin.
    bool improveWith(const Vertex& vertex);

    /// (0, 0, 0) when the origin is inside the hull.
    const CVec3<Real>& nearest() const { return m_nearest; }
    /// The nearest point as the weights have it.
    CVec3<double> combinedDifference() const { return combine(&Vertex::difference); }
    CVec3<double> onA() const { return combine(&Vertex::onA); }
    CVec3<double> onB() const { return combine(&Vertex::onB); }

private:
    CVec3<double> combine(CVec3<double> Vertex::*point) const;

    Vertex m_vertices[4];
    Real m_weights[4] = {1, 0, 0, 0};
    int m_count = 1;
    CVec3<Real> m_nearest;
};

} // namespace hrx::solids
