#include "InputError.h"
#include "command_line/Options.h"
#include "command_line/Output.h"
#include "command_line/commands.h"
#include "drawing/LayerMap.h"

namespace firecheck {

int layersCommand(const Options& options) {
    if (!options.arguments().isEmpty())
        throw InputError("The table of layers takes no file.");
    Output output(options.value("output").value_or(QString()));
    output.write(LayerMap::conventionText());
    output.commit();
    return kNothingFound;
}

} // namespace firecheck
