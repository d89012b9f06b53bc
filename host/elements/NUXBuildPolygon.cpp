#include "elements/NUXBuildPolygon.h"

#include "geometry/CArc2d.h"
#include "geometry/CPolygon.h"
#include "geometry/DistEpsilon.h"
#include "geometry/finite.h"

#include <cmath>
#include <vector>

namespace {

using hrx::CVec2;
using hrx::Edge2d;

bool isRoad(const hrx::CPolygon* polygon, const CVec2<double>& start, const CVec2<double>& end,
            double width) {
    return polygon && hrx::isFinite(start) && hrx::isFinite(end) && std::isfinite(width) &&
           width > hrx::g_DistEpsilon;
}

/// The arc moved to its left; at most to its centre, where it is a point.
Edge2d offset(const Edge2d& arc, double toLeft) {
    const bool towardsCentre = (arc.bulge > 0.0) == (toLeft > 0.0);
    if (towardsCentre && std::abs(toLeft) >= arc.radius())
        return {arc.centre(), arc.centre(), 0.0};
    return {arc.start + hrx::leftNormal(arc.startDirection()) * toLeft,
            arc.end + hrx::leftNormal(arc.endDirection()) * toLeft, arc.bulge};
}

/// The loop of the edges that have length, each starting exactly where the one before ends.
hrx::CCoedgeList joined(const std::vector<Edge2d>& edges) {
    std::vector<Edge2d> kept;
    for (const Edge2d& edge : edges)
        if (length(edge.end - edge.start) > hrx::g_DistEpsilon)
            kept.push_back(edge);
    for (std::size_t i = 0; i < kept.size(); ++i)
        kept[i].start = kept[i > 0 ? i - 1 : kept.size() - 1].end;
    return hrx::CCoedgeList(kept);
}

} // namespace

void NUXBuildPolygon::buildLinePolgonAsTwoPt(hrx::CPolygon*& polygon, const CVec2<double>& start,
                                             const CVec2<double>& end, double width) {
    const double size = length(end - start);
    if (!isRoad(polygon, start, end, width) || !(size > hrx::g_DistEpsilon))
        return;
    const CVec2<double> left = hrx::leftNormal((end - start) * (0.5 * width / size));
    polygon->addLoop(hrx::CCoedgeList(std::vector{start - left, end - left, end + left, start + left}));
}

void NUXBuildPolygon::buildArcPolygon(hrx::CPolygon*& polygon, const CVec2<double>& start,
                                      const CVec2<double>& end, const CVec2<double>& through, double width,
                                      double) {
    const std::vector<Edge2d> centreLine = hrx::CArc2d(start, end, through).edges();
    if (!isRoad(polygon, start, end, width) || centreLine.empty())
        return;
    // Forward along the right side and back along the left: counter-clockwise whichever way the arc turns.
    std::vector<Edge2d> outline;
    for (const Edge2d& arc : centreLine)
        outline.push_back(offset(arc, -0.5 * width));
    const CVec2<double> firstOnRight = outline.front().start;
    outline.push_back({outline.back().end, offset(centreLine.back(), 0.5 * width).end, 0.0});
    for (auto arc = centreLine.rbegin(); arc != centreLine.rend(); ++arc)
        outline.push_back(offset(*arc, 0.5 * width).reversed());
    outline.push_back({outline.back().end, firstOnRight, 0.0});
    polygon->addLoop(joined(outline));
}
