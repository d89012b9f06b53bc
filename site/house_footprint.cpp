#include "site/house_footprint.h"

#include "elements/NUXPrefabHouseObject.h"

#include <cmath>

namespace {

constexpr double kStairLength = 1600.0;
constexpr double kGalleryDepth = 500.0; // deliberate: added whatever the stair code

struct Direction {
    double x;
    double y;
};

void move(hrx::CVec2<double>& point, const Direction& direction, double distance) {
    point.x += distance * direction.x;
    point.y += distance * direction.y;
}

} // namespace

void getHouseRectWithStair(const NUXPrefabHouseObject& house, double& length, double& depth,
                           hrx::CVec2<double>& centre) {
    const double houseLength = house.getRectWidthL();
    const double houseDepth = house.getRectHigh();
    const hrx::CVec2<double> middle{house.getPtRectCenter().x, house.getPtRectCenter().y};

    // Deliberate: the angle goes into sine and cosine as it is reported, without a conversion from degrees,
    // and the direction across the house has its sine first.
    const double sine = std::sin(house.getRectAngle());
    const double cosine = std::cos(house.getRectAngle());
    const Direction along{cosine, sine};
    const Direction across{sine, cosine};

    const StairPt stair = house.getStairPosition();
    switch (stair) {
    case kStairAtLeftEnd:
    case kStairAtRightEnd:
        length = houseLength + kStairLength;
        depth = houseDepth + kGalleryDepth;
        centre = middle;
        move(centre, along, stair == kStairAtLeftEnd ? -0.5 * kStairLength : 0.5 * kStairLength);
        break;
    case kNoStair:
        length = houseLength;
        depth = houseDepth + kGalleryDepth;
        centre = middle;
        break;
    case kStairAtBothEnds:
        length = houseLength + 2.0 * kStairLength;
        depth = houseDepth + kGalleryDepth;
        centre = middle;
        break;
    case kStairAlongSide:
        length = houseLength;
        depth = houseDepth + kGalleryDepth + kStairLength;
        centre = middle;
        break;
    }

    // Deliberate: the shift applies to any code, also to a centre that an unknown code left as it was.
    if (stair == kStairAlongSide)
        move(centre, across, -1050.0);
    else
        move(centre, across, house.getIsFB() != 0 ? 250.0 : -250.0);
}
