#include "check/check_site.h"

#include "cad/UdApDocManager.h"
#include "check/CheckRecorder.h"
#include "check/element_noun.h"
#include "check/judged_rules.h"
#include "check/record_measures.h"
#include "engine/NUXCheck.h"
#include "engine/NuxFireStandardCheck.h"
#include "evaluators/rule_catalogue.h"
#include "report/plan/plan_shapes.h"
#include "report/sentence.h"

#include <algorithm>
#include <map>
#include <set>

namespace firecheck {

namespace {

/// A document that is open and current as long as this lives.
class CurrentDocument {
public:
    explicit CurrentDocument(std::unique_ptr<UdDbDocument> database)
        : m_document(UdDocManagerPtr()->open(std::move(database))) {}
    ~CurrentDocument() { UdDocManagerPtr()->close(m_document); }
    CurrentDocument(const CurrentDocument&) = delete;
    CurrentDocument& operator=(const CurrentDocument&) = delete;

    const UdDbObjects& objects() const { return m_document->Database()->GetModelSpace()->objects(); }
    UdDbObject* object(long long handle) const {
        return m_document->Database()->GetItem(handle, UdDb::kForRead);
    }

private:
    UdApDocument* m_document;
};

template <class Value>
std::vector<std::pair<QString, std::vector<Value>>> entries(const QMap<QString, std::vector<Value>>& map) {
    std::vector<std::pair<QString, std::vector<Value>>> result;
    for (auto entry = map.begin(); entry != map.end(); ++entry)
        result.emplace_back(entry.key(), entry.value());
    return result;
}

/// The rules in the order in which the engine runs them.
std::vector<NuxStandardCheckRule> inOrder(const RuleMap& rules) {
    std::vector<NuxStandardCheckRule> result;
    for (const auto& sharingKey : rules)
        result.insert(result.end(), sharingKey.begin(), sharingKey.end());
    return result;
}

std::optional<PlanPoint> middleOf(const hrx::CBox2d& box) {
    if (!(box.low.x <= box.high.x))
        return std::nullopt;
    return PlanPoint{(box.low.x + box.high.x) * 0.5 * kMetresPerMillimetre,
                     (box.low.y + box.high.y) * 0.5 * kMetresPerMillimetre};
}

ElementLabel labelOf(long long handle, const UdDbObject* object,
                     const std::map<long long, ObjectLabel>& siteLabels) {
    ElementLabel label;
    label.handle = handle;
    if (object) {
        label.identifier = elementIdentifier(*object);
        label.noun = elementNoun(*object);
        label.place = middleOf(planShapeOf(*object).box);
    }
    const auto known = siteLabels.find(handle);
    if (known != siteLabels.end()) {
        label.className = known->second.className;
        label.name = known->second.name;
    }
    return label;
}

std::vector<ElementLabel> labels(const SiteReport& report, const CurrentDocument& document,
                                 const std::map<long long, ObjectLabel>& siteLabels) {
    std::set<long long> handles;
    for (const auto& filed : report.results) {
        for (const NuxStandardCheckRule& record : filed.second) {
            handles.insert(record.handle);
            handles.insert(record.relatedHandles.begin(), record.relatedHandles.end());
        }
    }
    handles.erase(0);

    std::vector<ElementLabel> result;
    for (const long long handle : handles)
        result.push_back(labelOf(handle, document.object(handle), siteLabels));
    return result;
}

/// Rules may share a name or a key; each name is counted once, where the rules have it first.
std::vector<RuleCount> countsByRule(const SiteReport& report,
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

std::vector<Finding> findings(const SiteReport& report, const RuleRuns& runs) {
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
            result.push_back(std::move(finding));
        }
    }
    std::stable_sort(result.begin(), result.end(), [&](const Finding& a, const Finding& b) {
        return rankOfRule[report.record(a).name] < rankOfRule[report.record(b).name];
    });
    return result;
}

std::vector<PassedOver> notJudged(const CurrentDocument& document, const std::vector<JudgedRule>& judged) {
    std::vector<PassedOver> result;
    for (const JudgedRule& entry : judged) {
        const NuxStandardCheckRule& rule = entry.rule;
        const std::string what = "rule " + rule.name.toStdString();
        if (entry.verdict != JudgedRule::Verdict::NoEvaluator)
            continue;
        const auto& types = firestandard::ruleTypes();
        const bool isOfKnownType = std::any_of(
            types.begin(), types.end(), [&](const char* type) { return rule.type == QLatin1String(type); });
        result.push_back({what, isOfKnownType
                                    ? "no evaluator knows this rule"
                                    : "no evaluator is of type \"" + rule.type.toStdString() + "\""});
    }
    for (const auto& object : document.objects())
        if (!object->opens())
            result.push_back({"object #" + std::to_string(object->Handle().GetID()), "it does not open"});
    return result;
}

/// What stands in the plan: the name without its remarks in brackets, else noun and handle.
std::string planLabel(const ElementLabel& label, PlanKind kind) {
    const std::string handle = std::to_string(label.handle);
    if (kind == PlanKind::Model || kind == PlanKind::Other)
        return handle;
    const QString name = QString::fromStdString(label.name).section('(', 0, 0).trimmed();
    return name.isEmpty() ? label.noun + " " + handle : name.toStdString();
}

std::vector<PlanShape> plan(const CurrentDocument& document,
                            const std::map<long long, ObjectLabel>& siteLabels) {
    std::vector<PlanShape> shapes;
    for (const auto& object : document.objects()) {
        PlanShape shape = planShapeOf(*object);
        if (shape.paths.empty())
            continue;
        const ElementLabel label = labelOf(shape.handle, object.get(), siteLabels);
        shape.title = label.noun + " " + std::to_string(shape.handle) +
                      (label.name.empty() ? "" : " \"" + label.name + "\"");
        shape.label = planLabel(label, shape.kind);
        shapes.push_back(std::move(shape));
    }
    return shapes;
}

} // namespace

SiteReport checkSite(Site site, const std::string& fileName, const RuleMap& ruleMap) {
    const CurrentDocument document(std::move(site.document));
    NuxFireStandardCheck& engine = *NUXCheck::instance();
    CheckRecorder recorder;
    engine.DoCheck();
    const RuleRuns runs(recorder.takeRuns());
    const std::vector<NuxStandardCheckRule> rules = inOrder(ruleMap);

    SiteReport report;
    report.fileName = fileName;
    report.siteName = site.name;
    report.objectCount = document.objects().size();
    report.results = entries(engine.getMapRules());
    report.checkState = entries(engine.getMapRulesCheckState());
    report.counts = countsByRule(report, rules);
    report.elements = labels(report, document, site.labels);
    report.findings = findings(report, runs);
    report.judged = judgedRules(report, runs, rules);
    report.notJudged = notJudged(document, report.judged);
    report.plan = plan(document, site.labels);
    return report;
}

} // namespace firecheck
