#include "evaluators/self/prefab_house_floor_area.h"

#include "elements/NUXPrefabHouseObject.h"
#include "evaluators/self/NUXElementTypeRule.h"
#include "site/CheckObserver.h"

double floorArea(const NUXPrefabHouseObject& house) {
    return (house.getDepth() / 1000.0) * (house.getRectWidthL() / 1000.0);
}

bool NUXElementTypeRule::isFloorAreaExceeded(const NUXElementObject* element) {
    const auto* house = NUXPrefabHouseObject::Cast(element);
    if (!house)
        return false;
    observeFound(*house);
    const double area = floorArea(*house);
    observeValue(*house, area, kMaximumFloorArea);
    return area > kMaximumFloorArea;
}
