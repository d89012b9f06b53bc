#include "rules/element_type_names.h"

#include "rules/vocabulary.h"
#include "site/element_type_identifiers.h"

#include <algorithm>
#include <set>

namespace firecheck {

namespace {

const std::string kElementFamily = "NUX_ELEMENT_TYPE_";
const std::string kDrawingObjectFamily = "NUX_EDO_TYPE_";

bool startsWith(const std::string& text, const std::string& prefix) {
    return text.compare(0, prefix.size(), prefix) == 0;
}

std::string inOtherFamily(const std::string& name) {
    if (startsWith(name, kElementFamily))
        return kDrawingObjectFamily + name.substr(kElementFamily.size());
    if (startsWith(name, kDrawingObjectFamily))
        return kElementFamily + name.substr(kDrawingObjectFamily.size());
    return {};
}

/// The identifiers that rules are known to be about.
std::set<std::string> judgedTypes() {
    std::set<std::string> types;
    for (const RuleName& rule : ruleNames())
        types.insert({rule.elementType, rule.referenceElementType});
    for (const DistanceMeasure& measure : distanceMeasures()) {
        types.insert(measure.elementType);
        types.insert(measure.referenceElementTypes.begin(), measure.referenceElementTypes.end());
    }
    types.erase("");
    return types;
}

} // namespace

const std::vector<std::string>& elementTypeNames() {
#define FIRECHECK_NAME(identifier) #identifier,
    static const std::vector<std::string> names = {
        NUX_ELEMENT_FAMILY(FIRECHECK_NAME) NUX_DRAWING_OBJECT_FAMILY(FIRECHECK_NAME)
            NUX_SINGLE_IDENTIFIERS(FIRECHECK_NAME) "NUX_ELEMENT_TYPE_CAR"};
#undef FIRECHECK_NAME
    return names;
}

bool isElementTypeName(const std::string& text) {
    const auto& names = elementTypeNames();
    return std::find(names.begin(), names.end(), text) != names.end();
}

std::string reportedInstead(const std::string& name) {
    static const std::set<std::string> judged = judgedTypes();
    const std::string other = inOtherFamily(name);
    return judged.count(other) > 0 && judged.count(name) == 0 ? other : std::string();
}

} // namespace firecheck
