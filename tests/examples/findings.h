#pragma once

#include "rules/rule_file.h"
#include "site_file/Json.h"

#include <string>
#include <vector>

/// One violation: the rule's name, the offending element (0 for none) and the related elements.
std::string finding(const std::string& ruleName, long long element, const std::vector<qint64>& related);

/// What a check of the site finds, sorted.
std::vector<std::string> findings(const Json& site, const RuleMap& rules);

/// A JSON file of the source tree.
Json sourceJson(const std::string& fileName);
