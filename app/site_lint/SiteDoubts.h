#pragma once

#include "rules/rule_file.h"
#include "site_file/site_reader.h"

#include <string>
#include <vector>

namespace firecheck {

/// Something in a site file that is allowed, and that nobody is likely to mean.
struct SiteDoubt {
    std::string pointer; ///< a JSON pointer
    std::string code;    ///< the kind of doubt, for programs
    std::string message;
    std::string suggestion; ///< what was probably meant; empty when nothing is near
};

/// A site with the objects of its file beside it, for whoever doubts them.
class DoubtedSite {
public:
    explicit DoubtedSite(const SiteFile& file) : m_file(file) {}

    /// The list as the file gives it; each member is an object of a known class with a handle of its own.
    const Json& objects() const;
    /// Null for an object that refuses to open, and for one that is no site element.
    const UdDbObject* opened(const Json& object) const;

    static std::string pointerTo(std::size_t object, const std::string& further = {});
    /// How messages speak of another object: 'openShed #5 "Carpenter"'.
    static std::string mention(const Json& object);

private:
    const SiteFile& m_file;
};

using SiteDoubts = std::vector<SiteDoubt>;

/// Everything doubtful, in the order of the file's objects. The rules tell which uses are looked for.
SiteDoubts siteDoubts(const SiteFile& file, const RuleMap& rules);

// Its parts.
void doubtCodes(const DoubtedSite& site, SiteDoubts& doubts);
void doubtDoors(const DoubtedSite& site, SiteDoubts& doubts);
void doubtIdentifiers(const DoubtedSite& site, SiteDoubts& doubts);
void doubtOutlines(const DoubtedSite& site, SiteDoubts& doubts);
void doubtPlaces(const DoubtedSite& site, SiteDoubts& doubts);
void doubtSizes(const DoubtedSite& site, SiteDoubts& doubts);
void doubtUses(const DoubtedSite& site, const RuleMap& rules, SiteDoubts& doubts);

} // namespace firecheck
