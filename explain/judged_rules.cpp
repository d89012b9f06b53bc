#include "explain/judged_rules.h"

#include "evaluators/rule_catalogue.h"
#include "explain/Words.h"
#include "explain/rule_text_fields.h"
#include "explain/rule_wording.h"

#include <algorithm>
#include <set>
#include <vector>

namespace firestandard {

namespace {

bool haveSameTexts(const NuxStandardCheckRule& a, const NuxStandardCheckRule& b) {
    const auto& fields = ruleTextFields();
    return std::all_of(fields.begin(), fields.end(),
                       [&](const RuleTextField& field) { return a.*field.member == b.*field.member; });
}

JudgedRule::Verdict verdictOf(const JudgedRule& judged, const RuleRun* run) {
    if (!isJudged(judged.rule))
        return JudgedRule::Verdict::NoEvaluator;
    const bool isAbsenceRule = judged.rule.type == QLatin1String("without");
    return judged.violations > 0 || isAbsenceRule || (run && run->judged > 0)
               ? JudgedRule::Verdict::Judged
               : JudgedRule::Verdict::NothingToJudge;
}

std::string noteOf(const NuxStandardCheckRule& rule, const RuleRun& run) {
    const auto end = std::find_if(run.unjudged.begin(), run.unjudged.end(),
                                  [](const Unjudged& one) { return one.why == NotJudged::NoBoxMeasurable; });
    if (end != run.unjudged.end())
        return filled(
            Words::tr("ended at #%1, to which no box has a measurable distance; what follows it in the "
                      "drawing was not judged"),
            end->element);
    const RuleRow* row = findRule(rule.name, rule.type);
    const bool hasFound = run.judged > 0 || !run.unjudged.empty();
    const char* note = row && hasFound ? findRuleWording(row->name)->note : "";
    return *note ? filled(Words::tr(note)) : std::string();
}

/// Elements of another use are not what the rule is about.
void takeFrom(const RuleRun& run, JudgedRule& judged) {
    judged.found = run.judged;
    for (const Unjudged& element : run.unjudged) {
        if (element.why == NotJudged::OtherUse)
            continue;
        ++judged.found;
        ++judged.unjudged[element.why];
    }
    judged.pairs = run.pairCount;
    judged.canOffend = run.canOffend || run.judged == 0;
    judged.neverMeasuredPairs = run.neverMeasuredPairs;
    judged.time = run.time;
    judged.note = noteOf(judged.rule, run);
}

} // namespace

std::size_t RuleNumbers::add(const NuxStandardCheckRule& rule) {
    const std::size_t known = of(rule);
    if (known != kUnknown)
        return known;
    m_byName[rule.name].push_back(m_rules.size());
    m_rules.push_back(&rule);
    return m_rules.size() - 1;
}

std::size_t RuleNumbers::of(const NuxStandardCheckRule& rule) const {
    const auto sameName = m_byName.find(rule.name);
    if (sameName == m_byName.end())
        return kUnknown;
    const auto found = std::find_if(sameName->begin(), sameName->end(), [&](std::size_t number) {
        return haveSameTexts(*m_rules[number], rule);
    });
    return found == sameName->end() ? kUnknown : *found;
}

RuleRuns::RuleRuns(std::vector<RuleRun> runs) : m_runs(std::move(runs)) {
    for (std::size_t i = 0; i < m_runs.size(); ++i)
        if (m_numbers.add(m_runs[i].rule) == m_first.size())
            m_first.push_back(i);
}

const RuleRun* RuleRuns::of(const NuxStandardCheckRule& rule) const {
    const std::size_t number = m_numbers.of(rule);
    return number == RuleNumbers::kUnknown ? nullptr : &m_runs[m_first[number]];
}

std::vector<JudgedRule> judgedRules(const CheckReport& report, const RuleRuns& runs,
                                    const std::vector<NuxStandardCheckRule>& rules) {
    RuleNumbers numbers;
    std::vector<JudgedRule> result;
    for (const NuxStandardCheckRule& rule : rules)
        if (numbers.add(rule) == result.size())
            result.emplace_back().rule = rule;

    std::vector<std::set<qint64>> offending(result.size());
    for (const Finding& finding : report.findings) {
        const NuxStandardCheckRule& record = report.record(finding);
        const std::size_t number = numbers.of(record);
        if (number == RuleNumbers::kUnknown)
            continue;
        ++result[number].violations;
        if (record.handle != 0)
            offending[number].insert(record.handle);
    }
    for (std::size_t i = 0; i < result.size(); ++i) {
        JudgedRule& judged = result[i];
        judged.offending = offending[i].size();
        const RuleRun* run = runs.of(judged.rule);
        if (run)
            takeFrom(*run, judged);
        judged.verdict = verdictOf(judged, run);
    }
    return result;
}

} // namespace firestandard
