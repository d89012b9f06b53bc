// Two outlines raised to solids: their distance is a number, the same both ways round and, for coordinates of
// a site, that of the nearest points, with no point sampled along the boundaries nearer.

#include "ByteReader.h"
#include "measure.h"
#include "naive_edge.h"
#include "require.h"

namespace {

using Points = outlines::Loop;
using Edges = std::vector<sampled::NaiveEdge>;

constexpr int kSamplesPerEdge = 24;

Points readOutline(ByteReader& bytes, bool isOfSite) {
    Points points(static_cast<std::size_t>(bytes.below(7)));
    for (hrx::PolyPt2d& point : points) {
        point.x = isOfSite ? bytes.siteCoordinate() : bytes.coordinate();
        point.y = isOfSite ? bytes.siteCoordinate() : bytes.coordinate();
        point.bulge = bytes.bulge();
    }
    return points;
}

double gapTo(const Edges& edges, const hrx::CVec2<double>& point) {
    double least = 1e100;
    for (const sampled::NaiveEdge& edge : edges)
        least = std::min(least, edge.distanceTo(point));
    return least;
}

double leastSampledGap(const Edges& from, const Edges& to) {
    double least = 1e100;
    for (const sampled::NaiveEdge& edge : from)
        for (int step = 0; step < kSamplesPerEdge; ++step)
            least = std::min(least, gapTo(to, edge.at(static_cast<double>(step) / kSamplesPerEdge)));
    return least;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    ByteReader bytes(data, size);
    const bool isOfSite = bytes.below(4) != 0;
    const Points first = readOutline(bytes, isOfSite);
    const Points second = readOutline(bytes, isOfSite);
    const Body a = raised({first});
    const Body b = raised({second});

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

    const Edges ofFirst = sampled::naiveEdges(first);
    const Edges ofSecond = sampled::naiveEdges(second);
    require(distance <= leastSampledGap(ofFirst, ofSecond) + 1e-4, "no point is nearer than the distance");
    require(distance <= leastSampledGap(ofSecond, ofFirst) + 1e-4, "nor is one of the other outline");
    if (distance > 0.0) {
        require(gapTo(ofFirst, {onA.x, onA.y}) < 1e-4, "the nearest points lie on the outlines");
        require(gapTo(ofSecond, {onB.x, onB.y}) < 1e-4, "both of them");
        require(std::abs(length(onA - onB) - distance) < 1e-4, "as far apart as the distance says");
    }
    return 0;
}
