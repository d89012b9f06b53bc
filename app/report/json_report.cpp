#include "report/ReportWriter.h"
#include "rules/rule_fields.h"

#include <QStringList>

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

Json resultsJson(const SiteReport& report) {
    Json results = Json::array();
    for (const auto& [key, filed] : report.results) {
        Json records = Json::array();
        for (const NuxStandardCheckRule& record : filed)
            records.push_back(recordJson(record));
        results.push_back({{"key", key.toStdString()}, {"records", std::move(records)}});
    }
    return results;
}

Json checkStateJson(const SiteReport& report) {
    Json states = Json::array();
    for (const auto& [key, flags] : report.checkState)
        states.push_back({{"key", key.toStdString()}, {"flags", flags}});
    return states;
}

Json siteJson(const SiteReport& report) {
    Json counts = Json::array();
    for (const RuleCount& count : report.counts)
        counts.push_back({{"rule", count.ruleName.toStdString()}, {"violations", count.violations}});
    Json elements = Json::array();
    for (const ElementLabel& element : report.elements)
        elements.push_back({{"handle", decimal(element.handle)},
                            {"class", element.className},
                            {"identifier", element.identifier},
                            {"name", element.name}});
    Json notJudged = Json::array();
    for (const NotJudged& passedOver : report.notJudged)
        notJudged.push_back({{"what", passedOver.what}, {"reason", passedOver.reason}});
    return {{"file", report.fileName},
            {"name", report.siteName},
            {"objects", report.objectCount},
            {"violations", report.violationCount()},
            {"countsByRule", std::move(counts)},
            {"results", resultsJson(report)},
            {"checkState", checkStateJson(report)},
            {"elements", std::move(elements)},
            {"notJudged", std::move(notJudged)}};
}

class JsonReportWriter : public ReportWriter {
public:
    using ReportWriter::ReportWriter;

    void begin() override { write("{\n  \"sites\": ["); }

    void add(const SiteReport& report) override {
        // File names may be no UTF-8.
        const std::string json = siteJson(report).dump(2, ' ', false, Json::error_handler_t::replace);
        QString indented = QString::fromStdString(json);
        indented.replace('\n', "\n    ");
        write((m_isFirst ? "\n    " : ",\n    ") + indented.toStdString());
        m_isFirst = false;
    }

    void end() override { write(m_isFirst ? "]\n}\n" : "\n  ]\n}\n"); }

private:
    bool m_isFirst = true;
};

} // namespace

std::unique_ptr<ReportWriter> jsonReportWriter(ReportWriter::Sink sink) {
    return std::make_unique<JsonReportWriter>(std::move(sink));
}
