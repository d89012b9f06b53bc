#include "geometry/network/end_joining.h"

#include "geometry/network/PointGrid.h"

#include <algorithm>
#include <cmath>
#include <tuple>

namespace hrx::network {

namespace {

/// Groups of ends. End 2 i is the start of curve i, end 2 i + 1 its end.
class EndGroups {
public:
    explicit EndGroups(const std::vector<CurveEnds>& curves) : m_curves(curves) {
        for (std::size_t end = 0; end < 2 * curves.size(); ++end) {
            m_groupOf.push_back(end);
            m_members.push_back({end});
        }
    }

    const CVec2<double>& point(std::size_t end) const {
        return end % 2 == 0 ? m_curves[end / 2].start : m_curves[end / 2].end;
    }
    std::size_t groupOf(std::size_t end) const { return m_groupOf[end]; }
    const std::vector<std::size_t>& members(std::size_t group) const { return m_members[group]; }

    void join(std::size_t a, std::size_t b) {
        std::size_t into = m_groupOf[a];
        std::size_t from = m_groupOf[b];
        if (m_members[into].size() < m_members[from].size())
            std::swap(into, from);
        if (into == from || shrinksCurve(from, into))
            return;
        for (const std::size_t end : m_members[from]) {
            m_groupOf[end] = into;
            m_members[into].push_back(end);
        }
        m_members[from].clear();
    }

private:
    bool shrinksCurve(std::size_t from, std::size_t into) const {
        return std::any_of(m_members[from].begin(), m_members[from].end(), [&](std::size_t end) {
            const std::size_t otherEnd = end ^ 1U;
            return m_groupOf[otherEnd] == into && !m_curves[end / 2].mayClose;
        });
    }

    const std::vector<CurveEnds>& m_curves;
    std::vector<std::size_t> m_groupOf;
    std::vector<std::vector<std::size_t>> m_members;
};

/// Joins every pair within the tolerance, nearest first; equal distances in the order of the curves.
void joinNearPairs(EndGroups& groups, std::size_t endCount, const JoiningTolerance& tolerance) {
    std::vector<std::tuple<double, std::size_t, std::size_t>> pairs;
    PointGrid grid(tolerance);
    for (std::size_t end = 0; end < endCount; ++end) {
        for (const std::size_t other : grid.joinedWith(groups.point(end))) {
            const double distance = length(groups.point(end) - groups.point(other));
            pairs.emplace_back(distance, other, end);
        }
        grid.add(end, groups.point(end));
    }
    std::sort(pairs.begin(), pairs.end());
    for (const auto& [distance, a, b] : pairs)
        groups.join(a, b);
}

CVec2<double> meanOf(const EndGroups& groups, const std::vector<std::size_t>& members) {
    const CVec2<double> first = groups.point(members.front());
    CVec2<double> offsets;
    for (const std::size_t end : members)
        offsets = offsets + (groups.point(end) - first);
    return first + offsets * (1.0 / static_cast<double>(members.size()));
}

} // namespace

JoinedEnds joinEnds(const std::vector<CurveEnds>& curves, const JoiningTolerance& tolerance) {
    const std::size_t endCount = 2 * curves.size();
    EndGroups groups(curves);
    joinNearPairs(groups, endCount, tolerance);

    JoinedEnds joined;
    std::vector<std::size_t> nodeOfGroup(endCount);
    for (std::size_t group = 0; group < endCount; ++group) {
        if (groups.members(group).empty())
            continue;
        nodeOfGroup[group] = joined.nodes.size();
        joined.nodes.push_back(meanOf(groups, groups.members(group)));
    }
    for (std::size_t end = 0; end < endCount; end += 2) {
        joined.startNode.push_back(nodeOfGroup[groups.groupOf(end)]);
        joined.endNode.push_back(nodeOfGroup[groups.groupOf(end + 1)]);
    }
    return joined;
}

} // namespace hrx::network
