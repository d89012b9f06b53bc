#include "InputError.h"
#include "command_line/Options.h"
#include "command_line/Output.h"
#include "command_line/commands.h"
#include "rules/vocabulary_report.h"

namespace firecheck {

namespace {

std::string vocabularyAs(const QString& format) {
    if (format == "json")
        return vocabularyJson().dump(2) + "\n";
    return format == "text" ? vocabularyText() : vocabularyMarkdown();
}

const RuleName& requiredRule(const std::string& name) {
    if (const RuleName* known = findRuleName(name))
        return *known;
    std::vector<std::string> names;
    for (const RuleName& rule : ruleNames())
        names.push_back(rule.name);
    throw InputError("No rule has the name \"" + name + "\". " + suggestionText(name, names) +
                     "A distance rule may have any name.");
}

std::string ruleAs(const QString& format, const RuleName& rule) {
    if (format == "markdown")
        throw InputError("One rule is told as text or JSON.");
    return format == "json" ? ruleNameJson(rule).dump(2) + "\n" : ruleNameText(rule);
}

} // namespace

int listRulesCommand(const Options& options) {
    const QStringList names = options.arguments();
    if (names.size() > 1)
        throw InputError("Expected the name of one rule. For a rule file try \"firecheck show-rules\".");
    const QString format = options.format();
    Output output(options.value("output").value_or(QString()));
    output.write(names.isEmpty() ? vocabularyAs(format)
                                 : ruleAs(format, requiredRule(names.first().toStdString())));
    output.commit();
    return kNothingFound;
}

} // namespace firecheck
