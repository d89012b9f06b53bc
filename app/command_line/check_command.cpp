#include "InputError.h"
#include "check/check_site.h"
#include "command_line/AcceptOptions.h"
#include "command_line/Options.h"
#include "command_line/Output.h"
#include "command_line/commands.h"
#include "lint/lint_report.h"
#include "lint/lint_rule_file.h"
#include "report/ReportWriter.h"
#include "rules/rule_file.h"
#include "site_file/site_reader.h"
#include "text/printable.h"

#include <QtGlobal>

#include <algorithm>
#include <cstdio>

namespace firecheck {

namespace {

std::unique_ptr<ReportWriter> writerFor(const QString& format, Output& output) {
    const auto sink = [&output](const std::string& piece) { output.write(piece); };
    if (format == "json")
        return jsonReportWriter(sink);
    if (format == "csv")
        return csvReportWriter(sink);
    if (format == "html")
        return htmlReportWriter(sink);
    return textReportWriter(sink, output.isTerminal() && qEnvironmentVariableIsEmpty("NO_COLOR"));
}

/// The site, or nothing and a complaint: one wrong file does not keep the others from being checked.
std::optional<Site> tryLoadSite(const std::string& fileName) {
    try {
        return loadSite(fileName);
    } catch (const InputError& error) {
        complain(error.what());
        return std::nullopt;
    }
}

/// Refuses a rule file that is not well-formed.
void mentionLint(const std::string& ruleFile) {
    const std::size_t count = lintRuleFile(ruleFile).size();
    if (count > 0)
        complain(ruleFile + ": " + countedFindings(count) +
                 " in the rule file, see \"firecheck lint-rules\"");
}

/// How long each rule took, the slowest first.
void writeProfile(const SiteReport& report) {
    std::vector<const JudgedRule*> rules;
    for (const JudgedRule& judged : report.judged)
        rules.push_back(&judged);
    std::stable_sort(rules.begin(), rules.end(),
                     [](const JudgedRule* a, const JudgedRule* b) { return a->time > b->time; });
    std::fprintf(stderr, "%s: time by rule\n", printable(report.fileName).c_str());
    for (const JudgedRule* judged : rules)
        std::fprintf(stderr, "%10.3f ms  %s\n",
                     std::chrono::duration<double, std::milli>(judged->time).count(),
                     printable(judged->rule.name.toStdString()).c_str());
}

} // namespace

int checkCommand(const Options& options) {
    if (options.arguments().isEmpty())
        throw InputError("No site file is given. Try \"firecheck --help\".");
    const QString format = options.format();
    const auto givenRules = options.value("rules");
    const std::string ruleFile = givenRules ? givenRules->toStdString() : defaultRuleFile();
    mentionLint(ruleFile);
    const RuleMap& rules = useRules(ruleFile);
    const AcceptOptions accept(options);

    Output output(options.value("output").value_or(QString()));
    const auto writer = writerFor(format, output);
    int status = kNothingFound;
    writer->begin();
    for (const QString& argument : options.arguments()) {
        const std::string fileName = argument.toStdString();
        std::optional<Site> site = tryLoadSite(fileName);
        if (!site) {
            status = kWrongInput;
            continue;
        }
        SiteReport report = checkSite(std::move(*site), fileName, rules);
        accept.applyTo(report);
        if (status == kNothingFound && report.violationCount() > report.acceptedCount())
            status = kViolationsFound;
        writer->add(report);
        if (options.isSet("profile"))
            writeProfile(report);
    }
    writer->end();
    if (status != kWrongInput)
        output.commit();
    return status;
}

} // namespace firecheck
