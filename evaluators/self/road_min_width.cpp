#include "evaluators/self/road_min_width.h"

#include "elements/NUXRoadObject.h"
#include "evaluators/self/NUXElementTypeRule.h"
#include "site/CheckObserver.h"

bool NUXElementTypeRule::isFireRoadTooNarrow(const NUXElementObject* element) {
    const auto* road = NUXRoadObject::Cast(element);
    if (!road || !road->getIsFireRoad())
        return false;
    observeFound(*road);
    observeValue(*road, road->getWidth(), kMinimumFireRoadWidth);
    return kMinimumFireRoadWidth > road->getWidth();
}
