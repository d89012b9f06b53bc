#include "InputError.h"
#include "command_line/Options.h"
#include "command_line/Output.h"
#include "command_line/commands.h"
#include "explain/rule_text_fields.h"
#include "rules/rule_file.h"
#include "rules/rule_texts.h"
#include "text/printable.h"

namespace firecheck {

namespace {

std::string rulesAsJson(const RuleMap& rules) {
    Json entries = Json::array();
    for (auto entry = rules.begin(); entry != rules.end(); ++entry) {
        Json records = Json::array();
        for (const NuxStandardCheckRule& rule : entry.value())
            records.push_back(ruleTexts(rule));
        entries.push_back({{"key", entry.key().toStdString()}, {"records", std::move(records)}});
    }
    return Json{{"rules", std::move(entries)}}.dump(2) + "\n";
}

std::string quoted(const QString& text) {
    return printable(Json(text.toStdString()).dump());
}

/// Texts are quoted as in JSON, so that blanks show; empty ones are left out.
std::string rulesAsText(const RuleMap& rules) {
    std::string text;
    for (auto entry = rules.begin(); entry != rules.end(); ++entry) {
        text += quoted(entry.key()) + "\n";
        for (const NuxStandardCheckRule& rule : entry.value()) {
            const char* bullet = "  - ";
            for (const auto& [name, member] : firestandard::ruleTextFields()) {
                if ((rule.*member).isEmpty())
                    continue;
                text += bullet + std::string(name) + ": " + quoted(rule.*member) + "\n";
                bullet = "    ";
            }
        }
    }
    return text;
}

} // namespace

int showRulesCommand(const Options& options) {
    const QStringList files = options.arguments();
    if (files.size() > 1)
        throw InputError("Only one rule file can be shown at a time.");
    const QString format = options.format();
    const RuleMap& rules = loadRules(files.isEmpty() ? defaultRuleFile() : files.first().toStdString());
    Output output(options.value("output").value_or(QString()));
    output.write(format == "json" ? rulesAsJson(rules) : rulesAsText(rules));
    output.commit();
    return kNothingFound;
}

} // namespace firecheck
