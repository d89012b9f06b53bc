#include "evaluators/self/NUXElementTypeRule.h"

NUXElementTypeRule::NUXElementTypeRule() {
    m_type = QStringLiteral("ElementTypeRule");
}

bool NUXElementTypeRule::removeWithoutRules(NUXElementObject*, void*,
                                            QMap<QString, std::vector<NuxStandardCheckRule>>&) {
    return true;
}

std::vector<NuxStandardCheckRule> NUXElementTypeRule::check(UdDbBlock*, const NuxStandardCheckRule&) {
    return {};
}
