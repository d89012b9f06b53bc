#include "rules/rule_file.h"

#include "InputError.h"
#include "base/rooted_file_name.h"
#include "rules_config/NUXRuleConfigFile.h"
#include "rules_config/rule_file_bounds.h"
#include "text/language.h"
#include "text/words.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QXmlStreamReader>

namespace firecheck {

std::string defaultRuleFile() {
    const QString language = currentLanguage();
    const QString fileName =
        language == "en" ? QStringLiteral("FireStandardCheck.xml") : "FireStandardCheck." + language + ".xml";
    const QString installed =
        QCoreApplication::applicationDirPath() + "/../share/firestandardcheck/" + fileName;
    if (QFileInfo(installed).isFile())
        return QFileInfo(installed).canonicalFilePath().toStdString();
    return (QStringLiteral(FIRECHECK_SOURCE_DATA_DIRECTORY) + "/" + fileName).toStdString();
}

QByteArray ruleFileContent(const std::string& fileName) {
    const QString name = QString::fromStdString(fileName);
    const QFileInfo info(name);
    if (info.exists() && !info.isFile())
        throw InputError(
            fileName + ": " +
            filled(info.isDir() ? Words::tr("expected a rule file, found a directory")
                                : Words::tr("expected a rule file, found something else that is no file")));
    QFile file(name);
    if (!file.open(QIODevice::ReadOnly))
        throw InputError(fileName + ": " + filled(Words::tr("cannot be read: %1"), file.errorString()));
    QByteArray content;
    if (file.size() <= firestandard::kLargestRuleFile)
        content = file.read(file.size());
    if (file.size() > firestandard::kLargestRuleFile || !firestandard::isWithinBounds(content))
        throw InputError(
            fileName + ": " +
            filled(Words::tr("too large, too deeply nested or too many entities for a rule file")));
    return content;
}

void requireWellFormed(const std::string& fileName) {
    QXmlStreamReader reader(ruleFileContent(fileName));
    reader.setNamespaceProcessing(false);
    while (!reader.atEnd())
        reader.readNext();
    if (reader.hasError())
        refuseIllFormed(fileName, reader);
}

void refuseIllFormed(const std::string& fileName, const QXmlStreamReader& reader) {
    throw InputError(fileName + ":" + std::to_string(reader.lineNumber()) + ":" +
                     std::to_string(reader.columnNumber() + 1) + ": " +
                     filled(Words::tr("expected a well-formed XML document: %1"), reader.errorString()));
}

const RuleMap& useRules(const std::string& fileName) {
    mapRootedFileName("\\FireStandardCheck.xml", QString::fromStdString(fileName));
    const RuleMap& rules = NUXRuleConfigFile::Single()->getAllRuleMap();
    if (rules.isEmpty())
        throw InputError(fileName + ": " + filled(Words::tr("expected at least one rule")));
    return rules;
}

const RuleMap& loadRules(const std::string& fileName) {
    requireWellFormed(fileName);
    return useRules(fileName);
}

} // namespace firecheck
