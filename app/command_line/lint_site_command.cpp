#include "InputError.h"
#include "command_line/Options.h"
#include "command_line/Output.h"
#include "command_line/commands.h"
#include "command_line/drawing_options.h"
#include "rules/rule_file.h"
#include "site_lint/site_lint_report.h"

#include <algorithm>

namespace firecheck {

namespace {

/// That of the worst file.
int statusOf(const SiteFindings& findings) {
    if (!findings.failure.empty())
        return kWrongInput;
    return findings.findings.empty() ? kNothingFound : kViolationsFound;
}

} // namespace

int lintSiteCommand(const Options& options) {
    if (options.arguments().isEmpty())
        throw InputError("No site file is given. Try \"firecheck help lint-site\".");
    const bool isJson = options.format() == "json";
    const auto givenRules = options.value("rules");
    const RuleMap& rules = loadRules(givenRules ? givenRules->toStdString() : defaultRuleFile());

    const DrawingOptions drawings = drawingOptions(options);
    int status = kNothingFound;
    std::string text;
    Json sites = Json::array();
    for (const QString& argument : options.arguments()) {
        const SiteFindings findings = lintSite(argument.toStdString(), rules, drawings);
        status = std::max(status, statusOf(findings));
        if (!findings.failure.empty())
            complain(findings.failure);
        else if (!isJson)
            text += siteLintText(findings);
        if (isJson)
            sites.push_back(siteLintJson(findings));
    }
    Output output(options.value("output").value_or(QString()));
    output.write(isJson ? Json{{"sites", std::move(sites)}}.dump(2) + "\n" : text);
    output.commit();
    return status;
}

} // namespace firecheck
