#include "InputError.h"
#include "command_line/Options.h"
#include "command_line/Output.h"
#include "command_line/commands.h"
#include "lint/lint_report.h"
#include "lint/lint_rule_file.h"
#include "rules/rule_file.h"

namespace firecheck {

int lintRulesCommand(const Options& options) {
    const QStringList files = options.arguments();
    if (files.size() > 1)
        throw InputError("Only one rule file can be looked at at a time.");
    const QString format = options.format();
    const std::string fileName = files.isEmpty() ? defaultRuleFile() : files.first().toStdString();
    const std::vector<LintFinding> findings = lintRuleFile(fileName);

    Output output(options.value("output").value_or(QString()));
    output.write(format == "json" ? lintReportJson(fileName, findings).dump(2) + "\n"
                                  : lintReportText(fileName, findings));
    output.commit();
    return findings.empty() ? kNothingFound : kViolationsFound;
}

} // namespace firecheck
