#include "report/unjudged_text.h"

#include "explain/measure_text.h"
#include "explain/sentence.h"

namespace firecheck {

std::string unjudgedText(const SiteReport& report, const firestandard::UnjudgedElement& element) {
    return firestandard::elementPhrase(report, element.handle) + ": " + element.reason;
}

std::string unjudgedByText(const firestandard::UnjudgedElement& element) {
    const std::size_t others = element.rules.size() - 1;
    return "by " + element.rules.front().toStdString() +
           (others == 0   ? ""
            : others == 1 ? " and 1 other rule"
                          : " and " + std::to_string(others) + " other rules");
}

std::string outgrownText(const Finding& finding) {
    Measure accepted = finding.measures.front();
    accepted.value = finding.outgrown->value;
    return "accepted at " + firestandard::valueText(accepted) +
           ", but worse now: " + finding.outgrown->reason;
}

} // namespace firecheck
