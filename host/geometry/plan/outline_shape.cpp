#include "geometry/plan/outline_shape.h"

#include "geometry/DistEpsilon.h"
#include "geometry/finite.h"
#include "geometry/plan/half_turn.h"

#include <cmath>

namespace hrx::plan {

namespace {

/// Angle from one unit direction to another, (-pi, pi]; a turn right round counts as positive.
double turn(const CVec2<double>& from, const CVec2<double>& to) {
    const double sine = cross(from, to);
    const double cosine = dot(from, to);
    return std::abs(sine) < 1e-12 && cosine < 0.0 ? kHalfTurn : std::atan2(sine, cosine);
}

/// True when every turn of the loop and of its arcs goes one way, and they make one full turn in all.
bool turnsOnce(const CCoedgeList& loop, double sense) {
    double sum = 0.0;
    CVec2<double> before;
    for (auto edge = loop.edges().rbegin(); edge != loop.edges().rend() && before == CVec2<double>(); ++edge)
        before = edge->endDirection();
    for (const Edge2d& edge : loop.edges()) {
        const CVec2<double> direction = edge.startDirection();
        if (direction == CVec2<double>())
            continue;
        const double corner = turn(before, direction);
        // Collinear corners may turn either way by rounding; half turns belong to flat outlines, either way
        // round.
        const double signedCorner = corner == kHalfTurn ? corner : sense * corner;
        if (signedCorner < -1e-12 || (edge.isArc() && sense * edge.bulge < 0.0))
            return false;
        sum += signedCorner + std::abs(edge.sweep());
        before = edge.endDirection();
    }
    return sum < 3.0 * kHalfTurn;
}

/// True when a glance will do: up to four straight edges that turn one way at every corner cannot go round
/// twice.
bool isPlainlyConvex(const CCoedgeList::Edges& edges) {
    if (edges.size() < 3 || edges.size() > 4)
        return false;
    int left = 0;
    int right = 0;
    CVec2<double> before = edges.back().end - edges.back().start;
    for (const Edge2d& edge : edges) {
        const CVec2<double> along = edge.end - edge.start;
        const double turning = edge.bulge == 0.0 ? cross(before, along) : 0.0;
        left += turning > 0.0 ? 1 : 0;
        right += turning < 0.0 ? 1 : 0;
        before = along;
    }
    const int corners = static_cast<int>(edges.size());
    return left == corners || right == corners;
}

} // namespace

bool isWithinReach(const CPolygon& outline) {
    std::size_t edges = 0;
    for (const CCoedgeList& loop : outline.loops())
        for (const Edge2d& edge : loop.edges()) {
            ++edges;
            if (!isWithinReach(edge.start) || !isWithinReach(edge.end) || !std::isfinite(edge.bulge))
                return false;
            if (edge.isArc()) {
                const CBox2d box = edge.looseBox();
                if (!isWithinReach(box.low) || !isWithinReach(box.high))
                    return false;
            }
        }
    return edges > 0;
}

bool isConvex(const CPolygon& outline) {
    if (outline.LoopCount() != 1)
        return false;
    const CCoedgeList& loop = *outline.GetLoop(0);
    return isPlainlyConvex(loop.edges()) || turnsOnce(loop, 1.0) || turnsOnce(loop, -1.0);
}

CVec2<double> firstCorner(const CPolygon& outline) {
    for (const CCoedgeList& loop : outline.loops())
        if (!loop.edges().empty())
            return loop.edges().front().start;
    return {};
}

CPolygon* movedToPlan(const CPolygon& outline, const CCoord3<double>& frame) {
    const auto moved = [&](const CVec2<double>& point) {
        const CVec3<double> world = frame.toWorld({point.x, point.y, 0.0});
        return CVec2<double>(world.x, world.y);
    };
    const bool mirrored = frame.xAxis.x * frame.yAxis.y < frame.xAxis.y * frame.yAxis.x;
    auto* plan = new CPolygon;
    for (const CCoedgeList& loop : outline.loops()) {
        std::vector<Edge2d> edges;
        for (const Edge2d& edge : loop.edges())
            edges.push_back({moved(edge.start), moved(edge.end), mirrored ? -edge.bulge : edge.bulge});
        plan->addLoop(CCoedgeList(edges));
    }
    return plan;
}

} // namespace hrx::plan
