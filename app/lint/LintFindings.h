#pragma once

#include "lint/RuleFileNode.h"

#include <string>
#include <vector>

namespace firecheck {

/// Something in a rule file that the library passes over in silence.
struct LintFinding {
    Place place;
    std::string code; ///< the kind of finding, for programs
    std::string rule; ///< the tag name of the rule concerned; empty for none
    std::string message;
    std::string suggestion; ///< what was probably meant; empty when nothing is near
};

/// The findings on one rule, or on what lies outside rules.
class LintFindings {
public:
    LintFindings(std::vector<LintFinding>& findings, std::string rule = {})
        : m_findings(findings), m_rule(std::move(rule)) {}

    void add(const Place& place, const std::string& code, const std::string& message,
             const std::string& suggestion = {}) {
        m_findings.push_back({place, code, m_rule, message, suggestion});
    }

private:
    std::vector<LintFinding>& m_findings;
    const std::string m_rule;
};

} // namespace firecheck
