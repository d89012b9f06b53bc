#include "evaluators/self/prefab_house_floor_area.h"

#include "elements/NUXPrefabHouseObject.h"
#include "evaluators/self/NUXElementTypeRule.h"

double floorArea(const NUXPrefabHouseObject& house) {
    return (house.getDepth() / 1000.0) * (house.getRectWidthL() / 1000.0);
}

bool NUXElementTypeRule::isFloorAreaExceeded(const NUXElementObject* element) {
    const auto* house = NUXPrefabHouseObject::Cast(element);
    return house && floorArea(*house) > kMaximumFloorArea;
}
