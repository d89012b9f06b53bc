#include "explain/rule_text_fields.h"

namespace firestandard {

const std::array<RuleTextField, 13>& ruleTextFields() {
    using Rule = NuxStandardCheckRule;
    static const std::array<RuleTextField, 13> fields = {{
        {"name", &Rule::name},
        {"type", &Rule::type},
        {"elementType", &Rule::elementType},
        {"propertyType", &Rule::propertyType},
        {"standard", &Rule::standard},
        {"objName", &Rule::objName},
        {"referenceObjName", &Rule::referenceObjName},
        {"ruleDescription", &Rule::ruleDescription},
        {"ruleCatalog", &Rule::ruleCatalog},
        {"ruleDetailDescription", &Rule::ruleDetailDescription},
        {"referenceElementType", &Rule::referenceElementType},
        {"constraintCondition", &Rule::constraintCondition},
        {"distantValue", &Rule::distantValue},
    }};
    return fields;
}

} // namespace firestandard
