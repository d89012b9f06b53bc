#include "site_file/site_classes.h"
#include "site_file/site_keys.h"
#include "site_lint/SiteDoubts.h"
#include "text/words.h"

#include <algorithm>
#include <map>

namespace firecheck {

namespace {

const std::vector<KeyShape>& keysOf(const std::string& className) {
    static const std::map<std::string, const SiteClass*> classes = [] {
        std::map<std::string, const SiteClass*> byName;
        for (const SiteClass& siteClass : siteClasses())
            byName[siteClass.name] = &siteClass;
        return byName;
    }();
    return classes.at(className)->keys;
}

std::string knownCodes(const CodeNames& names) {
    std::string text;
    for (const auto& [name, code] : names)
        text += (text.empty() ? "" : ", ") + std::to_string(code) + " (" + name + ")";
    return text;
}

} // namespace

void doubtCodes(const DoubtedSite& site, SiteDoubts& doubts) {
    for (std::size_t i = 0; i < site.objects().size(); ++i) {
        const Json& object = site.objects()[i];
        for (const KeyShape& shape : keysOf(object.at(kClassKey).get<std::string>())) {
            const auto value = shape.names.empty() ? object.end() : object.find(shape.key);
            if (value == object.end() || !value->is_number())
                continue;
            const auto code = value->get<std::int64_t>();
            if (std::none_of(shape.names.begin(), shape.names.end(),
                             [code](const auto& known) { return known.second == code; }))
                doubts.push_back({DoubtedSite::pointerTo(i, "/" + shape.key),
                                  "unknown-code",
                                  filled(Words::tr("The code %1 has no meaning here; known are %2."), code,
                                         knownCodes(shape.names)),
                                  {}});
        }
    }
}

} // namespace firecheck
