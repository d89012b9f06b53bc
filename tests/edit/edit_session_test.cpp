#include "check/check_site.h"
#include "edit/EditSession.h"
#include "site_file/changed_text.h"
#include "source_file.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <random>
#include <sstream>

using namespace firecheck;

namespace {

const RuleMap& shippedRules() {
    static const RuleMap& rules = loadRules(SOURCE_DIRECTORY "/data/FireStandardCheck.xml");
    return rules;
}

std::vector<std::string> sentences(const SiteReport& report) {
    std::vector<std::string> result;
    for (const Finding& finding : report.findings)
        result.push_back(finding.sentence);
    return result;
}

/// A session on a file of its own with that text.
class EditSessionTest : public testing::Test {
protected:
    EditSession& open(const std::string& text) {
        std::ofstream(name(), std::ios::binary) << text;
        m_session.emplace(parseSiteFile(text, name()), name(),
                          SiteFileOnDisk(QString::fromStdString(name()), text), shippedRules());
        return *m_session;
    }

    std::string name() const { return m_directory.filePath("site.json").toStdString(); }

    std::string onDisk() const {
        std::ostringstream text;
        text << std::ifstream(name(), std::ios::binary).rdbuf();
        return text.str();
    }

    std::string saved(EditSession& session) const {
        session.save();
        return onDisk();
    }

private:
    QTemporaryDir m_directory;
    std::optional<EditSession> m_session;
};

RequestedChange changeOf(const std::string& text) {
    const Json json = Json::parse(text);
    const Json handle = json.value("handle", Json());
    return {handle.is_null() ? std::nullopt : std::optional(handle.get<long long>()), json.at("object")};
}

TEST_F(EditSessionTest, SavesJustWhatWasAskedFor) {
    const std::string text =
        "{\"note\": \"n\", \"objects\": [\n"
        "  {\"class\": \"woodYard\", \"handle\": 1, \"center\": [0.0, 0e0], \"length\": 9, \"depth\": 5},\n"
        "  {\"note\":\"x\",  \"class\": \"drawing\", \"handle\": 9007199254740993},\r\n"
        "\n"
        "  {\"class\": \"drawing\", \"handle\": 3}\n"
        "]}\n";
    const auto with = [&](const std::string& old, const std::string& now) {
        std::string result = text;
        return result.replace(result.find(old), old.size(), now);
    };
    const std::string second =
        "  {\"note\":\"x\",  \"class\": \"drawing\", \"handle\": 9007199254740993},\r\n\n";
    const struct {
        const char* what;
        std::vector<std::string> changes;
        std::string saved;
    } cases[] = {
        {"nothing", {}, text},
        {"the same, written otherwise",
         {R"({"handle": 1, "object": {"depth": 5.0, "length": 9, "handle": 1, "class": "woodYard", "center": [0, 0]}})"},
         text},
        {"a handle that no browser can write",
         {R"({"handle": 9007199254740993, "object": {"note": "y", "class": "drawing", "handle": 9007199254740992}})"},
         with("\"x\"", "\"y\"")},
        {"another value, and one that is left",
         {R"({"handle": 1, "object": {"class": "woodYard", "handle": 1, "center": [0, 10], "length": 9, "depth": 5}})"},
         with("[0.0, 0e0]", "[0.0, 10]")},
        {"a further key and one less in the middle",
         {R"({"handle": 1, "object": {"class": "woodYard", "handle": 1, "circle": {"center": [0, 0], "radius": 7}}})"},
         with("\"center\": [0.0, 0e0], \"length\": 9, \"depth\": 5",
              "\"circle\": {\"center\": [0, 0], \"radius\": 7}")},
        {"the first key less",
         {R"({"handle": 9007199254740993, "object": {"class": "drawing", "handle": 9007199254740993}})"},
         with("\"note\":\"x\",  ", "")},
        {"an object less",
         {R"({"handle": 9007199254740993, "object": null})"},
         with(",\n  {\"note\":\"x\",  \"class\": \"drawing\", \"handle\": 9007199254740993}", "")},
        {"the first less",
         {R"({"handle": 1, "object": null})"},
         text.substr(0, text.find("  {")) + text.substr(text.find("  {\"note"))},
        {"the last less",
         {R"({"handle": 3, "object": null})"},
         with(",\r\n\n  {\"class\": \"drawing\", \"handle\": 3}", "")},
        {"none left",
         {R"({"handle": 1, "object": null})", R"({"handle": 3, "object": null})",
          R"({"handle": 9007199254740993, "object": null})"},
         "{\"note\": \"n\", \"objects\": [\n  \n]}\n"},
        {"a new one before the last, with the next handle",
         {R"({"object": {"class": "drawing"}})"},
         with(
             "  {\"class\": \"drawing\", \"handle\": 3}",
             "  {\"class\": \"drawing\", \"handle\": 9007199254740994},\r\n\n  {\"class\": \"drawing\", \"handle\": 3}")},
        {"a handle taken over",
         {R"({"handle": 1, "object": null})", R"({"object": {"class": "drawing", "handle": 1}})"},
         with(text.substr(text.find("  {\"class\": \"wood"),
                          text.find("  {\"class\": \"drawing\", \"handle\": 3}") -
                              text.find("  {\"class\": \"wood")),
              second + "  {\"class\": \"drawing\", \"handle\": 1},\r\n\n")},
        {"a new one changed and removed again",
         {R"({"object": {"class": "drawing", "handle": 5}})",
          R"({"handle": 5, "object": {"class": "drawing", "handle": 5, "note": ""}})",
          R"({"handle": 5, "object": null})"},
         text},
    };
    for (const auto& expected : cases) {
        SCOPED_TRACE(expected.what);
        EditSession& session = open(text);
        std::vector<RequestedChange> changes;
        for (const std::string& change : expected.changes)
            changes.push_back(changeOf(change));
        session.change(changes);
        EXPECT_EQ(saved(session), expected.saved);
        EXPECT_FALSE(session.draft().isChanged());
        session.undo();
        EXPECT_EQ(saved(session), text);
        session.redo();
        EXPECT_EQ(Json::parse(saved(session)), Json::parse(expected.saved));
    }
}

TEST_F(EditSessionTest, WritesWhatWasReadFromNoJson) {
    SiteFile file = parseSiteFile(
        R"({"name": "N", "objects": [{"class": "drawing", "handle": 1}, {"class": "drawing", "handle": 2}]})",
        "N");
    file.text.clear();
    EditSession session(std::move(file), "N", SiteFileOnDisk(QString::fromStdString(name())), shippedRules());
    const std::string head =
        "{\n  \"name\": \"N\",\n  \"objects\": [\n    {\"class\": \"drawing\", \"handle\": 1}";
    EXPECT_EQ(saved(session), head + ",\n    {\"class\": \"drawing\", \"handle\": 2}\n  ]\n}\n");
    session.change({changeOf(R"({"handle": 2, "object": null})")});
    EXPECT_EQ(saved(session), head + "\n  ]\n}\n");
}

/// A random change that makes a site: an object moved, turned, removed, copied or given another value.
RequestedChange randomChange(const EditSession& session, std::mt19937& random) {
    const Json& objects = session.draft().objects();
    const auto handleOf = [](const Json& object) { return object.at("handle").get<long long>(); };
    Json object = objects[random() % objects.size()];
    const long long handle = handleOf(object);
    switch (random() % 4) {
    case 0:
        if (object.at("class") != "door")
            return {handle, Json()};
        break;
    case 1:
        object.erase("handle");
        object.erase("doors");
        return {std::nullopt, object};
    default:
        break;
    }
    const double by = 10.0 * (static_cast<double>(random() % 1000) - 500.0);
    for (const char* key : {"center", "position", "start"})
        if (object.contains(key))
            object[key][0] = object[key][0].get<double>() + by;
    if (object.contains("center"))
        object["angle"] = random() % 180;
    if (object.contains("name"))
        object.erase("name");
    return {handle, object};
}

TEST_F(EditSessionTest, JudgesEveryStepAsACheckOfTheSavedFileDoes) {
    const std::string text = sourceText("examples/tower-site.json");
    std::mt19937 random(20);
    EditSession& session = open(text);
    const auto first = sentences(session.judgement().report);
    for (int step = 0; step < 40; ++step) {
        SCOPED_TRACE(step);
        std::vector<RequestedChange> changes;
        for (int i = 0; i < 3; ++i) // of three objects
            if (auto change = randomChange(session, random);
                std::none_of(changes.begin(), changes.end(), [&](const RequestedChange& other) {
                    return other.handle && other.handle == change.handle;
                }))
                changes.push_back(std::move(change));
        const auto tried = sentences(session.attempt(changes).judgement.report);
        const std::string untouched = onDisk();
        session.change(changes);
        EXPECT_EQ(onDisk(), untouched);
        const auto kept = sentences(session.judgement().report);
        EXPECT_EQ(tried, kept);
        EXPECT_EQ(kept, sentences(checkSite(parseSite(saved(session), name()), name(), shippedRules())));
    }
    EXPECT_NE(sentences(session.judgement().report), first);
    while (session.draft().canUndo())
        session.undo();
    EXPECT_EQ(sentences(session.judgement().report), first);
    EXPECT_EQ(session.draft().site(), Json::parse(text));
    while (session.draft().canRedo())
        session.redo();
    EXPECT_FALSE(session.draft().isChanged());
    EXPECT_EQ(session.draft().site(), Json::parse(onDisk()));
}

TEST_F(EditSessionTest, DoubtsWhatItTriesByTheElementsThatItTries) {
    EditSession& session = open(R"({"objects": [
        {"class": "drawing", "handle": 1},
        {"class": "woodYard", "handle": 2.0, "center": [0, 0], "length": 9000, "depth": 5000},
        {"class": "templateYard", "handle": 3, "center": [90000, 0], "length": 9000, "depth": 5000}]})");
    const std::vector<RequestedChange> changes{
        changeOf(R"({"handle": 1, "object": null})"),
        changeOf(
            R"({"handle": 2, "object": {"class": "woodYard", "handle": 2, "center": [90000, 0], "length": 9000, "depth": 5000}})")};
    const std::vector<JudgedDoubt> tried = session.attempt(changes).judgement.doubts;
    session.change(changes);
    const std::vector<JudgedDoubt>& kept = session.judgement().doubts;
    ASSERT_FALSE(tried.empty());
    ASSERT_EQ(tried.size(), kept.size());
    for (std::size_t i = 0; i < tried.size(); ++i) {
        EXPECT_EQ(tried[i].handle, kept[i].handle);
        EXPECT_EQ(tried[i].text, kept[i].text);
    }
}

TEST_F(EditSessionTest, SuggestsChangesThatRemoveTheFinding) {
    EditSession& session = open(sourceText("examples/tower-site.json"));
    std::size_t helped = 0;
    const std::size_t count = session.judgement().report.findings.size();
    for (std::size_t i = 0; i < count; ++i) {
        const SuggestedChanges suggested = session.suggest(i);
        EXPECT_EQ(suggested.steps.empty(), !suggested.obstacle.empty());
        if (suggested.steps.empty())
            continue;
        const std::string sentence = session.judgement().report.findings[i].sentence;
        for (const auto& step : suggested.steps)
            session.change(step.changes);
        const auto left = sentences(session.judgement().report);
        EXPECT_EQ(std::count(left.begin(), left.end(), sentence), 0) << sentence;
        EXPECT_LT(left.size(), count);
        ++helped;
        while (session.draft().canUndo())
            session.undo();
    }
    EXPECT_GE(helped, count - 1);
}

TEST_F(EditSessionTest, RequiresJustWhatItsFindingsMiss) {
    EditSession& session = open(sourceText("examples/tower-site.json"));
    const auto distances = session.requiredDistances(413);
    const auto found = std::find_if(distances.begin(), distances.end(), [](const RequiredDistance& one) {
        return one.other == 414 && one.rule == "Distant_PrefabHouseToPrefabHouse";
    });
    ASSERT_NE(found, distances.end());
    EXPECT_TRUE(found->isLeast);
    EXPECT_EQ(found->distance, 4000.0);
    EXPECT_EQ(found->measured, 3500.0);
    EXPECT_TRUE(session.requiredDistances(999).empty());
}

TEST(SiteDraft, IsChangedUnlessItIsAsItWasSaved) {
    SiteDraft draft(Json::parse(R"({"objects": [{"class": "drawing", "handle": 1}]})"));
    const auto step = [&] { draft.keep(draft.editsFor({{std::nullopt, {{"class", "drawing"}}}})); };
    EXPECT_FALSE(draft.isChanged());
    step();
    EXPECT_TRUE(draft.isChanged());
    draft.setSaved();
    EXPECT_FALSE(draft.isChanged());
    draft.undo();
    EXPECT_TRUE(draft.isChanged());
    step(); // what was saved cannot be redone any more
    EXPECT_TRUE(draft.isChanged());
    draft.undo();
    EXPECT_TRUE(draft.isChanged());
    draft.setSaved();
    for (int i = 0; i < 1500; ++i)
        step();
    while (draft.canUndo())
        draft.undo();
    EXPECT_TRUE(draft.isChanged()) << "the first steps are forgotten";
    EXPECT_EQ(draft.objects().size(), 501u);
}

} // namespace
