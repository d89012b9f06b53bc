#include "evaluators/self/prefab_house_room_area.h"

#include "elements/NUXPrefabHouseObject.h"
#include "evaluators/self/NUXElementTypeRule.h"
#include "site/CheckObserver.h"

#include <algorithm>

namespace {

constexpr int kOfficeUse = 0;

} // namespace

std::vector<double> roomAreas(const NUXPrefabHouseObject& house) {
    std::vector<hrx::CVec2<double>> partitions;
    house.getEveryWidth(partitions);
    const double depth = house.getDepth();
    std::vector<double> areas;
    for (std::size_t next = 1; next < partitions.size(); ++next)
        areas.push_back((partitions[next].x - partitions[next - 1].x) / 1000.0 * depth / 1000.0);
    return areas;
}

bool NUXElementTypeRule::isRoomAreaExceeded(const NUXElementObject* element) {
    const auto* house = NUXPrefabHouseObject::Cast(element);
    if (!house || house->houseUse() != kOfficeUse)
        return false;
    observeFound(*house);
    const std::vector<double> areas = roomAreas(*house);
    const auto isTooLarge = [](double area) { return area > kMaximumRoomArea; };
    const auto tooLarge = std::find_if(areas.begin(), areas.end(), isTooLarge);
    if (tooLarge == areas.end())
        return false;
    observeValue(*house, *tooLarge, kMaximumRoomArea);
    return true;
}
