#pragma once

#include "firestandardcheck_export.h"
#include "rules_config/NuxStandardCheckRule.h"

#include <QMap>
#include <QString>

#include <vector>

/// The rules of the rule file, read once in the life of the process.
///
/// A rule is filed under its rule key: its name or, for rules of type "without", the element type directly
/// followed by the property type. Rules of one key keep their order in the file.
class FIRESTANDARDCHECK_EXPORT NUXRuleConfigFile {
public:
    /// The one store, made by the first call, which reads the rule file. Not synchronised: the first call
    /// must not race with another. Never destroyed.
    static NUXRuleConfigFile* Single();

    NUXRuleConfigFile(const NUXRuleConfigFile& other);
    NUXRuleConfigFile& operator=(const NUXRuleConfigFile& other);
    virtual ~NUXRuleConfigFile();

    /// Records the directory and nothing else; the rules stay as the first Single() read them.
    void setConfigFilePath(const QString& path);

    const QMap<QString, std::vector<NuxStandardCheckRule>>& getAllRuleMap() const;

    /// The rules whose type is exactly `type`, under their keys; keys without such a rule do not appear.
    QMap<QString, std::vector<NuxStandardCheckRule>> getRuleMapFromType(const QString& type) const;

private:
    NUXRuleConfigFile();

    void loadFile();

    QMap<QString, std::vector<NuxStandardCheckRule>> m_ruleMap;
    QString m_configFilePath;

    static NUXRuleConfigFile* m_instance;
};
