#include "site_lint/SiteDoubts.h"

#include "site_file/RefusedSite.h"
#include "site_file/site_keys.h"

#include <algorithm>

namespace firecheck {

const Json& DoubtedSite::objects() const {
    return m_file.value.at(kObjectsKey);
}

const UdDbObject* DoubtedSite::opened(const Json& object) const {
    return m_file.site.document->GetItem(object.at("handle").get<long long>(), UdDb::kForRead);
}

std::string DoubtedSite::pointerTo(std::size_t object, const std::string& further) {
    return "/" + kObjectsKey + "/" + std::to_string(object) + further;
}

std::string DoubtedSite::mention(const Json& object) {
    const PointedObject known{
        std::to_string(object.at("handle").get<long long>()), object.value("name", std::string()), {}};
    return object.at(kClassKey).get<std::string>() + " " + known.text();
}

SiteDoubts siteDoubts(const SiteFile& file, const RuleMap& rules) {
    const DoubtedSite site(file);
    SiteDoubts doubts;
    doubtCodes(site, doubts);
    doubtDoors(site, doubts);
    doubtIdentifiers(site, doubts);
    doubtOutlines(site, doubts);
    doubtPlaces(site, doubts);
    doubtSizes(site, doubts);
    doubtUses(site, rules, doubts);
    return doubts;
}

} // namespace firecheck
