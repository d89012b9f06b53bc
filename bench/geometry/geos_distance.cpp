#include "geos_distance.h"

#include "geometry/Edge2d.h"

#include <geos_c.h>

namespace {

constexpr double kStrokeError = 0.1;

std::vector<double> stroked(const outlines::Loop& loop) {
    std::vector<double> coordinates;
    for (std::size_t i = 0; i < loop.size(); ++i) {
        const hrx::PolyPt2d& from = loop[i];
        const hrx::PolyPt2d& to = loop[(i + 1) % loop.size()];
        const hrx::Edge2d edge{{from.x, from.y}, {to.x, to.y}, from.bulge};
        coordinates.insert(coordinates.end(), {from.x, from.y});
        if (!edge.isArc())
            continue;
        const double step = 2 * std::acos(1 - kStrokeError / edge.radius());
        const int count = static_cast<int>(std::ceil(std::abs(edge.sweep()) / step));
        const hrx::CVec2<double> centre = edge.centre();
        const double startAngle = std::atan2(from.y - centre.y, from.x - centre.x);
        for (int k = 1; k < count; ++k) {
            const double angle = startAngle + edge.sweep() * k / count;
            coordinates.insert(coordinates.end(), {centre.x + edge.radius() * std::cos(angle),
                                                   centre.y + edge.radius() * std::sin(angle)});
        }
    }
    coordinates.insert(coordinates.end(), {loop[0].x, loop[0].y});
    return coordinates;
}

GEOSGeometry* ring(GEOSContextHandle_t context, const outlines::Loop& loop) {
    const std::vector<double> coordinates = stroked(loop);
    return GEOSGeom_createLinearRing_r(
        context, GEOSCoordSeq_copyFromBuffer_r(context, coordinates.data(),
                                               static_cast<unsigned>(coordinates.size() / 2), 0, 0));
}

GEOSGeometry* region(GEOSContextHandle_t context, const outlines::Loop& loop) {
    return GEOSGeom_createPolygon_r(context, ring(context, loop), nullptr, 0);
}

GEOSGeometry* region(GEOSContextHandle_t context, const outlines::Outline& outline) {
    std::vector<GEOSGeometry*> holes;
    for (std::size_t i = 1; i < outline.size(); ++i)
        holes.push_back(ring(context, outline[i]));
    return GEOSGeom_createPolygon_r(context, ring(context, outline[0]), holes.data(),
                                    static_cast<unsigned>(holes.size()));
}

template <class Shape> double distanceOf(const Shape& a, const Shape& b) {
    static const GEOSContextHandle_t context = GEOS_init_r();
    GEOSGeometry* const regionA = region(context, a);
    GEOSGeometry* const regionB = region(context, b);
    double distance = -1;
    GEOSDistance_r(context, regionA, regionB, &distance);
    GEOSGeom_destroy_r(context, regionA);
    GEOSGeom_destroy_r(context, regionB);
    return distance;
}

} // namespace

double geosDistance(const outlines::Loop& a, const outlines::Loop& b) {
    return distanceOf(a, b);
}

double geosDistance(const outlines::Outline& a, const outlines::Outline& b) {
    return distanceOf(a, b);
}
