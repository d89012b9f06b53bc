#include "engine/NuxFireStandardCheck.h"

#include "evaluators/CheckObserver.h"
#include "evaluators/distant/NUXRelElementTypeDistantRule.h"
#include "evaluators/position/NUXRelElementTypePositionRule.h"
#include "evaluators/self/NUXElementTypeRule.h"
#include "evaluators/without/NUXWithoutElementTypeRule.h"
#include "rules_config/NUXRuleConfigFile.h"
#include "site/current_model_space.h"

namespace {

std::vector<NuxStandardCheckRule> judge(NUXRule& evaluator, UdDbBlock* modelSpace,
                                        const NuxStandardCheckRule& rule) {
    firestandard::CheckObserver* observer = firestandard::checkObserver();
    if (observer)
        observer->beginRule(rule);
    std::vector<NuxStandardCheckRule> records = evaluator.check(modelSpace, rule);
    if (observer)
        observer->endRule();
    return records;
}

QString stateKey(const QString& filingKey, const NuxStandardCheckRule& record) {
    if (record.type == QLatin1String("without"))
        return filingKey;
    return filingKey + QLatin1Char(':') + record.name;
}

QMap<QString, std::vector<bool>>
checkStateOf(const QMap<QString, std::vector<NuxStandardCheckRule>>& results) {
    QMap<QString, std::vector<bool>> state;
    for (auto entry = results.cbegin(); entry != results.cend(); ++entry) {
        for (const NuxStandardCheckRule& record : entry.value())
            state[stateKey(entry.key(), record)].push_back(false);
    }
    return state;
}

} // namespace

NuxFireStandardCheck::NuxFireStandardCheck()
    : m_withoutRule(new NUXWithoutElementTypeRule()), m_distantRule(new NUXRelElementTypeDistantRule()),
      m_positionRule(new NUXRelElementTypePositionRule()), m_selfRule(new NUXElementTypeRule()) {}

NuxFireStandardCheck::NuxFireStandardCheck(const NuxFireStandardCheck& other) = default;
NuxFireStandardCheck& NuxFireStandardCheck::operator=(const NuxFireStandardCheck& other) = default;
NuxFireStandardCheck::~NuxFireStandardCheck() = default;

void NuxFireStandardCheck::DoCheck() {
    UdDbBlock* modelSpace = firestandard::currentModelSpace();
    if (!modelSpace)
        return;

    const QMap<QString, std::vector<NuxStandardCheckRule>>& rules =
        NUXRuleConfigFile::Single()->getAllRuleMap();
    // Results and flags change together, at the end: when memory runs out on the way, both stay as they were.
    Results results;
    for (auto entry = rules.cbegin(); entry != rules.cend(); ++entry)
        judgeRules(entry.key(), entry.value(), modelSpace, results);
    CheckState state = checkStateOf(results);
    m_mapRules.swap(results);
    m_mapRulesCheckState.swap(state);
}

NUXRule* NuxFireStandardCheck::evaluatorOf(const QString& ruleType) const {
    if (ruleType == QLatin1String("without"))
        return m_withoutRule;
    if (ruleType == QLatin1String("distant"))
        return m_distantRule;
    if (ruleType == QLatin1String("position"))
        return m_positionRule;
    if (ruleType == QLatin1String("self"))
        return m_selfRule;
    return nullptr;
}

void NuxFireStandardCheck::judgeRules(const QString& ruleKey, const std::vector<NuxStandardCheckRule>& rules,
                                      UdDbBlock* modelSpace, Results& results) const {
    // Deliberate: set once for the entry and carried over from record to record and from rule to rule, so
    // that a record without an element lies beside those of the last element, where hosts look for it.
    QString filingKey = ruleKey;
    for (const NuxStandardCheckRule& stored : rules) {
        NUXRule* evaluator = evaluatorOf(stored.type);
        if (!evaluator)
            continue;
        const NuxStandardCheckRule rule = stored;
        for (const NuxStandardCheckRule& record : judge(*evaluator, modelSpace, rule)) {
            if (record.handle != 0)
                filingKey = QString::number(record.handle, 10);
            results[filingKey].push_back(record);
        }
    }
}

// Deliberate: keyed by the filing key alone, unlike the flags that DoCheck builds; hosts read both.
void NuxFireStandardCheck::clearMapRulesCheckState() {
    m_mapRulesCheckState.clear();
    for (auto entry = m_mapRules.cbegin(); entry != m_mapRules.cend(); ++entry)
        for (std::size_t record = 0; record < entry->size(); ++record)
            m_mapRulesCheckState[entry.key()].push_back(false);
}

QMap<QString, std::vector<NuxStandardCheckRule>>& NuxFireStandardCheck::getMapRules() {
    return m_mapRules;
}

QMap<QString, std::vector<bool>>& NuxFireStandardCheck::getMapRulesCheckState() {
    return m_mapRulesCheckState;
}
