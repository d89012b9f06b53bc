#include "geometry/CLoopTreeNode.h"

#include "geometry/plan/box_distance.h"
#include "geometry/plan/plan_distance.h"

#include <algorithm>

namespace hrx {

CLoopTreeNode::CLoopTreeNode(const CCoedgeList& outline)
    : m_polygon(new CPolygon(std::vector<CCoedgeList>{outline})), m_area(outline.signedArea()) {
    for (const Edge2d& edge : outline.edges())
        m_box.add(edge.box());
}

bool CLoopTreeNode::holds(const CCoedgeList& loop) const {
    const CVec2<double>& corner = loop.edges().front().start;
    CBox2d cornerBox;
    cornerBox.add(corner);
    if (plan::squaredDistance(m_box, cornerBox) > 0.0)
        return false;
    const CCoedgeList::Edges& edges = m_polygon->GetLoop(0)->edges();
    const bool sharesCorner =
        std::any_of(edges.begin(), edges.end(), [&](const Edge2d& edge) { return edge.start == corner; });
    return !sharesCorner && plan::contains(*m_polygon, corner);
}

bool CLoopTreeNode::GenPolygonListByCoedgeList(const std::vector<CCoedgeList>& coedgeLists,
                                               std::vector<CPolygon*>& polygons) {
    std::vector<CLoopTreeNode> faces;
    for (const CCoedgeList& list : coedgeLists) {
        if (list.ClockSign() > 0)
            faces.push_back(CLoopTreeNode(list));
    }
    std::vector<CLoopTreeNode*> smallestFirst;
    for (CLoopTreeNode& face : faces)
        smallestFirst.push_back(&face);
    std::stable_sort(smallestFirst.begin(), smallestFirst.end(),
                     [](const CLoopTreeNode* a, const CLoopTreeNode* b) { return a->m_area < b->m_area; });
    for (const CCoedgeList& list : coedgeLists) {
        if (list.ClockSign() >= 0)
            continue;
        const auto holder = std::find_if(smallestFirst.begin(), smallestFirst.end(),
                                         [&](const CLoopTreeNode* face) { return face->holds(list); });
        if (holder != smallestFirst.end())
            (*holder)->m_holes.push_back(&list);
    }
    for (const CLoopTreeNode& face : faces) {
        for (const CCoedgeList* hole : face.m_holes)
            face.m_polygon->addLoop(*hole);
        polygons.push_back(face.m_polygon);
    }
    return !faces.empty();
}

} // namespace hrx
