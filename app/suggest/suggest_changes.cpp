#include "suggest/suggest_changes.h"

#include "check/check_site.h"
#include "site_file/site_reader.h"
#include "suggest/mend.h"
#include "suggest/suggested_step.h"
#include "suggest/why_nothing_helps.h"

#include <algorithm>

namespace firecheck {

namespace {

constexpr std::size_t kMostSteps = 4; ///< for one finding

bool isCable(const SiteJudge& judge, const Offence& offence) {
    return judge.test(offence) == firestandard::RuleTest::OverheadCable;
}

/// The first change that removes one of the targets, where none removes all.
std::optional<std::pair<Targets, Proposal>> mendOne(Workbench& bench, const Targets& targets) {
    if (targets.size() < 2)
        return std::nullopt;
    for (const Offence& offence : targets)
        if (auto proposal = mend(bench, {offence}))
            return std::pair(Targets{offence}, std::move(*proposal));
    return std::nullopt;
}

class Suggester {
public:
    Suggester(const Json& site, const RuleMap& rulesInUse, const SuggestOptions& options)
        : m_judge(rulesInUse), m_options(options), m_site(site, m_judge), m_bench(m_site, options) {}

    Suggestion suggest(const NuxStandardCheckRule& record) {
        const std::vector<Offence> offences = m_judge.offencesOf(record, m_site.verdict());
        const Targets targets(offences.begin(), offences.end());
        Suggestion suggestion;
        if (const Proposal* known = knownFor(targets)) {
            suggestion.steps = {suggestedStep(m_site, *known, targets)};
            return suggestion;
        }
        if (auto proposal = mend(m_bench, targets)) {
            suggestion.steps = {suggestedStep(m_site, *proposal, targets)};
            if (isCable(m_judge, *targets.begin()))
                m_known.push_back(std::move(*proposal));
        } else {
            suggestion.obstacle = whyNothingHelps(m_bench, targets);
            suggestion.steps = stepByStep(targets);
            if (!suggestion.steps.empty())
                suggestion.obstacle.clear();
        }
        m_bench.takeObstacles();
        return suggestion;
    }

private:
    /// One cable above one yard is found under several names.
    const Proposal* knownFor(const Targets& targets) const {
        if (!isCable(m_judge, *targets.begin()))
            return nullptr;
        for (const Proposal& known : m_known)
            if (std::includes(known.removed.begin(), known.removed.end(), targets.begin(), targets.end()))
                return &known;
        return nullptr;
    }

    /// A few changes that together remove the targets; none where they do not.
    std::vector<SuggestedStep> stepByStep(Targets targets) const {
        std::vector<SuggestedStep> steps;
        if (targets.size() < 2)
            return steps;
        TrialSite site = m_site;
        Workbench bench(site, m_options);
        while (!targets.empty() && steps.size() < kMostSteps) {
            const auto part = mendOne(bench, targets);
            std::optional<Proposal> last = part ? std::nullopt : mend(bench, targets);
            if (!part && !last)
                return {};
            const Proposal& proposal = part ? part->second : *last;
            steps.push_back(suggestedStep(site, proposal, part ? part->first : targets));
            bench.apply(proposal);
            for (const Offence& offence : proposal.removed)
                targets.erase(offence);
        }
        return targets.empty() ? steps : std::vector<SuggestedStep>();
    }

    const SiteJudge m_judge;
    const SuggestOptions& m_options;
    TrialSite m_site;
    Workbench m_bench;
    std::vector<Proposal> m_known; ///< of cables
};

/// What belongs to one finding is mended together.
class Planner {
public:
    Planner(const Json& site, const RuleMap& rulesInUse, const SuggestOptions& options)
        : m_judge(rulesInUse), m_rules(rulesInUse), m_site(site, m_judge), m_bench(m_site, options) {}

    SitePlan plan(const SuggestProgress& progress) {
        m_all = groups().size();
        std::size_t before = 0;
        do {
            before = m_plan.steps.size();
            for (const Targets& group : groups())
                mendGroup(group, progress);
        } while (m_plan.steps.size() > before);
        tellRemaining();
        m_plan.site = m_site.json();
        return std::move(m_plan);
    }

private:
    std::vector<Targets> groups() const {
        std::map<std::tuple<std::size_t, long long, long long>, Targets> byFinding;
        for (const auto& entry : m_site.verdict().offences) {
            const Offence& offence = entry.first;
            byFinding[keyOf(offence)].insert(offence);
        }
        std::vector<Targets> result;
        for (auto& entry : byFinding)
            result.push_back(std::move(entry.second));
        return result;
    }

    std::tuple<std::size_t, long long, long long> keyOf(const Offence& offence) const {
        return {offence.rule, offence.element, isCable(m_judge, offence) ? offence.other : 0};
    }

    /// Of the group, what the changes since have left.
    void mendGroup(const Targets& group, const SuggestProgress& progress) {
        Targets targets;
        for (const Offence& offence : group)
            if (m_site.verdict().offences.count(offence) > 0)
                targets.insert(offence);
        if (targets.empty())
            return;
        const auto key = keyOf(*targets.begin());
        const auto failed = m_failedAt.find(key);
        if (failed != m_failedAt.end() && failed->second == m_plan.steps.size())
            return; // nothing has changed since
        if (progress)
            progress(m_all - std::min(m_all, groups().size()), m_all,
                     m_judge.rule(*targets.begin()).name.toStdString());
        while (!targets.empty()) {
            std::optional<std::pair<Targets, Proposal>> part;
            if (auto whole = mend(m_bench, targets))
                part.emplace(targets, std::move(*whole));
            else
                part = mendOne(m_bench, targets);
            if (!part) {
                m_failedAt[key] = m_plan.steps.size();
                m_obstacles[key] = whyNothingHelps(m_bench, targets);
                return;
            }
            m_bench.takeObstacles();
            m_plan.steps.push_back(suggestedStep(m_site, part->second, part->first));
            m_bench.apply(part->second);
            for (const Offence& offence : part->second.removed)
                targets.erase(offence);
        }
    }

    void tellRemaining() {
        const SiteReport report = checkSite(readSite(m_site.json()), std::string(), m_rules);
        for (const auto& finding : report.findings) {
            const std::vector<Offence> offences =
                m_judge.offencesOf(report.record(finding), m_site.verdict());
            m_plan.remaining.push_back({suggestedRemoval(m_site, offences.front()), finding.sentence,
                                        m_obstacles[keyOf(offences.front())]});
        }
    }

    const SiteJudge m_judge;
    const RuleMap& m_rules;
    TrialSite m_site;
    Workbench m_bench;
    SitePlan m_plan;
    std::size_t m_all = 0;
    std::map<std::tuple<std::size_t, long long, long long>, std::size_t> m_failedAt; ///< steps taken by then
    std::map<std::tuple<std::size_t, long long, long long>, std::string> m_obstacles;
};

} // namespace

std::vector<Suggestion> suggestChanges(const Json& site, const SiteReport& report, const RuleMap& rulesInUse,
                                       const SuggestOptions& options, const SuggestProgress& progress) {
    std::vector<Suggestion> suggestions;
    if (report.findings.empty())
        return suggestions;
    Suggester suggester(site, rulesInUse, options);
    for (std::size_t i = 0; i < report.findings.size(); ++i) {
        const Finding& finding = report.findings[i];
        if (finding.acceptedBecause)
            continue;
        const NuxStandardCheckRule& record = report.record(finding);
        if (progress)
            progress(i, report.findings.size(), record.name.toStdString());
        suggestions.push_back(suggester.suggest(record));
        suggestions.back().finding = i;
    }
    return suggestions;
}

SitePlan planChanges(const Json& site, const RuleMap& rulesInUse, const SuggestOptions& options,
                     const SuggestProgress& progress) {
    return Planner(site, rulesInUse, options).plan(progress);
}

} // namespace firecheck
