#pragma once

#include "base/rooted_file_name.h"
#include "rules_config/read_rules.h"

#include <QFile>
#include <QTemporaryDir>

/// A drive root of its own with the rule file in its place.
struct RuleFileInPlace {
    RuleFileInPlace() { setDriveRoot(root.path()); }

    QString fileName() const { return root.filePath("FireStandardCheck.xml"); }
    void write(const QByteArray& text) const {
        QFile file(fileName());
        if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size() || !file.flush())
            qFatal("the rule file cannot be written");
    }
    firestandard::RuleMap read() const {
        firestandard::RuleFileStatus status;
        return firestandard::readRules(fileName(), status);
    }
    firestandard::RuleMap rulesOf(const QByteArray& text) const {
        write(text);
        return read();
    }

    QTemporaryDir root;
};
