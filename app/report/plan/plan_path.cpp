#include "report/plan/plan_path.h"

#include <cmath>

namespace firecheck {

namespace {

/// With y downwards a counter-clockwise arc sweeps the other way.
QString edgeCommand(const hrx::Edge2d& edge, const PlanFrame& frame) {
    const QString end = drawnPair(frame.drawn(edge.end));
    if (!edge.isArc())
        return "L" + end;
    const QString radius = drawnNumber(edge.radius() * kMetresPerMillimetre);
    const char* largeArc = std::abs(edge.bulge) > 1.0 ? " 1 " : " 0 ";
    return "A" + radius + " " + radius + " 0" + largeArc + (edge.bulge > 0.0 ? "0 " : "1 ") + end;
}

} // namespace

QString drawnPair(const DrawnPoint& point) {
    return drawnNumber(point.x) + " " + drawnNumber(point.y);
}

QString pathData(const PlanShape& shape, const PlanFrame& frame) {
    QString data;
    for (const PlanPath& path : shape.paths) {
        data += "M" + drawnPair(frame.drawn(path.edges.front().start));
        for (const hrx::Edge2d& edge : path.edges)
            data += edgeCommand(edge, frame);
        data += path.isClosed ? "Z" : "";
    }
    return data;
}

} // namespace firecheck
