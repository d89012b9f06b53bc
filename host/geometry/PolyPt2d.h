#pragma once

namespace hrx {

/// A corner of an outline and the shape of the edge from it to the next corner.
struct PolyPt2d {
    double x = 0.0;
    double y = 0.0;
    /// tan(sweep / 4) of the edge that starts here: 0 straight, 1 a half circle; positive counter-clockwise.
    double bulge = 0.0;
};

} // namespace hrx
