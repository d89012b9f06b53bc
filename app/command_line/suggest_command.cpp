#include "InputError.h"
#include "check/check_site.h"
#include "command_line/Options.h"
#include "command_line/Output.h"
#include "command_line/Progress.h"
#include "command_line/commands.h"
#include "command_line/drawing_options.h"
#include "rules/rule_file.h"
#include "site_file/changed_text.h"
#include "site_file/site_classes.h"
#include "suggest/suggest_changes.h"
#include "suggest/suggestion_json.h"
#include "suggest/suggestion_text.h"

#include <cmath>

namespace firecheck {

namespace {

double reachOf(const Options& options) {
    constexpr double shortest = double(kLayoutStep); // mm
    constexpr double longest = 1e6;
    const auto given = options.value("reach");
    if (!given)
        return SuggestOptions().reach;
    bool isNumber = false;
    const double reach = given->toDouble(&isNumber) / firestandard::kMetresPerMillimetre;
    if (!isNumber || !(reach >= shortest && reach <= longest))
        throw InputError("Option --reach: expected metres from 0.01 to 1000, found \"" +
                         given->toStdString() + "\".");
    return reach;
}

/// Of which objects are moved when asked for.
std::string askedForClasses() {
    std::string list;
    for (const SiteClass& siteClass : siteClasses())
        if (movableClasses().count(siteClass.name) == 0 && unmovableClasses().count(siteClass.name) == 0)
            list += (list.empty() ? "" : ", ") + siteClass.name;
    return list;
}

std::set<std::string> movedClasses(const Options& options) {
    std::vector<std::string> known;
    for (const SiteClass& siteClass : siteClasses())
        known.push_back(siteClass.name);
    std::set<std::string> classes;
    for (const QString& given : options.values("move")) {
        const std::string name = given.toStdString();
        if (std::find(known.begin(), known.end(), name) == known.end())
            throw InputError("Option --move: no class is named \"" + name + "\". " +
                             suggestionText(name, known) +
                             "Try \"firecheck site-schema --format markdown\".");
        if (unmovableClasses().count(name) > 0)
            throw InputError("Option --move: objects of class \"" + name +
                             "\" are never moved. Those that are when asked for: " + askedForClasses() + ".");
        classes.insert(name);
    }
    return classes;
}

std::set<long long> keptHandles(const Options& options, const Site& site) {
    std::set<long long> handles;
    for (const QString& given : options.values("keep")) {
        bool isNumber = false;
        const long long handle = given.toLongLong(&isNumber);
        if (!isNumber || site.labels.count(handle) == 0)
            throw InputError("Option --keep: the site has no object with the handle \"" +
                             given.toStdString() + "\".");
        handles.insert(handle);
    }
    return handles;
}

Json headJson(const SiteReport& report, const SuggestOptions& options) {
    Json findings = Json::array();
    for (const Finding& finding : report.findings) {
        const NuxStandardCheckRule& record = report.record(finding);
        Json related = Json::array();
        for (const qint64 handle : record.relatedHandles)
            related.push_back(std::to_string(handle));
        findings.push_back({{"rule", record.name.toStdString()},
                            {"handle", std::to_string(record.handle)},
                            {"relatedHandles", std::move(related)},
                            {"sentence", finding.sentence}});
    }
    return {{"file", report.fileName},
            {"name", report.siteName},
            {"reach", options.reach * firestandard::kMetresPerMillimetre},
            {"findings", std::move(findings)}};
}

std::string jsonText(const Json& json) {
    return json.dump(2, ' ', false, Json::error_handler_t::replace) + "\n";
}

std::string planResult(const Options& options, const SiteReport& report, const SuggestOptions& suggestOptions,
                       const SitePlan& plan) {
    if (options.format() == "text")
        return planText(report, plan);
    Json json = headJson(report, suggestOptions);
    json["plan"] = planJson(plan);
    return jsonText(json);
}

std::string suggestionsResult(const Options& options, const SiteReport& report,
                              const SuggestOptions& suggestOptions) {
    if (options.format() == "text")
        return suggestionsText(report);
    Json json = headJson(report, suggestOptions);
    json["suggestions"] = suggestionsJson(*report.suggestions);
    return jsonText(json);
}

/// Nothing unless it is asked for.
std::optional<std::string> changedSite(const Options& options, const SiteFile& file, const SitePlan& plan) {
    if (!options.value("apply"))
        return std::nullopt;
    return file.drawing ? siteText(plan.site) : changedSiteText(file.text, file.value, plan.site);
}

/// Neither where the other cannot be written.
void write(const Options& options, const std::string& result, const std::optional<std::string>& site) {
    Output output(options.value("output").value_or(QString()));
    std::optional<Output> applied;
    if (site)
        applied.emplace(*options.value("apply"));
    output.write(result);
    if (applied)
        applied->write(*site);
    output.commit();
    if (applied)
        applied->commit();
}

} // namespace

int suggestCommand(const Options& options) {
    if (options.arguments().size() != 1)
        throw InputError("Suggestions are made for one site file. Try \"firecheck help suggest\".");
    options.format(); // refused before anything is read
    SuggestOptions suggestOptions;
    suggestOptions.reach = reachOf(options);
    suggestOptions.movable = movedClasses(options);
    const auto givenRules = options.value("rules");
    const std::string ruleFile = givenRules ? givenRules->toStdString() : defaultRuleFile();
    requireWellFormed(ruleFile);
    const RuleMap& rules = useRules(ruleFile);
    const std::string fileName = options.arguments().first().toStdString();
    SiteFile file = loadSiteFile(fileName, drawingOptions(options));
    tellDoubtsOfDrawing(file, fileName);
    suggestOptions.kept = keptHandles(options, file.site);
    SiteReport report = checkSite(std::move(file.site), fileName, rules);

    Progress line(fileName);
    const auto progress = [&line](std::size_t done, std::size_t all, const std::string& rule) {
        line.tell(done, all, rule);
    };
    if (options.isSet("all") || options.value("apply")) {
        const SitePlan plan = planChanges(file.value, rules, suggestOptions, progress);
        write(options, planResult(options, report, suggestOptions, plan), changedSite(options, file, plan));
    } else {
        report.suggestions = suggestChanges(file.value, report, rules, suggestOptions, progress);
        write(options, suggestionsResult(options, report, suggestOptions), std::nullopt);
    }
    return report.findings.empty() ? kNothingFound : kViolationsFound;
}

} // namespace firecheck
