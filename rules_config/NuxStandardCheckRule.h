#pragma once

#include "firestandardcheck_export.h"

#include <QString>

#include <vector>

/// One rule as read from the rule file and, with the last three fields filled in, one violation of it. Texts
/// are kept exactly as the XML parser delivers them.
struct FIRESTANDARDCHECK_EXPORT NuxStandardCheckRule {
    NuxStandardCheckRule();
    NuxStandardCheckRule(const NuxStandardCheckRule& other);
    NuxStandardCheckRule& operator=(const NuxStandardCheckRule& other);
    ~NuxStandardCheckRule();

    QString name;                  ///< picks the test within an evaluator
    QString type;                  ///< selects the evaluator: "self", "distant", "position" or "without"
    QString elementType;           ///< element type identifier
    QString propertyType;          ///< qualifier, part of the key of "without" rules
    QString standard;              ///< the standard cited
    QString objName;               ///< name of the checked object
    QString referenceObjName;      ///< name of the reference object
    QString ruleDescription;       ///< short description
    QString ruleCatalog;           ///< catalogue entry
    QString ruleDetailDescription; ///< long description
    QString referenceElementType;  ///< element type identifier
    QString constraintCondition;   ///< "less" or "less or more"
    QString distantValue;          ///< metres: "minimum" or "minimum:maximum"

    qint64 handle = 0; ///< the offending element; 0 when the violation is not about one element
    std::vector<qint64> relatedHandles; ///< the other elements involved, in the order met
    bool flag = false;                  ///< the host's own; the library never sets it
};
