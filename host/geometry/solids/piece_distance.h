#pragma once

#include "geometry/solids/ConvexPiece.h"
#include "geometry/solids/SolidContact.h"

namespace hrx::solids {

/// Least distance between any of the parts that the pieces of A stand for and any of B's, within 1e-6 mm.
/// Pieces that leave their hulls are divided, nearest first, until the bounds meet. Takes the pieces over and
/// adds to them.
SolidContact pieceContact(ConvexPieces a, ConvexPieces b);

} // namespace hrx::solids
