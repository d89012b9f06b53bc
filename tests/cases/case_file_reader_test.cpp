#include "InputError.h"
#include "case_file/CaseFile.h"

#include <gmock/gmock.h>

using namespace firecheck;

namespace {

/// A case file with one house and these cases.
std::string fileWith(const std::string& cases, const std::string& furtherKey = "") {
    return R"({"title": "t", "about": "a", "reports": "r",)" + furtherKey + R"(
        "rules": [{"name": "Self_PrefabHouseFloorArea", "meaning": "m", "fields": {"type": "self"}}],
        "site": [{"handle": 1, "class": "prefabHouse", "use": "office", "center": [0, 0],
                  "length": 1, "depth": 1}],
        "cases": [)" +
           cases + "]}";
}

} // namespace

TEST(CaseFileReader, RefusesFilesThatWouldShowNothing) {
    struct Row {
        std::string text;
        const char* reason;
    };
    const Row rows[] = {
        {"", "expected JSON"},
        {"{}", "expected the key \"title\""},
        {fileWith(""), "expected a case"},
        {fileWith(R"({"case": "c", "violations": []}, {"case": "c", "violations": []})"), "said twice"},
        {fileWith(R"({"case": "c", "violations": []})", R"("cause": 1,)"), "unknown key \"cause\""},
        {fileWith(R"({"case": "c", "violations": [], "sets": {}})"), "unknown key \"sets\""},
        {fileWith(R"({"case": "c", "violations": [{"handle": 1}]})"), "unknown key \"handle\""},
        {fileWith(R"({"case": "c"})"), "expected the key \"violations\""},
        {fileWith(R"({"case": "c", "violations": [], "rule": "Self"})"), "no rule is named \"Self\""},
        {fileWith(R"({"case": "c", "violations": [], "fields": {"typ": ""}})"), "named \"typ\""},
        {fileWith(R"({"case": "c", "violations": [], "set": {"2": {}}})"), "has the handle 2"},
        {fileWith(R"({"case": "c", "violations": [], "set": {"1": {"lenght": 2}}})"),
         "unknown key \"lenght\""},
        {fileWith(R"({"case": "c", "violations": [], "each": []})"), "a list of rows"},
        {fileWith(R"({"case": "c {a}", "violations": [], "each": [{"a": 1, "b": 2}]})"), "uses \"{b}\""},
    };
    for (const Row& row : rows)
        EXPECT_THAT([&] { readCaseFile(row.text, "file"); },
                    testing::ThrowsMessage<InputError>(testing::HasSubstr(row.reason)))
            << row.text;
}

TEST(CaseFileReader, ChangesTheBaseSiteAsTheCaseSays) {
    const CaseFile file = readCaseFile(fileWith(R"({
        "each": [{"class": "prefabHouse", "size": 7, "key": "length"}, {"class": "openShed", "size": 8, "key": "depth"}],
        "case": "a {class} of {size}",
        "fields": {"distantValue": "{size}:9"},
        "set": {"1": {"{key}": "{size}", "note": "n"}},
        "add": [{"handle": 2, "class": "{class}", "use": 0, "center": [0, 0], "length": 1, "depth": 1}],
        "last": 1,
        "violations": [{"element": 1, "related": ["{size}"]}, {}]})"),
                                       "file");
    ASSERT_EQ(file.cases.size(), 2u);
    const Case& second = file.cases[1];
    EXPECT_EQ(second.sentence, "a openShed of 8");
    EXPECT_EQ(second.rule.distantValue, "8:9");
    EXPECT_EQ(second.rule.objName, "objName");
    const Json& objects = second.site.at("objects");
    EXPECT_EQ(objects.at(0).at("class"), "openShed");
    EXPECT_EQ(objects.at(1).at("handle"), 1);
    EXPECT_EQ(objects.at(1).at("depth"), 8);
    EXPECT_EQ(objects.at(1).at("length"), 1);
    ASSERT_EQ(second.violations.size(), 2u);
    EXPECT_EQ(second.violations[0].related, std::vector<long long>{8});
    EXPECT_EQ(second.violations[1].element, 0);
}
