#include "evaluators/CheckObserver.h"

#include "cad/UdDbObject.h"
#include "elements/NUXPrefabHouseObject.h"

namespace firestandard {

namespace {

CheckObserver* theObserver = nullptr;

} // namespace

CheckObserver* checkObserver() {
    return theObserver;
}

void setCheckObserver(CheckObserver* observer) {
    theObserver = observer;
}

MeasuredOutlines measuredOutlines(const UdDbObject& element) {
    MeasuredOutlines outlines;
    outlines.footprint = footprintOutline(&element);
    if (const auto* house = NUXPrefabHouseObject::Cast(&element))
        outlines.withStairs = buildRectParamPolygon(houseRectWithStair(*house));
    return outlines;
}

} // namespace firestandard
