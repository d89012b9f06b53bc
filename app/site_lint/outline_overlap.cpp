#include "site_lint/outline_overlap.h"

#include <algorithm>
#include <cmath>

namespace firecheck {

namespace {

using Point = hrx::CVec2<double>;

void appendChords(const hrx::Edge2d& edge, int halvings, std::vector<Point>& corners) {
    if (halvings == 0 || !edge.isArc()) {
        corners.push_back(edge.start);
        return;
    }
    const auto [first, second] = edge.halves();
    appendChords(first, halvings - 1, corners);
    appendChords(second, halvings - 1, corners);
}

double signedDistance(const Point& start, const Point& end, const Point& point) {
    const double length = std::hypot(end.x - start.x, end.y - start.y);
    const double turn = (end.x - start.x) * (point.y - start.y) - (end.y - start.y) * (point.x - start.x);
    return length > 0.0 ? turn / length : 0.0;
}

/// Whether two edges cross, each end beyond the tolerance on its own side of the other.
bool crossDeeply(const Point& a, const Point& b, const Point& c, const Point& d, double tolerance) {
    const auto apart = [tolerance](double first, double second) {
        return std::min(std::abs(first), std::abs(second)) > tolerance && (first < 0.0) != (second < 0.0);
    };
    return apart(signedDistance(c, d, a), signedDistance(c, d, b)) &&
           apart(signedDistance(a, b, c), signedDistance(a, b, d));
}

double distanceTo(const Point& start, const Point& end, const Point& point) {
    const double dx = end.x - start.x;
    const double dy = end.y - start.y;
    const double square = dx * dx + dy * dy;
    double share = square > 0.0 ? ((point.x - start.x) * dx + (point.y - start.y) * dy) / square : 0.0;
    share = std::clamp(share, 0.0, 1.0);
    return std::hypot(start.x + dx * share - point.x, start.y + dy * share - point.y);
}

bool isDeepInside(const Point& point, const PlanOutline& outline, double tolerance) {
    bool isInside = false;
    const auto& corners = outline.corners;
    for (std::size_t i = 0, j = corners.size() - 1; i < corners.size(); j = i++) {
        const Point& a = corners[i];
        const Point& b = corners[j];
        if (distanceTo(a, b, point) <= tolerance)
            return false;
        if ((a.y > point.y) != (b.y > point.y) && point.x < (b.x - a.x) * (point.y - a.y) / (b.y - a.y) + a.x)
            isInside = !isInside;
    }
    return isInside;
}

/// Corners and the middles of edges, so that elements drawn twice at one place are found by their middle.
std::vector<Point> probesOf(const PlanOutline& outline, double tolerance) {
    std::vector<Point> probes = outline.corners;
    Point middle{0.0, 0.0};
    for (std::size_t i = 0; i < outline.corners.size(); ++i) {
        const Point& a = outline.corners[i];
        const Point& b = outline.corners[(i + 1) % outline.corners.size()];
        probes.push_back({(a.x + b.x) * 0.5, (a.y + b.y) * 0.5});
        middle = {middle.x + a.x / double(outline.corners.size()),
                  middle.y + a.y / double(outline.corners.size())};
    }
    if (isDeepInside(middle, outline, tolerance))
        probes.push_back(middle);
    return probes;
}

bool haveCommonGround(const hrx::CBox2d& a, const hrx::CBox2d& b) {
    return a.low.x <= b.high.x && b.low.x <= a.high.x && a.low.y <= b.high.y && b.low.y <= a.high.y;
}

} // namespace

PlanOutline planOutlineOf(const PlanPath& path) {
    constexpr int halvings = 3;
    PlanOutline outline;
    for (const hrx::Edge2d& edge : path.edges) {
        appendChords(edge, halvings, outline.corners);
        outline.box.add(edge.box());
    }
    if (!path.isClosed && !path.edges.empty())
        outline.corners.push_back(path.edges.back().end);
    return outline;
}

bool standInEachOther(const PlanOutline& a, const PlanOutline& b, double tolerance) {
    if (!haveCommonGround(a.box, b.box))
        return false;
    for (const auto& [inner, outer] : {std::pair(&a, &b), std::pair(&b, &a)})
        for (const Point& probe : probesOf(*inner, tolerance))
            if (isDeepInside(probe, *outer, tolerance))
                return true;
    for (std::size_t i = 0; i < a.corners.size(); ++i)
        for (std::size_t j = 0; j < b.corners.size(); ++j)
            if (crossDeeply(a.corners[i], a.corners[(i + 1) % a.corners.size()], b.corners[j],
                            b.corners[(j + 1) % b.corners.size()], tolerance))
                return true;
    return false;
}

} // namespace firecheck
