#include "lint/lint_rule_file.h"

#include "InputError.h"
#include "lint/lint_attributes.h"
#include "lint/lint_rule.h"
#include "rules/vocabulary.h"
#include "text/words.h"

#include <algorithm>
#include <map>
#include <tuple>

namespace firecheck {

namespace {

using Kind = RuleFileNode::Kind;

class FileLinter {
public:
    std::vector<LintFinding> findingsOn(const RuleFileNodes& file) {
        if (file.wrongBytes)
            m_outside.add(
                *file.wrongBytes, "wrong-bytes",
                filled(Words::tr(
                    "These bytes are no text in the encoding of the file, which is UTF-8 unless it declares another: texts come out garbled.")));
        lintUnknownAttributes(file.root, {}, m_outside);
        for (const RuleFileNode& node : file.root.children)
            lintGroup(node);
        std::stable_sort(
            m_findings.begin(), m_findings.end(), [](const LintFinding& a, const LintFinding& b) {
                return std::tie(a.place.line, a.place.column) < std::tie(b.place.line, b.place.column);
            });
        return std::move(m_findings);
    }

    /// As many as the rule store makes of the file.
    std::size_t recordCount() const { return m_recordCount; }

private:
    void lintGroup(const RuleFileNode& group) {
        if (group.kind == Kind::Text)
            m_outside.add(group.place, "unread-text",
                          filled(Words::tr("Text between the groups is not read.")));
        if (group.kind != Kind::Element)
            return;
        m_recordCount += group.children.size();
        if (group.attribute("Type") || findRuleName(group.name)) {
            m_outside.add(
                group.place, "rule-outside-group",
                filled(
                    Words::tr(
                        "\"%1\" stands directly in the document element and is taken for a group: put it into one."),
                    group.name));
            return;
        }
        lintUnknownAttributes(group, {}, m_outside);
        for (const RuleFileNode& node : group.children) {
            if (node.kind == Kind::Element)
                lintRuleElement(node);
            else
                lintEmptyRecord(node);
        }
    }

    void lintEmptyRecord(const RuleFileNode& node) {
        const QString message =
            node.kind == Kind::Comment
                ? Words::tr("A comment in a group becomes an empty rule: put it between the groups.")
            : node.kind == Kind::Text
                ? Words::tr("Text in a group becomes an empty rule: put it between the groups.")
                : Words::tr(
                      "A processing instruction in a group becomes an empty rule: put it between the groups.");
        m_outside.add(node.place, "empty-record", filled(message));
    }

    void lintRuleElement(const RuleFileNode& rule) {
        LintFindings findings(m_findings, rule.name);
        lintRule(rule, findings);
        const bool isAbsenceRule = rule.value("Type") == "without";
        const std::string key =
            isAbsenceRule ? rule.value("ElementType") + rule.value("PropertyType") : rule.name;
        const auto [first, isNew] = m_keys.emplace(key, rule.place.line);
        if (!isNew)
            findings.add(rule.place, "colliding-key",
                         filled(Words::tr("The rule is filed under the key \"%1\", like the one in line %2."),
                                key, first->second));
    }

    std::vector<LintFinding> m_findings;
    LintFindings m_outside{m_findings};
    std::map<std::string, int> m_keys;
    std::size_t m_recordCount = 0;
};

} // namespace

std::vector<LintFinding> lintRuleFile(const std::string& fileName) {
    FileLinter linter;
    std::vector<LintFinding> findings = linter.findingsOn(readRuleFileNodes(fileName));
    if (linter.recordCount() == 0)
        throw InputError(fileName + ": " + filled(Words::tr("expected at least one rule")));
    return findings;
}

} // namespace firecheck
