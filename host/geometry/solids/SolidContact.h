#pragma once

#include "geometry/CVec3.h"

namespace hrx::solids {

/// Two solids' distance and a nearest point on each.
struct SolidContact {
    double distance = 0.0;
    CVec3<double> onA;
    CVec3<double> onB;
};

} // namespace hrx::solids
