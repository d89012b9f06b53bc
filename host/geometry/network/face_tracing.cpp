#include "geometry/network/face_tracing.h"

#include "geometry/plan/half_turn.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace hrx::network {

namespace {

/// Each edge seen in its two directions: side 2 e runs along edge e, side 2 e + 1 against it.
class Sides {
public:
    explicit Sides(const PlanNetwork& network) : m_network(network) {}

    static std::size_t opposite(std::size_t side) { return side ^ 1U; }
    std::size_t count() const { return 2 * m_network.edges.size(); }
    std::size_t origin(std::size_t side) const {
        const NetworkEdge& edge = m_network.edges[side / 2];
        return side % 2 == 0 ? edge.from : edge.to;
    }
    Edge2d edge(std::size_t side) const {
        const Edge2d& edge = m_network.edges[side / 2].edge;
        return side % 2 == 0 ? edge : edge.reversed();
    }

private:
    const PlanNetwork& m_network;
};

/// The direction, in radians, in which the edge's point at a distance from its start is seen from there.
/// The distance is at most that of the edge's end.
double directionAtDistance(const Edge2d& edge, double distance) {
    const CVec2<double> chord = edge.end - edge.start;
    const double chordDirection = std::atan2(chord.y, chord.x);
    if (!edge.isArc())
        return chordDirection;
    const double halfSweep = edge.sweep() / 2.0;
    const double turned = std::asin(std::clamp(distance / length(chord) * std::sin(halfSweep), -1.0, 1.0));
    return std::remainder(chordDirection - halfSweep + turned, 2.0 * plan::kHalfTurn);
}

/// Sorts the sides that leave a node counter-clockwise. Edges may leave a node along one tangent, so they are
/// compared at half the length of the shortest, where they have parted.
void sortAroundNode(const Sides& sides, std::vector<std::size_t>& leaving) {
    double shortest = std::numeric_limits<double>::infinity();
    for (const std::size_t side : leaving) {
        const Edge2d edge = sides.edge(side);
        shortest = std::min(shortest, length(edge.end - edge.start));
    }
    std::vector<std::pair<double, std::size_t>> byDirection;
    for (const std::size_t side : leaving)
        byDirection.emplace_back(directionAtDistance(sides.edge(side), shortest / 2.0), side);
    std::sort(byDirection.begin(), byDirection.end());
    std::transform(byDirection.begin(), byDirection.end(), leaving.begin(),
                   [](const auto& entry) { return entry.second; });
}

/// The sides in use by the node that they leave, counter-clockwise around it.
using LeavingSides = std::vector<std::vector<std::size_t>>;

/// By side: the next one around the face to its left.
std::vector<std::size_t> nextAroundFace(const LeavingSides& leavingSides, std::size_t sideCount) {
    std::vector<std::size_t> next(sideCount);
    for (const std::vector<std::size_t>& leaving : leavingSides) {
        for (std::size_t i = 0; i < leaving.size(); ++i) {
            const std::size_t clockwiseNeighbour = leaving[(i + leaving.size() - 1) % leaving.size()];
            next[Sides::opposite(leaving[i])] = clockwiseNeighbour;
        }
    }
    return next;
}

/// The cycles of sides around the faces.
std::vector<std::vector<std::size_t>> faceCycles(const LeavingSides& leavingSides, std::size_t sideCount) {
    const std::vector<std::size_t> next = nextAroundFace(leavingSides, sideCount);
    std::vector<bool> seen(sideCount, false);
    std::vector<std::vector<std::size_t>> cycles;
    for (const std::vector<std::size_t>& leaving : leavingSides) {
        for (const std::size_t first : leaving) {
            if (seen[first])
                continue;
            cycles.emplace_back();
            for (std::size_t side = first; !seen[side]; side = next[side]) {
                seen[side] = true;
                cycles.back().push_back(side);
            }
        }
    }
    return cycles;
}

void dropSidesOfOneFace(LeavingSides& leavingSides, std::size_t sideCount) {
    std::vector<std::size_t> faceOf(sideCount);
    const auto cycles = faceCycles(leavingSides, sideCount);
    for (std::size_t face = 0; face < cycles.size(); ++face) {
        for (const std::size_t side : cycles[face])
            faceOf[side] = face;
    }
    for (std::vector<std::size_t>& leaving : leavingSides) {
        const auto boundsNothing = [&](std::size_t side) {
            return faceOf[side] == faceOf[Sides::opposite(side)];
        };
        leaving.erase(std::remove_if(leaving.begin(), leaving.end(), boundsNothing), leaving.end());
    }
}

} // namespace

std::vector<std::vector<Edge2d>> traceFaces(const PlanNetwork& network) {
    const Sides sides(network);
    LeavingSides leavingSides(network.nodeCount);
    for (std::size_t side = 0; side < sides.count(); ++side)
        leavingSides[sides.origin(side)].push_back(side);
    for (std::vector<std::size_t>& leaving : leavingSides)
        sortAroundNode(sides, leaving);

    dropSidesOfOneFace(leavingSides, sides.count());
    std::vector<std::vector<Edge2d>> boundaries;
    for (const std::vector<std::size_t>& cycle : faceCycles(leavingSides, sides.count())) {
        boundaries.emplace_back();
        for (const std::size_t side : cycle)
            boundaries.back().push_back(sides.edge(side));
    }
    return boundaries;
}

} // namespace hrx::network
