#include "geometry/solids/Simplex.h"

#include <algorithm>
#include <iterator>
#include <limits>

namespace hrx::solids {

namespace {

constexpr double kMeetsOrigin = 1e-7;

/// The point of a hull of up to four points that is nearest to the origin, as weights of the points.
template <class Real> struct Candidate {
    Real squared = std::numeric_limits<Real>::infinity();
    CVec3<Real> nearest;
    Real weights[4] = {};

    /// Keeps a point of the hull of up to three of the points, with their weights, if it is nearer.
    void keepNearer(const CVec3<Real>& point, int i, Real weightI, int j = 0, Real weightJ = 0, int k = 0,
                    Real weightK = 0) {
        const Real pointSquared = dot(point, point);
        if (!(pointSquared < squared))
            return;
        squared = pointSquared;
        nearest = point;
        std::fill(std::begin(weights), std::end(weights), Real(0));
        weights[k] = weightK;
        weights[j] = weightJ;
        weights[i] = weightI;
    }
};

/// The inside of the edge from point i to point j.
template <class Real> void considerEdge(const CVec3<Real>* p, int i, int j, Candidate<Real>& best) {
    const CVec3<Real> along = p[j] - p[i];
    const Real size = dot(along, along);
    const Real t = -dot(p[i], along);
    if (!(t > 0 && t < size))
        return;
    const Real weight = t / size;
    best.keepNearer(p[i] + along * weight, j, weight, i, 1 - weight);
}

/// The inside of the triangle; the nearest point comes from its normal, which keeps its direction to the last
/// bit however near the origin is.
template <class Real>
void considerTriangle(const CVec3<Real>* p, int i, int j, int k, Candidate<Real>& best) {
    const CVec3<Real> toJ = p[j] - p[i];
    const CVec3<Real> toK = p[k] - p[i];
    const CVec3<Real> normal = cross(toJ, toK);
    const Real size = dot(normal, normal);
    if (!(size > 0))
        return;
    const Real weightJ = -dot(cross(p[i], toK), normal) / size;
    const Real weightK = -dot(cross(toJ, p[i]), normal) / size;
    if (!(weightJ > 0 && weightK > 0 && weightJ + weightK < 1))
        return;
    best.keepNearer(normal * (dot(p[i], normal) / size), i, 1 - weightJ - weightK, j, weightJ, k, weightK);
}

/// Volume (times six) of the tetrahedron of three points and the origin, seen from the first point.
template <class Real> Real originSide(const CVec3<Real>& a, const CVec3<Real>& b, const CVec3<Real>& c) {
    return -dot(a, cross(b - a, c - a));
}

/// The inside of the tetrahedron: the origin lies on the inner side of all four faces.
template <class Real> void considerInside(const CVec3<Real>* p, Candidate<Real>& best) {
    static constexpr int kFaces[4][4] = {{1, 2, 3, 0}, {0, 3, 2, 1}, {0, 1, 3, 2}, {0, 2, 1, 3}};
    Candidate<Real> inside;
    Real sum = 0;
    for (const auto& face : kFaces) {
        const CVec3<Real>& a = p[face[0]];
        const Real volume = dot(p[face[3]] - a, cross(p[face[1]] - a, p[face[2]] - a));
        const Real side = originSide(a, p[face[1]], p[face[2]]);
        if (!(side * volume > 0))
            return;
        inside.weights[face[3]] = side / volume;
        sum += side / volume;
    }
    CVec3<Real> rest;
    for (int i = 0; i < 4; ++i) {
        inside.weights[i] /= sum;
        rest = rest + p[i] * inside.weights[i];
    }
    // The signs of a flat tetrahedron are noise; its weights then do not meet the origin.
    if (dot(rest, rest) > kMeetsOrigin * kMeetsOrigin)
        return;
    inside.squared = 0;
    best = inside;
}

/// Of the hull of the points, as far as it lies nearer than the hull of all but the last: what holds the
/// last.
template <class Real> Candidate<Real> nearestWithLast(const CVec3<Real>* p, int count) {
    Candidate<Real> best;
    const int last = count - 1;
    best.keepNearer(p[last], last, 1);
    for (int i = 0; i < last; ++i) {
        considerEdge(p, i, last, best);
        for (int j = i + 1; j < last; ++j)
            considerTriangle(p, i, j, last, best);
    }
    if (count == 4)
        considerInside(p, best);
    return best;
}

template <class Real> CVec3<Real> converted(const CVec3<double>& v) {
    return {v.x, v.y, v.z};
}

} // namespace

template <class Real>
Simplex<Real>::Simplex(const Vertex& vertex)
    : m_vertices{vertex}, m_nearest(converted<Real>(vertex.difference)) {}

template <class Real> bool Simplex<Real>::improveWith(const Vertex& vertex) {
    CVec3<Real> points[4];
    for (int i = 0; i < m_count; ++i) {
        if (m_vertices[i].difference == vertex.difference)
            return false;
        points[i] = converted<Real>(m_vertices[i].difference);
    }
    points[m_count] = converted<Real>(vertex.difference);
    const Candidate<Real> best = nearestWithLast(points, m_count + 1);
    if (!(best.squared < dot(m_nearest, m_nearest)))
        return false;
    // A simplex holds four points only for as long as it takes to find the origin inside.
    m_vertices[m_count] = vertex;
    int kept = 0;
    for (int i = 0; i <= m_count; ++i)
        if (best.weights[i] > 0) {
            m_vertices[kept] = m_vertices[i];
            m_weights[kept++] = best.weights[i];
        }
    m_count = kept;
    m_nearest = best.nearest;
    return true;
}

template <class Real> CVec3<double> Simplex<Real>::combine(CVec3<double> Vertex::*point) const {
    CVec3<Real> sum;
    for (int i = 0; i < m_count; ++i)
        sum = sum + converted<Real>(m_vertices[i].*point) * m_weights[i];
    return {static_cast<double>(sum.x), static_cast<double>(sum.y), static_cast<double>(sum.z)};
}

template class Simplex<double>;
template class Simplex<long double>;

} // namespace hrx::solids
