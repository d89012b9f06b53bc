#include "rules_page/rules_page.h"
#include "source_file.h"

#include <QDir>
#include <gtest/gtest.h>

#include <set>

using namespace firecheck;

namespace {

/// The page of one file with these cases, of rules "Without_A" and "Without_B".
std::string pageWith(const std::string& cases) {
    const std::string text = R"({"title": "T", "about": "a", "reports": "r", "rules": [
        {"each": [{"x": "A"}, {"x": "B"}], "name": "Without_{x}", "meaning": "m", "limits": "1 | 2 m*",
         "fields": {"type": "without", "elementType": "NUX_{x}"}}],
        "site": [{"handle": 1, "class": "woodYard", "center": [0, 0], "length": 1, "depth": 1}],
        "cases": [)" + cases +
                             "]}";
    return rulesPage({{"t", readCaseFile(text, "t")}}).front().content;
}

} // namespace

TEST(RulesPage, IsPublishedAsItIs) {
    std::set<QString> plans;
    for (const PageFile& file : rulesPage(readCaseFiles(SOURCE_DIRECTORY "/cases"))) {
        EXPECT_EQ(sourceText("docs/" + file.name), file.content) << file.name;
        EXPECT_LT(file.name == "rules.md" ? 0u : file.content.size(), 60000u) << file.name;
        plans.insert(QFileInfo(file.name.c_str()).fileName());
    }
    for (const QString& name : QDir(SOURCE_DIRECTORY "/docs/rules").entryList(QDir::Files))
        EXPECT_EQ(plans.count(name), 1u) << name.toStdString() << " belongs to no case file";
}

TEST(RulesPage, GathersWhatAPatternStandsFor) {
    struct Row {
        const char* cases;
        const char* line;
    };
    const Row rows[] = {
        {R"({"each": [{"x": "A"}, {"x": "B"}], "case": "Without_{x}: none", "rule": "Without_{x}", "violations": []})",
         "\n| none | each | nothing |\n"},
        {R"({"each": [{"n": 2, "t": ""}, {"n": 3, "t": "a,b"}], "case": "{n} of {t}", "rule": "Without_A",
             "set": {"1": {"note": "{n}{t}"}}, "violations": []})",
         "\n| *n* of *t*<br>*n*, *t*: 2, \"\"; 3, \"a,b\" | `Without_A` | nothing |\n"},
        {R"({"each": [{"n": 2, "r": 1}, {"n": 3, "r": 7}], "case": "with {n}", "rule": "Without_B",
             "fields": {"name": "Other_{n}"}, "violations": [{"element": 1, "related": ["{r}", 8]}, {}]})",
         "\n| with 3 | `Without_B` | #1 with #7, #8; the site |\n"},
    };
    for (const Row& row : rows) {
        const std::string page = pageWith(row.cases);
        EXPECT_NE(page.find(row.line), std::string::npos) << row.line << page;
    }
    const std::string page = pageWith(rows[0].cases);
    EXPECT_NE(page.find("### `Without_…`"), std::string::npos) << page;
    EXPECT_NE(page.find("**Limits:** 1 \\| 2 m\\*\n"), std::string::npos) << page;
    EXPECT_NE(page.find("| `Without_B` | `NUX_B` |"), std::string::npos) << page;
}
