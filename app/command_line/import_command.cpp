#include "InputError.h"
#include "command_line/Options.h"
#include "command_line/Output.h"
#include "command_line/commands.h"
#include "command_line/drawing_options.h"
#include "site_file/changed_text.h"

namespace firecheck {

int importCommand(const Options& options) {
    if (options.arguments().size() != 1)
        throw InputError("Expected one drawing. Try \"firecheck help import\".");
    const std::string fileName = options.arguments().first().toStdString();
    const SiteFile file = loadSiteFile(fileName, drawingOptions(options));
    tellDoubtsOfDrawing(file, fileName);
    Output output(options.value("output").value_or(QString()));
    output.write(siteText(file.value));
    output.commit();
    return kNothingFound;
}

} // namespace firecheck
