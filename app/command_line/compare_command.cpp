#include "InputError.h"
#include "command_line/Options.h"
#include "command_line/Output.h"
#include "command_line/commands.h"
#include "compare/comparison_report.h"

#include <algorithm>

namespace firecheck {

int compareCommand(const Options& options) {
    const QStringList files = options.arguments();
    if (files.size() != 2)
        throw InputError("Expected two JSON reports, the earlier one first. Try \"firecheck help compare\".");
    const bool isJson = options.format() == "json";
    const auto comparisons =
        compareReports(loadReport(files[0].toStdString()), loadReport(files[1].toStdString()));
    Output output(options.value("output").value_or(QString()));
    output.write(isJson ? comparisonJson(comparisons).dump(2) + "\n" : comparisonText(comparisons));
    output.commit();
    const bool isAnyNew = std::any_of(comparisons.begin(), comparisons.end(),
                                      [](const SiteComparison& site) { return site.needsAttention(); });
    return isAnyNew ? kViolationsFound : kNothingFound;
}

} // namespace firecheck
