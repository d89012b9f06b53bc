#include "site/polyline_outline.h"

#include "cad/UdDbPolyLine.h"

#include <boost/functional/hash.hpp>

#include <algorithm>
#include <cmath>
#include <unordered_map>
#include <utility>

namespace {

// The square of the double epsilon.
constexpr double kSamePlaceSquared = 4.930380657631324e-32;

// Deliberate: the second test has no absolute value. A point far above a kept one in its third component is
// dropped, one that lies below it by 0.001 or more is kept.
bool repeats(const hrx::PolyPt2d& point, const hrx::PolyPt2d& kept) {
    const double dx = kept.x - point.x;
    const double dy = kept.y - point.y;
    return dx * dx + dy * dy <= kSamePlaceSquared && kept.bulge - point.bulge < 0.001;
}

/// The points kept of a long polyline, found again by place: in squares so small that a repeated point lies
/// in its original's square or in one beside it. Of points at one place the least third component decides.
class KeptPlaces {
public:
    bool hasRepeated(const hrx::PolyPt2d& point) const {
        const Square middle = squareOf(point);
        for (const double column : {middle.first - 1.0, middle.first, middle.first + 1.0})
            for (const double row : {middle.second - 1.0, middle.second, middle.second + 1.0}) {
                const auto [first, last] = m_squares.equal_range({column, row});
                if (std::any_of(first, last, [&](const auto& kept) { return repeats(point, kept.second); }))
                    return true;
            }
        return false;
    }

    void add(const hrx::PolyPt2d& point) {
        const Square square = squareOf(point);
        const auto [first, last] = m_squares.equal_range(square);
        const auto samePlace = std::find_if(first, last, [&](const auto& kept) {
            return kept.second.x == point.x && kept.second.y == point.y;
        });
        if (samePlace != last && point.bulge < samePlace->second.bulge)
            samePlace->second.bulge = point.bulge;
        else
            m_squares.emplace(square, point);
    }

private:
    using Square = std::pair<double, double>;

    /// By the inverse of the double epsilon, a power of two: far from the origin this is each place by
    /// itself.
    static Square squareOf(const hrx::PolyPt2d& point) {
        constexpr double kSquaresPerMillimetre = 4503599627370496.0;
        return {std::floor(point.x * kSquaresPerMillimetre), std::floor(point.y * kSquaresPerMillimetre)};
    }

    std::unordered_multimap<Square, hrx::PolyPt2d, boost::hash<Square>> m_squares;
};

std::vector<hrx::PolyPt2d> withoutRepeats(const std::vector<hrx::PolyPt2d>& points) {
    constexpr std::size_t kFewPoints = 64;
    const bool isShort = points.size() <= kFewPoints;
    std::vector<hrx::PolyPt2d> kept;
    kept.reserve(points.size());
    KeptPlaces places;
    for (const hrx::PolyPt2d& point : points) {
        const auto isRepeatOf = [&](const hrx::PolyPt2d& other) { return repeats(point, other); };
        if (isShort ? std::any_of(kept.begin(), kept.end(), isRepeatOf) : places.hasRepeated(point))
            continue;
        kept.push_back(point);
        if (!isShort)
            places.add(point);
    }
    return kept;
}

} // namespace

OutlinePtr buildPolylinePolygon(const UdDbPolyLine& polyline) {
    std::vector<hrx::PolyPt2d> points;
    polyline.GetPolyPts(points);
    const std::vector<hrx::PolyPt2d> kept = withoutRepeats(points);
    if (kept.empty())
        return nullptr;
    OutlinePtr outline(new hrx::CPolygon(kept));
    normaliseOrientation(*outline);
    return outline;
}
