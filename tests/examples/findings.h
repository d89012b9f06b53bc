#pragma once

#include "check/check_site.h"
#include "rules/rule_file.h"
#include "site_file/site_reader.h"
#include "source_file.h"

#include <algorithm>

using namespace firecheck;

/// What a check of the site finds, sorted: each the rule's name, the offending element (0 for none), a colon
/// and the related elements.
inline std::vector<std::string> findings(const Json& site, const RuleMap& rules) {
    std::vector<std::string> found;
    for (const auto& filed : checkSite(readSite(site), "site", rules).results)
        for (const NuxStandardCheckRule& record : filed.second) {
            found.push_back(record.name.toStdString() + " " + std::to_string(record.handle) + ":");
            for (const qint64 handle : record.relatedHandles)
                found.back() += " " + std::to_string(handle);
        }
    std::sort(found.begin(), found.end());
    return found;
}

/// A JSON file of the source tree.
inline Json sourceJson(const std::string& fileName) {
    return Json::parse(sourceText(fileName));
}
