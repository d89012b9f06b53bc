#include "rules_config/reader_bounds.h"

#include <QBuffer>
#include <QXmlSimpleReader>

// Qt advises against this reader, but it is the one that builds the document: both see the same nesting, also
// where entities contribute to it and where the text is not quite well-formed.
QT_WARNING_PUSH
QT_WARNING_DISABLE_DEPRECATED

namespace firestandard {

namespace {

/// Reports an error to the reader, which then stops, as soon as a bound is exceeded.
class BoundsHandler : public QXmlDefaultHandler {
public:
    explicit BoundsHandler(const QByteArray& ruleFile) : m_entities(ruleFile) {}

    bool isWithinBounds() const { return m_isWithinBounds; }

    bool startDTD(const QString&, const QString&, const QString&) override {
        return require(m_entities.allowDocumentType());
    }

    bool internalEntityDecl(const QString& name, const QString& value) override {
        return require(m_entities.allow(value, name.startsWith('%')));
    }

    bool startElement(const QString&, const QString&, const QString&, const QXmlAttributes&) override {
        return require(++m_depth <= reader_bounds::kDeepestNesting);
    }

    bool endElement(const QString&, const QString&, const QString&) override {
        --m_depth;
        return true;
    }

private:
    bool require(bool holds) {
        m_isWithinBounds &= holds;
        return holds;
    }

    reader_bounds::EntityBounds m_entities;
    int m_depth = 0;
    bool m_isWithinBounds = true;
};

} // namespace

bool readerStaysWithinBounds(const QByteArray& ruleFile) {
    QBuffer buffer;
    buffer.setData(ruleFile);
    buffer.open(QIODevice::ReadOnly);
    QXmlInputSource source(&buffer);
    BoundsHandler handler(ruleFile);
    QXmlSimpleReader reader;
    reader.setFeature(QStringLiteral("http://xml.org/sax/features/namespaces"), false);
    reader.setFeature(QStringLiteral("http://xml.org/sax/features/namespace-prefixes"), true);
    reader.setContentHandler(&handler);
    reader.setDeclHandler(&handler);
    reader.setLexicalHandler(&handler);
    reader.setErrorHandler(&handler);
    reader.parse(source);
    return handler.isWithinBounds();
}

} // namespace firestandard

QT_WARNING_POP
