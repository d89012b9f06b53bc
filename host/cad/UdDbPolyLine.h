#pragma once

#include "geometry/PolyPt2d.h"

#include <utility>
#include <vector>

/// The polyline part of an element: points with the bulge of the edge that starts there, closed implicitly.
class UdDbPolyLine {
public:
    void GetPolyPts(std::vector<hrx::PolyPt2d>& points) const { points = m_points; }

protected:
    explicit UdDbPolyLine(std::vector<hrx::PolyPt2d> points) : m_points(std::move(points)) {}
    ~UdDbPolyLine() = default;

private:
    std::vector<hrx::PolyPt2d> m_points;
};
