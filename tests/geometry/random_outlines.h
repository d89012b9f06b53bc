#pragma once

#include "geometry/CPolygon.h"

#include <cmath>
#include <random>
#include <vector>

/// Outlines for tests: loops of corners with bulges, drawn from a seeded generator.
namespace outlines {

using Loop = std::vector<hrx::PolyPt2d>;
using Outline = std::vector<Loop>;

constexpr double kPi = 3.141592653589793;

class Random {
public:
    explicit Random(unsigned seed) : m_engine(seed) {}
    double between(double low, double high) { return low + (high - low) * (m_engine() / 4294967296.0); }
    int below(int count) { return static_cast<int>(m_engine() % static_cast<unsigned>(count)); }

private:
    std::mt19937 m_engine;
};

inline Loop rectangle(double length, double depth) {
    return {{-length / 2, -depth / 2, 0},
            {length / 2, -depth / 2, 0},
            {length / 2, depth / 2, 0},
            {-length / 2, depth / 2, 0}};
}

/// Corners at random distances around the origin, edges bulging at random up to the given bulge.
inline Loop star(Random& random, int corners, double greatestBulge) {
    Loop loop;
    for (int i = 0; i < corners; ++i) {
        const double angle = 2 * kPi * (i + random.between(0.1, 0.9)) / corners;
        const double radius = random.between(2000, 10000);
        loop.push_back({radius * std::cos(angle), radius * std::sin(angle),
                        random.between(-greatestBulge, greatestBulge)});
    }
    return loop;
}

inline Loop circle(double radius) {
    return {{-radius, 0, 1}, {radius, 0, 1}};
}

/// A strip between two radii about the origin, from angle 0.
inline Loop arcStrip(double inner, double outer, double sweep) {
    const double bulge = std::tan(sweep / 4);
    const double c = std::cos(sweep);
    const double s = std::sin(sweep);
    return {{outer, 0, bulge}, {outer * c, outer * s, 0}, {inner * c, inner * s, -bulge}, {inner, 0, 0}};
}

/// A rectangle, a star, a frame or an L; and with arcs a circle, a ring or a strip.
inline Outline anyOutline(Random& random, bool withArcs) {
    switch (random.below(withArcs ? 7 : 4)) {
    case 0:
        return {rectangle(random.between(500, 20000), random.between(500, 20000))};
    case 1:
        return {star(random, 3 + random.below(18), 0)};
    case 2:
        return {rectangle(30000, 24000), rectangle(26000, 20000)};
    case 3:
        return {{{0, 0, 0}, {9000, 0, 0}, {9000, 3000, 0}, {3000, 3000, 0}, {3000, 8000, 0}, {0, 8000, 0}}};
    case 4:
        return {circle(random.between(300, 9000))};
    case 5:
        return {circle(random.between(5000, 9000)), circle(random.between(1000, 4500))};
    default:
        return {arcStrip(random.between(2000, 9000), random.between(10000, 16000), random.between(0.3, 5.8))};
    }
}

inline Outline moved(Outline outline, double angle, double dx, double dy) {
    for (Loop& loop : outline)
        for (hrx::PolyPt2d& p : loop)
            p = {p.x * std::cos(angle) - p.y * std::sin(angle) + dx,
                 p.x * std::sin(angle) + p.y * std::cos(angle) + dy, p.bulge};
    return outline;
}

inline Outline snapped(Outline outline, double step) {
    for (Loop& loop : outline)
        for (hrx::PolyPt2d& p : loop)
            p = {std::round(p.x / step) * step, std::round(p.y / step) * step, p.bulge};
    return outline;
}

inline hrx::CPolygon* polygon(const Outline& outline) {
    std::vector<hrx::CCoedgeList> loops;
    for (const Loop& loop : outline)
        loops.emplace_back(loop);
    return new hrx::CPolygon(loops);
}

} // namespace outlines
