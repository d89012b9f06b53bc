#include "command_line/Command.h"

#include "command_line/commands.h"

#include <algorithm>

namespace firecheck {

namespace {

const CommandOption kRules{"rules", "FILE",
                           "Judge by this rule file instead of the one that comes with the checker."};
const CommandOption kOutput{
    "output", "FILE",
    "Write the result to this file, which takes the place of an older one only when all is written; \"-\" "
    "is standard output.",
    'o'};
const CommandOption kLayers{
    "layers", "FILE",
    "What the layers and blocks of drawings mean, as \"firecheck layers\" writes it; the "
    "convention holds for what this table leaves out."};
const CommandOption kEncoding{
    "encoding", "NAME", "The encoding of the texts of drawings, as GB18030, whatever they say themselves."};

const CommandOption kLanguage{"lang", "en|zh_CN", "The language of every sentence; English unless given."};
const CommandOption kReach{"reach", "METRES", "The longest move that is tried; 10 unless given."};
const CommandOption kKeep{"keep", "HANDLE", "Leave the element of this handle as it is; may be repeated."};
const CommandOption kMove{
    "move", "CLASS",
    "Move objects of this class, too, as futureHouse or road, which stay where they are "
    "otherwise; may be repeated."};

CommandOption format(const char* choice) {
    return {"format", choice, "The format of the result; the first one unless given."};
}

} // namespace

const CommandOption* Command::option(const std::string& optionName) const {
    const auto found = std::find_if(options.begin(), options.end(), [&](const CommandOption& candidate) {
        return candidate.name == optionName;
    });
    return found == options.end() ? nullptr : &*found;
}

const std::vector<Command>& commands() {
    static const std::vector<Command> table = {
        {"check",
         "SITE...",
         {kRules,
          kLayers,
          kEncoding,
          format("text|json|csv|html|dxf"),
          kOutput,
          kLanguage,
          {"order", "rule|clause|missing",
           "By what violations are listed: the rule, the clause that it cites, or the share of what the rule asks "
           "for that is missing."},
          {"select", "PATTERN",
           "Report only the rules whose name fits the pattern, with * and ?; may be repeated."},
          {"ignore", "PATTERN",
           "Leave the rules whose name fits the pattern out of the report; may be repeated."},
          {"suggest", "",
           "Tell for each violation the smallest change of one element that removes it, in text, JSON and HTML. "
           "\"firecheck help suggest\" tells more."},
          {"unjudged", "", "List the elements, too, that no rule compared with anything."},
          {"no-results", "", "Leave the engine's own two maps out of JSON."},
          {"accept", "FILE",
           "Count violations that this file lists apart, each with the reason why it is accepted. One that got worse "
           "than accepted counts again."},
          {"write-accept", "FILE",
           "Write such a file: the entries of --accept, and one for each further violation, whose reason is to be "
           "filled in before the file can be used."},
          {"profile", "", "Tell the time that each rule took, the slowest first, on standard error."},
          {"quiet", "", "Write no report to standard output and no notes; the exit status tells.", 'q'}},
         "Checks each site file or drawing and reports what breaks a rule.",
         "A site file that cannot be read does not keep the others from being checked. A note on standard error tells "
         "when lint-rules or lint-site would find something.",
         checkCommand},
        {"compare",
         "OLD.json NEW.json",
         {format("text|json"), kOutput, kLanguage},
         "Tells what changed between two JSON reports: violations that are new, worse, better or gone. Where an "
         "element breaks one rule more than five times, it does not count which other elements these violations "
         "name; of those that a report of --no-results only counts, more are worse and fewer are better.",
         "The exit status is 1 when anything that is not accepted is new or worse, or is no longer reported because "
         "its rule was not run or its element not judged.",
         compareCommand},
        {"suggest",
         "SITE",
         {kRules,
          kLayers,
          kEncoding,
          format("text|json"),
          kOutput,
          kLanguage,
          kReach,
          kKeep,
          kMove,
          {"all", "",
           "Tell a sequence of changes for the whole site instead, until nothing is left or nothing helps, and what "
           "remains."},
          {"apply", "FILE",
           "Write the site with the changes of --all, which this implies, and everything else as it was; of a drawing, as "
           "a JSON site file."}},
         "Tells what would remove each violation: a move, a turn, a wider road, another box.",
         "Each suggestion is the smallest change found of one element. The checker has judged the whole site with "
         "it: the violation is gone, none is new and none is worse. Houses, sheds, yards, substations, boxes, "
         "posters, cranes and models are moved, in steps of 10 mm; buildings under construction, roads, walls and "
         "doors are not.",
         suggestCommand},
        {"edit",
         "SITE",
         {kRules,
          kLayers,
          kEncoding,
          {"port", "N", "Serve the page at this port; at any free one unless given."},
          {"output", "FILE", "Save the site to this file instead of the one it was read from.", 'o'},
          kLanguage},
         "Serves a page on which the site is laid out while the rules are checked, to this computer alone.",
         "Prints the address of the page. Nothing is written until the page is asked to save; a file that somebody "
         "else has changed meanwhile stays as it is. Ends when the page says so, when interrupted, or with the "
         "terminal; the exit status is 1 when changes were not saved.",
         editCommand},
        {"plan",
         "SITE",
         {kRules, kLayers, kEncoding, kOutput, kLanguage},
         "Draws the site to scale with what breaks a rule, as SVG.",
         "",
         planCommand},
        {"show-rules",
         "[FILE]",
         {format("text|json"), kOutput},
         "Shows the rules of a rule file as the checker holds them.",
         "",
         showRulesCommand},
        {"list-rules",
         "[NAME]",
         {format("text|json|markdown"), kOutput},
         "Lists the rule names that mean something, and what each of them judges.",
         "With a name it tells of that rule alone.",
         listRulesCommand,
         false},
        {"lint-rules",
         "[FILE]",
         {format("text|json"), kOutput, kLanguage},
         "Finds what the checker passes over in silence in a rule file.",
         "",
         lintRulesCommand},
        {"lint-site",
         "SITE...",
         {kRules, kLayers, kEncoding, format("text|json"), kOutput, kLanguage},
         "Finds what is wrong or doubtful in site files or drawings, all at once.",
         "Errors are what check refuses a file for. Doubts are values that no site has, and slips that would change "
         "a verdict without a word. The rules tell which facilities are looked for.",
         lintSiteCommand},
        {"import",
         "DRAWING",
         {kLayers, kEncoding, kOutput, kLanguage},
         "Writes the site of a DXF drawing as a site file.",
         "What is not taken up of the drawing is told on standard error.",
         importCommand},
        {"export",
         "SITE",
         {kLayers, kEncoding, kOutput, kLanguage},
         "Writes the site as a DXF drawing that reads back to an equal site.",
         "Each object lies on the layer that the table has for it.",
         exportCommand},
        {"layers",
         "",
         {kOutput},
         "Writes the table of what layers and blocks of drawings mean, as a template for --layers.",
         "",
         layersCommand},
        {"site-schema",
         "",
         {format("json|markdown"), kOutput},
         "Writes the JSON Schema of site files, or the list of their classes and keys.",
         "",
         siteSchemaCommand},
        {"help",
         "[COMMAND]",
         {},
         "Shows the commands, or one of them with its options.",
         "",
         helpCommand,
         false},
        {"manual", "", {kOutput}, "Writes this manual page.", "", manualCommand},
        {"completion",
         "bash|zsh",
         {kOutput},
         "Writes what a shell needs to complete commands and options.",
         "",
         completionCommand,
         false},
    };
    return table;
}

const Command* findCommand(const std::string& name) {
    const auto found = std::find_if(commands().begin(), commands().end(),
                                    [&](const Command& command) { return command.name == name; });
    return found == commands().end() ? nullptr : &*found;
}

} // namespace firecheck
