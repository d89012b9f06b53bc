#pragma once

#include "geometry/CExtrudedBody.h"
#include "geometry/GeometryDistance.h"
#include "random_outlines.h"

#include <memory>

using Body = std::unique_ptr<hrx::CBody>;

inline Body raised(const outlines::Outline& outline, double height = 1.0,
                   const hrx::CCoord3<double>& frame = hrx::CCoord3<double>()) {
    return std::make_unique<hrx::CExtrudedBody>(frame, height, outlines::polygon(outline), true);
}

inline double measured(const hrx::CBody& a, const hrx::CBody& b) {
    hrx::CVec3<double> onA;
    hrx::CVec3<double> onB;
    return hrx::GeometryDistance(&a, &b, onA, onB, 0.1);
}

inline double measured(const outlines::Outline& a, const outlines::Outline& b) {
    return measured(*raised(a), *raised(b));
}
