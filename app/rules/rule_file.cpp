#include "rules/rule_file.h"

#include "InputError.h"
#include "base/rooted_file_name.h"
#include "rules_config/NUXRuleConfigFile.h"
#include "rules_config/rule_file_bounds.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QDomDocument>
#include <QFile>
#include <QFileInfo>

namespace firecheck {

std::string defaultRuleFile() {
    const QString fileName = "FireStandardCheck.xml";
    const QString installed =
        QCoreApplication::applicationDirPath() + "/../share/firestandardcheck/" + fileName;
    if (QFileInfo(installed).isFile())
        return QFileInfo(installed).canonicalFilePath().toStdString();
    return (QStringLiteral(FIRECHECK_SOURCE_DATA_DIRECTORY) + "/" + fileName).toStdString();
}

void requireWellFormed(const std::string& fileName) {
    const QString name = QString::fromStdString(fileName);
    const QFileInfo info(name);
    if (info.exists() && !info.isFile())
        throw InputError(fileName + ": expected a rule file, found " +
                         (info.isDir() ? "a directory" : "something else that is no file"));
    QFile file(name);
    if (!file.open(QIODevice::ReadOnly))
        throw InputError(fileName + ": cannot be read: " + file.errorString().toStdString());
    QBuffer content;
    if (file.size() <= firestandard::kLargestRuleFile)
        content.setData(file.read(file.size()));
    content.open(QIODevice::ReadOnly);
    if (file.size() > firestandard::kLargestRuleFile || !firestandard::isWithinBounds(content.data()))
        throw InputError(fileName + ": too large, too deeply nested or too many entities for a rule file");
    QDomDocument document;
    QString reason;
    int line = 0;
    int column = 0;
    if (!document.setContent(&content, &reason, &line, &column))
        throw InputError(fileName + ":" + std::to_string(line) + ":" + std::to_string(column) +
                         ": expected a well-formed XML document: " + reason.toStdString());
}

const RuleMap& loadRules(const std::string& fileName) {
    requireWellFormed(fileName);
    mapRootedFileName("\\FireStandardCheck.xml", QString::fromStdString(fileName));
    const RuleMap& rules = NUXRuleConfigFile::Single()->getAllRuleMap();
    if (rules.isEmpty())
        throw InputError(fileName + ": expected at least one rule");
    return rules;
}

} // namespace firecheck
