#include "geometry/CPolygon.h"
#include "geometry/edge_crossing.h"
#include "geometry/finite.h"

#include <cmath>
#include <iterator>
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

bool hasNoCrossing(const CPolygon& polygon) {
    boost::container::small_vector<const Edge2d*, 16> seen;
    for (const CCoedgeList& loop : polygon.loops())
        for (const Edge2d& edge : loop.edges()) {
            for (const Edge2d* other : seen)
                if (edgesCross(edge, *other))
                    return false;
            seen.push_back(&edge);
        }
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
    for (std::size_t i = 0; i < std::size(kChecks); ++i) {
        if (!checks[i] || kChecks[i].holds(*this))
            continue;
        if (log)
            *log << "outline: " << kChecks[i].complaint << '\n';
        return false;
    }
    return true;
}

} // namespace hrx
