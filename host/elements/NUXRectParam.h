#pragma once

#include "geometry/CVec2.h"

/// A rectangle turned about its centre: length along its own x axis, depth along its y axis, in mm; the angle
/// in degrees, counter-clockwise, kept as given.
class NUXRectParam {
public:
    NUXRectParam(const hrx::CVec2<double>& centre, double length, double depth, double angle)
        : m_centre(centre), m_length(length), m_depth(depth), m_angle(angle) {}

    const hrx::CVec2<double>& centre() const { return m_centre; }
    double length() const { return m_length; }
    double depth() const { return m_depth; }
    double angle() const { return m_angle; }

private:
    hrx::CVec2<double> m_centre;
    double m_length;
    double m_depth;
    double m_angle;
};
