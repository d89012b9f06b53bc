#include "evaluators/distant/DistanceCondition.h"

#include "evaluators/rule_catalogue.h"

#include <QStringList>

namespace firestandard {

DistanceCondition::DistanceCondition(const NuxStandardCheckRule& rule) : m_word(Word::Unknown) {
    const QStringList parts =
        rule.distantValue.split(QLatin1Char(':'), Qt::KeepEmptyParts, Qt::CaseSensitive);
    m_minimum = parts[0].toDouble() * kMillimetresPerMetre;
    // Deliberate: the mark itself is no number of metres and is not multiplied, so that a rule without a
    // maximum has none.
    m_maximum = parts.size() > 1 ? parts[1].toDouble() * kMillimetresPerMetre : kNoDistanceMark;
    if (rule.constraintCondition == QLatin1String("less"))
        m_word = Word::Less;
    else if (rule.constraintCondition == QLatin1String("less or more"))
        m_word = Word::LessOrMore;
}

bool DistanceCondition::isDistanceViolated(double distance) const {
    if (distance > kNoDistanceMark)
        return true;
    switch (m_word) {
    case Word::Less:
        return m_minimum > distance;
    case Word::LessOrMore:
        return m_minimum > distance || distance > m_maximum;
    case Word::Unknown:
        break;
    }
    return false;
}

std::optional<double> DistanceCondition::minimum() const {
    return m_word == Word::Unknown ? std::nullopt : std::optional(m_minimum);
}

std::optional<double> DistanceCondition::maximum() const {
    const bool isJudgedBy = m_word == Word::LessOrMore && m_maximum < kNoDistanceMark;
    return isJudgedBy ? std::optional(m_maximum) : std::nullopt;
}

} // namespace firestandard
