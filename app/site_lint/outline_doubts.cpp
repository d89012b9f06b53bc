#include "explain/unjudged_reason.h"
#include "site_lint/SiteDoubts.h"
#include "text/words.h"

namespace firecheck {

void doubtOutlines(const DoubtedSite& site, SiteDoubts& doubts) {
    for (std::size_t i = 0; i < site.objects().size(); ++i) {
        const Json& object = site.objects()[i];
        const UdDbObject* element = object.contains("polyline") ? site.opened(object) : nullptr;
        const std::string flaw = element ? firestandard::polylineFlaw(*element) : std::string();
        if (!flaw.empty())
            doubts.push_back({DoubtedSite::pointerTo(i, "/polyline"),
                              "bad-outline",
                              filled(Words::tr("No rule can measure the object: %1."), flaw),
                              {}});
    }
}

} // namespace firecheck
