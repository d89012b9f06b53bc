#pragma once

#include "base/rooted_file_name.h"
#include "rules_config/NUXRuleConfigFile.h"

#include <QFile>
#include <QTemporaryDir>

/// A drive root with a rule file, which the store reads anew at each load.
struct RuleStoreAccess {
    RuleStoreAccess() { setDriveRoot(root.path()); }

    QString fileName() const { return root.filePath("FireStandardCheck.xml"); }
    NUXRuleConfigFile load() const { return NUXRuleConfigFile(); }
    NUXRuleConfigFile load(const QByteArray& text) const {
        QFile file(fileName());
        if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size() || !file.flush())
            qFatal("the rule file cannot be written");
        return load();
    }

    QTemporaryDir root;
};
