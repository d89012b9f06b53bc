#include "geometry/CPolygon.h"
#include "geometry/DistEpsilon.h"
#include "geometry/finite.h"
#include "geometry/plan/edge_crossing.h"
#include "geometry/plan/edge_intersections.h"
#include "geometry/plan/outline_shape.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <limits>
#include <ostream>

namespace hrx {

namespace {

bool hasLoops(const CPolygon& polygon) {
    for (const CCoedgeList& loop : polygon.loops())
        if (loop.edges().size() < 2)
            return false;
    return polygon.LoopCount() > 0;
}

bool isFinite(const CPolygon& polygon) {
    for (const CCoedgeList& loop : polygon.loops())
        for (const Edge2d& edge : loop.edges())
            if (!isFinite(edge.start) || !isFinite(edge.end) || !std::isfinite(edge.bulge))
                return false;
    return true;
}

bool isClosed(const CPolygon& polygon) {
    for (const CCoedgeList& loop : polygon.loops()) {
        const CCoedgeList::Edges& edges = loop.edges();
        for (std::size_t i = 0; i < edges.size(); ++i)
            if (edges[i].end != edges[i + 1 < edges.size() ? i + 1 : 0].start)
                return false;
    }
    return true;
}

bool hasOnlyLongEdges(const CPolygon& polygon) {
    for (const CCoedgeList& loop : polygon.loops())
        for (const Edge2d& edge : loop.edges())
            if (edge.start == edge.end)
                return false;
    return true;
}

/// An edge and a box that holds it.
struct Span {
    CBox2d box;
    const Edge2d* edge;
};

CBox2d boxOf(const Edge2d& edge) {
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    const CBox2d box = edge.looseBox();
    // The box of an edge at the end of the range of doubles is none; it may lie anywhere.
    const bool isBox = box.low.x <= box.high.x && box.low.y <= box.high.y;
    return isBox ? box : CBox2d{{-kInfinity, -kInfinity}, {kInfinity, kInfinity}};
}

bool overlapInY(const CBox2d& a, const CBox2d& b) {
    return a.low.y <= b.high.y && b.low.y <= a.high.y;
}

/// A line and an arc from one corner: true when the line lies to the other side of the chord than the arc, or
/// ends before it could meet the arc's circle again.
bool staysOffArc(const CVec2<double>& line, const Edge2d& arc) {
    if (cross(arc.end - arc.start, line) * arc.bulge > 0.0)
        return true;
    const CVec2<double> inward = leftNormal(arc.startDirection()) * std::copysign(1.0, arc.bulge);
    return dot(line, line) < 2.0 * arc.radius() * dot(inward, line) - plan::g_touchDistance * length(line) ||
           dot(inward, line) < 0.0;
}

/// True for neighbours that surely meet in their common corner only, or run along each other.
bool areSidesOfCorner(const Edge2d& a, const Edge2d& b) {
    if (b.end == a.start && a.end != b.start)
        return areSidesOfCorner(b, a);
    if (a.end != b.start)
        return false;
    if (!a.isArc())
        return !b.isArc() || staysOffArc(a.start - a.end, b);
    return !b.isArc() && staysOffArc(b.end - b.start, a.reversed());
}

bool spansCross(const Span& a, const Span& b) {
    return overlapInY(a.box, b.box) && !areSidesOfCorner(*a.edge, *b.edge) &&
           plan::edgesCross(*a.edge, *b.edge);
}

/// True when v turns off u to the left beyond all rounding.
bool turnsLeft(const CVec2<double>& u, const CVec2<double>& v) {
    return cross(u, v) > 1e-9 * (std::abs(u.x) + std::abs(u.y)) * (std::abs(v.x) + std::abs(v.y));
}

/// Most outlines are rectangles, and these pass every check at once: a left turn takes finite coordinates and
/// edges with length, and four left turns make one round, so no edge can cross another. Five may make two.
bool isConvexQuadrilateral(const CPolygon& polygon) {
    if (polygon.LoopCount() != 1 || polygon.GetLoop(0)->edges().size() != 4)
        return false;
    const CCoedgeList::Edges& edges = polygon.GetLoop(0)->edges();
    if (!isClosed(polygon) ||
        std::any_of(edges.begin(), edges.end(), [](const Edge2d& edge) { return edge.bulge != 0.0; }))
        return false;
    const CVec2<double> sides[] = {edges[0].end - edges[0].start, edges[1].end - edges[1].start,
                                   edges[2].end - edges[2].start, edges[3].end - edges[3].start};
    return turnsLeft(sides[0], sides[1]) && turnsLeft(sides[1], sides[2]) && turnsLeft(sides[2], sides[3]) &&
           turnsLeft(sides[3], sides[0]);
}

using Spans = boost::container::small_vector<Span, 8>;

/// The direction in which the edges run for the most part, long ones counting most: the mean of their chords,
/// each turned to the double of its angle, so that there and back are one direction.
CVec2<double> mainDirection(const CPolygon& polygon) {
    CVec2<double> sum;
    for (const CCoedgeList& loop : polygon.loops())
        for (const Edge2d& edge : loop.edges()) {
            const CVec2<double> chord = edge.end - edge.start;
            sum = sum + CVec2<double>((chord.x - chord.y) * (chord.x + chord.y), 2.0 * chord.x * chord.y);
        }
    // Half the angle, by the greater one of its cosine and sine.
    const double far = length(sum) + std::abs(sum.x);
    const CVec2<double> half =
        sum.x < 0.0 ? CVec2<double>(std::abs(sum.y), std::copysign(far, sum.y)) : CVec2<double>(far, sum.y);
    const double size = length(half);
    return size > 0.0 && std::isfinite(size) ? half * (1.0 / size) : CVec2<double>(0.0, 1.0);
}

/// Whose y axis is the main direction: most edges are narrow along x.
class MainFrame {
public:
    explicit MainFrame(const CPolygon& polygon)
        : m_origin(plan::firstCorner(polygon)), m_direction(mainDirection(polygon)) {}

    CVec2<double> turned(const CVec2<double>& point) const {
        const CVec2<double> arm = point - m_origin;
        return {cross(arm, m_direction), dot(arm, m_direction)};
    }

private:
    CVec2<double> m_origin;
    CVec2<double> m_direction;
};

Spans spansOf(const CPolygon& polygon, const MainFrame& frame) {
    Spans spans;
    for (const CCoedgeList& loop : polygon.loops())
        for (const Edge2d& edge : loop.edges())
            spans.push_back({boxOf({frame.turned(edge.start), frame.turned(edge.end), edge.bulge}), &edge});
    return spans;
}

/// Lines of one narrow strip overlap, but never cross: of two, the shorter gets no further than twice the
/// strip's width to the other side of the longer, whose direction is the strip's as far as its length tells.
bool liesInNarrowStrip(const CPolygon& polygon, const MainFrame& frame) {
    constexpr double kRounding =
        32.0 * std::numeric_limits<double>::epsilon(); // of each turn and cross product
    CBox2d strip;
    for (const CCoedgeList& loop : polygon.loops())
        for (const Edge2d& edge : loop.edges()) {
            if (edge.bulge != 0.0)
                return false;
            strip.add(frame.turned(edge.start));
            strip.add(frame.turned(edge.end));
            const CVec2<double> size = strip.high - strip.low;
            if (!(size.x + kRounding * (size.x + size.y) < 0.5 * plan::g_touchDistance))
                return false;
        }
    return true;
}

/// Sweeps across the main direction, so that long outlines stay quick. What is not finite crosses nothing.
bool hasNoCrossing(const CPolygon& polygon) {
    if (!isFinite(polygon))
        return true;
    const MainFrame frame(polygon);
    if (liesInNarrowStrip(polygon, frame))
        return true;
    Spans spans = spansOf(polygon, frame);
    std::sort(spans.begin(), spans.end(),
              [](const Span& a, const Span& b) { return a.box.low.x < b.box.low.x; });
    for (auto span = spans.begin(); span != spans.end(); ++span)
        for (auto next = span + 1; next != spans.end() && next->box.low.x <= span->box.high.x; ++next)
            if (spansCross(*span, *next))
                return false;
    return true;
}

struct Check {
    bool (*holds)(const CPolygon& polygon);
    const char* complaint;
};

constexpr Check kChecks[] = {
    {hasLoops, "no loop, or a loop of fewer than two edges"},
    {isFinite, "a coordinate or bulge is not finite"},
    {isClosed, "a loop is not closed"},
    {hasOnlyLongEdges, "an edge has no length"},
    {hasNoCrossing, "two edges cross"},
};

} // namespace

bool CPolygon::IsValid(const std::bitset<16>& checks, std::ostream* log) const {
    if (isConvexQuadrilateral(*this))
        return true;
    for (std::size_t i = 0; i < std::size(kChecks); ++i) {
        if (!checks[i] || kChecks[i].holds(*this))
            continue;
        if (log)
            *log << "outline: " << kChecks[i].complaint << '\n';
        return false;
    }
    return true;
}

bool CPolygon::isStrictlyValid() const {
    constexpr unsigned long kEveryCheck = 0x1f;
    if (!IsValid(kEveryCheck, nullptr))
        return false;
    double area = 0.0;
    double girth = 0.0;
    for (const CCoedgeList& loop : loops()) {
        area += loop.signedArea();
        girth += loop.girth();
    }
    return std::abs(area) > g_DistEpsilon * girth;
}

} // namespace hrx
