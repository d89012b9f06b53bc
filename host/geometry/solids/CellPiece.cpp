#include "geometry/solids/CellPiece.h"

#include "geometry/plan/edge_distance.h"

namespace hrx {

CellPiece::CellPiece(const CCoord3<double>& frame, double height, const OutlineCell& cell)
    : PrismPiece(frame, height), m_cell(cell) {
    add(cell.left);
    add(cell.right);
}

CVec3<double> CellPiece::onPart(const CVec3<double>& hullPoint) const {
    const CVec3<double> local = frame().toLocal(hullPoint);
    const CVec2<double> plan(local.x, local.y);
    const bool leftOfCell = m_cell.left.isArc() && plan.x < crossingAt(m_cell.left, plan.y).x;
    const bool rightOfCell = m_cell.right.isArc() && plan.x > crossingAt(m_cell.right, plan.y).x;
    if (!leftOfCell && !rightOfCell)
        return hullPoint;
    PlanContact contact;
    nearestOfPointAndEdge(plan, leftOfCell ? m_cell.left : m_cell.right, contact);
    return frame().toWorld({contact.onB.x, contact.onB.y, local.z});
}

void CellPiece::split(ConvexPieces& halves) const {
    if (!m_cell.left.isArc() && !m_cell.right.isArc())
        return;
    const double level = 0.5 * (m_cell.left.start.y + m_cell.left.end.y);
    const auto [leftBelow, leftAbove] = cutAt(m_cell.left, level);
    const auto [rightBelow, rightAbove] = cutAt(m_cell.right, level);
    halves.push_back(std::make_unique<CellPiece>(frame(), height(), OutlineCell{leftBelow, rightBelow}));
    halves.push_back(std::make_unique<CellPiece>(frame(), height(), OutlineCell{leftAbove, rightAbove}));
}

} // namespace hrx
