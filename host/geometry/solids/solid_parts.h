#pragma once

#include "geometry/CBody.h"
#include "geometry/solids/ConvexPiece.h"
#include "geometry/solids/upright_distance.h"

namespace hrx::solids {

// How solids are taken apart to be measured. Both need a measurable one.

/// Describes the solid as one that stands straight up, if it is one. What it borrows lives as long as the
/// body.
bool describeUpright(const CBody& body, UprightSolid& solid);

/// A point of the solid, or not far from it against its size.
CVec3<double> anyPoint(const CBody& body);

/// Appends pieces that make up the solid, moved by -origin.
void appendPieces(const CBody& body, const CVec3<double>& origin, ConvexPieces& pieces);

} // namespace hrx::solids
