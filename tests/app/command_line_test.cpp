#include "json/Json.h"

#include <QProcess>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

using namespace firecheck;

namespace {

struct Outcome {
    std::string output;
    std::string messages;
    int status = -1;
};

/// A directory of small input files, in which the checker runs.
class CommandLine : public testing::Test {
protected:
    void SetUp() override {
        write("narrow.json", R"({"name": "Plot 7", "objects": [
            {"class": "road", "handle": 3, "name": "Gate\u001b[31m road", "fireRoad": true, "start": [0, 0],
             "end": [9000, 0], "width": 3999},
            {"class": "drawing", "handle": 4, "refusesToOpen": true}]})");
        write("fine.json", R"({"objects": [{"class": "woodYard", "handle": 1,
            "circle": {"center": [0, 0], "radius": 900}}]})");
        write("doubtful.json", "{\"objects\": [{\"class\": \"road\", \"handle\": 3, \"start\": [0, 0],\n"
                               "\"end\": [9, 0], \"width\": 4}]}");
        write("wrong.json", "{\"objects\": [{\"class\": \"rod\", \"handle\": 3}]}");
        write("truncated.json", R"({"objects": [)");
        write("rules.xml", R"(<Rules><Roads><Self_RoadMinWidth Type="self" Standard="clause 1"
            ElementType="NUX_EDO_TYPE_ROAD"><RuleDescription> 太窄 </RuleDescription></Self_RoadMinWidth>
            <!-- kept --></Roads></Rules>)");
        write("no_rules.xml", "<Rules><!-- none --><Roads/></Rules>");
        write("broken.xml", "<Rules>\n<Roads></Rules>");
        write("yard.dxf", "0\nSECTION\n2\nENTITIES\n0\nCIRCLE\n5\n1F\n8\nWood yard\n10\n0\n20\n0\n40\n900\n"
                          "0\nHATCH\n8\nLAWN\n0\nENDSEC\n0\nEOF\n");
        write("map.json", R"({"rows": [{"layers": "WALLS", "class": "rod"}]})");
        write("clean.xml", "<R><G><Self_RoadLoop Type='self'/></G></R>");
        write("wrong.xml", "<R><G>\n  <Self_RoadLoops Type='self' Grösse='x'/></G></R>");
    }

    void write(const std::string& name, const std::string& text) {
        std::ofstream(path(name), std::ios::binary) << text;
    }
    std::string read(const std::string& name) {
        std::ifstream stream(path(name), std::ios::binary);
        return {std::istreambuf_iterator<char>(stream), {}};
    }
    std::string path(const std::string& name) { return m_directory.filePath(name.c_str()).toStdString(); }

    /// Runs a shell command in which "firecheck" is the checker.
    Outcome run(const std::string& command) {
        QProcess process;
        process.setWorkingDirectory(m_directory.path());
        const std::string script = "firecheck() { '" FIRECHECK_PROGRAM "' \"$@\"; }; " + command;
        process.start("/bin/sh", {"-c", QString::fromStdString(script)});
        process.waitForFinished(-1); // a busy machine may take its time
        return {process.readAllStandardOutput().toStdString(), process.readAllStandardError().toStdString(),
                process.exitCode()};
    }

private:
    QTemporaryDir m_directory;
};

const std::string kNarrowReport = R"(narrow.json: Plot 7
2 objects, 1 violation of 1 rule
    1  Self_RoadMinWidth

Self_RoadMinWidth (1):  太窄  [clause 1]
  fire road 3 "Gate?[31m road" is 3.999 m wide; the rule asks for at least 4.000 m
    #3 road NUX_EDO_TYPE_ROAD at (4.50, 0.00) m

Not judged
  rule #comment: no evaluator is of type ""
  object #4: it does not open

By clause
  clause 1: 1 of 1 rule judged, 1 violation by 1 element
  No clause is cited: 0 of 1 rule judged

What was judged
  #comment: no evaluator knows this rule
  Self_RoadMinWidth: 1 found, 1 offends
)";

const std::string kFineReport = R"(fine.json
1 object, no violations

Not judged
  rule #comment: no evaluator is of type ""

By clause
  clause 1: 0 of 1 rule judged
  No clause is cited: 0 of 1 rule judged

What was judged
  #comment: no evaluator knows this rule
  Self_RoadMinWidth: nothing to judge
)";

const std::string kMention =
    "firecheck: rules.xml: 1 finding in the rule file, see \"firecheck lint-rules\"\n";

TEST_F(CommandLine, ReportsAndTellsByItsExitStatus) {
    const struct {
        std::string command;
        std::string output;
        std::string messages;
        int status;
    } cases[] = {
        {"firecheck check narrow.json --rules rules.xml", kNarrowReport, kMention, 1},
        {"firecheck check fine.json --rules=rules.xml", kFineReport, kMention, 0},
        {"firecheck check --rules rules.xml fine.json narrow.json", kFineReport + "\n" + kNarrowReport,
         kMention, 1},
        {"firecheck check --rules rules.xml truncated.json fine.json", kFineReport,
         kMention + "firecheck: truncated.json:1:14: expected JSON in UTF-8: unexpected end of input; "
                    "expected '[', '{', or a literal\n",
         2},
        {"firecheck check --rules rules.xml --format json truncated.json 2>&-", "{\n  \"sites\": []\n}\n", "",
         2},
        {"firecheck check --rules rules.xml . missing.json", "",
         kMention + "firecheck: .: expected a site file, found a directory\n"
                    "firecheck: missing.json: cannot be read: No such file or directory\n",
         2},
        {"firecheck check fine.json --rules no_rules.xml", "",
         "firecheck: no_rules.xml: expected at least one rule\n", 2},
        {"firecheck check fine.json --rules broken.xml", "",
         "firecheck: broken.xml:2:16: expected a well-formed XML document: Opening and ending tag mismatch.\n",
         2},
        {"firecheck check --rules rules.xml", "",
         "firecheck: No site file is given. Try \"firecheck help check\".\n", 2},
        {"firecheck check fine.json --format yaml", "",
         "firecheck: No such format: \"yaml\". Choose one of text, json, csv, html, dxf.\n", 2},
        {"firecheck check fine.json --frmat json", "",
         "firecheck: Unknown option 'frmat'. Did you mean \"--format\"? Try \"firecheck help check\".\n", 2},
        {"firecheck", "", "firecheck: No command is given. Try \"firecheck --help\".\n", 2},
        {"firecheck chekc fine.json", "",
         "firecheck: No such command: \"chekc\". Did you mean \"check\"? Try \"firecheck --help\".\n", 2},
        {"firecheck check fine.json --rules rules.xml > /dev/full", "",
         kMention + "firecheck: standard output: cannot be written: No space left on device\n", 2},
        {"mkfifo pipe; cat pipe & firecheck check fine.json --rules rules.xml --output pipe; s=$?; wait; exit $s",
         kFineReport, kMention, 0},
        {"firecheck show-rules rules.xml",
         "\"#comment\"\n  - name: \"#comment\"\n\"Self_RoadMinWidth\"\n  - name: \"Self_RoadMinWidth\"\n"
         "    type: \"self\"\n    elementType: \"NUX_EDO_TYPE_ROAD\"\n    standard: \"clause 1\"\n"
         "    ruleDescription: \" 太窄 \"\n",
         "", 0},
        {"firecheck lint-rules clean.xml", "clean.xml: clean\n", "", 0},
        {"firecheck lint-rules wrong.xml",
         "wrong.xml:2:3: Self_RoadLoops: No evaluator of type \"self\" knows this name. Did you mean "
         "\"Self_RoadLoop\"? [unknown-name]\n"
         "wrong.xml:2:31: Self_RoadLoops: The attribute \"Grösse\" of \"Self_RoadLoops\" is never read. "
         "[unread-attribute]\nwrong.xml: 2 findings\n",
         "", 1},
        {"firecheck list-rules Self_RoadLop", "",
         "firecheck: No rule has the name \"Self_RoadLop\". Did you mean \"Self_RoadLoop\"? A distance rule may "
         "have any name.\n",
         2},
        {"firecheck check - --rules rules.xml -q < narrow.json", "", "", 1},
        {"firecheck check --rules rules.xml fine.json --select '*Width' --ignore 'Self*' | head -2",
         "fine.json\n1 object, no violations, 2 rules left out\n", kMention, 0},
        {"firecheck check --rules rules.xml fine.json --select 'Width'", "",
         kMention + "firecheck: No rule has a name like \"Width\". Try \"firecheck show-rules\".\n", 2},
        {"firecheck show-rules ''", "",
         "firecheck: An argument is empty. Try \"firecheck help show-rules\".\n", 2},
        {"firecheck check \"$(printf 'a\\377.json')\"", "",
         "firecheck: Argument 2, \"a\uFFFD.json\": expected UTF-8. Rename the file.\n", 2},
        {"firecheck check doubtful.json --rules rules.xml | head -1", "doubtful.json\n",
         kMention + "firecheck: doubtful.json: 2 doubts about the site file, see \"firecheck lint-site\"\n",
         0},
        {"firecheck lint-site doubtful.json fine.json wrong.json truncated.json --rules rules.xml",
         "doubtful.json:2:1: doubt: #3, /objects/0/end: 9 mm is less than 200 mm, which no such element has. Did you "
         "mean \"9000\"? [doubtful-size]\n"
         "doubtful.json:2:16: doubt: #3, /objects/0/width: 4 mm is less than 1000 mm, which no such element has. Did "
         "you mean \"4000\"? [doubtful-size]\n"
         "doubtful.json: 2 doubts\n"
         "fine.json: clean\n"
         "wrong.json:1:15: error: #3, /objects/0/class: unknown class \"rod\"; did you mean \"road\"? [refused]\n"
         "wrong.json: 1 error\n",
         "firecheck: truncated.json:1:14: expected JSON in UTF-8: unexpected end of input; "
         "expected '[', '{', or a literal\n",
         2},
        {"firecheck lint-site wrong.json --format json",
         R"({
  "sites": [
    {
      "file": "wrong.json",
      "findings": [
        {
          "kind": "error",
          "line": 1,
          "column": 15,
          "pointer": "/objects/0/class",
          "code": "refused",
          "handle": "3",
          "message": "unknown class \"rod\"",
          "suggestion": "road"
        }
      ]
    }
  ]
}
)",
         "", 1},
        {"firecheck lint-site yard.dxf --rules rules.xml",
         "yard.dxf:18:1: doubt: 1 HATCH on layer \"LAWN\" not taken up: such entities are not read [not-taken-up]\n"
         "yard.dxf: 1 doubt\n",
         "", 1},
        {"firecheck import yard.dxf -o yard.json && cat yard.json; firecheck check yard.dxf --rules rules.xml -q",
         "{\n  \"objects\": [\n    {\"class\": \"woodYard\", \"handle\": 31, \"circle\": {\"center\": [0, 0], \"radius\": 900}}\n  ]\n}\n",
         "firecheck: yard.dxf:18: 1 HATCH on layer \"LAWN\" not taken up: such entities are not read\n", 0},
        {"firecheck check yard.dxf -q --rules rules.xml --layers map.json", "",
         "firecheck: map.json:1:31: /rows/0/class: unknown class \"rod\"; did you mean \"road\"?\n", 2},
        {"firecheck check yard.dxf -q --rules rules.xml --encoding klingon", "",
         "firecheck: No such encoding of texts: \"klingon\". Try GB18030, UTF-8 or CP1252.\n", 2},
        {"firecheck check yard.dxf yard.dxf --format dxf", "",
         "firecheck: Expected one site file for --format dxf: the findings of two would lie upon each other.\n",
         2},
        {"firecheck check gone.json --suggest --format csv", "",
         "firecheck: Option --suggest is for text, json and html.\n", 2},
        {"firecheck suggest gone.json --reach 0.009", "",
         "firecheck: Option --reach: expected metres from 0.01 to 1000, found \"0.009\".\n", 2},
        {"firecheck suggest gone.json --move raod", "",
         "firecheck: Option --move: no class is named \"raod\". Did you mean \"road\"? Try \"firecheck site-schema "
         "--format markdown\".\n",
         2},
        {"firecheck suggest gone.json --move door", "",
         "firecheck: Option --move: objects of class \"door\" are never moved. Those that are when asked for: "
         "futureHouse, crossing, road, serviceCable.\n",
         2},
        {"firecheck suggest fine.json --rules rules.xml --keep 2", "",
         "firecheck: Option --keep: the site has no object with the handle \"2\".\n", 2},
        {"firecheck suggest narrow.json --rules rules.xml --keep 3 --reach 0.01 | tail -n 1",
         "    No suggestion: the element is to stay as it is\n", "", 0},
        {"firecheck import yard.dxf --layers map.json -o map.json", "",
         "firecheck: map.json: expected another file for --output: it is --layers, which would be lost\n", 2},
        {"firecheck help check > /dev/full", "",
         "firecheck: standard output: cannot be written: No space left on device\n", 2},
    };
    for (const auto& expected : cases) {
        // A bare locale must not spoil texts and names.
        const Outcome outcome = run("export LC_ALL=C; " + expected.command);
        EXPECT_EQ(outcome.output, expected.output) << expected.command;
        EXPECT_EQ(outcome.messages, expected.messages) << expected.command;
        EXPECT_EQ(outcome.status, expected.status) << expected.command;
    }
}

TEST_F(CommandLine, ReplacesTheOutputFileOnlyWhenASiteWasChecked) {
    write("report.txt", "before");
    EXPECT_EQ(run("firecheck check truncated.json --rules rules.xml --output report.txt").status, 2);
    EXPECT_EQ(read("report.txt"), "before");
    EXPECT_EQ(run("firecheck check truncated.json fine.json --rules rules.xml --output report.txt").status,
              2);
    EXPECT_EQ(read("report.txt"), kFineReport) << "one bad site costs its own result only";

    const Outcome outcome = run("LC_ALL=C firecheck check narrow.json --rules rules.xml --output 食堂.txt");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.output + outcome.messages, kMention);
    EXPECT_EQ(read("食堂.txt"), kNarrowReport);
    EXPECT_EQ(run("firecheck check narrow.json --rules rules.xml --output gone/report.txt").status, 2);
}

TEST_F(CommandLine, OverwritesNothingThatItReads) {
    const std::string check = "firecheck check narrow.json --rules rules.xml ";
    ASSERT_EQ(run(check +
                  "--write-accept accepted.json; ln -s narrow.json linked.json; ln rules.xml same.xml; "
                  "ln -s later.txt dangling.txt")
                  .status,
              0);
    const std::map<std::string, std::string> files{{"narrow.json", read("narrow.json")},
                                                   {"rules.xml", read("rules.xml")},
                                                   {"accepted.json", read("accepted.json")}};
    for (const char* options :
         {"--output narrow.json", "--output ./linked.json", "--output same.xml", "--write-accept narrow.json",
          "--accept accepted.json --output accepted.json", "--write-accept accepted.json",
          "--output new.txt --write-accept ./new.txt", "--output dangling.txt --write-accept later.txt",
          ">> narrow.json", "--output - >> narrow.json", "--write-accept -", "- --rules - < rules.xml"}) {
        const Outcome outcome = run(check + options);
        EXPECT_EQ(outcome.status, 2) << options;
        EXPECT_NE(outcome.messages.find("expected "), std::string::npos) << options << outcome.messages;
        for (const auto& [name, text] : files)
            EXPECT_EQ(read(name), text) << options;
    }
    EXPECT_EQ(run("firecheck lint-rules wrong.xml --output wrong.xml").status, 2);
    EXPECT_EQ(run(check + "--output /dev/null").status, 1);
    EXPECT_EQ(run("firecheck completion bash --output bash && firecheck completion bash --output bash && "
                  "firecheck list-rules Self_RoadLoop --output Self_RoadLoop && firecheck list-rules "
                  "Self_RoadLoop --output Self_RoadLoop")
                  .status,
              0)
        << "names are no files";
}

TEST_F(CommandLine, AppliesSuggestionsToAnotherFileOnly) {
    const std::string before = read("narrow.json");
    const std::string suggest = "firecheck suggest narrow.json --rules rules.xml --apply ";
    for (const char* target :
         {"narrow.json", "./narrow.json", "rules.xml", "-", "applied.json --output applied.json",
          "applied.json --output gone/plan.txt", "applied.json --output /dev/full"})
        EXPECT_EQ(run(suggest + target).status, 2) << target;
    EXPECT_EQ(read("narrow.json"), before);
    EXPECT_EQ(read("applied.json"), "") << "not without the plan";

    EXPECT_EQ(run(suggest + "applied.json").status, 1);
    std::string widened = before;
    widened.replace(widened.find("3999"), 4, "4000");
    EXPECT_EQ(read("applied.json"), widened);
}

TEST_F(CommandLine, AcceptsViolationsForAReasonOnly) {
    const std::string check = "firecheck check narrow.json --rules rules.xml 2>&1 ";
    EXPECT_EQ(run(check + "--write-accept accepted.json").status, 1);
    EXPECT_EQ(run(check + "--accept accepted.json").output,
              kMention +
                  "firecheck: accepted.json: /accepted/0/reason: expected the reason why this violation "
                  "is accepted\n");

    const std::string fillIn = "sed -i 's/\"reason\": \"\"/\"reason\": \"old gate\"/' accepted.json; ";
    const Outcome accepted = run(fillIn + check + "--accept accepted.json --write-accept again.json");
    EXPECT_EQ(accepted.status, 0);
    EXPECT_NE(accepted.output.find("1 violation of 1 rule, 1 accepted\n"), std::string::npos);
    EXPECT_NE(accepted.output.find("    accepted: old gate\n"), std::string::npos);
    EXPECT_EQ(read("again.json"), read("accepted.json"));

    const Outcome stale = run("firecheck check fine.json --rules rules.xml --accept accepted.json");
    EXPECT_EQ(stale.status, 0);
    EXPECT_NE(stale.output.find("no longer there\n  Self_RoadMinWidth #3: old gate\n"), std::string::npos);

    const std::string both = "firecheck check fine.json narrow.json --rules rules.xml --accept accepted.json";
    EXPECT_EQ(run(both).messages,
              kMention + "firecheck: accepted.json: /accepted/0: expected the key \"site\"\n");
    EXPECT_EQ(run("sed -i 's/\"reason\"/\"site\": \"narrow.json\", &/' accepted.json; " + both).status, 0);
    const Outcome twice =
        run("sed -i 's/{$/&/; s/\\(\"accepted\": \\[\\)/\\1 {\"rule\": \"A\", \"handles\": [], "
            "\"reason\": \"a\", \"site\": \"b\"}, {\"rule\": \"A\", \"handles\": [], "
            "\"reason\": \"c\", \"site\": \".\\/b\"},/' accepted.json; " +
            both);
    EXPECT_NE(twice.messages.find("/accepted/1: expected one entry for each violation"), std::string::npos)
        << twice.messages;
}

TEST_F(CommandLine, AcceptsForASiteByItsPathBeforeItsName) {
    const std::string check = "firecheck check --rules rules.xml --quiet ";
    ASSERT_EQ(run("mkdir b c; cp narrow.json b; cp narrow.json c").status, 0);
    const struct {
        const char* site; ///< of the only entry
        const char* sites;
        int status;
    } cases[] = {
        {"narrow.json", "narrow.json fine.json", 0},
        {"narrow.json", "narrow.json b/narrow.json", 1},
        {"./narrow.json", "b/narrow.json narrow.json", 1},
        {"narrow.json", "b/narrow.json c/narrow.json", 0},
        {"b/narrow.json", "b/narrow.json c/narrow.json", 1},
        {"b/narrow.json", "b/narrow.json ./b/narrow.json", 0},
        {"c/narrow.json", "b/narrow.json", 1},
    };
    for (const auto& row : cases) {
        write("entry.json", R"({"accepted": [{"rule": "Self_RoadMinWidth", "handles": ["3"], "reason": "r",
                                              "site": ")" +
                                std::string(row.site) + "\"}]}");
        EXPECT_EQ(run(check + row.sites + " --accept entry.json").status, row.status)
            << row.site << " of " << row.sites;
    }
    const std::string both = check + "narrow.json b/narrow.json ";
    EXPECT_EQ(run(both +
                  "--write-accept own.json; sed -i 's/\"reason\": \"\"/\"reason\": \"r\"/' own.json; " +
                  both + "--accept own.json")
                  .status,
              0);
}

TEST_F(CommandLine, ReadsAndWritesStandardStreamsForADash) {
    EXPECT_EQ(run("firecheck check narrow.json --rules - --output - < rules.xml").output, kNarrowReport);
    EXPECT_EQ(run("firecheck lint-rules - < wrong.xml").output.substr(0, 6), "-:2:3:");
    const Outcome crowded =
        run("printf '<R><G><X' > x; seq -f ' a%g=\"\"' 1001 >> x; firecheck lint-rules - < x");
    EXPECT_EQ(crowded.messages, "firecheck: -:1:7: expected at most 1000 attributes in a tag\n");
}

TEST_F(CommandLine, TellsWhatWasNotMeasured) {
    write("flat.json", R"({"objects": [
        {"class": "prefabHouse", "use": "office", "handle": 1, "center": [0, 0], "length": 9000, "depth": 5000},
        {"class": "woodYard", "handle": 4, "name": "East", "center": [9000, 0], "length": 900, "depth": 0},
        {"class": "drawing", "handle": 5}]})");
    const std::string check = "firecheck check flat.json 2>&1 ";
    EXPECT_NE(run(check).output.find("Distant_PrefabHouseToWoodYard: nothing to judge: 1 found, nothing to "
                                     "compare with that can be measured (wood yard 4 \"East\" was not "
                                     "measured: its depth is not above 0)\n"),
              std::string::npos);
    EXPECT_EQ(run(check).output.find("Judged by no rule"), std::string::npos);
    EXPECT_NE(run(check + "--unjudged").output.find("\nJudged by no rule\n"), std::string::npos);
    EXPECT_NE(run(check + "--select Self_RoadLop").output.find("Did you mean \"Self_RoadLoop\"?"),
              std::string::npos);
}

TEST_F(CommandLine, FindsTheRulesItComesWith) {
    const Outcome shown = run("firecheck show-rules --format json");
    EXPECT_EQ(shown.status, 0);
    EXPECT_NE(shown.output.find("\"key\": \"Self_RoadLoop\""), std::string::npos);
    const Outcome named =
        run("firecheck show-rules --format json '" SOURCE_DIRECTORY "/data/FireStandardCheck.xml'");
    EXPECT_EQ(shown.output, named.output);
}

TEST_F(CommandLine, ListsRulesAndFindingsForPrograms) {
    const Outcome linted = run("firecheck lint-rules wrong.xml --format json");
    EXPECT_EQ(linted.status, 1);
    const Json finding = Json::parse(linted.output).at("findings").at(0);
    EXPECT_EQ(finding.at("line"), 2);
    EXPECT_EQ(finding.at("column"), 3);
    EXPECT_EQ(finding.at("suggestion"), "Self_RoadLoop");

    const std::string list = run("firecheck list-rules").output;
    const Json rules = Json::parse(run("firecheck list-rules --format json").output).at("rules");
    EXPECT_EQ(rules.size(), 57u);
    for (const Json& rule : rules)
        for (const char* key : {"name", "judges", "limits", "peculiarity", "elementType"})
            EXPECT_NE(list.find(rule.at(key).get<std::string>()), std::string::npos) << rule;
}

/// The options and formats of each command, as the help tells them and as the synopsis of the manual does.
TEST_F(CommandLine, HasItsManualPagePublished) {
    const Outcome outcome = run("firecheck manual | diff - " SOURCE_DIRECTORY "/docs/firecheck.1");
    EXPECT_EQ(outcome.output + outcome.messages, "");
    EXPECT_EQ(outcome.status, 0);
}

TEST_F(CommandLine, ColoursForPeopleAtATerminalOnly) {
    const std::string onTerminal =
        "script -qec \"'" FIRECHECK_PROGRAM "' check fine.json --rules rules.xml\" /dev/null";
    EXPECT_NE(run("unset NO_COLOR; " + onTerminal).output.find("\033[32mno violations"), std::string::npos);
    EXPECT_EQ(run("export NO_COLOR=1; " + onTerminal).output.find('\033'), std::string::npos);
}

} // namespace
