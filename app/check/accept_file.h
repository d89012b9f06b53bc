#pragma once

#include "report/SiteReport.h"

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace firecheck {

/// A violation that somebody answers for: known by its rule and the elements concerned, so that it stays
/// accepted while things are moved about, as long as it does not get worse.
struct Acceptance {
    std::string site; ///< its file; empty for the one site that is checked. Without directories it stands for
                      ///< each of the sites of that name, unless it is the path of one of them
    std::string rule;
    std::vector<long long> handles; ///< ascending; none for a violation of the site as a whole
    std::string reason;
    std::optional<double> value; ///< that of the violation when it was accepted, of a distance the nearest
    std::map<long long, double> values{}; ///< distances by related element, where several were accepted
};

/// Reads a file of accepted violations: {"accepted": [{"rule": ..., "handles": ["413", "414"], "reason": ...,
/// "value": 3.5}]}, or "values": {"414": 3.5, "415": 3.75}. Every entry needs a reason, and its site where
/// there are several sites; values are optional. Throws InputError for anything else, and for two entries
/// about one violation of one of the sites.
std::vector<Acceptance> loadAcceptances(const std::string& fileName, const std::vector<std::string>& sites);

/// "Self_RoadLoop: turning area" of each entry about a site that is none of these.
std::vector<std::string> ofOtherSites(const std::vector<Acceptance>& acceptances,
                                      const std::vector<std::string>& sites);

/// Marks the findings that are accepted, and those that have got worse since. Lists the acceptances of this
/// site that no finding matches as stale. It is one of the sites that are checked.
void acceptFindings(const std::vector<Acceptance>& acceptances, const std::vector<std::string>& sites,
                    SiteReport& report);

/// What a new file of accepted violations says: the entries of the old one as they are, so that no reason is
/// lost, and after them one without a reason for each further violation of the sites checked. Until somebody
/// has given the reasons the file cannot be read.
class AcceptFileText {
public:
    /// The sites are all that are checked; entries name theirs where there are several.
    AcceptFileText(std::vector<Acceptance> acceptances, std::vector<std::string> sites);

    void add(const SiteReport& report);
    std::string text() const;

private:
    bool tellsSites() const { return m_sites.size() > 1; }

    std::vector<Acceptance> m_entries;
    std::vector<std::string> m_sites;
};

} // namespace firecheck
