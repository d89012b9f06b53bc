#pragma once

#include "geometry/CVec2.h"

namespace hrx {
class CPolygon;
}

/// Outlines of roads: the strip of the given width (mm) around a centre line, with flat ends,
/// counter-clockwise. The polygon must be given, empty; it stays empty when there is no such strip.
class NUXBuildPolygon {
public:
    /// Empty for a line without length, a width that is not positive, and a null polygon.
    static void buildLinePolgonAsTwoPt(hrx::CPolygon*& polygon, const hrx::CVec2<double>& start,
                                       const hrx::CVec2<double>& end, double width);
    /// Centre line: the arc from start through a third point to end. Empty also when the three points fix no
    /// arc. A road wider than its arc's diameter is cut off at the arc's centre. The last argument is part of
    /// the platform's signature and changes nothing.
    static void buildArcPolygon(hrx::CPolygon*& polygon, const hrx::CVec2<double>& start,
                                const hrx::CVec2<double>& end, const hrx::CVec2<double>& through,
                                double width, double unused);
};
