#include "geometry/network/Strand.h"

#include "geometry/plan/edge_fractions.h"
#include "geometry/plan/half_turn.h"

#include <cmath>

namespace hrx::network {

CBox2d Strand::box() const {
    CBox2d around;
    for (const Edge2d& part : parts)
        around.add(part.box());
    return around;
}

CVec2<double> Strand::pointAt(double fraction) const {
    if (parts.size() == 1)
        return plan::pointAt(parts[0], fraction);
    return fraction <= 0.5 ? plan::pointAt(parts[0], 2.0 * fraction)
                           : plan::pointAt(parts[1], 2.0 * fraction - 1.0);
}

double Strand::nearestFraction(const CVec2<double>& point) const {
    const double onFirst = plan::nearestFraction(parts[0], point);
    if (parts.size() == 1)
        return onFirst;
    const double onSecond = plan::nearestFraction(parts[1], point);
    const double toFirst = length(plan::pointAt(parts[0], onFirst) - point);
    const double toSecond = length(plan::pointAt(parts[1], onSecond) - point);
    return toFirst <= toSecond ? onFirst / 2.0 : 0.5 + onSecond / 2.0;
}

Strand Strand::piece(double fromFraction, double toFraction, const CVec2<double>& start,
                     const CVec2<double>& end) const {
    Strand result{from, to, {}};
    double sweep = 0.0;
    for (const Edge2d& part : parts)
        sweep += part.isArc() ? part.sweep() : 0.0;
    sweep *= toFraction - fromFraction;
    if (std::abs(sweep) <= plan::kHalfTurn) {
        result.parts.push_back({start, end, std::tan(sweep / 4.0)});
    } else {
        const CVec2<double> middle = pointAt((fromFraction + toFraction) / 2.0);
        result.parts.push_back({start, middle, std::tan(sweep / 8.0)});
        result.parts.push_back({middle, end, std::tan(sweep / 8.0)});
    }
    return result;
}

} // namespace hrx::network
