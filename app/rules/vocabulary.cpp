#include "rules/vocabulary.h"

#include "rules/rule_families.h"

#include <algorithm>

namespace {

template <class Entry>
const Entry* find(const std::vector<Entry>& entries, std::string Entry::*key, const std::string& wanted) {
    const auto found = std::find_if(entries.begin(), entries.end(),
                                    [&](const Entry& entry) { return entry.*key == wanted; });
    return found == entries.end() ? nullptr : &*found;
}

std::vector<RuleName> allRuleNames() {
    std::vector<RuleName> names;
    for (const auto& family : {selfRuleNames(), distantRuleNames(), positionRuleNames(), withoutRuleNames()})
        names.insert(names.end(), family.begin(), family.end());
    return names;
}

} // namespace

const std::vector<RuleName>& ruleNames() {
    static const std::vector<RuleName> names = allRuleNames();
    return names;
}

const RuleName* findRuleName(const std::string& name) {
    return find(ruleNames(), &RuleName::name, name);
}

const std::vector<std::string>& ruleTypes() {
    static const std::vector<std::string> types = {"self", "distant", "position", "without"};
    return types;
}

std::vector<std::string> attributesRead(const std::string& type) {
    if (type == "distant")
        return {"ElementType", "ReferenceElementType", "ConstraintCondition", "DistantValue"};
    if (type == "without")
        return {"ElementType", "PropertyType"};
    return {};
}

const std::vector<DistanceMeasure>& distanceMeasures() {
    static const std::vector<DistanceMeasure> measures = {
        {"NUX_ELEMENT_TYPE_PREFABHOUSE",
         {"NUX_ELEMENT_TYPE_PREFABHOUSE", "NUX_ELEMENT_TYPE_FUTUREHOUSE",
          "NUX_ELEMENT_TYPE_TRANSFORMERSUBSTATION", "NUX_ELEMENT_TYPE_OPENHOUSE", "NUX_EDO_TYPE_WOODYARD",
          "NUX_EDO_TYPE_TEMPLATEYARD", "NUX_EDO_TYPE_ELECTRICALMECHANICALYARD", "NUX_EDO_TYPE_ROAD"},
         "Stairs included; of the roads only fire roads count; prefab houses among themselves are measured "
         "once a "
         "pair, and reported under the earlier."},
        {"NUX_ELEMENT_TYPE_FUTUREHOUSE",
         {"NUX_ELEMENT_TYPE_BOXHOUSE", "NUX_ELEMENT_TYPE_CLOSEHOUSE", "NUX_ELEMENT_TYPE_CHAYANTING",
          "NUX_ELEMENT_TYPE_MIXSITE", "NUX_ELEMENT_TYPE_OPENHALFHOUSE", "NUX_ELEMENT_TYPE_OPENHOUSE",
          "NUX_EDO_TYPE_ANQUANJT", "NUX_EDO_TYPE_WOODYARD", "NUX_EDO_TYPE_TEMPLATEYARD",
          "NUX_EDO_TYPE_ELECTRICALMECHANICALYARD"},
         ""},
        {"NUX_ELEMENT_TYPE_TRANSFORMERSUBSTATION",
         {"NUX_ELEMENT_TYPE_TRANSFORMERSUBSTATION", "NUX_ELEMENT_TYPE_TOTALSTEPDOWNSUBSTATION",
          "NUX_ELEMENT_TYPE_OPENHOUSE", "NUX_EDO_TYPE_WOODYARD", "NUX_EDO_TYPE_TEMPLATEYARD",
          "NUX_EDO_TYPE_ELECTRICALMECHANICALYARD"},
         "A rule from transformer substations to themselves spaces the total step-down substations instead, "
         "once a "
         "pair."},
        {"NUX_EDO_TYPE_ROAD",
         {"NUX_ELEMENT_TYPE_FUTUREHOUSE", "NUX_EDO_TYPE_WOODYARD", "NUX_EDO_TYPE_TEMPLATEYARD",
          "NUX_EDO_TYPE_ELECTRICALMECHANICALYARD"},
         "Fire roads only; other roads are passed over."},
    };
    return measures;
}

const DistanceMeasure* findDistanceMeasure(const std::string& elementType) {
    return find(distanceMeasures(), &DistanceMeasure::elementType, elementType);
}
