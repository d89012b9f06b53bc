#include "InputError.h"
#include "command_line/Command.h"
#include "command_line/Options.h"
#include "command_line/Output.h"
#include "command_line/commands.h"

namespace firecheck {

namespace {

const char* const kStart = R"(.TH FIRECHECK 1 "" "firecheck" "User commands"
.SH NAME
firecheck \- check construction-site layouts against fire-safety rules
.SH SYNOPSIS
.B firecheck
.I COMMAND
.RI [ OPTION ...]
.RI [ ARGUMENT ...]
.SH DESCRIPTION
.B firecheck
reads the layout of a construction site, its houses, yards, roads, doors and cables, from a JSON file, judges it by the
rules of a rule file, and reports every violation with the elements that it is about.
.PP
Results go to standard output or to the file that
.B \-\-output
names; everything else goes to standard error.
An output that is one of the inputs is refused.
A file named
.B \-
is standard input.
.SH COMMANDS
)";

const char* const kEnd = R"(.SH "EXIT STATUS"
.TP
.B 0
Nothing was found, or the command has nothing to find.
.TP
.B 1
.B check
found violations that are not accepted, or a linter findings.
.TP
.B 2
Wrong usage, an input that cannot be used, or an output that cannot be written.
.SH ENVIRONMENT
.TP
.B NO_COLOR
When set and not empty, text has no colours on a terminal either.
Text that does not go to a terminal, or goes to one that is
.BR dumb ,
never has any.
.SH FILES
.TP
.I ../share/firestandardcheck/FireStandardCheck.xml
The rule file that comes with the checker, as seen from the directory of the program.
.TP
.I ../share/firestandardcheck/site.schema.json
The JSON Schema of site files.
.SH EXAMPLES
Check two sites by rules of your own, as a page for the browser:
.PP
.RS
.EX
firecheck check north.json south.json \-\-rules our\-rules.xml \-\-format html \-\-output report.html
.EE
.RE
.PP
Accept what is there today, give the reasons in the file, and hear only of what is new or worse from then on:
.PP
.RS
.EX
firecheck check site.json \-\-write\-accept accepted.json
firecheck check site.json \-\-accept accepted.json
.EE
.RE
)";

std::string escaped(const std::string& text) {
    std::string result;
    for (const char character : text)
        result += (character == '-' || character == '\\') ? std::string("\\") + character
                                                          : std::string(1, character);
    return result;
}

std::string section(const Command& command) {
    std::string text = ".SS \"firecheck " + escaped(command.name) + (*command.arguments ? " " : "") +
                       escaped(command.arguments) + "\"\n" + escaped(command.summary) + "\n";
    if (*command.details)
        text += escaped(command.details) + "\n";
    for (const CommandOption& option : command.options) {
        const std::string letter = option.letter ? std::string("\\-") + option.letter + ", " : std::string();
        text += ".TP\n.BI \"" + letter + "\\-\\-" + escaped(option.name) + "\"" +
                (*option.value ? " \" " + escaped(option.value) + "\"" : std::string()) + "\n" +
                escaped(option.help) + "\n";
    }
    return text;
}

} // namespace

int manualCommand(const Options& options) {
    if (!options.arguments().isEmpty())
        throw InputError("The manual takes no arguments.");
    Output output(options.value("output").value_or(QString()));
    output.write(kStart);
    for (const Command& command : commands())
        output.write(section(command));
    output.write(kEnd);
    output.commit();
    return kNothingFound;
}

} // namespace firecheck
