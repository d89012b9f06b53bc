#include "report/unjudged_text.h"

#include "explain/measure_text.h"
#include "explain/sentence.h"
#include "text/words.h"

namespace firecheck {

std::string unjudgedText(const SiteReport& report, const firestandard::UnjudgedElement& element) {
    return filled(Words::tr("%1: %2", "element, why it was not judged"),
                  firestandard::elementPhrase(report, element.handle), element.reason);
}

std::string unjudgedByText(const firestandard::UnjudgedElement& element) {
    const QString& first = element.rules.front();
    const int others = static_cast<int>(element.rules.size()) - 1;
    if (others == 0)
        return filled(Words::tr("by %1", "rule"), first);
    return filled(others == 1 ? Words::tr("by %1 and 1 other rule")
                              : Words::tr("by %1 and %n other rules", "", others),
                  first);
}

std::string outgrownText(const Finding& finding) {
    Measure accepted = finding.measures.front();
    accepted.value = finding.outgrown->value;
    return filled(Words::tr("accepted at %1, but worse now: %2"), firestandard::valueText(accepted),
                  finding.outgrown->reason);
}

} // namespace firecheck
