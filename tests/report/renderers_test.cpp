#include "SchemaJudge.h"
#include "case_file/case_directory.h"
#include "check/accept_file.h"
#include "check/check_site.h"
#include "drawing/load_site.h"
#include "report/ReportWriter.h"
#include "report/clause_table.h"
#include "report/finding_order.h"
#include "report/merged_findings.h"
#include "report/plan/plan_svg.h"
#include "source_file.h"
#include "suggest/suggest_changes.h"

#include <QDir>
#include <QDomDocument>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <cmath>
#include <fstream>

using namespace firecheck;

namespace {

using MakeWriter = std::unique_ptr<ReportWriter> (*)(ReportWriter::Sink);

std::unique_ptr<ReportWriter> plainTextWriter(ReportWriter::Sink sink) {
    return textReportWriter(std::move(sink), false);
}

QString rendered(const SiteReport& report, MakeWriter makeWriter) {
    std::string text;
    const auto writer = makeWriter([&text](const std::string& piece) { text += piece; });
    writer->begin();
    writer->add(report);
    writer->end();
    return QString::fromStdString(text);
}

const RuleMap& shippedRules() {
    static const RuleMap& rules = loadRules(SOURCE_DIRECTORY "/data/FireStandardCheck.xml");
    return rules;
}

SiteReport check(Site site, const std::string& name) {
    return checkSite(std::move(site), name, shippedRules());
}

SiteReport checkExample(const QString& name) {
    return check(loadSite((SOURCE_DIRECTORY "/examples/" + name).toStdString()), name.toStdString());
}

/// The rows of a table as a spreadsheet reads them.
std::vector<QStringList> csvRows(const QString& text) {
    std::vector<QStringList> rows(1, QStringList(QString()));
    bool isQuoted = false;
    for (int i = 0; i < text.size(); ++i) {
        QString& cell = rows.back().last();
        if (isQuoted && text.mid(i, 2) == "\"\"")
            cell += text[++i];
        else if (text[i] == '"')
            isQuoted = !isQuoted;
        else if (!isQuoted && text[i] == ',')
            rows.back() << QString();
        else if (!isQuoted && text.mid(i, 2) == "\r\n" && ++i < text.size() - 1)
            rows.emplace_back(QString());
        else
            cell += text[i];
    }
    return rows;
}

/// How many violations each rule has, as one rendering shows it.
using Counts = std::map<QString, int>;

Counts countsOfJson(const Json& site) {
    Counts counts;
    for (const auto& count : site["countsByRule"])
        counts[QString::fromStdString(count["rule"])] = count["violations"];
    return counts;
}

Counts countsOfCsv(const QString& csv) {
    Counts counts;
    QString previous;
    const auto rows = csvRows(csv);
    for (std::size_t i = 1; i < rows.size(); ++i) {
        if (rows[i][2] != previous && !rows[i][2].isEmpty()) // without a number: an element not judged
            ++counts[rows[i][3]];
        previous = rows[i][2];
    }
    return counts;
}

/// From head lines "Rule (n): ...", and in all as many sentences, which are indented by two blanks, or
/// counted.
Counts countsOfText(const QString& text) {
    Counts counts;
    int all = 0;
    const QString findings =
        text.section(QRegularExpression("\\n(By clause|Not judged|Judged by no rule)\\n"), 0, 0);
    const QRegularExpression head("^(\\w+) \\((\\d+)\\)", QRegularExpression::MultilineOption);
    for (auto match = head.globalMatch(findings); match.hasNext();) {
        const auto group = match.next();
        all += counts[group.captured(1)] = group.captured(2).toInt();
    }
    int told = 0;
    const QRegularExpression line("^  (?:(\\d+) more violations? of the same rule|\\S)",
                                  QRegularExpression::MultilineOption);
    for (auto match = line.globalMatch(findings); match.hasNext();) {
        const QString further = match.next().captured(1);
        told += further.isEmpty() ? 1 : further.toInt();
    }
    EXPECT_EQ(told, all);
    return counts;
}

/// Findings under several rules stand once, below the headings of all of them.
Counts countsOfHtml(const QString& html) {
    Counts counts;
    for (const QString& group : html.split("<section class=\"rule\"").mid(1)) {
        int records = 0;
        for (const QString& item : group.split("<li class=\"finding").mid(1))
            records += item.section("data-records=\"", 1).section('"', 0, 0).toInt();
        const QStringList heads = group.split("<h2>").mid(1);
        for (const QString& head : heads) {
            const QString name =
                head.section("<p class=\"source\">", 1).section(QRegularExpression("\\W"), 0, 0);
            const int count = head.section("<span class=\"count\">", 1).section('<', 0, 0).toInt();
            EXPECT_EQ(count * heads.size(), records);
            counts[name] += count;
        }
    }
    return counts;
}

class Renderers : public testing::Test {
protected:
    void expectAgreement(const SiteReport& report) {
        const std::string json = rendered(report, jsonReportWriter).toStdString();
        EXPECT_TRUE(m_schema.accepts(json));
        const Json site = Json::parse(json)["sites"][0];
        EXPECT_EQ(site["findings"].size(), site["violations"]);
        const Counts counts = countsOfJson(site);
        EXPECT_EQ(countsOfCsv(rendered(report, csvReportWriter)), counts);
        EXPECT_EQ(countsOfText(rendered(report, plainTextWriter)), counts);
        EXPECT_EQ(countsOfHtml(rendered(report, htmlReportWriter)), counts);

        int judgedViolations = 0;
        for (const auto& judged : site["judged"])
            judgedViolations += judged["violations"].get<int>();
        EXPECT_EQ(judgedViolations, site["violations"]);
    }

    SchemaJudge m_schema{sourceText("data/report.schema.json")};
};

TEST_F(Renderers, AgreeOnEveryExampleTwice) {
    const QStringList examples = QDir(SOURCE_DIRECTORY "/examples").entryList({"*.json"});
    ASSERT_GE(examples.size(), 4);
    for (const QString& name : examples) {
        SCOPED_TRACE(name.toStdString());
        const SiteReport report = checkExample(name);
        expectAgreement(report);
        const SiteReport again = checkExample(name);
        for (const MakeWriter writer : {jsonReportWriter, csvReportWriter, htmlReportWriter})
            EXPECT_EQ(rendered(again, writer), rendered(report, writer));
    }
}

TEST_F(Renderers, AgreeOnEveryCase) {
    for (const auto& [name, file] : readCaseFiles(SOURCE_DIRECTORY "/cases")) {
        for (const Case& single : file.cases) {
            SCOPED_TRACE(name + ": " + single.sentence);
            expectAgreement(check(readSite(single.site), name));
        }
    }
}

/// Site walls from one corner with a gate in each: every gate breaks one rule with several others.
Site starOfWalls(int count) {
    Json objects = Json::array();
    for (int i = 0; i < count; ++i) {
        const double x = 20000 * std::cos(2.4 * i);
        const double y = 20000 * std::sin(2.4 * i);
        objects.push_back({{"class", "wall"},
                           {"handle", 1000 + i},
                           {"start", {0, 0}},
                           {"end", {x, y}},
                           {"doors", {{{"distance", 10000}, {"door", 100 + i}, {"width", 900}}}}});
        objects.push_back({{"class", "door"},
                           {"handle", 100 + i},
                           {"position", {x / 2, y / 2}},
                           {"angle", 0},
                           {"leafWidth", 900}});
    }
    return readSite(Json{{"objects", objects}});
}

int sumOf(const Json& list, const char* key) {
    int sum = 0;
    for (const Json& item : list)
        sum += item.value(key, 0);
    return sum;
}

TEST_F(Renderers, CountRecordsThatFindingsStandFor) {
    SiteReport report = check(starOfWalls(12), "star");
    const std::size_t all = report.findings.size();
    for (std::size_t i = 0; i < all; i += 2)
        report.findings[i].acceptedBecause = "agreed";
    const std::size_t accepted = report.acceptedCount();
    report.tellFewOfEach();
    ASSERT_LT(report.findings.size(), all);
    EXPECT_EQ(report.violationCount(), all);
    EXPECT_EQ(report.acceptedCount(), accepted);

    const std::string json = rendered(report, jsonReportWriter).toStdString();
    EXPECT_TRUE(m_schema.accepts(json));
    const Json site = Json::parse(json)["sites"][0];
    const Counts counts = countsOfJson(site);
    EXPECT_EQ(countsOfText(rendered(report, plainTextWriter)), counts);
    const QString html = rendered(report, htmlReportWriter);
    EXPECT_EQ(countsOfHtml(html), counts);
    EXPECT_EQ(html.count("<span class=\"count\">"), int(counts.size())) << "each heading stands once";

    EXPECT_EQ(site["violations"], all);
    EXPECT_EQ(sumOf(site["countsByRule"], "violations"), int(all));
    EXPECT_EQ(sumOf(site["clauses"], "violations"), int(all));
    EXPECT_EQ(site["findings"].size() + std::size_t(sumOf(site["findings"], "further")), all);
    int acceptedFindings = sumOf(site["findings"], "furtherAccepted");
    for (const Json& finding : site["findings"])
        acceptedFindings += finding["accepted"].is_null() ? 0 : 1;
    EXPECT_EQ(acceptedFindings, int(accepted));
    EXPECT_EQ(sumOf(site["clauses"], "accepted"), int(accepted));
    int acceptedOfPage = 0;
    for (const QString& item : html.split("data-accepted=\"").mid(1))
        acceptedOfPage += item.section('"', 0, 0).toInt();
    EXPECT_EQ(acceptedOfPage, int(accepted));

    orderFindings(report, FindingOrder::Clause);
    const QRegularExpression head("^\\S.* \\((\\d+)\\)$", QRegularExpression::MultilineOption);
    int underClauses = 0;
    for (auto match = head.globalMatch(rendered(report, plainTextWriter)); match.hasNext();)
        underClauses += match.next().captured(1).toInt();
    EXPECT_EQ(underClauses, int(all));
}

TEST_F(Renderers, ListTheSameInAnyOrder) {
    SiteReport report = checkExample("tower-site.json");
    const auto all = report.findings.size();
    for (const FindingOrder order : {FindingOrder::Clause, FindingOrder::Missing}) {
        orderFindings(report, order);
        const Json site = Json::parse(rendered(report, jsonReportWriter).toStdString())["sites"][0];
        const QString text = rendered(report, plainTextWriter);
        const QString html = rendered(report, htmlReportWriter);
        const auto rows = csvRows(rendered(report, csvReportWriter));
        QStringList clauses;
        std::vector<double> shares;
        int textPlace = 0;
        for (const Json& finding : site["findings"]) {
            textPlace = text.indexOf("\n  " + QString::fromStdString(finding["sentence"]) + "\n", textPlace);
            EXPECT_GE(textPlace, 0) << finding["sentence"];
            shares.push_back(finding["missingShare"].is_null() ? 0.0 : finding["missingShare"].get<double>());
        }
        for (const QStringList& row : rows)
            if (const QString standard = row.value(5);
                row.value(2).toInt() > 0 && !clauses.endsWith(standard))
                clauses << standard;
        EXPECT_EQ(shares.size(), all);
        EXPECT_EQ(order == FindingOrder::Missing, std::is_sorted(shares.rbegin(), shares.rend()));
        EXPECT_EQ(order == FindingOrder::Clause, clauses.removeDuplicates() == 0);
        EXPECT_EQ(html.count("<h2>GB 50720-2011, 3.2.2</h2>"), order == FindingOrder::Clause ? 1 : 0);
        EXPECT_EQ(rows[1].last(), order == FindingOrder::Missing ? "28" : "");
    }
    EXPECT_TRUE(clausePrecedes("A 3.2.1", "A 3.10"));
    EXPECT_FALSE(clausePrecedes("", "A 3.10"));
}

TEST_F(Renderers, SayWhatAPlannerWouldSay) {
    const SiteReport report = checkExample("tower-site.json");
    std::map<std::string, std::string> sentences;
    for (const Finding& finding : report.findings)
        sentences[report.record(finding).name.toStdString()] =
            QString::fromStdString(finding.sentence).remove(QRegularExpression(" \"[^\"]*\"")).toStdString();
    const std::map<std::string, std::string> expected = {
        {"Distant_PrefabHouseToPrefabHouse",
         "dormitory 413 stands 3.50 m from dormitory 414; the rule asks for at least 4.00 m"},
        {"Distant_PrefabHouseToWoodWorkingFactory",
         "office 404 stands 6.20 m from woodworking workshop 602; the rule asks for at least 7.00 m"},
        {"Self_PrefabHouseRoomArea",
         "office 402 has a room of 126.00 m²; the rule asks for at most 100.00 m²"},
        {"Without_SmookingRoom", "the site has no smoking room"},
        {"Position_FireExtinguisherBoxToWoodFactory", "formwork workshop 601 is touched by extinguisher box "
                                                      "1222; the rule asks for one at most 3.00 m away "
                                                      "that does not touch it"},
    };
    for (const auto& [rule, sentence] : expected)
        EXPECT_EQ(sentences[rule], sentence);
}

/// The numbers of the findings whose changes the plan outlines.
std::set<std::size_t> outlinedFindings(const QString& html) {
    std::set<std::size_t> numbers;
    for (const QString& group : html.split("<g class=\"ghost ").mid(1))
        if (group.section('\n', 1, 1).startsWith("<path class=\"outline\""))
            numbers.insert(group.section("data-finding=\"", 1).section('"', 0, 0).toULong());
    return numbers;
}

TEST_F(Renderers, OutlineWhatIsSuggested) {
    SiteReport report = checkExample("tower-site.json");
    EXPECT_FALSE(rendered(report, htmlReportWriter).contains("<g class=\"ghost"));
    report.suggestions =
        suggestChanges(Json::parse(sourceText("examples/tower-site.json")), report, shippedRules(), {});
    std::set<std::size_t> changed;
    const std::vector<MergedFinding> merged = mergedFindings(report);
    for (const MergedFinding& one : merged)
        if (!report.suggestions->at(one.numbers.front() - 1).steps.empty())
            changed.insert(one.numbers.front());
    ASSERT_EQ(changed.size() + 1, merged.size()) << "all but the gates";
    const QString html = rendered(report, htmlReportWriter);
    EXPECT_EQ(outlinedFindings(html), changed);
    EXPECT_EQ(std::size_t(html.count(QRegularExpression("<g class=\"ghost [^>]*data-finding"))),
              changed.size());
    EXPECT_EQ(std::size_t(html.count("<p class=\"suggestion\">")), merged.size());
}

/// A road, too narrow by a trifle, with a name out to become something else.
SiteReport siteNamed(const std::string& name) {
    Json site = Json::parse(R"({"objects": [{"class": "road", "handle": 3, "fireRoad": true, "start": [0, 0],
                                             "end": [-9000, 0], "width": 3999}]})");
    site["name"] = site["objects"][0]["name"] = name;
    return check(readSite(site), name);
}

/// The table's row about the road.
QStringList roadRow(const std::string& name) {
    for (const QStringList& row : csvRows(rendered(siteNamed(name), csvReportWriter)))
        if (row.value(3) == "Self_RoadMinWidth")
            return row;
    return {};
}

TEST_F(Renderers, KeepNamesFromBecomingAnythingElse) {
    const QString harmless = rendered(siteNamed("road"), htmlReportWriter);
    for (const char* name :
         {"</script><img src=x onerror=alert(1)>", "]]><svg onload=alert(1)>", "\" onclick=\"alert(1)",
          "</title></style><script>alert(1)</script>", "<!--", "&lt;b&gt;", "'/><a href='javascript:x"}) {
        SCOPED_TRACE(name);
        const SiteReport report = siteNamed(name);
        const QString html = rendered(report, htmlReportWriter);
        EXPECT_EQ(html.count('<'), harmless.count('<'));
        EXPECT_FALSE(html.contains(name));

        QDomDocument plan;
        ASSERT_TRUE(plan.setContent(planSvgFile(report)));
        EXPECT_EQ(plan.elementsByTagName("title").at(0).toElement().text(),
                  "fire road 3 \"" + QString(name) + "\"");
    }
    QDomDocument plan;
    EXPECT_TRUE(plan.setContent(planSvgFile(siteNamed("a\x01\x7f b"))));

    constexpr int nameColumn = 11;
    for (const char* name : {"=1+1", "+1", "-1", "@SUM(A1)", "＝1+1", "＠A1", "  =1", "\u00a0=1", "\u3000-1"})
        EXPECT_EQ(roadRow(name).value(nameColumn), "'" + QString(name));
    for (const char* format : {"\t", "\u200b", "\u202e", "\u0085", "\U000e0001"})
        EXPECT_EQ(roadRow((format + std::string("=1")).c_str()).value(nameColumn), "?=1");
    const QStringList row = roadRow("a,\"b\" c");
    EXPECT_EQ(row.value(nameColumn), "a,\"b\" c");
    EXPECT_EQ(row.value(nameColumn + 1), "-4.5"); // a number stays one
}

Acceptance accepted(const char* rule, std::vector<long long> handles, const char* reason,
                    std::optional<double> value = {}, const char* site = "") {
    return {site, rule, std::move(handles), reason, value};
}

TEST(AcceptFile, TakesOutWhatItNamesAndTellsWhatIsStaleOrWorse) {
    SiteReport report = checkExample("tower-site.json");
    const std::size_t all = report.violationCount();
    const std::vector<Acceptance> entries{
        accepted("Distant_PrefabHouseToPrefabHouse", {413, 414}, "one group", 3.5),
        accepted("Self_RoadLoop", {}, "turning area"),
        accepted("Distant_PrefabHouseToPrefabHouse", {413}, "moved"),
        accepted("Self_RoadMinWidth", {413, 414}, "another rule"),
        accepted("Self_PrefabHouseRoomArea", {402}, "a hall", 125.0),
        accepted("Distant_PrefabHouseToWoodWorkingFactory", {404, 602}, "a wall between", 6.3),
        accepted("Without_SmookingRoom", {}, "of another site", {}, "other.json"),
        accepted("Self_RoadMinWidth", {1}, "also of another site", {}, "other.json")};
    acceptFindings(entries, {"tower-site.json"}, report);
    EXPECT_EQ(report.violationCount(), all);
    EXPECT_EQ(report.acceptedCount(), 2u);
    ASSERT_EQ(report.staleAcceptances.size(), 2u);
    EXPECT_EQ(report.staleAcceptances[0], "Distant_PrefabHouseToPrefabHouse #413: moved");
    const QString text = rendered(report, plainTextWriter);
    EXPECT_EQ(text.count("accepted at 125.00 m², but worse now: a hall"), 1);
    EXPECT_EQ(text.count("accepted at 6.30 m, but worse now: a wall between"), 1);

    report.tellFewOfEach();
    EXPECT_EQ(report.violationCount(), report.findings.size());
    AcceptFileText fresh(entries, {"tower-site.json"});
    fresh.add(report);
    const Json written = Json::parse(fresh.text())["accepted"];
    EXPECT_EQ(written.size(), all + 4) << "also those that match nothing keep their reasons";
    EXPECT_EQ(std::count_if(written.begin(), written.end(),
                            [](const Json& entry) { return entry["reason"] != ""; }),
              std::ptrdiff_t(entries.size()));
}

Measure distance(long long other, double value, std::optional<double> minimum,
                 std::optional<double> maximum) {
    Measure measure;
    measure.other = other;
    measure.value = value;
    measure.minimum = minimum;
    measure.maximum = maximum;
    return measure;
}

/// One record for each list of measures, all of one element.
SiteReport reportOf(const std::vector<std::vector<Measure>>& records) {
    SiteReport report;
    report.fileName = "a.json";
    report.results.resize(1);
    for (const std::vector<Measure>& measures : records) {
        NuxStandardCheckRule record;
        record.name = "Rule";
        record.handle = 1;
        for (const Measure& measure : measures)
            record.relatedHandles.push_back(measure.other);
        report.findings.emplace_back().index = report.results[0].second.size();
        report.findings.back().measures = measures;
        report.results[0].second.push_back(record);
    }
    return report;
}

TEST(AcceptFile, HoldsEachElementAgainstItsOwnValue) {
    const auto near = [](long long other, double value) { return distance(other, value, 4.0, {}); };
    const auto box = [](double value) { return distance(2, value, {}, 3.0); };
    const struct {
        const char* name;
        std::vector<Measure> then;
        std::vector<Measure> now;
        bool isWorse;
    } cases[] = {
        {"as it was", {near(2, 1.0), near(3, 3.0)}, {near(2, 1.0), near(3, 3.0)}, false},
        {"better", {near(2, 1.0), near(3, 2.0)}, {near(3, 2.5), near(2, 3.0)}, false},
        {"the second came nearer", {near(2, 1.0), near(3, 3.0)}, {near(2, 1.0), near(3, 1.5)}, true},
        {"they changed places", {near(2, 1.0), near(3, 3.0)}, {near(3, 1.0), near(2, 3.0)}, true},
        {"touches", {near(2, 0.5)}, {near(2, 0.0)}, true},
        {"further off", {box(5.0)}, {box(5.5)}, true},
        {"less far", {box(5.0)}, {box(4.0)}, false},
        {"touches where it was too far", {box(5.0)}, {box(0.0)}, true},
        {"touches as before", {box(0.0)}, {box(0.0)}, false},
    };
    const QTemporaryDir directory;
    const std::string fileName = directory.filePath("accepted.json").toStdString();
    for (const auto& row : cases) {
        AcceptFileText written({}, {"a.json"});
        written.add(reportOf({row.then}));
        std::string text = written.text();
        text.replace(text.find("\"reason\": \"\""), 12, "\"reason\": \"agreed\"");
        std::ofstream(fileName) << text;
        SiteReport today = reportOf({row.now});
        acceptFindings(loadAcceptances(fileName, {"a.json"}), {"a.json"}, today);
        EXPECT_EQ(today.findings[0].outgrown.has_value(), row.isWorse) << row.name;
        EXPECT_EQ(today.acceptedCount(), row.isWorse ? 0u : 1u) << row.name;
    }
}

TEST(Report, TellsFiveViolationsOfOneElementAndCountsTheOthers) {
    SiteReport report = reportOf(std::vector<std::vector<Measure>>(8, {distance(2, 1.0, 4.0, {})}));
    for (Finding& finding : report.findings)
        finding.relatedCount = 1;
    for (const std::size_t accepted : {0, 1, 2, 3})
        report.findings[accepted].acceptedBecause = "agreed";
    report.tellFewOfEach();
    ASSERT_EQ(report.findings.size(), 5u);
    EXPECT_EQ(report.findings[0].index, 0u) << "accepted ones fill up what others leave";
    EXPECT_EQ(report.findings[1].index, 4u);
    EXPECT_EQ(report.findings[3].further, 0u);
    EXPECT_EQ(report.findings[4].further, 3u);
    EXPECT_EQ(report.findings[4].furtherAccepted, 3u);
    EXPECT_EQ(report.violationCount(), 8u);
    EXPECT_EQ(report.acceptedCount(), 4u);

    SiteReport clauses = reportOf(std::vector<std::vector<Measure>>(12, {distance(2, 1.0, 4.0, {})}));
    for (std::size_t i = 0; i < clauses.findings.size(); ++i)
        clauses.results[0].second[i].standard = i < 6 ? "A 1" : "A 2";
    clauses.tellFewOfEach();
    ASSERT_EQ(clauses.findings.size(), 10u);
    for (const ClauseOutcome& clause : clauseTable(clauses))
        EXPECT_EQ(clause.violations, 6u) << "further ones stay with their clause";
}

} // namespace
