// All rules that come with the library, on a drawing that has something for each of them, run through the
// shared library. Prints the operations that the host was asked for; on standard error, what was wrong.
#include "engine/NUXCheck.h"
#include "engine/NuxFireStandardCheck.h"
#include "watching_host.h"

#include <iostream>

namespace {

Objects& objects() {
    return UdDocManagerPtr()->document.database.modelSpace.objects;
}

template <class Element, class... Arguments> Element* append(Arguments&&... arguments) {
    objects().push_back(std::make_unique<Element>(std::forward<Arguments>(arguments)...));
    objects().back()->handle = static_cast<long long>(objects().size());
    return static_cast<Element*>(objects().back().get());
}

/// Checks with what was appended last at the end, which is what the headroom rule looks at; the types of the
/// rules that found something.
std::set<QString> checked() {
    NUXCheck::instance()->DoCheck();
    std::set<QString> types;
    for (const auto& filed : NUXCheck::instance()->getMapRules())
        for (const NuxStandardCheckRule& record : filed)
            types.insert(record.type);
    return types;
}

int roadCount = 0;

void appendRoad(const Place& place) {
    append<NUXRoadObject>(L"NUX_EDO_TYPE_ROAD", place);
    ++roadCount;
}

void appendSite() {
    appendRoad({0, 0, 1000, 0, 9});
    appendRoad({500, 0, 1000, 0, 10});
    for (const double x : {0.0, 3000.0})
        append<NUXPrefabHouseObject>(L"NUX_ELEMENT_TYPE_PREFABHOUSE", Place{x, 0});
    append<NUXPrefabHouseObject>(L"NUX_ELEMENT_TYPE_PREFABHOUSE", Place{0, 0, 60000}); // its body is refused
    append<NUXBaseObject>(L"NUX_ELEMENT_TYPE_FUTUREHOUSE", Place{0, 0});
    append<NUXBaseObject>(L"NUX_ELEMENT_TYPE_FUTUREHOUSE", Place{0, 0, 60000});
    append<NUXBaseObject>(L"NUX_ELEMENT_TYPE_TRANSFORMERSUBSTATION", Place{0, 0, 100, 100, 4});
    append<NUXTotalStepDownSubstationObject>(L"NUX_ELEMENT_TYPE_TOTALSTEPDOWNSUBSTATION", Place{});
    append<NUXYardOBJObject>(L"NUX_EDO_TYPE_WOODYARD", Place{});
    for (const std::uint32_t shapeKind : {3u, 4u, 5u, 0u})
        append<NUXYardObject>(L"NUX_EDO_TYPE_WOODYARD", Place{0, 0, 2000, 1000, shapeKind});
    append<NUXOpenHouseObject>(L"NUX_ELEMENT_TYPE_OPENHOUSE", Place{});
    append<NUXCloseHouseObject>(L"NUX_ELEMENT_TYPE_CLOSEHOUSE", Place{});
    append<NUXWastePoolObject>(L"NUX_EDO_TYPE_WASTEPOOL", Place{});
    append<NUXBaseObject>(L"NUX_EDO_TYPE_FIREEXTINGUISHERBOX", Place{900, 0});
    append<NUX3dsObject>();
    auto* const door = append<NUXDoorObject>(L"NUX_EDO_TYPE_DOOR", Place{0, 0, 900, 100, 0});
    using Point = NUXWallObject::PlanPoint;
    using Doors = NUXWallObject::Doors;
    const DoorData opening{false, {door}};
    append<NUXWallObject>(L"NUX_ELEMENT_TYPE_WALL", Point{0, 0}, Point{5000, 0}, Doors{{1, opening}});
    append<NUXWallObject>(L"NUX_ELEMENT_TYPE_WALL", Point{5000, 0}, Point{9000, 1000}, Doors{{1, opening}});
    append<NUXWallObject>(L"NUX_ELEMENT_TYPE_WALL", Point{0, 9000}, Point{0, 9500},
                          Doors{{1, opening}, {2, opening}});
    append<NUXElementObject>(L"\xFEFFNUX_EDO_TYPE_ROAD"); // the host takes the mark off
}

/// All that is looked at as the last object.
std::set<QString> checkEachAsTheLast() {
    std::set<QString> types = checked();
    const auto check = [&types] { types.merge(checked()); };
    for (const int drawType : {0, 1, 2}) {
        append<NUXPosterObject>(L"NUX_ELEMENT_TYPE_POSTER", drawType);
        check();
    }
    for (const std::uint32_t shapeKind : {9u, 10u}) {
        append<NUXServiceCableObject>(L"NUX_EDO_TYPE_SERVICECABLE", Place{0, 0, 2000, 0, shapeKind});
        check();
    }
    append<NUX3dsObject>();
    check();
    append<NUXDoorObject>(L"NUX_EDO_TYPE_WALL", Place{0, 0, 900, 100, 0});
    check();
    append<NUXBaseObject>(L"NUX_ELEMENT_TYPE_FUTUREHOUSE", Place{0, 0, 60000});
    check();
    append<NUXTowerCraneObject>(L"NUX_EDO_TYPE_TOWERCRANE");
    watch::bodyDistances = 0;
    check();
    watch::require(watch::bodyDistances == 3 * roadCount,
                   "not each part of a crane is measured once its first touches");
    return types;
}

} // namespace

int main() {
    appendSite();
    watch::require(checkEachAsTheLast() == std::set<QString>{"distant", "position", "self", "without"},
                   "a type of rule finds nothing");
    watch::require(watch::bodiesAlive == 0, "a solid is not released");
    watch::require(watch::outlinesAlive == roadCount, "an outline is not released, or a road's is");
    watch::require(watch::iteratorsAlive == 0, "an iterator is not released");
    for (const std::string& operation : watch::asked)
        std::cout << operation << '\n';
    for (const std::string& mistake : watch::mistakes)
        std::cerr << mistake << '\n';
    return watch::mistakes.empty() ? 0 : 1;
}
