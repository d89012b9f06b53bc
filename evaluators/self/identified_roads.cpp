#include "evaluators/self/identified_roads.h"

#include "cad/UdDbBlock.h"
#include "elements/NUXRoadObject.h"
#include "site/element_type_identifiers.h"
#include "site/model_space_walk.h"

std::vector<const NUXRoadObject*> identifiedRoads(const UdDbBlock& modelSpace) {
    std::vector<const NUXRoadObject*> roads;
    walkModelSpace(modelSpace, [&](const UdDbObject* object) {
        const auto* element = NUXElementObject::Cast(object);
        if (!element || element->getElementType() != NUX_EDO_TYPE_ROAD)
            return;
        if (const auto* road = NUXRoadObject::Cast(element))
            roads.push_back(road);
    });
    return roads;
}
