#include "compare/compare_reports.h"

#include "text/words.h"

#include <algorithm>
#include <map>

namespace firecheck {

namespace {

constexpr double kSameValue = 1e-6; ///< metres, square metres; what rounding may do

bool relatesToMore(const SavedFinding& later, const SavedFinding& earlier) {
    if (later.isTooFar)
        return false;
    if (later.isOneOfMany || earlier.isOneOfMany) // one change elsewhere shifts which elements they name
        return later.related.size() > earlier.related.size();
    return !std::includes(earlier.related.begin(), earlier.related.end(), later.related.begin(),
                          later.related.end());
}

bool missesMore(const SavedFinding& a, const SavedFinding& b) {
    return a.missing && b.missing && *a.missing > *b.missing + kSameValue;
}

/// Why the absence of a violation says nothing; empty where it says that it was mended.
std::string lostReason(const SavedFinding& finding, const SavedSite& after) {
    if (after.rules.count(finding.rule) == 0)
        return filled(Words::tr("the rule was not run"));
    if (after.unjudged.count({finding.handle, finding.rule}) > 0)
        return filled(Words::tr("the element was not judged"));
    return {};
}

/// Rule and handle.
using Element = std::pair<std::string, std::string>;

Element elementOf(const SavedFinding& finding) {
    return {finding.rule, finding.handle};
}

/// The violations of one rule by one element in one report.
struct Violations {
    std::vector<std::size_t> findings;
    std::size_t count = 0;
    std::size_t notAccepted = 0;
    bool areAllTold = true;
};

std::map<Element, Violations> violationsByElement(const std::vector<SavedFinding>& findings) {
    std::map<Element, Violations> byElement;
    for (std::size_t i = 0; i < findings.size(); ++i) {
        const SavedFinding& finding = findings[i];
        Violations& own = byElement[elementOf(finding)];
        own.findings.push_back(i);
        own.count += 1 + finding.further;
        own.notAccepted += (finding.isAccepted ? 0 : 1) + finding.further - finding.furtherAccepted;
        own.areAllTold = own.areAllTold && finding.further == 0;
    }
    return byElement;
}

bool haveSameRelated(const SavedFinding& a, const SavedFinding& b) {
    return a.related == b.related;
}

class SiteComparer {
public:
    SiteComparer(const SavedSite& before, const SavedSite& after)
        : m_before(before), m_after(after), m_earlier(violationsByElement(before.findings)),
          m_later(violationsByElement(after.findings)), m_isMatched(before.findings.size()),
          m_partners(after.findings.size()) {}

    SiteComparison compare() {
        m_result.file = m_after.file;
        m_result.name = m_after.name;
        match(haveSameRelated);
        match([this](const SavedFinding&, const SavedFinding& later) { return !isCounted(later); });
        for (std::size_t i = 0; i < m_after.findings.size(); ++i)
            if (m_partners[i])
                judge(*m_partners[i], m_after.findings[i]);
            else if (!isCounted(m_after.findings[i]))
                m_result.appeared.push_back(m_after.findings[i]);
        for (std::size_t i = 0; i < m_before.findings.size(); ++i)
            if (!m_isMatched[i] && !isCounted(m_before.findings[i]))
                leave(m_before.findings[i]);
        for (const auto& [element, later] : m_later)
            if (isCounted(m_after.findings[later.findings.front()]))
                judgeCounts(m_earlier.at(element), later);
        return std::move(m_result);
    }

private:
    /// Pairs what is left of one rule and element where the test holds.
    template <class Test> void match(Test test) {
        for (std::size_t later = 0; later < m_after.findings.size(); ++later) {
            const SavedFinding& finding = m_after.findings[later];
            const auto candidates = m_earlier.find(elementOf(finding));
            if (m_partners[later] || candidates == m_earlier.end())
                continue;
            for (const std::size_t i : candidates->second.findings)
                if (!m_partners[later] && !m_isMatched[i] && test(m_before.findings[i], finding)) {
                    m_isMatched[i] = true;
                    m_partners[later] = &m_before.findings[i];
                }
        }
    }

    /// Whether both reports have violations of its rule and element, and one of them does not tell all.
    bool isCounted(const SavedFinding& finding) const {
        const auto earlier = m_earlier.find(elementOf(finding));
        const auto later = m_later.find(elementOf(finding));
        return earlier != m_earlier.end() && later != m_later.end() &&
               !(earlier->second.areAllTold && later->second.areAllTold);
    }

    void judge(const SavedFinding& before, const SavedFinding& after) {
        if (missesMore(after, before) || relatesToMore(after, before))
            m_result.worse.push_back({before, after});
        else if (missesMore(before, after) || relatesToMore(before, after))
            m_result.better.push_back({before, after});
        else
            ++m_result.unchanged;
    }

    /// Of violations that are not all told.
    void judgeCounts(const Violations& earlier, const Violations& later) {
        const auto judged = static_cast<std::size_t>(
            std::count_if(later.findings.begin(), later.findings.end(),
                          [this](std::size_t i) { return m_partners[i] != nullptr; }));
        m_result.unchanged += std::min(earlier.count, later.count) - judged;
        if (earlier.count == later.count)
            return;
        const bool areMoreAccepted = later.notAccepted <= earlier.notAccepted;
        const ChangedFinding changed{example(m_before, earlier, areMoreAccepted),
                                     example(m_after, later, areMoreAccepted)};
        (later.count > earlier.count ? m_result.worse : m_result.better).push_back(changed);
    }

    /// The one that counts the others if there is one, of those that are accepted or not if there is any.
    static const SavedFinding& example(const SavedSite& site, const Violations& violations, bool isAccepted) {
        return site.findings[*std::max_element(
            violations.findings.begin(), violations.findings.end(), [&](std::size_t a, std::size_t b) {
                const auto rank = [&](const SavedFinding& finding) {
                    return std::pair(finding.isAccepted == isAccepted, finding.further);
                };
                return rank(site.findings[a]) < rank(site.findings[b]);
            })];
    }

    void leave(const SavedFinding& finding) {
        const std::string reason = lostReason(finding, m_after);
        if (reason.empty())
            m_result.gone.push_back(finding);
        else
            m_result.lost.push_back({finding, reason});
    }

    const SavedSite& m_before;
    const SavedSite& m_after;
    const std::map<Element, Violations> m_earlier;
    const std::map<Element, Violations> m_later;
    std::vector<bool> m_isMatched;
    std::vector<const SavedFinding*> m_partners;
    SiteComparison m_result;
};

const SavedSite* siteOf(const SavedReport& report, const SavedSite& other, bool areOnly) {
    if (areOnly)
        return &report.sites.front();
    const auto found = std::find_if(report.sites.begin(), report.sites.end(),
                                    [&](const SavedSite& site) { return site.file == other.file; });
    return found == report.sites.end() ? nullptr : &*found;
}

SiteComparison lostSite(const SavedSite& site) {
    SiteComparison result;
    result.file = site.file;
    result.name = site.name;
    for (const SavedFinding& finding : site.findings)
        result.lost.push_back({finding, filled(Words::tr("the site was not checked"))});
    return result;
}

} // namespace

bool SiteComparison::needsAttention() const {
    const auto counts = [](const SavedFinding& finding) { return !finding.isAccepted; };
    return !lost.empty() || std::any_of(appeared.begin(), appeared.end(), counts) ||
           std::any_of(worse.begin(), worse.end(),
                       [&](const ChangedFinding& changed) { return counts(changed.after); });
}

std::vector<SiteComparison> compareReports(const SavedReport& before, const SavedReport& after) {
    const bool areOnly = before.sites.size() == 1 && after.sites.size() == 1;
    std::vector<SiteComparison> comparisons;
    for (const SavedSite& site : after.sites) {
        const SavedSite* earlier = siteOf(before, site, areOnly);
        comparisons.push_back(SiteComparer(earlier ? *earlier : SavedSite(), site).compare());
    }
    for (const SavedSite& site : before.sites)
        if (!siteOf(after, site, areOnly))
            comparisons.push_back(lostSite(site));
    return comparisons;
}

} // namespace firecheck
