// Two outlines raised to solids: their distance is a number, the same both ways round and, for coordinates of
// a site, what points sampled along both boundaries allow it to be.

#include "ByteReader.h"
#include "geometry/CExtrudedBody.h"
#include "geometry/GeometryDistance.h"
#include "require.h"

#include <algorithm>
#include <memory>

namespace {

using Points = std::vector<hrx::PolyPt2d>;

constexpr int kSamplesPerEdge = 24;

struct Samples {
    std::vector<hrx::CVec2<double>> points;
    double spacing = 0.0; ///< no point of the boundary is farther than this from a sample
};

Points readOutline(ByteReader& bytes, bool isOfSite) {
    Points points(static_cast<std::size_t>(bytes.below(7)));
    for (hrx::PolyPt2d& point : points) {
        point.x = isOfSite ? bytes.siteCoordinate() : bytes.coordinate();
        point.y = isOfSite ? bytes.siteCoordinate() : bytes.coordinate();
        point.bulge = bytes.bulge();
    }
    return points;
}

std::unique_ptr<hrx::CBody> raised(const Points& points) {
    return std::make_unique<hrx::CExtrudedBody>(hrx::CCoord3<double>(), 1.0, new hrx::CPolygon(points), true);
}

Samples sampled(const Points& points) {
    Samples samples;
    for (std::size_t i = 0; i < points.size(); ++i) {
        const hrx::PolyPt2d& from = points[i];
        const hrx::PolyPt2d& to = points[(i + 1) % points.size()];
        const hrx::CVec2<double> chord(to.x - from.x, to.y - from.y);
        const double sweep = 4.0 * std::atan(from.bulge);
        for (int step = 0; step < kSamplesPerEdge; ++step) {
            const double share = static_cast<double>(step) / kSamplesPerEdge;
            double along = share;
            double aside = 0.0;
            if (from.bulge != 0.0) {
                // On the circle through both ends, in a frame whose x axis is the chord.
                const double angle = (share - 0.5) * sweep;
                const double radius = 0.5 / std::sin(0.5 * sweep);
                along = 0.5 + radius * std::sin(angle);
                aside = radius * (std::cos(0.5 * sweep) - std::cos(angle));
            }
            samples.points.emplace_back(from.x + chord.x * along - chord.y * aside,
                                        from.y + chord.y * along + chord.x * aside);
        }
        const double length = std::hypot(chord.x, chord.y) *
                              (from.bulge == 0.0 ? 1.0 : std::abs(0.5 * sweep / std::sin(0.5 * sweep)));
        samples.spacing = std::max(samples.spacing, length / kSamplesPerEdge);
    }
    return samples;
}

double leastDistance(const Samples& a, const Samples& b) {
    double least = 1e100;
    for (const auto& onA : a.points)
        for (const auto& onB : b.points)
            least = std::min(least, std::hypot(onA.x - onB.x, onA.y - onB.y));
    return least;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    ByteReader bytes(data, size);
    const bool isOfSite = bytes.below(4) != 0;
    const Points first = readOutline(bytes, isOfSite);
    const Points second = readOutline(bytes, isOfSite);
    const auto a = raised(first);
    const auto b = raised(second);

    hrx::CVec3<double> onA;
    hrx::CVec3<double> onB;
    const double distance = hrx::GeometryDistance(a.get(), b.get(), onA, onB, 0.1);
    const double swapped = hrx::GeometryDistance(b.get(), a.get(), onB, onA, 0.1);
    require(distance >= 0.0, "a distance is a number from 0 up");
    a->isStrictlyValid();
    require(swapped >= 0.0, "and so it is the other way round");
    // Far beyond a site, rounding alone moves an arc by more than the step of distances.
    if (!isOfSite)
        return 0;
    require(std::abs(distance - swapped) <= 2e-5, "the distance is the same both ways");
    if (first.empty() || second.empty())
        return 0;

    const Samples ofFirst = sampled(first);
    const Samples ofSecond = sampled(second);
    const double least = leastDistance(ofFirst, ofSecond);
    require(distance <= least + 1e-4, "no two points are nearer than the distance");
    if (distance > 0.0)
        require(distance >= least - ofFirst.spacing - ofSecond.spacing - 1e-4, "the distance is reached");
    return 0;
}
