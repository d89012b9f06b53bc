#include "report/ReportWriter.h"
#include "report/clause_table.h"
#include "report/judgement_text.h"
#include "report/missing_share.h"
#include "rules/rule_texts.h"
#include "suggest/suggestion_json.h"

namespace firecheck {

namespace {

std::string decimal(long long handle) {
    return std::to_string(handle);
}

Json recordJson(const NuxStandardCheckRule& record) {
    Json json = ruleTexts(record);
    json["handle"] = decimal(record.handle);
    json["relatedHandles"] = Json::array();
    for (const qint64 handle : record.relatedHandles)
        json["relatedHandles"].push_back(decimal(handle));
    json["flag"] = record.flag;
    return json;
}

Json filedJson(const QString& key, const std::vector<NuxStandardCheckRule>& filed) {
    Json records = Json::array();
    for (const NuxStandardCheckRule& record : filed)
        records.push_back(recordJson(record));
    return {{"key", key.toStdString()}, {"records", std::move(records)}};
}

Json checkStateJson(const SiteReport& report) {
    Json states = Json::array();
    for (const auto& [key, flags] : report.checkState)
        states.push_back({{"key", key.toStdString()}, {"flags", flags}});
    return states;
}

Json pointJson(const PlanPoint& point) {
    return Json::array({point.x, point.y});
}

Json countsJson(const SiteReport& report) {
    Json counts = Json::array();
    for (const RuleCount& count : report.counts)
        counts.push_back({{"rule", count.ruleName.toStdString()}, {"violations", count.violations}});
    return counts;
}

Json labelJson(const ElementLabel& element) {
    return {{"handle", decimal(element.handle)},
            {"class", element.className},
            {"identifier", element.identifier},
            {"name", element.name},
            {"noun", element.noun},
            {"place", element.place ? pointJson(*element.place) : Json()}};
}

Json labelsJson(const std::vector<ElementLabel>& labels) {
    Json elements = Json::array();
    for (const ElementLabel& element : labels)
        elements.push_back(labelJson(element));
    return elements;
}

Json measureJson(const Measure& measure) {
    const bool isArea = measure.kind == Measure::Kind::Area;
    Json json{{"kind", isArea                                    ? "area"
                       : measure.kind == Measure::Kind::Distance ? "distance"
                                                                 : "width"},
              {"value", measure.value},
              {"unit", isArea ? "m2" : "m"},
              {"minimum", measure.minimum ? Json(*measure.minimum) : Json()},
              {"maximum", measure.maximum ? Json(*measure.maximum) : Json()}};
    if (measure.kind != Measure::Kind::Distance)
        return json;
    json["other"] = decimal(measure.other);
    json["points"] = Json();
    if (measure.points)
        json["points"] =
            Json::array({pointJson(measure.points->onElement), pointJson(measure.points->onOther)});
    return json;
}

Json findingJson(const SiteReport& report, const Finding& finding) {
    const NuxStandardCheckRule& record = report.record(finding);
    Json related = Json::array();
    for (const long long handle : finding.related)
        related.push_back(decimal(handle));
    const auto share = missingShare(finding);
    Json measures = Json::array();
    for (const Measure& measure : finding.measures)
        measures.push_back(measureJson(measure));
    Json json{{"rule", record.name.toStdString()},
              {"key", report.results[finding.entry].first.toStdString()},
              {"index", finding.index},
              {"handle", decimal(record.handle)},
              {"relatedHandles", std::move(related)},
              {"relatedCount", finding.relatedCount},
              {"sentence", finding.sentence},
              {"measures", std::move(measures)},
              {"missingShare", share ? Json(*share) : Json()},
              {"accepted", finding.acceptedBecause ? Json(*finding.acceptedBecause) : Json()},
              {"outgrown", finding.outgrown ? Json{{"value", finding.outgrown->value},
                                                   {"reason", finding.outgrown->reason}}
                                            : Json()}};
    if (finding.further > 0)
        json["further"] = finding.further;
    if (finding.furtherAccepted > 0)
        json["furtherAccepted"] = finding.furtherAccepted;
    return json;
}

const char* verdictName(JudgedRule::Verdict verdict) {
    switch (verdict) {
    case JudgedRule::Verdict::NothingToJudge:
        return "nothingToJudge";
    case JudgedRule::Verdict::NoEvaluator:
        return "noEvaluator";
    case JudgedRule::Verdict::Judged:
        break;
    }
    return "judged";
}

Json judgedJson(const SiteReport& report) {
    Json judged = Json::array();
    for (const JudgedRule& rule : report.judged)
        judged.push_back({{"rule", rule.rule.name.toStdString()},
                          {"type", rule.rule.type.toStdString()},
                          {"verdict", verdictName(rule.verdict)},
                          {"found", rule.found},
                          {"pairs", rule.pairs},
                          {"offending", rule.offending},
                          {"violations", rule.violations},
                          {"outcome", judgementText(rule)},
                          {"canOffend", rule.canOffend},
                          {"neverMeasuredPairs", rule.neverMeasuredPairs},
                          {"note", rule.note}});
    return judged;
}

Json clausesJson(const SiteReport& report) {
    Json clauses = Json::array();
    for (const ClauseOutcome& clause : clauseTable(report)) {
        Json rules = Json::array();
        for (const JudgedRule* judged : clause.rules)
            rules.push_back({{"rule", judged->rule.name.toStdString()},
                             {"description", judged->rule.ruleDescription.toStdString()},
                             {"detail", judged->rule.ruleDetailDescription.toStdString()}});
        clauses.push_back({{"standard", clause.standard.toStdString()},
                           {"rules", std::move(rules)},
                           {"judgedRules", clause.judgedRules},
                           {"offending", clause.offending},
                           {"violations", clause.violations},
                           {"accepted", clause.accepted}});
    }
    return clauses;
}

Json notJudgedJson(const SiteReport& report) {
    Json notJudged = Json::array();
    for (const PassedOver& passedOver : report.notJudged)
        notJudged.push_back({{"what", passedOver.what}, {"reason", passedOver.reason}});
    return notJudged;
}

Json unjudgedJson(const SiteReport& report) {
    Json unjudged = Json::array();
    for (const firestandard::UnjudgedElement& element : report.unjudged) {
        Json rules = Json::array();
        for (const QString& rule : element.rules)
            rules.push_back(rule.toStdString());
        unjudged.push_back(
            {{"handle", decimal(element.handle)}, {"reason", element.reason}, {"rules", std::move(rules)}});
    }
    return unjudged;
}

/// What stands before the records and what stands behind them.
Json headJson(const SiteReport& report) {
    return {{"file", report.fileName},
            {"name", report.siteName},
            {"objects", report.objectCount},
            {"violations", report.violationCount()},
            {"accepted", report.acceptedCount()},
            {"notJudgedElements", report.unjudgedCount()},
            {"leftOutRules", report.leftOutRules},
            {"countsByRule", countsJson(report)}};
}

Json tailJson(const SiteReport& report) {
    Json tail{{"judged", judgedJson(report)},
              {"clauses", clausesJson(report)},
              {"unjudged", unjudgedJson(report)},
              {"notJudged", notJudgedJson(report)},
              {"judgedByNoRule", labelsJson(report.judgedByNoRule)},
              {"staleAcceptances", report.staleAcceptances}};
    if (report.suggestions)
        tail["suggestions"] = suggestionsJson(*report.suggestions);
    return tail;
}

std::string lineAt(int indent) {
    return "\n" + std::string(static_cast<std::size_t>(indent), ' ');
}

/// As it stands in the report: in lines, of which all but the first are indented.
std::string textOf(const Json& json, int indent) {
    // File names may be no UTF-8.
    const std::string text = json.dump(2, ' ', false, Json::error_handler_t::replace);
    const std::string line = lineAt(indent);
    std::string indented;
    std::size_t start = 0;
    for (std::size_t end = text.find('\n'); end != std::string::npos; end = text.find('\n', start)) {
        indented.append(text, start, end - start).append(line);
        start = end + 1;
    }
    return indented.append(text, start);
}

/// Writes records one by one, because each may name every element of a large site.
class JsonReportWriter : public ReportWriter {
public:
    JsonReportWriter(Sink sink, bool hasResults) : ReportWriter(std::move(sink)), m_hasResults(hasResults) {}

    void begin() override { write("{\n  \"sites\": ["); }

    void add(const SiteReport& report) override {
        write((m_isFirst ? "" : ",") + lineAt(kSiteIndent) + "{");
        m_isFirst = false;
        writeMembers(headJson(report), "");
        writeListStart("findings");
        for (const Finding& finding : report.findings)
            writeLine(findingJson(report, finding), &finding == &report.findings.front());
        writeListEnd(report.findings.empty());
        if (m_hasResults) {
            writeListStart("results");
            for (const auto& entry : report.results)
                writeItem(filedJson(entry.first, entry.second), &entry == &report.results.front());
            writeListEnd(report.results.empty());
            writeMembers({{"checkState", checkStateJson(report)}}, ",");
        }
        writeListStart("elements");
        for (const ElementLabel& element : report.elements)
            writeLine(labelJson(element), &element == &report.elements.front());
        writeListEnd(report.elements.empty());
        writeMembers(tailJson(report), ",");
        write(lineAt(kSiteIndent) + "}");
    }

    void end() override { write(m_isFirst ? "]\n}\n" : "\n  ]\n}\n"); }

private:
    static constexpr int kSiteIndent = 4;
    static constexpr int kMemberIndent = 6;
    static constexpr int kItemIndent = 8;

    void writeMembers(const Json& members, const char* separator) const {
        for (const auto& [key, value] : members.items()) {
            write(separator + lineAt(kMemberIndent) + "\"" + key + "\": " + textOf(value, kMemberIndent));
            separator = ",";
        }
    }
    void writeListStart(const std::string& key) const {
        write("," + lineAt(kMemberIndent) + "\"" + key + "\": [");
    }
    void writeItem(const Json& item, bool isFirst) const {
        write((isFirst ? "" : ",") + lineAt(kItemIndent) + textOf(item, kItemIndent));
    }
    /// What there is much of takes a line each.
    void writeLine(const Json& item, bool isFirst) const {
        write((isFirst ? "" : ",") + lineAt(kItemIndent) +
              item.dump(-1, ' ', false, Json::error_handler_t::replace));
    }
    void writeListEnd(bool isEmpty) const { write(isEmpty ? "]" : lineAt(kMemberIndent) + "]"); }

    bool m_hasResults;
    bool m_isFirst = true;
};

} // namespace

std::unique_ptr<ReportWriter> jsonReportWriter(ReportWriter::Sink sink) {
    return std::make_unique<JsonReportWriter>(std::move(sink), true);
}

std::unique_ptr<ReportWriter> jsonReportWriterWithoutResults(ReportWriter::Sink sink) {
    return std::make_unique<JsonReportWriter>(std::move(sink), false);
}

} // namespace firecheck
