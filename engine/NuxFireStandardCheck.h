#pragma once

#include "firestandardcheck_export.h"
#include "rules_config/NuxStandardCheckRule.h"

#include <QMap>
#include <QString>

#include <vector>

class NUXElementTypeRule;
class NUXRelElementTypeDistantRule;
class NUXRelElementTypePositionRule;
class NUXRule;
class NUXWithoutElementTypeRule;
class UdDbBlock;

/// The check engine: judges every rule of the store against the current document and files the violations by
/// element.
///
/// A violation is filed under the decimal handle of its element. One that names no element is filed under the
/// key of the last element that the same entry of the rule map named, or under the entry's own key.
class FIRESTANDARDCHECK_EXPORT NuxFireStandardCheck {
public:
    NuxFireStandardCheck();
    /// Copies share the evaluators.
    NuxFireStandardCheck(const NuxFireStandardCheck& other);
    NuxFireStandardCheck& operator=(const NuxFireStandardCheck& other);
    ~NuxFireStandardCheck();

    /// Replaces results and flags by those of the current document. Without a document or a model space both
    /// stay as they are; so do they when memory runs out, and std::bad_alloc leaves to the host.
    void DoCheck();

    QMap<QString, std::vector<NuxStandardCheckRule>>& getMapRules();

    /// One flag for each violation, false after each check. Keys are the filing key for rules of type
    /// "without" and otherwise the filing key, ":" and the rule's name.
    QMap<QString, std::vector<bool>>& getMapRulesCheckState();

    /// Rebuilds the flags, all false, under the filing keys alone.
    void clearMapRulesCheckState();

private:
    using Results = QMap<QString, std::vector<NuxStandardCheckRule>>;
    using CheckState = QMap<QString, std::vector<bool>>;

    NUXRule* evaluatorOf(const QString& ruleType) const;
    void judgeRules(const QString& ruleKey, const std::vector<NuxStandardCheckRule>& rules,
                    UdDbBlock* modelSpace, Results& results) const;

    // Never deleted, since copies of the engine share them.
    NUXWithoutElementTypeRule* m_withoutRule;
    NUXRelElementTypeDistantRule* m_distantRule;
    NUXRelElementTypePositionRule* m_positionRule;
    NUXElementTypeRule* m_selfRule;
    Results m_mapRules;
    CheckState m_mapRulesCheckState;
};
