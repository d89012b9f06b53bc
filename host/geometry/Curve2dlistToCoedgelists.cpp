#include "geometry/Curve2dlistToCoedgelists.h"

#include "geometry/network/curve_arrangement.h"
#include "geometry/network/face_tracing.h"

namespace hrx {

EnLoopsState Curve2dlistToCoedgelists(const std::vector<std::unique_ptr<CCurve2d>>& curves,
                                      std::vector<CCoedgeList>& coedgeLists, double joiningTolerance) {
    coedgeLists.clear();
    std::vector<std::vector<Edge2d>> edgesByCurve;
    for (const std::unique_ptr<CCurve2d>& curve : curves) {
        edgesByCurve.push_back(curve ? curve->edges() : std::vector<Edge2d>());
        if (edgesByCurve.back().empty())
            return LoopsDegenerateCurve;
    }
    for (const auto& boundary : network::traceFaces(
             network::arrangeCurves(edgesByCurve, network::JoiningTolerance(joiningTolerance))))
        coedgeLists.emplace_back(boundary);
    return LoopsJoined;
}

} // namespace hrx
