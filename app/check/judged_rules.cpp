#include "check/judged_rules.h"

#include "evaluators/rule_catalogue.h"
#include "rules/rule_fields.h"
#include "rules/rule_wording.h"

#include <algorithm>
#include <set>
#include <vector>

namespace firecheck {

using firestandard::NotJudged;
using firestandard::RuleRow;

namespace {

/// Tells rules apart by all their texts.
QString textsOf(const NuxStandardCheckRule& rule) {
    QString texts;
    for (const RuleTextField& field : ruleTextFields())
        texts += rule.*field.member + QChar(0);
    return texts;
}

JudgedRule::Verdict verdictOf(const JudgedRule& judged, const RuleRun* run) {
    if (!firestandard::isJudged(judged.rule))
        return JudgedRule::Verdict::NoEvaluator;
    const bool isAbsenceRule = judged.rule.type == QLatin1String("without");
    return judged.violations > 0 || isAbsenceRule || (run && run->judged > 0)
               ? JudgedRule::Verdict::Judged
               : JudgedRule::Verdict::NothingToJudge;
}

std::string noteOf(const NuxStandardCheckRule& rule, const RuleRun& run) {
    const auto end = std::find_if(run.unjudged.begin(), run.unjudged.end(), [](const UnjudgedElement& one) {
        return one.why == NotJudged::NoBoxMeasurable;
    });
    if (end != run.unjudged.end())
        return "ended at #" + std::to_string(end->element) +
               ", to which no box has a measurable distance; what follows it in the drawing was not judged";
    const RuleRow* row = firestandard::findRule(rule.name, rule.type);
    const bool hasFound = run.judged > 0 || !run.unjudged.empty();
    return row && hasFound ? findRuleWording(row->name)->note : std::string();
}

/// Elements of another use are not what the rule is about.
void takeFrom(const RuleRun& run, JudgedRule& judged) {
    judged.found = run.judged;
    for (const UnjudgedElement& element : run.unjudged) {
        if (element.why == NotJudged::OtherUse)
            continue;
        ++judged.found;
        ++judged.unjudged[element.why];
    }
    judged.pairs = run.pairCount;
    judged.time = run.time;
    judged.note = noteOf(judged.rule, run);
}

} // namespace

RuleRuns::RuleRuns(std::vector<RuleRun> runs) : m_runs(std::move(runs)) {
    for (std::size_t i = m_runs.size(); i-- > 0;)
        m_indexByTexts[textsOf(m_runs[i].rule)] = i;
}

const RuleRun* RuleRuns::of(const NuxStandardCheckRule& rule) const {
    const auto found = m_indexByTexts.find(textsOf(rule));
    return found == m_indexByTexts.end() ? nullptr : &m_runs[found.value()];
}

std::vector<JudgedRule> judgedRules(const SiteReport& report, const RuleRuns& runs,
                                    const std::vector<NuxStandardCheckRule>& rules) {
    QMap<QString, std::vector<qint64>> handlesByRule;
    for (const Finding& finding : report.findings) {
        const NuxStandardCheckRule& record = report.record(finding);
        handlesByRule[textsOf(record)].push_back(record.handle);
    }

    std::vector<JudgedRule> result;
    std::set<QString> listed;
    for (const NuxStandardCheckRule& rule : rules) {
        const QString texts = textsOf(rule);
        if (!listed.insert(texts).second)
            continue;
        JudgedRule judged;
        judged.rule = rule;
        const std::vector<qint64> handles = handlesByRule.value(texts);
        judged.violations = handles.size();
        std::set<qint64> offending(handles.begin(), handles.end());
        offending.erase(0);
        judged.offending = offending.size();
        const RuleRun* run = runs.of(rule);
        if (run)
            takeFrom(*run, judged);
        judged.verdict = verdictOf(judged, run);
        result.push_back(std::move(judged));
    }
    return result;
}

} // namespace firecheck
