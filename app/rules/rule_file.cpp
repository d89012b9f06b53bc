#include "rules/rule_file.h"

#include "InputError.h"
#include "base/rooted_file_name.h"
#include "rules/XmlPlaces.h"
#include "rules/crowded_tag.h"
#include "rules/decoded_xml.h"
#include "rules_config/NUXRuleConfigFile.h"
#include "rules_config/rule_file_bounds.h"
#include "text/input_text.h"
#include "text/language.h"
#include "text/words.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryFile>
#include <QXmlStreamReader>

namespace firecheck {

namespace {

[[noreturn]] void refuseAt(const Place& place, const std::string& fileName, const std::string& reason) {
    throw InputError(fileName + ":" + std::to_string(place.line) + ":" + std::to_string(place.column) + ": " +
                     reason);
}

void requireFewAttributes(const std::string& fileName, const QByteArray& content) {
    const QString text = decodedXml(content).text;
    if (const auto tag = crowdedTag(text))
        refuseAt(XmlPlaces(text).placeAt(*tag), fileName,
                 filled(Words::tr("expected at most %1 attributes in a tag"), kMostAttributes));
}

QByteArray bounded(const std::string& fileName, QByteArray content, qint64 size) {
    requireFewAttributes(fileName, content);
    if (size > firestandard::kLargestRuleFile || !firestandard::isWithinBounds(content))
        throw InputError(
            fileName + ": " +
            filled(Words::tr("too large, too deeply nested or too many entities for a rule file")));
    return content;
}

/// A rule file is looked at before the library reads it, but standard input can be read once only.
const QByteArray& standardInput() {
    static const QByteArray content = [] {
        const std::string text = inputText("-", filled(Words::tr("a rule file")));
        return bounded("-", QByteArray::fromStdString(text), qint64(text.size()));
    }();
    return content;
}

} // namespace

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
    if (fileName == "-")
        return standardInput();
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
    return bounded(fileName, std::move(content), file.size());
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
    refuseAt({int(reader.lineNumber()), int(reader.columnNumber()) + 1}, fileName,
             filled(Words::tr("expected a well-formed XML document: %1"), reader.errorString()));
}

const RuleMap& useRules(const std::string& fileName) {
    QTemporaryFile copy; // the library opens a file
    QString name = QString::fromStdString(fileName);
    if (fileName == "-") {
        const QByteArray& content = standardInput();
        if (!copy.open() || copy.write(content) != content.size() || !copy.flush())
            throw InputError("-: " + filled(Words::tr("cannot be copied: %1"), copy.errorString()));
        name = copy.fileName();
    }
    mapRootedFileName("\\FireStandardCheck.xml", name);
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
