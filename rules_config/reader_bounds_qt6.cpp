#include "rules_config/reader_bounds.h"

#include <QRegularExpression>
#include <QStringDecoder>
#include <QXmlStreamReader>

namespace firestandard {

namespace {

/// The reader tells general entities only, so all declarations are looked for in the text of the type.
bool allowEntities(const QString& documentType, reader_bounds::EntityBounds& bounds) {
    static const QRegularExpression declaration(R"re(<!ENTITY\s+(%\s+)?\S+\s+(?:"([^"]*)"|'([^']*)'))re");
    for (auto matches = declaration.globalMatch(documentType); matches.hasNext();) {
        const auto match = matches.next();
        const bool isOfDocumentType = !match.captured(1).isEmpty();
        if (!bounds.allow(match.captured(2) + match.captured(3), isOfDocumentType))
            return false;
    }
    return true;
}

} // namespace

bool readerStaysWithinBounds(const QByteArray& ruleFile) {
    reader_bounds::EntityBounds bounds(ruleFile);
    // The reader goes through the document type before it tells of it.
    const auto encoding = QStringConverter::encodingForData(ruleFile, u'<');
    const QString text = QStringDecoder(encoding.value_or(QStringConverter::Utf8))(ruleFile);
    if (text.contains("<!DOCTYPE") && !(bounds.allowDocumentType() && allowEntities(text, bounds)))
        return false;
    QXmlStreamReader reader(ruleFile);
    reader.setNamespaceProcessing(false);
    for (int depth = 0; !reader.atEnd();) {
        const auto token = reader.readNext();
        depth += token == QXmlStreamReader::StartElement ? 1 : token == QXmlStreamReader::EndElement ? -1 : 0;
        if (depth > reader_bounds::kDeepestNesting)
            return false;
    }
    return true;
}

} // namespace firestandard
