#include "InputError.h"
#include "command_line/Options.h"
#include "command_line/Output.h"
#include "command_line/commands.h"
#include "command_line/help_text.h"

namespace firecheck {

int helpCommand(const Options& options) {
    if (options.arguments().size() > 1)
        throw InputError("Expected one command. Try \"firecheck --help\".");
    Output output{QString()};
    output.write(options.arguments().isEmpty()
                     ? helpText()
                     : helpText(requiredCommand(options.arguments().first().toStdString())));
    output.commit();
    return kNothingFound;
}

} // namespace firecheck
