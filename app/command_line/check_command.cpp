#include "InputError.h"
#include "check/RuleSelection.h"
#include "check/check_site.h"
#include "command_line/AcceptOptions.h"
#include "command_line/Options.h"
#include "command_line/Output.h"
#include "command_line/Progress.h"
#include "command_line/commands.h"
#include "command_line/drawing_options.h"
#include "lint/lint_report.h"
#include "lint/lint_rule_file.h"
#include "report/ReportWriter.h"
#include "report/finding_order.h"
#include "rules/rule_file.h"
#include "site_file/RefusedSite.h"
#include "site_lint/SiteDoubts.h"
#include "site_lint/site_lint_report.h"
#include "suggest/suggest_changes.h"
#include "text/printable.h"
#include "text/words.h"

#include <QtGlobal>

#include <algorithm>
#include <cstdio>

namespace firecheck {

namespace {

bool isColoured(const Output& output) {
    return output.isTerminal() && qEnvironmentVariableIsEmpty("NO_COLOR") && qgetenv("TERM") != "dumb";
}

std::unique_ptr<ReportWriter> writerFor(const Options& options, Output& output) {
    const QString format = options.format();
    const bool isSilent = options.isSet("quiet") && !options.value("output");
    const auto sink = [&output, isSilent](const std::string& piece) {
        if (!isSilent)
            output.write(piece);
    };
    if (format == "json")
        return options.isSet("no-results") ? jsonReportWriterWithoutResults(sink) : jsonReportWriter(sink);
    if (format == "csv")
        return csvReportWriter(sink);
    if (format == "html")
        return htmlReportWriter(sink);
    if (format == "dxf")
        return dxfReportWriter(sink);
    return textReportWriter(sink, isColoured(output));
}

void complainOfAll(const RefusedSite& refused, const std::string& fileName) {
    constexpr std::size_t most = 20;
    const auto& messages = refused.messages();
    for (std::size_t i = 0; i < std::min(most, messages.size()); ++i)
        complain(messages[i]);
    if (messages.size() > most)
        complain(fileName + ": " +
                 filled(Words::tr("%n further errors, see \"firecheck lint-site\"", "",
                                  static_cast<int>(messages.size() - most))));
}

/// The site, or nothing and complaints: one wrong file does not keep the others from being checked.
std::optional<SiteFile> tryLoadSite(const std::string& fileName, const RuleMap& rules,
                                    const DrawingOptions& drawings, bool isQuiet) {
    try {
        SiteFile file = loadSiteFile(fileName, drawings);
        if (!isQuiet)
            tellDoubtsOfDrawing(file, fileName);
        const std::size_t count = isQuiet ? 0 : siteDoubts(file, rules).size();
        if (count > 0)
            complain(fileName + ": " +
                     filled(Words::tr("%1 about the site file, see \"firecheck lint-site\"", "doubts"),
                            countedDoubts(count)));
        return file;
    } catch (const RefusedSite& refused) {
        complainOfAll(refused, fileName);
    } catch (const InputError& error) {
        complain(error.what());
    }
    return std::nullopt;
}

/// Refuses a rule file that is not well-formed.
void mentionLint(const std::string& ruleFile, bool isQuiet) {
    const std::size_t count = lintRuleFile(ruleFile).size();
    if (count > 0 && !isQuiet)
        complain(ruleFile + ": " +
                 filled(Words::tr("%1 in the rule file, see \"firecheck lint-rules\"", "findings"),
                        countedFindings(count)));
}

/// How long each rule took, the slowest first.
void writeProfile(const SiteReport& report) {
    std::vector<const JudgedRule*> rules;
    for (const JudgedRule& judged : report.judged)
        rules.push_back(&judged);
    std::stable_sort(rules.begin(), rules.end(),
                     [](const JudgedRule* a, const JudgedRule* b) { return a->time > b->time; });
    std::fprintf(stderr, "%s: %s\n", printable(report.fileName).c_str(),
                 filled(Words::tr("time by rule")).c_str());
    for (const JudgedRule* judged : rules)
        std::fprintf(
            stderr, "%10s ms  %s\n",
            QByteArray::number(std::chrono::duration<double, std::milli>(judged->time).count(), 'f', 3)
                .constData(), // whatever the locale
            printable(judged->rule.name.toStdString()).c_str());
}

std::vector<QString> ruleNames(const RuleMap& rules) {
    std::vector<QString> names;
    for (const auto& sharingKey : rules)
        for (const NuxStandardCheckRule& rule : sharingKey)
            names.push_back(rule.name);
    return names;
}

/// What is asked of every site alike.
class CheckRun {
public:
    CheckRun(const Options& options, const RuleMap& rules)
        : m_options(options), m_rules(rules),
          m_selection(options.values("select"), options.values("ignore"), ruleNames(rules)),
          m_accept(options) {}

    SiteReport check(SiteFile file, const std::string& fileName) {
        SiteReport report = withProgress(std::move(file.site), fileName);
        if (!m_options.isSet("unjudged"))
            report.judgedByNoRule.clear();
        m_accept.applyTo(report);
        m_selection.applyTo(report);
        m_accept.keep(report);
        report.tellFewOfEach();
        orderFindings(report, orderNamed(m_options.choice("order")));
        if (m_options.isSet("suggest"))
            suggest(file.value, report);
        if (m_options.isSet("profile"))
            writeProfile(report);
        return report;
    }

    void end() const { m_accept.write(); }

private:
    SiteReport withProgress(Site site, const std::string& fileName) const {
        Progress progress(fileName);
        return checkSite(std::move(site), fileName, m_rules, [&](const firestandard::CheckStep& step) {
            progress.tell(step);
            return true;
        });
    }

    void suggest(const Json& site, SiteReport& report) const {
        Progress progress(report.fileName);
        report.suggestions = suggestChanges(site, report, m_rules, {},
                                            [&](std::size_t done, std::size_t all, const std::string& rule) {
                                                progress.tell(done, all, rule);
                                            });
    }

    const Options& m_options;
    const RuleMap& m_rules;
    const RuleSelection m_selection;
    AcceptOptions m_accept;
};

} // namespace

int checkCommand(const Options& options) {
    if (options.arguments().isEmpty())
        throw InputError("No site file is given. Try \"firecheck help check\".");
    // Refused before anything is read.
    if (options.format() == "dxf" && options.arguments().size() > 1)
        throw InputError(
            "Expected one site file for --format dxf: the findings of two would lie upon each other.");
    if (options.isSet("suggest") && (options.format() == "csv" || options.format() == "dxf"))
        throw InputError("Option --suggest is for text, json and html.");
    options.choice("order");
    const auto givenRules = options.value("rules");
    const std::string ruleFile = givenRules ? givenRules->toStdString() : defaultRuleFile();
    mentionLint(ruleFile, options.isSet("quiet"));
    const RuleMap& rules = useRules(ruleFile);
    const DrawingOptions drawings = drawingOptions(options);
    CheckRun run(options, rules);

    Output output(options.value("output").value_or(QString()));
    const auto writer = writerFor(options, output);
    bool isAnyRead = false;
    int status = kNothingFound;
    writer->begin();
    for (const QString& argument : options.arguments()) {
        const std::string fileName = argument.toStdString();
        std::optional<SiteFile> site = tryLoadSite(fileName, rules, drawings, options.isSet("quiet"));
        if (!site) {
            status = kWrongInput;
            continue;
        }
        isAnyRead = true;
        const SiteReport report = run.check(std::move(*site), fileName);
        if (status == kNothingFound && report.violationCount() > report.acceptedCount())
            status = kViolationsFound;
        writer->add(report);
    }
    writer->end();
    if (isAnyRead) {
        output.commit();
        run.end();
    }
    return status;
}

} // namespace firecheck
