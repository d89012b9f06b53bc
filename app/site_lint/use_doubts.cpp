#include "evaluators/rule_catalogue.h"
#include "site_file/site_keys.h"
#include "site_lint/SiteDoubts.h"
#include "text/nearest_name.h"
#include "text/shortened.h"
#include "text/words.h"

#include <QString>

#include <algorithm>
#include <map>
#include <set>

namespace firecheck {

namespace {

/// What people call the uses that the rules compare with, beside the word itself.
const std::map<std::string, std::vector<std::string>>& wordsOfUses() {
    static const std::map<std::string, std::vector<std::string>> table = {
        {"食堂", {"canteen", "kitchen", "餐厅", "厨房"}},
        {"厕所", {"toilet", "toilets", "lavatory", "WC", "卫生间", "洗手间"}},
        {"淋浴间", {"shower", "showers", "shower room", "浴室", "淋浴室"}},
        {"开水房", {"boiled water", "boiler room", "water heater", "开水间", "茶水间"}},
        {"文体活动室", {"recreation", "recreation room", "sports", "sports room", "活动室"}},
        {"吸烟室", {"smoking", "smoking room", "吸烟区", "吸烟处"}},
        {"可燃材料库房", {"store", "store house", "combustible materials", "材料库房", "可燃材料库"}},
        {"易燃易爆危险品库房",
         {"warehouse", "hazardous goods", "flammable and explosive goods", "危险品库房", "易燃易爆危险品库"}},
    };
    return table;
}

using Uses = std::map<std::string, std::string>; ///< rule names by use

/// The uses of closed houses that rules of the file ask for.
Uses usesAskedFor(const RuleMap& rules) {
    Uses uses;
    for (const auto& sharingKey : rules)
        for (const NuxStandardCheckRule& rule : sharingKey) {
            const firestandard::RuleRow* row = firestandard::findRule(rule.name, rule.type);
            if (row && row->use.of == firestandard::RequiredUse::Of::ClosedHouse &&
                !rule.propertyType.isEmpty())
                uses[QString::fromStdWString(std::wstring(row->use.name)).toStdString()] =
                    rule.name.toStdString();
        }
    return uses;
}

std::string meantUse(const std::string& given, const Uses& missing) {
    for (const auto& [use, rule] : missing) {
        std::vector<std::string> words{use};
        const auto further = wordsOfUses().find(use);
        if (further != wordsOfUses().end())
            words.insert(words.end(), further->second.begin(), further->second.end());
        if (nearestName(given, words))
            return use;
    }
    return {};
}

/// No rule compares with a use in Latin letters.
bool isLatin(const std::string& text) {
    return std::all_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

std::string joined(const Uses& missing) {
    std::string text;
    for (const auto& [use, rule] : missing)
        text += (text.empty() ? "" : ", ") + use;
    return text;
}

} // namespace

void doubtUses(const DoubtedSite& site, const RuleMap& rules, SiteDoubts& doubts) {
    const Uses asked = usesAskedFor(rules);
    Uses missing = asked;
    for (const Json& object : site.objects())
        if (object.at(kClassKey) == "closedHouse" && site.opened(object))
            missing.erase(object.at("use").get<std::string>());
    if (missing.empty())
        return;
    for (std::size_t i = 0; i < site.objects().size(); ++i) {
        const Json& object = site.objects()[i];
        if (object.at(kClassKey) != "closedHouse")
            continue;
        const auto use = object.at("use").get<std::string>();
        const std::string meant = meantUse(use, missing);
        if (asked.count(use) > 0 || (meant.empty() && !isLatin(use)))
            continue; // houses have many uses of no concern to the rules
        doubts.push_back(
            {DoubtedSite::pointerTo(i, "/use"), "unknown-use",
             filled(
                 Words::tr(
                     "No rule looks for the use \"%1\", and no house has one of %2, which rules look for."),
                 shortened(use), joined(missing)),
             meant});
    }
}

} // namespace firecheck
