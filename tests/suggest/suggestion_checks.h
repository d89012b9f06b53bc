#pragma once

#include "check/check_site.h"
#include "site_file/changed_text.h"
#include "site_file/site_keys.h"
#include "site_file/site_reader.h"
#include "source_file.h"
#include "suggest/suggest_changes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>

using namespace firecheck;

inline const RuleMap& shippedRules() {
    static const RuleMap& rules = loadRules(SOURCE_DIRECTORY "/data/FireStandardCheck.xml");
    return rules;
}

inline SiteReport checked(const Json& site) {
    return checkSite(readSite(site), "site", shippedRules());
}

/// The site with what the steps say, by the keys that they tell.
inline Json withSteps(Json site, const std::vector<SuggestedStep>& steps) {
    Json& objects = site[kObjectsKey];
    for (const SuggestedStep& step : steps)
        for (const SuggestedObject& object : step.objects) {
            if (object.isNew) {
                objects.insert(objects.end() - 1, object.keys);
                continue;
            }
            const auto changed = std::find_if(objects.begin(), objects.end(),
                                              [&](const Json& o) { return o.at("handle") == object.handle; });
            for (const auto& [key, value] : object.keys.items())
                (*changed)[key] = value;
        }
    return site;
}

/// Pairs found fault with, each with what was measured, as reports tell it; of boxes the element alone.
inline std::map<std::string, double> faults(const SiteReport& report) {
    std::map<std::string, double> result;
    for (const Finding& finding : report.findings) {
        const NuxStandardCheckRule& record = report.record(finding);
        const std::string name = record.name.toStdString() + " " + std::to_string(record.handle);
        const bool isOfBoxes = record.name.startsWith("Position_FireExtinguisherBox");
        if (isOfBoxes || record.relatedHandles.empty())
            result[name] = finding.measures.empty() ? 0.0 : finding.measures.front().value;
        else
            for (const qint64 other : record.relatedHandles)
                result[name + " " + std::to_string(other)] = 0.0;
        for (const Measure& measure : finding.measures)
            if (!isOfBoxes && measure.other != 0 && measure.minimum)
                result[name + " " + std::to_string(measure.other)] = measure.value;
    }
    return result;
}

/// What a finding is about, as faults() calls it.
inline std::set<std::string> faultsOf(const SiteReport& report, const Finding& finding) {
    SiteReport alone = report;
    alone.findings = {finding};
    std::set<std::string> names;
    for (const auto& fault : faults(alone))
        names.insert(fault.first);
    return names;
}

/// Applies the suggestion and checks anew, without anything of the search.
inline void expectKept(const Json& site, const SiteReport& report, const Suggestion& suggestion,
                       const std::string& trace) {
    const Finding& finding = report.findings[suggestion.finding];
    if (suggestion.steps.empty()) {
        EXPECT_NE(suggestion.obstacle, "") << trace;
        return;
    }
    const auto before = faults(report);
    const auto after = faults(checked(withSteps(site, suggestion.steps)));
    for (const std::string& fault : faultsOf(report, finding))
        EXPECT_EQ(after.count(fault), 0u) << trace << fault << "\n" << suggestion.steps.front().sentence;
    for (const auto& [fault, value] : after) {
        ASSERT_EQ(before.count(fault), 1u) << trace << fault << "\n" << suggestion.steps.front().sentence;
        const bool isOfBoxes = fault.rfind("Position_FireExtinguisherBox", 0) == 0;
        const double worseBy = isOfBoxes ? value - before.at(fault) : before.at(fault) - value;
        const bool isComparable = !isOfBoxes || before.at(fault) > 0.0;
        EXPECT_TRUE(!isComparable || worseBy <= 1e-6) << trace << fault << " by " << worseBy;
    }
}
