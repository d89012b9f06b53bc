#include "evaluators/position/fire_extinguisher_box.h"

#include "cad/UdDbBlock.h"
#include "elements/NUX3dsBaseObject.h"
#include "elements/NUXOpenHouseObject.h"
#include "elements/NUXPrefabHouseObject.h"
#include "evaluators/position/workshop_use.h"
#include "evaluators/violation_record.h"
#include "site/CheckObserver.h"
#include "site/IdentifierField.h"
#include "site/element_body.h"
#include "site/element_type_identifiers.h"
#include "site/min_body_distance.h"
#include "site/model_space_walk.h"
#include "site/yard_or_3ds_body.h"

#include <algorithm>
#include <iterator>
#include <string_view>

namespace {

constexpr double kMinimumBoxDistance = 0.0;
constexpr double kNotMeasurable =
    99999999999.0; // deliberate: itself not measurable, unlike in the distance rules
constexpr double kBodyHeight = 1.0;

constexpr const char* kYardAndHouseRules[] = {
    "Position_FireExtinguisherBoxToWoodYard",
    "Position_FireExtinguisherBoxToTemplateYard",
    "Position_FireExtinguisherBoxToElectricalMechanicalYard",
    "Position_FireExtinguisherBoxToPrefabHouse",
    "Position_FireExtinguisherBoxToCloseHouse",
    "Position_FireExtinguisherBoxToTransformerSubstation",
};

constexpr WorkshopUse kWorkshopUses[] = {
    {"Position_FireExtinguisherBoxToWoodFactory", 2},
    {"Position_FireExtinguisherBoxToWoodWorkingFactory", 3},
    {"Position_FireExtinguisherBoxToEletricalMechanicalFactory", 4},
};

constexpr std::wstring_view kTypesWithElementBody[] = {
    NUX_EDO_TYPE_TEMPLATEYARD,
    NUX_EDO_TYPE_WOODYARD,
    NUX_EDO_TYPE_ELECTRICALMECHANICALYARD,
    NUX_ELEMENT_TYPE_CLOSEHOUSE,
    NUX_ELEMENT_TYPE_TRANSFORMERSUBSTATION,
};

using Boxes = std::vector<const UdDbObject*>;

Boxes collectBoxes(const UdDbBlock& modelSpace) {
    Boxes boxes;
    walkModelSpace(modelSpace, [&](const UdDbObject* object) {
        const auto* model = NUX3dsBaseObject::Cast(object);
        if (model && model->getModelKind() == NUX_EDO_TYPE_FIREEXTINGUISHERBOX)
            boxes.push_back(object);
    });
    return boxes;
}

/// How one element stands to the boxes of the site.
struct Placement {
    double nearest = kNotMeasurable;
    Boxes misplaced;

    bool isMeasurable() const { return nearest < kNotMeasurable; }
    bool isServed() const { return isRight(nearest); }

    static bool isRight(double distance) {
        return distance > kMinimumBoxDistance && distance <= kMaximumBoxDistance;
    }
};

Placement placementOf(const NUXElementObject& element, std::wstring_view type, const Boxes& boxes,
                      const QString& ruleName) {
    Placement placement;
    for (const UdDbObject* box : boxes) {
        const double distance = boxDistance(element, type, *box, ruleName);
        if (!(distance < kNotMeasurable))
            continue;
        observePair(element, *box, distance);
        placement.nearest = std::min(placement.nearest, distance);
        if (!Placement::isRight(distance))
            placement.misplaced.push_back(box);
    }
    return placement;
}

bool needsBox(const NUXElementObject& element, std::wstring_view type, const QString& ruleName) {
    if (type != NUX_ELEMENT_TYPE_OPENHOUSE)
        return true;
    const auto* shed = NUXOpenHouseObject::Cast(&element);
    return shed && isWorkshopOfRule(kWorkshopUses, ruleName, shed->openHouseUse());
}

BodyList listOf(BodyPtr body) {
    BodyList bodies;
    if (body)
        bodies.push_back(std::move(body));
    return bodies;
}

BodyList elementBodies(const NUXElementObject& element) {
    BodyPtr body;
    buildElementBody(&element, kBodyHeight, body);
    return listOf(std::move(body));
}

BodyList boxBodies(const UdDbObject& box) {
    BodyPtr body;
    buildYardOr3dsBody(&box, body);
    return listOf(std::move(body));
}

} // namespace

bool isFireExtinguisherBoxRule(const QString& ruleName) {
    const auto isName = [&](const char* name) { return ruleName == QLatin1String(name); };
    const auto isRow = [&](const WorkshopUse& row) { return isName(row.ruleName); };
    return std::any_of(std::begin(kYardAndHouseRules), std::end(kYardAndHouseRules), isName) ||
           std::any_of(std::begin(kWorkshopUses), std::end(kWorkshopUses), isRow);
}

std::vector<NuxStandardCheckRule> checkFireExtinguisherBoxes(const UdDbBlock& modelSpace,
                                                             const NuxStandardCheckRule& rule) {
    const Boxes boxes = collectBoxes(modelSpace);
    const IdentifierField examinedType(rule.elementType);
    std::vector<NuxStandardCheckRule> violations;
    walkModelSpace(modelSpace, [&](const UdDbObject* object) {
        const auto* element = NUXElementObject::Cast(object);
        if (!element)
            return WalkStep::Continue;
        const std::wstring type = element->getElementType();
        if (!examinedType.matches(type))
            return WalkStep::Continue;
        observeFound(*object);
        if (boxes.empty()) {
            if (needsBox(*element, type, rule.name))
                violations.push_back(violationOf(rule, *object));
            return WalkStep::Continue;
        }
        const Placement placement = placementOf(*element, type, boxes, rule.name);
        if (!placement.isMeasurable())
            return WalkStep::Stop;
        if (!placement.isServed()) {
            violations.push_back(violationOf(rule, *object));
            for (const UdDbObject* box : placement.misplaced)
                relate(violations.back(), *box);
        }
        return WalkStep::Continue;
    });
    return violations;
}

double boxDistance(const NUXElementObject& element, std::wstring_view type, const UdDbObject& box,
                   const QString& ruleName) {
    const bool hasElementBody = std::find(std::begin(kTypesWithElementBody), std::end(kTypesWithElementBody),
                                          type) != std::end(kTypesWithElementBody);
    if (hasElementBody)
        return minBodyDistance(elementBodies(element), boxBodies(box));
    if (type == NUX_ELEMENT_TYPE_PREFABHOUSE) {
        const auto* house = NUXPrefabHouseObject::Cast(&element);
        return minBodyDistance(listOf(house ? buildHouseWithStairBody(*house, kBodyHeight) : nullptr),
                               boxBodies(box));
    }
    if (type == NUX_ELEMENT_TYPE_OPENHOUSE) {
        const auto* shed = NUXOpenHouseObject::Cast(&element);
        if (!shed)
            return 0.0;
        if (isWorkshopOfRule(kWorkshopUses, ruleName, shed->openHouseUse()))
            return minBodyDistance(elementBodies(element), boxBodies(box));
    }
    return kNoBodyDistance;
}
