#include "InputError.h"
#include "check/check_site.h"
#include "command_line/Options.h"
#include "command_line/Output.h"
#include "command_line/commands.h"
#include "command_line/drawing_options.h"
#include "report/plan/plan_svg.h"

namespace firecheck {

int planCommand(const Options& options) {
    if (options.arguments().size() != 1)
        throw InputError("Expected one site file. Try \"firecheck --help\".");
    const std::string fileName = options.arguments().first().toStdString();
    const auto givenRules = options.value("rules");
    const RuleMap& rules = loadRules(givenRules ? givenRules->toStdString() : defaultRuleFile());
    const QString plan = planSvgFile(checkSite(loadSite(fileName, drawingOptions(options)), fileName, rules));
    if (plan.isEmpty())
        throw InputError(fileName + ": nothing of this site can be drawn");
    Output output(options.value("output").value_or(QString()));
    output.write(plan.toStdString());
    output.commit();
    return kNothingFound;
}

} // namespace firecheck
