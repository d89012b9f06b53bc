#pragma once

#include "rules_config/rule_file_bounds.h"

#include <QString>

#include <algorithm>

namespace firestandard {

/// Whether the reader that makes the document of a rule file stays within bounds, by running it. Each version
/// of Qt has a reader of its own; both see the nesting that entities contribute to, and what stands before a
/// fault.
bool readerStaysWithinBounds(const QByteArray& ruleFile);

namespace reader_bounds {

inline constexpr int kDeepestNesting = 256;
inline constexpr int kMostEntities = 256;
inline constexpr int kMostGroups = 4096;       // of element declarations: each may lie within the one before
inline constexpr int kLongestExpansion = 4096; // of one entity, at which the readers themselves give up

/// What the entities of a rule file may come to.
class EntityBounds {
public:
    explicit EntityBounds(const QByteArray& ruleFile)
        : m_references(ruleFile.count('&') + ruleFile.count('%')), m_groups(ruleFile.count('(')) {}

    bool allowDocumentType() const { return m_groups <= kMostGroups; }

    bool allow(const QString& value, bool isOfDocumentType) {
        // The readers bound what elements expand to, but not what the document type does.
        if (isOfDocumentType && (value.contains('&') || value.contains('%')))
            return false;
        m_longestExpansion =
            std::max<qint64>(m_longestExpansion, value.contains('&') ? kLongestExpansion : value.size());
        return ++m_entities <= kMostEntities && m_references * m_longestExpansion <= kLargestRuleFile;
    }

private:
    qint64 m_references;
    qint64 m_groups;
    qint64 m_longestExpansion = 0;
    int m_entities = 0;
};

} // namespace reader_bounds

} // namespace firestandard
