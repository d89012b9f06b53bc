#include "evaluators/distant/NUXRelElementTypeDistantRule.h"

NUXRelElementTypeDistantRule::NUXRelElementTypeDistantRule() {
    m_type = QStringLiteral("RelElementTypeDistantRule");
}

bool NUXRelElementTypeDistantRule::removeWithoutRules(NUXElementObject*, void*,
                                                      QMap<QString, std::vector<NuxStandardCheckRule>>&) {
    return true;
}

std::vector<NuxStandardCheckRule> NUXRelElementTypeDistantRule::check(UdDbBlock*,
                                                                      const NuxStandardCheckRule&) {
    return {};
}
