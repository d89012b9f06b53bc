// A narrow road and a house 5.95 m from a shed: both must be found, under the handles that this host gives.
#include "engine/NUXCheck.h"
#include "engine/NuxFireStandardCheck.h"
#include "tiny_host.h"

#include <iostream>

namespace {

template <class Element> Element& append(long long handle, const wchar_t* type) {
    auto element = std::make_unique<Element>();
    Element& appended = *element;
    appended.handle = handle;
    appended.type = type;
    UdDocManagerPtr()->document.database.modelSpace.objects.push_back(std::move(element));
    return appended;
}

template <class Element> void appendBuilding(long long handle, const wchar_t* type, double x) {
    Element& building = append<Element>(handle, type);
    building.centre = {x, 0.0, 0.0};
    building.length = 2000.0;
    building.depth = 1000.0;
}

} // namespace

int main() {
    append<NUXRoadObject>(1, L"NUX_EDO_TYPE_ROAD");
    appendBuilding<NUXPrefabHouseObject>(2, L"NUX_ELEMENT_TYPE_PREFABHOUSE", 0.0);
    appendBuilding<NUXOpenHouseObject>(3, L"NUX_ELEMENT_TYPE_OPENHOUSE", 7950.0);
    NUXCheck::instance()->DoCheck();
    const QStringList found = NUXCheck::instance()->getMapRulesCheckState().keys();
    std::cout << found.join(' ').toStdString() << '\n';
    return found == QStringList{"1:Self_RoadMinWidth", "2:Distant_PrefabHouseToWoodFactory"} ? 0 : 1;
}
