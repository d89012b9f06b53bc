#include "site_lint/lint_site.h"

#include "drawing/load_site.h"
#include "site_lint/SiteDoubts.h"

#include <algorithm>
#include <tuple>

namespace firecheck {

namespace {

std::vector<SiteFinding> findingsOf(const RefusedSite& refused) {
    std::vector<SiteFinding> findings;
    for (const RefusedSite::Error& error : refused.errors())
        findings.push_back({SiteFinding::Kind::Error, error.place, error.refusal.pointer, error.object,
                            "refused", error.refusal.reason, error.refusal.suggestion});
    return findings;
}

std::vector<SiteFinding> findingsOf(const SiteFile& file, const SiteDoubts& doubts) {
    std::vector<std::string> pointers;
    for (const SiteDoubt& doubt : doubts)
        pointers.push_back(doubt.pointer);
    const std::vector<Place> places = file.placesOf(pointers);
    std::vector<SiteFinding> findings;
    for (std::size_t i = 0; i < doubts.size(); ++i)
        findings.push_back({SiteFinding::Kind::Doubt, places[i], doubts[i].pointer,
                            file.objectAt(doubts[i].pointer), doubts[i].code, doubts[i].message,
                            doubts[i].suggestion});
    if (file.drawing)
        for (const DrawingDoubt& doubt : file.drawing->doubts)
            findings.push_back({SiteFinding::Kind::Doubt,
                                {doubt.line, 1},
                                {},
                                {},
                                doubt.code,
                                doubt.message,
                                doubt.suggestion,
                                true});
    std::stable_sort(findings.begin(), findings.end(), [](const SiteFinding& a, const SiteFinding& b) {
        return std::tie(a.place.line, a.place.column) < std::tie(b.place.line, b.place.column);
    });
    return findings;
}

} // namespace

SiteFindings lintSite(const std::string& fileName, const RuleMap& rules, const DrawingOptions& drawings) {
    try {
        const SiteFile file = loadSiteFile(fileName, drawings);
        return {fileName, findingsOf(file, siteDoubts(file, rules)), {}};
    } catch (const RefusedSite& refused) {
        return {fileName, findingsOf(refused), {}};
    } catch (const InputError& error) {
        return {fileName, {}, error.what()};
    }
}

} // namespace firecheck
