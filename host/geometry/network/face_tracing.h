#pragma once

#include "geometry/network/curve_arrangement.h"

#include <vector>

namespace hrx::network {

/// The closed edge sequences that bound the faces of a network, each with its face to the left:
/// counter-clockwise around a bounded face, clockwise around each connected part of the network and so around
/// a hole of the face that the part lies in. Edges with the same face on both sides (dead ends, links between
/// rings) bound nothing and are left out.
std::vector<std::vector<Edge2d>> traceFaces(const PlanNetwork& network);

} // namespace hrx::network
