#pragma once

#include "geometry/CCoedgeList.h"
#include "geometry/CCurve2d.h"

#include <memory>
#include <vector>

namespace hrx {

enum EnLoopsState : int {
    LoopsJoined = 0,         ///< every curve was taken up
    LoopsDegenerateCurve = 1 ///< a curve is null, degenerate or not finite; no loop is given
};

/// Joins curves into the loops that they close in plan, in mm.
///
/// Ends nearer to each other than the joining tolerance are one node. An end nearer than that to another
/// curve divides it, and so does a crossing; a crossing nearer than that to a node belongs to the node.
/// Distances are taken to the nearest 1e-5 mm: a gap exactly as wide as the tolerance stays open. Curves, or
/// parts of them, that run together within the tolerance count once. Arcs keep their bulge when an end moves
/// to its node.
///
/// The lists receive, replacing what they held, the boundary of every face of the network so formed:
/// counter-clockwise around each bounded face, clockwise around each connected part of the network (a hole of
/// the face it lies in, if any). What closes no loop (dead ends, links between rings) appears in none.
EnLoopsState Curve2dlistToCoedgelists(const std::vector<std::unique_ptr<CCurve2d>>& curves,
                                      std::vector<CCoedgeList>& coedgeLists, double joiningTolerance);

} // namespace hrx
