#pragma once

#include "geometry/CVec3.h"

namespace hrx {

/// Up to four points of the difference of two convex sets, with the point of their hull nearest to the
/// origin. Only points with a weight in it are kept.
class Simplex {
public:
    struct Vertex {
        CVec3<double> onA;
        CVec3<double> onB;
        CVec3<double> difference;
    };

    explicit Simplex(const Vertex& vertex) : m_vertices{vertex}, m_nearest(vertex.difference) {}

    /// Takes the vertex in. False, and the simplex unchanged, when that brings the hull no nearer to the
    /// origin.
    bool improveWith(const Vertex& vertex);

    /// (0, 0, 0) when the origin is inside the hull.
    const CVec3<double>& nearest() const { return m_nearest; }
    CVec3<double> onA() const { return combine(&Vertex::onA); }
    CVec3<double> onB() const { return combine(&Vertex::onB); }

private:
    CVec3<double> combine(CVec3<double> Vertex::*point) const;

    Vertex m_vertices[4];
    double m_weights[4] = {1.0, 0.0, 0.0, 0.0};
    int m_count = 1;
    CVec3<double> m_nearest;
};

} // namespace hrx
