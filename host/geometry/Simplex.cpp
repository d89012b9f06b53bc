#include "geometry/Simplex.h"

#include <cmath>
#include <limits>

namespace hrx {

namespace {

using Point = CVec3<double>;

/// The point of a hull of up to four points that is nearest to the origin, as weights of the points.
struct Candidate {
    double squared = std::numeric_limits<double>::infinity();
    Point nearest;
    double weights[4] = {};

    void keepNearer(const Candidate& other) {
        if (other.squared < squared)
            *this = other;
    }
};

void considerVertex(const Point* p, int i, Candidate& best) {
    Candidate vertex;
    vertex.nearest = p[i];
    vertex.squared = dot(p[i], p[i]);
    vertex.weights[i] = 1.0;
    best.keepNearer(vertex);
}

/// The inside of the edge from point i to point j.
void considerEdge(const Point* p, int i, int j, Candidate& best) {
    const Point along = p[j] - p[i];
    const double size = dot(along, along);
    const double t = -dot(p[i], along);
    if (!(t > 0.0 && t < size))
        return;
    Candidate edge;
    edge.weights[j] = t / size;
    edge.weights[i] = 1.0 - edge.weights[j];
    edge.nearest = p[i] + along * edge.weights[j];
    edge.squared = dot(edge.nearest, edge.nearest);
    best.keepNearer(edge);
}

/// The inside of the triangle; the nearest point comes from its normal, which keeps its direction to the last
/// bit however near the origin is.
void considerTriangle(const Point* p, int i, int j, int k, Candidate& best) {
    const Point toJ = p[j] - p[i];
    const Point toK = p[k] - p[i];
    const Point normal = cross(toJ, toK);
    const double size = dot(normal, normal);
    if (!(size > 0.0))
        return;
    const double weightJ = -dot(cross(p[i], toK), normal) / size;
    const double weightK = -dot(cross(toJ, p[i]), normal) / size;
    if (!(weightJ > 0.0 && weightK > 0.0 && weightJ + weightK < 1.0))
        return;
    Candidate triangle;
    triangle.weights[i] = 1.0 - weightJ - weightK;
    triangle.weights[j] = weightJ;
    triangle.weights[k] = weightK;
    triangle.nearest = normal * (dot(p[i], normal) / size);
    triangle.squared = dot(triangle.nearest, triangle.nearest);
    best.keepNearer(triangle);
}

/// Volume (times six) of the tetrahedron of three points and the origin, seen from the first point.
double originSide(const Point& a, const Point& b, const Point& c) {
    return -dot(a, cross(b - a, c - a));
}

/// The inside of the tetrahedron: the origin lies on the inner side of all four faces.
void considerInside(const Point* p, Candidate& best) {
    static constexpr int kFaces[4][4] = {{1, 2, 3, 0}, {0, 3, 2, 1}, {0, 1, 3, 2}, {0, 2, 1, 3}};
    Candidate inside;
    double sum = 0.0;
    for (const auto& face : kFaces) {
        const Point& a = p[face[0]];
        const double volume = dot(p[face[3]] - a, cross(p[face[1]] - a, p[face[2]] - a));
        const double side = originSide(a, p[face[1]], p[face[2]]);
        if (!(side * volume > 0.0))
            return;
        inside.weights[face[3]] = side / volume;
        sum += side / volume;
    }
    for (double& weight : inside.weights)
        weight /= sum;
    inside.squared = 0.0;
    best.keepNearer(inside);
}

Candidate nearestToOrigin(const Point* p, int count) {
    Candidate best;
    for (int i = 0; i < count; ++i) {
        considerVertex(p, i, best);
        for (int j = i + 1; j < count; ++j) {
            considerEdge(p, i, j, best);
            for (int k = j + 1; k < count; ++k)
                considerTriangle(p, i, j, k, best);
        }
    }
    if (count == 4)
        considerInside(p, best);
    return best;
}

} // namespace

bool Simplex::improveWith(const Vertex& vertex) {
    Point points[4];
    for (int i = 0; i < m_count; ++i) {
        if (m_vertices[i].difference == vertex.difference)
            return false;
        points[i] = m_vertices[i].difference;
    }
    points[m_count] = vertex.difference;
    const Candidate best = nearestToOrigin(points, m_count + 1);
    if (!(best.squared < dot(m_nearest, m_nearest)))
        return false;
    // A simplex holds four points only for as long as it takes to find the origin inside.
    m_vertices[m_count] = vertex;
    int kept = 0;
    for (int i = 0; i <= m_count; ++i)
        if (best.weights[i] > 0.0) {
            m_vertices[kept] = m_vertices[i];
            m_weights[kept++] = best.weights[i];
        }
    m_count = kept;
    m_nearest = best.nearest;
    return true;
}

CVec3<double> Simplex::combine(CVec3<double> Vertex::*point) const {
    CVec3<double> sum;
    for (int i = 0; i < m_count; ++i)
        sum = sum + m_vertices[i].*point * m_weights[i];
    return sum;
}

} // namespace hrx
