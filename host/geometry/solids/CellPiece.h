#pragma once

#include "geometry/plan/outline_cells.h"
#include "geometry/solids/PrismPiece.h"

namespace hrx::solids {

/// The prism over one cell of an outline. It fills its hull but for arcs that bulge into the cell.
class CellPiece : public PrismPiece {
public:
    CellPiece(const CCoord3<double>& frame, double height, const plan::OutlineCell& cell);
    CVec3<double> onPart(const CVec3<double>& hullPoint) const override;
    void split(ConvexPieces& halves) const override;

private:
    plan::OutlineCell m_cell;
};

} // namespace hrx::solids
