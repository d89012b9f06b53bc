#include "site/outlines.h"

#include "cad/UdDbPolyLine.h"
#include "elements/NUX3dsObject.h"
#include "elements/NUXDoorObject.h"
#include "elements/NUXPrefabHouseObject.h"
#include "elements/NUXYardOBJObject.h"
#include "site/host_codes.h"

#include <algorithm>
#include <cmath>
#include <unordered_map>
#include <utility>

using namespace firestandard;

namespace {

constexpr double kStairLength = 1600.0;
constexpr double kGalleryDepth = 500.0; // deliberate: added whatever the stair code, as drawings rely on it

hrx::CVec2<double> inPlan(const hrx::CVec3<double>& point) {
    return {point.x, point.y};
}

struct Direction {
    double x;
    double y;
};

void shift(hrx::CVec2<double>& point, const Direction& direction, double distance) {
    point.x += distance * direction.x;
    point.y += distance * direction.y;
}

// Deliberate: the second test has no absolute value. A point far above a kept one in its third component is
// dropped, one that lies below it by 0.001 or more is kept. Existing drawings hold such points, and their
// outlines have always been read so.
bool repeats(const hrx::PolyPt2d& point, const hrx::PolyPt2d& kept) {
    const double dx = kept.x - point.x;
    const double dy = kept.y - point.y;
    return dx * dx + dy * dy <= kCoincidentSquared && kept.bulge - point.bulge < 0.001;
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

    struct SquareHash {
        std::size_t operator()(const Square& square) const {
            const std::hash<double> hash;
            return hash(square.first) * 31 + hash(square.second);
        }
    };

    std::unordered_multimap<Square, hrx::PolyPt2d, SquareHash> m_squares;
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

NUXRectParam yardRect(const NUXYardOBJObject& yard) {
    hrx::CVec2<double> centre{0.0, 0.0};
    double length = 0.0;
    double depth = 0.0;
    double angle = 0.0;
    yard.calculateParam(centre, length, depth, angle);
    return NUXRectParam(centre, length, depth, angle);
}

NUXRectParam modelRect(const NUX3dsObject& model) {
    double length = 0.0;
    double depth = 0.0;
    model.calculateWidthAndHeight(length, depth);
    return NUXRectParam(inPlan(model.GetPosition()), length, depth, model.getAngle());
}

} // namespace

namespace firestandard {

void normaliseOrientation(hrx::CPolygon& outline) {
    const hrx::CCoedgeList* loop = outline.GetLoop(0);
    if (loop && loop->ClockSign() != 1)
        outline.Reverse();
}

std::array<hrx::CVec2<double>, 4> turnedRectangleCorners(const hrx::CVec2<double>& centre, double length,
                                                         double depth, double degrees) {
    const double halfLength = 0.5 * length;
    const double halfDepth = 0.5 * depth;
    const double angle = degrees * 0.017453292519943295;
    const double cosine = std::cos(angle);
    const double sine = std::sin(angle);
    const auto turned = [&](double x, double y) {
        return hrx::CVec2<double>{centre.x + (x * cosine - y * sine), centre.y + (x * sine + y * cosine)};
    };
    return {turned(-halfLength, -halfDepth), turned(halfLength, -halfDepth), turned(halfLength, halfDepth),
            turned(-halfLength, halfDepth)};
}

NUXRectParam rectangleOf(const NUXBaseObject& element) {
    return NUXRectParam(inPlan(element.getPtRectCenter()), element.getRectWidthL(), element.getRectHigh(),
                        element.getRectAngle());
}

NUXRectParam rectangleOf(const NUXDoorObject& door) {
    const int width = door.getPlankWidth() + 2 * door.getDoorPostSectionWidth();
    return NUXRectParam(inPlan(door.getPosition()), width, door.getDoorPostSectionHeight(), door.getAngle());
}

OutlinePtr footprintOutline(const UdRxObject* object) {
    OutlinePtr outline;
    const auto* base = NUXBaseObject::Cast(object);
    if (!base)
        buildYardOr3dsPolygon(object, outline);
    else if (base->m_shapeKind == shape::kRectangle)
        outline = buildRectParamPolygon(rectangleOf(*base));
    else if (base->m_shapeKind == shape::kPolyline)
        outline = buildPolylinePolygon(*base);
    else if (const auto* door = NUXDoorObject::Cast(base); door && base->m_shapeKind != shape::kCircle)
        outline = buildRectParamPolygon(rectangleOf(*door));
    return outline;
}

NUXRectParam houseRectWithStair(const NUXPrefabHouseObject& house) {
    double length = 0.0;
    double depth = 0.0;
    hrx::CVec2<double> centre{0.0, 0.0};
    getHouseRectWithStair(house, length, depth, centre);
    return NUXRectParam(centre, length, depth, house.getRectAngle());
}

} // namespace firestandard

void getHouseRectWithStair(const NUXPrefabHouseObject& house, double& length, double& depth,
                           hrx::CVec2<double>& centre) {
    const double houseLength = house.getRectWidthL();
    const double houseDepth = house.getRectHigh();
    const hrx::CVec2<double> middle{house.getPtRectCenter().x, house.getPtRectCenter().y};

    // Deliberate: the angle goes into sine and cosine as it is reported, without a conversion from degrees,
    // and the direction across the house has its sine first. The distances of existing drawings rest on it.
    const double sine = std::sin(house.getRectAngle());
    const double cosine = std::cos(house.getRectAngle());
    const Direction along{cosine, sine};
    const Direction across{sine, cosine};

    const int stairs = house.getStairPosition();
    switch (stairs) {
    case stair::kAtLeftEnd:
    case stair::kAtRightEnd:
        length = houseLength + kStairLength;
        depth = houseDepth + kGalleryDepth;
        centre = middle;
        shift(centre, along, stairs == stair::kAtLeftEnd ? -0.5 * kStairLength : 0.5 * kStairLength);
        break;
    case stair::kNone:
        length = houseLength;
        depth = houseDepth + kGalleryDepth;
        centre = middle;
        break;
    case stair::kAtBothEnds:
        length = houseLength + 2.0 * kStairLength;
        depth = houseDepth + kGalleryDepth;
        centre = middle;
        break;
    case stair::kAlongSide:
        length = houseLength;
        depth = houseDepth + kGalleryDepth + kStairLength;
        centre = middle;
        break;
    }

    // Deliberate: the shift applies to any code, also to a centre that an unknown code left as it was, since
    // existing drawings hold such codes and keep their results.
    if (stairs == stair::kAlongSide)
        shift(centre, across, -1050.0);
    else
        shift(centre, across, house.getIsFB() != 0 ? 250.0 : -250.0);
}

void getRectParamCorners(const NUXRectParam& rect, std::vector<hrx::CVec2<double>>& corners) {
    const auto turned = turnedRectangleCorners(rect.centre(), rect.length(), rect.depth(), rect.angle());
    corners.insert(corners.end(), turned.begin(), turned.end());
}

OutlinePtr buildRectParamPolygon(const NUXRectParam& rect) {
    const auto [a, b, c, d] =
        turnedRectangleCorners(rect.centre(), rect.length(), rect.depth(), rect.angle());
    OutlinePtr outline(new hrx::CPolygon({a, b, c, d}));
    normaliseOrientation(*outline);
    return outline;
}

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

void buildYardOr3dsPolygon(const UdRxObject* object, OutlinePtr& outline) {
    if (const auto* yard = NUXYardOBJObject::Cast(object))
        outline = buildRectParamPolygon(yardRect(*yard));
    // Deliberate: tried after the yard, so an object of both kinds has the model's footprint, by which its
    // distances have always been measured.
    if (const auto* model = NUX3dsObject::Cast(object))
        outline = buildRectParamPolygon(modelRect(*model));
}
