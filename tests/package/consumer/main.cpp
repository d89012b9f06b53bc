// A host in small: one fire road, checked; prints the handle and rule of what is wrong with the road.
#include "base/rooted_file_name.h"
#include "cad/UdApDocManager.h"
#include "elements/NUXRoadObject.h"
#include "engine/NUXCheck.h"
#include "engine/NuxFireStandardCheck.h"

#include <iostream>

int main(int, char** arguments) {
    setDriveRoot(arguments[1]); // where FireStandardCheck.xml lies
    NUXRoadParams road;
    road.isFireRoad = true;
    road.width = 3500;
    road.end = {20000.0, 0.0};
    UdDocManagerPtr()
        ->open(std::make_unique<UdDbDocument>())
        ->Database()
        ->append(std::make_unique<NUXRoadObject>(road), 7);

    NuxFireStandardCheck* check = NUXCheck::instance();
    check->DoCheck();
    for (const NuxStandardCheckRule& violation : check->getMapRules().value("7"))
        std::cout << violation.handle << ' ' << violation.name.toStdString() << '\n';
}
