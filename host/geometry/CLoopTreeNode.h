#pragma once

#include "geometry/CBox2d.h"
#include "geometry/CPolygon.h"

#include <vector>

namespace hrx {

/// A face in the tree of loops: its outline, and the loops that lie directly inside it as holes.
class CLoopTreeNode {
public:
    /// Makes one polygon of each counter-clockwise list, with the clockwise lists directly inside it as its
    /// holes, and appends it to the polygons; the caller frees each with `Free()`. Clockwise lists that no
    /// outline holds bound the outside, and lists without area bound nothing: both make no polygon. Lists as
    /// `Curve2dlistToCoedgelists` gives them: two that share a corner belong to the same part of the network,
    /// and the one is no hole of the other. False when there is no polygon to make.
    static bool GenPolygonListByCoedgeList(const std::vector<CCoedgeList>& coedgeLists,
                                           std::vector<CPolygon*>& polygons);

private:
    explicit CLoopTreeNode(const CCoedgeList& outline);
    bool holds(const CCoedgeList& loop) const;

    CPolygon* m_polygon; ///< freed by whoever receives it
    double m_area;
    CBox2d m_box;
    std::vector<const CCoedgeList*> m_holes;
};

} // namespace hrx
