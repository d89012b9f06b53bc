#include "evaluators/self/prefab_house.h"

#include "elements/NUXPrefabHouseObject.h"
#include "evaluators/rule_catalogue.h"
#include "site/host_codes.h"

#include <algorithm>

using namespace firestandard;

namespace {

constexpr int kOfficeUse = 0;

} // namespace

namespace firestandard {

double floorArea(const NUXPrefabHouseObject& house) {
    return (house.getDepth() / kMillimetresPerMetre) * (house.getRectWidthL() / kMillimetresPerMetre);
}

bool isOffice(const NUXPrefabHouseObject& house) {
    return house.houseUse() == kOfficeUse;
}

std::vector<double> roomAreas(const NUXPrefabHouseObject& house) {
    std::vector<hrx::CVec2<double>> partitions;
    house.getEveryWidth(partitions);
    const double depth = house.getDepth();
    std::vector<double> areas;
    for (std::size_t next = 1; next < partitions.size(); ++next)
        areas.push_back((partitions[next].x - partitions[next - 1].x) / kMillimetresPerMetre * depth /
                        kMillimetresPerMetre);
    return areas;
}

} // namespace firestandard

bool isRoomAreaExceeded(const NUXElementObject* element) {
    const auto* house = NUXPrefabHouseObject::Cast(element);
    if (!house || !isOffice(*house))
        return false;
    const std::vector<double> areas = roomAreas(*house);
    return std::any_of(areas.begin(), areas.end(), [](double area) { return area > kMaximumRoomArea; });
}

bool isStairsMissing(const NUXElementObject* element) {
    const auto* house = NUXPrefabHouseObject::Cast(element);
    if (!house)
        return false;
    if (floorArea(*house) <= kLargestAreaWithoutStairs && house->getFloorCount() < kFewestFloorsWithStairs)
        return false;
    return house->getStairPosition() != stair::kAtBothEnds;
}
