#include "edit/EditSession.h"

#include "check/CurrentDocument.h"
#include "check/check_site.h"
#include "engine/NUXCheck.h"
#include "engine/NuxFireStandardCheck.h"
#include "evaluators/CheckObserver.h"
#include "site_file/RefusedSite.h"
#include "site_file/changed_text.h"
#include "site_file/site_keys.h"
#include "suggest/suggest_changes.h"
#include "text/advice.h"

#include <algorithm>
#include <map>

namespace firecheck {

using firestandard::Comparison;
using firestandard::NotJudged;
using firestandard::Quantity;

namespace {

/// The key of an object that the pointer leads into, of "/objects/3/use" the use; empty for none.
std::string keyIn(const std::string& pointer) {
    Json::json_pointer place(pointer);
    const Json::json_pointer list("/" + kObjectsKey);
    while (!place.empty() && place.parent_pointer().parent_pointer() != list)
        place.pop_back();
    return place.empty() ? std::string() : place.back();
}

RefusedChange refusedChange(const Json& site, const Refusal& refusal) {
    const PointedObject object = pointedObject(site, refusal.pointer);
    bool isHandle = false; // what is refused may be a handle that no number holds
    const long long handle = QString::fromStdString(object.handle).toLongLong(&isHandle);
    return {reasonAndAdvice(refusal.reason, refusal.suggestion),
            isHandle ? std::optional(handle) : std::nullopt, keyIn(refusal.pointer)};
}

/// Keeps the distances of one element as long as it lives.
class DistanceObserver : public firestandard::CheckObserver {
public:
    explicit DistanceObserver(long long handle) : m_handle(handle) { firestandard::setCheckObserver(this); }
    ~DistanceObserver() override { firestandard::setCheckObserver(nullptr); }
    DistanceObserver(const DistanceObserver&) = delete;
    DistanceObserver& operator=(const DistanceObserver&) = delete;

    void beginRule(const NuxStandardCheckRule& rule) override { m_rule = rule.name.toStdString(); }
    void endRule() override {}
    void compared(const Comparison& comparison) override {
        const auto& measured = comparison.measurement;
        if (!comparison.other || !measured || measured->quantity != Quantity::Distance)
            return;
        const long long first = comparison.element.Handle().GetID();
        const long long second = comparison.other->Handle().GetID();
        if (first != m_handle && second != m_handle)
            return;
        const long long other = first == m_handle ? second : first;
        if (measured->minimum)
            m_distances.push_back({m_rule, other, true, *measured->minimum, measured->value});
        if (measured->maximum)
            m_distances.push_back({m_rule, other, false, *measured->maximum, measured->value});
    }
    void notJudged(const UdDbObject&, NotJudged) override {}
    void pairNotJudged(const UdDbObject&, const UdDbObject&, NotJudged) override {}

    std::vector<RequiredDistance> take() { return std::move(m_distances); }

private:
    long long m_handle;
    std::string m_rule;
    std::vector<RequiredDistance> m_distances;
};

} // namespace

EditSession::EditSession(SiteFile file, std::string fileName, SiteFileOnDisk target,
                         const RuleMap& rulesInUse)
    : m_draft(file.value), m_fileName(std::move(fileName)), m_target(std::move(target)), m_rules(rulesInUse),
      m_readText(std::move(file.text)), m_readSite(std::move(file.value)), m_judgement(judge()) {}

Judgement EditSession::judge() const {
    const auto begin = std::chrono::steady_clock::now();
    Judgement judgement;
    SiteFile file;
    file.value = m_draft.site();
    try {
        file.site = readSite(file.value);
    } catch (const RefusedJson& refused) {
        throw refusedChange(file.value, refused.refusals().front());
    }
    for (const SiteDoubt& doubt : siteDoubts(file, m_rules))
        judgement.doubts.push_back({pointedObject(file.value, doubt.pointer).handle,
                                    sentenceAndAdvice(doubt.message, doubt.suggestion)});
    judgement.report = checkSite(std::move(file.site), m_fileName, m_rules);
    judgement.time = std::chrono::steady_clock::now() - begin;
    return judgement;
}

void EditSession::setJudgement(Judgement judgement) {
    m_judgement = std::move(judgement);
    ++m_revision;
}

EditSession::Tried EditSession::attempt(const std::vector<RequestedChange>& changes) {
    Tried tried{m_draft.editsFor(changes), {}};
    const SiteDraft::Trial trial(m_draft, tried.edits);
    tried.judgement = judge();
    return tried;
}

ObjectEdits EditSession::change(const std::vector<RequestedChange>& changes) {
    Tried tried = attempt(changes);
    const bool changesNothing = std::all_of(tried.edits.begin(), tried.edits.end(),
                                            [](const ObjectEdit& edit) { return edit.before == edit.after; });
    if (changesNothing)
        return std::move(tried.edits);
    m_draft.keep(tried.edits);
    setJudgement(std::move(tried.judgement));
    return std::move(tried.edits);
}

ObjectEdits EditSession::undo() {
    if (!m_draft.canUndo())
        return {};
    ObjectEdits edits = m_draft.undo();
    setJudgement(judge());
    return edits;
}

ObjectEdits EditSession::redo() {
    if (!m_draft.canRedo())
        return {};
    ObjectEdits edits = m_draft.redo();
    setJudgement(judge());
    return edits;
}

SuggestedChanges EditSession::suggest(std::size_t finding) const {
    SiteReport asked = m_judgement.report;
    asked.findings = {m_judgement.report.findings[finding]};
    const std::vector<Suggestion> suggestions =
        suggestChanges(m_draft.site(), asked, m_rules, SuggestOptions());
    SuggestedChanges result;
    std::map<long long, Json> changed;
    for (const Suggestion& suggestion : suggestions) {
        result.obstacle = suggestion.obstacle;
        for (const SuggestedStep& step : suggestion.steps) {
            SuggestedChanges::Step told{step.sentence, {}};
            for (const SuggestedObject& object : step.objects) {
                const auto known = changed.find(object.handle);
                const Json* before = known != changed.end() ? &known->second : m_draft.object(object.handle);
                Json after = before ? *before : Json::object();
                for (const auto& [key, value] : object.keys.items())
                    after[key] = value;
                changed[object.handle] = after;
                told.changes.push_back(
                    {object.isNew ? std::nullopt : std::optional(object.handle), std::move(after)});
            }
            result.steps.push_back(std::move(told));
        }
    }
    return result;
}

std::vector<RequiredDistance> EditSession::requiredDistances(long long handle) const {
    const CurrentDocument document(readSite(m_draft.site()).document);
    DistanceObserver observer(handle);
    NUXCheck::instance()->DoCheck();
    return observer.take();
}

void EditSession::save() {
    m_target.save(m_readText.empty() ? siteText(m_draft.site())
                                     : changedSiteText(m_readText, m_readSite, m_draft.site()));
    m_draft.setSaved();
}

} // namespace firecheck
