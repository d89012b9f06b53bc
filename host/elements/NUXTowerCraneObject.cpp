#include "elements/NUXTowerCraneObject.h"

#include "geometry/CExtrudedBody.h"

#include <cmath>

namespace {

constexpr double kRadiansPerDegree = 0.017453292519943295;

hrx::CVec3<double> scaled(const hrx::CVec3<double>& v, double factor) {
    return {v.x * factor, v.y * factor, v.z * factor};
}

/// A box that starts at `origin` and runs `length` along `axis`; `side` is horizontal and square to the axis,
/// and the box lies evenly on both sides of it, on the upper side of the axis.
std::unique_ptr<hrx::CBody> jib(const hrx::CVec3<double>& origin, const hrx::CVec3<double>& axis,
                                const hrx::CVec3<double>& side, const hrx::CVec3<double>& up, double length,
                                double width, double depth) {
    if (!(length > 0.0 && width > 0.0 && depth > 0.0))
        return nullptr;
    const std::vector<hrx::CVec2<double>> footprint{
        {0.0, -0.5 * width}, {length, -0.5 * width}, {length, 0.5 * width}, {0.0, 0.5 * width}};
    const hrx::CCoord3<double> frame(origin, axis, side, up);
    return std::make_unique<hrx::CExtrudedBody>(frame, depth, new hrx::CPolygon(footprint), true);
}

} // namespace

std::unique_ptr<hrx::CBody> NUXTowerCraneObject::getTowerQianBiBody() const {
    const double angle = m_params.angle * kRadiansPerDegree;
    const double inclination = m_params.jibInclination * kRadiansPerDegree;
    const hrx::CVec3<double> ahead{std::cos(angle), std::sin(angle), 0.0};
    const hrx::CVec3<double> side{-ahead.y, ahead.x, 0.0};
    hrx::CVec3<double> axis = scaled(ahead, std::cos(inclination));
    axis.z = std::sin(inclination);
    hrx::CVec3<double> up = scaled(ahead, -std::sin(inclination));
    up.z = std::cos(inclination);
    hrx::CVec3<double> origin = m_params.position;
    origin.z += m_params.jibHeight;
    return jib(origin, axis, side, up, m_params.frontJibLength, m_params.jibWidth, m_params.jibDepth);
}

std::unique_ptr<hrx::CBody> NUXTowerCraneObject::getTowerHouBiBody() const {
    const double angle = m_params.angle * kRadiansPerDegree;
    const hrx::CVec3<double> back{-std::cos(angle), -std::sin(angle), 0.0};
    const hrx::CVec3<double> side{-back.y, back.x, 0.0};
    hrx::CVec3<double> origin = m_params.position;
    origin.z += m_params.jibHeight;
    return jib(origin, back, side, {0.0, 0.0, 1.0}, m_params.counterJibLength, m_params.jibWidth,
               m_params.jibDepth);
}

std::unique_ptr<hrx::CBody> NUXTowerCraneObject::getTowerBaseBody() const {
    const double half = 0.5 * m_params.mastWidth;
    if (!(half > 0.0 && m_params.jibHeight > 0.0))
        return nullptr;
    const double angle = m_params.angle * kRadiansPerDegree;
    const hrx::CVec3<double> x{std::cos(angle), std::sin(angle), 0.0};
    const hrx::CCoord3<double> frame(m_params.position, x, {-x.y, x.x, 0.0}, {0.0, 0.0, 1.0});
    const std::vector<hrx::CVec2<double>> section{{-half, -half}, {half, -half}, {half, half}, {-half, half}};
    return std::make_unique<hrx::CExtrudedBody>(frame, m_params.jibHeight, new hrx::CPolygon(section), true);
}

std::optional<hrx::CExtents3> NUXTowerCraneObject::geometryExtents() const {
    hrx::CExtents3 extents;
    bool hasPart = false;
    for (const auto& part : {getTowerQianBiBody(), getTowerHouBiBody(), getTowerBaseBody()}) {
        if (!part)
            continue;
        const hrx::CExtents3 partExtents = part->GetExtents();
        extents.add(partExtents.low);
        extents.add(partExtents.high);
        hasPart = true;
    }
    return hasPart ? std::optional(extents) : std::nullopt;
}
