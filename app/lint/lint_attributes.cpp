#include "lint/lint_attributes.h"

#include "text/nearest_name.h"

#include <algorithm>

namespace firecheck {

void lintUnknownAttributes(const RuleFileNode& node, const std::vector<std::string>& read,
                           LintFindings& findings) {
    for (const RuleFileAttribute& attribute : node.attributes) {
        const bool isOfXml = attribute.name.compare(0, 3, "xml") == 0;
        if (!isOfXml && std::find(read.begin(), read.end(), attribute.name) == read.end())
            findings.add(attribute.place, "unread-attribute",
                         "The attribute \"" + attribute.name + "\" of \"" + node.name + "\" is never read.",
                         nearestOf(attribute.name, read));
    }
}

std::string nearestOf(const std::string& text, const std::vector<std::string>& candidates) {
    return nearestName(text, candidates).value_or(std::string());
}

} // namespace firecheck
