#include "InputError.h"
#include "command_line/Options.h"
#include "command_line/Output.h"
#include "command_line/commands.h"
#include "command_line/drawing_options.h"
#include "drawing/drawing_of_site.h"
#include "drawing/dxf/write_dxf.h"

namespace firecheck {

int exportCommand(const Options& options) {
    if (options.arguments().size() != 1)
        throw InputError("Expected one site file. Try \"firecheck help export\".");
    const std::string fileName = options.arguments().first().toStdString();
    const DrawingOptions drawings = drawingOptions(options);
    const SiteFile file = loadSiteFile(fileName, drawings);
    tellDoubtsOfDrawing(file, fileName);
    std::string text;
    try {
        text = writeDxf(drawingOfSite(file.value, drawings.layers ? &*drawings.layers : nullptr));
    } catch (const InputError& error) {
        throw InputError(fileName + ": " + error.what());
    }
    Output output(options.value("output").value_or(QString()));
    output.write(text);
    output.commit();
    return kNothingFound;
}

} // namespace firecheck
