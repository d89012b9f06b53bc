#include "drawing/element_geometry.h"

#include "drawing/json_number.h"
#include "geometry/Edge2d.h"

#include <algorithm>
#include <cmath>

namespace firecheck {

namespace {

using Point = hrx::CVec2<double>;
using Kind = DrawnShape::Kind;

constexpr double kSweepOfChord = 15.0; // degrees of an arc that a straight piece stands for

Json jsonOf(const Point& point) {
    return {jsonNumber(point.x), jsonNumber(point.y)};
}

std::vector<Json> one(Json geometry) {
    std::vector<Json> list;
    list.push_back(std::move(geometry));
    return list;
}

std::vector<Json> onlyPosition(const Point& position) {
    Json geometry = Json::object();
    geometry["position"] = jsonOf(position);
    return one(std::move(geometry));
}

Point pointOf(const hrx::PolyPt2d& vertex) {
    return {vertex.x, vertex.y};
}

double directionOf(const Point& from, const Point& to) {
    return std::atan2(to.y - from.y, to.x - from.x) * 180.0 / std::acos(-1.0);
}

void setAngle(Json& geometry, double degrees) {
    const double angle = tidyAngle(degrees);
    if (angle != 0.0)
        geometry["angle"] = jsonNumber(angle);
}

/// A rectangle by its corners.
struct Rectangle {
    Point middle;
    double length;
    double depth;
    double angle;
};

Rectangle rectangleOf(const std::vector<hrx::PolyPt2d>& corners, LengthRuns lengthRuns) {
    const Point a = pointOf(corners[0]);
    const Point b = pointOf(corners[1]);
    const Point c = pointOf(corners[2]);
    Rectangle result{{tidy((a.x + c.x) * 0.5), tidy((a.y + c.y) * 0.5)},
                     tidy(hrx::length(b - a)),
                     tidy(hrx::length(c - b)),
                     tidyAngle(directionOf(a, b))};
    if (lengthRuns == LengthRuns::AlongFirstEdge)
        return result;
    // Of a square the side that is nearer to the x axis.
    const bool isSquare = std::abs(result.length - result.depth) < 1e-3;
    const bool isTurned =
        isSquare ? std::abs(std::remainder(result.angle, 180.0)) > 45.0 : result.depth > result.length;
    if (isTurned) {
        std::swap(result.length, result.depth);
        result.angle += 90.0;
    }
    result.angle = tidyAngle(result.angle);
    if (result.angle > 90.0 || result.angle <= -90.0)
        result.angle = tidyAngle(result.angle + 180.0);
    return result;
}

bool isRectangle(const DrawnShape& shape) {
    return shape.kind == Kind::Outline && isRectangleOfPlane(shape.vertices);
}

/// The box of a symbol or the rectangle that an outline is; of other outlines their extents.
Rectangle boxed(const DrawnShape& shape, LengthRuns lengthRuns) {
    if (shape.kind == Kind::Symbol)
        return {shape.hasBox ? shape.boxMiddle : shape.place, shape.length, shape.depth, shape.angle};
    if (isRectangle(shape))
        return rectangleOf(shape.vertices, lengthRuns);
    const hrx::CBox2d box = boxOf(shape);
    return {{tidy((box.low.x + box.high.x) * 0.5), tidy((box.low.y + box.high.y) * 0.5)},
            tidy(box.high.x - box.low.x),
            tidy(box.high.y - box.low.y),
            0.0};
}

Json rectangleGeometry(const Rectangle& rectangle) {
    Json geometry = {{"center", jsonOf(rectangle.middle)},
                     {"length", jsonNumber(rectangle.length)},
                     {"depth", jsonNumber(rectangle.depth)}};
    setAngle(geometry, rectangle.angle);
    return geometry;
}

Json circleGeometry(const Point& centre, double radius) {
    return {{"circle", {{"center", jsonOf(centre)}, {"radius", jsonNumber(radius)}}}};
}

Json polylineGeometry(const std::vector<hrx::PolyPt2d>& vertices) {
    Json list = Json::array();
    for (const hrx::PolyPt2d& vertex : vertices) {
        Json point = jsonOf(pointOf(vertex));
        if (vertex.bulge != 0.0)
            point.push_back(jsonNumber(vertex.bulge));
        list.push_back(std::move(point));
    }
    return {{"polyline", std::move(list)}};
}

std::vector<Json> footprint(const DrawnShape& shape, LengthRuns lengthRuns) {
    if (shape.kind == Kind::Circle)
        return one(circleGeometry(shape.place, shape.radius));
    if (shape.kind == Kind::Symbol && shape.radius > 0.0)
        return one(circleGeometry(shape.boxMiddle, shape.radius));
    if (shape.kind == Kind::Symbol && shape.vertices.empty() && shape.hasBox)
        return one(rectangleGeometry(boxed(shape, lengthRuns)));
    if (isRectangle(shape))
        return one(rectangleGeometry(rectangleOf(shape.vertices, lengthRuns)));
    if ((shape.kind == Kind::Outline && shape.vertices.size() > 1) ||
        (shape.kind == Kind::Symbol && !shape.vertices.empty()))
        return one(polylineGeometry(shape.vertices));
    return {};
}

/// The edges of a path, or of the ring that an outline is.
std::vector<hrx::Edge2d> edgesOf(const DrawnShape& shape) {
    std::vector<hrx::PolyPt2d> vertices = shape.vertices;
    if (shape.kind == Kind::Circle)
        vertices = {{shape.place.x - shape.radius, shape.place.y, 1.0},
                    {shape.place.x + shape.radius, shape.place.y, 1.0}};
    std::vector<hrx::Edge2d> edges;
    for (std::size_t i = 0; i < vertices.size(); ++i) {
        if (i + 1 == vertices.size() && shape.kind == Kind::Path)
            break;
        edges.push_back(
            {pointOf(vertices[i]), pointOf(vertices[(i + 1) % vertices.size()]), vertices[i].bulge});
    }
    // A vertex that is drawn twice makes no segment, but a line of no length is all there is of itself.
    const auto isNothing = [](const hrx::Edge2d& edge) { return edge.start == edge.end; };
    if (edges.size() > 1)
        edges.erase(std::remove_if(edges.begin(), edges.end(), isNothing), edges.end());
    return edges;
}

Json routeGeometry(const hrx::Edge2d& edge) {
    Json geometry = {{"start", jsonOf(edge.start)}, {"end", jsonOf(edge.end)}};
    if (edge.isArc()) {
        const Point middle = edge.middle();
        geometry["through"] = jsonOf({tidy(middle.x), tidy(middle.y)});
    }
    return geometry;
}

/// The straight pieces that stand for an edge.
void appendChords(const hrx::Edge2d& edge, std::vector<Json>& geometries) {
    constexpr double degree = 0.017453292519943295;
    if (!edge.isArc() || std::abs(edge.sweep()) <= kSweepOfChord * degree) {
        const auto tidyPoint = [](const Point& point) { return jsonOf({tidy(point.x), tidy(point.y)}); };
        geometries.push_back(edge.isArc() || edge.bulge != 0.0
                                 ? Json{{"start", tidyPoint(edge.start)}, {"end", tidyPoint(edge.end)}}
                                 : Json{{"start", jsonOf(edge.start)}, {"end", jsonOf(edge.end)}});
        return;
    }
    const auto [first, second] = edge.halves();
    appendChords(first, geometries);
    appendChords(second, geometries);
}

std::vector<Json> route(const DrawnShape& shape, bool isStraight) {
    if (shape.kind == Kind::Symbol && shape.hasBox) {
        // A block stands for the line along its longer side.
        const bool isTurned = shape.depth > shape.length;
        const PlaneMap turn = PlaneMap::turned(shape.angle);
        const Point half = (isTurned ? turn.yAxis : turn.xAxis) * (0.5 * std::max(shape.length, shape.depth));
        const Point start = shape.boxMiddle - half;
        const Point end = shape.boxMiddle + half;
        return one(routeGeometry({{tidy(start.x), tidy(start.y)}, {tidy(end.x), tidy(end.y)}, 0.0}));
    }
    std::vector<Json> geometries;
    for (const hrx::Edge2d& edge : edgesOf(shape)) {
        if (isStraight)
            appendChords(edge, geometries);
        else
            geometries.push_back(routeGeometry(edge));
    }
    return geometries;
}

std::vector<Json> door(const DrawnShape& shape, LengthRuns lengthRuns) {
    Json geometry;
    if (shape.kind == Kind::Path) {
        const Point start = pointOf(shape.vertices.front());
        const Point end = pointOf(shape.vertices.back());
        geometry["position"] = jsonOf({tidy((start.x + end.x) * 0.5), tidy((start.y + end.y) * 0.5)});
        setAngle(geometry, directionOf(start, end));
        geometry["leafWidth"] = std::llround(hrx::length(end - start));
        return one(std::move(geometry));
    }
    if (shape.kind == Kind::Mark)
        return onlyPosition(shape.place);
    const Rectangle box = boxed(shape, lengthRuns);
    geometry["position"] = jsonOf(box.middle);
    setAngle(geometry, box.angle);
    if (box.length > 0.0 && shape.kind != Kind::Circle)
        geometry["leafWidth"] = std::llround(box.length);
    return one(std::move(geometry));
}

std::vector<Json> crane(const DrawnShape& shape) {
    Json geometry;
    if (shape.kind == Kind::Outline)
        return onlyPosition(boxed(shape, LengthRuns::AlongLongerSide).middle);
    if (shape.kind == Kind::Path) {
        const Point mast = pointOf(shape.vertices.front());
        const Point tip = pointOf(shape.vertices.back());
        geometry["position"] = jsonOf(mast);
        setAngle(geometry, directionOf(mast, tip));
        geometry["frontJibLength"] = jsonNumber(tidy(hrx::length(tip - mast)));
        return one(std::move(geometry));
    }
    geometry["position"] = jsonOf(shape.place);
    if (shape.kind == Kind::Circle)
        geometry["frontJibLength"] = jsonNumber(shape.radius);
    if (shape.kind == Kind::Symbol)
        setAngle(geometry, shape.angle);
    return one(std::move(geometry));
}

std::vector<Json> box(const DrawnShape& shape, LengthRuns lengthRuns) {
    if (shape.kind == Kind::Path)
        return {};
    if (shape.kind == Kind::Mark)
        return onlyPosition(shape.place);
    const Rectangle rectangle = boxed(shape, lengthRuns);
    Json geometry = {{"position", jsonOf(rectangle.middle)}};
    setAngle(geometry, rectangle.angle);
    if (rectangle.length > 0.0 && rectangle.depth > 0.0) {
        geometry["length"] = jsonNumber(rectangle.length);
        geometry["depth"] = jsonNumber(rectangle.depth);
    }
    return one(std::move(geometry));
}

std::vector<Json> spot(const DrawnShape& shape) {
    if (shape.kind == Kind::Path)
        return {};
    const bool isPlaced = shape.kind == Kind::Mark || shape.kind == Kind::Symbol;
    Json geometry = {
        {"position", jsonOf(isPlaced ? shape.place : boxed(shape, LengthRuns::AlongLongerSide).middle)}};
    if (shape.kind == Kind::Symbol)
        setAngle(geometry, shape.angle);
    return one(std::move(geometry));
}

} // namespace

ElementPlan elementPlan(const SiteClass& siteClass) {
    const auto has = [&siteClass](const char* key) {
        return std::any_of(siteClass.keys.begin(), siteClass.keys.end(),
                           [key](const KeyShape& shape) { return shape.key == key; });
    };
    if (has("polyline"))
        return ElementPlan::Footprint;
    if (has("through"))
        return ElementPlan::Route;
    if (has("start"))
        return ElementPlan::Wall;
    if (has("leafWidth"))
        return ElementPlan::Door;
    if (has("frontJibLength"))
        return ElementPlan::Crane;
    if (has("position"))
        return has("length") ? ElementPlan::Box : ElementPlan::Spot;
    return ElementPlan::Nowhere;
}

Json polylineGeometry(const DrawnShape& shape) {
    const bool hasOutline = shape.kind == Kind::Outline || shape.kind == Kind::Symbol;
    return hasOutline && !shape.vertices.empty() ? polylineGeometry(shape.vertices) : Json();
}

std::vector<Json> elementGeometry(ElementPlan plan, const DrawnShape& shape, LengthRuns lengthRuns) {
    switch (plan) {
    case ElementPlan::Footprint:
        return footprint(shape, lengthRuns);
    case ElementPlan::Route:
        return route(shape, false);
    case ElementPlan::Wall:
        return route(shape, true);
    case ElementPlan::Door:
        return door(shape, lengthRuns);
    case ElementPlan::Crane:
        return crane(shape);
    case ElementPlan::Box:
        return box(shape, lengthRuns);
    case ElementPlan::Spot:
        return spot(shape);
    case ElementPlan::Nowhere:
        return one(Json::object());
    }
    return {};
}

} // namespace firecheck
