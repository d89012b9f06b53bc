#include "lint/lint_attributes.h"

#include "text/nearest_name.h"
#include "text/words.h"

#include <algorithm>

namespace firecheck {

void lintUnknownAttributes(const RuleFileNode& node, const std::vector<std::string>& read,
                           LintFindings& findings) {
    for (const RuleFileAttribute& attribute : node.attributes) {
        const bool isOfXml = attribute.name.compare(0, 3, "xml") == 0;
        if (!isOfXml && std::find(read.begin(), read.end(), attribute.name) == read.end())
            findings.add(
                attribute.place, "unread-attribute",
                filled(Words::tr("The attribute \"%1\" of \"%2\" is never read."), attribute.name, node.name),
                nearestOf(attribute.name, read));
    }
}

std::string nearestOf(const std::string& text, const std::vector<std::string>& candidates) {
    return nearestName(text, candidates).value_or(std::string());
}

} // namespace firecheck
