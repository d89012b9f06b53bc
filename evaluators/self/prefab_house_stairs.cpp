#include "elements/NUXPrefabHouseObject.h"
#include "evaluators/self/NUXElementTypeRule.h"
#include "evaluators/self/prefab_house_floor_area.h"
#include "site/CheckObserver.h"

namespace {

constexpr double kLargestAreaWithoutStairs = 200.0; // square metres
constexpr int kFewestFloorsWithStairs = 3;

} // namespace

bool NUXElementTypeRule::isStairsMissing(const NUXElementObject* element) {
    const auto* house = NUXPrefabHouseObject::Cast(element);
    if (!house)
        return false;
    observeFound(*house);
    if (floorArea(*house) <= kLargestAreaWithoutStairs && house->getFloorCount() < kFewestFloorsWithStairs)
        return false;
    return house->getStairPosition() != kStairAtBothEnds;
}
