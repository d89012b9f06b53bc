#pragma once

#include "geometry/Edge2d.h"
#include "geometry/network/JoiningTolerance.h"

#include <cstddef>
#include <vector>

namespace hrx::network {

/// An edge of a plan network, with the nodes at its ends.
struct NetworkEdge {
    std::size_t from;
    std::size_t to;
    Edge2d edge;
};

/// Edges that meet at nodes only.
struct PlanNetwork {
    std::size_t nodeCount = 0;
    std::vector<NetworkEdge> edges;
};

/// Divides curves at the nodes of their network. Each curve is given in one edge, or in two of equal sweep.
///
/// - Ends that lie nearer to each other than the tolerance become one node.
/// - An end that lies nearer to another curve than the tolerance divides it, and moves onto it.
/// - Crossings and touching places divide both curves; one nearer to a node than the tolerance belongs to
/// that node.
/// - Pieces between the same nodes that stay within the tolerance of each other are one edge.
///
/// An arc whose end moves keeps its bulge. Crossings that come up by moving ends are divided in their turn.
/// For n curves that meet in k places the time grows with n * n + k.
PlanNetwork arrangeCurves(const std::vector<std::vector<Edge2d>>& curves, const JoiningTolerance& tolerance);

} // namespace hrx::network
