#include "check/judged_rules.h"

#include "evaluators/position/fire_extinguisher_box.h"
#include "rules/rule_fields.h"
#include "rules/vocabulary.h"

#include <algorithm>
#include <set>
#include <vector>

namespace {

/// Tells rules apart by all their texts.
QString textsOf(const NuxStandardCheckRule& rule) {
    QString texts;
    for (const RuleTextField& field : ruleTextFields())
        texts += rule.*field.member + QChar(0);
    return texts;
}

/// Absence and distance rules are judged under any name.
bool hasEvaluator(const NuxStandardCheckRule& rule) {
    if (rule.type == QLatin1String("without") || rule.type == QLatin1String("distant"))
        return true;
    const RuleName* known = findRuleName(rule.name.toStdString());
    return known && known->type == rule.type.toStdString();
}

JudgedRule::Verdict verdictOf(const JudgedRule& judged) {
    if (!hasEvaluator(judged.rule))
        return JudgedRule::Verdict::NoEvaluator;
    if (judged.violations > 0 || judged.rule.type == QLatin1String("without"))
        return JudgedRule::Verdict::Judged;
    const bool compares =
        judged.rule.type == QLatin1String("distant") || isFireExtinguisherBoxRule(judged.rule.name);
    const bool hasCompared = !compares || judged.pairs > 0;
    return judged.found > 0 && hasCompared ? JudgedRule::Verdict::Judged
                                           : JudgedRule::Verdict::NothingToJudge;
}

std::string noteOf(const JudgedRule& judged, const RuleRun& run, bool hasBoxes) {
    if (isFireExtinguisherBoxRule(run.rule.name) && hasBoxes && run.unmeasured)
        return "ended at #" + std::to_string(*run.unmeasured) +
               ", to which no box has a measurable distance; what follows it in the drawing was not judged";
    if (run.rule.name == QLatin1String("Position_FireRoad") && judged.found > 0)
        return "looks at the last object of the drawing only";
    return {};
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
                                    const std::vector<NuxStandardCheckRule>& rules, bool hasBoxes) {
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
        if (run) {
            judged.found = run->found;
            judged.pairs = run->pairCount;
            judged.time = run->time;
            judged.note = noteOf(judged, *run, hasBoxes);
        }
        judged.verdict = verdictOf(judged);
        result.push_back(std::move(judged));
    }
    return result;
}
