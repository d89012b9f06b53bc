#include "site_file/site_text.h"

#include "site_file/site_keys.h"

namespace firecheck {

std::string siteText(const Json& site) {
    std::string text = "{\n";
    for (const auto& [key, member] : site.items())
        if (key != kObjectsKey)
            text += "  " + Json(key).dump() + ": " + member.dump() + ",\n";
    text += "  \"" + kObjectsKey + "\": [";
    for (const Json& object : site.at(kObjectsKey))
        text += (text.back() == '[' ? "\n    " : ",\n    ") + object.dump();
    return text + "\n  ]\n}\n";
}

} // namespace firecheck
