#include "evaluators/self/road_min_width.h"

#include "elements/NUXRoadObject.h"
#include "evaluators/self/NUXElementTypeRule.h"

bool NUXElementTypeRule::isFireRoadTooNarrow(const NUXElementObject* element) {
    const auto* road = NUXRoadObject::Cast(element);
    return road && road->getIsFireRoad() && kMinimumFireRoadWidth > road->getWidth();
}
