#include "rules/rule_texts.h"

#include "explain/rule_text_fields.h"

namespace firecheck {

Json ruleTexts(const NuxStandardCheckRule& rule) {
    Json texts;
    for (const auto& [name, member] : firestandard::ruleTextFields())
        texts[name] = (rule.*member).toStdString();
    return texts;
}

} // namespace firecheck
