#include "explain/explain_check.h"

#include "cad/UdDbBlock.h"
#include "cad/UdDbObject.h"
#include "engine/NUXCheck.h"
#include "engine/NuxFireStandardCheck.h"
#include "evaluators/rule_catalogue.h"
#include "explain/CheckRecorder.h"
#include "explain/Words.h"
#include "explain/element_noun.h"
#include "explain/judged_rules.h"
#include "explain/record_measures.h"
#include "explain/sentence.h"
#include "explain/unjudged_reason.h"
#include "rules_config/NUXRuleConfigFile.h"
#include "site/current_model_space.h"
#include "site/model_space_walk.h"

#include <algorithm>
#include <map>
#include <set>

namespace firestandard {

namespace {

struct GivenUp {};

/// Asks before each rule whether the check goes on.
class AskingRecorder : public CheckRecorder {
public:
    AskingRecorder(const CheckProgress& goOn, std::size_t rules) : m_goOn(goOn), m_rules(rules) {}

    void beginRule(const NuxStandardCheckRule& rule) override {
        if (m_goOn && !m_goOn({m_judged, m_rules, rule}))
            throw GivenUp();
        ++m_judged;
        CheckRecorder::beginRule(rule);
    }

private:
    const CheckProgress& m_goOn;
    std::size_t m_rules;
    std::size_t m_judged = 0;
};

template <class Value>
std::vector<std::pair<QString, std::vector<Value>>> entries(const QMap<QString, std::vector<Value>>& map) {
    std::vector<std::pair<QString, std::vector<Value>>> result;
    for (auto entry = map.begin(); entry != map.end(); ++entry)
        result.emplace_back(entry.key(), entry.value());
    return result;
}

/// The rules in the order in which the engine runs them.
std::vector<NuxStandardCheckRule> rulesInOrder() {
    std::vector<NuxStandardCheckRule> result;
    for (const auto& sharingKey : NUXRuleConfigFile::Single()->getAllRuleMap())
        result.insert(result.end(), sharingKey.begin(), sharingKey.end());
    return result;
}

bool isOfKnownType(const NuxStandardCheckRule& rule) {
    const auto& types = ruleTypes();
    return std::any_of(types.begin(), types.end(),
                       [&](const char* type) { return rule.type == QLatin1String(type); });
}

std::set<long long> namedHandles(const CheckReport& report) {
    std::set<long long> handles;
    for (const auto& filed : report.results) {
        for (const NuxStandardCheckRule& record : filed.second) {
            handles.insert(record.handle);
            handles.insert(record.relatedHandles.begin(), record.relatedHandles.end());
        }
    }
    for (const UnjudgedElement& element : report.unjudged)
        handles.insert(element.handle);
    handles.erase(0);
    return handles;
}

ElementLabel labelOf(long long handle, const UdDbObject* object, const NameOfElement& nameOf) {
    ElementLabel label;
    label.handle = handle;
    if (object) {
        label.identifier = elementIdentifier(*object);
        label.noun = elementNoun(*object);
    }
    if (nameOf)
        label.name = nameOf(handle);
    return label;
}

std::vector<ElementLabel> labels(const CheckReport& report, const UdDbBlock& modelSpace,
                                 const NameOfElement& nameOf) {
    std::map<long long, ElementLabel> labels;
    for (const long long handle : namedHandles(report))
        labels[handle] = labelOf(handle, nullptr, nameOf);
    walkModelSpace(modelSpace, [&](const UdDbObject* object) {
        const auto named = object ? labels.find(object->Handle().GetID()) : labels.end();
        if (named != labels.end())
            named->second = labelOf(named->first, object, nameOf);
    });
    std::vector<ElementLabel> result;
    for (auto& entry : labels)
        result.push_back(std::move(entry.second));
    return result;
}

/// Each element with each reason once, with the rules that left it out for it.
std::vector<UnjudgedElement> unjudgedElements(const std::vector<NuxStandardCheckRule>& rules,
                                              const RuleRuns& runs) {
    std::map<std::pair<long long, std::string>, std::vector<QString>> byElement;
    const auto add = [&](const NuxStandardCheckRule& rule, const Unjudged& element) {
        std::vector<QString>& names = byElement[{element.element, element.reason}];
        if (names.empty() || names.back() != rule.name)
            names.push_back(rule.name);
    };
    for (const NuxStandardCheckRule& rule : rules) {
        const RuleRun* run = runs.of(rule);
        for (const auto* list : {run ? &run->unjudged : nullptr, run ? &run->unfit : nullptr})
            for (std::size_t i = 0; list && i < list->size(); ++i)
                if (isLeftOut((*list)[i].why))
                    add(rule, (*list)[i]);
    }
    std::vector<UnjudgedElement> result;
    for (auto& [element, names] : byElement)
        result.push_back({element.first, element.second, std::move(names)});
    return result;
}

std::vector<ElementLabel> judgedByNoRule(const CheckRecorder& recorder, const UdDbBlock& modelSpace,
                                         const NameOfElement& nameOf) {
    std::vector<ElementLabel> result;
    walkModelSpace(modelSpace, [&](const UdDbObject* object) {
        const long long handle = object ? object->Handle().GetID() : 0;
        if (object && !recorder.hasCompared(handle))
            result.push_back(labelOf(handle, object, nameOf));
    });
    return result;
}

/// Rules may share a name or a key; each name is counted once, where the rules have it first.
std::vector<RuleCount> countsByRule(const CheckReport& report,
                                    const std::vector<NuxStandardCheckRule>& rules) {
    std::map<QString, std::size_t> violations;
    for (const auto& filed : report.results)
        for (const NuxStandardCheckRule& record : filed.second)
            ++violations[record.name];

    std::vector<RuleCount> counts;
    for (const NuxStandardCheckRule& rule : rules) {
        const auto found = violations.find(rule.name);
        if (found == violations.end())
            continue;
        counts.push_back({rule.name, found->second});
        violations.erase(found);
    }
    return counts;
}

/// Leaves the nearest and the numbers of all.
void tellNearest(Finding& finding, const NuxStandardCheckRule& record) {
    finding.measureCount = finding.measures.size();
    finding.relatedCount = record.relatedHandles.size();
    for (const Measure& measure : finding.measures)
        if (measure.kind == Measure::Kind::Distance)
            finding.related.push_back(measure.other);
    if (finding.related.size() < finding.relatedCount)
        finding.related.assign(record.relatedHandles.begin(), record.relatedHandles.end());
    finding.related.resize(std::min(finding.related.size(), kMostTold));
    finding.related.shrink_to_fit();
    finding.measures.resize(std::min(finding.measures.size(), kMostTold));
    finding.measures.shrink_to_fit();
}

std::vector<Finding> findings(const CheckReport& report, const RuleRuns& runs) {
    std::map<QString, std::size_t> rankOfRule;
    for (std::size_t i = 0; i < report.counts.size(); ++i)
        rankOfRule[report.counts[i].ruleName] = i;

    std::vector<Finding> result;
    for (std::size_t entry = 0; entry < report.results.size(); ++entry) {
        const auto& filed = report.results[entry].second;
        for (std::size_t index = 0; index < filed.size(); ++index) {
            const NuxStandardCheckRule& record = filed[index];
            Finding finding;
            finding.entry = entry;
            finding.index = index;
            if (const RuleRun* run = runs.of(record))
                finding.measures = recordMeasures(record, *run);
            finding.sentence = sentenceOf(report, record, finding.measures);
            tellNearest(finding, record);
            result.push_back(std::move(finding));
        }
    }
    std::stable_sort(result.begin(), result.end(), [&](const Finding& a, const Finding& b) {
        return rankOfRule[report.record(a).name] < rankOfRule[report.record(b).name];
    });
    return result;
}

std::vector<PassedOver> rulesPassedOver(const std::vector<JudgedRule>& judged) {
    std::vector<PassedOver> result;
    for (const JudgedRule& entry : judged)
        if (entry.verdict == JudgedRule::Verdict::NoEvaluator)
            result.push_back({filled(Words::tr("rule %1"), entry.rule.name),
                              isOfKnownType(entry.rule)
                                  ? filled(Words::tr("no evaluator knows this rule"))
                                  : filled(Words::tr("no evaluator is of type \"%1\""), entry.rule.type)});
    return result;
}

CheckReport explained(NuxFireStandardCheck& engine, const RuleRuns& runs,
                      const std::vector<NuxStandardCheckRule>& rules, const UdDbBlock& modelSpace,
                      const NameOfElement& nameOf) {
    CheckReport report;
    report.results = entries(engine.getMapRules());
    report.checkState = entries(engine.getMapRulesCheckState());
    report.counts = countsByRule(report, rules);
    report.unjudged = unjudgedElements(rules, runs);
    report.elements = labels(report, modelSpace, nameOf);
    report.findings = findings(report, runs);
    report.judged = judgedRules(report, runs, rules);
    report.notJudged = rulesPassedOver(report.judged);
    return report;
}

} // namespace

std::optional<CheckReport> explainCheck(const NameOfElement& nameOf, const CheckProgress& goOn) {
    const UdDbBlock* modelSpace = currentModelSpace();
    if (!modelSpace)
        return std::nullopt;
    const std::vector<NuxStandardCheckRule> rules = rulesInOrder();
    const auto count = std::count_if(rules.begin(), rules.end(), isOfKnownType);
    AskingRecorder recorder(goOn, static_cast<std::size_t>(count));
    NuxFireStandardCheck& engine = *NUXCheck::instance();
    try {
        engine.DoCheck();
    } catch (const GivenUp&) {
        return std::nullopt;
    }
    CheckReport report = explained(engine, RuleRuns(recorder.takeRuns()), rules, *modelSpace, nameOf);
    report.judgedByNoRule = judgedByNoRule(recorder, *modelSpace, nameOf);
    return report;
}

} // namespace firestandard
