// Judges every case of every case file, as it stands and placed elsewhere.

#include "case_file/CaseFile.h"
#include "evaluators/distant/NUXRelElementTypeDistantRule.h"
#include "evaluators/position/NUXRelElementTypePositionRule.h"
#include "evaluators/self/NUXElementTypeRule.h"
#include "evaluators/without/NUXWithoutElementTypeRule.h"
#include "placement.h"
#include "rules/rule_fields.h"
#include "rules/rule_file.h"
#include "site/CheckObserver.h"
#include "site_file/site_reader.h"

#include <QDir>
#include <gtest/gtest.h>

#include <map>
#include <set>

namespace {

using Records = std::vector<NuxStandardCheckRule>;

/// What a report that explains results is told while a rule is checked.
class Watcher : public CheckObserver {
public:
    Watcher() { setCheckObserver(this); }
    ~Watcher() override { setCheckObserver(nullptr); }
    Watcher(const Watcher&) = delete;

    void beginRule(const NuxStandardCheckRule&) override {}
    void endRule() override {}
    void found(const UdDbObject& element) override { m_found.insert(element.Handle().GetID()); }
    void valued(const UdDbObject& element, double value, double limit) override {
        if (value != limit)
            m_valued.insert(element.Handle().GetID());
    }
    void measured(double distance, const hrx::CVec3<double>&, const hrx::CVec3<double>&) override {
        m_measured = distance;
    }
    void judgedPair(const UdDbObject& element, const UdDbObject& other, double distance) override {
        m_pairs.insert({element.Handle().GetID(), other.Handle().GetID()});
        EXPECT_EQ(distance, m_measured) << "0 where nothing was measured";
        m_measured = 0.0;
    }

    void expectToldOf(const NuxStandardCheckRule& record) const {
        const bool isOfDoors = record.name == "Position_DoorToDoor"; // it finds walls and names their doors
        EXPECT_EQ(m_found.count(record.handle), record.handle != 0 && !isOfDoors ? 1u : 0u);
        const bool hasValue = record.name.endsWith("Area") || record.name.endsWith("Width");
        EXPECT_EQ(m_valued.count(record.handle), hasValue ? 1u : 0u);
        const bool hasPairs = record.type == "distant" || record.name.contains("Box");
        for (const qint64 related : record.relatedHandles)
            EXPECT_EQ(m_pairs.count({record.handle, related}), hasPairs ? 1u : 0u) << related;
    }

private:
    std::set<qint64> m_found;
    std::set<qint64> m_valued;
    std::set<std::pair<qint64, qint64>> m_pairs;
    double m_measured = 0.0;
};

Records check(const Json& siteJson, const NuxStandardCheckRule& rule) {
    static NUXElementTypeRule self;
    static NUXWithoutElementTypeRule without;
    static NUXRelElementTypeDistantRule distant;
    static NUXRelElementTypePositionRule position;
    static const std::map<QString, NUXRule*> evaluators = {
        {"self", &self}, {"without", &without}, {"distant", &distant}, {"position", &position}};
    const Site site = readSite(siteJson);
    return evaluators.at(rule.type)->check(site.document->GetModelSpace(), rule);
}

std::string violationText(long long element, const std::vector<long long>& related) {
    std::string text = std::to_string(element) + " with";
    for (const long long handle : related)
        text += " " + std::to_string(handle);
    return text + "\n";
}

std::string expectedText(const Case& expected) {
    std::string text;
    for (const ExpectedViolation& violation : expected.violations)
        text += violationText(violation.element, violation.related);
    return text;
}

std::string foundText(const Records& records) {
    std::string text;
    for (const NuxStandardCheckRule& record : records)
        text += violationText(record.handle, {record.relatedHandles.begin(), record.relatedHandles.end()});
    return text;
}

class CaseTest : public testing::Test {
public:
    explicit CaseTest(const Case& judged) : m_case(judged) {}

    void TestBody() override {
        judge(m_case.site, "as it stands");
        judge(placed(m_case.site, Turn::None), "moved");
        if (!m_case.dependsOnDirection)
            judge(placed(m_case.site, Turn::ThreeFourFive), "turned and moved");
    }

private:
    void judge(const Json& site, const char* placement) const {
        const Watcher watcher;
        const Records records = check(site, m_case.rule);
        EXPECT_EQ(foundText(records), expectedText(m_case)) << placement;
        for (const NuxStandardCheckRule& record : records) {
            EXPECT_EQ(ruleTexts(record), ruleTexts(m_case.rule));
            EXPECT_FALSE(record.flag);
            watcher.expectToldOf(record);
        }
    }

    Case m_case;
};

/// Every rule of the rule file that the project ships is shown to pass and to fail.
class CoverageTest : public testing::Test {
public:
    explicit CoverageTest(const std::vector<CaseFile>& files) : m_files(files) {}

    void TestBody() override {
        std::set<QString> passing;
        std::set<QString> failing;
        for (const CaseFile& file : m_files) {
            for (const Case& one : file.cases)
                (one.violations.empty() ? passing : failing).insert(one.rule.name);
        }
        std::string missing;
        for (const std::vector<NuxStandardCheckRule>& rules : loadRules(SHIPPED_RULE_FILE)) {
            const QString& name = rules.front().name;
            if (!passing.count(name))
                missing += name.toStdString() + " has no passing case\n";
            if (!failing.count(name))
                missing += name.toStdString() + " has no failing case\n";
        }
        EXPECT_EQ(missing, "");
    }

private:
    std::vector<CaseFile> m_files;
};

class BrokenFileTest : public testing::Test {
public:
    explicit BrokenFileTest(std::string error) : m_error(std::move(error)) {}
    void TestBody() override { FAIL() << m_error; }

private:
    std::string m_error;
};

template <class Test, class Argument>
void registerTest(const std::string& suite, const std::string& name, const Argument& argument) {
    testing::RegisterTest(suite.c_str(), name.c_str(), nullptr, nullptr, __FILE__, __LINE__,
                          [argument]() -> testing::Test* { return new Test(argument); });
}

std::string contentOf(const QString& fileName) {
    QFile file(fileName);
    file.open(QIODevice::ReadOnly);
    return file.readAll().toStdString();
}

void registerCaseFiles() {
    std::vector<CaseFile> files;
    const QFileInfoList found = QDir(CASE_DIRECTORY).entryInfoList({"*.json"}, QDir::Files, QDir::Name);
    for (const QFileInfo& info : found) {
        const std::string suite = info.completeBaseName().toStdString();
        try {
            files.push_back(readCaseFile(contentOf(info.filePath()), info.fileName().toStdString()));
            for (const Case& one : files.back().cases)
                registerTest<CaseTest>(suite, one.sentence, one);
        } catch (const std::exception& error) {
            registerTest<BrokenFileTest>(suite, "can be read", std::string(error.what()));
        }
    }
    registerTest<CoverageTest>("all_case_files", "show every rule to pass and to fail", files);
}

} // namespace

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    registerCaseFiles();
    return RUN_ALL_TESTS();
}
