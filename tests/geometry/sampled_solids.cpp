#include "sampled_solids.h"

#include "geometry/CPlaneCurve3d.h"
#include "geometry/GBodyBuilder.h"
#include "naive_edge.h"

#include <algorithm>
#include <array>

namespace sampled {

namespace {

using outlines::Outline;

double planDistance(const Outline& outline, const CVec2<double>& p) {
    double turns = 0;
    double distance = 1e300;
    for (const outlines::Loop& loop : outline)
        for (const NaiveEdge& edge : naiveEdges(loop)) {
            turns += edge.turnsAround(p);
            distance = std::min(distance, edge.distanceTo(p));
        }
    return std::lround(turns) % 2 != 0 ? 0 : distance;
}

double gap(double value, double low, double high) {
    return std::max({0.0, low - value, value - high});
}

} // namespace

Frame randomFrame(outlines::Random& random, const Point& origin) {
    const auto unit = [&] {
        const Point v(random.between(-1, 1), random.between(-1, 1), random.between(-1, 1));
        return v * (1 / length(v));
    };
    const Point x = unit();
    const Point across = cross(x, unit());
    const Point z = across * (1 / length(across));
    return {origin, x, cross(z, x), z};
}

Solid prism(const Outline& outline, const Frame& frame, double height) {
    const auto distanceTo = [=](const Point& p) {
        const Point local = frame.toLocal(p);
        return std::hypot(planDistance(outline, {local.x, local.y}),
                          gap(local.z, std::min(0.0, height), std::max(0.0, height)));
    };
    return {raised(outline, height, frame), distanceTo, {}};
}

Solid plate(const Frame& frame, double length, double height, double thickness) {
    Solid solid = prism({{{0, 0, 0}, {length, 0, 0}, {length, height, 0}, {0, height, 0}}}, frame, thickness);
    solid.pointAt = [=](double u, double v, double w) {
        return frame.toWorld({u * length, v * height, std::clamp(w, 0.0, 1.0) * thickness});
    };
    return solid;
}

Solid cylinder(const Point& bottom, const Point& top, double radius) {
    const double size = length(top - bottom);
    const Point axis = (top - bottom) * (1 / size);
    const Point side = cross(axis, std::abs(axis.z) < 0.9 ? Point(0, 0, 1) : Point(1, 0, 0));
    const Point across = side * (1 / length(side));
    const Frame frame(bottom, across, cross(axis, across), axis);
    const auto distanceTo = [=](const Point& p) {
        const Point local = frame.toLocal(p);
        return std::hypot(std::max(0.0, std::hypot(local.x, local.y) - radius), gap(local.z, 0, size));
    };
    const auto pointAt = [=](double u, double v, double w) {
        return frame.toWorld(
            {v * radius * std::cos(2 * kPi * w), v * radius * std::sin(2 * kPi * w), u * size});
    };
    return {Body(hrx::GBodyBuilder(true, true).CylinderBody(bottom, top, radius)), distanceTo, pointAt};
}

Solid tube(const Frame& frame, double arcRadius, double sweep, double radius) {
    const auto pointAt = [=](double u, double v, double w) {
        const double outward = arcRadius + v * radius * std::cos(2 * kPi * w);
        return frame.toWorld({outward * std::cos(u * sweep), outward * std::sin(u * sweep),
                              v * radius * std::sin(2 * kPi * w)});
    };
    const auto distanceTo = [=](const Point& p) {
        const Point local = frame.toLocal(p);
        const double angle = std::fmod(std::atan2(local.y, local.x) + 2 * kPi, 2 * kPi);
        const auto toDisc = [&](double at) {
            const double along = -local.x * std::sin(at) + local.y * std::cos(at);
            const double out = local.x * std::cos(at) + local.y * std::sin(at) - arcRadius;
            return std::hypot(along, std::max(0.0, std::hypot(out, local.z) - radius));
        };
        return angle <= sweep ? toDisc(angle) : std::min(toDisc(0), toDisc(sweep));
    };
    const auto onArc = [&](double at) { return pointAt(at, 0, 0); };
    return {Body(hrx::GBodyBuilder(true, true)
                     .SweepBody(outlines::polygon({outlines::circle(radius)}),
                                hrx::CPlaneCurve3d(onArc(0), onArc(1), onArc(0.4)))),
            distanceTo, pointAt};
}

double leastSampledDistance(const Solid& a, const Solid& b) {
    using Sample = std::array<double, 3>;
    const auto distanceAt = [&](const Sample& s) { return a.distanceTo(b.pointAt(s[0], s[1], s[2])); };
    std::vector<std::pair<double, Sample>> samples;
    for (int i = 0; i <= 10; ++i)
        for (int j = 0; j <= 2; ++j)
            for (int k = 0; k <= 8; ++k) {
                const Sample sample{i / 10.0, j / 2.0, k / 8.0};
                samples.emplace_back(distanceAt(sample), sample);
            }
    std::partial_sort(samples.begin(), samples.begin() + 5, samples.end());
    double best = samples.front().first;
    for (int seed = 0; seed < 5; ++seed) {
        auto [distance, centre] = samples[static_cast<std::size_t>(seed)];
        for (double step = 0.1; step > 1e-11 && distance > 0;) {
            const Sample from = centre;
            for (int neighbour = 0; neighbour < 27; ++neighbour) {
                Sample sample = from;
                for (std::size_t axis = 0, code = static_cast<std::size_t>(neighbour); axis < 3;
                     ++axis, code /= 3)
                    sample[axis] = std::clamp(from[axis] + step * (static_cast<double>(code % 3) - 1),
                                              axis == 2 ? -1.0 : 0.0, axis == 2 ? 2.0 : 1.0);
                const double sampleDistance = distanceAt(sample);
                if (sampleDistance < distance) {
                    distance = sampleDistance;
                    centre = sample;
                }
            }
            if (centre == from)
                step *= 0.5;
        }
        best = std::min(best, distance);
    }
    return best;
}

} // namespace sampled
