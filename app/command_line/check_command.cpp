#include "InputError.h"
#include "check/check_site.h"
#include "command_line/Options.h"
#include "command_line/Output.h"
#include "command_line/commands.h"
#include "lint/lint_report.h"
#include "lint/lint_rule_file.h"
#include "report/ReportWriter.h"
#include "rules/rule_file.h"
#include "site_file/site_reader.h"

#include <QtGlobal>

namespace {

std::unique_ptr<ReportWriter> writerFor(const QString& format, Output& output) {
    const auto sink = [&output](const std::string& piece) { output.write(piece); };
    if (format == "json")
        return jsonReportWriter(sink);
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

/// What the linter cannot read is no reason not to check.
void mentionLint(const std::string& ruleFile) {
    try {
        const std::size_t count = lintRuleFile(ruleFile).size();
        if (count > 0)
            complain(ruleFile + ": " + countedFindings(count) +
                     " in the rule file, see \"firecheck lint-rules\"");
    } catch (const InputError& error) {
        complain(error.what());
    }
}

} // namespace

int checkCommand(const QStringList& words) {
    const Options options(words, {"rules", "format", "output"});
    if (options.arguments().isEmpty())
        throw InputError("No site file is given. Try \"firecheck --help\".");
    const QString format = options.format({"text", "json"});
    const auto givenRules = options.value("rules");
    const std::string ruleFile = givenRules ? givenRules->toStdString() : defaultRuleFile();
    const RuleMap& rules = loadRules(ruleFile);
    mentionLint(ruleFile);

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
        const SiteReport report = checkSite(std::move(*site), fileName, rules);
        if (status == kNothingFound && report.violationCount() > 0)
            status = kViolationsFound;
        writer->add(report);
    }
    writer->end();
    if (status != kWrongInput)
        output.commit();
    return status;
}
