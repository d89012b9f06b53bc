#pragma once

#include "firestandardcheck_export.h"
#include "rules_config/NuxStandardCheckRule.h"

#include <QMap>
#include <QString>

#include <vector>

class NUXElementObject;
class UdDbBlock;

/// Judges the rules of one type. Evaluators keep nothing from one call to the next.
class FIRESTANDARDCHECK_EXPORT NUXRule {
public:
    NUXRule();
    NUXRule(const NUXRule& other);
    NUXRule& operator=(const NUXRule& other);

    // The order of the virtual operations is part of the interface.
    virtual ~NUXRule();

    /// A filter on a rule map for the host's use; the engine does not call it. No implementation reads the
    /// second argument.
    virtual bool removeWithoutRules(NUXElementObject* element, void* unused,
                                    QMap<QString, std::vector<NuxStandardCheckRule>>& rules) = 0;

    /// The violations of `rule` in the model space, in the order found: copies of the rule with `handle` and
    /// `relatedHandles` filled in. A rule name that the evaluator does not know gives none.
    virtual std::vector<NuxStandardCheckRule> check(UdDbBlock* modelSpace,
                                                    const NuxStandardCheckRule& rule) = 0;

    /// A label of the class; rules are not dispatched by it.
    const QString& getType() const;

protected:
    QString m_type;
};
