#include "check/check_site.h"

#include "cad/UdApDocManager.h"
#include "elements/NUX3dsBaseObject.h"
#include "elements/NUXElementObject.h"
#include "engine/NUXCheck.h"
#include "engine/NuxFireStandardCheck.h"

#include <QSet>

#include <map>
#include <set>

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

std::string identifierOf(const UdDbObject* object) {
    std::wstring identifier;
    if (const auto* element = NUXElementObject::Cast(object))
        identifier = element->getElementType();
    else if (const auto* model = NUX3dsBaseObject::Cast(object))
        identifier = model->getModelKind();
    return QString::fromStdWString(identifier).toStdString();
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
    for (const long long handle : handles) {
        ElementLabel label{handle, {}, identifierOf(document.object(handle)), {}};
        const auto known = siteLabels.find(handle);
        if (known != siteLabels.end()) {
            label.className = known->second.className;
            label.name = known->second.name;
        }
        result.push_back(std::move(label));
    }
    return result;
}

/// Rules may share a name or a key; each name is counted once, where the rule map has it first.
std::vector<RuleCount> countsByRule(const SiteReport& report, const RuleMap& rules) {
    std::map<QString, std::size_t> violations;
    for (const auto& filed : report.results)
        for (const NuxStandardCheckRule& record : filed.second)
            ++violations[record.name];

    std::vector<RuleCount> counts;
    for (const auto& sharingKey : rules) {
        for (const NuxStandardCheckRule& rule : sharingKey) {
            const auto found = violations.find(rule.name);
            if (found == violations.end())
                continue;
            counts.push_back({rule.name, found->second});
            violations.erase(found);
        }
    }
    return counts;
}

std::vector<NotJudged> notJudged(const CurrentDocument& document, const RuleMap& rules) {
    const QSet<QString> knownTypes = {"self", "without", "distant", "position"};
    std::vector<NotJudged> result;
    for (const auto& sharingKey : rules)
        for (const NuxStandardCheckRule& rule : sharingKey)
            if (!knownTypes.contains(rule.type))
                result.push_back({"rule " + rule.name.toStdString(),
                                  "no evaluator is of type \"" + rule.type.toStdString() + "\""});
    for (const auto& object : document.objects())
        if (!object->opens())
            result.push_back({"object #" + std::to_string(object->Handle().GetID()), "it does not open"});
    return result;
}

} // namespace

SiteReport checkSite(Site site, const std::string& fileName, const RuleMap& rules) {
    const CurrentDocument document(std::move(site.document));
    NuxFireStandardCheck& engine = *NUXCheck::instance();
    engine.DoCheck();

    SiteReport report;
    report.fileName = fileName;
    report.siteName = site.name;
    report.objectCount = document.objects().size();
    report.results = entries(engine.getMapRules());
    report.checkState = entries(engine.getMapRulesCheckState());
    report.counts = countsByRule(report, rules);
    report.elements = labels(report, document, site.labels);
    report.notJudged = notJudged(document, rules);
    return report;
}
