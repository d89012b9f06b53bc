#include "drawing/DrawnShape.h"

#include "geometry/Edge2d.h"

#include <cmath>

namespace firecheck {

namespace {

const double kDegree = std::acos(-1.0) / 180.0;

hrx::CVec2<double> vectorOf(const DxfPoint& point) {
    return {point.x, point.y};
}

/// Places entities, and rounds what that computes.
class Placer {
public:
    explicit Placer(const PlaneMap& map) : m_map(map), m_isExact(map.isIdentity()) {}

    hrx::CVec2<double> point(const DxfPoint& at) const {
        const hrx::CVec2<double> placed = m_map(vectorOf(at));
        return m_isExact ? vectorOf(at) : hrx::CVec2<double>{tidy(placed.x), tidy(placed.y)};
    }
    hrx::PolyPt2d vertex(const DxfVertex& vertex) const {
        const auto at = point(vertex.at);
        return {at.x, at.y, m_map.isMirrored() ? -vertex.bulge : vertex.bulge};
    }
    double length(double value) const { return m_isExact ? value : tidy(value * hrx::length(m_map.xAxis)); }

private:
    const PlaneMap& m_map;
    const bool m_isExact;
};

/// The vertices of an arc: two, or three of a whole turn.
std::vector<DxfVertex> arcVertices(const DxfArc& arc) {
    const auto at = [&arc](double degrees) {
        const hrx::CVec2<double> direction = PlaneMap::turned(degrees).xAxis;
        return DxfPoint{arc.centre.x + arc.radius * direction.x, arc.centre.y + arc.radius * direction.y};
    };
    double sweep = std::fmod(arc.endAngle - arc.startAngle, 360.0);
    if (sweep <= 0.0)
        sweep += 360.0;
    if (arc.isCircle || sweep > 359.999)
        return {{at(arc.startAngle), 1.0}, {at(arc.startAngle + 180.0), 1.0}, {at(arc.startAngle), 0.0}};
    return {{at(arc.startAngle), std::tan(sweep * kDegree / 4.0)}, {at(arc.endAngle), 0.0}};
}

bool hasArcs(const DxfPolyline& polyline) {
    for (const DxfVertex& vertex : polyline.vertices)
        if (vertex.bulge != 0.0)
            return true;
    return false;
}

/// Whoever closes a polyline by drawing to its start means the same as a closed one.
void dropClosingVertex(std::vector<hrx::PolyPt2d>& vertices, bool& isClosed) {
    constexpr double together = 0.01;
    if (vertices.size() < 3)
        return;
    const double gap =
        std::hypot(vertices.front().x - vertices.back().x, vertices.front().y - vertices.back().y);
    if (isClosed ? gap != 0.0 : gap > together)
        return;
    vertices.pop_back();
    isClosed = true;
}

DrawnShape shapeOfVertices(const DxfPolyline& polyline, const Placer& place) {
    DrawnShape shape;
    for (const DxfVertex& vertex : polyline.vertices)
        shape.vertices.push_back(place.vertex(vertex));
    bool isClosed = polyline.isClosed && shape.vertices.size() > 1;
    dropClosingVertex(shape.vertices, isClosed);
    shape.kind = isClosed ? DrawnShape::Kind::Outline : DrawnShape::Kind::Path;
    shape.width = place.length(polyline.width);
    return shape;
}

} // namespace

double tidy(double value) {
    constexpr double finest = 1e6;
    const double rounded = std::abs(value) < 1e9 ? std::round(value * finest) / finest : value;
    return rounded == 0.0 ? 0.0 : rounded; // no negative zero
}

double tidyAngle(double degrees) {
    double angle = std::remainder(degrees, 360.0);
    angle = std::round(angle * 1e9) / 1e9;
    return angle <= -180.0 ? 180.0 : angle == 0.0 ? 0.0 : angle;
}

PlaneMap ownPlane(const DxfEntity& entity) {
    return entity.facing == DxfFacing::Down ? PlaneMap::scaled(-1.0, 1.0) : PlaneMap();
}

PlaneMap insertPlane(const DxfInsert& insert, const DxfBlock& block, int column, int row) {
    const PlaneMap cell = PlaneMap::moved({column * insert.columnSpacing, row * insert.rowSpacing});
    return PlaneMap::moved(vectorOf(insert.at))
        .after(PlaneMap::turned(insert.rotation))
        .after(cell)
        .after(PlaneMap::scaled(insert.scaleX, insert.scaleY))
        .after(PlaneMap::moved({-block.base.x, -block.base.y}));
}

std::optional<DrawnShape> drawnShape(const DxfEntity& entity, const PlaneMap& map) {
    if (entity.facing == DxfFacing::Tilted)
        return std::nullopt;
    const PlaneMap whole = map.after(ownPlane(entity));
    const Placer place(whole);
    if (const auto* line = std::get_if<DxfLine>(&entity.shape))
        return shapeOfVertices({{{line->start, 0.0}, {line->end, 0.0}}, false, 0.0}, place);
    if (const auto* mark = std::get_if<DxfPointMark>(&entity.shape)) {
        DrawnShape shape;
        shape.place = place.point(mark->at);
        return shape;
    }
    if (const auto* polyline = std::get_if<DxfPolyline>(&entity.shape)) {
        if (polyline->vertices.empty() || (hasArcs(*polyline) && !whole.keepsCircles()))
            return std::nullopt;
        return shapeOfVertices(*polyline, place);
    }
    const auto* arc = std::get_if<DxfArc>(&entity.shape);
    if (!arc || !whole.keepsCircles())
        return std::nullopt;
    if (!arc->isCircle)
        return shapeOfVertices({arcVertices(*arc), false, 0.0}, place);
    DrawnShape shape;
    shape.kind = DrawnShape::Kind::Circle;
    shape.place = place.point(arc->centre);
    shape.radius = place.length(arc->radius);
    return shape;
}

bool isRectangleOfPlane(const std::vector<hrx::PolyPt2d>& vertices) {
    constexpr double tolerance = 0.1; // mm
    if (vertices.size() != 4)
        return false;
    for (const hrx::PolyPt2d& vertex : vertices)
        if (vertex.bulge != 0.0)
            return false;
    const auto at = [&vertices](std::size_t i) { return hrx::CVec2<double>{vertices[i].x, vertices[i].y}; };
    // A parallelogram whose diagonals are equal.
    return hrx::length(at(0) - at(1) + at(2) - at(3)) <= tolerance &&
           std::abs(hrx::length(at(2) - at(0)) - hrx::length(at(3) - at(1))) <= tolerance &&
           hrx::length(at(1) - at(0)) > tolerance && hrx::length(at(2) - at(1)) > tolerance;
}

hrx::CBox2d boxOf(const DrawnShape& shape) {
    hrx::CBox2d box;
    const bool isClosed = shape.kind == DrawnShape::Kind::Outline;
    const auto& vertices = shape.vertices;
    for (std::size_t i = 0; i < vertices.size(); ++i) {
        const hrx::CVec2<double> start{vertices[i].x, vertices[i].y};
        box.add(start);
        if (i + 1 == vertices.size() && !isClosed)
            break;
        const hrx::PolyPt2d& next = vertices[(i + 1) % vertices.size()];
        box.add(hrx::Edge2d{start, {next.x, next.y}, vertices[i].bulge}.box());
    }
    if (shape.kind == DrawnShape::Kind::Circle) {
        box.add({shape.place.x - shape.radius, shape.place.y - shape.radius});
        box.add({shape.place.x + shape.radius, shape.place.y + shape.radius});
    } else if (shape.kind == DrawnShape::Kind::Mark)
        box.add(shape.place);
    return box;
}

double chordArea(const std::vector<hrx::PolyPt2d>& vertices) {
    double twice = 0.0;
    for (std::size_t i = 0; i < vertices.size(); ++i) {
        const hrx::PolyPt2d& next = vertices[(i + 1) % vertices.size()];
        twice += (vertices[i].x - vertices[0].x) * (next.y - vertices[0].y) -
                 (next.x - vertices[0].x) * (vertices[i].y - vertices[0].y);
    }
    return twice / 2.0;
}

} // namespace firecheck
