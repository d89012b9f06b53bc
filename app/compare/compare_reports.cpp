#include "compare/compare_reports.h"

#include "text/words.h"

#include <algorithm>
#include <map>

namespace firecheck {

namespace {

constexpr double kSameValue = 1e-6; ///< metres, square metres; what rounding may do

bool relatesToMore(const SavedFinding& later, const SavedFinding& earlier) {
    return !later.isTooFar && !std::includes(earlier.related.begin(), earlier.related.end(),
                                             later.related.begin(), later.related.end());
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

class SiteComparer {
public:
    SiteComparer(const SavedSite& before, const SavedSite& after)
        : m_before(before), m_after(after), m_isMatched(before.findings.size()),
          m_partners(after.findings.size()) {
        for (std::size_t i = 0; i < before.findings.size(); ++i)
            m_byElement[{before.findings[i].rule, before.findings[i].handle}].push_back(i);
    }

    SiteComparison compare() {
        SiteComparison result;
        result.file = m_after.file;
        result.name = m_after.name;
        match([](const SavedFinding& a, const SavedFinding& b) { return a.related == b.related; });
        match([](const SavedFinding&, const SavedFinding&) { return true; });
        for (std::size_t i = 0; i < m_after.findings.size(); ++i)
            if (m_partners[i])
                judge(*m_partners[i], m_after.findings[i], result);
            else
                result.appeared.push_back(m_after.findings[i]);
        for (std::size_t i = 0; i < m_before.findings.size(); ++i)
            if (!m_isMatched[i])
                leave(m_before.findings[i], result);
        return result;
    }

private:
    /// Pairs what is left of one rule and element where the test holds.
    template <class Test> void match(Test test) {
        for (std::size_t later = 0; later < m_after.findings.size(); ++later) {
            const SavedFinding& finding = m_after.findings[later];
            const auto candidates = m_byElement.find({finding.rule, finding.handle});
            if (m_partners[later] || candidates == m_byElement.end())
                continue;
            for (const std::size_t i : candidates->second)
                if (!m_partners[later] && !m_isMatched[i] && test(m_before.findings[i], finding)) {
                    m_isMatched[i] = true;
                    m_partners[later] = &m_before.findings[i];
                }
        }
    }

    static void judge(const SavedFinding& before, const SavedFinding& after, SiteComparison& result) {
        if (missesMore(after, before) || relatesToMore(after, before))
            result.worse.push_back({before, after});
        else if (missesMore(before, after) || relatesToMore(before, after))
            result.better.push_back({before, after});
        else
            ++result.unchanged;
    }

    void leave(const SavedFinding& finding, SiteComparison& result) const {
        const std::string reason = lostReason(finding, m_after);
        if (reason.empty())
            result.gone.push_back(finding);
        else
            result.lost.push_back({finding, reason});
    }

    const SavedSite& m_before;
    const SavedSite& m_after;
    std::map<std::pair<std::string, std::string>, std::vector<std::size_t>>
        m_byElement; ///< of the earlier ones
    std::vector<bool> m_isMatched;
    std::vector<const SavedFinding*> m_partners;
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
