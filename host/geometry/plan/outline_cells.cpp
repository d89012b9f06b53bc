#include "geometry/plan/outline_cells.h"

#include "geometry/plan/arc_frame.h"
#include "geometry/plan/edge_fractions.h"
#include "geometry/plan/half_turn.h"

#include <algorithm>
#include <cmath>

namespace hrx::plan {

namespace {

using Edges = std::vector<Edge2d>;

void addRising(const Edge2d& edge, Edges& rising) {
    rising.push_back(edge.start.y <= edge.end.y ? edge : edge.reversed());
}

/// An arc of at most a half turn, divided where it runs along x.
void addMonotone(const Edge2d& arc, Edges& rising) {
    const CVec2<double> direction = arc.startDirection();
    const double startAngle = std::atan2(direction.y, direction.x);
    const double sweep = arc.sweep();
    Edge2d rest = arc;
    double done = 0.0;
    for (int step = 1; step <= 2; ++step) {
        // The next multiple of a half turn in the direction of the sweep.
        const double angle = sweep > 0.0 ? (std::floor(startAngle / kHalfTurn) + step) * kHalfTurn
                                         : (std::ceil(startAngle / kHalfTurn) - step) * kHalfTurn;
        const double fraction = (angle - startAngle) / sweep;
        if (!(fraction > 0.0 && fraction < 1.0))
            break;
        const CVec2<double> turning = pointAt(arc, fraction);
        addRising({rest.start, turning, std::tan(0.25 * sweep * (fraction - done))}, rising);
        rest = {turning, arc.end, std::tan(0.25 * sweep * (1.0 - fraction))};
        done = fraction;
    }
    addRising(rest, rising);
}

/// All edges, moved and divided so that each rises from its start to its end.
Edges risingEdges(const CPolygon& region, const CVec2<double>& offset) {
    Edges rising;
    for (const CCoedgeList& loop : region.loops())
        for (const Edge2d& edge : loop.edges()) {
            const Edge2d moved{edge.start - offset, edge.end - offset, edge.bulge};
            if (!moved.isArc()) {
                addRising({moved.start, moved.end, 0.0}, rising);
            } else if (std::abs(moved.bulge) > 1.0) {
                const auto [first, second] = moved.halves();
                addMonotone(first, rising);
                addMonotone(second, rising);
            } else {
                addMonotone(moved, rising);
            }
        }
    return rising;
}

std::vector<double> levelsOf(const Edges& edges) {
    std::vector<double> levels;
    for (const Edge2d& edge : edges) {
        levels.push_back(edge.start.y);
        levels.push_back(edge.end.y);
    }
    std::sort(levels.begin(), levels.end());
    levels.erase(std::unique(levels.begin(), levels.end()), levels.end());
    return levels;
}

Edge2d cutBetween(const Edge2d& rising, double low, double high) {
    return cutAt(cutAt(rising, low).second, high).first;
}

} // namespace

CVec2<double> crossingAt(const Edge2d& rising, double level) {
    if (level <= rising.start.y)
        return rising.start;
    if (level >= rising.end.y)
        return rising.end;
    const CVec2<double> chord = rising.end - rising.start;
    const double fraction = (level - rising.start.y) / chord.y;
    const CVec2<double> onChord(rising.start.x + chord.x * fraction, level);
    if (!rising.isArc())
        return onChord;
    // From the chord, which is inside the circle, along x: one root lies each way.
    const ArcFrame frame(rising);
    const CVec2<double> local = frame.toLocal(onChord);
    const CVec2<double> direction = frame.directionToLocal({1.0, 0.0});
    const double half = frame.curvature * dot(local, direction) - direction.y;
    const double value = std::min(0.0, frame.equation(local));
    const double root = std::sqrt(half * half - frame.curvature * value);
    const double forward = half > 0.0 ? -value / (half + root) : (root - half) / frame.curvature;
    const double backward = half > 0.0 ? -(half + root) / frame.curvature : -value / (half - root);
    const bool arcIsForward = rising.bulge > 0.0;
    const double shift = arcIsForward ? forward : backward;
    return {onChord.x + (std::isfinite(shift) ? shift : 0.0), level};
}

std::pair<Edge2d, Edge2d> cutAt(const Edge2d& rising, double level) {
    const CVec2<double> cut = crossingAt(rising, level);
    const auto part = [&](const CVec2<double>& from, const CVec2<double>& to) {
        if (!rising.isArc())
            return Edge2d{from, to, 0.0};
        const double sine = std::min(1.0, length(to - from) / (2.0 * rising.radius()));
        return Edge2d{from, to, std::copysign(sine / (1.0 + std::sqrt(1.0 - sine * sine)), rising.bulge)};
    };
    return {part(rising.start, cut), part(cut, rising.end)};
}

std::vector<OutlineCell> cellsOf(const CPolygon& region, const CVec2<double>& offset) {
    const Edges edges = risingEdges(region, offset);
    const std::vector<double> levels = levelsOf(edges);
    std::vector<OutlineCell> cells;
    for (const Edge2d& edge : edges)
        if (edge.start.y == edge.end.y)
            cells.push_back({edge, edge});
    for (std::size_t i = 1; i < levels.size(); ++i) {
        const double low = levels[i - 1];
        const double high = levels[i];
        std::vector<std::pair<double, Edge2d>> across;
        for (const Edge2d& edge : edges)
            if (edge.start.y <= low && edge.end.y >= high)
                across.emplace_back(crossingAt(edge, 0.5 * (low + high)).x, cutBetween(edge, low, high));
        std::sort(across.begin(), across.end(),
                  [](const auto& first, const auto& second) { return first.first < second.first; });
        for (std::size_t k = 0; k < across.size(); k += 2)
            cells.push_back({across[k].second, across[std::min(k + 1, across.size() - 1)].second});
    }
    return cells;
}

} // namespace hrx::plan
