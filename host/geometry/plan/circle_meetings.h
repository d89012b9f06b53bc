#pragma once

#include "geometry/plan/arc_frame.h"

namespace hrx::plan {

/// The points start + t * direction (unit) in an arc's frame.
struct FrameLine {
    CVec2<double> at(double t) const { return start + direction * t; }

    CVec2<double> start;
    CVec2<double> direction;
};

/// A line and an arc's circle, by the parameters of points on the line. Of an almost straight arc and a line
/// that meets it at a small angle they are inexact along the line, not across it.
struct LineOnCircle {
    LineOnCircle(const FrameLine& line, const ArcFrame& frame);

    double nearest; ///< nearest to the circle, or deepest inside it
    double meetings[2];
    int meetingCount = 0; ///< 0 when the line passes the circle by
};

/// The circles of two arcs, in the frame of the first. Best taken with the smaller circle first: its points
/// are exact where the larger one is almost straight.
struct CirclePair {
    CirclePair(const ArcFrame& first, const ArcFrame& second);

    bool concentric;             ///< then nothing else is set
    CVec2<double> towardsSecond; ///< unit, from centre to centre
    FrameLine radicalLine;       ///< through the points that the circles share
};

} // namespace hrx::plan
