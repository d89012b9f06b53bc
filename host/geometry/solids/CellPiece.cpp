#include "geometry/solids/CellPiece.h"

#include "geometry/plan/edge_distance.h"

namespace hrx::solids {

CellPiece::CellPiece(const CCoord3<double>& frame, double height, const plan::OutlineCell& cell)
    : PrismPiece(frame, height), m_cell(cell) {
    add(cell.left);
    add(cell.right);
}

CVec3<double> CellPiece::onPart(const CVec3<double>& hullPoint) const {
    const CVec3<double> local = frame().toLocal(hullPoint);
    const CVec2<double> inPlan(local.x, local.y);
    const bool leftOfCell = m_cell.left.isArc() && inPlan.x < plan::crossingAt(m_cell.left, inPlan.y).x;
    const bool rightOfCell = m_cell.right.isArc() && inPlan.x > plan::crossingAt(m_cell.right, inPlan.y).x;
    if (!leftOfCell && !rightOfCell)
        return hullPoint;
    plan::PlanContact contact;
    plan::nearestOfPointAndEdge(inPlan, leftOfCell ? m_cell.left : m_cell.right, contact);
    return frame().toWorld({contact.onB.x, contact.onB.y, local.z});
}

void CellPiece::split(ConvexPieces& halves) const {
    if (!m_cell.left.isArc() && !m_cell.right.isArc())
        return;
    const double level = 0.5 * (m_cell.left.start.y + m_cell.left.end.y);
    const auto [leftBelow, leftAbove] = plan::cutAt(m_cell.left, level);
    const auto [rightBelow, rightAbove] = plan::cutAt(m_cell.right, level);
    halves.push_back(
        std::make_unique<CellPiece>(frame(), height(), plan::OutlineCell{leftBelow, rightBelow}));
    halves.push_back(
        std::make_unique<CellPiece>(frame(), height(), plan::OutlineCell{leftAbove, rightAbove}));
}

} // namespace hrx::solids
