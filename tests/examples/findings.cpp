#include "findings.h"

#include "check/check_site.h"
#include "site_file/site_reader.h"

#include <algorithm>
#include <fstream>

std::string finding(const std::string& ruleName, long long element, const std::vector<qint64>& related) {
    std::string text = ruleName + " " + std::to_string(element) + ":";
    for (const qint64 handle : related)
        text += " " + std::to_string(handle);
    return text;
}

std::vector<std::string> findings(const Json& site, const RuleMap& rules) {
    std::vector<std::string> found;
    for (const auto& filed : checkSite(readSite(site), "site", rules).results)
        for (const NuxStandardCheckRule& record : filed.second)
            found.push_back(finding(record.name.toStdString(), record.handle, record.relatedHandles));
    std::sort(found.begin(), found.end());
    return found;
}

Json sourceJson(const std::string& fileName) {
    std::ifstream file(SOURCE_DIRECTORY "/" + fileName);
    return Json::parse(file);
}
