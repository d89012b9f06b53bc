#include "rules/element_type_names.h"
#include "site_file/site_keys.h"
#include "site_lint/SiteDoubts.h"
#include "text/nearest_name.h"
#include "text/shortened.h"
#include "text/words.h"

namespace firecheck {

namespace {

void doubt(const Json& object, const std::string& pointer, SiteDoubts& doubts) {
    const auto given = object.find("identifier");
    if (given == object.end())
        return;
    const auto identifier = given->get<std::string>();
    if (isElementTypeName(identifier))
        return;
    std::string near = reportedInstead(identifier);
    if (near.empty())
        near = nearestName(identifier, elementTypeNames()).value_or(std::string());
    const bool looksKnown = identifier.compare(0, 4, "NUX_") == 0;
    if (near.empty() && !looksKnown)
        return; // a kind of the drawing's own, as models have
    doubts.push_back({pointer + "/identifier", "unknown-identifier",
                      filled(Words::tr("No rule knows the identifier \"%1\"."), shortened(identifier)),
                      near});
}

} // namespace

void doubtIdentifiers(const DoubtedSite& site, SiteDoubts& doubts) {
    for (std::size_t i = 0; i < site.objects().size(); ++i) {
        const Json& object = site.objects()[i];
        doubt(object, DoubtedSite::pointerTo(i), doubts);
        const auto view = object.find(kSecondViewKey);
        if (view != object.end())
            doubt(*view, DoubtedSite::pointerTo(i, "/" + kSecondViewKey), doubts);
    }
}

} // namespace firecheck
