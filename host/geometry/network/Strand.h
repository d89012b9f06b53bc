#pragma once

#include "geometry/Edge2d.h"

#include <boost/container/static_vector.hpp>

#include <cstddef>

namespace hrx::network {

/// A piece of a curve between two nodes of a plan network: one edge, or two of equal sweep when the piece
/// turns further than a half circle.
struct Strand {
    using Parts = boost::container::static_vector<Edge2d, 2>;

    std::size_t from;
    std::size_t to;
    Parts parts;

    /// Least box around the parts.
    CBox2d box() const;
    /// The point at a fraction of the strand's length.
    CVec2<double> pointAt(double fraction) const;
    /// The fraction of the strand's point nearest to a point.
    double nearestFraction(const CVec2<double>& point) const;
    /// The piece between two fractions, its ends moved to the given places. Arcs keep their bulge.
    Strand piece(double fromFraction, double toFraction, const CVec2<double>& start,
                 const CVec2<double>& end) const;
};

} // namespace hrx::network
