#include "site_file/Json.h"

#include <QProcess>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <fstream>

namespace {

struct Outcome {
    std::string output;
    std::string messages;
    int status;
};

Outcome run(const QTemporaryDir& directory, const QStringList& words) {
    QProcess process;
    process.setWorkingDirectory(directory.path());
    process.start(FIRECHECK_PROGRAM, words);
    process.waitForFinished();
    return {process.readAllStandardOutput().toStdString(), process.readAllStandardError().toStdString(),
            process.exitCode()};
}

TEST(RuleCommands, TellWhatIsWrongWithARuleFile) {
    const QTemporaryDir directory;
    const auto write = [&](const char* name, const char* text) {
        std::ofstream(directory.filePath(name).toStdString(), std::ios::binary) << text;
    };
    write("clean.xml", "<R><G><Self_RoadLoop Type='self'/></G></R>");
    write("wrong.xml", "<R><G>\n  <Self_RoadLoops Type='self' Grösse='x'/></G></R>");
    write("broken.xml", "<R>\n<G></R>");
    write("none.xml", "<R/>");
    const struct {
        QStringList words;
        Outcome outcome;
    } cases[] = {
        {{"lint-rules", "clean.xml"}, {"clean.xml: clean\n", "", 0}},
        {{"lint-rules", "wrong.xml"},
         {"wrong.xml:2:3: Self_RoadLoops: No evaluator of type \"self\" knows this name. Did you mean "
          "\"Self_RoadLoop\"? [unknown-name]\n"
          "wrong.xml:2:31: Self_RoadLoops: The attribute \"Grösse\" of \"Self_RoadLoops\" is never read. "
          "[unread-attribute]\n"
          "wrong.xml: 2 findings\n",
          "", 1}},
        {{"lint-rules", "broken.xml"},
         {"", "firecheck: broken.xml:2:7: expected a well-formed XML document: tag mismatch\n", 2}},
        {{"lint-rules", "none.xml"}, {"", "firecheck: none.xml: expected at least one rule\n", 2}},
        {{"lint-rules", "gone.xml"},
         {"", "firecheck: gone.xml: cannot be read: No such file or directory\n", 2}},
        {{"list-rules", "clean.xml"},
         {"", "firecheck: The list of rules takes no file. Try \"firecheck show-rules\".\n", 2}},
    };
    for (const auto& expected : cases) {
        const Outcome outcome = run(directory, expected.words);
        EXPECT_EQ(outcome.output, expected.outcome.output);
        EXPECT_EQ(outcome.messages, expected.outcome.messages);
        EXPECT_EQ(outcome.status, expected.outcome.status) << expected.words.join(' ').toStdString();
    }

    const Outcome json = run(directory, {"lint-rules", "wrong.xml", "--format", "json"});
    EXPECT_EQ(json.status, 1);
    const auto finding = Json::parse(json.output).at("findings").at(0);
    EXPECT_EQ(finding.at("line"), 2);
    EXPECT_EQ(finding.at("column"), 3);
    EXPECT_EQ(finding.at("suggestion"), "Self_RoadLoop");
}

TEST(RuleCommands, ListEveryNameInEveryFormat) {
    const QTemporaryDir directory;
    const auto rules = Json::parse(run(directory, {"list-rules", "--format", "json"}).output).at("rules");
    EXPECT_EQ(rules.size(), 57u);
    const std::string text = run(directory, {"list-rules"}).output;
    for (const auto& rule : rules)
        for (const char* key : {"name", "judges", "limits", "peculiarity", "elementType"})
            EXPECT_NE(text.find(rule.at(key).get<std::string>()), std::string::npos) << rule;
}

} // namespace
