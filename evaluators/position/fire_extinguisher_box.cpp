#include "evaluators/position/fire_extinguisher_box.h"

#include "cad/UdDbBlock.h"
#include "elements/NUX3dsBaseObject.h"
#include "elements/NUXOpenHouseObject.h"
#include "elements/NUXPrefabHouseObject.h"
#include "evaluators/RuleOutcome.h"
#include "site/IdentifierField.h"
#include "site/element_type_identifiers.h"
#include "site/model_space_walk.h"

#include <algorithm>
#include <iterator>
#include <string_view>

namespace firestandard {

namespace {

constexpr double kMinimumBoxDistance = 0.0;
// Deliberate: itself not measurable, unlike in the distance rules, where the mark still is a distance.
constexpr double kNotMeasurable = 99999999999.0;

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

struct ExaminedElement {
    const NUXElementObject* element;
    std::wstring_view type;
};

bool isWorkshopOfRule(const NUXOpenHouseObject* shed, const RuleRow& row) {
    return shed && row.use.isOpenShedOf(shed->openHouseUse());
}

struct BoxDistance {
    double distance;
    std::optional<Contact> contact; ///< nothing where the distance is none or was not measured
};

BoxDistance between(const BodyList& element, const UdDbObject& box) {
    const auto contact = leastContact(element, yardOr3dsBodies(&box));
    return {contact ? contact->distance : kNoBodyDistance, contact};
}

/// The clear distance in millimetres between an element and a box, both as solids 1.0 high. kNoBodyDistance
/// when either has no body, as an open shed of another use than the rule asks for; 0.0 when the element only
/// claims to be an open shed.
BoxDistance boxDistance(const ExaminedElement& examined, const UdDbObject& box, const RuleRow& row) {
    const auto& [element, type] = examined;
    if (std::find(std::begin(kTypesWithElementBody), std::end(kTypesWithElementBody), type) !=
        std::end(kTypesWithElementBody))
        return between(elementBodies(element), box);
    if (type == NUX_ELEMENT_TYPE_PREFABHOUSE) {
        const auto* house = NUXPrefabHouseObject::Cast(element);
        return between(house ? houseWithStairBodies(*house) : BodyList(), box);
    }
    if (type == NUX_ELEMENT_TYPE_OPENHOUSE) {
        const auto* shed = NUXOpenHouseObject::Cast(element);
        if (!shed)
            return {0.0, std::nullopt};
        if (isWorkshopOfRule(shed, row))
            return between(elementBodies(element), box);
    }
    return {kNoBodyDistance, std::nullopt};
}

bool isRight(double distance) {
    return distance > kMinimumBoxDistance && distance <= kMaximumBoxDistance;
}

class BoxWalk {
public:
    BoxWalk(const UdDbBlock& modelSpace, const NuxStandardCheckRule& rule, const RuleRow& row)
        : m_modelSpace(modelSpace), m_boxes(collectBoxes(modelSpace)), m_row(row),
          m_examinedType(rule.elementType), m_outcome(rule) {}

    std::vector<NuxStandardCheckRule> violations() {
        walkModelSpace(m_modelSpace, [&](const UdDbObject* object) {
            const auto* element = NUXElementObject::Cast(object);
            if (!element)
                return WalkStep::Continue;
            const std::wstring type = element->getElementType();
            if (!m_examinedType.matches(type))
                return WalkStep::Continue;
            if (m_hasEnded)
                m_outcome.observer()->notJudged(*element, NotJudged::RuleEndedBefore);
            else if (m_boxes.empty())
                judgeWithoutBoxes({element, type});
            else
                judge({element, type});
            return m_hasEnded && !m_outcome.observer() ? WalkStep::Stop : WalkStep::Continue;
        });
        return m_outcome.takeViolations();
    }

private:
    void judgeWithoutBoxes(const ExaminedElement& examined) {
        const bool isOtherShed = examined.type == NUX_ELEMENT_TYPE_OPENHOUSE &&
                                 !isWorkshopOfRule(NUXOpenHouseObject::Cast(examined.element), m_row);
        if (!isOtherShed)
            m_outcome.addViolation(*examined.element);
        CheckObserver* observer = m_outcome.observer();
        if (observer && isOtherShed)
            observer->notJudged(*examined.element, NotJudged::OtherUse);
        else if (observer)
            observer->compared({*examined.element, nullptr, true});
    }

    void judge(const ExaminedElement& examined) {
        CheckObserver* const observer = m_outcome.observer();
        double nearest = kNotMeasurable;
        Boxes misplaced;
        std::vector<Comparison> comparisons; // whether they offend is known after the last box
        for (const UdDbObject* box : m_boxes) {
            const auto [distance, contact] = boxDistance(examined, *box, m_row);
            if (!(distance < kNotMeasurable))
                continue;
            nearest = std::min(nearest, distance);
            if (!isRight(distance))
                misplaced.push_back(box);
            if (observer)
                comparisons.push_back({*examined.element, box, !isRight(distance),
                                       atMost(Quantity::Distance, distance, kMaximumBoxDistance), contact});
        }
        if (!(nearest < kNotMeasurable)) {
            // Deliberate: what follows in the drawing is not judged; existing results depend on it.
            m_hasEnded = true;
            if (observer)
                observer->notJudged(*examined.element, NotJudged::NoBoxMeasurable);
            return;
        }
        const bool offends = !isRight(nearest);
        for (Comparison& comparison : comparisons) {
            comparison.offends = comparison.offends && offends;
            observer->compared(comparison);
        }
        if (!offends)
            return;
        NuxStandardCheckRule& violation = m_outcome.addViolation(*examined.element);
        for (const UdDbObject* box : misplaced)
            relate(violation, *box);
    }

    const UdDbBlock& m_modelSpace;
    const Boxes m_boxes;
    const RuleRow& m_row;
    const IdentifierField m_examinedType;
    RuleOutcome m_outcome;
    bool m_hasEnded = false; ///< after that the walk only goes on to tell what was not judged
};

} // namespace

std::vector<NuxStandardCheckRule> checkFireExtinguisherBoxes(const UdDbBlock& modelSpace,
                                                             const NuxStandardCheckRule& rule,
                                                             const RuleRow& row) {
    return BoxWalk(modelSpace, rule, row).violations();
}

} // namespace firestandard
