// The small host again, by the library that explains: prints what it says of its rules, how far it came and
// the findings, then whether a check that is given up left them alone.
#include "base/rooted_file_name.h"
#include "cad/UdApDocManager.h"
#include "elements/NUXRoadObject.h"
#include "engine/NUXCheck.h"
#include "engine/NuxFireStandardCheck.h"
#include "explain/explain_check.h"
#include "rules_config/RuleFileStatus.h"

#include <iostream>

using namespace firestandard;

int main(int, char** arguments) {
    setDriveRoot(arguments[1]);
    const RuleFileStatus rules = ruleFileStatus();
    std::cout << (rules.isFound && rules.isParsed && rules.ruleCount > 0);
    std::cout << explainCheck().has_value();

    UdApDocument* document = UdDocManagerPtr()->open(std::make_unique<UdDbDocument>());
    NUXRoadParams road;
    road.isFireRoad = true;
    road.width = 3500;
    road.end = {20000.0, 0.0};
    document->Database()->append(std::make_unique<NUXRoadObject>(road), 7);
    std::size_t asked = 0;
    const auto report = explainCheck([](long long) { return "North road"; },
                                     [&asked](const CheckStep& step) { return step.judged == asked++; });
    std::cout << (asked == rules.ruleCount) << '\n';
    for (const Finding& finding : report->findings)
        if (report->record(finding).handle == 7)
            std::cout << finding.sentence << '\n';

    auto& results = NUXCheck::instance()->getMapRules();
    const int before = results.size();
    document->Database()->append(std::make_unique<NUXRoadObject>(road), 8);
    std::cout << explainCheck({}, [](const CheckStep& step) { return step.judged < 5; }).has_value()
              << (results.size() == before && !results.contains("8")) << '\n';
}
