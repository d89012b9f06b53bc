#include "elements/rectangle_corners.h"

#include <cmath>

namespace referencehost {

std::array<hrx::CVec2<double>, 4> rectangleCorners(const NUXRectParam& rect) {
    constexpr double kRadiansPerDegree = 0.017453292519943295;
    const double cosine = std::cos(rect.angle() * kRadiansPerDegree);
    const double sine = std::sin(rect.angle() * kRadiansPerDegree);
    const hrx::CVec2<double> toEnd{0.5 * rect.length() * cosine, 0.5 * rect.length() * sine};
    const hrx::CVec2<double> toSide{-0.5 * rect.depth() * sine, 0.5 * rect.depth() * cosine};
    const hrx::CVec2<double> centre = rect.centre();
    return {{{centre.x - toEnd.x - toSide.x, centre.y - toEnd.y - toSide.y},
             {centre.x + toEnd.x - toSide.x, centre.y + toEnd.y - toSide.y},
             {centre.x + toEnd.x + toSide.x, centre.y + toEnd.y + toSide.y},
             {centre.x - toEnd.x + toSide.x, centre.y - toEnd.y + toSide.y}}};
}

} // namespace referencehost
