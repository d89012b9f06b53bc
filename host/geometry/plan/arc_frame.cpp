#include "geometry/plan/arc_frame.h"

#include <cmath>

namespace hrx::plan {

ArcFrame::ArcFrame(const Edge2d& arc) {
    const CVec2<double> chord = arc.end - arc.start;
    const double chordLength = length(chord);
    const double squared = arc.bulge * arc.bulge;
    apex = arc.middle();
    along = chord * (1.0 / chordLength);
    inward = leftNormal(along) * (arc.bulge > 0.0 ? 1.0 : -1.0);
    curvature = 4.0 * std::abs(arc.bulge) / (chordLength * (1.0 + squared));
    halfChord = 0.5 * chordLength;
    cosHalfSweep = (1.0 - squared) / (1.0 + squared);
}

double ArcFrame::signedGap(const CVec2<double>& local) const {
    return equation(local) / (1.0 + length(fromCentre(local)));
}

CVec2<double> ArcFrame::footOf(const CVec2<double>& local) const {
    const CVec2<double> arm = fromCentre(local);
    const double size = length(arm);
    return size > 0.0 ? pointInDirection(arm * (1.0 / size)) : CVec2<double>();
}

bool ArcFrame::facesArc(const CVec2<double>& local) const {
    return std::abs(local.x) * cosHalfSweep <= (1.0 - curvature * local.y) * halfChord;
}

CVec2<double> ArcFrame::pointInDirection(const CVec2<double>& direction) const {
    // Towards the apex, 1 + direction.y cancels; it is direction.x^2 / (1 - direction.y).
    const double rise =
        direction.y >= 0.0 ? 1.0 + direction.y : direction.x * direction.x / (1.0 - direction.y);
    return {direction.x / curvature, rise / curvature};
}

bool ArcFrame::spansDirection(const CVec2<double>& direction) const {
    return std::abs(direction.x) * cosHalfSweep <= -direction.y * curvature * halfChord;
}

} // namespace hrx::plan
