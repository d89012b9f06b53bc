#include "geometry/network/curve_arrangement.h"

#include "geometry/network/PointGrid.h"
#include "geometry/network/Strand.h"
#include "geometry/network/end_joining.h"
#include "geometry/plan/box_distance.h"
#include "geometry/plan/edge_intersections.h"

#include <boost/geometry/geometries/box.hpp>
#include <boost/geometry/geometries/point_xy.hpp>
#include <boost/geometry/index/rtree.hpp>

#include <algorithm>
#include <limits>
#include <map>
#include <optional>
#include <utility>

namespace hrx::network {

namespace {

/// Moving ends seldom brings up new crossings, and theirs hardly ever do.
constexpr int kMostRounds = 8;

/// Crossings nearer than this (mm) to the common end of two strands are that end, blurred where they touch.
constexpr double kLeastPiece = 1e-2;

using PlanPoint = boost::geometry::model::d2::point_xy<double>;
using IndexedBox = std::pair<boost::geometry::model::box<PlanPoint>, std::size_t>;

boost::geometry::model::box<PlanPoint> boxAround(const CBox2d& box, double margin) {
    return {{box.low.x - margin, box.low.y - margin}, {box.high.x + margin, box.high.y + margin}};
}

/// What a crossing near the common end of both its strands means.
enum class NearNode {
    IsTheNode, ///< that end, drawn carelessly
    MayDivide ///< strands that leave the node and cross again; a node of its own keeps the face beyond whole,
              ///< and the pieces before it run together and count once
};

class Arrangement {
public:
    Arrangement(const std::vector<std::vector<Edge2d>>& curves, const JoiningTolerance& tolerance);

    std::vector<Strand> takeStrands() { return std::move(m_strands); }
    const std::vector<CVec2<double>>& nodes() const { return m_nodes; }

private:
    void joinCurveEnds();
    void attachEndsToCurves();
    std::vector<std::size_t> strandsAttachedBy(std::size_t node) const;
    CVec2<double> nearestPlaceOn(const std::vector<std::size_t>& strands, const CVec2<double>& point) const;
    bool findCrossings(NearNode nearNode);
    void addCrossings(std::size_t first, std::size_t second, NearNode nearNode);
    std::optional<std::size_t> nodeNear(const CVec2<double>& point, const Strand& first, const Strand& second,
                                        NearNode nearNode) const;
    void addCut(std::size_t strand, std::size_t node);
    void divideStrands();
    void dropRepeatedStrands();
    bool runTogether(const Strand& a, const Strand& b) const;

    JoiningTolerance m_tolerance;
    std::vector<Strand> m_strands;
    std::vector<CBox2d> m_boxes;
    std::vector<CVec2<double>> m_nodes;
    PointGrid m_nodeGrid;
    /// By strand: the nodes at which it is to be divided.
    std::vector<std::vector<std::size_t>> m_cuts;
};

Arrangement::Arrangement(const std::vector<std::vector<Edge2d>>& curves, const JoiningTolerance& tolerance)
    : m_tolerance(tolerance), m_nodeGrid(tolerance) {
    for (const std::vector<Edge2d>& edges : curves) {
        m_strands.push_back({0, 0, Strand::Parts(edges.begin(), edges.end())});
        m_boxes.push_back(m_strands.back().box());
    }
    m_cuts.resize(m_strands.size());
    joinCurveEnds();
    attachEndsToCurves();
    findCrossings(NearNode::IsTheNode);
    divideStrands();
    for (int round = 1; round < kMostRounds && findCrossings(NearNode::MayDivide); ++round)
        divideStrands();
}

void Arrangement::joinCurveEnds() {
    std::vector<CurveEnds> ends;
    for (const Strand& strand : m_strands)
        ends.push_back({strand.parts.front().start, strand.parts.back().end, strand.parts.size() == 2});
    JoinedEnds joined = joinEnds(ends, m_tolerance);
    m_nodes = std::move(joined.nodes);
    for (std::size_t i = 0; i < m_strands.size(); ++i) {
        m_strands[i].from = joined.startNode[i];
        m_strands[i].to = joined.endNode[i];
    }
}

std::vector<std::size_t> Arrangement::strandsAttachedBy(std::size_t node) const {
    const CVec2<double>& point = m_nodes[node];
    CBox2d pointBox;
    pointBox.add(point);
    const double squaredReach = m_tolerance.reach() * m_tolerance.reach();
    std::vector<std::size_t> attached;
    for (std::size_t i = 0; i < m_strands.size(); ++i) {
        const Strand& strand = m_strands[i];
        if (plan::squaredDistance(m_boxes[i], pointBox) > squaredReach || strand.from == node ||
            strand.to == node)
            continue;
        const bool atItsEnd =
            m_tolerance.joins(m_nodes[strand.from], point) || m_tolerance.joins(m_nodes[strand.to], point);
        if (!atItsEnd && m_tolerance.joins(strand.pointAt(strand.nearestFraction(point)), point))
            attached.push_back(i);
    }
    return attached;
}

CVec2<double> Arrangement::nearestPlaceOn(const std::vector<std::size_t>& strands,
                                          const CVec2<double>& point) const {
    CVec2<double> nearest = point;
    double least = std::numeric_limits<double>::infinity();
    for (const std::size_t i : strands) {
        const CVec2<double> place = m_strands[i].pointAt(m_strands[i].nearestFraction(point));
        const double distance = length(place - point);
        if (distance < least) {
            least = distance;
            nearest = place;
        }
    }
    return nearest;
}

void Arrangement::attachEndsToCurves() {
    std::vector<std::vector<std::size_t>> attached;
    for (std::size_t node = 0; node < m_nodes.size(); ++node)
        attached.push_back(strandsAttachedBy(node));

    // Two ends that reach a curve from its two sides come to the same place on it: the later one becomes the
    // earlier.
    std::vector<std::size_t> becomes(m_nodes.size());
    PointGrid attachedNodes(m_tolerance);
    for (std::size_t node = 0; node < m_nodes.size(); ++node) {
        becomes[node] = node;
        if (!attached[node].empty()) {
            const CVec2<double> place = nearestPlaceOn(attached[node], m_nodes[node]);
            becomes[node] = attachedNodes.nearestJoinedWith(place).value_or(node);
            if (becomes[node] == node) {
                m_nodes[node] = place;
                attachedNodes.add(node, place);
            }
        }
        if (becomes[node] == node)
            m_nodeGrid.add(node, m_nodes[node]);
    }
    for (Strand& strand : m_strands) {
        strand.from = becomes[strand.from];
        strand.to = becomes[strand.to];
    }
    for (std::size_t node = 0; node < attached.size(); ++node) {
        for (const std::size_t strand : attached[node])
            addCut(strand, becomes[node]);
    }
}

/// False when nothing is to be divided.
bool Arrangement::findCrossings(NearNode nearNode) {
    std::vector<IndexedBox> boxes;
    for (std::size_t i = 0; i < m_strands.size(); ++i)
        boxes.emplace_back(boxAround(m_boxes[i], plan::g_touchDistance), i);
    const boost::geometry::index::rtree<IndexedBox, boost::geometry::index::rstar<16>> tree(boxes);
    for (const auto& [box, first] : boxes) {
        for (auto found = tree.qbegin(boost::geometry::index::intersects(box)); found != tree.qend();
             ++found) {
            if (found->second > first)
                addCrossings(first, found->second, nearNode);
        }
    }
    return std::any_of(m_cuts.begin(), m_cuts.end(), [](const auto& cuts) { return !cuts.empty(); });
}

void Arrangement::addCrossings(std::size_t first, std::size_t second, NearNode nearNode) {
    for (const Edge2d& part : m_strands[first].parts) {
        for (const Edge2d& other : m_strands[second].parts) {
            for (const plan::EdgeIntersection& crossing : plan::edgeIntersections(part, other)) {
                auto node = nodeNear(crossing.point, m_strands[first], m_strands[second], nearNode);
                if (!node) {
                    node = m_nodes.size();
                    m_nodes.push_back(crossing.point);
                    m_nodeGrid.add(*node, crossing.point);
                }
                addCut(first, *node);
                addCut(second, *node);
            }
        }
    }
}

/// The node to which a crossing belongs, if any.
std::optional<std::size_t> Arrangement::nodeNear(const CVec2<double>& point, const Strand& first,
                                                 const Strand& second, NearNode nearNode) const {
    const auto nearest = m_nodeGrid.nearestJoinedWith(point);
    const auto isCommonEnd = [&](std::size_t node) {
        return (first.from == node || first.to == node) && (second.from == node || second.to == node);
    };
    if (!nearest || nearNode == NearNode::IsTheNode || !isCommonEnd(*nearest) ||
        length(m_nodes[*nearest] - point) <= kLeastPiece)
        return nearest;
    for (const std::size_t node : m_nodeGrid.joinedWith(point)) {
        if (!isCommonEnd(node))
            return node;
    }
    return std::nullopt;
}

void Arrangement::addCut(std::size_t strand, std::size_t node) {
    std::vector<std::size_t>& cuts = m_cuts[strand];
    const bool isEnd = m_strands[strand].from == node || m_strands[strand].to == node;
    if (!isEnd && std::find(cuts.begin(), cuts.end(), node) == cuts.end())
        cuts.push_back(node);
}

void Arrangement::divideStrands() {
    std::vector<Strand> pieces;
    for (std::size_t i = 0; i < m_strands.size(); ++i) {
        const Strand& strand = m_strands[i];
        std::vector<std::pair<double, std::size_t>> stops;
        for (const std::size_t node : m_cuts[i])
            stops.emplace_back(strand.nearestFraction(m_nodes[node]), node);
        std::sort(stops.begin(), stops.end());
        stops.emplace_back(1.0, strand.to);

        double fraction = 0.0;
        std::size_t node = strand.from;
        for (const auto& [nextFraction, nextNode] : stops) {
            Strand piece = strand.piece(fraction, nextFraction, m_nodes[node], m_nodes[nextNode]);
            piece.from = std::exchange(node, nextNode);
            piece.to = nextNode;
            fraction = nextFraction;
            const bool shrunk = piece.from == piece.to && piece.parts.size() == 1;
            if (!shrunk)
                pieces.push_back(piece);
        }
    }
    m_strands = std::move(pieces);
    dropRepeatedStrands();
    m_cuts.assign(m_strands.size(), {});
    m_boxes.clear();
    for (const Strand& strand : m_strands)
        m_boxes.push_back(strand.box());
}

void Arrangement::dropRepeatedStrands() {
    std::map<std::pair<std::size_t, std::size_t>, std::vector<const Strand*>> kept;
    std::vector<Strand> result;
    for (const Strand& strand : m_strands) {
        auto& alike = kept[std::minmax(strand.from, strand.to)];
        const bool repeated = std::any_of(alike.begin(), alike.end(),
                                          [&](const Strand* other) { return runTogether(strand, *other); });
        if (repeated)
            continue;
        alike.push_back(&strand);
        result.push_back(strand);
    }
    m_strands = std::move(result);
}

/// For strands between the same nodes.
bool Arrangement::runTogether(const Strand& a, const Strand& b) const {
    const auto isStraight = [](const Strand& strand) {
        return strand.parts.size() == 1 && !strand.parts[0].isArc();
    };
    if (isStraight(a) && isStraight(b))
        return true;
    return m_tolerance.joins(a.pointAt(0.5), b.pointAt(0.5));
}

std::vector<std::vector<Edge2d>> movedBy(std::vector<std::vector<Edge2d>> curves,
                                         const CVec2<double>& offset) {
    for (std::vector<Edge2d>& edges : curves) {
        for (Edge2d& edge : edges) {
            edge.start = edge.start + offset;
            edge.end = edge.end + offset;
        }
    }
    return curves;
}

} // namespace

PlanNetwork arrangeCurves(const std::vector<std::vector<Edge2d>>& curves, const JoiningTolerance& tolerance) {
    if (curves.empty())
        return {};
    // Near the origin a drawing that lies far away keeps its precision.
    const CVec2<double> origin = curves.front().front().start;
    Arrangement arrangement(movedBy(curves, origin * -1.0), tolerance);

    PlanNetwork network;
    network.nodeCount = arrangement.nodes().size();
    for (const Strand& strand : arrangement.takeStrands()) {
        std::size_t from = strand.from;
        for (const Edge2d& part : strand.parts) {
            const bool last = &part == &strand.parts.back();
            const std::size_t to = last ? strand.to : network.nodeCount++;
            network.edges.push_back({from, to, {part.start + origin, part.end + origin, part.bulge}});
            from = to;
        }
    }
    return network;
}

} // namespace hrx::network
