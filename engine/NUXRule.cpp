#include "engine/NUXRule.h"

NUXRule::NUXRule() : m_type(QStringLiteral("RuleType")) {}
NUXRule::NUXRule(const NUXRule& other) = default;
NUXRule& NUXRule::operator=(const NUXRule& other) = default;
NUXRule::~NUXRule() = default;

const QString& NUXRule::getType() const {
    return m_type;
}
