#include "InputError.h"
#include "command_line/Options.h"
#include "command_line/Output.h"
#include "command_line/commands.h"
#include "site_file/site_reference.h"
#include "site_file/site_schema.h"

namespace firecheck {

int siteSchemaCommand(const Options& options) {
    if (!options.arguments().isEmpty())
        throw InputError("The site schema takes no file.");
    const QString format = options.format();
    Output output(options.value("output").value_or(QString()));
    output.write(format == "json" ? siteSchema().dump(2) + "\n" : siteReference());
    output.commit();
    return kNothingFound;
}

} // namespace firecheck
