#include "InputError.h"
#include "command_line/Options.h"
#include "command_line/Output.h"
#include "command_line/commands.h"
#include "rules/vocabulary_report.h"

namespace firecheck {

namespace {

std::string vocabularyAs(const QString& format) {
    if (format == "json")
        return vocabularyJson().dump(2) + "\n";
    return format == "text" ? vocabularyText() : vocabularyMarkdown();
}

} // namespace

int listRulesCommand(const Options& options) {
    if (!options.arguments().isEmpty())
        throw InputError("The list of rules takes no file. Try \"firecheck show-rules\".");
    const QString format = options.format();
    Output output(options.value("output").value_or(QString()));
    output.write(vocabularyAs(format));
    output.commit();
    return kNothingFound;
}

} // namespace firecheck
