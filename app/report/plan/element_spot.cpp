#include "report/plan/element_spot.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace firecheck {

namespace {

using Point = hrx::CVec2<double>;
using Edges = std::vector<hrx::Edge2d>;

constexpr double kPi = 3.14159265358979323846;

struct Crossing {
    double x;
    int winding;
};

struct Span {
    double low;
    double high;

    double middle() const { return 0.5 * (low + high); }
    double width() const { return high - low; }
    bool holds(double x) const { return low < x && x < high; }
};

/// The ends belong to one side, so that neighbouring edges never count one crossing twice.
bool passes(double from, double to, double y) {
    return (from <= y) != (to <= y);
}

void addStraightCrossing(const hrx::Edge2d& edge, double y, std::vector<Crossing>& crossings) {
    if (!passes(edge.start.y, edge.end.y, y))
        return;
    const double share = (y - edge.start.y) / (edge.end.y - edge.start.y);
    crossings.push_back(
        {edge.start.x + share * (edge.end.x - edge.start.x), edge.end.y > edge.start.y ? 1 : -1});
}

/// Cuts the arc where it turns back in y and treats each piece as what it is, left or right of the centre.
void addArcCrossings(const hrx::Edge2d& arc, double y, std::vector<Crossing>& crossings) {
    const Point centre = arc.centre();
    const double radius = arc.radius();
    const double sweep = arc.sweep();
    const double startAngle = std::atan2(arc.start.y - centre.y, arc.start.x - centre.x);
    std::vector<double> angles{startAngle};
    const double low = std::min(startAngle, startAngle + sweep);
    const double high = std::max(startAngle, startAngle + sweep);
    for (double turn = (std::floor(low / kPi - 0.5) + 1.5) * kPi; turn < high; turn += kPi)
        angles.push_back(turn);
    if (sweep < 0.0)
        std::reverse(angles.begin() + 1, angles.end());
    angles.push_back(startAngle + sweep);

    double from = arc.start.y;
    for (std::size_t i = 1; i < angles.size(); ++i) {
        const double to = i + 1 == angles.size() ? arc.end.y : centre.y + radius * std::sin(angles[i]);
        if (passes(from, to, y)) {
            const double aside = std::sqrt(std::max(0.0, radius * radius - (y - centre.y) * (y - centre.y)));
            const bool isRight = std::cos(0.5 * (angles[i - 1] + angles[i])) > 0.0;
            crossings.push_back({centre.x + (isRight ? aside : -aside), to > from ? 1 : -1});
        }
        from = to;
    }
}

/// What a fill covers of the line at a height, from left to right. As plans are filled: houses, whose stairs
/// overlap them, wherever anything winds around; others where an odd number of edges lies to the left.
class Filling {
public:
    Filling(Edges edges, bool isNonZero) : m_edges(std::move(edges)), m_isNonZero(isNonZero) {}

    std::vector<Span> spansAt(double y) const {
        std::vector<Crossing> crossings;
        for (const hrx::Edge2d& edge : m_edges) {
            if (edge.isArc())
                addArcCrossings(edge, y, crossings);
            else
                addStraightCrossing(edge, y, crossings);
        }
        std::sort(crossings.begin(), crossings.end(),
                  [](const Crossing& a, const Crossing& b) { return a.x < b.x; });
        std::vector<Span> spans;
        int winding = 0;
        for (std::size_t i = 0; i + 1 < crossings.size(); ++i) {
            winding += m_isNonZero ? crossings[i].winding : 1;
            const bool isFilled = m_isNonZero ? winding != 0 : winding % 2 != 0;
            if (!isFilled)
                continue;
            if (!spans.empty() && spans.back().high == crossings[i].x)
                spans.back().high = crossings[i + 1].x;
            else
                spans.push_back({crossings[i].x, crossings[i + 1].x});
        }
        return spans;
    }

    std::optional<Span> widestAt(double y) const {
        const std::vector<Span> spans = spansAt(y);
        const auto widest = std::max_element(
            spans.begin(), spans.end(), [](const Span& a, const Span& b) { return a.width() < b.width(); });
        return widest == spans.end() ? std::nullopt : std::optional<Span>(*widest);
    }

    std::optional<Span> spanAround(double x, double y) const {
        for (const Span& span : spansAt(y))
            if (span.holds(x))
                return span;
        return std::nullopt;
    }

private:
    const Edges m_edges;
    const bool m_isNonZero;
};

Edges closedEdges(const PlanShape& shape) {
    Edges edges;
    for (const PlanPath& path : shape.paths)
        if (path.isClosed)
            edges.insert(edges.end(), path.edges.begin(), path.edges.end());
    return edges;
}

/// x and y exchanged, so that upright lines lie level.
Edges exchanged(const Edges& edges) {
    Edges result;
    for (const hrx::Edge2d& edge : edges)
        result.push_back({{edge.start.y, edge.start.x}, {edge.end.y, edge.end.x}, -edge.bulge});
    return result;
}

/// The middle of the widest part at a height, moved to the middle of what lies above and below it.
std::optional<ElementSpot> spotAt(double y, const Filling& level, const Filling& upright) {
    const std::optional<Span> widest = level.widestAt(y);
    if (!widest)
        return std::nullopt;
    const double x = widest->middle();
    const std::optional<Span> column = upright.spanAround(y, x);
    if (!column)
        return std::nullopt;
    const Point point{x, column->middle()};
    const std::optional<Span> row = level.spanAround(point.x, point.y);
    if (!row)
        return std::nullopt;
    return ElementSpot{point, std::min(point.x - row->low, row->high - point.x), 0.5 * column->width()};
}

/// The roomiest of the spots at some heights, the middle one first.
std::optional<ElementSpot> spotInside(const PlanShape& shape) {
    const Edges edges = closedEdges(shape);
    const bool isNonZero = shape.kind == PlanKind::House;
    const Filling level(edges, isNonZero);
    const Filling upright(exchanged(edges), isNonZero);
    const auto room = [](const ElementSpot& spot) { return std::min(spot.halfWidth, spot.halfHeight); };
    std::optional<ElementSpot> best;
    for (const double share : {0.5, 0.25, 0.75, 0.125, 0.375, 0.625, 0.875, 0.0625, 0.9375}) {
        const double y = shape.box.low.y + share * (shape.box.high.y - shape.box.low.y);
        const std::optional<ElementSpot> spot = spotAt(y, level, upright);
        if (spot && (!best || room(*spot) > 1.1 * room(*best)))
            best = spot;
    }
    return best;
}

double lengthOf(const hrx::Edge2d& edge) {
    return edge.isArc() ? std::abs(edge.radius() * edge.sweep())
                        : std::hypot(edge.end.x - edge.start.x, edge.end.y - edge.start.y);
}

double lengthOf(const PlanPath& path) {
    double length = 0.0;
    for (const hrx::Edge2d& edge : path.edges)
        length += lengthOf(edge);
    return length;
}

Point pointAlong(const hrx::Edge2d& edge, double share) {
    if (!edge.isArc())
        return edge.start + (edge.end - edge.start) * share;
    const Point centre = edge.centre();
    const Point arm = edge.start - centre;
    const double angle = edge.sweep() * share;
    return {centre.x + arm.x * std::cos(angle) - arm.y * std::sin(angle),
            centre.y + arm.x * std::sin(angle) + arm.y * std::cos(angle)};
}

Point halfWayAlong(const PlanPath& path) {
    double left = 0.5 * lengthOf(path);
    for (const hrx::Edge2d& edge : path.edges) {
        const double length = lengthOf(edge);
        if (left <= length && length > 0.0)
            return pointAlong(edge, left / length);
        left -= length;
    }
    return path.edges.front().start;
}

} // namespace

ElementSpot elementSpot(const PlanShape& shape) {
    if (const std::optional<ElementSpot> inside = spotInside(shape))
        return *inside;
    const auto longest =
        std::max_element(shape.paths.begin(), shape.paths.end(),
                         [](const PlanPath& a, const PlanPath& b) { return lengthOf(a) < lengthOf(b); });
    return {halfWayAlong(*longest)};
}

} // namespace firecheck
